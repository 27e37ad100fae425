#include "docs/listings/callbacks/HostTexts.h"
#include "docs/listings/callbacks/Later.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QListView>
#include <QProxyStyle>
#include <QTimer>
#include <QTreeView>

namespace {

/** A pane over two files and two folders. */
class Pane : public PaneFixture
{
public:
    explicit Pane(EKTFMMode mode = FM_MODE_TREE_AND_LIST) : PaneFixture(mode)
    {
        m_folder.File(QStringLiteral("a.txt"));
        m_folder.File(QStringLiteral("b.txt"));
        m_folder.Folder(QStringLiteral("sub"));
        m_folder.Folder(QStringLiteral("other"));
        m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    }

    bool ShowAll() { return ShowFolder(4); }

    /** @return the names of the operations that were called since the last time, in their order */
    QString Calls()
    {
        QStringList names;
        for (const QString& call : qAsConst(m_host.m_calls))
            names.append(call.section(QLatin1Char(' '), 0, 0));
        m_host.m_calls.clear();
        return names.join(QLatin1Char(' '));
    }
};

/** A desktop on which a single click activates an item. */
class SingleClickDesktop : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override
    {
        return hint == SH_ItemView_ActivateItemOnSingleClick
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};

} // namespace

class tst_GuideCallbacks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void orderWhenAFolderIsSet();
    void orderOfAClickInTheList();
    void orderOfADoubleClickOnAFile();
    void orderOfADoubleClickOnAFolder();
    void orderOfAClickInTheTree();
    void orderOfARightClick();
    void clickInTheAliasTreeIsNoClickForTheHost();
    void hostsImagesNamesAndTipsAreShown();
    void singleClickActivationGivesTwoClicks();
    void hostMayNavigateFromADoubleClick();
    void workMayBePutOff();
    void workPutOffIsDroppedWithThePane();
    void paneMayBeDeletedFromTheContextMenuCall();
};

void tst_GuideCallbacks::orderWhenAFolderIsSet()
{
    Pane p;
    p.m_pPane->SetDirectory(p.m_folder.Path());
    QCOMPARE(p.Calls(), QStringLiteral("OnTreeViewRootPathChanged"));
    p.m_pPane->SetDirectory(p.m_folder.Path());
    QCOMPARE(p.Calls(), QStringLiteral("OnTreeViewSelectionChanged OnListViewRootPathChanged"));
    p.m_pPane->SetDirectory(p.m_folder.Path(QStringLiteral("sub")));
    QCOMPARE(
        p.Calls(),
        QStringLiteral("OnTreeViewRootPathChanged OnTreeViewSelectionChanged OnListViewRootPathChanged"));
    p.m_pPane->SetDirectory(p.m_folder.Path(QStringLiteral("sub")));
    QCOMPARE(p.Calls(), QString());
}

void tst_GuideCallbacks::orderOfAClickInTheList()
{
    Pane p;
    QVERIFY(p.ShowAll());
    Pane::Click(p.Grid(), p.ListIndex(QStringLiteral("a.txt")));
    QCOMPARE(p.Calls(), QStringLiteral("OnListViewSelectionChanged OnLButtonClickListItem"));
}

void tst_GuideCallbacks::orderOfADoubleClickOnAFile()
{
    Pane p;
    QVERIFY(p.ShowAll());
    Pane::DoubleClick(p.Grid(), p.ListIndex(QStringLiteral("a.txt")));
    QCOMPARE(p.Calls(),
             QStringLiteral("OnListViewSelectionChanged OnLButtonClickListItem OnLButtonDblClickListItem "
                            "OnLButtonClickListItem"));
}

void tst_GuideCallbacks::orderOfADoubleClickOnAFolder()
{
    Pane p;
    QVERIFY(p.ShowAll());
    const QModelIndex item = p.ListIndex(QStringLiteral("sub"));
    Pane::Click(p.Grid(), item);
    p.Calls();
    QTest::mouseDClick(p.Grid()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       p.Grid()->visualRect(item).center());
    QCOMPARE(p.Calls(),
             QStringLiteral("OnTreeViewRootPathChanged OnListViewSelectionChanged OnTreeViewSelectionChanged "
                            "OnListViewRootPathChanged OnLButtonDblClickListItem OnLButtonClickListItem"));
}

void tst_GuideCallbacks::orderOfAClickInTheTree()
{
    Pane p;
    QVERIFY(p.ShowAll());
    QTRY_VERIFY(p.TreeIndex(QStringLiteral("sub")).isValid());
    Pane::Click(p.Tree(), p.TreeIndex(QStringLiteral("sub")));
    QCOMPARE(p.Calls(),
             QStringLiteral("OnTreeViewSelectionChanged OnLButtonClickTreeItem OnListViewRootPathChanged"));
}

void tst_GuideCallbacks::orderOfARightClick()
{
    Pane p;
    QVERIFY(p.ShowAll());
    const QPoint position = p.Grid()->visualRect(p.ListIndex(QStringLiteral("a.txt"))).center();
    QTest::mousePress(p.Grid()->viewport(), Qt::RightButton, Qt::NoModifier, position);
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, p.Grid()->viewport()->mapToGlobal(position));
    QApplication::sendEvent(p.Grid()->viewport(), &event);
    QCOMPARE(p.Calls(), QStringLiteral("OnListViewSelectionChanged OnShowPopupMenu"));
}

