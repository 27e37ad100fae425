#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include <QContextMenuEvent>
#include <QListView>
#include <QMenu>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <QWindow>

namespace {

/** The offscreen platform complains of every popup that is shown on it. */
void ExpectPopupWarnings()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        return;
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
}

/** Runs @p work on the menu that is opened next, from within the menu's event loop, then closes the menu. */
void WhenAMenuOpens(const std::function<void(QMenu*)>& work)
{
    ExpectPopupWarnings();
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, work] {
        const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu || !menu->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        work(menu);
        if (menu)
            menu->close();
    });
    poll->start(5);
}

/** Presses and releases the right button on a place of a widget, as the window system tells of it. */
void RightClick(const PaneFixture& f, const QWidget* widget, const QPoint& pos)
{
    QWindow* window = f.m_window.windowHandle();
    QTest::mouseClick(window, Qt::RightButton, Qt::NoModifier, widget->mapTo(&f.m_window, pos));
}

/** A place of a view where no item is. */
QPoint EmptyPlace(const QAbstractItemView* view)
{
    return {view->viewport()->width() / 2, view->viewport()->height() - 5};
}

/** A pane over a folder with one sub-folder and one alias. */
class MenuFixture : public PaneFixture
{
public:
    explicit MenuFixture(EKTFMMode mode = FM_MODE_TREE_AND_LIST) : PaneFixture(mode)
    {
        m_folder.Folder(QStringLiteral("sub"));
        m_pPane->GetAliasTreeModel()->PopulateAliasTree(QStringLiteral("Top\t/\tfalse\t0\t\t"));
    }

    QStringList MenuCalls() const { return m_host.CallsOf(QStringLiteral("OnShowPopupMenu")); }
};

} // namespace

class tst_FileManagerContextMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rightClickOnTheFolderTree();
    void rightClickOnTheGrid();
    void rightClickOnTheDetails();
    void rightClickOnTheAliasTree();
    void rightClickBelowTheTopOfAScrolledView();
    void rightClickBetweenThePanesIsNotToldOf();
    void hiddenPanesDoNotAnswer_data();
    void hiddenPanesDoNotAnswer();
    void emptyMenuIsNotShown();
    void menuIsFilledDuringTheCallAndShownAtTheCursor();
    void menuIsShownWhereNoPaneIs();
    void menuIsShownWithoutAHost();
    void menuKeyOpensTheMenuOfTheFocusedPane();
    void hostMayDeleteThePaneWhenToldOfTheMenu();
    void hostMayDeleteThePaneWhileTheMenuIsShown();
};

void tst_FileManagerContextMenu::rightClickOnTheFolderTree()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    const QModelIndex sub = f.TreeIndex(QStringLiteral("sub"));
    QTRY_VERIFY(f.Tree()->visualRect(sub).isValid());
    RightClick(f, f.Tree()->viewport(), f.Tree()->visualRect(sub).center());
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 1 true")));
    f.m_host.m_calls.clear();
    RightClick(f, f.Tree()->viewport(), EmptyPlace(f.Tree()));
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 1 false")));
}

void tst_FileManagerContextMenu::rightClickOnTheGrid()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    const QModelIndex sub = f.ListIndex(QStringLiteral("sub"));
    RightClick(f, f.Grid()->viewport(), f.Grid()->visualRect(sub).center());
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 true")));
    f.m_host.m_calls.clear();
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 false")));
}

void tst_FileManagerContextMenu::rightClickOnTheDetails()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    const QModelIndex sub = f.ListIndex(QStringLiteral("sub"));
    // Below the header: the last pixel of the only row is on it, the next one is not.
    const QRect row = f.Details()->visualRect(sub);
    RightClick(f, f.Details()->viewport(), row.bottomLeft());
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 true")));
    f.m_host.m_calls.clear();
    RightClick(f, f.Details()->viewport(), row.bottomLeft() + QPoint(0, 1));
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 false")));
}

void tst_FileManagerContextMenu::rightClickOnTheAliasTree()
{
    MenuFixture f(FM_MODE_ALIAS_TREE_AND_LIST);
    QVERIFY(f.ShowFolder(1));
    const QModelIndex top = f.m_pPane->GetAliasTreeModel()->index(0, 0);
    RightClick(f, f.AliasTree()->viewport(), f.AliasTree()->visualRect(top).center());
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 3 true")));
    f.m_host.m_calls.clear();
    RightClick(f, f.AliasTree()->viewport(), EmptyPlace(f.AliasTree()));
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 3 false")));
}

void tst_FileManagerContextMenu::rightClickBelowTheTopOfAScrolledView()
{
    constexpr int Files = 200;
    MenuFixture f;
    for (int i = 0; i < Files; ++i)
        f.m_folder.File(QString::number(i));
    QVERIFY(f.ShowFolder(Files + 1));
    f.Grid()->scrollToBottom();
    RightClick(f, f.Grid()->viewport(), QPoint(10, 100));
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 true")));
}

void tst_FileManagerContextMenu::rightClickBetweenThePanesIsNotToldOf()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    const QWidget* handle = f.Splitter()->handle(2);
    QVERIFY(handle->isVisible());
    RightClick(f, handle, handle->rect().center());
    QCOMPARE(f.m_host.m_calls, QStringList());
}

