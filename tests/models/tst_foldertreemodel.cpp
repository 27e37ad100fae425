#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/ConfinedModel.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFileIconProvider>
#include <QSignalSpy>
#include <QStandardItemModel>

namespace {

class Host : public CKTFMTreeModelInterface
{
public:
    QImage HandleTreeviewDecorationRole(const QModelIndex& index) override
    {
        m_asked.append(index.data(QFileSystemModel::FileNameRole).toString());
        return m_image;
    }

    QImage m_image;
    QStringList m_asked;
};

/** A folder tree on a folder, loaded. */
class Fixture
{
public:
    explicit Fixture(const TestFolder& folder)
        : m_model(folder.Path()),
          m_tester(&m_model),
          m_root(m_model.Load(folder.Path())),
          m_folder(folder)
    {
    }

    QModelIndex Index(const QString& name, int column = 0) const
    {
        return m_model.index(m_folder.Path(name), column);
    }

    QString Shown(const QString& name) const { return m_model.data(Index(name)).toString(); }
    QString Tip(const QString& name) const { return m_model.data(Index(name), Qt::ToolTipRole).toString(); }

    QStringList Names() const
    {
        QStringList names;
        for (int row = 0; row < m_model.rowCount(m_root); ++row)
            names.append(m_model.index(row, 0, m_root).data(QFileSystemModel::FileNameRole).toString());
        names.sort();
        return names;
    }

    ConfinedModel<CKTFMTreeModel> m_model;

private:
    QAbstractItemModelTester m_tester;
    QPersistentModelIndex m_root;
    const TestFolder& m_folder;
};

struct RenameResult
{
    bool result;
    int successes;
    QList<int> errorsAtOnce;
    QList<int> errors;
};

QList<int> Codes(const QSignalSpy& errors)
{
    QList<int> codes;
    for (const auto& arguments : errors)
        codes.append(arguments.at(0).toInt());
    return codes;
}

RenameResult Rename(CKTFMTreeModel& model, const QModelIndex& index, const QString& name)
{
    QSignalSpy errors(&model, &CKTFMTreeModel::RenameFileError);
    QSignalSpy successes(&model, &CKTFMTreeModel::RenameSuccess);
    RenameResult outcome;
    outcome.result = model.setData(index, name);
    outcome.errorsAtOnce = Codes(errors);
    QCoreApplication::sendPostedEvents(&model);
    outcome.errors = Codes(errors);
    outcome.successes = successes.count();
    return outcome;
}

} // namespace

class tst_FolderTreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsOwnFilterAndTheBasesReadOnly();
    void listsFoldersWithoutLinks();
    void columnsAndHeadersAreTheBases();
    void flagsAreTheBasesAndEditableWhileRenamable();
    void otherRolesAreTheBases();
    void showsNamesByMode_data();
    void showsNamesByMode();
    void entryThatIsNoFolderShowsWhatIsBeforeItsFirstDot();
    void otherColumnsShowTheBasesText();
    void rootShowsTheNameOfItsPath();
    void editTextIsTheFoldersName();
    void tipsOnlyWhenSwitchedOn();
    void tipsByMode();
    void hostIsAskedForImagesOnly();
    void nullHostImageLeavesThePlatformIcon();
    void mappedNameIsShownAndUnfoundNameWhole();
    void settersRefuseNullTexts();
    void samePathSwitchesModeWithoutReadingAgain();
    void missingMappingFileShowsPlainNames();
    void renamingEndsTheMapping();
    void renamingLeavesOtherModesAlone();
    void tipsFileSwitchesRenamingOffInTheFlagsAlone();
    void renamesAreDone_data();
    void renamesAreDone();
    void renamesAreRefused_data();
    void renamesAreRefused();
    void renameToThePresentNameDoesNothing();
    void renameOfAVanishedFolderIsRefused();
    void renameErrorsOfOtherModelsAreNotItsOwn();
    void errorsArriveFromTheEventLoop();
    void modelMayDieBeforeItsError();
    void indexesOfOtherModelsAreRefused();
    void removedFolderLeavesTheTree();
};

