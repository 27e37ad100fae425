#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QContextMenuEvent>
#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>

namespace {

const auto ModeBeyond = static_cast<EKTFMMode>(4);

/** Counts the events of one type that objects get. */
class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type type) : m_type(type) {}

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == m_type)
            m_receivers.append(object);
        return false;
    }

    QEvent::Type m_type;
    QList<QObject*> m_receivers;
};

/** @return whether the pending events bring none to be counted */
bool IsQuiet(EventCounter& counter)
{
    counter.m_receivers.clear();
    QApplication::processEvents();
    return counter.m_receivers.isEmpty();
}

QImage Filled(const QColor& color)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QColor DecorationColor(const QModelIndex& index)
{
    const QImage image = index.data(Qt::DecorationRole).value<QIcon>().pixmap(8, 8).toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}

/** Renames an item as a user does: F2, the new name, Return. */
void RenameByKeys(QAbstractItemView* view, const QModelIndex& index, const QString& name)
{
    view->setCurrentIndex(index);
    QTest::keyClick(view, Qt::Key_F2);
    auto* editor = view->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, name);
    QTest::keyClick(editor, Qt::Key_Return);
}

} // namespace

class tst_FileManagerAssembly : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paneHasItsRectangleAndName();
    void panesStandInTheSplitterInOrder();
    void modesShowTheirPanes_data();
    void modesShowTheirPanes();
    void leftPaneGetsItsShare_data();
    void leftPaneGetsItsShare();
    void listOrTreeAloneFillsThePane_data();
    void listOrTreeAloneFillsThePane();
    void modeBeyondKeepsTheSplittersDefaultSizes();
    void folderTreeSettings();
    void gridSettings();
    void detailSettings();
    void aliasTreeSettings();
    void modelsAreSetUp();
    void proxySortsForBothListViews();
    void gridHasTheDelegateAndDetailsKeepQts();
    void initialSizes();
    void listViewsShareOneSelection();
    void paneOwnsWhatItShows();
    void accessorsReadWhatWasSet();
    void contextMenuIsEmptyAtFirst();
    void callbacksReachTheModels();
    void nullCallbacksAreNotCalled();
    void extensionOfAnUnmappedFile_data();
    void extensionOfAnUnmappedFile();
    void onlyTheGridIsRepaintedByUpdateWnd();
    void eventFilterIsOnTheListViewsAlone();
    void refusedListRenameIsRelayedAsPaneTwo();
    void refusedTreeRenameIsRelayedAsPaneOne();
    void refusedAliasRenameIsRelayedAsPaneThree();
    void refusedRenameRepaintsThePane();
    void beforeAnyFolderTheListIsEmpty();
    void modelsOutliveThePane();
    void aliasModelWatchesNothingAfterThePane();
    void paneDiesWhileAFolderLoads();
};

void tst_FileManagerAssembly::paneHasItsRectangleAndName()
{
    PaneFixture f(FM_MODE_TREE_AND_LIST, QRect(11, 22, 640, 480));
    QCOMPARE(f.m_pPane->accessibleName(), QStringLiteral("CKTFileManagerWidget"));
    QCOMPARE(f.m_pPane->geometry(), QRect(11, 22, 640, 480));
    QCOMPARE(f.m_pPane->parentWidget(), &f.m_window);
    QCOMPARE(f.m_pPane->contextMenuPolicy(), Qt::DefaultContextMenu);
}

void tst_FileManagerAssembly::panesStandInTheSplitterInOrder()
{
    PaneFixture f;
    QCOMPARE(f.Splitter()->orientation(), Qt::Horizontal);
    QCOMPARE(f.Splitter()->count(), 3);
    QCOMPARE(f.Splitter()->widget(1), f.AliasTree());
    QCOMPARE(f.Splitter()->widget(2), f.Stack());
    QCOMPARE(f.Tree()->model(), f.m_pPane->GetTreeModel());
    QCOMPARE(f.AliasTree()->model(), f.m_pPane->GetAliasTreeModel());
    QCOMPARE(f.Stack()->count(), 2);
    QVERIFY(f.Grid());
    QVERIFY(f.Details());
    QCOMPARE(f.Stack()->currentIndex(), 0);
    QVERIFY(qobject_cast<QHBoxLayout*>(f.m_pPane->layout()));
    QCOMPARE(f.m_pPane->layout()->contentsMargins(), QMargins());
    QCOMPARE(f.m_pPane->layout()->itemAt(0)->widget(), f.Splitter());
}