void tst_FileManagerContextMenu::hiddenPanesDoNotAnswer_data()
{
    QTest::addColumn<EKTFMMode>("mode");
    QTest::addColumn<QString>("call");
    const QString list = QStringLiteral("OnShowPopupMenu 2 false");
    QTest::newRow("tree and list") << FM_MODE_TREE_AND_LIST << list;
    QTest::newRow("tree") << FM_MODE_TREE_ONLY << QStringLiteral("OnShowPopupMenu 1 false");
    QTest::newRow("list") << FM_MODE_LIST_ONLY << list;
    QTest::newRow("alias tree and list") << FM_MODE_ALIAS_TREE_AND_LIST << list;
}

void tst_FileManagerContextMenu::hiddenPanesDoNotAnswer()
{
    QFETCH(EKTFMMode, mode);
    QFETCH(QString, call);
    MenuFixture f(mode);
    QVERIFY(f.ShowFolder(1));
    // The list's other view has been seen, and keeps the place that it had.
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    const QRect hidden = f.Tree()->isVisible() ? QRect() : f.Tree()->rect();
    const QWidget* shown = mode == FM_MODE_TREE_ONLY ? f.Tree()->viewport() : f.Grid()->viewport();
    RightClick(f, shown, QPoint(shown->width() - 5, shown->height() - 5));
    QCOMPARE(f.MenuCalls(), QStringList(call));
    if (!hidden.isValid())
        return;
    f.m_host.m_calls.clear();
    RightClick(f, f.m_pPane, hidden.center());
    QCOMPARE(f.MenuCalls().size(), 1);
    QVERIFY(!f.MenuCalls().constFirst().startsWith(QLatin1String("OnShowPopupMenu 1")));
}

void tst_FileManagerContextMenu::emptyMenuIsNotShown()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    bool isShown = false;
    connect(f.m_pPane->GetContextMenu(), &QMenu::aboutToShow, this, [&isShown] { isShown = true; });
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QCOMPARE(f.MenuCalls().size(), 1);
    QVERIFY(!isShown);
}

void tst_FileManagerContextMenu::menuIsFilledDuringTheCallAndShownAtTheCursor()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    f.m_host.m_onCall = [&f](const QString& call) {
        if (call.startsWith(QLatin1String("OnShowPopupMenu")))
            f.m_pPane->GetContextMenu()->addAction(QStringLiteral("An action"));
    };
    const QPoint cursor(123, 234);
    QCursor::setPos(cursor);
    QTRY_COMPARE(QCursor::pos(), cursor);
    QPoint shownAt;
    QMenu* shown = nullptr;
    WhenAMenuOpens([&shownAt, &shown](QMenu* menu) {
        shown = menu;
        shownAt = menu->pos();
    });
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QCOMPARE(shown, f.m_pPane->GetContextMenu());
    QCOMPARE(shownAt, cursor);
    QCOMPARE(f.MenuCalls().size(), 1);
}

void tst_FileManagerContextMenu::menuIsShownWhereNoPaneIs()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    f.m_pPane->GetContextMenu()->addAction(QStringLiteral("An action"));
    bool isShown = false;
    WhenAMenuOpens([&isShown](QMenu*) { isShown = true; });
    const QWidget* handle = f.Splitter()->handle(2);
    RightClick(f, handle, handle->rect().center());
    QVERIFY(isShown);
    QCOMPARE(f.m_host.m_calls, QStringList());
}

void tst_FileManagerContextMenu::menuIsShownWithoutAHost()
{
    MenuFixture f;
    f.m_pPane->SetCallBackInterface(nullptr, nullptr, nullptr, nullptr);
    QVERIFY(f.ShowFolder(1));
    f.m_pPane->GetContextMenu()->addAction(QStringLiteral("An action"));
    bool isShown = false;
    WhenAMenuOpens([&isShown](QMenu*) { isShown = true; });
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QVERIFY(isShown);
}

void tst_FileManagerContextMenu::menuKeyOpensTheMenuOfTheFocusedPane()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    QContextMenuEvent key(QContextMenuEvent::Keyboard, EmptyPlace(f.Grid()),
                          f.Grid()->viewport()->mapToGlobal(EmptyPlace(f.Grid())));
    QApplication::sendEvent(f.Grid()->viewport(), &key);
    QCOMPARE(f.MenuCalls(), QStringList(QStringLiteral("OnShowPopupMenu 2 false")));
}

void tst_FileManagerContextMenu::hostMayDeleteThePaneWhenToldOfTheMenu()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    f.m_pPane->GetContextMenu()->addAction(QStringLiteral("An action"));
    f.m_host.m_onCall = [&f](const QString& call) {
        if (call.startsWith(QLatin1String("OnShowPopupMenu")))
            f.DeletePane();
    };
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QVERIFY(!f.m_pPane);
}

void tst_FileManagerContextMenu::hostMayDeleteThePaneWhileTheMenuIsShown()
{
    MenuFixture f;
    QVERIFY(f.ShowFolder(1));
    f.m_pPane->GetContextMenu()->addAction(QStringLiteral("An action"));
    WhenAMenuOpens([&f](QMenu*) { f.DeletePane(); });
    RightClick(f, f.Grid()->viewport(), EmptyPlace(f.Grid()));
    QVERIFY(!f.m_pPane);
}

KTFM_TEST_MAIN(tst_FileManagerContextMenu)
#include "tst_filemanager_contextmenu.moc"