void tst_FolderTreeModel::startsWithItsOwnFilterAndTheBasesReadOnly()
{
    const CKTFMTreeModel model;
    QCOMPARE(model.filter(), QDir::AllDirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    QVERIFY(!model.nameFilterDisables());
    QCOMPARE(model.isReadOnly(), QFileSystemModel().isReadOnly());
    QCOMPARE(model.parent(), nullptr);
}

void tst_FolderTreeModel::listsFoldersWithoutLinks()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    folder.Folder(QStringLiteral("b.d"));
    folder.File(QStringLiteral("c.txt"));
    folder.Link(folder.Path(QStringLiteral("a")), QStringLiteral("link"));
    folder.Link(folder.Path(), QStringLiteral("a/circle"));
    const Fixture tree(folder);
    QCOMPARE(tree.Names(), QStringList({QStringLiteral("a"), QStringLiteral("b.d")}));
}

void tst_FolderTreeModel::columnsAndHeadersAreTheBases()
{
    const CKTFMTreeModel model;
    const QFileSystemModel base;
    QCOMPARE(model.columnCount(), 4);
    for (int column = 0; column < 4; ++column) {
        for (const int role : {int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::TextAlignmentRole)}) {
            QCOMPARE(model.headerData(column, Qt::Horizontal, role),
                     base.headerData(column, Qt::Horizontal, role));
        }
    }
}

void tst_FolderTreeModel::flagsAreTheBasesAndEditableWhileRenamable()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    for (int column = 0; column < 4; ++column) {
        const QModelIndex index = tree.Index(QStringLiteral("a"), column);
        QCOMPARE(tree.m_model.flags(index), tree.m_model.QFileSystemModel::flags(index));
        QVERIFY(!(tree.m_model.flags(index) & Qt::ItemIsEditable));
    }
    tree.m_model.SetRenamable(true);
    QVERIFY(!tree.m_model.isReadOnly());
    for (int column = 0; column < 4; ++column) {
        const QModelIndex index = tree.Index(QStringLiteral("a"), column);
        QCOMPARE(tree.m_model.flags(index), tree.m_model.QFileSystemModel::flags(index) | Qt::ItemIsEditable);
    }
    tree.m_model.SetRenamable(false);
    QVERIFY(tree.m_model.isReadOnly());
    QVERIFY(!(tree.m_model.flags(tree.Index(QStringLiteral("a"))) & Qt::ItemIsEditable));
}

void tst_FolderTreeModel::otherRolesAreTheBases()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    for (const int role : {int(Qt::TextAlignmentRole), int(Qt::SizeHintRole), int(Qt::StatusTipRole),
                           int(QFileSystemModel::FilePathRole), int(QFileSystemModel::FileNameRole)}) {
        for (int column = 0; column < 4; ++column) {
            const QModelIndex index = tree.Index(QStringLiteral("a"), column);
            QCOMPARE(tree.m_model.data(index, role), tree.m_model.QFileSystemModel::data(index, role));
        }
    }
}

void tst_FolderTreeModel::showsNamesByMode_data()
{
    QTest::addColumn<int>("mode");
    for (const int mode : {-1, 0, 1, 2, 3, 4, 99})
        QTest::addRow("mode %d", mode) << mode;
}

void tst_FolderTreeModel::showsNamesByMode()
{
    QFETCH(int, mode);
    TestFolder folder;
    folder.Folder(QStringLiteral("plain"));
    folder.Folder(QStringLiteral("a.b.d"));
    Fixture tree(folder);
    tree.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
    QCOMPARE(tree.Shown(QStringLiteral("plain")), QStringLiteral("plain"));
    QCOMPARE(tree.Shown(QStringLiteral("a.b.d")), QStringLiteral("a.b.d"));
    QCOMPARE(tree.m_model.HandleDisplayRole(tree.Index(QStringLiteral("plain"))).isNull(),
             mode < 1 || mode > 3);
}