void tst_FileManagerAssembly::modesShowTheirPanes_data()
{
    QTest::addColumn<EKTFMMode>("mode");
    QTest::addColumn<bool>("tree");
    QTest::addColumn<bool>("alias");
    QTest::addColumn<bool>("list");
    QTest::addColumn<QString>("focused");
    const QString list = QStringLiteral("list");
    QTest::newRow("tree and list") << FM_MODE_TREE_AND_LIST << true << false << true << list;
    QTest::newRow("tree") << FM_MODE_TREE_ONLY << true << false << false << QStringLiteral("tree");
    QTest::newRow("list") << FM_MODE_LIST_ONLY << false << false << true << list;
    QTest::newRow("alias tree and list") << FM_MODE_ALIAS_TREE_AND_LIST << false << true << true << list;
    QTest::newRow("beyond") << ModeBeyond << true << true << true << QString();
    QTest::newRow("below") << static_cast<EKTFMMode>(-1) << true << true << true << QString();
}

void tst_FileManagerAssembly::modesShowTheirPanes()
{
    QFETCH(EKTFMMode, mode);
    QFETCH(QString, focused);
    PaneFixture f(mode);
    const QWidget* expected = nullptr;
    if (!focused.isEmpty())
        expected = focused == QLatin1String("list") ? static_cast<QWidget*>(f.Grid()) : f.Tree();
    QCOMPARE(f.m_pPane->focusWidget(), expected);
    QVERIFY(f.Show());
    QTEST(f.Tree()->isVisible(), "tree");
    QTEST(f.AliasTree()->isVisible(), "alias");
    QTEST(f.Grid()->isVisible(), "list");
    // What a mode hides stays hidden.
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.Open(f.m_folder.Path());
    QTEST(f.Tree()->isVisible(), "tree");
    QTEST(f.AliasTree()->isVisible(), "alias");
    QTEST(f.Details()->isVisible(), "list");
}

void tst_FileManagerAssembly::leftPaneGetsItsShare_data()
{
    QTest::addColumn<EKTFMMode>("mode");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("left");
    QTest::newRow("tree, 30 of 1000") << FM_MODE_TREE_AND_LIST << 1000 << 30 << 300;
    QTest::newRow("tree, 50 of 801") << FM_MODE_TREE_AND_LIST << 801 << 50 << 400;
    QTest::newRow("alias tree, 30 of 1000") << FM_MODE_ALIAS_TREE_AND_LIST << 1000 << 30 << 300;
    QTest::newRow("alias tree, 70 of 777") << FM_MODE_ALIAS_TREE_AND_LIST << 777 << 70 << 543;
}

void tst_FileManagerAssembly::leftPaneGetsItsShare()
{
    QFETCH(EKTFMMode, mode);
    QFETCH(int, width);
    QFETCH(int, left);
    QFETCH(int, percent);
    PaneFixture f(mode, QRect(0, 0, width, 500), percent);
    QVERIFY(f.Show());
    const QList<int> sizes = f.Splitter()->sizes();
    const int leftPane = mode == FM_MODE_TREE_AND_LIST ? sizes.at(0) : sizes.at(1);
    // The two shares make up the whole width: the handle between them takes its pixels from one or both.
    const int handle = f.Splitter()->handleWidth();
    QVERIFY2(leftPane <= left && leftPane >= left - handle, qPrintable(QString::number(leftPane)));
    QCOMPARE(leftPane + handle + sizes.at(2), width);
}

