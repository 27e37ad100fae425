#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTreeView>

namespace {

const QColor Azure(1, 120, 255);
const QColor Rust(183, 65, 14);

/** The interactions as SetFlagStatus numbers them. */
enum Interaction : int
{
    Renaming = 1,
    ToolTips = 2,
    Dragging = 4
};

/** What a user may do in the panes. */
struct Interactions
{
    explicit Interactions(const PaneFixture& f)
    {
        const QModelIndex listItem = f.m_pPane->GetListModel()->index(f.m_folder.Path());
        const QModelIndex treeItem = f.TreeIndex(QString());
        const QModelIndex aliasItem = f.m_pPane->GetAliasTreeModel()->index(0, 0);
        list = Of(listItem, {f.Grid(), f.Details()});
        tree = Of(treeItem, {f.Tree()});
        alias = Of(aliasItem, {f.AliasTree()});
    }

    /** @return the set of interactions; a negative one when two views of the pane differ */
    static int Of(const QModelIndex& item, const QList<QAbstractItemView*>& views)
    {
        int flags = 0;
        if (item.flags() & Qt::ItemIsEditable)
            flags |= Renaming;
        if (!item.data(Qt::ToolTipRole).toString().isEmpty())
            flags |= ToolTips;
        int draggable = 0;
        for (const QAbstractItemView* view : views)
            draggable += view->dragEnabled() ? 1 : 0;
        if (draggable == views.size())
            flags |= Dragging;
        return draggable == 0 || draggable == views.size() ? flags : -1;
    }

    int list;
    int tree;
    int alias;
};

QColor PixelAt(QAbstractItemView* view, const QPoint& pos)
{
    return view->viewport()->grab().toImage().pixelColor(pos);
}

/** A place in a thumbnail's cell where neither image nor name is painted. */
QPoint BesideTheImage(const QListView* grid, const QModelIndex& index)
{
    const QRect cell = grid->visualRect(index);
    return {cell.left() + 4, cell.center().y()};
}

/** @return whether the view takes the file at @p path when it is dropped on it */
bool TakesDrops(QAbstractItemView* view, const QString& path)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    if (view->viewport()->acceptDrops())
        QApplication::sendEvent(view->viewport(), &enter);
    return enter.isAccepted();
}

} // namespace

class tst_FileManagerAppearance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backgroundsAreStyled();
    void objectNamesComeWithTheFirstBackground();
    void backgroundsAreSeen();
    void gridsScrollBarsAreStyled();
    void detailsScrollBarsAreStyled();
    void scrollBarDirectionSetsFlowAndWraps();
    void selectedItemIsPaintedInItsColours();
    void hoveredItemIsPaintedInItsColours();
    void otherItemStatusChangesNothing();
    void borderIsDoubledToTheSpacing_data();
    void borderIsDoubledToTheSpacing();
    void heightRatioWidensTheAreaThatStartsRenaming();
    void outlineIsTheDelegates();
    void flagsSwitchEachPane_data();
    void flagsSwitchEachPane();
    void draggableViewsNeverTakeDrops();
    void noViewTakesDropsAtFirst();
    void flagsWorkWhereTheListIsHidden();
    void showStringModeIsThePanes();
    void showStringModeOfNoPaneIsIgnored();
    void mappingFileAndSectionAreThePanes();
    void mappingFileOfNoPaneIsIgnored();
    void mappingSectionAloneIsForTreeAndList();
};

void tst_FileManagerAppearance::backgroundsAreStyled()
{
    PaneFixture f;
    const QString aliasStyle = f.AliasTree()->styleSheet();
    f.m_pPane->SetBgColor(Azure, Rust);
    QCOMPARE(f.Grid()->objectName(), QStringLiteral("pListView"));
    QCOMPARE(f.Grid()->styleSheet(),
             QStringLiteral("QListView#pListView{ background-color: rgb(183, 65, 14); }"));
    QCOMPARE(f.Details()->objectName(), QStringLiteral("pListDetailView"));
    QCOMPARE(f.Details()->styleSheet(),
             QStringLiteral("QTreeView#pListDetailView{ background-color: rgb(183, 65, 14); }"));
    QCOMPARE(f.Tree()->objectName(), QStringLiteral("pTreeView"));
    QCOMPARE(f.Tree()->styleSheet(),
             QStringLiteral("QTreeView#pTreeView{ background-color: rgb(1, 120, 255); }"));
    QCOMPARE(f.AliasTree()->styleSheet(), aliasStyle);
}

