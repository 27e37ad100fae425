#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QAbstractItemModelTester>
#include <QFileIconProvider>
#include <QSignalSpy>
#include <QStandardItemModel>

namespace {

class Host : public CKTFMListModelInterface
{
public:
    QImage HandleListviewDecorationRole(const QModelIndex&) override { return m_image; }
    QString HandleListviewDisplayRole(const QModelIndex&) override { return m_name; }
    QString HandleListviewToolTipRole(const QModelIndex&) override { return m_tip; }

    QImage m_image;
    QString m_name;
    QString m_tip;
};

class ImagesOnly : public CKTFMListModelInterface
{
public:
    QImage HandleListviewDecorationRole(const QModelIndex&) override { return QImage(); }
};

/**
 * The list model as the model tester can take it. An invalid index has the same flags as every other, on
 * purpose, which the tester does not accept: that check is left out. And the tester asks a model to fetch
 * whatever it can, which would read the whole disk: here nothing but the test's folder is fetched.
 */
class TestedListModel : public CKTFMListModel
{
public:
    explicit TestedListModel(const QString& fetched) : m_fetched(fetched) {}

    bool canFetchMore(const QModelIndex& parent) const override
    {
        return filePath(parent).startsWith(m_fetched) && CKTFMListModel::canFetchMore(parent);
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        return index.isValid() ? CKTFMListModel::flags(index) : Qt::NoItemFlags;
    }

private:
    QString m_fetched;
};

/** A list model on a folder, loaded. */
class Fixture
{
public:
    explicit Fixture(const TestFolder& folder) : m_model(folder.Path()), m_folder(folder)
    {
        Load(folder.Path());
        m_tester = std::make_unique<QAbstractItemModelTester>(&m_model);
    }

    void Load(const QString& path)
    {
        QSignalSpy loaded(&m_model, &QFileSystemModel::directoryLoaded);
        m_model.setRootPath(path);
        if (!loaded.wait())
            qFatal("the folder was not loaded");
    }

    QModelIndex Index(const QString& name, int column = 0) const
    {
        return m_model.index(m_folder.Path(name), column);
    }

    QString Shown(const QString& name) const { return m_model.data(Index(name)).toString(); }
    QString Edited(const QString& name) const { return m_model.data(Index(name), Qt::EditRole).toString(); }
    QString Tip(const QString& name) const { return m_model.data(Index(name), Qt::ToolTipRole).toString(); }

    TestedListModel m_model;

private:
    const TestFolder& m_folder;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

/** Renames an item and tells what came of it: the result, the name's fate, and the code that arrived later.
 */
struct RenameResult
{
    bool result;
    QStringList successes;
    QList<int> errorsAtOnce;
    QList<int> errors;
};

RenameResult Rename(CKTFMListModel& model, const QModelIndex& index, const QString& name)
{
    QSignalSpy errors(&model, &CKTFMListModel::RenameFileError);
    QSignalSpy successes(&model, &CKTFMListModel::RenameSuccess);
    RenameResult outcome;
    outcome.result = model.setData(index, name);
    for (const auto& arguments : qAsConst(errors))
        outcome.errorsAtOnce.append(arguments.at(0).toInt());
    QCoreApplication::sendPostedEvents(&model);
    for (const auto& arguments : qAsConst(errors))
        outcome.errors.append(arguments.at(0).toInt());
    for (const auto& arguments : qAsConst(successes))
        outcome.successes.append(arguments.at(0).toString());
    return outcome;
}

const QString namesIni = QStringLiteral("names.ini");

} // namespace

class tst_ListModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsOwnFilterAndFlags();
    void columnsAndHeadersAreTheBases();
    void flagsAreTheSameForEveryIndex();
    void copyIsTheOnlyDropAction();
    void showsNamesByMode_data();
    void showsNamesByMode();
    void otherColumnsShowTheBasesText();
    void hostNameIsAskedInModes1And2Only();
    void emptyHostNameFallsBack();
    void linkedFolderShowsWhatThePathNames();
    void editTextByMode_data();
    void editTextByMode();
    void tipsOnlyWhenSwitchedOn();
    void tipsByMode();
    void hostTipWinsEvenWhenEmpty();
    void hostWithoutTipsLeavesThemToTheModel();
    void hostImageBecomesTheIcon();
    void hostGivesAnImageToEachColumn();
    void nullHostImageLeavesThePlatformIcon();
    void textAlignmentByColumn();
    void rowsAskForThirtyPixelsUntilToldOtherwise();
    void mappedNameIsShown();
    void unfoundNameLosesExtensionUnlessTold();
    void entryEqualToTheNameIsTreatedAsUnfound();
    void folderWithoutEntryKeepsItsDots();
    void editTextInIniModeComesFromTheTips();
    void settersRefuseNullTexts();
    void emptySectionIsAccepted();
    void samePathSwitchesModeWithoutReadingAgain();
    void missingMappingFileShowsPlainNames();
    void tipsFileSwitchesRenamingOffInTheFlagsAlone();
    void tipsMappingCanBeSwitchedOff();
    void renamesAreDone_data();
    void renamesAreDone();
    void renamesAreRefused_data();
    void renamesAreRefused();
    void renameToBlanksReturnsFalseWithoutSignal();
    void renameToThePresentNameDoesNothing();
    void renamedFileWithoutExtensionGetsADot();
    void renamedFolderGetsNoExtension();
    void renameOntoALinkToNothingIsRefused();
    void renameOfALinkRenamesTheLink();
    void renameOfAVanishedFileIsRefused();
    void otherRolesAndIndexesGoToTheBase();
    void cutItemsRemoveTheTemporaryFile();
    void sortIsLeftToAProxyWhenTold();
    void foldersThatVanishLeaveAnEmptyList();
    void indexesOfOtherModelsAreAnsweredEmpty();
};

