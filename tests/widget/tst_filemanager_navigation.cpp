#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPaintEvent>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTreeView>

#include <limits>

namespace {

/** A call of @p operation about an entry of the test's folder. */
QString Call(const char* operation, const QString& path, const char* more = "")
{
    return QLatin1String(operation) + QLatin1Char(' ') + path + QLatin1String(more);
}

/** @return the folder that the view shows */
QString ShownFolder(const PaneFixture& f, const QAbstractItemView* view)
{
    return f.m_pPane->GetListModel()->filePath(f.Proxy()->mapToSource(view->rootIndex()));
}

QString CurrentTreeFolder(const PaneFixture& f)
{
    return f.m_pPane->GetTreeModel()->filePath(f.Tree()->currentIndex());
}

QString TreeRoot(const PaneFixture& f)
{
    return f.m_pPane->GetTreeModel()->filePath(f.Tree()->rootIndex());
}

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

QStringList Unique(QStringList names)
{
    names.removeDuplicates();
    return names;
}

/** The files of a folder in the order of the disk, by which SetCurrentSelection counts. */
QStringList FilesOnDisk(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
}

/** A pane over three files, two folders and a link to a file. */
class MixedFolder : public PaneFixture
{
public:
    MixedFolder()
    {
        m_folder.File(QStringLiteral("a.txt"));
        m_folder.File(QStringLiteral("b.txt"));
        m_folder.File(QStringLiteral("c.txt"));
        m_folder.File(QStringLiteral("sub/deep/d.txt"));
        m_folder.File(QStringLiteral("other/o.txt"));
        m_folder.Link(m_folder.Path(QStringLiteral("a.txt")), QStringLiteral("link.lnk"));
        m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    }

    static constexpr int Count = 6;
};

/** The parts of a widget that were painted. */
class PaintedRegion : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

    QRegion m_region;
};

} // namespace

Q_DECLARE_METATYPE(EKTFMSelectionMode)

class tst_FileManagerNavigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstDirectoryShowsTheTreeAlone();
    void laterDirectoryShowsTreeAndList();
    void treeShowsTheNameColumnAlone();
    void directoryKeepsTheModelsFilters();
    void missingFirstDirectoryShowsNoOther();
    void missingDirectoryKeepsWhatIsShown();
    void emptyDirectoryShowsTheDrivesInTheTreeAlone();
    void fileAsDirectoryShowsItsFolder();
    void oddNames_data();
    void oddNames();
    void manyDirectoriesInARow();
    void rootOfTheFileSystem();
    void selectTreeItemShowsAFolderInBothViews();
    void selectTreeItemFocusesTheShownView();
    void selectTreeItemOfNothingDoesNothing();
    void goToParentFolder();
    void goToParentFolderFromNowhereStays();
    void clickOnATreeFolderTellsTheHostAndShowsIt();
    void activatedTreeFolderIsAClick();
    void clickOnAVanishedTreeFolderTellsNothing();
    void hostMayNavigateWhenToldOfATreeClick();
    void foreignIndexesAreNotFollowed();
    void clickOnAListItemTellsTheHost();
    void activatedListItemIsAClick();
    void clickOnAVanishedFileTellsNothing();
    void doubleClickOnAFileIsLeftToTheHost();
    void doubleClickOnAVanishedFileTellsNothing();
    void doubleClickOnAFolderOpensItEverywhereThenTellsTheHost_data();
    void doubleClickOnAFolderOpensItEverywhereThenTellsTheHost();
    void doubleClickOnAFolderSelectsItsFirstAlias();
    void doubleClickOnALinkOpensItsFolder();
    void listSelectionIsRelayed();
    void treeSelectionClearsTheListsWhileTheViewsLookAway();
    void rootPathsAreRelayed();
    void nthFileIsSelectedInAscendingOrder();
    void nthFileIsCountedFromTheEndInDescendingOrder();
    void nthFileOutOfRange();
    void nthFileBeforeAnyFolder();
    void pathIsSelectedInTheShownView_data();
    void pathIsSelectedInTheShownView();
    void selectedPathIsToldOnlyOnDemand();
    void selectedPathIsEditedOnDemand_data();
    void selectedPathIsEditedOnDemand();
    void missingPathClearsTheSelection();
    void clearingTheSelection();
    void currentFolderOfThePanes();
    void focusIsThatOfTreeOrList();
    void globalPositionIsInsideWithItsEdges();
    void selectedFilesOfTheGrid();
    void selectedRowsOfTheDetailsCountOnce();
    void selectedPathsAreThoseOfTheModel_data();
    void selectedPathsAreThoseOfTheModel();
    void selectedFilesOfManyRows();
    void selectingAllPaintsTheFilesInSight_data();
    void selectingAllPaintsTheFilesInSight();
    void selectingAllObeysTheSelectionMode_data();
    void selectingAllObeysTheSelectionMode();
    void selectedRowsWithGaps();
    void selectedCellsOfOneRowCountOnce();
    void selectedFoldersOfTheTree();
    void allFilesBelowTheListedFolder();
    void allFilesBeforeAnyFolder();
    void removedFolderLeavesAnEmptyList_data();
    void removedFolderLeavesAnEmptyList();
    void folderAfterARemovedOneIsShown();
};

void tst_FileManagerNavigation::firstDirectoryShowsTheTreeAlone()
{
    MixedFolder f;
    QVERIFY(f.Show());
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path()));
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QVERIFY(!f.Tree()->currentIndex().isValid());
    QCOMPARE(f.m_host.m_calls, QStringList(Call("OnTreeViewRootPathChanged", f.m_folder.Path())));
    QTRY_COMPARE(f.m_pPane->GetTreeModel()->rowCount(f.Tree()->rootIndex()), 2);
    QTRY_COMPARE(f.Names(), QStringList());
    QCOMPARE(f.DetailNames(), QStringList());
}

