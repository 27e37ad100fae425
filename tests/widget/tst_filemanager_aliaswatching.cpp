#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "tests/widget/AliasPane.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

namespace {

const QStringList Top{QStringLiteral("Top")};

QStringList TopAnd(const QString& label)
{
    return {Top.first(), label};
}

bool Rename(const AliasPane& pane, const QString& from, const QString& to)
{
    return QDir().rename(pane.m_folder.Path(from), pane.m_folder.Path(to));
}

bool RemoveAll(const AliasPane& pane, const QString& relative)
{
    return QDir(pane.m_folder.Path(relative)).removeRecursively();
}

} // namespace

/** Which folders the alias tree watches, and how it follows what others do to them. */
class tst_FileManagerAliasWatching : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadWatchesWhatIsSeen();
    void loadReplacesTheWatches();
    void loadEndsEveryWatch();
    void missingFoldersAreNotWatched();
    void onlyFoldersThatMayBeWatchedAre();
    void expandWatchesTheChildren();
    void expandFillsTheChildrenOneLevelAhead();
    void clickOnTheBranchMarkOpensAndClosesTheWatches();
    void collapseEndsTheWatchesOfTheWholeBranch();
    void collapsedItemIsStillWatched();
    void reopenedBranchIsWatchedToItsOpenDepth();
    void folderSeenInAnotherBranchStaysWatched();
    void folderSeenAtTheTopLevelStaysWatched();
    void folderOfTwoItemsThatCloseTogetherIsUnwatched();

    void newFolderAppearsWithItsContents();
    void newFolderInAClosedItemShowsThatItCanBeOpened();
    void removedFolderDisappears();
    void removedBranchIsUnwatched();
    void secondOfTwoRemovedNeighboursGoesAtTheNextChange();
    void renamedFolderAppearsUnderItsNewName();
    void everyItemOfAChangedFolderIsScanned();
    void itemsBelowAHeadingFollowTheirFolder();
    void changesBelowAClosedBranchAreSeenWhenItOpens();
    void changeOfAnotherFolderScansNothing();
    void vanishedTopFolderKeepsItsItems();
    void folderThatComesBackIsFollowedAgain();
    void manyRemovedFoldersEndTheirWatches();
    void changesDuringAnEditAreFollowed();

    void deletedFolderIsUnwatchedAndDisappears();

    void paneDiesWithItsWatches();
    void modelMayBeUsedAfterThePane();
};

void tst_FileManagerAliasWatching::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_FileManagerAliasWatching::loadWatchesWhatIsSeen()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a/deep"));
    pane.m_folder.Folder(QStringLiteral("B"));
    QVERIFY(pane.LoadTop());
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(pane.Watcher()->files(), QStringList());
}

void tst_FileManagerAliasWatching::loadReplacesTheWatches()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("one/sub"));
    pane.m_folder.Folder(QStringLiteral("two/sub"));
    QVERIFY(pane.LoadTop(QStringLiteral("one")));
    QVERIFY(pane.LoadTop(QStringLiteral("two")));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("two"), QStringLiteral("two/sub")}));
}

void tst_FileManagerAliasWatching::loadEndsEveryWatch()
{
    const AliasPane pane;
    QVERIFY(pane.Watcher()->addPath(pane.m_folder.File(QStringLiteral("file"))));
    QVERIFY(pane.Watcher()->addPath(pane.m_folder.Folder(QStringLiteral("folder"))));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Heading\n")));
    QCOMPARE(pane.Watched(), QStringList());
    QCOMPARE(pane.Watcher()->files(), QStringList());
}

void tst_FileManagerAliasWatching::missingFoldersAreNotWatched()
{
    const AliasPane pane;
    const QString missing = pane.m_folder.Path(QStringLiteral("missing"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(AliasLine(QStringLiteral("Top"), missing) + QLatin1Char(' ') +
                                             AliasLine(QStringLiteral("Below"), missing)));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasWatching::onlyFoldersThatMayBeWatchedAre()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("folder"));
    const QString file = pane.m_folder.File(QStringLiteral("file"));
    const QString other = pane.m_folder.Folder(QStringLiteral("other"));
    const QString table = QStringLiteral("Heading\n ") + AliasLine(QStringLiteral("No"), folder, false) +
                          QLatin1Char(' ') + AliasLine(QStringLiteral("File"), file) + QLatin1Char(' ') +
                          AliasLine(QStringLiteral("Yes"), other);
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("other")}));
    QCOMPARE(pane.Watcher()->files(), QStringList());
    // The end of a watch keeps to the same rule.
    QVERIFY(pane.Watcher()->addPath(folder));
    pane.AliasTree()->collapse(pane.Model()->index(0, 0));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("folder")}));
}