void tst_ListModel::startsWithItsOwnFilterAndFlags()
{
    const CKTFMListModel model;
    QCOMPARE(model.filter(), QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot);
    QVERIFY(!model.nameFilterDisables());
    QVERIFY(!model.isReadOnly());
}

void tst_ListModel::columnsAndHeadersAreTheBases()
{
    const CKTFMListModel model;
    const QFileSystemModel base;
    QCOMPARE(model.columnCount(), 4);
    for (int column = 0; column < 4; ++column)
        QCOMPARE(model.headerData(column, Qt::Horizontal), base.headerData(column, Qt::Horizontal));
}

void tst_ListModel::flagsAreTheSameForEveryIndex()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    const Qt::ItemFlags plain =
        Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren;
    QCOMPARE(list.m_model.flags(list.Index(QStringLiteral("a.txt"))), plain);
    QCOMPARE(list.m_model.flags(list.Index(QStringLiteral("a.txt"), 2)), plain);
    QCOMPARE(list.m_model.CKTFMListModel::flags(QModelIndex()), plain);
    list.m_model.SetRenamable(true);
    QCOMPARE(list.m_model.flags(list.Index(QStringLiteral("a.txt"))), plain | Qt::ItemIsEditable);
    QVERIFY(!list.m_model.isReadOnly());
    list.m_model.SetRenamable(false);
    QCOMPARE(list.m_model.flags(list.Index(QStringLiteral("a.txt"))), plain);
    QVERIFY(list.m_model.isReadOnly());
}

void tst_ListModel::copyIsTheOnlyDropAction()
{
    QCOMPARE(CKTFMListModel().supportedDropActions(), Qt::DropActions(Qt::CopyAction));
}

void tst_ListModel::showsNamesByMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("shown");
    const auto row = [](int mode, const char* fileName, const char* shown) {
        QTest::addRow("mode %d %s", mode, fileName)
            << mode << QString::fromUtf8(fileName) << QString::fromUtf8(shown);
    };
    for (const int fullNameMode : {0, 2, 4, 99, -1}) {
        row(fullNameMode, "photo.final.jpg", "photo.final.jpg");
        row(fullNameMode, "plain", "plain");
        row(fullNameMode, "folder.d", "folder.d");
    }
    row(1, "photo.final.jpg", "photo.final");
    row(1, "plain", "plain");
    row(1, "folder.d", "folder.d");
    row(3, "photo.final.jpg", "photo.final");
    row(3, "plain", "plain");
    row(3, "folder.d", "folder.d");
}

void tst_ListModel::showsNamesByMode()
{
    QFETCH(int, mode);
    QFETCH(QString, fileName);
    TestFolder folder;
    if (fileName.endsWith(QStringLiteral(".d")))
        folder.Folder(fileName);
    else
        folder.File(fileName);
    Fixture list(folder);
    list.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
    QTEST(list.Shown(fileName), "shown");
}

void tst_ListModel::otherColumnsShowTheBasesText()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"), QByteArray(2048, 'x'));
    Fixture list(folder);
    QFileSystemModel base;
    QSignalSpy loaded(&base, &QFileSystemModel::directoryLoaded);
    base.setRootPath(folder.Path());
    QVERIFY(loaded.wait());
    for (int column = 1; column < 4; ++column) {
        const QVariant expected = base.data(base.index(folder.Path(QStringLiteral("a.txt")), column));
        QVERIFY(!expected.toString().isEmpty());
        QCOMPARE(list.m_model.data(list.Index(QStringLiteral("a.txt"), column)), expected);
    }
}