void tst_FileManagerNavigation::laterDirectoryShowsTreeAndList()
{
    MixedFolder f;
    QVERIFY(f.Show());
    f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("sub")));
    f.m_host.m_calls.clear();
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path()));
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QCOMPARE(CurrentTreeFolder(f), f.m_folder.Path());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
    QCOMPARE(ShownFolder(f, f.Details()), f.m_folder.Path());
    QCOMPARE(f.m_host.m_calls, QStringList({Call("OnTreeViewRootPathChanged", f.m_folder.Path()),
                                            QStringLiteral("OnTreeViewSelectionChanged +4 -0"),
                                            Call("OnListViewRootPathChanged", f.m_folder.Path())}));
    QCOMPARE(f.m_pPane->focusWidget(), f.Grid());
    QTRY_COMPARE(f.Names().size(), MixedFolder::Count);
}

void tst_FileManagerNavigation::treeShowsTheNameColumnAlone()
{
    MixedFolder f;
    f.m_pPane->SetDirectory(f.m_folder.Path());
    const QHeaderView* header = f.Tree()->header();
    QCOMPARE(header->count(), 4);
    for (int section = 0; section < header->count(); ++section)
        QCOMPARE(header->isSectionHidden(section), section != 0);
}

void tst_FileManagerNavigation::directoryKeepsTheModelsFilters()
{
    MixedFolder f;
    const QDir::Filters treeFilter = QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Hidden;
    const QDir::Filters listFilter = QDir::Files | QDir::NoDotAndDotDot;
    f.m_pPane->GetTreeModel()->setFilter(treeFilter);
    f.m_pPane->GetListModel()->setFilter(listFilter);
    QVERIFY(f.ShowFolder(4));
    f.m_pPane->SelectTreeItem(f.TreeIndex(QStringLiteral("sub")));
    f.m_pPane->GoToParentFolder();
    QCOMPARE(f.m_pPane->GetTreeModel()->filter(), treeFilter);
    QCOMPARE(f.m_pPane->GetListModel()->filter(), listFilter);
}

void tst_FileManagerNavigation::missingFirstDirectoryShowsNoOther()
{
    MixedFolder f;
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("missing"))));
    QVERIFY(!f.Tree()->rootIndex().isValid());
    QVERIFY(f.m_host.m_calls.isEmpty());
    // It does not count: the next one is the first.
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path()));
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QVERIFY(!f.Grid()->rootIndex().isValid());
}

void tst_FileManagerNavigation::missingDirectoryKeepsWhatIsShown()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("missing"))));
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
    QCOMPARE(f.Names().size(), MixedFolder::Count);
}

void tst_FileManagerNavigation::emptyDirectoryShowsTheDrivesInTheTreeAlone()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QVERIFY(f.m_pPane->SetDirectory(QString()));
    QVERIFY(!f.Tree()->rootIndex().isValid());
    QVERIFY(!f.Tree()->currentIndex().isValid());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
}

void tst_FileManagerNavigation::fileAsDirectoryShowsItsFolder()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("a.txt"))));
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("other"))));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("o.txt")));
}

void tst_FileManagerNavigation::oddNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks inside") << QStringLiteral("a  b c");
    QTest::newRow("a blank in front") << QStringLiteral(" a");
    QTest::newRow("letters beyond Latin") << QString::fromUtf8("\xc3\xa4\xe6\x97\xa5\xe6\x9c\xac");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xf0\x9f\x93\x81");
    QTest::newRow("a percent sign and a number") << QStringLiteral("100%1 %20");
    QTest::newRow("an ampersand and a hash") << QStringLiteral("a&b#c;d");
    QTest::newRow("brackets") << QStringLiteral("[a]{b}(c)");
    QTest::newRow("a long name") << QString(200, QLatin1Char('x'));
#ifndef Q_OS_WIN
    QTest::newRow("a backslash") << QStringLiteral("a\\b");
    QTest::newRow("a line feed") << QStringLiteral("a\nb");
    QTest::newRow("wild cards") << QStringLiteral("*?");
    QTest::newRow("a colon in front") << QStringLiteral(":a");
#endif
}

void tst_FileManagerNavigation::oddNames()
{
    QFETCH(QString, name);
    PaneFixture f;
    f.m_folder.File(name + QStringLiteral("/in.txt"));
    QVERIFY(f.ShowFolder(1));
    const QString path = f.m_folder.Path(name);
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(name));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("in.txt")));
    QCOMPARE(CurrentTreeFolder(f), path);
    QVERIFY(f.m_host.m_calls.contains(Call("OnLButtonDblClickListItem", path, " true")));
    QCOMPARE(f.m_pPane->GoToParentFolder(), f.m_folder.Path());
    QTRY_COMPARE(f.Names(), QStringList(name));
    QVERIFY(f.m_pPane->SetCurrentSelection(path, false, false));
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList(path));
    QVERIFY(f.m_pPane->SetDirectory(path));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("in.txt")));
}

void tst_FileManagerNavigation::manyDirectoriesInARow()
{
    MixedFolder f;
    QVERIFY(f.Show());
    const QStringList folders = {f.m_folder.Path(),
                                 f.m_folder.Path(QStringLiteral("sub")),
                                 f.m_folder.Path(QStringLiteral("other")),
                                 f.m_folder.Path(QStringLiteral("sub/deep")),
                                 f.m_folder.Path(QStringLiteral("missing")),
                                 f.m_folder.Path()};
    constexpr int Times = 300;
    for (int i = 0; i < Times; ++i) {
        QVERIFY(f.m_pPane->SetDirectory(folders.at(i % folders.size())));
        // Some of them are half loaded when the next one comes.
        if (i % 7 == 0)
            QApplication::processEvents();
    }
    QTRY_COMPARE(f.Names().size(), MixedFolder::Count);
    QCOMPARE(f.DetailNames(), f.Names());
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
}

void tst_FileManagerNavigation::rootOfTheFileSystem()
{
    PaneFixture f;
    QVERIFY(f.Show());
    const QString root = QDir::rootPath();
    const QStringList entries =
        QDir(root).entryList(QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot, QDir::NoSort);
    f.Open(root);
    QCOMPARE(TreeRoot(f), root);
    QTRY_COMPARE(Sorted(f.Names()), Sorted(entries));
    QCOMPARE(f.m_pPane->GoToParentFolder(), QString());
    QCOMPARE(CurrentTreeFolder(f), root);
}