void tst_FolderTreeModel::entryThatIsNoFolderShowsWhatIsBeforeItsFirstDot()
{
    TestFolder folder;
    folder.File(QStringLiteral("photo.final.jpg"));
    folder.File(QStringLiteral("plain"));
    Fixture tree(folder);
    tree.m_model.setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    QTRY_VERIFY(tree.Names().contains(QStringLiteral("photo.final.jpg")));
    tree.m_model.SetShowTips(true);
    QCOMPARE(tree.Shown(QStringLiteral("photo.final.jpg")), QStringLiteral("photo"));
    QCOMPARE(tree.Shown(QStringLiteral("plain")), QStringLiteral("plain"));
    QCOMPARE(tree.Tip(QStringLiteral("photo.final.jpg")), QStringLiteral("photo"));
    tree.m_model.SetShowStringMode(FM_SHOW_STRING_CALLBACK);
    QCOMPARE(tree.Shown(QStringLiteral("photo.final.jpg")), QStringLiteral("photo.final.jpg"));
    tree.m_model.SetShowStringMode(FM_SHOW_STRING_INI);
    QCOMPARE(tree.Shown(QStringLiteral("photo.final.jpg")), QStringLiteral("photo.final.jpg"));
}

void tst_FolderTreeModel::otherColumnsShowTheBasesText()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    for (int column = 1; column < 4; ++column) {
        const QModelIndex index = tree.Index(QStringLiteral("a"), column);
        QCOMPARE(tree.m_model.data(index), tree.m_model.QFileSystemModel::data(index));
        QVERIFY(tree.m_model.HandleDisplayRole(index).isNull());
        QVERIFY(tree.m_model.HandleToolTipRole(index).isNull());
    }
}

void tst_FolderTreeModel::rootShowsTheNameOfItsPath()
{
    // The root of a file system has no name of its own, in either model.
    const CKTFMTreeModel tree;
    const CKTFMListModel list;
    const QString name = QFileInfo(QDir::rootPath()).fileName();
    QVERIFY(name.isEmpty());
    QCOMPARE(tree.HandleDisplayRole(tree.index(QDir::rootPath())).isNull(), name.isNull());
    QCOMPARE(tree.data(tree.index(QDir::rootPath())).toString(), name);
    QCOMPARE(list.data(list.index(QDir::rootPath())).toString(), name);
}

void tst_FolderTreeModel::editTextIsTheFoldersName()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a.b"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "a.b=Mapped\n");
    Fixture tree(folder);
    const QModelIndex index = tree.Index(QStringLiteral("a.b"));
    tree.m_model.SetFolderNameMappingFile(ini);
    tree.m_model.SetFolderTipsMappingFile(ini, QLatin1String(""));
    for (int mode = 0; mode <= 4; ++mode) {
        tree.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        QCOMPARE(tree.m_model.data(index, Qt::EditRole).toString(),
                 tree.m_model.QFileSystemModel::data(index, Qt::EditRole).toString());
        QVERIFY(tree.m_model.HandleEditRole(index).isNull());
    }
    QCOMPARE(tree.m_model.data(index, Qt::EditRole).toString(), QStringLiteral("a.b"));
}

void tst_FolderTreeModel::tipsOnlyWhenSwitchedOn()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    QCOMPARE(tree.m_model.data(tree.Index(QStringLiteral("a")), Qt::ToolTipRole), QVariant());
    tree.m_model.SetShowTips(true);
    QCOMPARE(tree.Tip(QStringLiteral("a")), QStringLiteral("a"));
    tree.m_model.SetShowTips(false);
    QCOMPARE(tree.m_model.data(tree.Index(QStringLiteral("a")), Qt::ToolTipRole), QVariant());
}

