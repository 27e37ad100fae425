#include "widget/TreeCopy.h"

#include "tests/support/FileSizeLimit_posix.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

constexpr QDir::Filters Everything =
    QDir::Filters(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);

bool Copy(const QString& source, const QString& target)
{
    return TreeCopy(TreeCopy::Kind::Copy, [](const QString&) { qFatal("a copy removes nothing"); })
        .Run(source, target);
}

bool Move(const QString& source, const QString& target, QStringList* removed = nullptr)
{
    TreeCopy move(TreeCopy::Kind::Move, [removed](const QString& folder) {
        if (removed)
            removed->append(folder);
    });
    return move.Run(source, target);
}

/** All that is below a folder, links not followed, sorted. */
QStringList Below(const QString& path)
{
    QStringList names;
    QDirIterator entries(path, Everything, QDirIterator::Subdirectories);
    while (entries.hasNext())
        names.append(QDir(path).relativeFilePath(entries.next()));
    names.sort();
    return names;
}

QStringList Names(const QString& names)
{
    return names.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

class tst_TreeCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesFilesAndFolders();
    void mergesAndKeepsWhatIsThere();
    void moveLeavesNothing();
    void moveTellsOfEachFolderInnerOnesFirst();
    void moveKeepsWhatCouldNotBeCopied();
    void failureInASubFolderIsNotTheResult();
    void moveOfAnEmptyFolderIntoAFileKeepsIt();
    void moveWithoutAFolderToMoveToKeepsIt();
    void copyReadsThroughLinks();
    void linkThatLeadsBackIsLeftOut_data();
    void linkThatLeadsBackIsLeftOut();
    void linkThatLeadsToTheDestinationIsLeftOut();
    void linkedFolderThatHoldsTheDestinationLeavesItOut();
    void mergingIntoALinkBackIntoTheSourceEnds();
    void moveRemovesALinkAndKeepsWhatItShows();
    void moveOfALinkRemovesTheLink();
    void moveKeepsALinkWhoseContentDidNotArrive();
    void moveCopiesLinksIntoTheTreeBeforeItGoes();
    void folderOntoItselfIsLeftAlone_data();
    void folderOntoItselfIsLeftAlone();
    void pipesAreNeitherCopiedNorMoved();
    void linksToNothingStayInAMove();
    void fullDiskKeepsTheSources();
    void deepTreeIsCopiedAndMoved();
};

void tst_TreeCopy::copiesFilesAndFolders()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/a.txt"), "a");
    folder.File(QStringLiteral("s/.hidden"), "h");
    folder.File(QStringLiteral("s/in/.more/b"), "b");
    folder.Folder(QStringLiteral("s/empty"));
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("t"))),
             Names(QStringLiteral(".hidden a.txt empty in in/.more in/.more/b")));
    QCOMPARE(folder.Read(QStringLiteral("t/in/.more/b")), QByteArray("b"));
    QCOMPARE(Below(folder.Path(QStringLiteral("s"))), Below(folder.Path(QStringLiteral("t"))));
}

void tst_TreeCopy::mergesAndKeepsWhatIsThere()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/both"), "new");
    folder.File(QStringLiteral("s/in/fresh"), "new");
    folder.File(QStringLiteral("t/both"), "old");
    folder.File(QStringLiteral("t/in/other"), "old");
    QVERIFY(!Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("t"))), Names(QStringLiteral("both in in/fresh in/other")));
    QCOMPARE(folder.Read(QStringLiteral("t/both")), QByteArray("old"));
}

void tst_TreeCopy::moveLeavesNothing()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/a"), "a");
    folder.File(QStringLiteral("s/in/b"), "b");
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path()), Names(QStringLiteral("t t/a t/in t/in/b")));
    QCOMPARE(folder.Read(QStringLiteral("t/in/b")), QByteArray("b"));
}

void tst_TreeCopy::moveTellsOfEachFolderInnerOnesFirst()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/in/deep/file"));
    QStringList removed;
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t")), &removed));
    QCOMPARE(removed, QStringList({folder.Path(QStringLiteral("s/in/deep")),
                                   folder.Path(QStringLiteral("s/in")), folder.Path(QStringLiteral("s"))}));
}

void tst_TreeCopy::moveKeepsWhatCouldNotBeCopied()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/in/both"), "new");
    folder.File(QStringLiteral("s/in/fresh"), "new");
    folder.File(QStringLiteral("s/else/c"), "new");
    folder.File(QStringLiteral("t/in/both"), "old");
    QStringList removed;
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t")), &removed));
    QCOMPARE(removed, QStringList(folder.Path(QStringLiteral("s/else"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("s"))), Names(QStringLiteral("in in/both")));
    QCOMPARE(folder.Read(QStringLiteral("s/in/both")), QByteArray("new"));
    QCOMPARE(folder.Read(QStringLiteral("t/in/both")), QByteArray("old"));
}