void tst_FileManagerNavigation::selectTreeItemShowsAFolderInBothViews()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Grid()->selectAll();
    f.m_host.m_calls.clear();
    f.m_pPane->SelectTreeItem(f.TreeIndex(QStringLiteral("other")));
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path(QStringLiteral("other")));
    QCOMPARE(ShownFolder(f, f.Details()), f.m_folder.Path(QStringLiteral("other")));
    QVERIFY(!f.Grid()->selectionModel()->hasSelection());
    QCOMPARE(f.m_host.m_calls,
             QStringList({Call("OnListViewRootPathChanged", f.m_folder.Path(QStringLiteral("other"))),
                          QStringLiteral("OnListViewSelectionChanged +0 -24")}));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("o.txt")));
    QCOMPARE(f.DetailNames(), QStringList(QStringLiteral("o.txt")));
    // The tree stays where it was.
    QCOMPARE(CurrentTreeFolder(f), f.m_folder.Path());
}

void tst_FileManagerNavigation::selectTreeItemFocusesTheShownView()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Tree()->setFocus();
    f.m_pPane->SelectTreeItem(f.TreeIndex(QStringLiteral("sub")));
    QCOMPARE(f.m_pPane->focusWidget(), f.Grid());
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.Tree()->setFocus();
    f.m_pPane->SelectTreeItem(f.TreeIndex(QStringLiteral("other")));
    QCOMPARE(f.m_pPane->focusWidget(), f.Details());
}

void tst_FileManagerNavigation::selectTreeItemOfNothingDoesNothing()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Grid()->selectAll();
    f.Tree()->setFocus();
    const QModelIndex vanished = f.TreeIndex(QStringLiteral("other"));
    QVERIFY(QDir(f.m_folder.Path(QStringLiteral("other"))).removeRecursively());
    f.m_host.m_calls.clear();
    f.m_pPane->SelectTreeItem(vanished);
    f.m_pPane->SelectTreeItem(QModelIndex());
    QCOMPARE(f.m_host.m_calls, QStringList());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
    QVERIFY(f.Grid()->selectionModel()->hasSelection());
    QCOMPARE(f.m_pPane->focusWidget(), f.Tree());
}

void tst_FileManagerNavigation::goToParentFolder()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Tree()->setCurrentIndex(f.TreeIndex(QStringLiteral("sub/deep")));
    f.m_pPane->SelectTreeItem(f.Tree()->currentIndex());
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("d.txt")));
    QCOMPARE(f.m_pPane->GoToParentFolder(), f.m_folder.Path(QStringLiteral("sub")));
    QCOMPARE(CurrentTreeFolder(f), f.m_folder.Path(QStringLiteral("sub")));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("deep")));
    QCOMPARE(f.m_pPane->GoToParentFolder(), f.m_folder.Path());
    QTRY_COMPARE(f.Names().size(), MixedFolder::Count);
}

void tst_FileManagerNavigation::goToParentFolderFromNowhereStays()
{
    PaneFixture f;
    QCOMPARE(f.m_pPane->GoToParentFolder(), QString());
    QVERIFY(!f.Tree()->currentIndex().isValid());
    QVERIFY(f.m_host.m_calls.isEmpty());
}

void tst_FileManagerNavigation::clickOnATreeFolderTellsTheHostAndShowsIt()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString sub = f.m_folder.Path(QStringLiteral("sub"));
    f.Grid()->setCurrentIndex(f.ListIndex(QStringLiteral("a.txt")));
    f.m_host.m_calls.clear();
    PaneFixture::Click(f.Tree(), f.TreeIndex(QStringLiteral("sub")));
    QCOMPARE(f.m_host.m_calls,
             QStringList({QStringLiteral("OnListViewSelectionChanged +0 -1"),
                          QStringLiteral("OnTreeViewSelectionChanged +4 -4"),
                          Call("OnLButtonClickTreeItem", sub), Call("OnListViewRootPathChanged", sub)}));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("deep")));
    QCOMPARE(f.m_pPane->focusWidget(), f.Grid());
}

void tst_FileManagerNavigation::activatedTreeFolderIsAClick()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString sub = f.m_folder.Path(QStringLiteral("sub"));
    f.Tree()->setCurrentIndex(f.TreeIndex(QStringLiteral("sub")));
    f.m_host.m_calls.clear();
    QTest::keyClick(f.Tree(), Qt::Key_Return);
    QCOMPARE(f.m_host.m_calls,
             QStringList({Call("OnLButtonClickTreeItem", sub), Call("OnListViewRootPathChanged", sub)}));
}

void tst_FileManagerNavigation::clickOnAVanishedTreeFolderTellsNothing()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QModelIndex vanished = f.TreeIndex(QStringLiteral("other"));
    QTRY_VERIFY(f.Tree()->visualRect(vanished).isValid());
    QVERIFY(QDir(f.m_folder.Path(QStringLiteral("other"))).removeRecursively());
    f.m_host.m_calls.clear();
    PaneFixture::Click(f.Tree(), vanished);
    QVERIFY(f.m_host.CallsOf(QStringLiteral("OnLButtonClickTreeItem")).isEmpty());
    QVERIFY(f.m_host.CallsOf(QStringLiteral("OnListViewRootPathChanged")).isEmpty());
}

void tst_FileManagerNavigation::hostMayNavigateWhenToldOfATreeClick()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_host.m_onCall = [&f](const QString& call) {
        if (call.startsWith(QLatin1String("OnLButtonClickTreeItem")))
            f.m_pPane->SetDirectory(f.m_folder.Path(QStringLiteral("other")));
    };
    PaneFixture::Click(f.Tree(), f.TreeIndex(QStringLiteral("sub")));
    // The clicked folder is shown after the host has been told.
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("deep")));
    QCOMPARE(TreeRoot(f), f.m_folder.Path(QStringLiteral("other")));
}