void tst_FileManagerAliasWatching::expandWatchesTheChildren()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a/deep"));
    pane.m_folder.Folder(QStringLiteral("A/b"));
    QVERIFY(pane.LoadTop());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(),
             pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("A/a"), QStringLiteral("A/b")}));
}

void tst_FileManagerAliasWatching::expandFillsTheChildrenOneLevelAhead()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a/deep/deeper"));
    QVERIFY(pane.LoadTop());
    QStringList way = TopAnd(QStringLiteral("A"));
    way.append(QStringLiteral("a"));
    QCOMPARE(pane.Labels(way), QStringList());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Labels(way), QStringList(QStringLiteral("deep")));
    way.append(QStringLiteral("deep"));
    QCOMPARE(pane.Labels(way), QStringList());
}

void tst_FileManagerAliasWatching::clickOnTheBranchMarkOpensAndClosesTheWatches()
{
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    const QModelIndex item = pane.Item(TopAnd(QStringLiteral("A")));
    const QRect row = pane.AliasTree()->visualRect(item);
    const QPoint mark(row.left() - pane.AliasTree()->indentation() / 2, row.center().y());
    QTest::mouseClick(pane.AliasTree()->viewport(), Qt::LeftButton, Qt::NoModifier, mark);
    QVERIFY(pane.AliasTree()->isExpanded(item));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("A/a")}));
    QTest::mouseClick(pane.AliasTree()->viewport(), Qt::LeftButton, Qt::NoModifier, mark);
    QVERIFY(!pane.AliasTree()->isExpanded(item));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasWatching::collapseEndsTheWatchesOfTheWholeBranch()
{
    const AliasPane pane;
    const QString deep = pane.m_folder.Folder(QStringLiteral("A/b/c/d"));
    pane.m_folder.Folder(QStringLiteral("B"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(deep, QModelIndex(), false, false));
    QCOMPARE(pane.Watched().size(), 6);
    pane.AliasTree()->collapse(pane.Item(TopAnd(QStringLiteral("A"))));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("B")}));
}

void tst_FileManagerAliasWatching::collapsedItemIsStillWatched()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    pane.AliasTree()->collapse(pane.Item(Top));
    QCOMPARE(pane.Watched(), pane.Paths({QString()}));
}

void tst_FileManagerAliasWatching::reopenedBranchIsWatchedToItsOpenDepth()
{
    const AliasPane pane;
    const QString deep = pane.m_folder.Folder(QStringLiteral("A/b/c"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(deep, QModelIndex(), false, false));
    const QStringList watched = pane.Watched();
    QCOMPARE(watched,
             pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("A/b"), QStringLiteral("A/b/c")}));
    pane.AliasTree()->collapse(pane.Item(Top));
    QCOMPARE(pane.Watched(), pane.Paths({QString()}));
    pane.AliasTree()->expand(pane.Item(Top));
    QCOMPARE(pane.Watched(), watched);
}

void tst_FileManagerAliasWatching::folderSeenInAnotherBranchStaysWatched()
{
    const AliasPane pane;
    const QString shared = pane.m_folder.Folder(QStringLiteral("shared"));
    const QString line = QLatin1Char(' ') + AliasLine(QStringLiteral("Shared"), shared);
    QVERIFY(
        pane.m_pPane->PopulateAliasTable(QStringLiteral("One\n") + line + QStringLiteral("Two\n") + line));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("shared")}));
    pane.AliasTree()->collapse(pane.Model()->index(0, 0));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("shared")}));
    pane.AliasTree()->collapse(pane.Model()->index(1, 0));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasWatching::folderSeenAtTheTopLevelStaysWatched()
{
    const AliasPane pane;
    const QString shared = pane.m_folder.Folder(QStringLiteral("shared"));
    const QString line = AliasLine(QStringLiteral("Shared"), shared);
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("One\n ") + line + line));
    pane.AliasTree()->collapseAll();
    pane.m_pPane->OnAliasTreeCollapsed(pane.Model()->index(0, 0));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("shared")}));
}

void tst_FileManagerAliasWatching::folderOfTwoItemsThatCloseTogetherIsUnwatched()
{
    const AliasPane pane;
    const QString shared = pane.m_folder.Folder(QStringLiteral("shared"));
    const QString line = QLatin1Char(' ') + AliasLine(QStringLiteral("Shared"), shared);
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("One\n") + line + line));
    pane.AliasTree()->collapse(pane.Model()->index(0, 0));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasWatching::newFolderAppearsWithItsContents()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.m_folder.Folder(QStringLiteral("elsewhere/new/sub"));
    QVERIFY(pane.LoadTop(QStringLiteral("A")));
    QVERIFY(Rename(pane, QStringLiteral("elsewhere/new"), QStringLiteral("A/new")));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("new")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("new"))), QStringList(QStringLiteral("sub")));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("A"), QStringLiteral("A/new")}));
    pane.m_folder.Folder(QStringLiteral("A/new/other"));
    QTRY_COMPARE(pane.Labels(TopAnd(QStringLiteral("new"))),
                 QStringList({QStringLiteral("other"), QStringLiteral("sub")}));
}

