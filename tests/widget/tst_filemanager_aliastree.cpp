#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "tests/widget/AliasPane.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QDir>
#include <QListView>
#include <QLoggingCategory>
#include <QStandardItemModel>

namespace {

const QStringList Top{QStringLiteral("Top")};

/** More levels than a stack of the usual size has frames. */
constexpr int DeepTree = 100000;

/** As many folders as a path of 4096 characters leads through. */
constexpr int MostLevels = 2048;

QStringList TopAnd(const QString& label)
{
    return {Top.first(), label};
}

/** Puts one item below the other, each without a folder. @return the last one */
QModelIndex DeepenBy(CKTFMAliasTreeModel* model, QModelIndex item, int levels)
{
    for (int level = 0; level < levels; ++level) {
        item = model->AddAliasItem(item, QStringLiteral("level"), QString(), QString(), false, FM_OP_RENAME,
                                   QVariant());
    }
    return item;
}

} // namespace

/** The alias tree of the pane: loading a table, scanning folders, searching and clicking. */
class tst_FileManagerAliasTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void loadShowsFoldersOneLevelAhead();
    void loadReadsAFile_data();
    void loadReadsAFile();
    void loadOfAnEmptyTableEmptiesTheTree();
    void loadOfAFolderNameIsATableWithThatLabel();
    void loadShowsTheLabelsAlone();
    void loadOpensEachTopLevelItem();
    void loadWhileAnEditorIsOpenDropsTheEdit();
    void deepTreeNeitherHangsNorOverflows();
    void searchReachesAsManyLevelsAsAPathHas();

    void scanLeavesOutFilesLinksAndHiddenFolders();
    void scanKeepsTheOrderOfTheDisk();
    void scannedChildMapsToItsFolder();
    void sectionsOfScannedChildrenHaveBackslashes_data();
    void sectionsOfScannedChildrenHaveBackslashes();
    void scannedChildMayBeWatchedAndRenamedOnly();
    void scanTwiceAddsNothing();
    void scanOfAClosedItemAddsOneLevel();
    void scanOfAnOpenItemFillsTheNewItemsToo();
    void scanTakesAnyCellOfAnItem();
    void itemThatCannotBeScannedKeepsItsChildren_data();
    void itemThatCannotBeScannedKeepsItsChildren();
    void scanOfAnIndexOfNoItemDoesNothing();
    void secondOfTwoVanishedNeighboursGoesAtTheNextScan();
    void everyOtherVanishedNeighbourIsRemoved();
    void relabelledChildIsReplacedInTwoScans();
    void labelInOtherLetterCaseIsRemoved();
    void knownFolderUnderAnotherLabelIsNotAddedTwice();

    void indexIsMadeCurrent();
    void indexOfNoItemIsNotMadeCurrent();
    void searchFindsAFolderInAnyLetterCase();
    void searchOpensTheBranchesOnItsWay();
    void searchWithoutStartLooksAtTheFirstTopLevelItemOnly();
    void searchStartsAtAnItem();
    void searchDoesNotLeaveItsStart();
    void searchInAnEmptyTreeFails();
    void searchTakesAPathThatOnlyBeginsLikeTheFolder();
    void searchPassesOverAFolderThatThePathIsNotIn();
    void searchAlwaysDescendsFromUnwatchedItems();
    void searchPrefersTheFirstOfTwoItems();
    void searchPassesOverItsFlags_data();
    void searchPassesOverItsFlags();

    void firstClickShowsTheFolderInTheList();
    void clickKeepsTheFocusOnTheAliasTree();
    void clickOnAnItemWithoutFolderLeavesTheListAlone_data();
    void clickOnAnItemWithoutFolderLeavesTheListAlone();
    void returnShowsTheFolderInTheList();
    void slotsDoNothingForAnInvalidIndex();
};

void tst_FileManagerAliasTree::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_FileManagerAliasTree::loadShowsFoldersOneLevelAhead()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a/deep"));
    pane.m_folder.Folder(QStringLiteral("B/b"));
    QVERIFY(pane.LoadTop());
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("B"))), QStringList(QStringLiteral("b")));
    QCOMPARE(pane.Labels({Top.first(), QStringLiteral("A"), QStringLiteral("a")}), QStringList());
    QVERIFY(!pane.IsOpen(TopAnd(QStringLiteral("A"))));
}