void tst_FileManagerNavigation::foreignIndexesAreNotFollowed()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QModelIndex listItem = f.m_pPane->GetListModel()->index(f.m_folder.Path(QStringLiteral("sub")));
    f.m_pPane->SelectTreeItem(listItem);
    f.m_pPane->OnTreeClicked(listItem);
    f.m_pPane->OnListClicked(listItem);
    f.m_pPane->OnListDblClicked(f.TreeIndex(QStringLiteral("sub")));
    QCOMPARE(f.m_host.m_calls, QStringList());
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
}

void tst_FileManagerNavigation::clickOnAListItemTellsTheHost()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString path = f.m_folder.Path(QStringLiteral("b.txt"));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QCOMPARE(f.m_host.m_calls, QStringList({QStringLiteral("OnListViewSelectionChanged +1 -0"),
                                            Call("OnLButtonClickListItem", path)}));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_host.m_calls.clear();
    PaneFixture::Click(f.Details(), f.ListIndex(QStringLiteral("sub")));
    QCOMPARE(f.m_host.m_calls,
             QStringList({QStringLiteral("OnListViewSelectionChanged +4 -4"),
                          Call("OnLButtonClickListItem", f.m_folder.Path(QStringLiteral("sub")))}));
}

void tst_FileManagerNavigation::activatedListItemIsAClick()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString path = f.m_folder.Path(QStringLiteral("b.txt"));
    f.Grid()->setCurrentIndex(f.ListIndex(QStringLiteral("b.txt")));
    f.m_host.m_calls.clear();
    QTest::keyClick(f.Grid(), Qt::Key_Return);
    QCOMPARE(f.m_host.m_calls, QStringList(Call("OnLButtonClickListItem", path)));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_host.m_calls.clear();
    QTest::keyClick(f.Details(), Qt::Key_Return);
    QCOMPARE(f.m_host.m_calls, QStringList(Call("OnLButtonClickListItem", path)));
}

void tst_FileManagerNavigation::clickOnAVanishedFileTellsNothing()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QVERIFY(QFile::remove(f.m_folder.Path(QStringLiteral("b.txt"))));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QVERIFY(f.m_host.CallsOf(QStringLiteral("OnLButtonClickListItem")).isEmpty());
}

void tst_FileManagerNavigation::doubleClickOnAFileIsLeftToTheHost()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString path = f.m_folder.Path(QStringLiteral("a.txt"));
    f.Grid()->setCurrentIndex(f.ListIndex(QStringLiteral("a.txt")));
    f.m_host.m_calls.clear();
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("a.txt")));
    const QStringList clicks = f.m_host.m_calls.mid(0, 2);
    QCOMPARE(clicks, QStringList({Call("OnLButtonClickListItem", path),
                                  Call("OnLButtonDblClickListItem", path, " false")}));
    QCOMPARE(ShownFolder(f, f.Grid()), f.m_folder.Path());
    QCOMPARE(CurrentTreeFolder(f), f.m_folder.Path());
}

void tst_FileManagerNavigation::doubleClickOnAVanishedFileTellsNothing()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QVERIFY(QFile::remove(f.m_folder.Path(QStringLiteral("b.txt"))));
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QVERIFY(f.m_host.CallsOf(QStringLiteral("OnLButtonDblClickListItem")).isEmpty());
}

void tst_FileManagerNavigation::doubleClickOnAFolderOpensItEverywhereThenTellsTheHost_data()
{
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::newRow("in the grid") << FM_VIEW_ICON;
    QTest::newRow("in the details") << FM_VIEW_DETAIL;
}

void tst_FileManagerNavigation::doubleClickOnAFolderOpensItEverywhereThenTellsTheHost()
{
    QFETCH(EKTFMViewMode, mode);
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_pPane->SetViewMode(mode);
    const QString sub = f.m_folder.Path(QStringLiteral("sub"));
    QStringList whenTold;
    f.m_host.m_onCall = [&f, &whenTold](const QString& call) {
        if (call.startsWith(QLatin1String("OnLButtonDblClickListItem")))
            whenTold =
                QStringList({CurrentTreeFolder(f), ShownFolder(f, f.Grid()), ShownFolder(f, f.Details())});
    };
    PaneFixture::Click(f.ShownList(), f.ListIndex(QStringLiteral("sub")));
    f.m_host.m_calls.clear();
    const QModelIndex item = f.ListIndex(QStringLiteral("sub"));
    const int cells = f.ShownList()->selectionModel()->selectedIndexes().size();
    QTest::mouseDClick(f.ShownList()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       f.ShownList()->visualRect(item).center());
    QCOMPARE(f.m_host.m_calls.mid(0, 5),
             QStringList({Call("OnTreeViewRootPathChanged", sub),
                          QStringLiteral("OnListViewSelectionChanged +0 -%1").arg(cells),
                          QStringLiteral("OnTreeViewSelectionChanged +4 -4"),
                          Call("OnListViewRootPathChanged", sub),
                          Call("OnLButtonDblClickListItem", sub, " true")}));
    QCOMPARE(whenTold, QStringList({sub, sub, sub}));
    // The tree keeps its root.
    QCOMPARE(TreeRoot(f), f.m_folder.Path());
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("deep")));
    QCOMPARE(f.DetailNames(), QStringList(QStringLiteral("deep")));
}

void tst_FileManagerNavigation::doubleClickOnAFolderSelectsItsFirstAlias()
{
    MixedFolder f;
    const QString sub = f.m_folder.Path(QStringLiteral("sub"));
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    CKTFMAliasTreeModel* aliases = f.m_pPane->GetAliasTreeModel();
    const QString lower = sub.toLower();
    aliases->PopulateAliasTree(QStringLiteral("No\t/none\tfalse\t0\t\t\nOne\t%1\tfalse\t0\t\t\n"
                                              "Two\t%1\tfalse\t0\t\t")
                                   .arg(lower));
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("sub")));
    QCOMPARE(aliases->GetAliasLabel(f.AliasTree()->currentIndex()), QStringLiteral("One"));
    QCOMPARE(f.m_pPane->GetCurSelectedAliasIndex(), f.AliasTree()->currentIndex());
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), lower);
}

