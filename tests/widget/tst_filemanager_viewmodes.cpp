#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QHeaderView>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTreeView>

namespace {

constexpr int GridPage = 0;
constexpr int DetailPage = 1;

/** A value that names no view mode. */
const auto NoViewMode = static_cast<EKTFMViewMode>(7);

/** @return the height that a row of the table asks for, which is that of its image */
int RowHeight(const PaneFixture& f)
{
    return f.m_pPane->GetListModel()->index(f.m_folder.Path()).data(Qt::SizeHintRole).toSize().height();
}

/** Gives the grid's viewport a width, which the pane alone decides when the list fills it. */
void SetViewportWidth(PaneFixture& f, int width)
{
    const int frame = f.m_pPane->width() - f.Grid()->viewport()->width();
    f.m_pPane->resize(width + frame, f.m_pPane->height());
    QTRY_COMPARE(f.Grid()->viewport()->width(), width);
}

} // namespace

class tst_FileManagerViewModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstToggleShowsTheGrid();
    void togglingCyclesGridLargeGridDetails();
    void togglingFromAnotherModeDoesNothing();
    void otherModeIsStoredOnly();
    void gridModesSetSizesAndPreset_data();
    void gridModesSetSizesAndPreset();
    void gridModeUsesTheHostsMarginOnceThenTheDefault();
    void gridModeSpreadsTheColumnsWithTheDefaultMargin();
    void gridModeSortsByNameDescending();
    void detailsKeepSizesAndGrid();
    void detailsSelectWholeRows();
    void shownViewGetsTheFocus();
    void iconSizePresets_data();
    void iconSizePresets();
    void iconSizeBeyondThePresetsIsStoredOnly();
    void iconSizeDoesNotSpreadTheColumns();
    void togglingIconSizeCyclesTheLastThree();
    void togglingIconSizeFromOtherPresetsSpreadsTheColumnsAlone_data();
    void togglingIconSizeFromOtherPresetsSpreadsTheColumnsAlone();
    void marginTakesEffectWithTheNextChange();
    void gridSizePresets_data();
    void gridSizePresets();
    void columnsAreSpreadToThePixel_data();
    void columnsAreSpreadToThePixel();
    void resizingSpreadsTheColumns();
    void detailsAreNotSpread();
    void impossibleMarginLeavesTheGrid();
    void selectionModes_data();
    void selectionModes();
    void filtersHideFilesThatDoNotMatch();
    void emptyFilterIsIgnored();
    void largestIconSizeIsToldAsAHundred();
};

void tst_FileManagerViewModes::firstToggleShowsTheGrid()
{
    PaneFixture f;
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_DETAIL);
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_ICON);
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(60, 60));
}

void tst_FileManagerViewModes::togglingCyclesGridLargeGridDetails()
{
    PaneFixture f;
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_LARGE_ICON);
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(125, 125));
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_DETAIL);
    QCOMPARE(f.Stack()->currentIndex(), DetailPage);
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->GetViewMode(), FM_VIEW_ICON);
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
}

void tst_FileManagerViewModes::togglingFromAnotherModeDoesNothing()
{
    PaneFixture f;
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_pPane->SetViewMode(NoViewMode);
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->GetViewMode(), NoViewMode);
    QCOMPARE(f.Stack()->currentIndex(), DetailPage);
}

void tst_FileManagerViewModes::otherModeIsStoredOnly()
{
    PaneFixture f;
    f.m_pPane->SetViewMode(FM_VIEW_LARGE_ICON);
    f.Details()->sortByColumn(1, Qt::AscendingOrder);
    f.Tree()->setFocus();
    const QSize grid = f.Grid()->gridSize();
    f.m_pPane->SetViewMode(NoViewMode);
    QCOMPARE(f.m_pPane->GetViewMode(), NoViewMode);
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(125, 125));
    QCOMPARE(f.Grid()->gridSize(), grid);
    QCOMPARE(f.Proxy()->sortColumn(), 1);
    QCOMPARE(f.m_pPane->focusWidget(), f.Tree());
}