void tst_FileManagerAliasTree::loadReadsAFile_data()
{
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("plain") << QByteArray() << QByteArray("\n");
    QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf") << QByteArray("\n");
    QTest::newRow("line ends of Windows") << QByteArray() << QByteArray("\r\n");
    QTest::newRow("both") << QByteArray("\xef\xbb\xbf") << QByteArray("\r\n");
}

void tst_FileManagerAliasTree::loadReadsAFile()
{
    QFETCH(QByteArray, start);
    QFETCH(QByteArray, lineEnd);
    const AliasPane pane;
    const QByteArray folder = pane.m_folder.Folder(QStringLiteral("F/sub")).toUtf8();
    const QByteArray lines =
        "\xc3\x84pfel\t" + folder + "\ttrue" + lineEnd + "Second" + lineEnd + " Below" + lineEnd;
    QVERIFY(pane.m_pPane->PopulateAliasTable(pane.m_folder.File(QStringLiteral("table"), start + lines)));
    QCOMPARE(pane.LabelsInOrder(QModelIndex()),
             QStringList({QStringLiteral("\u00c4pfel"), QStringLiteral("Second")}));
    QCOMPARE(pane.Labels({QStringLiteral("Second")}), QStringList(QStringLiteral("Below")));
    QVERIFY(pane.Model()->CanFileSysWatch(pane.Model()->index(0, 0)));
    QCOMPARE(pane.Watched(), pane.Paths({QStringLiteral("F/sub")}));
}

void tst_FileManagerAliasTree::loadOfAnEmptyTableEmptiesTheTree()
{
    const AliasPane pane;
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->PopulateAliasTable(QString()));
    QCOMPARE(pane.Model()->rowCount(), 0);
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->PopulateAliasTable(pane.m_folder.File(QStringLiteral("empty"))));
    QCOMPARE(pane.Model()->rowCount(), 0);
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasTree::loadOfAFolderNameIsATableWithThatLabel()
{
    const AliasPane pane;
    QVERIFY(pane.m_pPane->PopulateAliasTable(pane.m_folder.Path()));
    QCOMPARE(pane.LabelsInOrder(QModelIndex()), QStringList(pane.m_folder.Path()));
    QCOMPARE(pane.Watched(), QStringList());
}

void tst_FileManagerAliasTree::loadShowsTheLabelsAlone()
{
    const AliasPane pane;
    for (int load = 0; load < 2; ++load) {
        QVERIFY(pane.LoadTop());
        QVERIFY(!pane.AliasTree()->isColumnHidden(0));
        for (int column = 1; column < 6; ++column)
            QVERIFY(pane.AliasTree()->isColumnHidden(column));
    }
}

void tst_FileManagerAliasTree::loadOpensEachTopLevelItem()
{
    const AliasPane pane;
    const QString table = AliasLine(QStringLiteral("One"), pane.m_folder.Path()) +
                          QStringLiteral("Two\n Below\n  Deeper\nThree\n");
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QVERIFY(pane.IsOpen({QStringLiteral("One")}));
    QVERIFY(pane.IsOpen({QStringLiteral("Two")}));
    QVERIFY(pane.IsOpen({QStringLiteral("Three")}));
    QVERIFY(!pane.IsOpen({QStringLiteral("Two"), QStringLiteral("Below")}));
}