void tst_FileManagerNavigation::doubleClickOnALinkOpensItsFolder()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    MixedFolder f;
    f.m_folder.Link(f.m_folder.Path(QStringLiteral("other")), QStringLiteral("linked"));
    QVERIFY(f.ShowFolder(MixedFolder::Count + 1));
    PaneFixture::DoubleClick(f.Grid(), f.ListIndex(QStringLiteral("linked")));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("o.txt")));
    QVERIFY(f.m_host.m_calls.contains(
        Call("OnLButtonDblClickListItem", f.m_folder.Path(QStringLiteral("linked")), " true")));
}

void tst_FileManagerNavigation::listSelectionIsRelayed()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("a.txt")));
    f.m_host.m_calls.clear();
    QTest::keyClick(f.Grid(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(f.m_host.m_calls, QStringList(QStringLiteral("OnListViewSelectionChanged +23 -0")));
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QCOMPARE(f.m_host.CallsOf(QStringLiteral("OnListViewSelectionChanged")).constLast(),
             QStringLiteral("OnListViewSelectionChanged +0 -23"));
}

void tst_FileManagerNavigation::treeSelectionClearsTheListsWhileTheViewsLookAway()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Grid()->selectAll();
    const QItemSelectionModel* shared = f.Grid()->selectionModel();
    QStringList order;
    f.m_host.m_onCall = [&f, &order, shared](const QString& call) {
        const bool looking = f.Grid()->selectionModel() == shared && f.Details()->selectionModel() == shared;
        const bool lookingAway =
            f.Grid()->selectionModel() != shared && f.Details()->selectionModel() != shared;
        order.append(call.section(QLatin1Char(' '), 0, 0) +
                     (looking ? QStringLiteral(" looking") : QString()) +
                     (lookingAway ? QStringLiteral(" away") : QString()));
    };
    f.Tree()->setCurrentIndex(f.TreeIndex(QStringLiteral("sub")));
    QCOMPARE(order, QStringList({QStringLiteral("OnListViewSelectionChanged away"),
                                 QStringLiteral("OnTreeViewSelectionChanged looking")}));
    QVERIFY(!shared->hasSelection());
    QVERIFY(!shared->currentIndex().isValid());
    // The views go on with the shared selection.
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("b.txt")));
    QVERIFY(shared->isSelected(f.ListIndex(QStringLiteral("b.txt"))));
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList(f.m_folder.Path(QStringLiteral("b.txt"))));
}

void tst_FileManagerNavigation::rootPathsAreRelayed()
{
    MixedFolder f;
    f.m_pPane->GetListModel()->setRootPath(f.m_folder.Path(QStringLiteral("sub")));
    f.m_pPane->GetTreeModel()->setRootPath(f.m_folder.Path(QStringLiteral("other")));
    QCOMPARE(f.m_host.m_calls,
             QStringList({Call("OnListViewRootPathChanged", f.m_folder.Path(QStringLiteral("sub"))),
                          Call("OnTreeViewRootPathChanged", f.m_folder.Path(QStringLiteral("other")))}));
}

void tst_FileManagerNavigation::nthFileIsSelectedInAscendingOrder()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Details()->sortByColumn(0, Qt::AscendingOrder);
    const QStringList files = FilesOnDisk(f.m_folder.Path());
    QCOMPARE(files.size(), 3);
    for (int n = 0; n < files.size(); ++n) {
        f.m_host.m_calls.clear();
        QVERIFY(f.m_pPane->SetCurrentSelection(n));
        QCOMPARE(f.Grid()->currentIndex(), f.ListIndex(files.at(n)));
        QCOMPARE(f.m_host.m_calls.first(), Call("OnLButtonClickListItem", f.m_folder.Path(files.at(n))));
        QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList(f.m_folder.Path(files.at(n))));
    }
}

void tst_FileManagerNavigation::nthFileIsCountedFromTheEndInDescendingOrder()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    // The order that the header shows at first.
    QCOMPARE(f.Details()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
    const QStringList files = FilesOnDisk(f.m_folder.Path());
    for (int n = 0; n < files.size(); ++n) {
        QVERIFY(f.m_pPane->SetCurrentSelection(n));
        QCOMPARE(f.Grid()->currentIndex(), f.ListIndex(files.at(files.size() - 1 - n)));
    }
}

void tst_FileManagerNavigation::nthFileOutOfRange()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QList<Qt::SortOrder> orders = {Qt::AscendingOrder, Qt::DescendingOrder};
    const QList<int> others = {
        3, 4, 1000000, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    for (const Qt::SortOrder order : orders) {
        f.Details()->sortByColumn(0, order);
        for (const int other : others)
            QVERIFY(!f.m_pPane->SetCurrentSelection(other));
    }
    QVERIFY(f.m_host.m_calls.isEmpty());
}

void tst_FileManagerNavigation::nthFileBeforeAnyFolder()
{
    TestFolder current;
    current.File(QStringLiteral("not listed.txt"));
    PaneFixture f;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(current.Path()));
    const bool isSelected = f.m_pPane->SetCurrentSelection(0);
    QVERIFY(QDir::setCurrent(previous));
    QVERIFY(!isSelected);
    QVERIFY(f.m_host.m_calls.isEmpty());
}

void tst_FileManagerNavigation::pathIsSelectedInTheShownView_data()
{
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::addColumn<int>("cells");
    QTest::newRow("grid: the item") << FM_VIEW_ICON << 1;
    QTest::newRow("details: the row") << FM_VIEW_DETAIL << 4;
}

void tst_FileManagerNavigation::pathIsSelectedInTheShownView()
{
    QFETCH(EKTFMViewMode, mode);
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_pPane->SetViewMode(mode);
    QVERIFY(f.m_pPane->SetCurrentSelection(f.m_folder.Path(QStringLiteral("sub")), false, false));
    QCOMPARE(f.ShownList()->currentIndex(), f.ListIndex(QStringLiteral("sub")));
    QTEST(f.ShownList()->selectionModel()->selectedIndexes().size(), "cells");
    QVERIFY(!f.ShownList()->viewport()->findChild<QLineEdit*>());
}