void tst_FolderTreeModel::tipsByMode()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a.b"));
    folder.Folder(QStringLiteral("c.d"));
    TestFolder elsewhere;
    const QString ini =
        elsewhere.File(QStringLiteral("names.ini"), "[names]\na.b=Mapped\n[tips]\na.b=A tip\n");
    Fixture tree(folder);
    tree.m_model.SetShowTips(true);
    QCOMPARE(tree.Tip(QStringLiteral("a.b")), QStringLiteral("a.b"));
    QVERIFY(tree.m_model.SetFolderNameMappingFile(ini));
    QVERIFY(tree.m_model.SetFileMappingSection(QStringLiteral("names")));
    QCOMPARE(tree.Tip(QStringLiteral("a.b")), QStringLiteral("Mapped"));
    QCOMPARE(tree.Tip(QStringLiteral("c.d")), QStringLiteral("c.d"));
    QVERIFY(tree.m_model.SetFolderTipsMappingFile(ini, QStringLiteral("tips")));
    for (int mode = 0; mode <= 4; ++mode) {
        tree.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        QCOMPARE(tree.Tip(QStringLiteral("a.b")), QStringLiteral("A tip"));
        QCOMPARE(tree.Tip(QStringLiteral("c.d")), QStringLiteral("c.d"));
    }
}

void tst_FolderTreeModel::hostIsAskedForImagesOnly()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    Host host;
    host.m_image = QImage(16, 16, QImage::Format_RGB32);
    host.m_image.fill(Qt::cyan);
    tree.m_model.SetInterface(&host);
    const QModelIndex index = tree.Index(QStringLiteral("a"));
    tree.m_model.SetShowTips(true);
    for (const int role : {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::ToolTipRole)})
        QCOMPARE(tree.m_model.data(index, role).toString(), QStringLiteral("a"));
    QVERIFY(host.m_asked.isEmpty());
    const QVariant icon = tree.m_model.data(index, Qt::DecorationRole);
    QCOMPARE(host.m_asked, QStringList{QStringLiteral("a")});
    QCOMPARE(static_cast<QMetaType::Type>(icon.type()), QMetaType::QIcon);
    QCOMPARE(icon.value<QIcon>().pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::cyan));
    tree.m_model.SetInterface(nullptr);
    QVERIFY(tree.m_model.HandleDecorationRole(index).isNull());
}

void tst_FolderTreeModel::nullHostImageLeavesThePlatformIcon()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    Host host;
    tree.m_model.SetInterface(&host);
    const QModelIndex index = tree.Index(QStringLiteral("a"));
    const auto icon = tree.m_model.data(index, Qt::DecorationRole).value<QIcon>();
    const QIcon expected = QFileIconProvider().icon(tree.m_model.fileInfo(index));
    QCOMPARE(icon.pixmap(32, 32).toImage(), expected.pixmap(32, 32).toImage());
    QVERIFY(!icon.pixmap(32, 32).isNull());
}

void tst_FolderTreeModel::mappedNameIsShownAndUnfoundNameWhole()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("Props"));
    folder.Folder(QStringLiteral("Props.old"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "Props=Unused\n[names]\nProps=Things\n");
    Fixture tree(folder);
    QVERIFY(tree.m_model.SetFolderNameMappingFile(ini));
    QVERIFY(tree.m_model.SetFileMappingSection(QStringLiteral("names")));
    QCOMPARE(tree.Shown(QStringLiteral("Props")), QStringLiteral("Things"));
    QCOMPARE(tree.Shown(QStringLiteral("Props.old")), QStringLiteral("Props.old"));
    QVERIFY(tree.m_model.SetFileMappingSection(QLatin1String("")));
    QCOMPARE(tree.Shown(QStringLiteral("Props")), QStringLiteral("Unused"));
}

void tst_FolderTreeModel::settersRefuseNullTexts()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "[names]\na=Mapped\n[tips]\na=Tip\n");
    Fixture tree(folder);
    tree.m_model.SetShowTips(true);
    tree.m_model.SetRenamable(true);
    QVERIFY(!tree.m_model.SetFolderNameMappingFile(QString()));
    QVERIFY(tree.m_model.SetFileMappingSection(QStringLiteral("names")));
    QVERIFY(!tree.m_model.SetFileMappingSection(QString()));
    QVERIFY(!tree.m_model.SetFolderTipsMappingFile(QString(), QStringLiteral("tips")));
    QVERIFY(!tree.m_model.SetFolderTipsMappingFile(ini, QString()));
    QVERIFY(tree.m_model.flags(tree.Index(QStringLiteral("a"))) & Qt::ItemIsEditable);
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("a"));
    QVERIFY(tree.m_model.SetFolderNameMappingFile(ini));
    QCOMPARE(tree.Tip(QStringLiteral("a")), QStringLiteral("Mapped"));
    QVERIFY(!tree.m_model.SetFolderNameMappingFile(QString()));
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("Mapped"));
}

