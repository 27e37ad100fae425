#include "tests/support/PaneFixture.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "widget/DiskEntry.h"
#include "widget/FileIdentity.h"
#include "widget/LocalPaths.h"
#include "widget/PasteRules.h"
#include "widget/TreeRemoval.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CProfile.h>

#include <QDir>
#include <QTreeView>
#include <QUrl>

using KT::CProfile;
using KT::ResultDone;

namespace {

QString Native(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

/** The path with the letter of its drive in the other case. */
QString WithOtherDriveCase(QString path)
{
    path[0] = path.at(0).isUpper() ? path.at(0).toLower() : path.at(0).toUpper();
    return path;
}

bool Exists(const QString& path)
{
    return CProfile().FileExists(path.toStdWString());
}

} // namespace

/** Backslashes, drives and other hosts in every operation that takes a path. */
class tst_PathsWin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folderIsShownHoweverItIsWritten_data();
    void folderIsShownHoweverItIsWritten();
    void parentOfAFolderInADriveIsTheDrive();
    void aliasTableTakesBackslashes();
    void itemIsSelectedByANativePath();
    void profileIsLoadedHoweverItsPathIsWritten();
    void wildcardsFindNamesInAnyCase();
    void driveAndFolderWithASeparatorAtTheEnd();
    void driveIsNeverRemoved();
    void pathsOfOtherHostsKeepTheirHost();
    void pathsWithoutADriveAreNotTaken();
    void oneFolderIsOneFolderHoweverItIsWritten();
};

void tst_PathsWin::folderIsShownHoweverItIsWritten_data()
{
    QTest::addColumn<bool>("native");
    QTest::addColumn<bool>("otherDriveCase");
    QTest::newRow("slashes") << false << false;
    QTest::newRow("backslashes") << true << false;
    QTest::newRow("drive in the other case") << false << true;
    QTest::newRow("both") << true << true;
}

void tst_PathsWin::folderIsShownHoweverItIsWritten()
{
    QFETCH(bool, native);
    QFETCH(bool, otherDriveCase);
    PaneFixture pane;
    pane.m_folder.File(QStringLiteral("sub/in.txt"));
    QString path = pane.m_folder.Path(QStringLiteral("sub"));
    if (native)
        path = Native(path);
    if (otherDriveCase)
        path = WithOtherDriveCase(path);
    QVERIFY(pane.Show());
    pane.Open(path);
    QTRY_COMPARE(pane.Names(), QStringList(QStringLiteral("in.txt")));
    QVERIFY(FileIdentity::AreSame(pane.m_pPane->GetCurSelectedFolder(FM_PART_LIST),
                                  pane.m_folder.Path(QStringLiteral("sub"))));
}

void tst_PathsWin::parentOfAFolderInADriveIsTheDrive()
{
    PaneFixture pane;
    const QString drive = QDir::rootPath();
    QVERIFY(pane.Show());
    pane.Open(drive + QStringLiteral("windows"));
    QCOMPARE(pane.m_pPane->GoToParentFolder(), drive);
    QTRY_VERIFY(pane.Names().contains(QStringLiteral("windows"), Qt::CaseInsensitive));
}