void tst_FileManagerAliasWatching::newFolderInAClosedItemShowsThatItCanBeOpened()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    QVERIFY(!pane.Model()->hasChildren(pane.Item(TopAnd(QStringLiteral("A")))));
    pane.m_folder.Folder(QStringLiteral("A/new"));
    QTRY_VERIFY(pane.Model()->hasChildren(pane.Item(TopAnd(QStringLiteral("A")))));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasWatching::removedFolderDisappears()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.m_folder.Folder(QStringLiteral("B"));
    QVERIFY(pane.LoadTop());
    QVERIFY(RemoveAll(pane, QStringLiteral("A")));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("B")));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("B")}));
}

void tst_FileManagerAliasWatching::removedBranchIsUnwatched()
{
    const AliasPane pane;
    const QString deep = pane.m_folder.Folder(QStringLiteral("A/b/c"));
    pane.m_folder.Folder(QStringLiteral("elsewhere"));
    QVERIFY(
        pane.m_pPane->PopulateAliasTable(AliasLine(Top.first(), pane.m_folder.Path(QStringLiteral("A")))));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(deep, QModelIndex(), false, false));
    QCOMPARE(pane.Watched().size(), 3);
    // A folder that is moved away lives on, and the folders below it are not told.
    QVERIFY(Rename(pane, QStringLiteral("A/b"), QStringLiteral("elsewhere/b")));
    QTRY_COMPARE(pane.Labels(Top), QStringList());
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("A")}));
}

void tst_FileManagerAliasWatching::secondOfTwoRemovedNeighboursGoesAtTheNextChange()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("bin"));
    for (const char* name : {"Top/a", "Top/b", "Top/c"})
        pane.m_folder.Folder(QLatin1String(name));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    const QStringList all = pane.LabelsInOrder(pane.Item(Top));
    for (const QString& name : {all.at(0), all.at(1)})
        QVERIFY(RemoveAll(pane, QStringLiteral("Top/") + name));
    QTRY_COMPARE(pane.LabelsInOrder(pane.Item(Top)).size(), 2);
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), QStringList({all.at(1), all.at(2)}));
    pane.m_folder.File(QStringLiteral("Top/file"));
    QTRY_COMPARE(pane.LabelsInOrder(pane.Item(Top)), QStringList(all.at(2)));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/") + all.at(2)}));
}

void tst_FileManagerAliasWatching::renamedFolderAppearsUnderItsNewName()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(pane.LoadTop());
    QVERIFY(Rename(pane, QStringLiteral("A"), QStringLiteral("Z")));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("Z")));
    const QModelIndex item = pane.Item(TopAnd(QStringLiteral("Z")));
    QCOMPARE(pane.Model()->GetMappedFolderPath(item), pane.m_folder.Path(QStringLiteral("Z")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("Z"))), QStringList(QStringLiteral("a")));
}

void tst_FileManagerAliasWatching::everyItemOfAChangedFolderIsScanned()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("shared"));
    const QString line = AliasLine(QStringLiteral("Shared"), folder);
    QVERIFY(pane.m_pPane->PopulateAliasTable(line + line + QStringLiteral("Group\tnone\n ") + line));
    pane.m_folder.Folder(QStringLiteral("shared/new"));
    const QStringList found(QStringLiteral("new"));
    QTRY_COMPARE(pane.LabelsInOrder(pane.Model()->index(0, 0)), found);
    QCOMPARE(pane.LabelsInOrder(pane.Model()->index(1, 0)), found);
    QCOMPARE(pane.LabelsInOrder(pane.Model()->index(0, 0, pane.Model()->index(2, 0))), found);
}

void tst_FileManagerAliasWatching::itemsBelowAHeadingFollowTheirFolder()
{
    const AliasPane pane;
    const QString table = QStringLiteral("Heading\n ") + AliasLine(Top.first(), pane.m_folder.Path());
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QCOMPARE(pane.Watched(), pane.Paths({QString()}));
    pane.m_folder.Folder(QStringLiteral("new"));
    QTRY_COMPARE(pane.Labels({QStringLiteral("Heading"), Top.first()}), QStringList(QStringLiteral("new")));
}

void tst_FileManagerAliasWatching::changesBelowAClosedBranchAreSeenWhenItOpens()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/old"));
    QVERIFY(pane.LoadTop());
    pane.AliasTree()->collapse(pane.Item(Top));
    QVERIFY(Rename(pane, QStringLiteral("A/old"), QStringLiteral("A/new")));
    pane.AliasTree()->expand(pane.Item(Top));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("new")));
}