void tst_FileManagerAppearance::objectNamesComeWithTheFirstBackground()
{
    PaneFixture f;
    const QList<QWidget*> views = {f.Grid(), f.Details(), f.Tree(), f.AliasTree()};
    for (const QWidget* view : views)
        QVERIFY(view->objectName().isEmpty());
    f.m_pPane->SetBgColor(Azure, Rust);
    QVERIFY(f.AliasTree()->objectName().isEmpty());
}

void tst_FileManagerAppearance::backgroundsAreSeen()
{
    PaneFixture f;
    f.m_pPane->SetBgColor(Azure, Rust);
    QVERIFY(f.ShowFolder(0));
    QCOMPARE(PixelAt(f.Grid(), QPoint(100, 100)), Rust);
    QCOMPARE(PixelAt(f.Tree(), QPoint(100, 400)), Azure);
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(PixelAt(f.Details(), QPoint(100, 100)), Rust);
}

void tst_FileManagerAppearance::gridsScrollBarsAreStyled()
{
    PaneFixture f;
    f.m_pPane->SetListviewScrollBarStyle(true, 9, 13, Azure);
    QCOMPARE(f.Grid()->verticalScrollBar()->styleSheet(),
             QStringLiteral("width: 9 px;background-color:rgba( 1, 120, 255, 0%)"));
    QVERIFY(f.Grid()->horizontalScrollBar()->styleSheet().isEmpty());
    f.m_pPane->SetListviewScrollBarStyle(false, 9, 13, Rust);
    QCOMPARE(f.Grid()->horizontalScrollBar()->styleSheet(),
             QStringLiteral("height: 13 px;background-color:rgba( 183, 65, 14, 0%)"));
    QCOMPARE(f.Grid()->verticalScrollBar()->styleSheet(),
             QStringLiteral("width: 9 px;background-color:rgba( 1, 120, 255, 0%)"));
    QVERIFY(f.Details()->verticalScrollBar()->styleSheet().isEmpty());
}

void tst_FileManagerAppearance::detailsScrollBarsAreStyled()
{
    PaneFixture f;
    f.m_pPane->SetDetailviewScrollBarStyle(true, 7, 8, Rust);
    QCOMPARE(f.Details()->verticalScrollBar()->styleSheet(),
             QStringLiteral("width: 7 px;background-color:rgba( 183, 65, 14, 0%)"));
    QVERIFY(f.Details()->horizontalScrollBar()->styleSheet().isEmpty());
    f.m_pPane->SetDetailviewScrollBarStyle(false, 7, 8, Azure);
    QCOMPARE(f.Details()->horizontalScrollBar()->styleSheet(),
             QStringLiteral("height: 8 px;background-color:rgba( 1, 120, 255, 0%)"));
    QVERIFY(f.Grid()->verticalScrollBar()->styleSheet().isEmpty());
}

void tst_FileManagerAppearance::scrollBarDirectionSetsFlowAndWraps()
{
    PaneFixture f;
    f.Grid()->setWrapping(false);
    f.m_pPane->SetListviewScrollBarDirection(false);
    QCOMPARE(f.Grid()->flow(), QListView::TopToBottom);
    QVERIFY(f.Grid()->isWrapping());
    f.Grid()->setWrapping(false);
    f.m_pPane->SetListviewScrollBarDirection(true);
    QCOMPARE(f.Grid()->flow(), QListView::LeftToRight);
    QVERIFY(f.Grid()->isWrapping());
}

void tst_FileManagerAppearance::selectedItemIsPaintedInItsColours()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a"));
    f.m_pPane->SetItemDisplayInfo(ITEM_STATUS_HOVER, Rust, Rust, Rust, 0);
    f.m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, Azure, Azure, Azure, 0);
    QVERIFY(f.ShowFolder(1));
    const QModelIndex item = f.ListIndex(QStringLiteral("a"));
    QVERIFY(PixelAt(f.Grid(), BesideTheImage(f.Grid(), item)) != Azure);
    f.Grid()->selectionModel()->select(item, QItemSelectionModel::ClearAndSelect);
    QCOMPARE(PixelAt(f.Grid(), BesideTheImage(f.Grid(), item)), Azure);
}