void tst_ListModel::hostNameIsAskedInModes1And2Only()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    Host host;
    host.m_name = QStringLiteral("Host's name");
    list.m_model.SetInterface(&host);
    const QHash<int, QString> expected = {{0, QStringLiteral("a.txt")},
                                          {1, QStringLiteral("Host's name")},
                                          {2, QStringLiteral("Host's name")},
                                          {3, QStringLiteral("a")},
                                          {4, QStringLiteral("a.txt")}};
    for (int mode = 0; mode <= 4; ++mode) {
        list.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
        QCOMPARE(list.Shown(QStringLiteral("a.txt")), expected.value(mode));
    }
}

void tst_ListModel::emptyHostNameFallsBack()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    Host host;
    host.m_name = QLatin1String("");
    list.m_model.SetInterface(&host);
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("a"));
    list.m_model.SetShowStringMode(FM_SHOW_STRING_CALLBACK);
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("a.txt"));
}

void tst_ListModel::linkedFolderShowsWhatThePathNames()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("outside/target.d"));
    folder.Folder(QStringLiteral("shown"));
    folder.Link(folder.Path(QStringLiteral("outside/target.d")), QStringLiteral("shown/link.lnk"));
    Fixture list(folder);
    list.m_model.setResolveSymlinks(true);
    list.Load(folder.Path(QStringLiteral("shown")));
    const QModelIndex index = list.Index(QStringLiteral("shown/link.lnk"));
    QVERIFY(index.isValid());
    QCOMPARE(list.m_model.data(index).toString(), QFileInfo(list.m_model.filePath(index)).fileName());
}

void tst_ListModel::editTextByMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("folder");
    QTest::newRow("0 starts empty") << 0 << QString() << QString();
    QTest::newRow("1") << 1 << "a.b"
                       << "folder.d";
    QTest::newRow("2") << 2 << "a.b.txt"
                       << "folder.d";
    QTest::newRow("3") << 3 << "a.b"
                       << "folder.d";
    QTest::newRow("4 is the base's") << 4 << "a.b.txt"
                                     << "folder.d";
}

void tst_ListModel::editTextByMode()
{
    QFETCH(int, mode);
    TestFolder folder;
    folder.File(QStringLiteral("a.b.txt"));
    folder.Folder(QStringLiteral("folder.d"));
    Fixture list(folder);
    list.m_model.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
    QTEST(list.Edited(QStringLiteral("a.b.txt")), "file");
    QTEST(list.Edited(QStringLiteral("folder.d")), "folder");
    if (mode == 0) {
        // Empty, not null: a null text would be the base's turn.
        QVERIFY(!list.m_model.HandleEditRole(list.Index(QStringLiteral("a.b.txt"))).isNull());
    }
    // The rule holds for every column.
    QCOMPARE(list.m_model.HandleEditRole(list.Index(QStringLiteral("a.b.txt"), 2)),
             list.m_model.HandleEditRole(list.Index(QStringLiteral("a.b.txt"))));
}

void tst_ListModel::tipsOnlyWhenSwitchedOn()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    const QModelIndex index = list.Index(QStringLiteral("a.txt"));
    QCOMPARE(list.m_model.data(index, Qt::ToolTipRole), QVariant());
    list.m_model.SetShowTips(true);
    QCOMPARE(list.m_model.data(index, Qt::ToolTipRole).toString(), QStringLiteral("a"));
    QVERIFY(list.m_model.HandleToolTipRole(list.Index(QStringLiteral("a.txt"), 1)).isNull());
}

void tst_ListModel::tipsByMode()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.b.txt"));
    folder.File(QStringLiteral("c.txt"));
    folder.Folder(QStringLiteral("folder.d"));
    const QString ini = folder.File(namesIni, "[names]\na.b.txt=Mapped name\n[tips]\na.b.txt=A tip\n");
    Fixture list(folder);
    list.m_model.SetShowTips(true);
    QCOMPARE(list.Tip(QStringLiteral("a.b.txt")), QStringLiteral("a.b"));
    // The name before the last dot, for a folder as well.
    QCOMPARE(list.Tip(QStringLiteral("folder.d")), QStringLiteral("folder"));

    QVERIFY(list.m_model.SetFileNameMappingFile(ini));
    QVERIFY(list.m_model.SetFileMappingSection(QStringLiteral("names")));
    QCOMPARE(list.Tip(QStringLiteral("a.b.txt")), QStringLiteral("Mapped name"));
    QCOMPARE(list.Tip(QStringLiteral("c.txt")), QStringLiteral("c"));
    QCOMPARE(list.Tip(QStringLiteral("folder.d")), QStringLiteral("folder.d"));

    QVERIFY(list.m_model.SetFileTipsMappingFile(ini, QStringLiteral("tips")));
    QCOMPARE(list.Tip(QStringLiteral("a.b.txt")), QStringLiteral("A tip"));
    // A tip that is not found is the whole name: the rule for unfound names does not apply.
    QCOMPARE(list.Tip(QStringLiteral("c.txt")), QStringLiteral("c.txt"));
}