void tst_FileManagerAliasTree::loadWhileAnEditorIsOpenDropsTheEdit()
{
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.Model()->SetRenamable(true);
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    PaneFixture::DoubleClick(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    QVERIFY(pane.Editor());
    QTest::keyClicks(pane.Editor(), QStringLiteral("changed"));
    QVERIFY(pane.LoadTop());
    QTRY_VERIFY(!pane.Editor());
    QVERIFY(QFileInfo::exists(pane.m_folder.Path(QStringLiteral("A"))));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasTree::deepTreeNeitherHangsNorOverflows()
{
    AliasPane pane;
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    DeepenBy(pane.Model(), pane.Item(Top), DeepTree);
    const QString path = pane.m_folder.Path(QStringLiteral("missing"));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(path, QModelIndex(), false, false));
    pane.m_pPane->OnDirectoryChanged(pane.m_folder.Path());
    pane.m_pPane->OnAliasTreeDblClicked(pane.Item(Top));
    pane.AliasTree()->collapse(pane.Item(Top));
    QVERIFY(pane.m_pPane->PopulateAliasTable(QString()));
}

void tst_FileManagerAliasTree::searchReachesAsManyLevelsAsAPathHas()
{
    AliasPane pane;
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\n")));
    QVERIFY(pane.Show());
    const QModelIndex last = DeepenBy(pane.Model(), pane.Item(Top), MostLevels);
    pane.Model()->TreeModel::setData(last.sibling(0, 1), QStringLiteral("/deep"));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(QStringLiteral("/deep"), QModelIndex(), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), last);
}

void tst_FileManagerAliasTree::scanLeavesOutFilesLinksAndHiddenFolders()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Top/seen"));
    pane.m_folder.Folder(QStringLiteral("Top/.hidden"));
    pane.m_folder.File(QStringLiteral("Top/file"));
    pane.m_folder.Link(pane.m_folder.Folder(QStringLiteral("elsewhere")), QStringLiteral("Top/link.lnk"));
    pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("Top")), QStringLiteral("Top/circle.lnk"));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("seen")));
}

void tst_FileManagerAliasTree::scanKeepsTheOrderOfTheDisk()
{
    const AliasPane pane;
    for (const char* name : {"m", "b", "z", "a", "q", "c", "y"})
        pane.m_folder.Folder(QLatin1String(name));
    QVERIFY(pane.LoadTop());
    const QStringList onDisk =
        QDir(pane.m_folder.Path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::NoSort);
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), onDisk);
}

void tst_FileManagerAliasTree::scannedChildMapsToItsFolder()
{
    const AliasPane pane;
    const QString child = pane.m_folder.Folder(QStringLiteral("A/below"));
    QVERIFY(pane.LoadTop());
    QCOMPARE(pane.Model()->GetMappedFolderPath(pane.Item(TopAnd(QStringLiteral("A")))),
             pane.m_folder.Path(QStringLiteral("A")));
    QCOMPARE(pane.Model()->GetMappedFolderPath(
                 pane.Item({Top.first(), QStringLiteral("A"), QStringLiteral("below")})),
             child);
}

void tst_FileManagerAliasTree::sectionsOfScannedChildrenHaveBackslashes_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("childSection");
    QTest::newRow("plain") << QStringLiteral("s") << QStringLiteral("s\\A");
    QTest::newRow("slashes") << QStringLiteral("s/t") << QStringLiteral("s\\t\\A");
    QTest::newRow("backslashes") << QStringLiteral("s\\t") << QStringLiteral("s\\t\\A");
    QTest::newRow("none") << QString() << QStringLiteral("\\A");
}

void tst_FileManagerAliasTree::sectionsOfScannedChildrenHaveBackslashes()
{
    QFETCH(QString, section);
    QFETCH(QString, childSection);
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/below"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(
        QStringLiteral("Top\t%1\ttrue\t32\t%2").arg(pane.m_folder.Path(), section)));
    const QModelIndex child = pane.Item(TopAnd(QStringLiteral("A")));
    QCOMPARE(pane.Model()->GetINISection(child), childSection);
    QCOMPARE(pane.Model()->GetINISection(pane.Model()->index(0, 0, child)),
             childSection + QStringLiteral("\\below"));
}

void tst_FileManagerAliasTree::scannedChildMayBeWatchedAndRenamedOnly()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    const QModelIndex child = pane.Item(TopAnd(QStringLiteral("A")));
    QVERIFY(pane.Model()->CanFileSysWatch(child));
    for (int bit = 1; bit < 1 << 16; bit <<= 1)
        QCOMPARE(pane.Model()->IsOpAllowed(child, static_cast<EKTFMOpType>(bit)), bit == 32);
    QVERIFY(!pane.Model()->GetCustomData(child).isValid());
}