void tst_FolderTreeModel::samePathSwitchesModeWithoutReadingAgain()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "a=Before\n");
    Fixture tree(folder);
    tree.m_model.SetFolderNameMappingFile(ini);
    tree.m_model.SetShowStringMode(FM_SHOW_STRING_BASE_NAME);
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("a"));
    elsewhere.File(QStringLiteral("names.ini"), "a=After\n");
    QVERIFY(tree.m_model.SetFolderNameMappingFile(ini));
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("Before"));
    const QString other = elsewhere.File(QStringLiteral("other.ini"), "a=Other\n");
    QVERIFY(tree.m_model.SetFolderNameMappingFile(other));
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("Other"));
}

void tst_FolderTreeModel::missingMappingFileShowsPlainNames()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a.b"));
    Fixture tree(folder);
    tree.m_model.SetShowTips(true);
    QVERIFY(tree.m_model.SetFolderNameMappingFile(folder.Path(QStringLiteral("missing.ini"))));
    QVERIFY(tree.m_model.SetFolderTipsMappingFile(folder.Path(), QStringLiteral("tips")));
    QCOMPARE(tree.Shown(QStringLiteral("a.b")), QStringLiteral("a.b"));
    QCOMPARE(tree.Tip(QStringLiteral("a.b")), QStringLiteral("a.b"));
}

void tst_FolderTreeModel::renamingEndsTheMapping()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "[names]\na=Mapped\n[tips]\na=Tip\n");
    Fixture tree(folder);
    tree.m_model.SetShowTips(true);
    tree.m_model.SetFolderNameMappingFile(ini);
    tree.m_model.SetFileMappingSection(QStringLiteral("names"));
    tree.m_model.SetFolderTipsMappingFile(ini, QStringLiteral("tips"));
    tree.m_model.SetRenamable(false);
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("Mapped"));
    QCOMPARE(tree.Tip(QStringLiteral("a")), QStringLiteral("Tip"));
    tree.m_model.SetRenamable(true);
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("a"));
    QCOMPARE(tree.Tip(QStringLiteral("a")), QStringLiteral("a"));
    tree.m_model.SetRenamable(false);
    QCOMPARE(tree.Shown(QStringLiteral("a")), QStringLiteral("a"));
    QCOMPARE(tree.Tip(QStringLiteral("a")), QStringLiteral("a"));
}

void tst_FolderTreeModel::renamingLeavesOtherModesAlone()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.b.c"));
    Fixture tree(folder);
    tree.m_model.setFilter(QDir::AllEntries | QDir::NoDotAndDotDot);
    QTRY_VERIFY(tree.Names().contains(QStringLiteral("a.b.c")));
    tree.m_model.SetShowStringMode(FM_SHOW_STRING_CALLBACK);
    tree.m_model.SetRenamable(true);
    QCOMPARE(tree.Shown(QStringLiteral("a.b.c")), QStringLiteral("a.b.c"));
}

void tst_FolderTreeModel::tipsFileSwitchesRenamingOffInTheFlagsAlone()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    tree.m_model.SetRenamable(true);
    QVERIFY(tree.m_model.SetFolderTipsMappingFile(folder.Path(QStringLiteral("tips.ini")),
                                                  QStringLiteral("tips")));
    QVERIFY(!tree.m_model.isReadOnly());
    // The flags are the base's again, and the base is still writable.
    const QModelIndex date = tree.Index(QStringLiteral("a"), 3);
    QVERIFY(!(tree.m_model.flags(date) & Qt::ItemIsEditable));
    QCOMPARE(tree.m_model.flags(date), tree.m_model.QFileSystemModel::flags(date));
}

