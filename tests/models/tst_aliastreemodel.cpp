#include "tests/models/FirstColumnTree.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QFileSystemWatcher>
#include <QIcon>
#include <QLoggingCategory>
#include <QMimeData>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QUrl>

namespace {

/** The columns of the tree. */
enum Column : int
{
    Label,
    Path,
    Watch,
    Ops,
    Section,
    Custom
};

/** A host whose answers a test sets. */
class Host : public CKTFMAliasTreeModelInterface
{
public:
    QImage HandleAliasTreeViewDecorationRole(const QModelIndex& index) override
    {
        m_asked = index;
        return m_image;
    }

    QString HandleAliasTreeViewDisplayRole(const QModelIndex& index) override
    {
        m_asked = index;
        return m_text;
    }

    QImage m_image;
    QString m_text;
    QModelIndex m_asked;
};

/** A host that leaves the labels to the model. */
class ImageHost : public CKTFMAliasTreeModelInterface
{
public:
    QImage HandleAliasTreeViewDecorationRole(const QModelIndex&) override { return QImage(); }
};

/** A model under the tester, with one category for a folder. */
class AliasTree : public CKTFMAliasTreeModel
{
public:
    AliasTree() { FirstColumnTree::Watch(this); }

    explicit AliasTree(const QString& folder) : AliasTree()
    {
        PopulateAliasTree(QStringLiteral("Category\t") + folder +
                          QStringLiteral("\ttrue\t0\tRoot/Part\tdata\n"));
    }

    QModelIndex Top(int row = 0) const { return index(row, 0); }

    QModelIndex Child(const QString& label) const
    {
        for (int row = 0; row < rowCount(Top()); ++row) {
            if (GetAliasLabel(index(row, 0, Top())) == label)
                return index(row, 0, Top());
        }
        return QModelIndex();
    }

    QStringList ChildLabels() const
    {
        QStringList labels;
        for (int row = 0; row < rowCount(Top()); ++row)
            labels.append(GetAliasLabel(index(row, 0, Top())));
        labels.sort();
        return labels;
    }

    QModelIndex AddFolder(const QString& label, const QString& path)
    {
        return AddAliasItem(Top(), label, path, QString(), true, FM_OP_RENAME, QVariant());
    }
};

/** Catches what is logged while it lives. */
class LogCatcher
{
public:
    LogCatcher()
    {
        s_messages.clear();
        m_previous = qInstallMessageHandler(&LogCatcher::Catch);
    }

    ~LogCatcher() { qInstallMessageHandler(m_previous); }

    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    static QStringList Messages() { return s_messages; }

private:
    static void Catch(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        s_messages.append(QStringLiteral("%1 %2 %3").arg(type).arg(QLatin1String(context.category), message));
    }

    static QStringList s_messages;
    QtMessageHandler m_previous;
};

QStringList LogCatcher::s_messages;

constexpr Qt::MatchFlags ExactText = Qt::MatchFlags(Qt::MatchFixedString) | Qt::MatchCaseSensitive;

QList<QModelIndex> MatchInTree(const QAbstractItemModel& model, const QString& path)
{
    return model.match(model.index(0, Path), Qt::DisplayRole, path, -1, ExactText | Qt::MatchRecursive);
}

QList<QModelIndex> MatchInChildren(const QAbstractItemModel& model, const QString& path,
                                   const QModelIndex& parent, int hits)
{
    return model.match(model.index(0, Path, parent), Qt::DisplayRole, path, hits, ExactText);
}

/** A table of random shape with few different folders, some lines too short to have one. */
QString RandomTable(QRandomGenerator& random)
{
    QString table;
    for (int line = 0; line < 60; ++line) {
        table += QString(random.bounded(5), QLatin1Char(' ')) + QStringLiteral("label");
        const int columns = random.bounded(4);
        for (int column = 0; column < columns; ++column)
            table += QStringLiteral("\t/p%1").arg(random.bounded(3));
        table += QLatin1Char('\n');
    }
    return table;
}

} // namespace

class tst_AliasTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void tableFillsTheTreeWithAReset();
    void tableOfShortAndLongLines();
    void addAliasItemStoresAllCells();
    void addAliasItemRefusesTheTopLevel();
    void accessorsAnswerForAnyColumn();
    void accessorsOfNoItemAreEmpty();
    void opIsAllowedWhenABitIsShared();

    void searchByFolderEqualsMatch();
    void searchByFolderIsCaseSensitiveAndWhole();
    void searchByFolderInAnEmptyModelFindsNothing();
    void searchInChildrenEqualsMatch();
    void veryDeepTreesAreSearchedAndUnwatched();

    void scanAddsFoldersAndShortcuts();
    void scanTakesUpperCaseShortcutsOnlyUnderTheirTargetsName();
    void scanStoresTheChildsCells();
    void scanStoresTheShortcutsCells();
    void scanSkipsFilesHiddenFoldersAndOtherLinks();
    void scanSkipsAFolderNamedLikeAShortcut();
    void scanTakesAFolderNamedLnk();
    void scanTwiceAddsNothing();
    void scanFollowsTheDisk();
    void scanKeepsChildrenKnownByFolderOrLabel();
    void scanRemovesTableChildrenWithoutAFolder();
    void scanRemovesAdjacentChildrenAtOnce();
    void scanOfNothingScannableChangesNothing_data();
    void scanOfNothingScannableChangesNothing();
    void scanBelowAShortLineKeepsAllCells();
    void scanOfAChild();
    void scanFromAnotherColumnAddsToTheItem();
    void scanSurvivesASlotThatReplacesTheTree();
    void scanIntoRootFolderPathEndingInSeparator();

    void watchNeedsWatchFlagAndFolder();
    void watchedFolderIsAddedOnce();
    void unwatchReachesTheWholeSubtree();
    void unwatchSkipsItemsThatMayNotBeWatched();
    void vanishedChildIsNoLongerWatched();
    void clearRemovesFoldersAndFiles();
    void operationsWithoutWatcherDoNothing();

    void editingNeedsRenamableModelAndPermission();
    void labelIsShownInEveryModeWithoutHost_data();
    void labelIsShownInEveryModeWithoutHost();
    void hostNamesItemsInModesOneAndTwoOnly();
    void emptyNameOfTheHostKeepsTheLabel();
    void toolTipIsTheShownNameWhenOn();
    void hostImageBecomesTheIcon();
    void nullImageOfTheHostShowsNone();
    void hugeImageOfTheHostIsBounded();
    void rolesOfNoItemAreEmptyAndAskNobody();
    void shownLabelLogsItsFolder();
    void silencedLogStaysSilent();

    void mappingFileNamesLabelsBySectionOfTheParent();
    void mappingFileWinsOverTranslation();
    void emptyMappedNameIsShownEmpty();
    void translationKeepsTheFirstText();
    void translationIsCaseSensitive();
    void mappingFileIsReadOnceForOnePath();
    void missingMappingFileStillSwitchesTheMode();
    void missingMappingFileDropsTheFormerOne();
    void mappingSectionIsNeverTaken();

    void dragsCarryFoldersAsUrls();

    void renameMovesTheFolder();
    void renameStoresTheTextAsTyped();
    void renameFromAnotherColumn();
    void renameOfADifferentLabelIsRefusedSilently();
    void renameToTheSameOrNoNameIsTrueWithoutChange();
    void renameToABadNameReportsLater_data();
    void renameToABadNameReportsLater();
    void renameOntoAnExistingNameReportsLater();
    void renameOfAVanishedFolderReportsLater();
    void renameDoesNotTestBehindTheLastDot();
    void renameOfALinkMovesTheLinkOnly();
    void renameOfNoItemIsRefused();
    void otherRolesAreNotStored();
    void otherEventsReachTheObject();
};

