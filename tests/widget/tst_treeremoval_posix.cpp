#include "widget/TreeRemoval.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFileInfo>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/** Removes a folder and notes which folders it was told of. */
bool Remove(const QString& path, QStringList* removed = nullptr)
{
    return TreeRemoval::Remove(path, [removed](const QString& folder) {
        if (removed)
            removed->append(folder);
    });
}

/** Runs @p action in a child process whose file-system root is @p root. @return what it returned */
int ExitCodeInRoot(const QString& root, int (*action)())
{
    const pid_t child = fork();
    if (child == 0) {
        const bool isInside = (geteuid() == 0 || unshare(CLONE_NEWUSER) == 0) &&
                              chroot(qPrintable(root)) == 0 && chdir("/") == 0;
        _exit(isInside ? action() : 255);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

class tst_TreeRemoval : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesEverythingInIt();
    void tellsOfEachFolderInnerOnesFirst();
    void whatIsNotThereCountsAsRemoved();
    void fileIsNotTouched();
    void linksInsideAreRemovedAsThemselves();
    void linkItselfIsRemovedAsItself();
    void pipesAndLinksToNothingAreRemoved();
    void folderThatBecomesALinkMeanwhileIsNotGoneThrough();
    void deepTreeIsRemoved();
    void rootIsNeverTouched();
    void firstFailureLeavesTheRest();
    void emptyingKeepsTheFolder();
    void emptyingNeverGoesThroughALink();
};

void tst_TreeRemoval::removesEverythingInIt()
{
    const TestFolder folder;
    folder.File(QStringLiteral("top/a.txt"));
    folder.File(QStringLiteral("top/.hidden"));
    folder.File(QStringLiteral("top/.cache/in/b"));
    folder.Folder(QStringLiteral("top/empty"));
    folder.File(QStringLiteral("beside"));
    QVERIFY(Remove(folder.Path(QStringLiteral("top"))));
    QCOMPARE(QDir(folder.Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("beside")));
}

void tst_TreeRemoval::tellsOfEachFolderInnerOnesFirst()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top/b"));
    folder.Folder(QStringLiteral("top/a/inner"));
    QStringList removed;
    QVERIFY(Remove(folder.Path(QStringLiteral("top")), &removed));
    QCOMPARE(removed,
             QStringList({folder.Path(QStringLiteral("top/a/inner")), folder.Path(QStringLiteral("top/a")),
                          folder.Path(QStringLiteral("top/b")), folder.Path(QStringLiteral("top"))}));
}

void tst_TreeRemoval::whatIsNotThereCountsAsRemoved()
{
    const TestFolder folder;
    QVERIFY(Remove(folder.Path(QStringLiteral("gone"))));
    QVERIFY(Remove(QString()));
}

void tst_TreeRemoval::fileIsNotTouched()
{
    const TestFolder folder;
    QVERIFY(Remove(folder.File(QStringLiteral("file"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("file"))));
}

void tst_TreeRemoval::linksInsideAreRemovedAsThemselves()
{
    const TestFolder folder;
    folder.File(QStringLiteral("outside/kept"), "kept");
    folder.Folder(QStringLiteral("top/in"));
    folder.Link(folder.Path(QStringLiteral("outside")), QStringLiteral("top/toFolder"));
    folder.Link(folder.Path(QStringLiteral("outside/kept")), QStringLiteral("top/in/toFile"));
    folder.Link(folder.Path(), QStringLiteral("top/in/up"));
    QVERIFY(Remove(folder.Path(QStringLiteral("top"))));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
    QCOMPARE(folder.Read(QStringLiteral("outside/kept")), QByteArray("kept"));
}

void tst_TreeRemoval::linkItselfIsRemovedAsItself()
{
    const TestFolder folder;
    folder.File(QStringLiteral("outside/kept"), "kept");
    const QString link = folder.Link(folder.Path(QStringLiteral("outside")), QStringLiteral("link"));
    QStringList removed;
    QVERIFY(Remove(link, &removed));
    QCOMPARE(removed, QStringList(link));
    QVERIFY(!QFileInfo(link).isSymLink());
    QCOMPARE(folder.Read(QStringLiteral("outside/kept")), QByteArray("kept"));
}

void tst_TreeRemoval::pipesAndLinksToNothingAreRemoved()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("top"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("top/link"));
    QCOMPARE(mkfifo(qPrintable(folder.Path(QStringLiteral("top/pipe"))), 0600), 0);
    QVERIFY(Remove(folder.Path(QStringLiteral("top"))));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
}