void tst_PathsWin::aliasTableTakesBackslashes()
{
    PaneFixture pane(FM_MODE_ALIAS_TREE_AND_LIST);
    pane.m_folder.Folder(QStringLiteral("top/a"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(
        QStringLiteral("Top\t%1\ttrue\t32\t\t\n").arg(Native(pane.m_folder.Path(QStringLiteral("top"))))));
    const auto* model = pane.m_pPane->GetAliasTreeModel();
    const QModelIndex top = model->index(0, 0);
    QCOMPARE(model->rowCount(top), 1);
    QCOMPARE(QDir::fromNativeSeparators(model->GetMappedFolderPath(model->index(0, 0, top))),
             pane.m_folder.Path(QStringLiteral("top/a")));
}

void tst_PathsWin::itemIsSelectedByANativePath()
{
    PaneFixture pane;
    const QString path = pane.m_folder.File(QStringLiteral("a.txt"));
    pane.m_folder.File(QStringLiteral("b.txt"));
    QVERIFY(pane.ShowFolder(2));
    QVERIFY(pane.m_pPane->SetCurrentSelection(Native(path), false, false));
    QCOMPARE(pane.m_pPane->GetCurSelectedFileList(true), QStringList(path));
}

void tst_PathsWin::profileIsLoadedHoweverItsPathIsWritten()
{
    const TestFolder folder;
    const QString path = folder.File(QStringLiteral("sub/names.ini"), "[S]\nkey=value\n");
    for (const QString& written : {path, Native(path), path.toUpper(), WithOtherDriveCase(path)}) {
        CProfile profile;
        QCOMPARE(profile.Load(written.toStdWString(), true).code, ResultDone);
        std::wstring value;
        QCOMPARE(profile.GetValue(value, L"s", L"KEY").code, ResultDone);
        QVERIFY(value == L"value");
    }
}

void tst_PathsWin::wildcardsFindNamesInAnyCase()
{
    const TestFolder folder;
    folder.File(QStringLiteral("sub/names.ini"));
    for (const char* pattern : {"sub/*.ini", "sub/NAMES.*", "sub/n?mes.ini", "SUB/*", "sub/*"}) {
        QVERIFY(Exists(folder.Path(QString::fromLatin1(pattern))));
        QVERIFY(Exists(Native(folder.Path(QString::fromLatin1(pattern)))));
    }
    for (const char* pattern : {"sub/*.txt", "sub/?.ini", "s*/names.ini", "gone/*"})
        QVERIFY(!Exists(folder.Path(QString::fromLatin1(pattern))));
}

void tst_PathsWin::driveAndFolderWithASeparatorAtTheEnd()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("sub"));
    QVERIFY(Exists(folder.Path(QStringLiteral("sub/"))));
    QVERIFY(Exists(Native(folder.Path(QStringLiteral("sub/")))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("gone/"))));
    QVERIFY(FileIdentity::Of(QDir::rootPath()));
    QCOMPARE(LocalPaths::In(QDir::rootPath(), QStringLiteral("a")), QDir::rootPath() + QLatin1Char('a'));
}

void tst_PathsWin::driveIsNeverRemoved()
{
    const QString drive = QDir::rootPath();
    QVERIFY(!TreeRemoval::Remove(drive, [](const QString&) { QFAIL("a folder was removed"); }));
    QVERIFY(!TreeRemoval::Empty(drive));
    QVERIFY(QFileInfo(drive + QStringLiteral("windows")).isDir());
}

void tst_PathsWin::pathsOfOtherHostsKeepTheirHost()
{
    const QUrl url(QStringLiteral("file://server/share/sub/../a.txt"));
    QCOMPARE(LocalPaths::Of(url), QStringLiteral("//server/share/a.txt"));
    QCOMPARE(LocalPaths::UrlsOf({QStringLiteral("//server/share/a.txt")}).constFirst(),
             QUrl(QStringLiteral("file://server/share/a.txt")));
    // A host that is not there has no such files, and asking ends.
    QVERIFY(!FileIdentity::Of(QStringLiteral("//localhost/no-such-share/a")));
    QVERIFY(!DiskEntry::Remove(QStringLiteral("//localhost/no-such-share/a")));
    QVERIFY(!PasteRules::CanPasteInto(QStringLiteral("\\\\localhost\\no-such-share")));
}

void tst_PathsWin::pathsWithoutADriveAreNotTaken()
{
    const TestFolder folder;
    const QString path = folder.File(QStringLiteral("a"));
    QCOMPARE(LocalPaths::Of(QUrl::fromLocalFile(Native(path))), path);
    QCOMPARE(LocalPaths::Of(QUrl(QStringLiteral("file:a.txt"))), QString());
    QCOMPARE(LocalPaths::Of(QUrl(QStringLiteral("file:C:a.txt"))), QString());
}

void tst_PathsWin::oneFolderIsOneFolderHoweverItIsWritten()
{
    const TestFolder folder;
    const QString path = folder.Folder(QStringLiteral("Some Folder"));
    QVERIFY(FileIdentity::AreSame(path, path.toUpper()));
    QVERIFY(FileIdentity::AreSame(path, Native(path)));
    QVERIFY(FileIdentity::AreSame(path, path + QLatin1Char('/')));
    QVERIFY(PasteRules::HoldDestination({path.toUpper()}, path));
}

KTFM_TEST_MAIN(tst_PathsWin)
#include "tst_paths_win.moc"