void tst_AliasTreeModel::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_AliasTreeModel::tableFillsTheTreeWithAReset()
{
    AliasTree model;
    QSignalSpy about(&model, &QAbstractItemModel::modelAboutToBeReset);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QVERIFY(model.PopulateAliasTree(QStringLiteral("One\t/one\ttrue\t32\tSec\tmine\n  Two\nThree")));
    QCOMPARE(about.size(), 1);
    QCOMPARE(reset.size(), 1);
    QStringList headers;
    for (int column = 0; column < model.columnCount(); ++column)
        headers.append(model.headerData(column, Qt::Horizontal).toString());
    QCOMPARE(headers.join(QLatin1Char('|')),
             QStringLiteral("Category|File Path|System Watch|Allowed Ops|INI Section|Custom Data"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.rowCount(model.Top()), 1);
    QCOMPARE(model.GetAliasLabel(model.Top()), QStringLiteral("One"));
    QCOMPARE(model.GetMappedFolderPath(model.Top()), QStringLiteral("/one"));
    QVERIFY(model.CanFileSysWatch(model.Top()));
    QVERIFY(model.IsOpAllowed(model.Top(), FM_OP_RENAME));
    QCOMPARE(model.GetINISection(model.Top()), QStringLiteral("Sec"));
    QCOMPARE(model.GetCustomData(model.Top()), QVariant(QStringLiteral("mine")));
    QVERIFY(model.PopulateAliasTree(QString()));
    QCOMPARE(model.rowCount(), 0);
}

void tst_AliasTreeModel::tableOfShortAndLongLines()
{
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("\t\t\nShort\r\nLong\t/l\tfalse\tx\ts\tc\textra\tmore\n Below"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(model.GetMappedFolderPath(model.Top(0)), QString());
    QVERIFY(!model.CanFileSysWatch(model.Top(0)));
    QVERIFY(!model.IsOpAllowed(model.Top(0), FM_OP_RENAME));
    QVERIFY(!model.GetCustomData(model.Top(0)).isValid());
    QVERIFY(!model.CanFileSysWatch(model.Top(1)));
    QVERIFY(!model.IsOpAllowed(model.Top(1), static_cast<EKTFMOpType>(-1)));
    QCOMPARE(model.index(0, 0, model.Top(1)).data().toString(), QStringLiteral("Below"));
}

void tst_AliasTreeModel::addAliasItemStoresAllCells()
{
    AliasTree model(QStringLiteral("/none"));
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex first = model.AddFolder(QStringLiteral("first"), QStringLiteral("/first"));
    const QModelIndex added =
        model.AddAliasItem(model.Top(), QStringLiteral("label"), QStringLiteral("/path"),
                           QStringLiteral("sec"), false, static_cast<EKTFMOpType>(40), 3.5);
    QCOMPARE(first.row(), 0);
    QCOMPARE(added, model.index(1, 0, model.Top()));
    QCOMPARE(inserted.size(), 2);
    QCOMPARE(changed.size(), 12);
    const QVariantList cells{
        QStringLiteral("label"), QStringLiteral("/path"), false, 40, QStringLiteral("sec"), 3.5};
    for (int column = 0; column < cells.size(); ++column)
        QCOMPARE(added.sibling(1, column).data(Qt::EditRole), cells.at(column));
}

void tst_AliasTreeModel::addAliasItemRefusesTheTopLevel()
{
    AliasTree model(QStringLiteral("/none"));
    const QStandardItemModel other(1, 1);
    const auto add = [&](const QModelIndex& parent) {
        return model.AddAliasItem(parent, QStringLiteral("l"), QString(), QString(), true, FM_OP_RENAME, 1);
    };
    QVERIFY(!add(QModelIndex()).isValid());
    QVERIFY(!add(other.index(0, 0)).isValid());
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.rowCount(model.Top()), 0);
}

void tst_AliasTreeModel::accessorsAnswerForAnyColumn()
{
    const AliasTree model(QStringLiteral("/folder"));
    for (int column = 0; column < model.columnCount(); ++column) {
        const QModelIndex index = model.index(0, column);
        QCOMPARE(model.GetAliasLabel(index), QStringLiteral("Category"));
        QCOMPARE(model.GetMappedFolderPath(index), QStringLiteral("/folder"));
        QVERIFY(model.CanFileSysWatch(index));
        QCOMPARE(model.GetINISection(index), QStringLiteral("Root/Part"));
        QCOMPARE(model.GetCustomData(index), QVariant(QStringLiteral("data")));
    }
}

void tst_AliasTreeModel::accessorsOfNoItemAreEmpty()
{
    const AliasTree model(QStringLiteral("/folder"));
    const QStandardItemModel other(1, 6);
    for (const QModelIndex& index : {QModelIndex(), other.index(0, 0)}) {
        QVERIFY(model.GetAliasLabel(index).isEmpty());
        QVERIFY(model.GetMappedFolderPath(index).isEmpty());
        QVERIFY(model.GetINISection(index).isEmpty());
        QVERIFY(!model.GetCustomData(index).isValid());
        QVERIFY(!model.CanFileSysWatch(index));
        QVERIFY(!model.IsOpAllowed(index, static_cast<EKTFMOpType>(-1)));
    }
}

void tst_AliasTreeModel::opIsAllowedWhenABitIsShared()
{
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("A\t/a\ttrue\t36"));
    QVERIFY(model.IsOpAllowed(model.Top(), FM_OP_RENAME));
    QVERIFY(model.IsOpAllowed(model.Top(), static_cast<EKTFMOpType>(4)));
    QVERIFY(model.IsOpAllowed(model.Top(), static_cast<EKTFMOpType>(6)));
    QVERIFY(!model.IsOpAllowed(model.Top(), static_cast<EKTFMOpType>(2)));
    QVERIFY(!model.IsOpAllowed(model.Top(), static_cast<EKTFMOpType>(0)));
}