void tst_FileManagerAppearance::hoveredItemIsPaintedInItsColours()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a"));
    f.m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, Azure, Azure, Azure, 0);
    f.m_pPane->SetItemDisplayInfo(ITEM_STATUS_HOVER, Rust, Rust, Rust, 0);
    QVERIFY(f.ShowFolder(1));
    const QModelIndex item = f.ListIndex(QStringLiteral("a"));
    const QPoint pos = BesideTheImage(f.Grid(), item);
    QHoverEvent hover(QEvent::HoverMove, pos, QPoint(-1, -1));
    QApplication::sendEvent(f.Grid()->viewport(), &hover);
    QCOMPARE(PixelAt(f.Grid(), pos), Rust);
}

void tst_FileManagerAppearance::otherItemStatusChangesNothing()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a"));
    f.m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, Azure, Azure, Azure, 0);
    f.m_pPane->SetItemDisplayInfo(static_cast<EItemStatus>(2), Rust, Rust, Rust, 0);
    f.m_pPane->SetItemDisplayInfo(static_cast<EItemStatus>(-1), Rust, Rust, Rust, 0);
    QVERIFY(f.ShowFolder(1));
    const QModelIndex item = f.ListIndex(QStringLiteral("a"));
    f.Grid()->selectionModel()->select(item, QItemSelectionModel::ClearAndSelect);
    QCOMPARE(PixelAt(f.Grid(), BesideTheImage(f.Grid(), item)), Azure);
}

void tst_FileManagerAppearance::borderIsDoubledToTheSpacing_data()
{
    QTest::addColumn<QSize>("border");
    QTest::addColumn<QSize>("spacing");
    QTest::newRow("as it is at first") << QSize() << QSize(50, 50);
    QTest::newRow("3 and 4") << QSize(3, 4) << QSize(6, 8);
    QTest::newRow("none") << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("negative counts as none") << QSize(-3, -400) << QSize(0, 0);
}

void tst_FileManagerAppearance::borderIsDoubledToTheSpacing()
{
    KTFM_NEEDS_ICONS_OF_ANY_SIZE();
    QFETCH(QSize, border);
    PaneFixture f;
    if (border != QSize())
        f.m_pPane->SetItemBorder(border.width(), border.height());
    QStyleOptionViewItem option;
    option.decorationSize = QSize(40, 40);
    const QModelIndex any = f.ListIndex(QString());
    QTEST(f.m_pPane->GetListViewDelegate()->sizeHint(option, any) - QSize(40, 40), "spacing");
}