void tst_FolderTreeModel::renamesAreDone_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("plain") << "b";
    QTest::newRow("nothing is appended") << "b.new";
    QTest::newRow("blanks in front stay") << "  b";
    if (TestPlatform::AllowsAllNames()) {
        QTest::newRow("blanks stay") << "  b  ";
        QTest::newRow("blanks alone are a name") << "   ";
        QTest::newRow("dot at the end") << "b.";
        QTest::newRow("forbidden characters behind the last dot") << "b.?*";
        QTest::newRow("line break") << "b\nc";
    }
    if (TestPlatform::TellsLetterCase())
        QTest::newRow("another letter case") << "A.D";
    QTest::newRow("255 bytes") << QString(255, QLatin1Char('x'));
}

void tst_FolderTreeModel::renamesAreDone()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    QFETCH(QString, typed);
    TestFolder folder;
    folder.File(QStringLiteral("a.d/content.txt"), "content");
    Fixture tree(folder);
    const RenameResult outcome = Rename(tree.m_model, tree.Index(QStringLiteral("a.d")), typed);
    QVERIFY(outcome.result);
    QVERIFY(outcome.errors.isEmpty());
    QCOMPARE(outcome.successes, 0);
    QCOMPARE(folder.Read(typed + QStringLiteral("/content.txt")), QByteArray("content"));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("a.d"))));
}

void tst_FolderTreeModel::renamesAreRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("code");
    const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    for (const QChar c : forbidden)
        QTest::addRow("U+%04X", c.unicode()) << QStringLiteral("a") + c + QStringLiteral("b") << 1;
    QTest::newRow("existing sibling") << "taken" << 0;
    QTest::newRow("existing link to nothing") << "nothing" << 0;
    // An empty name makes the path of the parent, which exists; so do "." and "..".
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("dot") << "." << 0;
    QTest::newRow("two dots") << ".." << 0;
    QTest::newRow("nothing before the last dot") << ".b" << 1;
    QTest::newRow("path into a folder") << "taken/b" << 1;
    QTest::newRow("path out of the folder") << "../b" << 1;
    QTest::newRow("separator behind the last dot") << "b./../../b" << 1;
    QTest::newRow("absolute path") << "/tmp/b" << 1;
    QTest::newRow("256 bytes") << QString(256, QLatin1Char('x')) << 1;
    QTest::newRow("null character") << QStringLiteral("b") + QChar(QChar::Null) << 1;
    QTest::newRow("half a surrogate pair") << QStringLiteral("b") + QChar(0xDE00) << 1;
}

void tst_FolderTreeModel::renamesAreRefused()
{
    QFETCH(QString, typed);
    QFETCH(int, code);
    TestFolder folder;
    folder.File(QStringLiteral("a/content.txt"), "content");
    folder.File(QStringLiteral("taken/content.txt"), "taken");
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("nothing"));
    Fixture tree(folder);
    const RenameResult outcome = Rename(tree.m_model, tree.Index(QStringLiteral("a")), typed);
    QVERIFY(!outcome.result);
    QVERIFY(outcome.errorsAtOnce.isEmpty());
    QCOMPARE(outcome.errors, QList<int>{code});
    QCOMPARE(folder.Read(QStringLiteral("a/content.txt")), QByteArray("content"));
    QCOMPARE(folder.Read(QStringLiteral("taken/content.txt")), QByteArray("taken"));
    QCOMPARE(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size(), 3);
}

void tst_FolderTreeModel::renameToThePresentNameDoesNothing()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    const RenameResult outcome = Rename(tree.m_model, tree.Index(QStringLiteral("a")), QStringLiteral("a"));
    QVERIFY(outcome.result);
    QVERIFY(outcome.errors.isEmpty());
    QCOMPARE(outcome.successes, 0);
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("a"))).isDir());
}

void tst_FolderTreeModel::renameOfAVanishedFolderIsRefused()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    TestFolder folder;
    const QString path = folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    const QModelIndex index = tree.Index(QStringLiteral("a"));
    QVERIFY(QDir().rmdir(path));
    const RenameResult outcome = Rename(tree.m_model, index, QStringLiteral("b"));
    QVERIFY(!outcome.result);
    QCOMPARE(outcome.errors, QList<int>{1});
}