void tst_AliasTreeModel::searchByFolderEqualsMatch()
{
    QRandomGenerator random(7);
    AliasTree model;
    int found = 0;
    for (int round = 0; round < 50; ++round) {
        model.PopulateAliasTree(RandomTable(random));
        for (const QString& path :
             {QStringLiteral("/p0"), QStringLiteral("/p1"), QStringLiteral("/none"), QString()}) {
            const QList<QModelIndex> hits = model.IndexWithFilePath(path);
            QCOMPARE(hits, MatchInTree(model, path));
            found += hits.size();
        }
    }
    QVERIFY(found > 0);
}

void tst_AliasTreeModel::searchByFolderIsCaseSensitiveAndWhole()
{
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("A\t/Dir\nB\t/dir\nC\t/dir/sub\nD\t/dir/"));
    QCOMPARE(model.IndexWithFilePath(QStringLiteral("/dir")), QList<QModelIndex>{model.index(1, Path)});
    QCOMPARE(model.IndexWithFilePath(QStringLiteral("/dir/")), QList<QModelIndex>{model.index(3, Path)});
}

void tst_AliasTreeModel::searchByFolderInAnEmptyModelFindsNothing()
{
    AliasTree model;
    QVERIFY(model.IndexWithFilePath(QString()).isEmpty());
    QVERIFY(model.ChildIndexWithFilePath(QString(), QModelIndex(), -1).isEmpty());
    model.PopulateAliasTree(QString());
    QVERIFY(model.IndexWithFilePath(QString()).isEmpty());
    QVERIFY(model.IndexWithFilePath(QStringLiteral("/a")).isEmpty());
}

void tst_AliasTreeModel::searchInChildrenEqualsMatch()
{
    QRandomGenerator random(8);
    AliasTree model;
    int found = 0;
    for (int round = 0; round < 30; ++round) {
        model.PopulateAliasTree(RandomTable(random));
        for (int row = -1; row < model.rowCount(); ++row) {
            const QModelIndex parent = model.index(row, round % 2);
            for (const int hits : {-2, -1, 0, 1, 2}) {
                const auto answer = model.ChildIndexWithFilePath(QStringLiteral("/p1"), parent, hits);
                QCOMPARE(answer, MatchInChildren(model, QStringLiteral("/p1"), parent, hits));
                found += answer.size();
            }
        }
    }
    QVERIFY(found > 0);
}

void tst_AliasTreeModel::veryDeepTreesAreSearchedAndUnwatched()
{
    constexpr int depth = 200000;
    const TestFolder folder;
    QFileSystemWatcher watcher;
    watcher.addPath(folder.Path());
    CKTFMAliasTreeModel model; // the tester would look at every level
    model.SetFileSystemWatcher(&watcher);
    model.PopulateAliasTree(QStringLiteral("Top\t/top\ttrue\t0\ts\tc"));
    QModelIndex index = model.index(0, 0);
    for (int i = 0; i < depth; ++i)
        index = model.AddAliasItem(index, QString(), QStringLiteral("/x"), QString(), true, FM_OP_RENAME, 0);
    model.AddAliasItem(index, QString(), folder.Path(), QString(), true, FM_OP_RENAME, 0);
    const QList<QModelIndex> found = model.IndexWithFilePath(folder.Path());
    QCOMPARE(found.size(), 1);
    QCOMPARE(found.constFirst().parent(), index);
    model.RemovePathFromFileSystemWatcher(model.index(0, 0));
    QVERIFY(watcher.directories().isEmpty());
}

void tst_AliasTreeModel::scanAddsFoldersAndShortcuts()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/Chairs"));
    folder.Link(folder.Folder(QStringLiteral("elsewhere")), QStringLiteral("top/Tables.lnk"));
    folder.Link(folder.File(QStringLiteral("file")), QStringLiteral("top/ToFile.lnk"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("top/ToNothing.lnk"));
    folder.File(QStringLiteral("top/plain.lnk"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    QStringList expected = {QStringLiteral("Chairs"), QStringLiteral("Tables"),
                            QStringLiteral("ToNothing.lnk")};
    // Where links are files that are named so, one of other content is a link to nothing.
    if (!TestPlatform::HasSymbolicLinks())
        expected.append(QStringLiteral("plain.lnk"));
    QCOMPARE(model.ChildLabels(), expected);
    const QModelIndex gone = model.Child(QStringLiteral("ToNothing.lnk"));
    QCOMPARE(model.GetMappedFolderPath(gone), folder.Path(QStringLiteral("top/ToNothing.lnk")));
    QVERIFY(!model.GetCustomData(gone).isValid());
}

void tst_AliasTreeModel::scanTakesUpperCaseShortcutsOnlyUnderTheirTargetsName()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    const TestFolder folder;
    folder.Folder(QStringLiteral("top"));
    folder.Link(folder.Folder(QStringLiteral("other")), QStringLiteral("top/Lamps.LNK"));
    folder.Link(folder.Folder(QStringLiteral("Sofas.LNK")), QStringLiteral("top/Sofas.LNK"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    // Any letter case makes a shortcut, but what names nothing in the folder, letter by letter, goes again.
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("Sofas")});
}

void tst_AliasTreeModel::scanStoresTheChildsCells()
{
    const TestFolder folder;
    const QString chairs = folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex child = model.Child(QStringLiteral("Chairs"));
    QCOMPARE(child.sibling(0, Label).data(Qt::EditRole), QVariant(QStringLiteral("Chairs")));
    QCOMPARE(child.sibling(0, Path).data(), QVariant(chairs));
    QCOMPARE(child.sibling(0, Watch).data(), QVariant(true));
    QCOMPARE(child.sibling(0, Ops).data(), QVariant(32));
    QCOMPARE(child.sibling(0, Section).data(), QVariant(QStringLiteral("Root\\Part\\Chairs")));
    QVERIFY(!child.sibling(0, Custom).data().isValid());
}

void tst_AliasTreeModel::scanStoresTheShortcutsCells()
{
    const TestFolder folder;
    const QString target = folder.Folder(QStringLiteral("target"));
    folder.Folder(QStringLiteral("top"));
    const QString shortcut = folder.Link(target, QStringLiteral("top/Tables.lnk"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex child = model.Child(QStringLiteral("Tables"));
    QVERIFY(child.isValid());
    QCOMPARE(model.GetMappedFolderPath(child), target);
    QCOMPARE(model.GetCustomData(child), QVariant(shortcut));
    QCOMPARE(model.GetINISection(child), QStringLiteral("Root\\Part\\Tables.lnk"));
    QVERIFY(model.CanFileSysWatch(child));
    QVERIFY(model.IsOpAllowed(child, FM_OP_RENAME));
}

void tst_AliasTreeModel::scanSkipsFilesHiddenFoldersAndOtherLinks()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/shown"));
    folder.Folder(QStringLiteral("top/.hidden"));
    folder.File(QStringLiteral("top/file"));
    QFile::link(folder.Folder(QStringLiteral("target")), folder.Path(QStringLiteral("top/link")));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("shown")});
}