void tst_FileManagerNavigation::selectedPathIsToldOnlyOnDemand()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QString a = f.m_folder.Path(QStringLiteral("a.txt"));
    const QString b = f.m_folder.Path(QStringLiteral("b.txt"));
    QVERIFY(f.m_pPane->SetCurrentSelection(a, false, false));
    QCOMPARE(f.m_host.m_calls, QStringList(QStringLiteral("OnListViewSelectionChanged +1 -0")));
    f.m_host.m_calls.clear();
    QVERIFY(f.m_pPane->SetCurrentSelection(b, true, false));
    QCOMPARE(f.m_host.m_calls, QStringList({Call("OnLButtonClickListItem", b),
                                            QStringLiteral("OnListViewSelectionChanged +1 -1")}));
}

void tst_FileManagerNavigation::selectedPathIsEditedOnDemand_data()
{
    pathIsSelectedInTheShownView_data();
}

void tst_FileManagerNavigation::selectedPathIsEditedOnDemand()
{
    QFETCH(EKTFMViewMode, mode);
    MixedFolder f;
    f.m_pPane->SetFlagStatus(FM_PART_LIST, 1, true);
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_pPane->SetViewMode(mode);
    QVERIFY(f.m_pPane->SetCurrentSelection(f.m_folder.Path(QStringLiteral("b.txt")), false, true));
    auto* editor = f.ShownList()->viewport()->findChild<QLineEdit*>();
    QVERIFY(editor);
    QCOMPARE(editor->text(), QStringLiteral("b"));
    editor->selectAll();
    QTest::keyClicks(editor, QStringLiteral("renamed"));
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(QFile::exists(f.m_folder.Path(QStringLiteral("renamed.txt"))));
}

void tst_FileManagerNavigation::missingPathClearsTheSelection()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Grid()->selectAll();
    QVERIFY(!f.m_pPane->SetCurrentSelection(f.m_folder.Path(QStringLiteral("missing")), true, true));
    QVERIFY(!f.Grid()->selectionModel()->hasSelection());
    QVERIFY(f.m_host.CallsOf(QStringLiteral("OnLButtonClickListItem")).isEmpty());
    f.Grid()->selectAll();
    QVERIFY(!f.m_pPane->SetCurrentSelection(QString(), true, true));
    QVERIFY(!f.Grid()->selectionModel()->hasSelection());
}

void tst_FileManagerNavigation::clearingTheSelection()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Grid()->selectAll();
    f.m_host.m_calls.clear();
    f.m_pPane->ClearCurrentSelection();
    QVERIFY(!f.Grid()->selectionModel()->hasSelection());
    QCOMPARE(f.m_host.m_calls, QStringList(QStringLiteral("OnListViewSelectionChanged +0 -24")));
    QVERIFY(f.m_pPane->GetCurSelectedFileList(true).isEmpty());
}

void tst_FileManagerNavigation::currentFolderOfThePanes()
{
    MixedFolder f;
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_TREE), QString());
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), QString());
    QVERIFY(!f.m_pPane->GetCurSelectedAliasIndex().isValid());
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Tree()->setCurrentIndex(f.TreeIndex(QStringLiteral("sub")));
    f.Grid()->setCurrentIndex(f.ListIndex(QStringLiteral("other")));
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_TREE), f.m_folder.Path(QStringLiteral("sub")));
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_LIST), f.m_folder.Path(QStringLiteral("sub")));
    f.m_pPane->GetAliasTreeModel()->PopulateAliasTree(QStringLiteral("One\t/some/folder\tfalse\t0\t\t"));
    f.AliasTree()->setCurrentIndex(f.m_pPane->GetAliasTreeModel()->index(0, 0));
    QCOMPARE(f.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), QStringLiteral("/some/folder"));
    QCOMPARE(f.m_pPane->GetCurSelectedAliasIndex(), f.m_pPane->GetAliasTreeModel()->index(0, 0));
    const QList<int> others = {0, 3, 5, 6, 7, -1};
    for (const int other : others)
        QCOMPARE(f.m_pPane->GetCurSelectedFolder(static_cast<EKTFMPart>(other)), QString());
}

void tst_FileManagerNavigation::focusIsThatOfTreeOrList()
{
    PaneFixture f(static_cast<EKTFMMode>(4));
    QVERIFY(!f.m_pPane->IsFocus());
    QVERIFY(f.Show());
    f.Tree()->setFocus();
    QVERIFY(f.m_pPane->IsFocus());
    f.AliasTree()->setFocus();
    QVERIFY(!f.m_pPane->IsFocus());
    f.Grid()->setFocus();
    QVERIFY(f.m_pPane->IsFocus());
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(f.m_pPane->focusWidget(), f.Details());
    QVERIFY(f.m_pPane->IsFocus());
    f.AliasTree()->setFocus();
    QVERIFY(!f.m_pPane->IsFocus());
}

void tst_FileManagerNavigation::globalPositionIsInsideWithItsEdges()
{
    PaneFixture f;
    QVERIFY(f.Show());
    const QWidget* grid = f.Grid();
    const QPoint first = grid->mapToGlobal(QPoint(0, 0));
    const QPoint last = grid->mapToGlobal(QPoint(grid->width() - 1, grid->height() - 1));
    QVERIFY(f.m_pPane->IsGlobalPositionInWidget(grid, first));
    QVERIFY(f.m_pPane->IsGlobalPositionInWidget(grid, last));
    QVERIFY(!f.m_pPane->IsGlobalPositionInWidget(grid, first - QPoint(1, 0)));
    QVERIFY(!f.m_pPane->IsGlobalPositionInWidget(grid, first - QPoint(0, 1)));
    QVERIFY(!f.m_pPane->IsGlobalPositionInWidget(grid, last + QPoint(1, 0)));
    QVERIFY(!f.m_pPane->IsGlobalPositionInWidget(grid, last + QPoint(0, 1)));
}

void tst_FileManagerNavigation::selectedFilesOfTheGrid()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList());
    PaneFixture::Click(f.Grid(), f.ListIndex(QStringLiteral("c.txt")));
    QTest::mouseClick(f.Grid()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      f.Grid()->visualRect(f.ListIndex(QStringLiteral("a.txt"))).center());
    QCOMPARE(Sorted(f.m_pPane->GetCurSelectedFileList(true)),
             Sorted({f.m_folder.Path(QStringLiteral("c.txt")), f.m_folder.Path(QStringLiteral("a.txt"))}));
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true).size(), 2);
}