void tst_FileManagerAppearance::heightRatioWidensTheAreaThatStartsRenaming()
{
    KTFM_NEEDS_ICONS_OF_ANY_SIZE();
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a"));
    f.m_pPane->SetIconSize(FM_ICON_HUGE);
    QVERIFY(f.ShowFolder(1));
    const QModelIndex item = f.ListIndex(QStringLiteral("a"));
    QStyleOptionViewItem option;
    option.decorationSize = QSize(125, 125);
    option.rect = QRect(0, 0, 165, 400);
    const QPoint farBelow(82, 250);
    // The release is consumed where no name is.
    const auto isConsumed = [&f, &option, &item, farBelow] {
        QMouseEvent release(QEvent::MouseButtonRelease, farBelow, Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        return f.m_pPane->GetListViewDelegate()->editorEvent(&release, f.Proxy(), option, item);
    };
    f.m_pPane->SetHeightRatioOfTextArea(1.0F);
    QVERIFY(isConsumed());
    f.m_pPane->SetHeightRatioOfTextArea(20.0F);
    QVERIFY(!isConsumed());
}

void tst_FileManagerAppearance::outlineIsTheDelegates()
{
    PaneFixture f;
    QVERIFY(!f.m_pPane->GetListViewDelegate()->IsDrawOutline());
    f.m_pPane->SetThumbnailDrawOutline(true);
    QVERIFY(f.m_pPane->GetListViewDelegate()->IsDrawOutline());
    f.m_pPane->SetThumbnailDrawOutline(false);
    QVERIFY(!f.m_pPane->GetListViewDelegate()->IsDrawOutline());
}

void tst_FileManagerAppearance::flagsSwitchEachPane_data()
{
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("flags");
    constexpr int allBits = 7;
    for (int parts = 0; parts <= allBits + 1; ++parts) {
        for (int flags = 0; flags <= allBits + 1; ++flags)
            QTest::addRow("panes %d, flags %d", parts, flags) << parts << flags;
    }
}

void tst_FileManagerAppearance::flagsSwitchEachPane()
{
    QFETCH(int, parts);
    QFETCH(int, flags);
    constexpr int allBits = 7;
    PaneFixture f;
    f.m_pPane->GetAliasTreeModel()->PopulateAliasTree(
        QStringLiteral("Top\t%1\tfalse\t32\t\t").arg(f.m_folder.Path()));
    const int known = flags & allBits;
    f.m_pPane->SetFlagStatus(parts, flags, true);
    const Interactions on(f);
    QCOMPARE(on.list, (parts & FM_PART_LIST) ? known : 0);
    QCOMPARE(on.tree, (parts & FM_PART_TREE) ? known : 0);
    QCOMPARE(on.alias, (parts & FM_PART_ALIAS_TREE) ? known : 0);
    f.m_pPane->SetFlagStatus(allBits, allBits, true);
    f.m_pPane->SetFlagStatus(parts, flags, false);
    const Interactions off(f);
    QCOMPARE(off.list, (parts & FM_PART_LIST) ? allBits & ~known : allBits);
    QCOMPARE(off.tree, (parts & FM_PART_TREE) ? allBits & ~known : allBits);
    QCOMPARE(off.alias, (parts & FM_PART_ALIAS_TREE) ? allBits & ~known : allBits);
}

void tst_FileManagerAppearance::draggableViewsNeverTakeDrops()
{
    TestFolder other;
    const QString dragged = other.File(QStringLiteral("dragged.txt"));
    PaneFixture f;
    QVERIFY(f.ShowFolder(0));
    const QList<QAbstractItemView*> views = {f.Grid(), f.Details(), f.Tree(), f.AliasTree()};
    f.m_pPane->SetFlagStatus(7, Renaming | Dragging, true);
    for (QAbstractItemView* view : views) {
        QVERIFY(view->dragEnabled());
        QCOMPARE(view->dragDropMode(), QAbstractItemView::DragOnly);
        QVERIFY(!TakesDrops(view, dragged));
    }
    f.m_pPane->SetFlagStatus(7, Dragging, false);
    for (QAbstractItemView* view : views) {
        QVERIFY(!view->dragEnabled());
        QCOMPARE(view->dragDropMode(), QAbstractItemView::NoDragDrop);
        QVERIFY(!TakesDrops(view, dragged));
    }
}

void tst_FileManagerAppearance::noViewTakesDropsAtFirst()
{
    TestFolder other;
    const QString dragged = other.File(QStringLiteral("dragged.txt"));
    PaneFixture f;
    QVERIFY(f.ShowFolder(0));
    const QList<QAbstractItemView*> views = {f.Grid(), f.Details(), f.Tree(), f.AliasTree()};
    for (QAbstractItemView* view : views) {
        QVERIFY(!TakesDrops(view, dragged));
        QCOMPARE(view->dragDropMode(), QAbstractItemView::NoDragDrop);
    }
}

void tst_FileManagerAppearance::flagsWorkWhereTheListIsHidden()
{
    PaneFixture f(FM_MODE_TREE_ONLY);
    f.m_pPane->SetFlagStatus(FM_PART_LIST | FM_PART_TREE, Renaming | Dragging, true);
    QCOMPARE(Interactions(f).list, Renaming | Dragging);
    QCOMPARE(Interactions(f).tree, Renaming | Dragging);
}

void tst_FileManagerAppearance::showStringModeIsThePanes()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("x.y"));
    const QString file = f.m_folder.File(QStringLiteral("sub/a.b.txt"));
    const QModelIndex listItem = f.m_pPane->GetListModel()->index(file);
    // The tree lists files too when it is asked for one.
    const QModelIndex treeItem = f.m_pPane->GetTreeModel()->index(file);
    QCOMPARE(listItem.data().toString(), QStringLiteral("a.b"));
    QCOMPARE(treeItem.data().toString(), QStringLiteral("a"));
    f.m_pPane->SetFMViewShowStringMode(FM_PART_LIST, FM_SHOW_STRING_CALLBACK);
    QCOMPARE(listItem.data().toString(), QStringLiteral("a.b.txt"));
    QCOMPARE(treeItem.data().toString(), QStringLiteral("a"));
    f.m_pPane->SetFMViewShowStringMode(FM_PART_TREE, FM_SHOW_STRING_CALLBACK);
    QCOMPARE(treeItem.data().toString(), QStringLiteral("a.b.txt"));
    f.m_pPane->SetFMViewShowStringMode(FM_PART_LIST, FM_SHOW_STRING_BASE_NAME);
    QCOMPARE(listItem.data().toString(), QStringLiteral("a.b"));
    QCOMPARE(treeItem.data().toString(), QStringLiteral("a.b.txt"));
}