void tst_AliasTreeModel::scanSkipsAFolderNamedLikeAShortcut()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("real.lnk"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.rowCount(model.Top()), 0);
    // Left to the cleaning up, it would stay where such names are those of links.
    QVERIFY(QDir(folder.Path()).rmdir(QStringLiteral("real.lnk")));
}

void tst_AliasTreeModel::scanTakesAFolderNamedLnk()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("lnk"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("lnk")});
}

void tst_AliasTreeModel::scanTwiceAddsNothing()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/Chairs"));
    folder.Link(folder.Folder(QStringLiteral("target")), QStringLiteral("top/Tables.lnk"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("top/Gone.lnk"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.rowCount(model.Top()), 3);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.ScanAliasTreeDirectory(model.Top());
    QVERIFY(inserted.isEmpty());
    QVERIFY(removed.isEmpty());
    QVERIFY(changed.isEmpty());
}

void tst_AliasTreeModel::scanFollowsTheDisk()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    folder.Folder(QStringLiteral("Tables"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QPersistentModelIndex tables = model.Child(QStringLiteral("Tables"));
    QDir().rmdir(folder.Path(QStringLiteral("Chairs")));
    folder.Folder(QStringLiteral("Lamps"));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.ChildLabels(), (QStringList{QStringLiteral("Lamps"), QStringLiteral("Tables")}));
    QCOMPARE(QModelIndex(tables), model.Child(QStringLiteral("Tables")));
}

void tst_AliasTreeModel::scanKeepsChildrenKnownByFolderOrLabel()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/Chairs"));
    folder.Folder(QStringLiteral("top/Lamps"));
    folder.Link(folder.Folder(QStringLiteral("target")), QStringLiteral("top/Tables.lnk"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.AddFolder(QStringLiteral("My chairs"), folder.Path(QStringLiteral("top/Chairs")));
    model.AddFolder(QStringLiteral("Lamps"), QStringLiteral("/somewhere/else"));
    model.AddFolder(QStringLiteral("Tables"), QStringLiteral("/not/the/target"));
    model.AddFolder(QStringLiteral("Any"), QStringLiteral("/x/Tables"));
    model.AddFolder(QStringLiteral("chairs"), QStringLiteral("/x/lamps"));
    model.ScanAliasTreeDirectory(model.Top());
    // "chairs" differs in case and goes; the Lamps and Tables of the disk have no item of their path and
    // come.
    QCOMPARE(model.ChildLabels(),
             (QStringList{QStringLiteral("Any"), QStringLiteral("Lamps"), QStringLiteral("Lamps"),
                          QStringLiteral("My chairs"), QStringLiteral("Tables"), QStringLiteral("Tables")}));
}

void tst_AliasTreeModel::scanRemovesTableChildrenWithoutAFolder()
{
    const TestFolder folder;
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("Top\t%1\ttrue\n  Grouping\n    Deep\t/d\n").arg(folder.Path()));
    QCOMPARE(model.rowCount(model.Top()), 1);
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.rowCount(model.Top()), 0);
}

void tst_AliasTreeModel::scanRemovesAdjacentChildrenAtOnce()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("keep"));
    AliasTree model(folder.Path());
    for (int i = 0; i < 5; ++i)
        model.AddFolder(QStringLiteral("gone %1").arg(i), QStringLiteral("/gone/%1").arg(i));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("keep")});
}

void tst_AliasTreeModel::scanOfNothingScannableChangesNothing_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("not watched") << QStringLiteral("Top\t%1\tfalse");
    QTest::newRow("watch column missing") << QStringLiteral("Top\t%1");
    QTest::newRow("no folder") << QStringLiteral("Top");
    QTest::newRow("folder gone") << QStringLiteral("Top\t%1/gone\ttrue");
    QTest::newRow("folder is a file") << QStringLiteral("Top\t%1/file\ttrue");
}

void tst_AliasTreeModel::scanOfNothingScannableChangesNothing()
{
    QFETCH(QString, line);
    const TestFolder folder;
    folder.Folder(QStringLiteral("sub"));
    folder.File(QStringLiteral("file"));
    AliasTree model;
    model.PopulateAliasTree((line.contains(QLatin1Char('%')) ? line.arg(folder.Path()) : line) +
                            QStringLiteral("\n  kept\n"));
    model.ScanAliasTreeDirectory(model.Top());
    model.ScanAliasTreeDirectory(QModelIndex());
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("kept")});
}

void tst_AliasTreeModel::scanBelowAShortLineKeepsAllCells()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("Top\t%1\ttrue").arg(folder.Path()));
    model.SetRenamable(true);
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QVERIFY(model.flags(chairs) & Qt::ItemIsEditable);
    QCOMPARE(model.GetINISection(chairs), QStringLiteral("\\Chairs"));
}

void tst_AliasTreeModel::scanOfAChild()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs/Old"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    model.ScanAliasTreeDirectory(chairs);
    const QModelIndex old = model.index(0, 0, chairs);
    QCOMPARE(model.GetMappedFolderPath(old), folder.Path(QStringLiteral("Chairs/Old")));
    QCOMPARE(model.GetINISection(old), QStringLiteral("Root\\Part\\Chairs\\Old"));
}

void tst_AliasTreeModel::scanFromAnotherColumnAddsToTheItem()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    model.ScanAliasTreeDirectory(model.index(0, Section));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(inserted.at(0).at(0).toModelIndex(), model.Top());
}