void tst_FileManagerNavigation::selectedRowsOfTheDetailsCountOnce()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    PaneFixture::Click(f.Details(), f.ListIndex(QStringLiteral("c.txt")));
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList(f.m_folder.Path(QStringLiteral("c.txt"))));
    QTest::keyClick(f.Details(), Qt::Key_A, Qt::ControlModifier);
    const QStringList all = f.m_pPane->GetCurSelectedFileList(true);
    QCOMPARE(all.size(), MixedFolder::Count);
    QCOMPARE(Unique(all).size(), MixedFolder::Count);
}

void tst_FileManagerNavigation::selectedPathsAreThoseOfTheModel_data()
{
    QTest::addColumn<EKTFMViewMode>("mode");
    QTest::newRow("items of the grid") << FM_VIEW_ICON;
    QTest::newRow("rows of the details") << FM_VIEW_DETAIL;
}

void tst_FileManagerNavigation::selectedPathsAreThoseOfTheModel()
{
    QFETCH(EKTFMViewMode, mode);
    MixedFolder f;
    f.m_folder.Link(f.m_folder.Path(QStringLiteral("sub")), QStringLiteral("linked folder"));
    QVERIFY(f.ShowFolder(MixedFolder::Count + 1));
    f.m_pPane->SetViewMode(mode);
    f.m_pPane->DoCommand(FM_CMD_SELECT_ALL);
    const CKTFMListModel* model = f.m_pPane->GetListModel();
    const QModelIndex folder = model->index(f.m_folder.Path());
    QStringList expected;
    for (int row = 0; row < model->rowCount(folder); ++row)
        expected.append(model->filePath(model->index(row, 0, folder)));
    QCOMPARE(Sorted(f.m_pPane->GetCurSelectedFileList(true)), Sorted(expected));
}

void tst_FileManagerNavigation::selectedFilesOfManyRows()
{
    constexpr int Files = 1000;
    PaneFixture f;
    for (int i = 0; i < Files; ++i)
        f.m_folder.File(QString::number(i));
    f.m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    QVERIFY(f.ShowFolder(Files));
    f.Grid()->selectAll();
    const QStringList fromGrid = Sorted(f.m_pPane->GetCurSelectedFileList(true));
    QCOMPARE(fromGrid.size(), Files);
    QVERIFY(fromGrid.contains(f.m_folder.Path(QStringLiteral("999"))));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true).size(), Files);
    QCOMPARE(Sorted(f.m_pPane->GetCurSelectedFileList(true)), fromGrid);
}

void tst_FileManagerNavigation::selectingAllPaintsTheFilesInSight_data()
{
    QTest::addColumn<int>("files");
    QTest::newRow("a few") << 10;
    QTest::newRow("more than are looked up") << 1100;
}

void tst_FileManagerNavigation::selectingAllPaintsTheFilesInSight()
{
    QFETCH(int, files);
    PaneFixture f;
    for (int i = 0; i < files; ++i)
        f.m_folder.File(QString::number(i));
    f.m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    QVERIFY(f.ShowFolder(files));
    const QRect first = f.Grid()->visualRect(f.Proxy()->index(0, 0, f.Grid()->rootIndex()));
    QApplication::processEvents();
    PaintedRegion painted;
    f.Grid()->viewport()->installEventFilter(&painted);
    for (int i = 0; i < 2; ++i) {
        painted.m_region = QRegion();
        if (i == 0)
            f.m_pPane->DoCommand(FM_CMD_SELECT_ALL);
        else
            f.Grid()->clearSelection();
        QTRY_VERIFY(painted.m_region.contains(first));
    }
}

void tst_FileManagerNavigation::selectingAllObeysTheSelectionMode_data()
{
    QTest::addColumn<EKTFMSelectionMode>("mode");
    QTest::newRow("none") << FM_SELECTION_NONE;
    QTest::newRow("single") << FM_SELECTION_SINGLE;
    QTest::newRow("multi") << FM_SELECTION_MULTI;
    QTest::newRow("extended") << FM_SELECTION_EXTENDED;
    QTest::newRow("contiguous") << FM_SELECTION_CONTIGUOUS;
}

void tst_FileManagerNavigation::selectingAllObeysTheSelectionMode()
{
    QFETCH(EKTFMSelectionMode, mode);
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    f.m_pPane->SetSelectionMode(mode);
    f.m_pPane->ClearCurrentSelection();
    // What the base does in the same mode, in a view of its own.
    QTreeView plain;
    plain.setModel(f.Proxy());
    plain.setRootIndex(f.Details()->rootIndex());
    plain.setSelectionMode(f.Details()->selectionMode());
    plain.setSelectionBehavior(f.Details()->selectionBehavior());
    plain.show();
    plain.selectAll();
    f.Details()->selectAll();
    QCOMPARE(f.Details()->selectionModel()->selectedRows(), plain.selectionModel()->selectedRows());
    QCOMPARE(f.Details()->selectionModel()->selectedIndexes().size(),
             plain.selectionModel()->selectedIndexes().size());
}

void tst_FileManagerNavigation::selectedRowsWithGaps()
{
    constexpr int Files = 40;
    PaneFixture f;
    for (int i = 0; i < Files; ++i)
        f.m_folder.File(QString::number(i));
    f.m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    QVERIFY(f.ShowFolder(Files));
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QStringList expected;
    for (int row = 0; row < Files; row += 2) {
        const QModelIndex item = f.Proxy()->index(row, 0, f.Details()->rootIndex());
        f.Details()->scrollTo(item);
        QTest::mouseClick(f.Details()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          f.Details()->visualRect(item).center());
        expected.append(f.m_folder.Path(item.data(QFileSystemModel::FileNameRole).toString()));
    }
    QCOMPARE(Sorted(f.m_pPane->GetCurSelectedFileList(true)), Sorted(expected));
    // A row that is selected in part is not taken beside whole ones.
    const QModelIndex odd = f.Proxy()->index(1, 2, f.Details()->rootIndex());
    f.Details()->selectionModel()->select(odd, QItemSelectionModel::Select);
    QCOMPARE(Sorted(f.m_pPane->GetCurSelectedFileList(true)), Sorted(expected));
    // It counts once its cells are selected one by one.
    for (int column = 0; column < f.Proxy()->columnCount(); ++column)
        f.Details()->selectionModel()->select(odd.siblingAtColumn(column), QItemSelectionModel::Select);
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true).size(), expected.size() + 1);
}