void tst_FileManagerViewModes::gridModesSetSizesAndPreset_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QSize>("list");
    QTest::addColumn<QSize>("detail");
    QTest::addColumn<QSize>("toggled");
    // The presets that the modes store: medium, which toggles to small, and huge, which toggles to nothing.
    QTest::newRow("grid") << 0 << QSize(60, 60) << QSize(40, 40) << QSize(40, 40);
    QTest::newRow("large grid") << 2 << QSize(125, 125) << QSize(50, 50) << QSize(125, 125);
}

void tst_FileManagerViewModes::gridModesSetSizesAndPreset()
{
    QFETCH(int, mode);
    QFETCH(QSize, detail);
    PaneFixture f;
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_pPane->SetViewMode(static_cast<EKTFMViewMode>(mode));
    QCOMPARE(f.Stack()->currentIndex(), GridPage);
    QTEST(f.m_pPane->GetListIconSize(), "list");
    QCOMPARE(f.m_pPane->GetDetailIconSize(), detail);
    QCOMPARE(RowHeight(f), detail.width());
    f.m_pPane->ToggleListIconSize();
    QTEST(f.m_pPane->GetListIconSize(), "toggled");
}

void tst_FileManagerViewModes::gridModeUsesTheHostsMarginOnceThenTheDefault()
{
    // So narrow that the columns cannot be spread: what the mode itself has set stays to be seen.
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    f.Grid()->setFixedWidth(12);
    f.m_pPane->SetGridSize(FM_GRID_NARROW);
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QCOMPARE(f.Grid()->gridSize(), QSize(100, 100));
    f.m_pPane->SetGridMargin(7, 9);
    f.m_pPane->SetViewMode(FM_VIEW_LARGE_ICON);
    QCOMPARE(f.Grid()->gridSize(), QSize(132, 134));
    f.m_pPane->SetIconSize(FM_ICON_SMALL);
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
}

void tst_FileManagerViewModes::gridModeSpreadsTheColumnsWithTheDefaultMargin()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, 333);
    f.m_pPane->SetGridSize(FM_GRID_NARROW);
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    // 317 pixels for columns of 100: 17 are left over, shared by 4.
    QCOMPARE(f.Grid()->gridSize(), QSize(104, 100));
}

void tst_FileManagerViewModes::gridModeSortsByNameDescending()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.txt"), "123");
    f.m_folder.File(QStringLiteral("b.txt"), "1");
    f.m_folder.Folder(QStringLiteral("z"));
    QVERIFY(f.ShowFolder(3));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.Details()->sortByColumn(1, Qt::AscendingOrder);
    QTRY_COMPARE(f.DetailNames(),
                 QStringList({QStringLiteral("b.txt"), QStringLiteral("a.txt"), QStringLiteral("z")}));
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QCOMPARE(f.Proxy()->sortColumn(), 0);
    QCOMPARE(f.Proxy()->sortOrder(), Qt::DescendingOrder);
    QCOMPARE(f.Names(), QStringList({QStringLiteral("z"), QStringLiteral("a.txt"), QStringLiteral("b.txt")}));
}

void tst_FileManagerViewModes::detailsKeepSizesAndGrid()
{
    PaneFixture f;
    QVERIFY(f.Show());
    f.m_pPane->SetIconSize(FM_ICON_TALL);
    f.Details()->sortByColumn(2, Qt::AscendingOrder);
    const QSize grid = f.Grid()->gridSize();
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(f.Stack()->currentIndex(), DetailPage);
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(110, 120));
    QCOMPARE(f.m_pPane->GetDetailIconSize(), QSize(50, 50));
    QCOMPARE(f.Grid()->gridSize(), grid);
    QCOMPARE(f.Proxy()->sortColumn(), 2);
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(60, 60));
    QCOMPARE(f.m_pPane->GetDetailIconSize(), QSize(40, 40));
}

void tst_FileManagerViewModes::detailsSelectWholeRows()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.txt"));
    f.m_folder.File(QStringLiteral("b.txt"));
    QVERIFY(f.ShowFolder(2));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QCOMPARE(f.Grid()->selectionModel()->selectedIndexes().size(), 1);
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(f.Details()->selectionModel()->selectedIndexes().size(), f.Proxy()->columnCount());
    const QModelIndexList rows = f.Details()->selectionModel()->selectedRows();
    QCOMPARE(rows.size(), 1);
    QCOMPARE(rows.first(), f.ListIndex(QStringLiteral("b.txt")));
}