void tst_AliasTreeModel::scanSurvivesASlotThatReplacesTheTree()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("one"));
    folder.Folder(QStringLiteral("two"));
    CKTFMAliasTreeModel model; // the tester's own slots would meet the replaced tree half-way
    model.PopulateAliasTree(QStringLiteral("Top\t%1\ttrue\t0\ts\tc\n gone\n gone too").arg(folder.Path()));
    connect(&model, &QAbstractItemModel::dataChanged, &model, [&](const QModelIndex& index) {
        if (index.column() == Custom)
            model.PopulateAliasTree(QStringLiteral("New"));
    });
    model.ScanAliasTreeDirectory(model.index(0, 0));
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.GetAliasLabel(model.index(0, 0)), QStringLiteral("New"));
    QCOMPARE(model.rowCount(model.index(0, 0)), 0);
}

void tst_AliasTreeModel::scanIntoRootFolderPathEndingInSeparator()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("sub"));
    AliasTree model(folder.Path() + QLatin1Char('/'));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.GetMappedFolderPath(model.Child(QStringLiteral("sub"))),
             folder.Path() + QStringLiteral("//sub"));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.rowCount(model.Top()), 1);
}

void tst_AliasTreeModel::watchNeedsWatchFlagAndFolder()
{
    const TestFolder folder;
    const QString file = folder.File(QStringLiteral("file"));
    QFileSystemWatcher watcher;
    AliasTree model;
    model.SetFileSystemWatcher(&watcher);
    model.PopulateAliasTree(QStringLiteral("A\t%1\ttrue\nB\t%1/gone\ttrue\nC\t%1\tfalse\nD\t%2\ttrue\nE\n")
                                .arg(folder.Path(), file));
    for (int row = 1; row < model.rowCount(); ++row)
        model.AddPathToFileSystemWatcher(model.Top(row));
    model.AddPathToFileSystemWatcher(QModelIndex());
    QVERIFY(watcher.directories().isEmpty());
    QVERIFY(watcher.files().isEmpty());
    model.AddPathToFileSystemWatcher(model.Top());
    QCOMPARE(watcher.directories(), QStringList{folder.Path()});
}

void tst_AliasTreeModel::watchedFolderIsAddedOnce()
{
    const TestFolder folder;
    QFileSystemWatcher watcher;
    AliasTree model(folder.Path());
    model.SetFileSystemWatcher(&watcher);
    model.AddPathToFileSystemWatcher(model.Top());
    model.AddPathToFileSystemWatcher(model.Top());
    QCOMPARE(watcher.directories(), QStringList{folder.Path()});
}

void tst_AliasTreeModel::unwatchReachesTheWholeSubtree()
{
    const TestFolder folder;
    QFileSystemWatcher watcher;
    watcher.addPath(folder.Path());
    watcher.addPath(folder.Folder(QStringLiteral("a/b")));
    watcher.addPath(folder.Folder(QStringLiteral("other")));
    AliasTree model;
    model.SetFileSystemWatcher(&watcher);
    model.PopulateAliasTree(
        QStringLiteral("A\t%1\ttrue\n Group\n  B\t%1/a/b\ttrue\n  B2\t%1/a/b\ttrue\nO\t%1/other\ttrue")
            .arg(folder.Path()));
    model.RemovePathFromFileSystemWatcher(QModelIndex());
    QCOMPARE(watcher.directories().size(), 3);
    model.RemovePathFromFileSystemWatcher(model.Top());
    QCOMPARE(watcher.directories(), QStringList{folder.Path(QStringLiteral("other"))});
}

void tst_AliasTreeModel::unwatchSkipsItemsThatMayNotBeWatched()
{
    const TestFolder folder;
    QFileSystemWatcher watcher;
    watcher.addPath(folder.Path());
    AliasTree model;
    model.SetFileSystemWatcher(&watcher);
    model.PopulateAliasTree(QStringLiteral("A\t%1\tfalse").arg(folder.Path()));
    model.RemovePathFromFileSystemWatcher(model.Top());
    QCOMPARE(watcher.directories(), QStringList{folder.Path()});
}

void tst_AliasTreeModel::vanishedChildIsNoLongerWatched()
{
    const TestFolder folder;
    const QString elsewhere = folder.Folder(QStringLiteral("elsewhere"));
    const QString tables = folder.Folder(QStringLiteral("top/Tables"));
    folder.Link(elsewhere, QStringLiteral("top/Chairs.lnk"));
    QFileSystemWatcher watcher;
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.SetFileSystemWatcher(&watcher);
    model.ScanAliasTreeDirectory(model.Top());
    model.AddPathToFileSystemWatcher(model.Child(QStringLiteral("Chairs")));
    model.AddPathToFileSystemWatcher(model.Child(QStringLiteral("Tables")));
    QCOMPARE(watcher.directories().size(), 2);
    QFile::remove(folder.Path(QStringLiteral("top/Chairs.lnk")));
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.ChildLabels(), QStringList{QStringLiteral("Tables")});
    QCOMPARE(watcher.directories(), QStringList{tables});
}

void tst_AliasTreeModel::clearRemovesFoldersAndFiles()
{
    const TestFolder folder;
    QFileSystemWatcher watcher;
    watcher.addPath(folder.Path());
    watcher.addPath(folder.File(QStringLiteral("file")));
    AliasTree model;
    model.SetFileSystemWatcher(&watcher);
    model.ClearAllPathInFileSystemWatcher();
    QVERIFY(watcher.directories().isEmpty());
    QVERIFY(watcher.files().isEmpty());
    model.ClearAllPathInFileSystemWatcher();
}

void tst_AliasTreeModel::operationsWithoutWatcherDoNothing()
{
    const TestFolder folder;
    AliasTree model(folder.Path());
    model.AddFolder(QStringLiteral("gone"), QStringLiteral("/gone"));
    model.AddPathToFileSystemWatcher(model.Top());
    model.RemovePathFromFileSystemWatcher(model.Top());
    model.ClearAllPathInFileSystemWatcher();
    model.ScanAliasTreeDirectory(model.Top());
    QCOMPARE(model.rowCount(model.Top()), 0);
}

void tst_AliasTreeModel::editingNeedsRenamableModelAndPermission()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QCOMPARE(model.flags(chairs), plain);
    model.SetRenamable(true);
    QCOMPARE(model.flags(chairs), plain | Qt::ItemIsEditable);
    QCOMPARE(model.flags(model.Top()), plain);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
    model.SetRenamable(false);
    QCOMPARE(model.flags(chairs), plain);
}