void tst_ListModel::hostTipWinsEvenWhenEmpty()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    list.m_model.SetShowTips(true);
    Host host;
    list.m_model.SetInterface(&host);
    host.m_tip = QStringLiteral("Host's tip");
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("Host's tip"));
    host.m_tip = QLatin1String("");
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QString());
    host.m_tip = QString();
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("a"));
}

void tst_ListModel::hostWithoutTipsLeavesThemToTheModel()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    list.m_model.SetShowTips(true);
    ImagesOnly host;
    list.m_model.SetInterface(&host);
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("a"));
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("a"));
}

void tst_ListModel::hostImageBecomesTheIcon()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    Host host;
    host.m_image = QImage(16, 16, QImage::Format_RGB32);
    host.m_image.fill(Qt::magenta);
    list.m_model.SetInterface(&host);
    const auto icon =
        list.m_model.data(list.Index(QStringLiteral("a.txt")), Qt::DecorationRole).value<QIcon>();
    QCOMPARE(icon.pixmap(16, 16).toImage().pixelColor(8, 8), QColor(Qt::magenta));
}

void tst_ListModel::hostGivesAnImageToEachColumn()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    Host host;
    const QModelIndex name = list.Index(QStringLiteral("a.txt"));
    list.m_model.SetInterface(&host);
    for (int column = 1; column < list.m_model.columnCount(); ++column)
        QVERIFY(list.m_model.data(name.siblingAtColumn(column), Qt::DecorationRole).isNull());
    host.m_image = QImage(16, 16, QImage::Format_RGB32);
    for (int column = 1; column < list.m_model.columnCount(); ++column)
        QVERIFY(!list.m_model.data(name.siblingAtColumn(column), Qt::DecorationRole).value<QIcon>().isNull());
}

void tst_ListModel::nullHostImageLeavesThePlatformIcon()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    ImagesOnly host;
    list.m_model.SetInterface(&host);
    const QModelIndex index = list.Index(QStringLiteral("a.txt"));
    const auto icon = list.m_model.data(index, Qt::DecorationRole).value<QIcon>();
    const QIcon expected = QFileIconProvider().icon(list.m_model.fileInfo(index));
    QCOMPARE(icon.pixmap(32, 32).toImage(), expected.pixmap(32, 32).toImage());
    QCOMPARE(icon.actualSize(QSize(32, 32)), expected.actualSize(QSize(32, 32)));
    QCOMPARE(icon.availableSizes(), expected.availableSizes());
}

void tst_ListModel::textAlignmentByColumn()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    for (int column = 0; column < 4; ++column) {
        const int alignment =
            list.m_model.data(list.Index(QStringLiteral("a.txt"), column), Qt::TextAlignmentRole).toInt();
        QCOMPARE(alignment, column == 1 ? int(Qt::AlignRight | Qt::AlignVCenter) : int(Qt::AlignVCenter));
    }
}

void tst_ListModel::rowsAskForThirtyPixelsUntilToldOtherwise()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    const QModelIndex index = list.Index(QStringLiteral("a.txt"));
    QCOMPARE(list.m_model.data(index, Qt::SizeHintRole).toSize(), QSize(20, 30));
    list.m_model.SetRowHeight(50);
    QCOMPARE(list.m_model.data(index, Qt::SizeHintRole).toSize(), QSize(20, 50));
}

void tst_ListModel::mappedNameIsShown()
{
    TestFolder folder;
    folder.File(QStringLiteral("Chair.fbx"));
    const QString ini = folder.File(namesIni, "[names]\nChair.fbx=Office chair\n");
    Fixture list(folder);
    QVERIFY(list.m_model.SetFileNameMappingFile(ini));
    QVERIFY(list.m_model.SetFileMappingSection(QStringLiteral("names")));
    QCOMPARE(list.Shown(QStringLiteral("Chair.fbx")), QStringLiteral("Office chair"));
}