void tst_FileManagerNavigation::selectedCellsOfOneRowCountOnce()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    const QModelIndex item = f.ListIndex(QStringLiteral("a.txt"));
    f.Grid()->selectionModel()->select(item.sibling(item.row(), 1), QItemSelectionModel::Select);
    f.Grid()->selectionModel()->select(item.sibling(item.row(), 2), QItemSelectionModel::Select);
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList(f.m_folder.Path(QStringLiteral("a.txt"))));
}

void tst_FileManagerNavigation::selectedFoldersOfTheTree()
{
    MixedFolder f;
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    f.Tree()->selectionModel()->select(f.TreeIndex(QStringLiteral("sub")),
                                       QItemSelectionModel::ClearAndSelect);
    f.Tree()->selectionModel()->select(f.TreeIndex(QStringLiteral("other")), QItemSelectionModel::Select);
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(false),
             QStringList({f.m_folder.Path(QStringLiteral("sub")), f.m_folder.Path(QStringLiteral("other"))}));
    // A click selects every column of the row, hidden ones too, and each cell counts.
    PaneFixture::Click(f.Tree(), f.TreeIndex(QStringLiteral("sub")));
    const QStringList clicked = f.m_pPane->GetCurSelectedFileList(false);
    QCOMPARE(clicked.size(), f.Tree()->selectionModel()->selectedIndexes().size());
    QCOMPARE(Unique(clicked), Sorted({f.m_folder.Path(QStringLiteral("sub"))}));
}

void tst_FileManagerNavigation::allFilesBelowTheListedFolder()
{
    MixedFolder f;
    f.m_folder.File(QStringLiteral("sub/p.png"));
    f.m_folder.Link(f.m_folder.Path(), QStringLiteral("sub/circle.lnk"));
    QVERIFY(f.ShowFolder(MixedFolder::Count));
    QCOMPARE(Sorted(f.m_pPane->GetAllFilePathFromListView({QStringLiteral("*.png"), QStringLiteral("d*")})),
             Sorted({f.m_folder.Path(QStringLiteral("sub/p.png")),
                     f.m_folder.Path(QStringLiteral("sub/deep/d.txt"))}));
    const QStringList all = f.m_pPane->GetAllFilePathFromListView(QStringList());
    QCOMPARE(all.size(), 7);
    QVERIFY(all.contains(f.m_folder.Path(QStringLiteral("link.lnk"))));
}

void tst_FileManagerNavigation::allFilesBeforeAnyFolder()
{
    TestFolder current;
    current.File(QStringLiteral("not listed.txt"));
    PaneFixture f;
    const QString previous = QDir::currentPath();
    QVERIFY(QDir::setCurrent(current.Path()));
    const QStringList files = f.m_pPane->GetAllFilePathFromListView(QStringList());
    QVERIFY(QDir::setCurrent(previous));
    QCOMPARE(files, QStringList());
}

void tst_FileManagerNavigation::removedFolderLeavesAnEmptyList_data()
{
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("removed");
    QTest::newRow("the folder") << QStringLiteral("sub/deep") << QStringLiteral("sub/deep");
    QTest::newRow("the folder above") << QStringLiteral("sub/deep") << QStringLiteral("sub");
    QTest::newRow("an empty folder") << QStringLiteral("empty") << QStringLiteral("empty");
}

void tst_FileManagerNavigation::removedFolderLeavesAnEmptyList()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    QFETCH(QString, shown);
    QFETCH(QString, removed);
    MixedFolder f;
    f.m_folder.Folder(QStringLiteral("empty"));
    QVERIFY(f.Show());
    f.Open(f.m_folder.Path(shown));
    QTRY_COMPARE(f.Names(),
                 shown == QLatin1String("empty") ? QStringList() : QStringList(QStringLiteral("d.txt")));
    const QPersistentModelIndex root = f.Grid()->rootIndex();
    QVERIFY(root.isValid());
    QVERIFY(QDir(f.m_folder.Path(removed)).removeRecursively());
    QTRY_VERIFY(!root.isValid());
    QTRY_COMPARE(f.Names(), QStringList());
    QCOMPARE(f.DetailNames(), QStringList());
    f.m_pPane->SetViewMode(FM_VIEW_DETAIL);
    QVERIFY(!f.Details()->indexAt(QPoint(5, 5)).isValid());
    f.m_pPane->SetViewMode(FM_VIEW_ICON);
    QVERIFY(!f.Grid()->indexAt(QPoint(5, 5)).isValid());
    QVERIFY(!f.m_pPane->SetCurrentSelection(0));
    QTest::keyClick(f.Grid(), Qt::Key_Home);
    QTest::keyClick(f.Grid(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(f.m_pPane->GetCurSelectedFileList(true), QStringList());
}

void tst_FileManagerNavigation::folderAfterARemovedOneIsShown()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    MixedFolder f;
    QVERIFY(f.Show());
    f.Open(f.m_folder.Path(QStringLiteral("sub/deep")));
    QTRY_COMPARE(f.Names(), QStringList(QStringLiteral("d.txt")));
    const QPersistentModelIndex root = f.Grid()->rootIndex();
    QVERIFY(QDir(f.m_folder.Path(QStringLiteral("sub"))).removeRecursively());
    QTRY_VERIFY(!root.isValid());
    QVERIFY(f.m_pPane->SetDirectory(f.m_folder.Path()));
    QTRY_COMPARE(f.Names().size(), MixedFolder::Count - 1);
    QCOMPARE(f.DetailNames(), f.Names());
}

KTFM_TEST_MAIN(tst_FileManagerNavigation)
#include "tst_filemanager_navigation.moc"
