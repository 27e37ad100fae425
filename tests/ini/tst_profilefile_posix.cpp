#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CProfile.h>

#include <QDir>
#include <QFile>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using KT::CProfile;
using KT::ResultDone;
using KT::ResultFailed;
using KT::ResultFileMissing;

namespace {

qint32 Load(const QString& path)
{
    return CProfile().Load(path.toStdWString(), true).code;
}

bool Exists(const QString& path)
{
    return CProfile().FileExists(path.toStdWString());
}

/** While it lives, the process has no more rights than any user; root would ignore all permissions. */
class OrdinaryUser
{
public:
    OrdinaryUser() : m_user(geteuid())
    {
        if (m_user == 0 && seteuid(Nobody) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (seteuid(m_user) != 0)
            qFatal("cannot become the old user again");
    }
    Q_DISABLE_COPY(OrdinaryUser)

private:
    static constexpr uid_t Nobody = 65534;
    uid_t m_user;
};

/** Goes to another folder and, at its end, back. */
class CurrentFolder
{
public:
    explicit CurrentFolder(const QString& path) : m_before(QDir::currentPath()) { QDir::setCurrent(path); }
    ~CurrentFolder() { QDir::setCurrent(m_before); }
    Q_DISABLE_COPY(CurrentFolder)

private:
    QString m_before;
};

/** The owner may do everything, others may look. */
constexpr QFileDevice::Permissions Open =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner | QFileDevice::ReadGroup |
    QFileDevice::ExeGroup | QFileDevice::ReadOther | QFileDevice::ExeOther;

} // namespace

class tst_ProfileFilePosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pipeExistsAndIsNotOpened();
    void socketExistsAndIsNotOpened();
    void devicesAreNotRead_data();
    void devicesAreNotRead();
    void linkToFileIsRead();
    void danglingLinkExistsAndCannotBeRead();
    void circleOfLinksExistsAndCannotBeRead();
    void fileWithoutReadPermissionFails();
    void fileInClosedFolderIsMissing();
    void letterCaseCounts();
    void backslashIsAnOrdinaryCharacterButAtTheEnd();
    void wildcardMatchesHiddenAndLinkedEntries();
    void wildcardCharactersOfARealNameMatchThemselves();
    void wildcardCharactersOfAFolderAreNotExpanded();
    void relativePathsAreFound();
    void rootAloneDoesNotExist();
    void questionMarkStandsForOneCharacter();
};

void tst_ProfileFilePosix::pipeExistsAndIsNotOpened()
{
    TestFolder folder;
    const QString path = folder.Path(QStringLiteral("pipe.ini"));
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QVERIFY(Exists(path));
    QCOMPARE(Load(path), ResultFailed);
    QCOMPARE(Load(folder.Link(path, QStringLiteral("link.ini"))), ResultFailed);
}

void tst_ProfileFilePosix::socketExistsAndIsNotOpened()
{
    TestFolder folder;
    const QString path = folder.Path(QStringLiteral("s"));
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray name = QFile::encodeName(path);
    QVERIFY(static_cast<size_t>(name.size()) < sizeof(address.sun_path));
    std::copy(name.cbegin(), name.cend(), address.sun_path);
    const int socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    QVERIFY(socketFile >= 0);
    QCOMPARE(bind(socketFile, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    QVERIFY(Exists(path));
    QCOMPARE(Load(path), ResultFailed);
    QCOMPARE(close(socketFile), 0);
}

void tst_ProfileFilePosix::devicesAreNotRead_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("endless") << QStringLiteral("/dev/zero");
    QTest::newRow("empty") << QStringLiteral("/dev/null");
}

void tst_ProfileFilePosix::devicesAreNotRead()
{
    QFETCH(QString, path);
    QVERIFY(Exists(path));
    QCOMPARE(Load(path), ResultFailed);
}

void tst_ProfileFilePosix::linkToFileIsRead()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("names.ini"), "k=v\n");
    QCOMPARE(Load(folder.Link(path, QStringLiteral("link.ini"))), ResultDone);
}

void tst_ProfileFilePosix::danglingLinkExistsAndCannotBeRead()
{
    TestFolder folder;
    const QString link = folder.Link(folder.Path(QStringLiteral("none")), QStringLiteral("link.ini"));
    QVERIFY(Exists(link));
    QCOMPARE(Load(link), ResultFailed);
}

void tst_ProfileFilePosix::circleOfLinksExistsAndCannotBeRead()
{
    TestFolder folder;
    const QString link = folder.Link(folder.Path(QStringLiteral("b.ini")), QStringLiteral("a.ini"));
    folder.Link(link, QStringLiteral("b.ini"));
    QVERIFY(Exists(link));
    QCOMPARE(Load(link), ResultFailed);
}