void tst_ListModel::unfoundNameLosesExtensionUnlessTold()
{
    TestFolder folder;
    folder.File(QStringLiteral("Chair.fbx"));
    folder.File(QStringLiteral("plain"));
    Fixture list(folder);
    list.m_model.SetShowStringMode(FM_SHOW_STRING_INI);
    QCOMPARE(list.Shown(QStringLiteral("Chair.fbx")), QStringLiteral("Chair"));
    QCOMPARE(list.Shown(QStringLiteral("plain")), QStringLiteral("plain"));
    list.m_model.SetUnfoundINIShowExtName(true);
    QCOMPARE(list.Shown(QStringLiteral("Chair.fbx")), QStringLiteral("Chair.fbx"));
}

void tst_ListModel::entryEqualToTheNameIsTreatedAsUnfound()
{
    TestFolder folder;
    folder.File(QStringLiteral("Chair.fbx"));
    const QString ini = folder.File(namesIni, "[names]\nChair.fbx=Chair.fbx\n");
    Fixture list(folder);
    list.m_model.SetFileNameMappingFile(ini);
    list.m_model.SetFileMappingSection(QStringLiteral("names"));
    QCOMPARE(list.Shown(QStringLiteral("Chair.fbx")), QStringLiteral("Chair"));
}

void tst_ListModel::folderWithoutEntryKeepsItsDots()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("Props.old"));
    Fixture list(folder);
    list.m_model.SetShowStringMode(FM_SHOW_STRING_INI);
    QCOMPARE(list.Shown(QStringLiteral("Props.old")), QStringLiteral("Props.old"));
}

void tst_ListModel::editTextInIniModeComesFromTheTips()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    folder.File(QStringLiteral("b.txt"));
    const QString ini = folder.File(namesIni, "[names]\na.txt=The name\nb.txt=B\n[tips]\na.txt=The tip\n");
    Fixture list(folder);
    list.m_model.SetFileNameMappingFile(ini);
    list.m_model.SetFileMappingSection(QStringLiteral("names"));
    list.m_model.SetFileTipsMappingFile(ini, QStringLiteral("tips"));
    QCOMPARE(list.Edited(QStringLiteral("a.txt")), QStringLiteral("The tip"));
    QCOMPARE(list.Edited(QStringLiteral("b.txt")), QStringLiteral("b"));
    list.m_model.SetUnfoundINIShowExtName(true);
    QCOMPARE(list.Edited(QStringLiteral("b.txt")), QStringLiteral("b.txt"));
}

void tst_ListModel::settersRefuseNullTexts()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    const QString ini = folder.File(namesIni, "[names]\na.txt=Mapped\n");
    Fixture list(folder);
    QVERIFY(!list.m_model.SetFileNameMappingFile(QString()));
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("a"));
    QVERIFY(list.m_model.SetFileNameMappingFile(ini));
    QVERIFY(list.m_model.SetFileMappingSection(QStringLiteral("names")));
    QVERIFY(!list.m_model.SetFileMappingSection(QString()));
    QVERIFY(!list.m_model.SetFileNameMappingFile(QString()));
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("Mapped"));
    list.m_model.SetRenamable(true);
    QVERIFY(!list.m_model.SetFileTipsMappingFile(QString(), QStringLiteral("tips")));
    QVERIFY(!list.m_model.SetFileTipsMappingFile(ini, QString()));
    QVERIFY(list.m_model.flags(list.Index(QStringLiteral("a.txt"))) & Qt::ItemIsEditable);
}

void tst_ListModel::emptySectionIsAccepted()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    const QString ini = folder.File(namesIni, "a.txt=No section\n[names]\na.txt=Mapped\n");
    Fixture list(folder);
    list.m_model.SetFileNameMappingFile(ini);
    QVERIFY(list.m_model.SetFileMappingSection(QStringLiteral("names")));
    QVERIFY(list.m_model.SetFileMappingSection(QLatin1String("")));
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("No section"));
}

void tst_ListModel::samePathSwitchesModeWithoutReadingAgain()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    const QString ini = folder.File(namesIni, "a.txt=Before\n");
    Fixture list(folder);
    list.m_model.SetFileNameMappingFile(ini);
    folder.File(namesIni, "a.txt=After\n");
    list.m_model.SetShowStringMode(FM_SHOW_STRING_BASE_NAME);
    QVERIFY(list.m_model.SetFileNameMappingFile(ini));
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("Before"));
}

