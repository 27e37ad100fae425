#include "widget/DiskEntry.h"
#include "widget/FileIdentity.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

class tst_DiskEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsLinksFromWhatTheyShow_data();
    void tellsLinksFromWhatTheyShow();
    void removesLinksAndLeavesWhatTheyLeadTo();
    void leavesFoldersAlone();
    void readsFilesAndFoldersThatAreThere();
    void neverOpensAPipeToSeeWhetherItCanBeRead();
    void identityLeadsThroughLinksAndHardLinks();
    void nothingIsNotTheSameAsNothing();
};

void tst_DiskEntry::tellsLinksFromWhatTheyShow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<bool>("showsFolder");
    QTest::addColumn<bool>("isRealFolder");
    QTest::addColumn<bool>("showsFile");
    QTest::newRow("file") << "file" << false << false << false << true;
    QTest::newRow("folder") << "folder" << false << true << true << false;
    QTest::newRow("link to a file") << "toFile" << true << false << false << true;
    QTest::newRow("link to a folder") << "toFolder" << true << true << false << false;
    QTest::newRow("link to nothing") << "toNothing" << true << false << false << false;
    QTest::newRow("pipe") << "pipe" << false << false << false << false;
    QTest::newRow("link to a pipe") << "toPipe" << true << false << false << false;
    QTest::newRow("named like a shortcut") << "folder.lnk" << false << true << true << false;
}

void tst_DiskEntry::tellsLinksFromWhatTheyShow()
{
    const TestFolder folder;
    folder.Link(folder.File(QStringLiteral("file")), QStringLiteral("toFile"));
    folder.Link(folder.Folder(QStringLiteral("folder")), QStringLiteral("toFolder"));
    folder.Folder(QStringLiteral("folder.lnk"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("toNothing"));
    QCOMPARE(mkfifo(qPrintable(folder.Path(QStringLiteral("pipe"))), 0600), 0);
    folder.Link(folder.Path(QStringLiteral("pipe")), QStringLiteral("toPipe"));
    QFETCH(QString, name);
    const QFileInfo entry(folder.Path(name));
    QTEST(DiskEntry::IsLink(entry), "isLink");
    QTEST(DiskEntry::ShowsFolder(entry), "showsFolder");
    QTEST(DiskEntry::IsRealFolder(entry), "isRealFolder");
    QTEST(DiskEntry::ShowsFile(entry), "showsFile");
}

void tst_DiskEntry::removesLinksAndLeavesWhatTheyLeadTo()
{
    const TestFolder folder;
    folder.File(QStringLiteral("real/kept"), "kept");
    const QString toFolder = folder.Link(folder.Path(QStringLiteral("real")), QStringLiteral("toFolder"));
    const QString toFile = folder.Link(folder.Path(QStringLiteral("real/kept")), QStringLiteral("toFile"));
    const QString toNothing = folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("toNothing"));
    for (const QString& link : {toFolder, toFile, toNothing}) {
        QVERIFY(DiskEntry::Remove(link));
        QVERIFY(!QFileInfo(link).isSymLink());
    }
    QCOMPARE(folder.Read(QStringLiteral("real/kept")), QByteArray("kept"));
}

void tst_DiskEntry::leavesFoldersAlone()
{
    const TestFolder folder;
    QVERIFY(!DiskEntry::Remove(folder.Folder(QStringLiteral("empty"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("empty"))));
}

void tst_DiskEntry::readsFilesAndFoldersThatAreThere()
{
    const TestFolder folder;
    QVERIFY(DiskEntry::CanBeRead(folder.File(QStringLiteral("file"))));
    QVERIFY(DiskEntry::CanBeRead(folder.Folder(QStringLiteral("folder"))));
    QVERIFY(!DiskEntry::CanBeRead(folder.Path(QStringLiteral("gone"))));
    QVERIFY(!DiskEntry::CanBeRead(folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("link"))));
}

void tst_DiskEntry::neverOpensAPipeToSeeWhetherItCanBeRead()
{
    const TestFolder folder;
    const QString pipe = folder.Path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(!DiskEntry::CanBeRead(pipe)); // opening it would wait for a writer for ever
}

void tst_DiskEntry::identityLeadsThroughLinksAndHardLinks()
{
    const TestFolder folder;
    const QString file = folder.File(QStringLiteral("in/file"));
    const QString hardLink = folder.Path(QStringLiteral("hard"));
    QCOMPARE(link(qPrintable(file), qPrintable(hardLink)), 0);
    folder.Link(folder.Path(QStringLiteral("in")), QStringLiteral("other"));
    QVERIFY(FileIdentity::AreSame(file, file));
    QVERIFY(FileIdentity::AreSame(file, hardLink));
    QVERIFY(FileIdentity::AreSame(file, folder.Path(QStringLiteral("other/file"))));
    QVERIFY(FileIdentity::AreSame(folder.Path(QStringLiteral("in")), folder.Path(QStringLiteral("other/"))));
    QVERIFY(!FileIdentity::AreSame(file, folder.File(QStringLiteral("in/second"))));
    QVERIFY(!FileIdentity::AreSame(file, folder.Path(QStringLiteral("in"))));
}

void tst_DiskEntry::nothingIsNotTheSameAsNothing()
{
    const TestFolder folder;
    const QString gone = folder.Path(QStringLiteral("gone"));
    QVERIFY(!FileIdentity::Of(gone));
    QVERIFY(!FileIdentity::AreSame(gone, gone));
}

KTFM_TEST_MAIN(tst_DiskEntry)
#include "tst_diskentry_posix.moc"