void tst_ProfileFilePosix::fileWithoutReadPermissionFails()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("names.ini"), "k=v\n");
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions()));
    QVERIFY(QFile::setPermissions(folder.Path(), Open));
    const OrdinaryUser user;
    QVERIFY(Exists(path));
    QCOMPARE(Load(path), ResultFailed);
}

void tst_ProfileFilePosix::fileInClosedFolderIsMissing()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("closed/names.ini"), "k=v\n");
    QVERIFY(QFile::setPermissions(folder.Path(), Open));
    QVERIFY(QFile::setPermissions(folder.Path(QStringLiteral("closed")), QFileDevice::Permissions()));
    {
        const OrdinaryUser user;
        QVERIFY(Exists(folder.Path(QStringLiteral("closed"))));
        QVERIFY(!Exists(folder.Path(QStringLiteral("closed/*"))));
        QCOMPARE(Load(path), ResultFileMissing);
    }
    QVERIFY(QFile::setPermissions(folder.Path(QStringLiteral("closed")), Open));
}

void tst_ProfileFilePosix::letterCaseCounts()
{
    TestFolder folder;
    folder.File(QStringLiteral("Names.ini"));
    QVERIFY(Exists(folder.Path(QStringLiteral("Nam*"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("nam*"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("names.ini"))));
}

void tst_ProfileFilePosix::backslashIsAnOrdinaryCharacterButAtTheEnd()
{
    TestFolder folder;
    folder.File(QStringLiteral("a\\b.ini"));
    folder.File(QStringLiteral("a\\"));
    QVERIFY(Exists(folder.Path(QStringLiteral("a\\b.ini"))));
    QVERIFY(Exists(folder.Path(QStringLiteral("*\\b.ini"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("a/b.ini"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("a\\"))));
}

void tst_ProfileFilePosix::wildcardMatchesHiddenAndLinkedEntries()
{
    TestFolder folder;
    folder.File(QStringLiteral(".hidden.ini"));
    folder.Link(folder.Path(QStringLiteral("none")), QStringLiteral("dangling.cfg"));
    QVERIFY(Exists(folder.Path(QStringLiteral("*.ini"))));
    QVERIFY(Exists(folder.Path(QStringLiteral("?angling.cfg"))));
}

void tst_ProfileFilePosix::wildcardCharactersOfARealNameMatchThemselves()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("what?.ini"), "k=v\n");
    QCOMPARE(Load(path), ResultDone);
    QVERIFY(Exists(folder.Path(QStringLiteral("what*.ini"))));
    QVERIFY(Exists(folder.File(QStringLiteral("a*b/names.ini"))));
    QVERIFY(Exists(folder.Path(QStringLiteral("a*b/*.ini"))));
}

void tst_ProfileFilePosix::wildcardCharactersOfAFolderAreNotExpanded()
{
    // This folder may be entered, but not listed.
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("a*b/names.ini"), "k=v\n");
    const QString closed = folder.Path(QStringLiteral("a*b"));
    QVERIFY(QFile::setPermissions(folder.Path(), Open));
    QVERIFY(QFile::setPermissions(closed, QFileDevice::ExeOwner | QFileDevice::ExeGroup));
    {
        const OrdinaryUser user;
        QVERIFY(Exists(path));
        QVERIFY(!Exists(closed + QStringLiteral("/*.ini")));
    }
    QVERIFY(QFile::setPermissions(closed, Open));
}

void tst_ProfileFilePosix::relativePathsAreFound()
{
    TestFolder folder;
    folder.File(QStringLiteral("names.ini"), "k=v\n");
    const CurrentFolder current(folder.Path());
    QVERIFY(Exists(QStringLiteral("names.ini")));
    QVERIFY(Exists(QStringLiteral("./names.ini")));
    QVERIFY(Exists(QStringLiteral("n*.ini")));
    QVERIFY(!Exists(QStringLiteral("x*.ini")));
    QVERIFY(Exists(QStringLiteral(".")));
    QCOMPARE(Load(QStringLiteral("names.ini")), ResultDone);
}

void tst_ProfileFilePosix::rootAloneDoesNotExist()
{
    // Without its separator nothing is left of it.
    QVERIFY(!Exists(QStringLiteral("/")));
    QVERIFY(!Exists(QString()));
    QVERIFY(Exists(QStringLiteral("/*")));
}

void tst_ProfileFilePosix::questionMarkStandsForOneCharacter()
{
    TestFolder folder;
    folder.File(QStringLiteral("ü.ini"));
    folder.File(QStringLiteral("\U0001F600.cfg"));
    QVERIFY(Exists(folder.Path(QStringLiteral("?.ini"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("??.ini"))));
    QVERIFY(Exists(folder.Path(QStringLiteral("?.cfg"))));
}

KTFM_TEST_MAIN(tst_ProfileFilePosix)
#include "tst_profilefile_posix.moc"