void tst_TreeCopy::failureInASubFolderIsNotTheResult()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/in/both"));
    folder.File(QStringLiteral("t/in/both"));
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
}

void tst_TreeCopy::moveOfAnEmptyFolderIntoAFileKeepsIt()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("s/in"));
    folder.File(QStringLiteral("t/in"));
    Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t")));
    QCOMPARE(Below(folder.Path(QStringLiteral("s"))), Names(QStringLiteral("in")));
}

void tst_TreeCopy::moveWithoutAFolderToMoveToKeepsIt()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("s"));
    QVERIFY(!Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("gone/t"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("s"))));
}

void tst_TreeCopy::copyReadsThroughLinks()
{
    const TestFolder folder;
    folder.File(QStringLiteral("out/in/file"), "text");
    folder.Folder(QStringLiteral("s"));
    folder.Link(folder.Path(QStringLiteral("out")), QStringLiteral("s/toFolder"));
    folder.Link(folder.Path(QStringLiteral("out")), QStringLiteral("s/again"));
    folder.Link(folder.Path(QStringLiteral("out/in/file")), QStringLiteral("s/toFile"));
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(
        Below(folder.Path(QStringLiteral("t"))),
        Names(QStringLiteral("again again/in again/in/file toFile toFolder toFolder/in toFolder/in/file")));
    QVERIFY(!QFileInfo(folder.Path(QStringLiteral("t/toFolder"))).isSymLink());
    QCOMPARE(folder.Read(QStringLiteral("t/toFile")), QByteArray("text"));
}

void tst_TreeCopy::linkThatLeadsBackIsLeftOut_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("to the folder that holds it") << "up/s/in";
    QTest::newRow("to the copied folder") << "up/s";
    QTest::newRow("to the folder above") << "up";
    QTest::newRow("to the test's folder") << "";
    QTest::newRow("to the root") << "/";
}

void tst_TreeCopy::linkThatLeadsBackIsLeftOut()
{
    const TestFolder folder;
    folder.File(QStringLiteral("up/s/in/file"));
    folder.Folder(QStringLiteral("d"));
    QFETCH(QString, target);
    folder.Link(target == QLatin1String("/") ? target : folder.Path(target), QStringLiteral("up/s/in/link"));
    QVERIFY(Copy(folder.Path(QStringLiteral("up/s")), folder.Path(QStringLiteral("d/s"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("d"))), Names(QStringLiteral("s s/in s/in/file")));
}

void tst_TreeCopy::linkThatLeadsToTheDestinationIsLeftOut()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/file"));
    folder.File(QStringLiteral("d/beside"));
    folder.Link(folder.Path(QStringLiteral("d")), QStringLiteral("s/toDestination"));
    folder.Link(folder.Path(QStringLiteral("d/s")), QStringLiteral("s/toTarget"));
    folder.Folder(QStringLiteral("d/s"));
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("d/s"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("d"))), Names(QStringLiteral("beside s s/file")));
}

void tst_TreeCopy::linkedFolderThatHoldsTheDestinationLeavesItOut()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("s"));
    folder.File(QStringLiteral("b/file"));
    folder.File(QStringLiteral("b/d/beside"));
    folder.Link(folder.Path(QStringLiteral("b")), QStringLiteral("s/link"));
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("b/d/s"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("b/d"))), Names(QStringLiteral("beside s s/link s/link/file")));
}

void tst_TreeCopy::mergingIntoALinkBackIntoTheSourceEnds()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/file"));
    folder.File(QStringLiteral("s/in/deep/other"));
    folder.Folder(QStringLiteral("d/s"));
    folder.Link(folder.Path(QStringLiteral("s/in/deep")), QStringLiteral("d/s/in"));
    Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("d/s")));
    QCOMPARE(Below(folder.Path(QStringLiteral("s"))), Names(QStringLiteral("file in in/deep in/deep/other")));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("d/s/file"))));
}

void tst_TreeCopy::moveRemovesALinkAndKeepsWhatItShows()
{
    const TestFolder folder;
    folder.File(QStringLiteral("out/in/file"), "text");
    folder.Folder(QStringLiteral("s"));
    folder.Link(folder.Path(QStringLiteral("out")), QStringLiteral("s/toFolder"));
    folder.Link(folder.Path(QStringLiteral("out/in/file")), QStringLiteral("s/toFile"));
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path()),
             Names(QStringLiteral("out out/in out/in/file t t/toFile t/toFolder t/toFolder/in "
                                  "t/toFolder/in/file")));
    QCOMPARE(folder.Read(QStringLiteral("out/in/file")), QByteArray("text"));
}