void tst_FileManagerAssembly::listOrTreeAloneFillsThePane_data()
{
    QTest::addColumn<EKTFMMode>("mode");
    QTest::addColumn<int>("place");
    QTest::newRow("tree") << FM_MODE_TREE_ONLY << 0;
    QTest::newRow("list") << FM_MODE_LIST_ONLY << 2;
}

void tst_FileManagerAssembly::listOrTreeAloneFillsThePane()
{
    QFETCH(EKTFMMode, mode);
    QFETCH(int, place);
    PaneFixture f(mode, QRect(0, 0, 700, 500));
    QVERIFY(f.Show());
    for (int i = 0; i < f.Splitter()->count(); ++i)
        QCOMPARE(f.Splitter()->sizes().at(i), i == place ? 700 : 0);
    QCOMPARE(f.Splitter()->widget(place)->width(), 700);
}

void tst_FileManagerAssembly::modeBeyondKeepsTheSplittersDefaultSizes()
{
    PaneFixture f(ModeBeyond, QRect(0, 0, 900, 500));
    QWidget window;
    window.resize(900, 500);
    auto* pane = new QWidget(&window);
    pane->resize(900, 500);
    auto* layout = new QHBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* splitter = new QSplitter(pane);
    layout->addWidget(splitter);
    splitter->addWidget(new QTreeView);
    splitter->addWidget(new QTreeView);
    splitter->addWidget(new QStackedWidget);
    qobject_cast<QStackedWidget*>(splitter->widget(2))->addWidget(new QListView);
    qobject_cast<QStackedWidget*>(splitter->widget(2))->addWidget(new QTreeView);
    window.show();
    QVERIFY(f.Show());
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(f.Splitter()->sizes(), splitter->sizes());
    QVERIFY(!f.Splitter()->sizes().contains(0));
}

void tst_FileManagerAssembly::folderTreeSettings()
{
    PaneFixture f;
    QVERIFY(f.Tree()->isHeaderHidden());
    QVERIFY(!f.Tree()->rootIsDecorated());
    QVERIFY(f.Tree()->uniformRowHeights());
}

