#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QDir>
#include <QSignalSpy>

namespace {

/** What a rename said and told. */
struct Outcome
{
    bool result;
    QList<int> codes;
};

template <typename Model> Outcome Rename(Model& model, const QModelIndex& index, const QString& name)
{
    QSignalSpy errors(&model, &Model::RenameFileError);
    Outcome outcome{model.setData(index, name, Qt::EditRole), {}};
    QCoreApplication::sendPostedEvents(&model);
    for (const auto& arguments : qAsConst(errors))
        outcome.codes.append(arguments.at(0).toInt());
    return outcome;
}

template <typename Model>
Outcome RenameListed(const TestFolder& folder, const QString& old, const QString& name)
{
    Model model;
    model.SetRenamable(true);
    QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
    model.setRootPath(folder.Path());
    if (!loaded.wait())
        qFatal("the folder was not loaded");
    return Rename(model, model.index(folder.Path(old)), name);
}

Outcome RenameCategory(const TestFolder& folder, const QString& old, const QString& name)
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("%1\t%2\ttrue\t32\t\t\n").arg(old, folder.Path(old)));
    return Rename(model, model.index(0, 0), name);
}

QStringList NamesIn(const TestFolder& folder)
{
    return QDir(folder.Path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

/** Names that Windows keeps for devices or does not keep as they are, in everything that renames. */
class tst_NamesWin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusedNames_data();
    void refusedNames();
    void namesLikeThoseOfDevicesAreAllowed_data();
    void namesLikeThoseOfDevicesAreAllowed();
    void changeOfLetterCaseAloneIsAnExistingName();
    void fileWithoutExtensionIsRenamed();
    void fileWithoutExtensionGetsNoDeviceName();
};

void tst_NamesWin::refusedNames_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"CON", "con", "PRN", "Aux", "NUL", "nul.txt", "COM1", "com9.tar.gz", "LPT1", "NUL .x"})
        QTest::newRow(name) << QString::fromLatin1(name);
    QTest::newRow("COM with a raised digit") << QStringLiteral("COM\u00b9.x");
    QTest::newRow("blank at the end") << QStringLiteral("b.d ");
    QTest::newRow("backslash") << QStringLiteral("b\\c.d");
    QTest::newRow("drive") << QStringLiteral("C:b.d");
    QTest::newRow("control character") << QStringLiteral("b\tc.d");
    QTest::newRow("line break") << QStringLiteral("b\nc.d");
}

void tst_NamesWin::refusedNames()
{
    QFETCH(QString, name);
    const TestFolder folder;
    folder.File(QStringLiteral("a.d/content"), "content");
    const QList<int> refused = {1};
    const Outcome tree = RenameListed<CKTFMTreeModel>(folder, QStringLiteral("a.d"), name);
    QVERIFY(!tree.result);
    QCOMPARE(tree.codes, refused);
    // The others drop blanks at both ends before they look.
    if (name == name.trimmed()) {
        const Outcome category = RenameCategory(folder, QStringLiteral("a.d"), name);
        QVERIFY(!category.result);
        QCOMPARE(category.codes, refused);
        const Outcome list = RenameListed<CKTFMListModel>(folder, QStringLiteral("a.d"), name);
        QVERIFY(!list.result);
        QCOMPARE(list.codes, refused);
    }
    QCOMPARE(NamesIn(folder), QStringList{QStringLiteral("a.d")});
    QCOMPARE(folder.Read(QStringLiteral("a.d/content")), QByteArray("content"));
}

void tst_NamesWin::namesLikeThoseOfDevicesAreAllowed_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"CONSOLE", "COM", "COM0", "COM10", "NULL.txt", "a.con", "LPT"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_NamesWin::namesLikeThoseOfDevicesAreAllowed()
{
    QFETCH(QString, name);
    const TestFolder folder;
    folder.Folder(QStringLiteral("a"));
    const Outcome category = RenameCategory(folder, QStringLiteral("a"), name);
    QVERIFY(category.result);
    QVERIFY(category.codes.isEmpty());
    QCOMPARE(NamesIn(folder), QStringList{name});
}

void tst_NamesWin::changeOfLetterCaseAloneIsAnExistingName()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("Chairs"));
    const QString name = QStringLiteral("CHAIRS");
    for (const Outcome& outcome : {RenameListed<CKTFMListModel>(folder, QStringLiteral("Chairs"), name),
                                   RenameListed<CKTFMTreeModel>(folder, QStringLiteral("Chairs"), name),
                                   RenameCategory(folder, QStringLiteral("Chairs"), name)}) {
        QVERIFY(!outcome.result);
        QCOMPARE(outcome.codes, QList<int>{0});
    }
    QCOMPARE(NamesIn(folder), QStringList{QStringLiteral("Chairs")});
}

void tst_NamesWin::fileWithoutExtensionIsRenamed()
{
    const TestFolder folder;
    folder.File(QStringLiteral("notes"), "content");
    QVERIFY(RenameListed<CKTFMListModel>(folder, QStringLiteral("notes"), QStringLiteral("b")).result);
    // The dot that files are given before an empty extension is none of the disk's.
    QCOMPARE(NamesIn(folder), QStringList{QStringLiteral("b")});
    QCOMPARE(folder.Read(QStringLiteral("b")), QByteArray("content"));
}

void tst_NamesWin::fileWithoutExtensionGetsNoDeviceName()
{
    const TestFolder folder;
    folder.File(QStringLiteral("notes"), "content");
    const Outcome outcome =
        RenameListed<CKTFMListModel>(folder, QStringLiteral("notes"), QStringLiteral("AUX"));
    QVERIFY(!outcome.result);
    QCOMPARE(outcome.codes, QList<int>{1});
    QCOMPARE(NamesIn(folder), QStringList{QStringLiteral("notes")});
}

KTFM_TEST_MAIN(tst_NamesWin)
#include "tst_names_win.moc"
