#include "widget/FileCopy.h"

#include "tests/support/FileSizeLimit_posix.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFileInfo>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/** Makes a socket that has a path. */
void MakeSocket(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.size() >= static_cast<int>(sizeof address.sun_path))
        qFatal("the path of the socket is too long");
    qstrcpy(address.sun_path, name.constData());
    const int socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    if (bind(socketFile, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        qFatal("cannot make a socket");
    close(socketFile);
}

/** A file that is written at once, and one that is written beside its target first. */
void AddSizes()
{
    QTest::addColumn<int>("size");
    QTest::newRow("small") << 50000;
    QTest::newRow("large") << 300000;
}

QStringList Names(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class tst_FileCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesEveryByte_data();
    void copiesEveryByte();
    void copiesPermissions_data();
    void copiesPermissions();
    void linkIsReadThrough();
    void neverOverwrites_data();
    void neverOverwrites();
    void neverWritesThroughALinkToNothing_data();
    void neverWritesThroughALinkToNothing();
    void missingFolderFails();
    void fullDiskLeavesNothingBehind_data();
    void fullDiskLeavesNothingBehind();
    void pipesSocketsAndDevicesAreNotOpened();
    void folderIsNotAFile();
};

void tst_FileCopy::copiesEveryByte_data()
{
    QTest::addColumn<int>("size");
    for (const int size : {0, 1, 65535, 65536, 65537, 131072, 1000003})
        QTest::newRow(qPrintable(QString::number(size))) << size;
}

void tst_FileCopy::copiesEveryByte()
{
    const TestFolder folder;
    QFETCH(int, size);
    QByteArray data(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i)
        data[i] = static_cast<char>(i * 31 + i / 256);
    folder.Folder(QStringLiteral("to"));
    QVERIFY(
        FileCopy::Copy(folder.File(QStringLiteral("from"), data), folder.Path(QStringLiteral("to/copy"))));
    QCOMPARE(folder.Read(QStringLiteral("to/copy")), data);
    QCOMPARE(folder.Read(QStringLiteral("from")), data);
    QCOMPARE(Names(folder.Path(QStringLiteral("to"))), QStringList(QStringLiteral("copy")));
}

void tst_FileCopy::copiesPermissions_data()
{
    AddSizes();
}

void tst_FileCopy::copiesPermissions()
{
    const TestFolder folder;
    QFETCH(int, size);
    const QString script = folder.File(QStringLiteral("script"), QByteArray(size, 'x'));
    const QFile::Permissions permissions = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup;
    QVERIFY(QFile::setPermissions(script, permissions));
    QVERIFY(FileCopy::Copy(script, folder.Path(QStringLiteral("copy"))));
    struct stat status = {};
    QCOMPARE(stat(qPrintable(folder.Path(QStringLiteral("copy"))), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777U), 0540);
}

void tst_FileCopy::linkIsReadThrough()
{
    const TestFolder folder;
    const QString link = folder.Link(folder.File(QStringLiteral("real"), "text"), QStringLiteral("link"));
    QVERIFY(FileCopy::Copy(link, folder.Path(QStringLiteral("copy"))));
    QCOMPARE(folder.Read(QStringLiteral("copy")), QByteArray("text"));
    QVERIFY(!QFileInfo(folder.Path(QStringLiteral("copy"))).isSymLink());
}

void tst_FileCopy::neverOverwrites_data()
{
    AddSizes();
}

void tst_FileCopy::neverOverwrites()
{
    const TestFolder folder;
    QFETCH(int, size);
    const QByteArray content(size, 'n');
    const QString from = folder.File(QStringLiteral("from"), content);
    QVERIFY(!FileCopy::Copy(from, folder.File(QStringLiteral("to"), "old")));
    QCOMPARE(folder.Read(QStringLiteral("to")), QByteArray("old"));
    QVERIFY(!FileCopy::Copy(from, from));
    QCOMPARE(folder.Read(QStringLiteral("from")), content);
    QVERIFY(!FileCopy::Copy(from, folder.Folder(QStringLiteral("folder"))));
}

void tst_FileCopy::neverWritesThroughALinkToNothing_data()
{
    AddSizes();
}

void tst_FileCopy::neverWritesThroughALinkToNothing()
{
    const TestFolder folder;
    QFETCH(int, size);
    const QString from = folder.File(QStringLiteral("from"), QByteArray(size, 'n'));
    const QString link = folder.Link(folder.Path(QStringLiteral("elsewhere")), QStringLiteral("to"));
    QVERIFY(!FileCopy::Copy(from, link));
    QVERIFY(QFileInfo(link).isSymLink());
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("elsewhere"))));
}

void tst_FileCopy::missingFolderFails()
{
    const TestFolder folder;
    QVERIFY(!FileCopy::Copy(folder.File(QStringLiteral("from")), folder.Path(QStringLiteral("gone/copy"))));
    QVERIFY(!FileCopy::Copy(folder.Path(QStringLiteral("gone")), folder.Path(QStringLiteral("copy"))));
    QCOMPARE(Names(folder.Path()), QStringList(QStringLiteral("from")));
}

void tst_FileCopy::fullDiskLeavesNothingBehind_data()
{
    AddSizes();
}

void tst_FileCopy::fullDiskLeavesNothingBehind()
{
    const TestFolder folder;
    QFETCH(int, size);
    folder.Folder(QStringLiteral("to"));
    const QString from = folder.File(QStringLiteral("from"), QByteArray(size, 'x'));
    {
        const FileSizeLimit limit(40000);
        QVERIFY(!FileCopy::Copy(from, folder.Path(QStringLiteral("to/copy"))));
    }
    QCOMPARE(Names(folder.Path(QStringLiteral("to"))), QStringList());
    QCOMPARE(folder.Read(QStringLiteral("from")).size(), size);
}

void tst_FileCopy::pipesSocketsAndDevicesAreNotOpened()
{
    const TestFolder folder;
    const QString pipe = folder.Path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    const QString socketPath = folder.Path(QStringLiteral("socket"));
    MakeSocket(socketPath);
    folder.Folder(QStringLiteral("to"));
    const QStringList sources = {pipe, folder.Link(pipe, QStringLiteral("toPipe")), socketPath,
                                 QStringLiteral("/dev/zero"),
                                 folder.Link(QStringLiteral("/dev/zero"), QStringLiteral("toDevice"))};
    for (const QString& source : sources)
        QVERIFY2(!FileCopy::Copy(source, folder.Path(QStringLiteral("to/copy"))), qPrintable(source));
    QCOMPARE(Names(folder.Path(QStringLiteral("to"))), QStringList());
}

void tst_FileCopy::folderIsNotAFile()
{
    const TestFolder folder;
    QVERIFY(!FileCopy::Copy(folder.Folder(QStringLiteral("from")), folder.Path(QStringLiteral("to"))));
    QCOMPARE(Names(folder.Path()), QStringList(QStringLiteral("from")));
}

KTFM_TEST_MAIN(tst_FileCopy)
#include "tst_filecopy_posix.moc"