void tst_FileManagerAssembly::gridSettings()
{
    PaneFixture f;
    const QListView* grid = f.Grid();
    QVERIFY(grid->inherits("CKTListView"));
    QVERIFY(grid->uniformItemSizes());
    QCOMPARE(grid->viewMode(), QListView::IconMode);
    QVERIFY(grid->testAttribute(Qt::WA_MouseTracking));
    QVERIFY(!grid->dragEnabled());
    QVERIFY(grid->isSelectionRectVisible());
    QCOMPARE(grid->resizeMode(), QListView::Adjust);
    QCOMPARE(grid->flow(), QListView::LeftToRight);
    QCOMPARE(grid->textElideMode(), Qt::ElideRight);
    QCOMPARE(grid->editTriggers(), QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
    QCOMPARE(grid->dragDropMode(), QAbstractItemView::NoDragDrop);
    QVERIFY(!grid->viewport()->acceptDrops());
}

void tst_FileManagerAssembly::detailSettings()
{
    PaneFixture f;
    const QTreeView* details = f.Details();
    QVERIFY(details->inherits("CKTTreeView"));
    QVERIFY(!details->rootIsDecorated());
    QVERIFY(!details->itemsExpandable());
    QVERIFY(details->uniformRowHeights());
    QVERIFY(details->isSortingEnabled());
    QVERIFY(!details->isHeaderHidden());
    QCOMPARE(details->editTriggers(), QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
}

void tst_FileManagerAssembly::aliasTreeSettings()
{
    PaneFixture f;
    QVERIFY(f.AliasTree()->isHeaderHidden());
    QVERIFY(f.AliasTree()->rootIsDecorated());
    QVERIFY(f.AliasTree()->uniformRowHeights());
    QVERIFY(f.AliasTree()->itemsExpandable());
    QCOMPARE(f.AliasTree()->editTriggers(), QAbstractItemView::DoubleClicked);
}

void tst_FileManagerAssembly::modelsAreSetUp()
{
    PaneFixture f;
    QVERIFY(f.m_pPane->GetTreeModel()->isReadOnly());
    QVERIFY(!f.m_pPane->GetListModel()->isReadOnly());
    // Windows alone has links that the base resolves.
    QFileSystemModel resolving;
    resolving.setResolveSymlinks(true);
    QCOMPARE(f.m_pPane->GetListModel()->resolveSymlinks(), resolving.resolveSymlinks());
    QVERIFY(!f.m_pPane->GetTreeModel()->parent());
    QVERIFY(!f.m_pPane->GetListModel()->parent());
    QVERIFY(!f.m_pPane->GetAliasTreeModel()->parent());
}

void tst_FileManagerAssembly::proxySortsForBothListViews()
{
    PaneFixture f;
    QVERIFY(f.Proxy()->inherits("CMySortFilterProxyModel"));
    QCOMPARE(f.Details()->model(), f.Proxy());
    QCOMPARE(f.Proxy()->sourceModel(), f.m_pPane->GetListModel());
    QVERIFY(f.Proxy()->dynamicSortFilter());
    QCOMPARE(f.Proxy()->sortColumn(), 0);
    f.m_folder.File(QStringLiteral("b.txt"));
    f.m_folder.File(QStringLiteral("A.txt"));
    f.m_folder.Folder(QStringLiteral("z"));
    QVERIFY(f.ShowFolder(3));
    QCOMPARE(f.Names(), QStringList({QStringLiteral("z"), QStringLiteral("A.txt"), QStringLiteral("b.txt")}));
    f.m_folder.File(QStringLiteral("aa.txt"));
    QTRY_COMPARE(f.Names(), QStringList({QStringLiteral("z"), QStringLiteral("A.txt"),
                                         QStringLiteral("aa.txt"), QStringLiteral("b.txt")}));
    QCOMPARE(f.DetailNames(), f.Names());
}

void tst_FileManagerAssembly::gridHasTheDelegateAndDetailsKeepQts()
{
    PaneFixture f;
    QVERIFY(f.m_pPane->GetListViewDelegate());
    QCOMPARE(f.Grid()->itemDelegate(), f.m_pPane->GetListViewDelegate());
    QCOMPARE(f.m_pPane->GetListViewDelegate()->parent(), f.Grid());
    QCOMPARE(f.Details()->itemDelegate()->metaObject()->className(), "QStyledItemDelegate");
}

void tst_FileManagerAssembly::initialSizes()
{
    PaneFixture f;
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(40, 40));
    QCOMPARE(f.Grid()->iconSize(), QSize(40, 40));
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
    QCOMPARE(f.m_pPane->GetDetailIconSize(), QSize(30, 30));
    QCOMPARE(f.Details()->iconSize(), QSize(30, 30));
    const QModelIndex any = f.m_pPane->GetListModel()->index(f.m_folder.Path());
    QCOMPARE(any.data(Qt::SizeHintRole).toSize().height(), 30);
    // The preset is the small one, which is followed by the large one.
    f.m_pPane->ToggleListIconSize();
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(100, 100));
}

void tst_FileManagerAssembly::listViewsShareOneSelection()
{
    PaneFixture f;
    QCOMPARE(f.Grid()->selectionModel(), f.Details()->selectionModel());
    QVERIFY(f.Grid()->selectionModel() != f.Tree()->selectionModel());
    f.m_folder.File(QStringLiteral("a.txt"));
    f.m_folder.File(QStringLiteral("b.txt"));
    QVERIFY(f.ShowFolder(2));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QVERIFY(f.Details()->selectionModel()->isSelected(f.ListIndex(QStringLiteral("b.txt"))));
    QCOMPARE(f.Details()->currentIndex(), f.ListIndex(QStringLiteral("b.txt")));
}