void tst_FileManagerAliasTree::scanTwiceAddsNothing()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    pane.m_folder.Folder(QStringLiteral("B"));
    QVERIFY(pane.LoadTop());
    const QPersistentModelIndex child = pane.Item(TopAnd(QStringLiteral("A")));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    pane.m_pPane->ScanForAliasTreeDirectories(child);
    QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    QVERIFY(child.isValid());
    QCOMPARE(pane.Model()->rowCount(child), 1);
}

void tst_FileManagerAliasTree::scanOfAClosedItemAddsOneLevel()
{
    const AliasPane pane;
    QVERIFY(pane.LoadTop());
    pane.AliasTree()->collapse(pane.Item(Top));
    pane.m_folder.Folder(QStringLiteral("A/a"));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList());
    QCOMPARE(pane.Watched(), pane.Paths({QString()}));
    pane.AliasTree()->expand(pane.Item(Top));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasTree::scanOfAnOpenItemFillsTheNewItemsToo()
{
    const AliasPane pane;
    QVERIFY(pane.LoadTop());
    pane.m_folder.Folder(QStringLiteral("A/a/deep"));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.Labels({Top.first(), QStringLiteral("A"), QStringLiteral("a")}), QStringList());
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasTree::scanTakesAnyCellOfAnItem()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("gone"));
    QVERIFY(pane.LoadTop());
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(QDir().rmdir(pane.m_folder.Path(QStringLiteral("gone"))));
    const QModelIndexList cells = pane.Model()->IndexWithFilePath(pane.m_folder.Path());
    QCOMPARE(cells.size(), 1);
    QVERIFY(cells.first().column() != 0);
    pane.m_pPane->ScanForAliasTreeDirectories(cells.first());
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasTree::itemThatCannotBeScannedKeepsItsChildren_data()
{
    QTest::addColumn<QString>("relative");
    QTest::addColumn<bool>("watch");
    QTest::newRow("may not be watched") << QStringLiteral("folder") << false;
    QTest::newRow("folder is missing") << QStringLiteral("missing") << true;
    QTest::newRow("folder is a file") << QStringLiteral("file") << true;
}

void tst_FileManagerAliasTree::itemThatCannotBeScannedKeepsItsChildren()
{
    QFETCH(QString, relative);
    QFETCH(bool, watch);
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("folder/sub"));
    pane.m_folder.File(QStringLiteral("file"));
    const QString table = AliasLine(QStringLiteral("Top"), pane.m_folder.Path(relative), watch);
    QVERIFY(pane.m_pPane->PopulateAliasTable(table + QStringLiteral(" Own\n")));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("Own")));
    QCOMPARE(pane.Watched(), QStringList());
    QCOMPARE(pane.Watcher()->files(), QStringList());
}

void tst_FileManagerAliasTree::scanOfAnIndexOfNoItemDoesNothing()
{
    const AliasPane pane;
    QStandardItemModel other(1, 1);
    pane.m_pPane->ScanForAliasTreeDirectories(QModelIndex());
    QVERIFY(pane.LoadTop());
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.m_pPane->ScanForAliasTreeDirectories(QModelIndex());
    pane.m_pPane->ScanForAliasTreeDirectories(other.index(0, 0));
    QCOMPARE(pane.Labels(Top), QStringList());
    QCOMPARE(pane.Model()->rowCount(), 1);
}

void tst_FileManagerAliasTree::secondOfTwoVanishedNeighboursGoesAtTheNextScan()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    for (const char* name : {"a", "b", "c", "d"})
        pane.m_folder.Folder(QLatin1String(name));
    QVERIFY(pane.LoadTop());
    QStringList left = pane.LabelsInOrder(pane.Item(Top));
    QVERIFY(QDir().rmdir(pane.m_folder.Path(left.at(1))));
    QVERIFY(QDir().rmdir(pane.m_folder.Path(left.at(2))));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    left.removeAt(1);
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), left);
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    left.removeAt(1);
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), left);
}