void tst_ListModel::missingMappingFileShowsPlainNames()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    QVERIFY(list.m_model.SetFileNameMappingFile(folder.Path(QStringLiteral("missing.ini"))));
    QCOMPARE(list.Shown(QStringLiteral("a.txt")), QStringLiteral("a"));
}

void tst_ListModel::tipsFileSwitchesRenamingOffInTheFlagsAlone()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    list.m_model.SetRenamable(true);
    QVERIFY(list.m_model.SetFileTipsMappingFile(folder.Path(QStringLiteral("tips.ini")), QLatin1String("")));
    QVERIFY(!(list.m_model.flags(list.Index(QStringLiteral("a.txt"))) & Qt::ItemIsEditable));
    QVERIFY(!list.m_model.isReadOnly());
}

void tst_ListModel::tipsMappingCanBeSwitchedOff()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    const QString ini = folder.File(namesIni, "[tips]\na.txt=A tip\n");
    Fixture list(folder);
    list.m_model.SetShowTips(true);
    list.m_model.SetFileTipsMappingFile(ini, QStringLiteral("tips"));
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("A tip"));
    list.m_model.SetFileTipsMapping(false);
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("a"));
    list.m_model.SetFileTipsMapping(true);
    QCOMPARE(list.Tip(QStringLiteral("a.txt")), QStringLiteral("A tip"));
}

void tst_ListModel::renamesAreDone_data()
{
    QTest::addColumn<QString>("oldName");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("newName");
    QTest::newRow("blanks are trimmed, extension appended") << "a.txt"
                                                            << "  b  "
                                                            << "b.txt";
    QTest::newRow("extension in another case is kept") << "a.txt"
                                                       << "b.TXT"
                                                       << "b.TXT";
    QTest::newRow("extension keeps its own case") << "Report.PDF"
                                                  << "summary"
                                                  << "summary.PDF";
    QTest::newRow("other extension is not an extension") << "a.txt"
                                                         << "b.doc"
                                                         << "b.doc.txt";
    if (TestPlatform::AllowsAllNames()) {
        QTest::newRow("forbidden characters behind the last dot") << "a.tx?t"
                                                                  << "b"
                                                                  << "b.tx?t";
    }
    QTest::newRow("several dots") << "a.tar.gz"
                                  << "b.tar"
                                  << "b.tar.gz";
    QTest::newRow("two dots get the extension like any name") << "a.txt"
                                                              << "b.."
                                                              << "b...txt";
    QTest::newRow("non-ASCII") << "a.txt" << QString::fromUtf8("\xC3\xA4\xE6\x97\xA5")
                               << QString::fromUtf8("\xC3\xA4\xE6\x97\xA5.txt");
    QTest::newRow("255 bytes") << "a.txt" << QString(251, QLatin1Char('x'))
                               << QString(251, QLatin1Char('x')) + QStringLiteral(".txt");
}

void tst_ListModel::renamesAreDone()
{
    QFETCH(QString, oldName);
    QFETCH(QString, typed);
    QFETCH(QString, newName);
    TestFolder folder;
    folder.File(oldName, "content");
    Fixture list(folder);
    const RenameResult outcome = Rename(list.m_model, list.Index(oldName), typed);
    QVERIFY(outcome.result);
    QCOMPARE(outcome.successes, QStringList{folder.Path(newName)});
    QVERIFY(outcome.errors.isEmpty());
    QCOMPARE(QDir(folder.Path()).entryList(QDir::Files), QStringList{newName});
    QCOMPARE(folder.Read(newName), QByteArray("content"));
}

void tst_ListModel::renamesAreRefused_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("code");
    const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    for (const QChar c : forbidden)
        QTest::addRow("U+%04X", c.unicode()) << QStringLiteral("a") + c + QStringLiteral("b.txt") << 1;
    QTest::newRow("existing sibling") << "taken" << 0;
    QTest::newRow("only the extension") << ".txt" << 1;
    QTest::newRow("path into a folder") << "sub/a" << 1;
    QTest::newRow("separator behind the last dot") << "a.t/../../escaped.txt" << 1;
    QTest::newRow("path out of the folder") << "../a" << 1;
    QTest::newRow("absolute path") << "/tmp/a" << 1;
    QTest::newRow("256 bytes") << QString(252, QLatin1Char('x')) << 1;
    QTest::newRow("thousands of characters") << QString(9000, QLatin1Char('x')) << 1;
    QTest::newRow("null character") << QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b") << 1;
    QTest::newRow("half a surrogate pair") << QStringLiteral("a") + QChar(0xD83D) << 1;
}