void tst_FileManagerAssembly::paneOwnsWhatItShows()
{
    PaneFixture f;
    const QList<QPointer<QObject>> owned = {f.Splitter(),
                                            f.Tree(),
                                            f.AliasTree(),
                                            f.Stack(),
                                            f.Grid(),
                                            f.Details(),
                                            f.m_pPane->GetContextMenu(),
                                            f.Proxy(),
                                            f.m_pPane->GetListViewDelegate(),
                                            f.m_pPane->findChild<QFileSystemWatcher*>()};
    for (const QPointer<QObject>& object : owned)
        QVERIFY(object);
    QCOMPARE(f.Proxy()->parent(), f.m_pPane.data());
    f.DeletePane();
    for (const QPointer<QObject>& object : owned)
        QVERIFY(!object);
}

void tst_FileManagerAssembly::accessorsReadWhatWasSet()
{
    PaneFixture f;
    QVERIFY(!f.m_pPane->IsCustomViewMode());
    f.m_pPane->SetCustomViewMode(true);
    QVERIFY(f.m_pPane->IsCustomViewMode());
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_DETAIL);
    QCOMPARE(f.m_pPane->GetAliasTreeView(), f.Splitter()->widget(1));
}

void tst_FileManagerAssembly::contextMenuIsEmptyAtFirst()
{
    PaneFixture f;
    QVERIFY(f.m_pPane->GetContextMenu()->isEmpty());
    QCOMPARE(f.m_pPane->GetContextMenu()->parent(), f.m_pPane.data());
}

void tst_FileManagerAssembly::callbacksReachTheModels()
{
    PaneFixture f;
    f.m_host.m_listImage = Filled(Qt::red);
    f.m_host.m_treeImage = Filled(Qt::green);
    f.m_host.m_aliasImage = Filled(Qt::blue);
    CKTFMAliasTreeModel* aliases = f.m_pPane->GetAliasTreeModel();
    aliases->PopulateAliasTree(QStringLiteral("One\t/\tfalse\t0\t\t"));
    const QModelIndex listItem = f.m_pPane->GetListModel()->index(f.m_folder.Path());
    QCOMPARE(DecorationColor(listItem), QColor(Qt::red));
    QCOMPARE(DecorationColor(f.TreeIndex(QString())), QColor(Qt::green));
    QCOMPARE(DecorationColor(aliases->index(0, 0)), QColor(Qt::blue));
    f.m_pPane->SetCallBackInterface(nullptr, nullptr, nullptr, nullptr);
    QVERIFY(DecorationColor(listItem) != QColor(Qt::red));
    QVERIFY(DecorationColor(f.TreeIndex(QString())) != QColor(Qt::green));
    QVERIFY(DecorationColor(aliases->index(0, 0)) != QColor(Qt::blue));
}

void tst_FileManagerAssembly::nullCallbacksAreNotCalled()
{
    PaneFixture f;
    f.m_pPane->SetCallBackInterface(nullptr, nullptr, nullptr, nullptr);
    f.m_folder.File(QStringLiteral("sub/a.txt"));
    QVERIFY(f.ShowFolder(1));
    PaneFixture::Click(f.Tree(), f.TreeIndex(QStringLiteral("sub")));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("a.txt")));
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("sub/a.txt")));
    QCOMPARE(f.m_pPane->GoToParentFolder(), f.m_folder.Path());
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("sub")));
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("sub")));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("a.txt")));
    QVERIFY(f.m_pPane->SetCurrentSelection(0));
    QVERIFY(f.m_pPane->SetCurrentSelection(f.m_folder.Path(QStringLiteral("sub/a.txt")), true, false));
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, QPoint(5, 5),
                                 f.m_pPane->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(f.m_pPane, &rightClick);
    QVERIFY(f.m_host.m_calls.isEmpty());
}

void tst_FileManagerAssembly::extensionOfAnUnmappedFile_data()
{
    QTest::addColumn<bool>("show");
    QTest::addColumn<QString>("name");
    QTest::newRow("shown") << true << QStringLiteral("a.txt");
    QTest::newRow("cut off") << false << QStringLiteral("a");
}