void tst_FileManagerAliasTree::everyOtherVanishedNeighbourIsRemoved()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    const AliasPane pane;
    for (const char* name : {"a", "b", "c", "d", "e"})
        pane.m_folder.Folder(QLatin1String(name));
    QVERIFY(pane.LoadTop());
    const QStringList all = pane.LabelsInOrder(pane.Item(Top));
    for (const QString& name : all)
        QVERIFY(QDir().rmdir(pane.m_folder.Path(name)));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), QStringList({all.at(1), all.at(3)}));
    QCOMPARE(pane.Watched(), pane.Sorted(pane.Paths({QString(), all.at(1), all.at(3)})));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.LabelsInOrder(pane.Item(Top)), QStringList(all.at(3)));
}

void tst_FileManagerAliasTree::relabelledChildIsReplacedInTwoScans()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A/a"));
    QVERIFY(pane.LoadTop());
    pane.Model()->TreeModel::setData(pane.Item(TopAnd(QStringLiteral("A"))), QStringLiteral("Nice"));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList());
    QCOMPARE(pane.Watched(), pane.Paths({QString()}));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Labels(TopAnd(QStringLiteral("A"))), QStringList(QStringLiteral("a")));
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

void tst_FileManagerAliasTree::labelInOtherLetterCaseIsRemoved()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Folder"));
    QVERIFY(pane.LoadTop());
    pane.Model()->TreeModel::setData(pane.Item(TopAnd(QStringLiteral("Folder"))), QStringLiteral("folder"));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList());
}

void tst_FileManagerAliasTree::knownFolderUnderAnotherLabelIsNotAddedTwice()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    const QString table = AliasLine(QStringLiteral("Top"), pane.m_folder.Path()) + QLatin1Char(' ') +
                          AliasLine(QStringLiteral("Nice"), pane.m_folder.Path(QStringLiteral("A")));
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QCOMPARE(pane.Labels(Top), QStringList());
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
}

void tst_FileManagerAliasTree::indexIsMadeCurrent()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    const QModelIndex item = pane.Item(TopAnd(QStringLiteral("A")));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(pane.Item(Top)));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(item));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), item);
    QCOMPARE(pane.AliasTree()->selectionModel()->selectedIndexes(), QModelIndexList{item});
}

void tst_FileManagerAliasTree::indexOfNoItemIsNotMadeCurrent()
{
    const AliasPane pane;
    QStandardItemModel other(1, 1);
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(QModelIndex()));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(pane.Item(Top)));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(QModelIndex()));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(other.index(0, 0)));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Item(Top));
}

void tst_FileManagerAliasTree::searchFindsAFolderInAnyLetterCase()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("Upper/Lower"));
    QVERIFY(pane.LoadTop());
    for (const QString& path : {folder, folder.toUpper(), folder.toLower()}) {
        QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(pane.Item(Top)));
        QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(path, QModelIndex(), false, false));
        QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), folder);
    }
}

void tst_FileManagerAliasTree::searchOpensTheBranchesOnItsWay()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("A/b/c/d"));
    pane.m_folder.Folder(QStringLiteral("Other/x"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, QModelIndex(), true, true));
    QStringList way = Top;
    for (const char* label : {"A", "b", "c"}) {
        way.append(QLatin1String(label));
        QVERIFY(pane.IsOpen(way));
    }
    way.append(QStringLiteral("d"));
    QVERIFY(!pane.IsOpen(way));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Item(way));
    QVERIFY(!pane.IsOpen(TopAnd(QStringLiteral("Other"))));
    QCOMPARE(pane.Watched(),
             pane.Paths({QString(), QStringLiteral("A"), QStringLiteral("A/b"), QStringLiteral("A/b/c"),
                         QStringLiteral("A/b/c/d"), QStringLiteral("Other")}));
}

void tst_FileManagerAliasTree::searchWithoutStartLooksAtTheFirstTopLevelItemOnly()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("second/sub"));
    const QString table = AliasLine(QStringLiteral("First"), pane.m_folder.Folder(QStringLiteral("first"))) +
                          AliasLine(QStringLiteral("Second"), pane.m_folder.Path(QStringLiteral("second")));
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(folder, QModelIndex(), false, false));
    QVERIFY(!pane.m_pPane->GetCurSelectedAliasIndex().isValid());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, pane.Model()->index(1, 0), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), folder);
}