void tst_AliasTreeModel::labelIsShownInEveryModeWithoutHost_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {-1, 0, 1, 2, 3, 4, 99})
        QTest::addRow("mode %d", mode) << mode;
}

void tst_AliasTreeModel::labelIsShownInEveryModeWithoutHost()
{
    QFETCH(int, mode);
    AliasTree model(QStringLiteral("/folder"));
    model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
    QCOMPARE(model.Top().data(Qt::EditRole).toString(), QStringLiteral("Category"));
    QCOMPARE(model.index(0, Path).data().toString(), QStringLiteral("/folder"));
    ImageHost host;
    model.SetInterface(&host);
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
}

void tst_AliasTreeModel::hostNamesItemsInModesOneAndTwoOnly()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    host.m_text = QStringLiteral("From the host");
    model.SetInterface(&host);
    QCOMPARE(model.Top().data().toString(), host.m_text); // mode 1 is the first
    QCOMPARE(host.m_asked, model.Top());
    for (const int mode : {0, 1, 2, 3, 4}) {
        model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        const bool asked = mode == 1 || mode == 2;
        QCOMPARE(model.Top().data().toString(), asked ? host.m_text : QStringLiteral("Category"));
    }
    model.SetShowStringMode(FM_SHOW_STRING_CALLBACK);
    QCOMPARE(model.index(0, Path).data().toString(), QStringLiteral("/folder"));
    QCOMPARE(model.GetAliasLabel(model.Top()), QStringLiteral("Category"));
    model.SetInterface(nullptr);
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
}

void tst_AliasTreeModel::emptyNameOfTheHostKeepsTheLabel()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    model.SetInterface(&host);
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
    host.m_text = QLatin1String("");
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
}

void tst_AliasTreeModel::toolTipIsTheShownNameWhenOn()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    host.m_text = QStringLiteral("shown");
    model.SetInterface(&host);
    QVERIFY(!model.Top().data(Qt::ToolTipRole).isValid());
    model.SetShowTips(true);
    QCOMPARE(model.Top().data(Qt::ToolTipRole), QVariant(QStringLiteral("shown")));
    QVERIFY(!model.index(0, Path).data(Qt::ToolTipRole).isValid());
    model.SetShowStringMode(FM_SHOW_STRING_FULL_NAME);
    QCOMPARE(model.Top().data(Qt::ToolTipRole), QVariant(QStringLiteral("Category")));
    model.SetShowStringMode(FM_SHOW_STRING_INI);
    model.AddTranslateMap(QStringLiteral("Category"), QStringLiteral("mapped"));
    QCOMPARE(model.Top().data(Qt::ToolTipRole), QVariant(QStringLiteral("mapped")));
    model.SetShowTips(false);
    QVERIFY(!model.Top().data(Qt::ToolTipRole).isValid());
}

void tst_AliasTreeModel::hostImageBecomesTheIcon()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    host.m_image = QImage(16, 16, QImage::Format_ARGB32);
    host.m_image.fill(Qt::green);
    model.SetInterface(&host);
    const QIcon icon = model.Top().data(Qt::DecorationRole).value<QIcon>();
    QCOMPARE(host.m_asked, model.Top());
    QCOMPARE(icon.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::green));
    QCOMPARE(model.Top().data(Qt::DecorationRole).value<QIcon>().cacheKey(), icon.cacheKey());
}

void tst_AliasTreeModel::nullImageOfTheHostShowsNone()
{
    AliasTree model(QStringLiteral("/folder"));
    QVERIFY(!model.Top().data(Qt::DecorationRole).isValid());
    Host host;
    model.SetInterface(&host);
    QVERIFY(!model.Top().data(Qt::DecorationRole).isValid());
}

void tst_AliasTreeModel::hugeImageOfTheHostIsBounded()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    host.m_image = QImage(30000, 30, QImage::Format_Mono);
    host.m_image.fill(1);
    model.SetInterface(&host);
    const QIcon icon = model.Top().data(Qt::DecorationRole).value<QIcon>();
    QVERIFY(!icon.isNull());
    QVERIFY(icon.availableSizes().constFirst().width() <= 4096);
}

void tst_AliasTreeModel::rolesOfNoItemAreEmptyAndAskNobody()
{
    AliasTree model(QStringLiteral("/folder"));
    Host host;
    host.m_text = QStringLiteral("text");
    host.m_image = QImage(4, 4, QImage::Format_RGB32);
    model.SetInterface(&host);
    model.SetShowTips(true);
    const QStandardItemModel other(1, 1);
    for (const QModelIndex& index : {QModelIndex(), other.index(0, 0)}) {
        for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::DecorationRole, Qt::ToolTipRole})
            QVERIFY(!model.data(index, role).isValid());
    }
    QVERIFY(!host.m_asked.isValid());
}

void tst_AliasTreeModel::shownLabelLogsItsFolder()
{
    QLoggingCategory::setFilterRules(QString());
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("A\t/the/folder"));
    const LogCatcher log;
    const QModelIndex index = model.index(0, 0);
    const QString logged = QStringLiteral("%1 ktfm.aliastree /the/folder").arg(QtDebugMsg);
    for (const int mode : {0, 1, 2, 3, 4}) {
        model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        QCOMPARE(index.data().toString(), QStringLiteral("A"));
        QCOMPARE(LogCatcher::Messages().size(), mode + 1);
        QCOMPARE(LogCatcher::Messages().constLast(), logged);
    }
    QVERIFY(index.sibling(0, Path).data().isValid());
    QCOMPARE(LogCatcher::Messages().size(), 5);
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_AliasTreeModel::silencedLogStaysSilent()
{
    const AliasTree model(QStringLiteral("/folder"));
    const LogCatcher log;
    QVERIFY(model.Top().data().isValid());
    QCOMPARE(LogCatcher::Messages(), QStringList());
}

