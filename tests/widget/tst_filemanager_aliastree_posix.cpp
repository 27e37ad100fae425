#include "tests/support/TestMain.h"
#include "tests/support/WithoutRoot_posix.h"
#include "tests/widget/AliasPane.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <sys/stat.h>

namespace {

const QStringList Top{QStringLiteral("Top")};

/** The mode of a file or folder that nobody may read. */
constexpr mode_t Unreadable = 0000;

/** The mode of a folder that everybody may use. */
constexpr mode_t Open = 0777;

bool SetMode(const QString& path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace

/** The alias tree on files, folders and names that only POSIX systems have. */
class tst_FileManagerAliasTreePosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void unreadableTableChangesNothing();
    void unreadableFolderKeepsItsItems();
    void oddNamesAreFollowed_data();
    void oddNamesAreFollowed();
    void nameThatIsNotUtf8IsHarmless();
    void folderReachedThroughALinkIsFollowed();
    void linksInCirclesAreNotFollowed();
};

void tst_FileManagerAliasTreePosix::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
}

void tst_FileManagerAliasTreePosix::unreadableTableChangesNothing()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(SetMode(pane.m_folder.Path(), Open));
    const QString file = pane.m_folder.File(QStringLiteral("table"), "Other\n");
    QVERIFY(SetMode(file, Unreadable));
    QVERIFY(pane.LoadTop());
    const QStringList watched = pane.Watched();
    {
        const WithoutRoot user;
        QVERIFY(!pane.m_pPane->PopulateAliasTable(file));
    }
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Watched(), watched);
}

void tst_FileManagerAliasTreePosix::unreadableFolderKeepsItsItems()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Top/A"));
    pane.m_folder.Folder(QStringLiteral("Top/B"));
    QVERIFY(SetMode(pane.m_folder.Path(), Open));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    pane.m_folder.Folder(QStringLiteral("Top/C"));
    QVERIFY(SetMode(pane.m_folder.Path(QStringLiteral("Top")), Unreadable));
    {
        const WithoutRoot user;
        pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
        QCOMPARE(pane.Labels(Top), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
        QVERIFY(pane.LoadTop(QStringLiteral("Top"))); // the watcher has nothing to complain of
        QCOMPARE(pane.Labels(Top), QStringList());
        QCOMPARE(pane.Watched(), QStringList());
    }
    QVERIFY(SetMode(pane.m_folder.Path(QStringLiteral("Top")), Open));
}

void tst_FileManagerAliasTreePosix::oddNamesAreFollowed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("line break") << QStringLiteral("a\nb");
    QTest::newRow("tab") << QStringLiteral("a\tb");
    QTest::newRow("blanks around") << QStringLiteral(" a ");
    QTest::newRow("backslash") << QStringLiteral("a\\b");
    QTest::newRow("wildcards") << QStringLiteral("[a]*?");
    QTest::newRow("colon") << QStringLiteral("a:b");
    QTest::newRow("two dots and more") << QStringLiteral("..a");
    QTest::newRow("beyond 16 bits") << QString::fromUcs4(U"\U0001f600", 1);
    QTest::newRow("as long as can be") << QString(255, QLatin1Char('x'));
}

void tst_FileManagerAliasTreePosix::oddNamesAreFollowed()
{
    QFETCH(QString, name);
    const bool isHidden = name.startsWith(QLatin1Char('.'));
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("Top"));
    QVERIFY(pane.LoadTop(QStringLiteral("Top")));
    const QString folder = pane.m_folder.Folder(QStringLiteral("Top/") + name);
    pane.m_folder.Folder(QStringLiteral("Top/last"));
    QTRY_VERIFY(pane.Labels(Top).contains(QStringLiteral("last")));
    QCOMPARE(pane.Labels(Top).contains(name), !isHidden);
    QCOMPARE(pane.Watched().contains(folder), !isHidden);
    QVERIFY(QDir().rmdir(folder));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("last")));
    QTRY_VERIFY(!pane.Watched().contains(folder));
}

void tst_FileManagerAliasTreePosix::nameThatIsNotUtf8IsHarmless()
{
    const AliasPane pane;
    const QByteArray path = QFile::encodeName(pane.m_folder.Path()) + "/\xff\xfe";
    QCOMPARE(mkdir(path.constData(), Open), 0);
    pane.m_folder.Folder(QStringLiteral("A"));
    QVERIFY(pane.LoadTop());
    QVERIFY(pane.Labels(Top).contains(QStringLiteral("A")));
    pane.m_pPane->ScanForAliasTreeDirectories(pane.Item(Top));
    QVERIFY(pane.Model()->rowCount(pane.Item(Top)) <= 2);
    QCOMPARE(rmdir(path.constData()), 0);
}

void tst_FileManagerAliasTreePosix::folderReachedThroughALinkIsFollowed()
{
    const AliasPane pane;
    const QString link =
        pane.m_folder.Link(pane.m_folder.Folder(QStringLiteral("real/A")), QStringLiteral("link"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(AliasLine(Top.first(), link)));
    QCOMPARE(pane.Watched(), QStringList(link));
    pane.m_folder.Folder(QStringLiteral("real/A/new"));
    QTRY_COMPARE(pane.Labels(Top), QStringList(QStringLiteral("new")));
    QCOMPARE(pane.Model()->GetMappedFolderPath(pane.Model()->index(0, 0, pane.Item(Top))),
             link + QStringLiteral("/new"));
}

void tst_FileManagerAliasTreePosix::linksInCirclesAreNotFollowed()
{
    const AliasPane pane;
    pane.m_folder.Folder(QStringLiteral("A"));
    pane.m_folder.Link(pane.m_folder.Path(), QStringLiteral("A/up"));
    const QString self =
        pane.m_folder.Link(pane.m_folder.Path(QStringLiteral("self")), QStringLiteral("self"));
    QVERIFY(pane.m_pPane->PopulateAliasTable(AliasLine(Top.first(), pane.m_folder.Path()) +
                                             AliasLine(QStringLiteral("Self"), self)));
    pane.AliasTree()->expandAll();
    QCOMPARE(pane.Labels(Top), QStringList(QStringLiteral("A")));
    QCOMPARE(pane.Labels({Top.first(), QStringLiteral("A")}), QStringList());
    QCOMPARE(pane.Watched(), pane.Paths({QString(), QStringLiteral("A")}));
}

KTFM_TEST_MAIN(tst_FileManagerAliasTreePosix)
#include "tst_filemanager_aliastree_posix.moc"