void tst_FileManagerAliasTree::searchStartsAtAnItem()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("A/b"));
    QVERIFY(pane.LoadTop());
    const QModelIndex start = pane.Item(TopAnd(QStringLiteral("A")));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(pane.m_folder.Path(QStringLiteral("A")), start, false,
                                                       false));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), start);
    // A start in another cell of the item is the same start.
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, start.sibling(start.row(), 1), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(), pane.Model()->index(0, 0, start));
}

void tst_FileManagerAliasTree::searchDoesNotLeaveItsStart()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("x"));
    pane.m_folder.Folder(QStringLiteral("xy"));
    QVERIFY(pane.LoadTop());
    const QModelIndex start = pane.Item(TopAnd(QStringLiteral("x")));
    const QString sibling = pane.m_folder.Path(QStringLiteral("xy"));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(sibling, start, false, false));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(pane.m_folder.Path(), start, false, false));
    QVERIFY(!pane.m_pPane->GetCurSelectedAliasIndex().isValid());
}

void tst_FileManagerAliasTree::searchInAnEmptyTreeFails()
{
    const AliasPane pane;
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(pane.m_folder.Path(), QModelIndex(), false, false));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(QString(), QModelIndex(), false, false));
}

void tst_FileManagerAliasTree::searchTakesAPathThatOnlyBeginsLikeTheFolder()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Cat/sub"));
    QVERIFY(pane.LoadTop());
    const QString longer = pane.m_folder.Path(QStringLiteral("Category"));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(longer, QModelIndex(), false, false));
    QVERIFY(pane.IsOpen(TopAnd(QStringLiteral("Cat"))));
}

void tst_FileManagerAliasTree::searchPassesOverAFolderThatThePathIsNotIn()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Cat/sub"));
    QVERIFY(pane.LoadTop());
    const QString other = pane.m_folder.Path(QStringLiteral("Dog"));
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(other, QModelIndex(), false, false));
    QVERIFY(!pane.IsOpen(TopAnd(QStringLiteral("Cat"))));
    pane.AliasTree()->collapse(pane.Item(Top));
    const QString outside = QStringLiteral("/outside");
    QVERIFY(!pane.m_pPane->SetCurrentAliasTreeSelection(outside, QModelIndex(), false, false));
    QVERIFY(!pane.IsOpen(Top));
}

void tst_FileManagerAliasTree::searchAlwaysDescendsFromUnwatchedItems()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("target/sub"));
    const QString table = AliasLine(QStringLiteral("Top"), QStringLiteral("/quite/elsewhere"), false) +
                          QStringLiteral(" Heading\n  ") +
                          AliasLine(QStringLiteral("Target"), pane.m_folder.Path(QStringLiteral("target")));
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    pane.AliasTree()->collapseAll();
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, QModelIndex(), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), folder);
    QVERIFY(pane.IsOpen(TopAnd(QStringLiteral("Heading"))));
}

void tst_FileManagerAliasTree::searchPrefersTheFirstOfTwoItems()
{
    const AliasPane pane;
    const QString folder = pane.m_folder.Path();
    const QString table = QStringLiteral("Top\n One\n  ") + AliasLine(QStringLiteral("first"), folder) +
                          QLatin1Char(' ') + AliasLine(QStringLiteral("second"), folder);
    QVERIFY(pane.m_pPane->PopulateAliasTable(table));
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, QModelIndex(), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedAliasIndex(),
             pane.Item({Top.first(), QStringLiteral("One"), QStringLiteral("first")}));
}

void tst_FileManagerAliasTree::searchPassesOverItsFlags_data()
{
    QTest::addColumn<bool>("one");
    QTest::addColumn<bool>("two");
    QTest::newRow("off, off") << false << false;
    QTest::newRow("off, on") << false << true;
    QTest::newRow("on, off") << true << false;
    QTest::newRow("on, on") << true << true;
}