void tst_FileManagerAliasWatching::changeOfAnotherFolderScansNothing()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(pane.LoadTop());
    pane.m_folder.Folder(QStringLiteral("B"));
    for (const QString& path : {pane.m_folder.Path(QStringLiteral("A/a")), QStringLiteral("/no/such/folder"),
                                QString(), pane.m_folder.Path() + QLatin1Char('/')})
        pane.m_pPane->OnDirectoryChanged(path);
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    pane.m_pPane->OnDirectoryChanged(pane.m_folder.Path());
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
}

void tst_FileManagerAliasWatching::vanishedTopFolderKeepsItsItems()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Top/A"));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top"), QStringLiteral("Top/A")}));
    const QString top = pane.m_folder.Path(QStringLiteral("Top"));
    QVERIFY(Rename(pane, QStringLiteral("Top"), QStringLiteral("away")));
    pane.m_pPane->OnDirectoryChanged(top);
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QVERIFY(RemoveAll(pane, QStringLiteral("away")));
    QTRY_COMPARE(pane.Watched(), QStringList());
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
}

void tst_FileManagerAliasWatching::folderThatComesBackIsFollowedAgain()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    for (int time = 0; time < 3; ++time) {
        QVERIFY(RemoveAll(pane, QStringLiteral("A")));
        QTRY_COMPARE(pane.Labels(Top), QStringList());
        pane.m_folder.Folder(QStringLiteral("A"));
        QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
        QTRY_COMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
    }
    pane.m_folder.Folder(QStringLiteral("A/new"));
    QTRY_COMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("new")));
}

void tst_FileManagerAliasWatching::manyRemovedFoldersEndTheirWatches()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    for (int i = 0; i < 200; ++i)
        pane.m_folder.Folder(QStringLiteral("Top/%1/sub").arg(i));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    QCOMPARE(pane.Watched().size(), 201);
    for (int i = 0; i < 200; ++i)
        QVERIFY(RemoveAll(pane, QStringLiteral("Top/%1").arg(i)));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QStringLiteral("Top")}));
    // Each change leaves every other one of the rows that are left.
    for (int change = 0; change < 9; ++change)
        pane.m_pPane->OnDirectoryChanged(pane.m_folder.Path(QStringLiteral("Top")));
    QCOMPARE(pane.Labels(Top), QStringList());
}

void tst_FileManagerAliasWatching::changesDuringAnEditAreFollowed()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.Model()->SetRenamable(true);
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    PaneFixture::DoubleClick(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Editor());
    pane.m_folder.Folder(QStringLiteral("B"));
    QTRY_COMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QVERIFY(pane.Editor());
    QVERIFY(RemoveAll(pane, QStringLiteral("A")));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("B")));
    QTRY_VERIFY(!pane.Editor());
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("B")}));
}

void tst_FileManagerAliasWatching::deletedFolderIsUnwatchedAndDisappears()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    pane.m_folder.Folder(QStringLiteral("B"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    pane.AliasTree()->expand(pane.Item(TopAnd(QStringLiteral("A"))));
    PaneFixture::Click(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.m_pPane->DoCommand(FM_CMD_DELETE));
    QVERIFY(!QFileInfo::exists(pane.m_folder.Path(QStringLiteral("A"))));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("B")));
    QTRY_COMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("B")}));
    QVERIFY(pane.IsOpen(Top));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Item(Top));
}

void tst_FileManagerAliasWatching::paneDiesWithItsWatches()
{
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(pane.LoadTop());
    CKTFMAliasTreeModel* model = pane.Model();
    pane.m_folder.Folder(QStringLiteral("B")); // a change that is not delivered any more
    pane.DeletePane();
    QCoreApplication::processEvents();
    QCOMPARE(model->rowCount(model->index(0, 0)), 1);
}

void tst_FileManagerAliasWatching::modelMayBeUsedAfterThePane()
{
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    CKTFMAliasTreeModel* model = pane.Model();
    pane.DeletePane();
    QVERIFY(RemoveAll(pane, QStringLiteral("A")));
    pane.m_folder.Folder(QStringLiteral("B"));
    model->ScanAliasTreeDirectory(model->index(0, 0));
    model->AddPathToFileSystemWatcher(model->index(0, 0));
    model->RemovePathFromFileSystemWatcher(model->index(0, 0));
    model->ClearAllPathInFileSystemWatcher();
    QCOMPARE(model->GetAliasLabel(model->index(0, 0, model->index(0, 0))), QStringLiteral("B"));
}

KTFM_TEST_MAIN(tst_FileManagerAliasWatching)
#include "tst_filemanager_aliaswatching.moc"