void tst_TreeCopy::moveOfALinkRemovesTheLink()
{
    const TestFolder folder;
    folder.File(QStringLiteral("out/file"));
    const QString link = folder.Link(folder.Path(QStringLiteral("out")), QStringLiteral("s"));
    QVERIFY(Move(link, folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path()), Names(QStringLiteral("out out/file t t/file")));
}

void tst_TreeCopy::moveKeepsALinkWhoseContentDidNotArrive()
{
    const TestFolder folder;
    folder.File(QStringLiteral("out/in/both"), "new");
    folder.File(QStringLiteral("out/fresh"), "new");
    folder.Folder(QStringLiteral("s"));
    const QString link = folder.Link(folder.Path(QStringLiteral("out")), QStringLiteral("s/link"));
    folder.File(QStringLiteral("t/link/in/both"), "old");
    Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t")));
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(Below(folder.Path(QStringLiteral("out"))), Names(QStringLiteral("fresh in in/both")));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("t/link/fresh"))));
}

void tst_TreeCopy::moveCopiesLinksIntoTheTreeBeforeItGoes()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/lib/file.1"), "text");
    folder.Link(folder.Path(QStringLiteral("s/lib/file.1")), QStringLiteral("s/lib/file"));
    folder.Folder(QStringLiteral("s/bin"));
    folder.Link(folder.Path(QStringLiteral("s/lib/file")), QStringLiteral("s/bin/run"));
    folder.Link(folder.Path(QStringLiteral("s/lib")), QStringLiteral("s/libs"));
    folder.File(QStringLiteral("s/zoo/in/file"), "zoo");
    folder.Link(folder.Path(QStringLiteral("s/zoo/in")), QStringLiteral("s/bin/zoo"));
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("s"))));
    QCOMPARE(Below(folder.Path(QStringLiteral("t"))),
             Names(QStringLiteral("bin bin/run bin/zoo bin/zoo/file lib lib/file lib/file.1 libs libs/file "
                                  "libs/file.1 zoo zoo/in zoo/in/file")));
    QCOMPARE(folder.Read(QStringLiteral("t/bin/run")), QByteArray("text"));
}

void tst_TreeCopy::folderOntoItselfIsLeftAlone_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("linkTarget");
    QTest::addColumn<QString>("target");
    QTest::newRow("through a linked parent") << "other"
                                             << "in"
                                             << "other/s";
    QTest::newRow("through a link to it") << "link"
                                          << "in/s"
                                          << "link";
}

void tst_TreeCopy::folderOntoItselfIsLeftAlone()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("in/s/empty"));
    QFETCH(QString, link);
    QFETCH(QString, linkTarget);
    QFETCH(QString, target);
    folder.Link(folder.Path(linkTarget), link);
    Move(folder.Path(QStringLiteral("in/s")), folder.Path(target));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("in/s/empty"))));
}

void tst_TreeCopy::pipesAreNeitherCopiedNorMoved()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/in/file"));
    const QString pipe = folder.Path(QStringLiteral("s/in/pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    folder.Link(pipe, QStringLiteral("s/in/link"));
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path()), Names(QStringLiteral("s s/in s/in/link s/in/pipe t t/in t/in/file")));
}

void tst_TreeCopy::linksToNothingStayInAMove()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/file"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("s/link"));
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    QCOMPARE(Below(folder.Path()), Names(QStringLiteral("s s/link t t/file")));
}

void tst_TreeCopy::fullDiskKeepsTheSources()
{
    const TestFolder folder;
    folder.File(QStringLiteral("s/small"), QByteArray(1000, 's'));
    folder.File(QStringLiteral("s/in/large"), QByteArray(200000, 'l'));
    {
        const FileSizeLimit limit(100000);
        QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("t"))));
    }
    QCOMPARE(Below(folder.Path()), Names(QStringLiteral("s s/in s/in/large t t/in t/small")));
    QCOMPARE(folder.Read(QStringLiteral("s/in/large")).size(), 200000);
}

void tst_TreeCopy::deepTreeIsCopiedAndMoved()
{
    const TestFolder folder;
    const QString deepest = QStringLiteral("/d").repeated(600) + QStringLiteral("/f");
    folder.File(QStringLiteral("s") + deepest, "deep");
    QVERIFY(Copy(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("c"))));
    QCOMPARE(folder.Read(QStringLiteral("c") + deepest), QByteArray("deep"));
    QStringList removed;
    QVERIFY(Move(folder.Path(QStringLiteral("s")), folder.Path(QStringLiteral("m")), &removed));
    QCOMPARE(folder.Read(QStringLiteral("m") + deepest), QByteArray("deep"));
    QCOMPARE(removed.size(), 601);
}

KTFM_TEST_MAIN(tst_TreeCopy)
#include "tst_treecopy_posix.moc"