void tst_ListModel::renamesAreRefused()
{
    QFETCH(QString, typed);
    QFETCH(int, code);
    TestFolder folder;
    folder.File(QStringLiteral("shown/a.txt"), "content");
    folder.File(QStringLiteral("shown/taken.txt"), "taken");
    folder.Folder(QStringLiteral("shown/sub"));
    Fixture list(folder);
    list.Load(folder.Path(QStringLiteral("shown")));
    const RenameResult outcome = Rename(list.m_model, list.Index(QStringLiteral("shown/a.txt")), typed);
    QVERIFY(!outcome.result);
    QVERIFY(outcome.errorsAtOnce.isEmpty());
    QCOMPARE(outcome.errors, QList<int>{code});
    QVERIFY(outcome.successes.isEmpty());
    QCOMPARE(folder.Read(QStringLiteral("shown/a.txt")), QByteArray("content"));
    QCOMPARE(folder.Read(QStringLiteral("shown/taken.txt")), QByteArray("taken"));
    QCOMPARE(
        QDir(folder.Path(QStringLiteral("shown"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
        3);
    QCOMPARE(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

void tst_ListModel::renameToBlanksReturnsFalseWithoutSignal()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    for (const QString& blank :
         {QString(), QString(QLatin1String("")), QStringLiteral("   "), QStringLiteral("\t")}) {
        const RenameResult outcome = Rename(list.m_model, list.Index(QStringLiteral("a.txt")), blank);
        QVERIFY(!outcome.result);
        QVERIFY(outcome.errors.isEmpty());
    }
}

void tst_ListModel::renameToThePresentNameDoesNothing()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    folder.Folder(QStringLiteral("d"));
    Fixture list(folder);
    const QList<QPair<QString, QString>> same = {{QStringLiteral("a.txt"), QStringLiteral("a.txt")},
                                                 {QStringLiteral("a.txt"), QStringLiteral(" a ")},
                                                 {QStringLiteral("d"), QStringLiteral("d")}};
    for (const auto& [name, typed] : same) {
        const RenameResult outcome = Rename(list.m_model, list.Index(name), typed);
        QVERIFY(outcome.result);
        QVERIFY(outcome.errors.isEmpty());
        QVERIFY(outcome.successes.isEmpty());
    }
}

void tst_ListModel::renamedFileWithoutExtensionGetsADot()
{
    TestFolder folder;
    folder.File(QStringLiteral("readme"), "content");
    Fixture list(folder);
    const RenameResult outcome =
        Rename(list.m_model, list.Index(QStringLiteral("readme")), QStringLiteral("notes"));
    QVERIFY(outcome.result);
    QCOMPARE(outcome.successes, QStringList{folder.Path(QStringLiteral("notes."))});
}

void tst_ListModel::renamedFolderGetsNoExtension()
{
    KTFM_SKIP_ON_WINE("a folder that is being listed cannot be renamed");
    TestFolder folder;
    folder.Folder(QStringLiteral("old.d"));
    Fixture list(folder);
    QVERIFY(Rename(list.m_model, list.Index(QStringLiteral("old.d")), QStringLiteral("new")).result);
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("new"))).isDir());
}

void tst_ListModel::renameOntoALinkToNothingIsRefused()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"), "content");
    folder.Link(folder.Path(QStringLiteral("nothing")), QStringLiteral("b.txt"));
    Fixture list(folder);
    const RenameResult outcome =
        Rename(list.m_model, list.Index(QStringLiteral("a.txt")), QStringLiteral("b"));
    QVERIFY(!outcome.result);
    QCOMPARE(outcome.errors, QList<int>{0});
    QCOMPARE(folder.Read(QStringLiteral("a.txt")), QByteArray("content"));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("nothing"))));
}

void tst_ListModel::renameOfALinkRenamesTheLink()
{
    TestFolder folder;
    folder.Folder(QStringLiteral("target"));
    folder.Link(folder.Path(QStringLiteral("target")), QStringLiteral("shown.lnk"));
    Fixture list(folder);
    list.m_model.setResolveSymlinks(true);
    QVERIFY(
        Rename(list.m_model, list.Index(QStringLiteral("shown.lnk")), QStringLiteral("renamed.lnk")).result);
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("renamed.lnk"))).isSymLink());
    QVERIFY(QFileInfo(folder.Path(QStringLiteral("target"))).isDir());
}

void tst_ListModel::renameOfAVanishedFileIsRefused()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    const QModelIndex index = list.Index(QStringLiteral("a.txt"));
    QVERIFY(QFile::remove(path));
    const RenameResult outcome = Rename(list.m_model, index, QStringLiteral("b"));
    QVERIFY(!outcome.result);
    QCOMPARE(outcome.errors, QList<int>{1});
}