void tst_FileManagerViewModes::shownViewGetsTheFocus()
{
    PaneFixture f;
    QVERIFY(f.Show());
    f.Tree()->setFocus();
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(f.m_pPane->focusWidget(), f.Details());
    f.Tree()->setFocus();
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QCOMPARE(f.m_pPane->focusWidget(), f.Grid());
    f.Tree()->setFocus();
    f.m_pPane->SetViewMode(FM_VIEW_LARGE_ICON);
    QCOMPARE(f.m_pPane->focusWidget(), f.Grid());
    f.Tree()->setFocus();
    f.m_pPane->ToggleListViewMode();
    QCOMPARE(f.m_pPane->focusWidget(), f.Details());
}

void tst_FileManagerViewModes::iconSizePresets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QSize>("list");
    QTest::addColumn<QSize>("cell");
    QTest::addColumn<QSize>("detail");
    QTest::newRow("huge") << 0 << QSize(125, 125) << QSize(150, 155) << QSize(50, 50);
    QTest::newRow("tall") << 1 << QSize(110, 120) << QSize(135, 150) << QSize(50, 50);
    QTest::newRow("large, the first") << 2 << QSize(100, 100) << QSize(125, 130) << QSize(50, 50);
    QTest::newRow("large, the second") << 3 << QSize(100, 100) << QSize(125, 130) << QSize(50, 50);
    QTest::newRow("medium") << 4 << QSize(60, 60) << QSize(85, 90) << QSize(40, 40);
    QTest::newRow("small") << 5 << QSize(40, 40) << QSize(65, 70) << QSize(30, 30);
}

void tst_FileManagerViewModes::iconSizePresets()
{
    QFETCH(int, preset);
    QFETCH(QSize, detail);
    PaneFixture f;
    f.m_pPane->SetGridSize(FM_GRID_COMPACT);
    f.m_pPane->SetIconSize(static_cast<EKTFMIconSize>(preset));
    QTEST(f.m_pPane->GetListIconSize(), "list");
    QTEST(f.Grid()->gridSize(), "cell");
    QCOMPARE(f.m_pPane->GetDetailIconSize(), detail);
    QCOMPARE(f.Details()->iconSize(), detail);
    QCOMPARE(RowHeight(f), detail.width());
}

void tst_FileManagerViewModes::iconSizeBeyondThePresetsIsStoredOnly()
{
    PaneFixture f;
    f.m_pPane->SetIconSize(FM_ICON_LARGE);
    // The host may have told the model another height, which any preset replaces.
    f.m_pPane->GetListModel()->SetRowHeight(11);
    f.m_pPane->SetIconSize(static_cast<EKTFMIconSize>(6));
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(100, 100));
    QCOMPARE(f.m_pPane->GetDetailIconSize(), QSize(50, 50));
    QCOMPARE(f.Grid()->gridSize(), QSize(140, 140));
    QCOMPARE(RowHeight(f), 50);
    f.m_pPane->ToggleListIconSize();
    QCOMPARE(f.m_pPane->GetListIconSize(), QSize(100, 100));
}

void tst_FileManagerViewModes::iconSizeDoesNotSpreadTheColumns()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, 333);
    f.m_pPane->SetIconSize(FM_ICON_MEDIUM);
    QCOMPARE(f.Grid()->gridSize(), QSize(100, 100));
    f.m_pPane->CalculateItemPosition();
    QCOMPARE(f.Grid()->gridSize(), QSize(104, 100));
}

void tst_FileManagerViewModes::togglingIconSizeCyclesTheLastThree()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, 1016);
    struct Step
    {
        QSize list;
        QSize detail;
        QSize cell;
    };
    // It starts small.
    const QList<Step> steps = {{QSize(100, 100), QSize(50, 50), QSize(142, 140)},
                               {QSize(60, 60), QSize(40, 40), QSize(100, 100)},
                               {QSize(40, 40), QSize(30, 30), QSize(83, 80)},
                               {QSize(100, 100), QSize(50, 50), QSize(142, 140)}};
    for (const Step& step : steps) {
        f.m_pPane->ToggleListIconSize();
        QCOMPARE(f.m_pPane->GetListIconSize(), step.list);
        QCOMPARE(f.m_pPane->GetDetailIconSize(), step.detail);
        QCOMPARE(f.Grid()->gridSize(), step.cell);
        QCOMPARE(RowHeight(f), step.detail.width());
    }
}