void tst_TreeRemoval::folderThatBecomesALinkMeanwhileIsNotGoneThrough()
{
    const TestFolder folder;
    folder.File(QStringLiteral("outside/kept"), "kept");
    folder.Folder(QStringLiteral("top/a"));
    const QString swapped = folder.Folder(QStringLiteral("top/b"));
    // The removal has listed both by now and goes into the second next.
    const auto swap = [&](const QString& removed) {
        if (removed == folder.Path(QStringLiteral("top/a")) && QDir().rmdir(swapped))
            folder.Link(folder.Path(QStringLiteral("outside")), QStringLiteral("top/b"));
    };
    const bool done = TreeRemoval::Remove(folder.Path(QStringLiteral("top")), swap);
    QCOMPARE(folder.Read(QStringLiteral("outside/kept")), QByteArray("kept"));
    QVERIFY(done);
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
}

void tst_TreeRemoval::deepTreeIsRemoved()
{
    const TestFolder folder;
    const QString deepest = QStringLiteral("top") + QStringLiteral("/d").repeated(600);
    folder.File(deepest + QStringLiteral("/f"));
    QStringList removed;
    QVERIFY(Remove(folder.Path(QStringLiteral("top")), &removed));
    QCOMPARE(removed.size(), 601);
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
}

void tst_TreeRemoval::rootIsNeverTouched()
{
    const TestFolder folder;
    folder.File(QStringLiteral("kept/file"));
    QCOMPARE(ExitCodeInRoot(folder.Path(),
                            [] {
                                const bool refused =
                                    !Remove(QStringLiteral("/")) && !TreeRemoval::Empty(QStringLiteral("/"));
                                return refused ? 0 : 1;
                            }),
             0);
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("kept/file"))));
}

void tst_TreeRemoval::firstFailureLeavesTheRest()
{
    const TestFolder folder;
    folder.File(QStringLiteral("top/a/gone"));
    const QString stuck = folder.Folder(QStringLiteral("top/b"));
    folder.File(QStringLiteral("top/c/kept"));
    folder.File(QStringLiteral("top/file"));
    if (mount("none", qPrintable(stuck), "tmpfs", 0, "size=64k") != 0)
        QSKIP("a mount point, which nobody can remove, cannot be made here");
    QStringList removed;
    const bool done = Remove(folder.Path(QStringLiteral("top")), &removed);
    umount(qPrintable(stuck));
    QVERIFY(!done);
    QCOMPARE(removed, QStringList(folder.Path(QStringLiteral("top/a"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("top/c/kept"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("top/file"))));
}

void tst_TreeRemoval::emptyingKeepsTheFolder()
{
    const TestFolder folder;
    folder.File(QStringLiteral("top/in/a"));
    folder.File(QStringLiteral("top/b"));
    QVERIFY(TreeRemoval::Empty(folder.Path(QStringLiteral("top"))));
    QVERIFY(QDir(folder.Path(QStringLiteral("top"))).isEmpty());
}

void tst_TreeRemoval::emptyingNeverGoesThroughALink()
{
    const TestFolder folder;
    folder.File(QStringLiteral("outside/kept"));
    QVERIFY(!TreeRemoval::Empty(folder.Link(folder.Path(QStringLiteral("outside")), QStringLiteral("link"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("outside/kept"))));
    QVERIFY(!TreeRemoval::Empty(folder.Path(QStringLiteral("gone"))));
}

KTFM_TEST_MAIN(tst_TreeRemoval)
#include "tst_treeremoval_posix.moc"