void tst_AliasTreeModel::mappingFileNamesLabelsBySectionOfTheParent()
{
    const TestFolder folder;
    const QString names = folder.File(QStringLiteral("names.ini"), "Category=Top name\n"
                                                                   "[Root/Part]\nChairs=St\xc3\xbchle\n"
                                                                   "[Root\\Part\\Chairs]\nOld=Alte\n");
    folder.Folder(QStringLiteral("top/Chairs/Old"));
    folder.Folder(QStringLiteral("top/Tables"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    model.ScanAliasTreeDirectory(chairs);
    QVERIFY(model.SetFileMappingIni(names));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Top name"));
    QCOMPARE(chairs.data().toString(), QStringLiteral("Stühle"));
    QCOMPARE(model.index(0, 0, chairs).data().toString(), QStringLiteral("Alte"));
    QCOMPARE(model.Child(QStringLiteral("Tables")).data().toString(), QStringLiteral("Tables"));
    QCOMPARE(chairs.data(Qt::EditRole).toString(), QStringLiteral("Chairs"));
}

void tst_AliasTreeModel::mappingFileWinsOverTranslation()
{
    const TestFolder folder;
    const QString names = folder.File(QStringLiteral("names.ini"), "Category=from file\n");
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("Category\nOther"));
    model.AddTranslateMap(QStringLiteral("Category"), QStringLiteral("from map"));
    model.AddTranslateMap(QStringLiteral("Other"), QStringLiteral("other from map"));
    model.SetShowStringMode(FM_SHOW_STRING_INI);
    QCOMPARE(model.Top().data().toString(), QStringLiteral("from map"));
    QVERIFY(model.SetFileMappingIni(names));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("from file"));
    QCOMPARE(model.Top(1).data().toString(), QStringLiteral("other from map"));
}

void tst_AliasTreeModel::emptyMappedNameIsShownEmpty()
{
    const TestFolder folder;
    AliasTree model(QStringLiteral("/folder"));
    QVERIFY(model.SetFileMappingIni(folder.File(QStringLiteral("names.ini"), "Category=\"\"\n")));
    QCOMPARE(model.Top().data(), QVariant(QString(QLatin1String(""))));
}

void tst_AliasTreeModel::translationKeepsTheFirstText()
{
    AliasTree model(QStringLiteral("/folder"));
    model.SetShowStringMode(FM_SHOW_STRING_INI);
    model.AddTranslateMap(QStringLiteral("Category"), QStringLiteral("first"));
    model.AddTranslateMap(QStringLiteral("Category"), QStringLiteral("second"));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("first"));
}

void tst_AliasTreeModel::translationIsCaseSensitive()
{
    AliasTree model(QStringLiteral("/folder"));
    model.SetShowStringMode(FM_SHOW_STRING_INI);
    model.AddTranslateMap(QStringLiteral("category"), QStringLiteral("lower"));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
}

void tst_AliasTreeModel::mappingFileIsReadOnceForOnePath()
{
    const TestFolder folder;
    const QString names = folder.File(QStringLiteral("names.ini"), "Category=one\n");
    const QString others = folder.File(QStringLiteral("others.ini"), "Category=others\n");
    AliasTree model(QStringLiteral("/folder"));
    QVERIFY(model.SetFileMappingIni(names));
    folder.File(QStringLiteral("names.ini"), "Category=two\n");
    model.SetShowStringMode(FM_SHOW_STRING_BASE_NAME);
    QVERIFY(model.SetFileMappingIni(names));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("one"));
    QVERIFY(!model.SetFileMappingIni(QString()));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("one"));
    QVERIFY(model.SetFileMappingIni(others));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("others"));
    QVERIFY(model.SetFileMappingIni(names));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("two"));
}

void tst_AliasTreeModel::missingMappingFileStillSwitchesTheMode()
{
    const TestFolder folder;
    AliasTree model(QStringLiteral("/folder"));
    model.AddTranslateMap(QStringLiteral("Category"), QStringLiteral("translated"));
    QVERIFY(!model.SetFileMappingIni(QString()));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
    QVERIFY(model.SetFileMappingIni(folder.Path(QStringLiteral("gone.ini"))));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("translated"));
}

void tst_AliasTreeModel::missingMappingFileDropsTheFormerOne()
{
    const TestFolder folder;
    AliasTree model(QStringLiteral("/folder"));
    QVERIFY(model.SetFileMappingIni(folder.File(QStringLiteral("names.ini"), "Category=named\n")));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("named"));
    QVERIFY(model.SetFileMappingIni(folder.Path(QStringLiteral("gone.ini"))));
    QCOMPARE(model.Top().data().toString(), QStringLiteral("Category"));
}

void tst_AliasTreeModel::mappingSectionIsNeverTaken()
{
    AliasTree model;
    QVERIFY(!model.SetFileMappingSection(QStringLiteral("Section")));
    QVERIFY(!model.SetFileMappingSection(QString()));
}

void tst_AliasTreeModel::dragsCarryFoldersAsUrls()
{
    AliasTree model;
    const QString first = TestPlatform::Absolute(QStringLiteral("/a b"));
    const QString second = TestPlatform::Absolute(QStringLiteral("/c"));
    model.PopulateAliasTree(QStringLiteral("A\t%1\nGroup\nC\t%2\n").arg(first, second));
    QCOMPARE(model.mimeTypes(), QStringList{QStringLiteral("text/uri-list")});
    const QStandardItemModel other(1, 1);
    const QModelIndexList dragged{model.Top(2), model.index(0, Path), model.Top(0), model.index(2, Path),
                                  model.Top(1), other.index(0, 0),    QModelIndex()};
    const std::unique_ptr<QMimeData> mime(model.mimeData(dragged));
    QCOMPARE(mime->urls(), (QList<QUrl>{QUrl::fromLocalFile(second), QUrl::fromLocalFile(first)}));
    QCOMPARE(mime->formats(), QStringList{QStringLiteral("text/uri-list")});
    const std::unique_ptr<QMimeData> none(model.mimeData({}));
    QVERIFY(none->urls().isEmpty());
}

void tst_AliasTreeModel::renameMovesTheFolder()
{
    const TestFolder folder;
    folder.File(QStringLiteral("Chairs/inside"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QSignalSpy success(&model, &CKTFMAliasTreeModel::RenameSuccess);
    QVERIFY(model.setData(chairs, QStringLiteral("Stools")));
    const QString path = QDir::toNativeSeparators(folder.Path(QStringLiteral("Stools")));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("Stools/inside"))));
    QCOMPARE(success.size(), 1);
    QCOMPARE(success.at(0).at(0).toString(), path);
    QCOMPARE(model.GetMappedFolderPath(chairs), path);
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("Stools"));
}

void tst_AliasTreeModel::renameStoresTheTextAsTyped()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    const QModelIndex chairs =
        model.AddFolder(QStringLiteral("Chairs"), folder.Path(QStringLiteral("Chairs/")));
    QVERIFY(model.setData(chairs, QStringLiteral("  Stools\t")));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Stools"))).isDir());
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("  Stools\t"));
    // The label is not the folder's name any more, so that it cannot be renamed again.
    QVERIFY(!model.setData(chairs, QStringLiteral("Benches")));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Stools"))).isDir());
}