void tst_FileManagerViewModes::togglingIconSizeFromOtherPresetsSpreadsTheColumnsAlone_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QSize>("list");
    QTest::addColumn<QSize>("before");
    QTest::addColumn<QSize>("after");
    // 784 pixels: 4 columns of 165 leave 124, which shrinks them; 5 of 150 leave 34; 5 of 140 leave 84, which
    // shrinks them.
    QTest::newRow("huge") << 0 << QSize(125, 125) << QSize(165, 165) << QSize(156, 165);
    QTest::newRow("tall") << 1 << QSize(110, 120) << QSize(150, 160) << QSize(155, 160);
    QTest::newRow("large") << 2 << QSize(100, 100) << QSize(140, 140) << QSize(130, 140);
}

void tst_FileManagerViewModes::togglingIconSizeFromOtherPresetsSpreadsTheColumnsAlone()
{
    QFETCH(int, preset);
    QFETCH(QSize, list);
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, 800);
    f.m_pPane->SetIconSize(static_cast<EKTFMIconSize>(preset));
    QTEST(f.Grid()->gridSize(), "before");
    f.m_pPane->GetListModel()->SetRowHeight(11);
    f.m_pPane->ToggleListIconSize();
    QTEST(f.Grid()->gridSize(), "after");
    QCOMPARE(f.m_pPane->GetListIconSize(), list);
    QCOMPARE(f.m_pPane->GetDetailIconSize(), QSize(50, 50));
    QCOMPARE(RowHeight(f), 11);
}

void tst_FileManagerViewModes::marginTakesEffectWithTheNextChange()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, 176);
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
    f.m_pPane->SetGridSize(FM_GRID_NARROW);
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
    f.m_pPane->CalculateItemPosition();
    QCOMPARE(f.Grid()->gridSize(), QSize(53, 60));
    f.m_pPane->SetGridMargin(3, 5);
    QCOMPARE(f.Grid()->gridSize(), QSize(53, 60));
    f.m_pPane->SetIconSize(FM_ICON_SMALL);
    QCOMPARE(f.Grid()->gridSize(), QSize(43, 45));
}

void tst_FileManagerViewModes::gridSizePresets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QSize>("cell");
    QTest::newRow("wide") << 0 << QSize(80, 80);
    QTest::newRow("narrow") << 1 << QSize(60, 60);
    QTest::newRow("compact") << 2 << QSize(65, 70);
    QTest::newRow("beyond: unchanged") << 3 << QSize(41, 42);
    QTest::newRow("below: unchanged") << -1 << QSize(41, 42);
}

void tst_FileManagerViewModes::gridSizePresets()
{
    QFETCH(int, preset);
    PaneFixture f;
    f.m_pPane->SetGridMargin(1, 2);
    f.m_pPane->SetGridSize(static_cast<EKTFMGridSize>(preset));
    f.m_pPane->SetIconSize(FM_ICON_SMALL);
    QTEST(f.Grid()->gridSize(), "cell");
}

void tst_FileManagerViewModes::columnsAreSpreadToThePixel_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("cellWidth");
    // For cells of 80 pixels.
    const QList<QPair<int, int>> widths = {{96, 80},  {97, 80},  {136, 100}, {137, 60}, {176, 80}, {200, 88},
                                           {256, 80}, {300, 71}, {333, 79},  {416, 80}, {500, 80}, {640, 78},
                                           {777, 76}, {800, 78}, {1000, 81}, {1016, 83}};
    for (const auto& width : widths)
        QTest::addRow("%d", width.first) << width.first << width.second;
}

void tst_FileManagerViewModes::columnsAreSpreadToThePixel()
{
    QFETCH(int, width);
    QFETCH(int, cellWidth);
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    SetViewportWidth(f, width);
    f.m_pPane->CalculateItemPosition();
    QCOMPARE(f.Grid()->gridSize(), QSize(cellWidth, 80));
}

void tst_FileManagerViewModes::resizingSpreadsTheColumns()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QCOMPARE(f.Grid()->gridSize(), QSize(80, 80));
    QVERIFY(f.Show());
    SetViewportWidth(f, 1000);
    QCOMPARE(f.Grid()->gridSize(), QSize(81, 80));
    SetViewportWidth(f, 300);
    QCOMPARE(f.Grid()->gridSize(), QSize(71, 80));
    SetViewportWidth(f, 1000);
    f.m_pPane->hide();
    f.Grid()->setGridSize(QSize(10, 10));
    f.m_pPane->show();
    QCOMPARE(f.Grid()->gridSize(), QSize(81, 80));
}