void tst_ListModel::otherRolesAndIndexesGoToTheBase()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    QVERIFY(!list.m_model.setData(list.Index(QStringLiteral("a.txt")), QStringLiteral("b"), Qt::UserRole));
    QVERIFY(!list.m_model.setData(QModelIndex(), QStringLiteral("b")));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("a.txt"))));
    QCOMPARE(
        list.m_model.data(list.Index(QStringLiteral("a.txt")), QFileSystemModel::FileNameRole).toString(),
        QStringLiteral("a.txt"));
}

void tst_ListModel::cutItemsRemoveTheTemporaryFile()
{
    CKTFMListModel model;
    QFile file(QDir::tempPath() + QStringLiteral("/qtfm.temp"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    model.AddCutItems({QStringLiteral("/a"), QStringLiteral("/b")});
    QVERIFY(file.exists());
    model.ClearCutItems();
    QVERIFY(!file.exists());
    model.ClearCutItems();
}

void tst_ListModel::sortIsLeftToAProxyWhenTold()
{
    TestFolder folder;
    for (const char name : {'c', 'a', 'b'})
        folder.File(QString(QLatin1Char(name)));
    Fixture list(folder);
    const auto names = [&list, &folder] {
        QStringList shown;
        const QModelIndex root = list.m_model.index(folder.Path());
        for (int row = 0; row < list.m_model.rowCount(root); ++row)
            shown.append(list.m_model.index(row, 0, root).data().toString());
        return shown;
    };
    const QStringList sorted = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")};
    list.m_model.sort(0, Qt::AscendingOrder);
    QCOMPARE(names(), sorted);
    list.m_model.SetSortedByProxy(true);
    list.m_model.sort(0, Qt::DescendingOrder);
    QCOMPARE(names(), sorted);
    // A filter takes effect all the same.
    list.m_model.setNameFilters({QStringLiteral("[ac]")});
    QTRY_COMPARE(names().size(), 2);
    list.m_model.setNameFilters({});
    QTRY_COMPARE(names(), sorted);
    list.m_model.SetSortedByProxy(false);
    list.m_model.sort(0, Qt::DescendingOrder);
    QCOMPARE(names(), QStringList(sorted.crbegin(), sorted.crend()));
}

void tst_ListModel::foldersThatVanishLeaveAnEmptyList()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    TestFolder folder;
    folder.File(QStringLiteral("shown/a.txt"));
    folder.File(QStringLiteral("shown/b.txt"));
    Fixture list(folder);
    list.Load(folder.Path(QStringLiteral("shown")));
    const QPersistentModelIndex root = list.m_model.index(folder.Path(QStringLiteral("shown")));
    QCOMPARE(list.m_model.rowCount(root), 2);
    QVERIFY(QFile::remove(folder.Path(QStringLiteral("shown/a.txt"))));
    QTRY_COMPARE(list.m_model.rowCount(root), 1);
    QVERIFY(QDir(folder.Path(QStringLiteral("shown"))).removeRecursively());
    QTRY_VERIFY(!root.isValid());
}

void tst_ListModel::indexesOfOtherModelsAreAnsweredEmpty()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    Fixture list(folder);
    const QStandardItemModel table(2, 4);
    CKTFMListModel other;
    // Every index is editable then: the base alone would rename the file of the other model.
    other.SetRenamable(true);
    other.SetShowTips(true);
    for (const QModelIndex& foreign :
         {list.Index(QStringLiteral("a.txt")), table.index(0, 0), QModelIndex()}) {
        for (const int role : {int(Qt::DisplayRole), int(Qt::EditRole), int(Qt::ToolTipRole),
                               int(Qt::DecorationRole), int(Qt::SizeHintRole)})
            QCOMPARE(other.data(foreign, role), QVariant());
        for (const int mode : {0, 1, 2, 3, 4}) {
            other.SetShowStringMode(static_cast<EKTFMShowStringMode>(mode));
            QVERIFY(other.HandleDisplayRole(foreign).isNull());
            QVERIFY(other.HandleEditRole(foreign).isNull());
            QVERIFY(other.HandleToolTipRole(foreign).isNull());
        }
        QVERIFY(!other.setData(foreign, QStringLiteral("b")));
        QVERIFY(!other.setData(foreign, QStringLiteral("b"), Qt::DisplayRole));
    }
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("a.txt"))));
}

KTFM_TEST_MAIN(tst_ListModel)
#include "tst_listmodel.moc"