void tst_FileManagerAssembly::extensionOfAnUnmappedFile()
{
    QFETCH(bool, show);
    PaneFixture f(FM_MODE_LIST_ONLY, QRect(0, 0, 400, 400), 0, show);
    f.m_folder.File(QStringLiteral("sub/a.txt"));
    const QString ini = f.m_folder.File(QStringLiteral("names.ini"), "[S]\nb.txt=B\n");
    f.m_pPane->SetFilenameMappingINIFile(FM_PART_LIST, ini, QStringLiteral("S"));
    QTEST(f.ListIndex(QStringLiteral("sub/a.txt")).data().toString(), "name");
}

void tst_FileManagerAssembly::onlyTheGridIsRepaintedByUpdateWnd()
{
    KTFM_SKIP_ON_WINE("paint events go on arriving when the event loop has run dry");
    PaneFixture f;
    QVERIFY(f.ShowFolder(0));
    EventCounter paints(QEvent::Paint);
    const QList<QAbstractScrollArea*> views = {f.Grid(), f.Details(), f.Tree(), f.AliasTree()};
    for (QAbstractScrollArea* view : views)
        view->viewport()->installEventFilter(&paints);
    QTRY_VERIFY(IsQuiet(paints));
    const QList<int> others = {0, 1, 3, 4, -2};
    for (const int other : others)
        f.m_pPane->UpdateWnd(static_cast<EKTFMUpdateWidget>(other));
    QVERIFY(IsQuiet(paints));
    f.m_pPane->UpdateWnd(FM_UPDATE_LIST_VIEW);
    QTRY_COMPARE(paints.m_receivers, QList<QObject*>({f.Grid()->viewport()}));
}

void tst_FileManagerAssembly::eventFilterIsOnTheListViewsAlone()
{
    PaneFixture f;
    QVERIFY(f.Show());
    EventCounter keys(QEvent::KeyPress);
    f.m_pPane->InstallEventFilter(&keys);
    const QList<QWidget*> views = {f.Grid(), f.Details(), f.Tree(), f.AliasTree()};
    for (QWidget* view : views)
        QTest::keyClick(view, Qt::Key_Home);
    QCOMPARE(keys.m_receivers, QList<QObject*>({f.Grid(), f.Details()}));
}

void tst_FileManagerAssembly::refusedListRenameIsRelayedAsPaneTwo()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.txt"));
    f.m_folder.File(QStringLiteral("b.txt"));
    f.m_pPane->SetFlagStatus(FM_PART_LIST, 1, true);
    QVERIFY(f.ShowFolder(2));
    QSignalSpy errors(f.m_pPane, &CKTFileManager::OnError);
    RenameByKeys(f.Grid(), f.ListIndex(QStringLiteral("a.txt")), QStringLiteral("b"));
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors.first(), QVariantList({2, 0, 0}));
}

void tst_FileManagerAssembly::refusedTreeRenameIsRelayedAsPaneOne()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("a"));
    f.m_folder.Folder(QStringLiteral("b"));
    f.m_pPane->SetFlagStatus(FM_PART_TREE, 1, true);
    QVERIFY(f.ShowFolder(2));
    QSignalSpy errors(f.m_pPane, &CKTFileManager::OnError);
    RenameByKeys(f.Tree(), f.TreeIndex(QStringLiteral("a")), QStringLiteral("a?b"));
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors.first(), QVariantList({1, 0, 1}));
}

void tst_FileManagerAssembly::refusedAliasRenameIsRelayedAsPaneThree()
{
    PaneFixture f(FM_MODE_ALIAS_TREE_AND_LIST);
    f.m_folder.Folder(QStringLiteral("a"));
    f.m_folder.Folder(QStringLiteral("b"));
    f.m_pPane->GetAliasTreeModel()->PopulateAliasTree(
        QStringLiteral("a\t%1\tfalse\t32\t\t").arg(f.m_folder.Path(QStringLiteral("a"))));
    f.m_pPane->SetFlagStatus(FM_PART_ALIAS_TREE, 1, true);
    QVERIFY(f.Show());
    QSignalSpy errors(f.m_pPane, &CKTFileManager::OnError);
    const QModelIndex item = f.m_pPane->GetAliasTreeModel()->index(0, 0);
    PaneFixture::DoubleClick(f.AliasTree(), item);
    auto* editor = f.AliasTree()->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("b"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors.first(), QVariantList({3, 0, 0}));
}