void tst_FileManagerViewModes::detailsAreNotSpread()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.Grid()->setGridSize(QSize(11, 12));
    f.m_pPane->CalculateItemPosition();
    f.m_pPane->ToggleListIconSize();
    QCOMPARE(f.Grid()->gridSize(), QSize(140, 140));
    f.m_pPane->resize(500, 500);
    QTRY_COMPARE(f.Details()->width(), 500);
    QCOMPARE(f.Grid()->gridSize(), QSize(140, 140));
}

void tst_FileManagerViewModes::impossibleMarginLeavesTheGrid()
{
    PaneFixture f(FM_MODE_LIST_ONLY);
    QVERIFY(f.Show());
    f.Grid()->setGridSize(QSize(77, 78));
    const QList<QSize> margins = {QSize(-40, 40), QSize(-500, 40), QSize(40, -40), QSize(-1000000, -1000000)};
    for (const QSize& margin : margins) {
        f.m_pPane->SetGridMargin(margin.width(), margin.height());
        f.m_pPane->CalculateItemPosition();
        QCOMPARE(f.Grid()->gridSize(), QSize(77, 78));
    }
}

void tst_FileManagerViewModes::selectionModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QAbstractItemView::SelectionMode>("qtMode");
    QTest::newRow("none") << 0 << QAbstractItemView::NoSelection;
    QTest::newRow("single") << 1 << QAbstractItemView::SingleSelection;
    QTest::newRow("multi") << 2 << QAbstractItemView::MultiSelection;
    QTest::newRow("extended") << 3 << QAbstractItemView::ExtendedSelection;
    QTest::newRow("contiguous") << 4 << QAbstractItemView::ContiguousSelection;
}

void tst_FileManagerViewModes::selectionModes()
{
    QFETCH(int, mode);
    PaneFixture f;
    QVERIFY(f.m_pPane->SetSelectionMode(static_cast<EKTFMSelectionMode>(mode)));
    QTEST(f.Grid()->selectionMode(), "qtMode");
    QTEST(f.Details()->selectionMode(), "qtMode");
    const QList<int> others = {5, 6, 1000, -1};
    for (const int other : others) {
        QVERIFY(f.m_pPane->SetSelectionMode(static_cast<EKTFMSelectionMode>(other)));
        QTEST(f.Grid()->selectionMode(), "qtMode");
        QTEST(f.Details()->selectionMode(), "qtMode");
    }
}

void tst_FileManagerViewModes::filtersHideFilesThatDoNotMatch()
{
    PaneFixture f;
    f.m_folder.File(QStringLiteral("a.png"));
    f.m_folder.File(QStringLiteral("b.txt"));
    f.m_folder.File(QStringLiteral("c.jpg"));
    f.m_folder.Folder(QStringLiteral("d"));
    QVERIFY(f.ShowFolder(4));
    f.m_pPane->SetFilter({QStringLiteral("*.png"), QStringLiteral("*.jpg")});
    QTRY_COMPARE(f.Names(),
                 QStringList({QStringLiteral("d"), QStringLiteral("a.png"), QStringLiteral("c.jpg")}));
}

void tst_FileManagerViewModes::emptyFilterIsIgnored()
{
    PaneFixture f;
    const QStringList filters = {QStringLiteral("*.png")};
    f.m_pPane->SetFilter(filters);
    f.m_pPane->SetFilter(QStringList());
    QCOMPARE(f.m_pPane->GetListModel()->nameFilters(), filters);
}

void tst_FileManagerViewModes::largestIconSizeIsToldAsAHundred()
{
    PaneFixture f;
    QCOMPARE(f.m_pPane->GetMaxIconSize(), QSize(100, 100));
    f.m_pPane->SetIconSize(FM_ICON_HUGE);
    QCOMPARE(f.m_pPane->GetMaxIconSize(), QSize(100, 100));
}

KTFM_TEST_MAIN(tst_FileManagerViewModes)
#include "tst_filemanager_viewmodes.moc"