void tst_AliasTreeModel::renameFromAnotherColumn()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QVERIFY(model.setData(chairs.sibling(0, Custom), QStringLiteral("Stools")));
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("Stools"));
    QVERIFY(!model.GetCustomData(chairs).isValid());
}

void tst_AliasTreeModel::renameOfADifferentLabelIsRefusedSilently()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    const QModelIndex item = model.AddFolder(QStringLiteral("Seats"), folder.Path(QStringLiteral("Chairs")));
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    QVERIFY(!model.setData(item, QStringLiteral("Stools")));
    QVERIFY(!model.setData(model.Top(), QStringLiteral("Stools")));
    QCoreApplication::sendPostedEvents(&model);
    QVERIFY(failed.isEmpty());
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Chairs"))).isDir());
}

void tst_AliasTreeModel::renameToTheSameOrNoNameIsTrueWithoutChange()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QSignalSpy success(&model, &CKTFMAliasTreeModel::RenameSuccess);
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    for (const QString& name :
         {QStringLiteral(" Chairs "), QStringLiteral("Chairs"), QString(), QStringLiteral("  ")})
        QVERIFY(model.setData(chairs, name));
    QCoreApplication::sendPostedEvents(&model);
    QVERIFY(success.isEmpty());
    QVERIFY(failed.isEmpty());
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("Chairs"));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Chairs"))).isDir());
}

void tst_AliasTreeModel::renameToABadNameReportsLater_data()
{
    QTest::addColumn<QString>("name");
    const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    for (const QChar c : forbidden)
        QTest::addRow("U+%04X", c.unicode()) << QStringLiteral("a") + c + QStringLiteral("b");
    QTest::newRow("empty base name") << QStringLiteral(".hidden");
    QTest::newRow("this folder") << QStringLiteral(".");
    QTest::newRow("sideways") << QStringLiteral("../elsewhere");
    QTest::newRow("separator behind a dot") << QStringLiteral("a.b/c");
    QTest::newRow("too long") << QString(300, QLatin1Char('x'));
    QTest::newRow("null character") << QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b");
    QTest::newRow("half a surrogate pair") << QStringLiteral("a") + QChar(0xD83D);
}

void tst_AliasTreeModel::renameToABadNameReportsLater()
{
    QFETCH(QString, name);
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/Chairs"));
    AliasTree model(folder.Path(QStringLiteral("top")));
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    QVERIFY(!model.setData(chairs, name));
    QVERIFY(failed.isEmpty());
    QCoreApplication::sendPostedEvents(&model);
    QCOMPARE(failed.size(), 1);
    QCOMPARE(failed.at(0).at(0).toInt(), 1);
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("top/Chairs"))).isDir());
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("Chairs"));
}

void tst_AliasTreeModel::renameOntoAnExistingNameReportsLater()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    folder.File(QStringLiteral("file"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("dangling.lnk"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    for (const char* name : {"file", "dangling.lnk", ".."})
        QVERIFY(!model.setData(chairs, QString::fromLatin1(name)));
    QVERIFY(failed.isEmpty());
    QCoreApplication::sendPostedEvents(&model);
    QCOMPARE(failed, (QList<QVariantList>{{0}, {0}, {0}}));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Chairs"))).isDir());
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("dangling.lnk"))).isSymLink());
}

void tst_AliasTreeModel::renameOfAVanishedFolderReportsLater()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QDir().rmdir(folder.Path(QStringLiteral("Chairs")));
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    QVERIFY(!model.setData(chairs, QStringLiteral("Stools")));
    QTRY_COMPARE(failed, (QList<QVariantList>{{1}}));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("Stools"))));
}

void tst_AliasTreeModel::renameDoesNotTestBehindTheLastDot()
{
    KTFM_NEEDS_ALL_NAMES();
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    AliasTree model(folder.Path());
    model.ScanAliasTreeDirectory(model.Top());
    const QModelIndex chairs = model.Child(QStringLiteral("Chairs"));
    QVERIFY(model.setData(chairs, QStringLiteral("Stools.a?b")));
    QCOMPARE(model.GetAliasLabel(chairs), QStringLiteral("Stools.a?b"));
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("Stools.a?b"))).isDir());
}

void tst_AliasTreeModel::renameOfALinkMovesTheLinkOnly()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    const TestFolder folder;
    const QString target = folder.Folder(QStringLiteral("target"));
    QFile::link(target, folder.Path(QStringLiteral("link")));
    AliasTree model(folder.Path());
    const QModelIndex item = model.AddFolder(QStringLiteral("link"), folder.Path(QStringLiteral("link")));
    QVERIFY(model.setData(item, QStringLiteral("moved")));
    QCOMPARE(QFileInfo(folder.Path(QStringLiteral("moved"))).symLinkTarget(), target);
    QVERIFY(QFileInfo(target).isDir());
}

void tst_AliasTreeModel::renameOfNoItemIsRefused()
{
    AliasTree model;
    model.PopulateAliasTree(QStringLiteral("Group"));
    const QModelIndex item = model.AddFolder(QString(), QString());
    const QStandardItemModel other(1, 1);
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    QVERIFY(!model.setData(QModelIndex(), QString()));
    QVERIFY(!model.setData(other.index(0, 0), QString()));
    QVERIFY(!model.setData(model.Top(), QStringLiteral("name")));
    QCoreApplication::sendPostedEvents(&model);
    QVERIFY(failed.isEmpty());
    QVERIFY(!model.setData(item, QStringLiteral("name")));
    QTRY_COMPARE(failed, (QList<QVariantList>{{1}}));
}

void tst_AliasTreeModel::otherRolesAreNotStored()
{
    AliasTree model(QStringLiteral("/folder"));
    QVERIFY(!model.setData(model.Top(), QStringLiteral("x"), Qt::DisplayRole));
    QVERIFY(!model.setData(model.Top(), QStringLiteral("x"), Qt::UserRole));
    QCOMPARE(model.GetAliasLabel(model.Top()), QStringLiteral("Category"));
}

void tst_AliasTreeModel::otherEventsReachTheObject()
{
    AliasTree model;
    QSignalSpy failed(&model, &CKTFMAliasTreeModel::RenameFileError);
    bool called = false;
    QMetaObject::invokeMethod(
        &model, [&called]() { called = true; }, Qt::QueuedConnection);
    QCoreApplication::sendPostedEvents(&model);
    QVERIFY(called);
    QVERIFY(failed.isEmpty());
}

KTFM_TEST_MAIN(tst_AliasTreeModel)
#include "tst_aliastreemodel.moc"