void tst_FolderTreeModel::renameErrorsOfOtherModelsAreNotItsOwn()
{
    // Each model knows its own two event types alone: the list's errors pass the tree by.
    CKTFMTreeModel tree;
    CKTFMListModel list;
    QSignalSpy treeErrors(&tree, &CKTFMTreeModel::RenameFileError);
    QSignalSpy listErrors(&list, &CKTFMListModel::RenameFileError);
    for (int type = QEvent::User; type <= QEvent::MaxUser; ++type) {
        QEvent event(static_cast<QEvent::Type>(type));
        const int before = treeErrors.count() + listErrors.count();
        tree.event(&event);
        list.event(&event);
        QVERIFY(treeErrors.count() + listErrors.count() <= before + 1);
    }
    QCOMPARE(Codes(treeErrors).size(), 2);
    QCOMPARE(Codes(listErrors).size(), 2);
    for (const auto& codes : {Codes(treeErrors), Codes(listErrors)})
        QVERIFY(codes.contains(0) && codes.contains(1));
}

void tst_FolderTreeModel::errorsArriveFromTheEventLoop()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    QSignalSpy errors(&tree.m_model, &CKTFMTreeModel::RenameFileError);
    QVERIFY(!tree.m_model.setData(tree.Index(QStringLiteral("a")), QStringLiteral("a?b")));
    QVERIFY(!tree.m_model.setData(tree.Index(QStringLiteral("a")), QLatin1String("")));
    QCOMPARE(errors.count(), 0);
    QTRY_COMPARE(Codes(errors), QList<int>({1, 0}));
}

void tst_FolderTreeModel::modelMayDieBeforeItsError()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    auto model = std::make_unique<ConfinedModel<CKTFMTreeModel>>(folder.Path());
    model->Load(folder.Path());
    QSignalSpy errors(model.get(), &CKTFMTreeModel::RenameFileError);
    QVERIFY(!model->setData(model->index(folder.Path(QStringLiteral("a"))), QStringLiteral("a?b")));
    model.reset();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(errors.count(), 0);
}

void tst_FolderTreeModel::indexesOfOtherModelsAreRefused()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    Fixture tree(folder);
    QStandardItemModel table(2, 4);
    CKTFMTreeModel other;
    other.SetRenamable(true);
    other.SetShowTips(true);
    for (const QModelIndex& foreign : {tree.Index(QStringLiteral("a")), table.index(0, 0), QModelIndex()}) {
        for (const int role : {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::ToolTipRole),
                               int(Qt::DecorationRole), int(Qt::SizeHintRole)})
            QCOMPARE(other.data(foreign, role), QVariant());
        QVERIFY(other.HandleDisplayRole(foreign).isNull());
        QVERIFY(other.HandleEditRole(foreign).isNull());
        QVERIFY(other.HandleToolTipRole(foreign).isNull());
        QVERIFY(other.HandleDecorationRole(foreign).isNull());
        QVERIFY(!other.setData(foreign, QStringLiteral("b")));
    }
    QCOMPARE(other.flags(tree.Index(QStringLiteral("a"))), Qt::NoItemFlags);
    QCOMPARE(other.flags(table.index(0, 0)), Qt::NoItemFlags);
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("a"))));
}

void tst_FolderTreeModel::removedFolderLeavesTheTree()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    TestFolder folder;
    folder.Folder(QStringLiteral("shown/a"));
    folder.Folder(QStringLiteral("shown/b"));
    ConfinedModel<CKTFMTreeModel> model(folder.Path());
    const QPersistentModelIndex root = model.Load(folder.Path(QStringLiteral("shown")));
    QCOMPARE(model.rowCount(root), 2);
    QVERIFY(QDir(folder.Path(QStringLiteral("shown"))).removeRecursively());
    QTRY_VERIFY(!root.isValid());
}

KTFM_TEST_MAIN(tst_FolderTreeModel)
#include "tst_foldertreemodel.moc"