void tst_GuideCallbacks::clickInTheAliasTreeIsNoClickForTheHost()
{
    Pane p(FM_MODE_ALIAS_TREE_AND_LIST);
    QVERIFY(p.ShowAll());
    p.m_pPane->PopulateAliasTable(QStringLiteral("Sub\t%1\n").arg(p.m_folder.Path(QStringLiteral("sub"))));
    p.Calls();
    Pane::Click(p.AliasTree(), p.m_pPane->GetAliasTreeModel()->index(0, 0));
    QCOMPARE(
        p.Calls(),
        QStringLiteral("OnTreeViewRootPathChanged OnTreeViewSelectionChanged OnListViewRootPathChanged"));
}

void tst_GuideCallbacks::hostsImagesNamesAndTipsAreShown()
{
    Pane p;
    QVERIFY(p.ShowAll());
    CKTFMListModel* model = p.m_pPane->GetListModel();
    HostTexts texts(*model);
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    texts.SetImage(p.m_folder.Path(QStringLiteral("a.txt")), image);
    texts.SetTitle(p.m_folder.Path(QStringLiteral("a.txt")), QStringLiteral("First"));
    p.m_pPane->SetCallBackInterface(nullptr, nullptr, &texts, nullptr);
    p.m_pPane->SetFlagStatus(FM_PART_LIST, 2, true);

    const QModelIndex known = p.ListIndex(QStringLiteral("a.txt"));
    QCOMPARE(known.data().toString(), QStringLiteral("First"));
    QVERIFY(known.data(Qt::ToolTipRole).toString().startsWith(QStringLiteral("First: ")));
    QCOMPARE(known.data(Qt::DecorationRole).value<QIcon>().pixmap(8, 8).toImage().pixelColor(4, 4),
             QColor(Qt::red));
    QVERIFY(known.siblingAtColumn(1).data(Qt::DecorationRole).isNull());
    const QModelIndex other = p.ListIndex(QStringLiteral("b.txt"));
    QCOMPARE(other.data().toString(), QStringLiteral("b"));
    QCOMPARE(other.data(Qt::ToolTipRole).toString(), QStringLiteral("b"));
    p.m_pPane->SetCallBackInterface(nullptr, nullptr, nullptr, nullptr);
}

void tst_GuideCallbacks::singleClickActivationGivesTwoClicks()
{
    SingleClickDesktop desktop;
    Pane p;
    p.Details()->setStyle(&desktop);
    p.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QVERIFY(p.ShowAll());
    const QModelIndex item = p.ListIndex(QStringLiteral("a.txt"));
    Pane::Click(p.Details(), item);
    QCOMPARE(p.Calls(),
             QStringLiteral("OnListViewSelectionChanged OnLButtonClickListItem OnLButtonClickListItem"));
    QTest::mouseDClick(p.Details()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       p.Details()->visualRect(item).center());
    QCOMPARE(p.Calls(), QStringLiteral("OnLButtonDblClickListItem"));
}

void tst_GuideCallbacks::hostMayNavigateFromADoubleClick()
{
    Pane p;
    QVERIFY(p.ShowAll());
    p.m_host.m_onCall = [&p](const QString& call) {
        if (call.startsWith(QLatin1String("OnLButtonDblClick")))
            p.m_pPane->SetDirectory(p.m_folder.Path(QStringLiteral("other")));
    };
    Pane::DoubleClick(p.Grid(), p.ListIndex(QStringLiteral("a.txt")));
    QTRY_COMPARE(p.m_pPane->GetListModel()->rootPath(), p.m_folder.Path(QStringLiteral("other")));
}

void tst_GuideCallbacks::workMayBePutOff()
{
    Pane p;
    QVERIFY(p.ShowAll());
    p.m_host.m_onCall = [&p](const QString& call) {
        if (call.startsWith(QLatin1String("OnListViewRootPathChanged")))
            Later(*p.m_pPane, [&p] { p.DeletePane(); });
    };
    p.m_pPane->SetDirectory(p.m_folder.Path(QStringLiteral("sub")));
    QVERIFY(p.m_pPane);
    QTRY_VERIFY(!p.m_pPane);
}

void tst_GuideCallbacks::workPutOffIsDroppedWithThePane()
{
    Pane p;
    bool done = false;
    Later(*p.m_pPane, [&done] { done = true; });
    p.DeletePane();
    bool passed = false;
    QTimer::singleShot(0, this, [&passed] { passed = true; });
    QTRY_VERIFY(passed);
    QVERIFY(!done);
}

void tst_GuideCallbacks::paneMayBeDeletedFromTheContextMenuCall()
{
    Pane p;
    QVERIFY(p.ShowAll());
    p.m_host.m_onCall = [&p](const QString&) { p.DeletePane(); };
    const QPoint position = p.Grid()->viewport()->mapToGlobal(QPoint(1, 1));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), position);
    QApplication::sendEvent(p.m_pPane, &event);
    QVERIFY(!p.m_pPane);
}

KTFM_TEST_MAIN(tst_GuideCallbacks)
#include "tst_guide_callbacks.moc"