void tst_FileManagerAssembly::refusedRenameRepaintsThePane()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.txt"));
    QVERIFY(f.ShowFolder(1));
    EventCounter paints(QEvent::Paint);
    f.m_pPane->installEventFilter(&paints);
    QTRY_VERIFY(IsQuiet(paints));
    f.m_pPane->OnListRenameFileError(1);
    QTRY_VERIFY(!paints.m_receivers.isEmpty());
}

void tst_FileManagerAssembly::beforeAnyFolderTheListIsEmpty()
{
    PaneFixture f;
    QVERIFY(f.Show());
    QTRY_VERIFY(f.Proxy()->rowCount() > 0);
    QTRY_COMPARE(f.Names(), QStringList());
    QCOMPARE(f.DetailNames(), QStringList());
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QVERIFY(!f.Details()->indexAt(QPoint(5, 5)).isValid());
    QVERIFY(!f.Grid()->indexAt(QPoint(5, 5)).isValid());
}

void tst_FileManagerAssembly::modelsOutliveThePane()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.txt"));
    QVERIFY(f.ShowFolder(1));
    const QPointer<CKTFMListModel> list = f.m_pPane->GetListModel();
    const QPointer<CKTFMTreeModel> tree = f.m_pPane->GetTreeModel();
    const QPointer<CKTFMAliasTreeModel> aliases = f.m_pPane->GetAliasTreeModel();
    f.DeletePane();
    QVERIFY(tree);
    QVERIFY(list);
    f.m_folder.File(QStringLiteral("b.txt"));
    QTRY_COMPARE(list->rowCount(list->index(f.m_folder.Path())), 2);
    QVERIFY(aliases);
    QVERIFY(aliases->PopulateAliasTree(QStringLiteral("One\t/\tfalse\t0\t\t")));
    QCOMPARE(aliases->rowCount(), 1);
}

void tst_FileManagerAssembly::aliasModelWatchesNothingAfterThePane()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("sub"));
    CKTFMAliasTreeModel* aliases = f.m_pPane->GetAliasTreeModel();
    aliases->PopulateAliasTree(QStringLiteral("Top\t%1\ttrue\t0\t\t").arg(f.m_folder.Path()));
    const QPersistentModelIndex top = aliases->index(0, 0);
    aliases->AddPathToFileSystemWatcher(top);
    QCOMPARE(f.m_pPane->findChild<QFileSystemWatcher*>()->directories(), QStringList(f.m_folder.Path()));
    f.DeletePane();
    aliases->AddPathToFileSystemWatcher(top);
    aliases->RemovePathFromFileSystemWatcher(top);
    aliases->ClearAllPathInFileSystemWatcher();
    aliases->ScanAliasTreeDirectory(top);
    QCOMPARE(aliases->rowCount(top), 1);
}

void tst_FileManagerAssembly::paneDiesWhileAFolderLoads()
{
    constexpr int Entries = 2000;
    TestFolder big;
    for (int i = 0; i < Entries; ++i)
        big.File(QString::number(i));
    for (int events = 0; events < 8; ++events) {
        PaneFixture f;
        QVERIFY(f.Show());
        f.Open(big.Path());
        for (int i = 0; i < events; ++i)
            QApplication::processEvents();
        const QPointer<CKTFMListModel> list = f.m_pPane->GetListModel();
        f.DeletePane();
        QTRY_COMPARE(list->rowCount(list->index(big.Path())), Entries);
    }
}

KTFM_TEST_MAIN(tst_FileManagerAssembly)
#include "tst_filemanager_assembly.moc"
