#include "docs/listings/appearance/Looks.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>

#include <QHeaderView>
#include <QListView>
#include <QStackedWidget>
#include <QTreeView>

namespace {

/** Counts how often a widget is painted. */
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_nCount += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

    /** Lets the event loop do all that is due. @return how often the widget was painted meanwhile */
    int OfAPass()
    {
        m_nCount = 0;
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        return m_nCount;
    }

private:
    int m_nCount = 0;
};

} // namespace

class tst_GuideAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paneStartsAsTheGuideSays();
    void dragsOfferWhatTheGuideSays();
    void filterIsLiftedByAStar();
    void thumbnailsAreLargeAndSpread();
    void marginWaitsForItsUse();
    void paneIsDark();
    void objectNamesComeWithTheBackground();
    void viewsAreFoundByTheirNames();
    void storedSettingsNeedAPaint();
};

void tst_GuideAppearance::paneStartsAsTheGuideSays()
{
    PaneFixture p;
    p.m_folder.File(QStringLiteral("a.png"));
    QVERIFY(p.ShowFolder(1));
    QCOMPARE(p.Stack()->currentIndex(), 0);
    QCOMPARE(p.m_pPane->GetViewMode(), FM_VIEW_DETAIL);
    QCOMPARE(p.Grid()->iconSize(), QSize(40, 40));
    QCOMPARE(p.Details()->iconSize(), QSize(30, 30));
    QCOMPARE(p.Details()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    for (const QAbstractItemView* view : {static_cast<const QAbstractItemView*>(p.Grid()),
                                          static_cast<const QAbstractItemView*>(p.Details())}) {
        QCOMPARE(view->selectionMode(), QAbstractItemView::SingleSelection);
        QCOMPARE(view->dragDropMode(), QAbstractItemView::NoDragDrop);
    }
    const QModelIndex item = p.ListIndex(QStringLiteral("a.png"));
    QVERIFY(!(item.flags() & Qt::ItemIsEditable));
    QVERIFY(item.data(Qt::ToolTipRole).isNull());
    QCOMPARE(item.data().toString(), QStringLiteral("a"));
}

void tst_GuideAppearance::dragsOfferWhatTheGuideSays()
{
    PaneFixture p;
    p.m_folder.Folder(QStringLiteral("sub"));
    QVERIFY(p.ShowFolder(1));
    p.m_pPane->SetFlagStatus(FM_PART_TREE | FM_PART_LIST | FM_PART_ALIAS_TREE, 4, true);
    p.m_pPane->PopulateAliasTable(QStringLiteral("Top\t") + p.m_folder.Path());
    QVERIFY(p.ListIndex(QStringLiteral("sub")).flags() & Qt::ItemIsDragEnabled);
    QTRY_VERIFY(p.TreeIndex(QStringLiteral("sub")).flags() & Qt::ItemIsDragEnabled);
    QVERIFY(!(p.AliasTree()->model()->index(0, 0).flags() & Qt::ItemIsDragEnabled));
    for (const QAbstractItemView* view :
         {static_cast<const QAbstractItemView*>(p.Grid()), static_cast<const QAbstractItemView*>(p.Details()),
          static_cast<const QAbstractItemView*>(p.Tree())})
        QCOMPARE(view->dragDropMode(), QAbstractItemView::DragOnly);
}

void tst_GuideAppearance::filterIsLiftedByAStar()
{
    PaneFixture p;
    p.m_folder.File(QStringLiteral("a.png"));
    p.m_folder.File(QStringLiteral("b.txt"));
    QVERIFY(p.ShowFolder(2));
    p.m_pPane->SetFilter({QStringLiteral("*.png"), QStringLiteral("*.jpg")});
    QTRY_COMPARE(p.Names(), QStringList(QStringLiteral("a.png")));
    p.m_pPane->SetFilter(QStringList());
    QCOMPARE(p.m_pPane->GetListModel()->nameFilters().size(), 2);
    p.m_pPane->SetFilter({QStringLiteral("*")});
    QTRY_COMPARE(p.Names().size(), 2);
}

void tst_GuideAppearance::thumbnailsAreLargeAndSpread()
{
    PaneFixture p;
    p.m_host.m_listImage = QImage(125, 125, QImage::Format_RGB32);
    p.m_folder.File(QStringLiteral("a.png"));
    QVERIFY(p.ShowFolder(1));
    ShowLargeThumbnails(*p.m_pPane);
    QCOMPARE(p.Grid()->iconSize(), QSize(125, 125));
    QCOMPARE(p.Grid()->gridSize().height(), 173);
    const int available = p.Grid()->viewport()->width() - 16;
    QVERIFY2(p.Grid()->gridSize().width() * (available / p.Grid()->gridSize().width()) <= available,
             "the columns do not fit");
    QStyleOptionViewItem option;
    option.decorationSize = p.Grid()->iconSize();
    QCOMPARE(p.m_pPane->GetListViewDelegate()->sizeHint(option, p.ListIndex(QStringLiteral("a.png"))),
             QSize(185, 173));
}

void tst_GuideAppearance::marginWaitsForItsUse()
{
    const PaneFixture p;
    p.m_pPane->SetIconSize(FM_ICON_MEDIUM);
    QCOMPARE(p.Grid()->gridSize(), QSize(100, 100));
    p.m_pPane->SetGridSize(FM_GRID_NARROW);
    QCOMPARE(p.Grid()->gridSize(), QSize(100, 100));
    p.m_pPane->SetIconSize(FM_ICON_MEDIUM);
    QCOMPARE(p.Grid()->gridSize(), QSize(80, 80));
}

void tst_GuideAppearance::paneIsDark()
{
    PaneFixture p;
    ShowDark(*p.m_pPane);
    QVERIFY(p.ShowFolder(0));
    const QColor dark(40, 42, 46);
    for (QAbstractItemView* view :
         {static_cast<QAbstractItemView*>(p.Grid()), static_cast<QAbstractItemView*>(p.Tree())}) {
        const QImage picture = view->viewport()->grab().toImage();
        QCOMPARE(picture.pixelColor(picture.width() - 2, picture.height() - 2), dark);
    }
}

void tst_GuideAppearance::objectNamesComeWithTheBackground()
{
    const PaneFixture p;
    QVERIFY(p.Grid()->objectName().isEmpty());
    ShowDark(*p.m_pPane);
    QCOMPARE(p.Grid()->objectName(), QStringLiteral("pListView"));
    QCOMPARE(p.Details()->objectName(), QStringLiteral("pListDetailView"));
    QCOMPARE(p.Tree()->objectName(), QStringLiteral("pTreeView"));
    QVERIFY(p.AliasTree()->objectName().isEmpty());
    p.Details()->ensurePolished();
    QCOMPARE(p.Details()->font().pixelSize(), 13);
}

void tst_GuideAppearance::viewsAreFoundByTheirNames()
{
    const PaneFixture p;
    WidenNames(*p.m_pPane, 321);
    QCOMPARE(p.Details()->columnWidth(0), 321);
}

void tst_GuideAppearance::storedSettingsNeedAPaint()
{
    // Without a folder nothing but what is done here has the grid painted.
    PaneFixture p(FM_MODE_LIST_ONLY);
    QVERIFY(p.Show());
    PaintCount paints(*p.Grid()->viewport());
    QTRY_COMPARE(paints.OfAPass(), 0);
    p.m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, Qt::red, Qt::red, Qt::red, 0);
    p.m_pPane->update();
    QCOMPARE(paints.OfAPass(), 0);
    PaintAnew(*p.m_pPane);
    QCOMPARE(paints.OfAPass(), 1);
    p.m_pPane->UpdateWnd(FM_UPDATE_LIST_VIEW);
    QCOMPARE(paints.OfAPass(), 1);
}

KTFM_TEST_MAIN(tst_GuideAppearance)
#include "tst_guide_appearance.moc"