void tst_FileManagerAppearance::showStringModeOfNoPaneIsIgnored()
{
    PaneFixture f;
    const QString file = f.m_folder.File(QStringLiteral("a.b.txt"));
    const QList<int> others = {0, 3, 5, 7, -1};
    for (const int other : others)
        f.m_pPane->SetFMViewShowStringMode(static_cast<EKTFMPart>(other), FM_SHOW_STRING_CALLBACK);
    QCOMPARE(f.m_pPane->GetListModel()->index(file).data().toString(), QStringLiteral("a.b"));
    QCOMPARE(f.m_pPane->GetTreeModel()->index(file).data().toString(), QStringLiteral("a"));
}

void tst_FileManagerAppearance::mappingFileAndSectionAreThePanes()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("sub"));
    const QString ini =
        f.m_folder.File(QStringLiteral("names.ini"), "[List]\nsub=In the list\n[Tree]\nsub=In the tree\n"
                                                     "[Alias]\nsub=In the alias tree\n");
    CKTFMAliasTreeModel* aliases = f.m_pPane->GetAliasTreeModel();
    aliases->PopulateAliasTree(QStringLiteral("Top\t/\tfalse\t0\tAlias\t\n sub\t\tfalse\t0\t\t"));
    const QModelIndex aliasItem = aliases->index(0, 0, aliases->index(0, 0));
    f.m_pPane->SetFilenameMappingINIFile(FM_PART_LIST, ini, QStringLiteral("List"));
    QCOMPARE(f.ListIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In the list"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("sub"));
    f.m_pPane->SetFilenameMappingINIFile(FM_PART_TREE, ini, QStringLiteral("Tree"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In the tree"));
    QCOMPARE(aliasItem.data().toString(), QStringLiteral("sub"));
    f.m_pPane->SetFilenameMappingINIFile(FM_PART_ALIAS_TREE, ini, QStringLiteral("List"));
    QCOMPARE(aliasItem.data().toString(), QStringLiteral("In the alias tree"));
}

void tst_FileManagerAppearance::mappingFileOfNoPaneIsIgnored()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("sub"));
    const QString ini = f.m_folder.File(QStringLiteral("names.ini"), "[S]\nsub=Mapped\n");
    f.m_pPane->SetFilenameMappingINIFile(static_cast<EKTFMPart>(3), ini, QStringLiteral("S"));
    QCOMPARE(f.ListIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("sub"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("sub"));
}

void tst_FileManagerAppearance::mappingSectionAloneIsForTreeAndList()
{
    PaneFixture f;
    f.m_folder.Folder(QStringLiteral("sub"));
    const QString ini = f.m_folder.File(QStringLiteral("names.ini"), "[A]\nsub=In A\n[B]\nsub=In B\n");
    CKTFMAliasTreeModel* aliases = f.m_pPane->GetAliasTreeModel();
    aliases->PopulateAliasTree(QStringLiteral("Top\t/\tfalse\t0\tA\t\n sub\t\tfalse\t0\t\t"));
    const QModelIndex aliasItem = aliases->index(0, 0, aliases->index(0, 0));
    const QList<EKTFMPart> parts = {FM_PART_LIST, FM_PART_TREE, FM_PART_ALIAS_TREE};
    for (const EKTFMPart part : parts)
        f.m_pPane->SetFilenameMappingINIFile(part, ini, QStringLiteral("A"));
    f.m_pPane->SetFilenameMappingINISection(FM_PART_ALIAS_TREE, QStringLiteral("B"));
    f.m_pPane->SetFilenameMappingINISection(static_cast<EKTFMPart>(3), QStringLiteral("B"));
    QCOMPARE(aliasItem.data().toString(), QStringLiteral("In A"));
    QCOMPARE(f.ListIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In A"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In A"));
    f.m_pPane->SetFilenameMappingINISection(FM_PART_LIST, QStringLiteral("B"));
    QCOMPARE(f.ListIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In B"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In A"));
    f.m_pPane->SetFilenameMappingINISection(FM_PART_TREE, QStringLiteral("B"));
    QCOMPARE(f.TreeIndex(QStringLiteral("sub")).data().toString(), QStringLiteral("In B"));
}

KTFM_TEST_MAIN(tst_FileManagerAppearance)
#include "tst_filemanager_appearance.moc"