void tst_FileManagerAliasTree::searchPassesOverItsFlags()
{
    QFETCH(bool, one);
    QFETCH(bool, two);
    const AliasPane pane;
    const QString folder = pane.m_folder.Folder(QStringLiteral("A/b"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(folder, QModelIndex(), one, two));
    QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), folder);
}

void tst_FileManagerAliasTree::firstClickShowsTheFolderInTheList()
{
    AliasPane pane;
    pane.m_folder.File(QStringLiteral("A/one"));
    pane.m_folder.File(QStringLiteral("B/two"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    PaneFixture::Click(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("A"))));
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("one")));
    PaneFixture::Click(pane.AliasTree(), pane.Item(TopAnd(QStringLiteral("B"))));
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("two")));
    QCOMPARE(pane.m_pPane->GetCurSelectedFolder(FM_PART_ALIAS_TREE), pane.m_folder.Path(QStringLiteral("B")));
}

void tst_FileManagerAliasTree::clickKeepsTheFocusOnTheAliasTree()
{
    AliasPane pane;
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    pane.Grid()->setFocus();
    PaneFixture::Click(pane.AliasTree(), pane.Item(Top));
    QCOMPARE(pane.m_window.focusWidget(), pane.AliasTree());
    // Not only what the mouse press did: the list is focused when it shows a folder.
    pane.Grid()->setFocus();
    pane.m_pPane->OnAliasTreeClicked(pane.Item(Top));
    QCOMPARE(pane.m_window.focusWidget(), pane.AliasTree());
}

void tst_FileManagerAliasTree::clickOnAnItemWithoutFolderLeavesTheListAlone_data()
{
    QTest::addColumn<QString>("relative");
    QTest::newRow("no folder") << QString();
    QTest::newRow("missing folder") << QStringLiteral("missing");
    QTest::newRow("a file") << QStringLiteral("shown/file");
}

void tst_FileManagerAliasTree::clickOnAnItemWithoutFolderLeavesTheListAlone()
{
    QFETCH(QString, relative);
    AliasPane pane;
    pane.m_folder.File(QStringLiteral("shown/file"));
    const QString folder = relative.isEmpty() ? QString() : pane.m_folder.Path(relative);
    QVERIFY(pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\t%1\n").arg(folder)));
    pane.Open(pane.m_folder.Path(QStringLiteral("shown")));
    QVERIFY(pane.Show());
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("file")));
    pane.Grid()->setFocus();
    PaneFixture::Click(pane.AliasTree(), pane.Item(Top));
    QCOMPARE(pane.m_pPane->GetListModel()->rootPath(), pane.m_folder.Path(QStringLiteral("shown")));
    QCOMPARE(pane.m_window.focusWidget(), pane.AliasTree());
}

void tst_FileManagerAliasTree::returnShowsTheFolderInTheList()
{
    AliasPane pane;
    pane.m_folder.File(QStringLiteral("A/one"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Show());
    QVERIFY(pane.m_pPane->SetCurrentAliasTreeSelection(pane.Item(TopAnd(QStringLiteral("A")))));
    pane.AliasTree()->setFocus();
    QTest::keyClick(pane.AliasTree(), Qt::Key_Return);
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("one")));
    QCOMPARE(pane.m_window.focusWidget(), pane.AliasTree());
}

void tst_FileManagerAliasTree::slotsDoNothingForAnInvalidIndex()
{
    AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    pane.Open(pane.m_folder.Path());
    const QStringList watched = pane.Watched();
    pane.m_pPane->OnAliasTreeClicked(QModelIndex());
    pane.m_pPane->OnAliasTreeDblClicked(QModelIndex());
    pane.m_pPane->OnAliasTreeExpand(QModelIndex());
    pane.m_pPane->OnAliasTreeCollapsed(QModelIndex());
    pane.m_pPane->OnAliasTreeCloseEditor(); // nothing is current
    QCOMPARE(pane.Watched(), watched);
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.m_pPane->GetListModel()->rootPath(), pane.m_folder.Path());
}

KTFM_TEST_MAIN(tst_FileManagerAliasTree)
#include "tst_filemanager_aliastree.moc"
