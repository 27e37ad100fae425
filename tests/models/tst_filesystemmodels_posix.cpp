#include "models/CMySortFilterProxyModel.h"

#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "tests/support/ConfinedModel.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/WithoutRoot_posix.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using List = ConfinedModel<CKTFMListModel>;
using Tree = ConfinedModel<CKTFMTreeModel>;

QStringList Names(const QAbstractItemModel& model, const QModelIndex& root)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(root); ++row)
        names.append(model.index(row, 0, root).data(QFileSystemModel::FileNameRole).toString());
    names.sort();
    return names;
}

void SetMode(const QString& path, mode_t mode)
{
    if (chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("cannot set the permissions of %s", qPrintable(path));
}

/** Gives a folder another mode for one test, so that the folder can be removed after it. */
class TemporaryMode
{
public:
    TemporaryMode(const QString& path, mode_t mode) : m_path(path) { SetMode(path, mode); }
    ~TemporaryMode() { SetMode(m_path, 0777); }
    TemporaryMode(const TemporaryMode&) = delete;
    TemporaryMode& operator=(const TemporaryMode&) = delete;

private:
    QString m_path;
};

/** Asks a model for everything that a view would, and paints each icon. */
void ShowAll(const QAbstractItemModel& model, const QModelIndex& root)
{
    for (int row = 0; row < model.rowCount(root); ++row) {
        for (int column = 0; column < model.columnCount(root); ++column) {
            const QModelIndex index = model.index(row, column, root);
            for (const int role : {Qt::DisplayRole, Qt::EditRole, Qt::ToolTipRole, Qt::SizeHintRole})
                index.data(role);
            index.data(Qt::DecorationRole).value<QIcon>().pixmap(32);
        }
    }
}

} // namespace

/** What only POSIX systems have on their disks and in their rights, and what the models make of it. */
class tst_FileSystemModelsPosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folderThatMayNotBeReadIsEmpty();
    void folderThatMayNoMoreBeReadKeepsWhatWasKnown();
    void renameInAFolderThatMayNotBeWrittenIsRefused();
    void namesThatAreNotUtf8AreListedAndNeverHarmed();
    void namesWithLineBreaksAreWhole();
    void namesMayFill255Bytes();
    void circlesOfLinksEndNothing();
};

void tst_FileSystemModelsPosix::folderThatMayNotBeReadIsEmpty()
{
    TestFolder folder;
    folder.File(QStringLiteral("closed/a.txt"));
    const TemporaryMode open(folder.Path(), 0777);
    const TemporaryMode closed(folder.Path(QStringLiteral("closed")), 0);
    const WithoutRoot user;
    QVERIFY(QDir(folder.Path(QStringLiteral("closed"))).entryList().isEmpty());
    List list(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&list);
    proxy.sort(0, Qt::DescendingOrder);
    const QPersistentModelIndex root = list.Load(folder.Path(QStringLiteral("closed")));
    QVERIFY(root.isValid());
    QCOMPARE(list.rowCount(root), 0);
    QCOMPARE(proxy.rowCount(proxy.mapFromSource(root)), 0);
}

void tst_FileSystemModelsPosix::folderThatMayNoMoreBeReadKeepsWhatWasKnown()
{
    TestFolder folder;
    const TemporaryMode open(folder.Path(), 0777);
    const WithoutRoot user;
    folder.File(QStringLiteral("shown/a.txt"));
    folder.Folder(QStringLiteral("shown/b"));
    List list(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&list);
    proxy.sort(0, Qt::DescendingOrder);
    const QPersistentModelIndex root = list.Load(folder.Path(QStringLiteral("shown")));
    QCOMPARE(list.rowCount(root), 2);
    const QModelIndex file = list.index(folder.Path(QStringLiteral("shown/a.txt")));
    {
        QSignalSpy loaded(&list, &QFileSystemModel::directoryLoaded);
        const TemporaryMode closed(folder.Path(QStringLiteral("shown")), 0);
        QVERIFY(loaded.wait());
        // The base takes no list for no change: what was known stays, and can be asked and sorted.
        QCOMPARE(list.rowCount(root), 2);
        proxy.sort(3, Qt::AscendingOrder);
        ShowAll(proxy, proxy.mapFromSource(root));
        QVERIFY(!list.setData(file, QStringLiteral("c.txt")));
    }
    folder.File(QStringLiteral("shown/d.txt"));
    QTRY_COMPARE(list.rowCount(root), 3);
    QCOMPARE(Names(proxy, proxy.mapFromSource(root)), Names(list, root));
}

void tst_FileSystemModelsPosix::renameInAFolderThatMayNotBeWrittenIsRefused()
{
    TestFolder folder;
    const TemporaryMode open(folder.Path(), 0777);
    const WithoutRoot user;
    folder.File(QStringLiteral("shown/a.txt"), "content");
    folder.Folder(QStringLiteral("shown/sub"));
    const TemporaryMode closed(folder.Path(QStringLiteral("shown")), 0555);
    List list(folder.Path());
    Tree tree(folder.Path());
    list.Load(folder.Path(QStringLiteral("shown")));
    tree.Load(folder.Path(QStringLiteral("shown")));
    QSignalSpy listErrors(&list, &CKTFMListModel::RenameFileError);
    QSignalSpy treeErrors(&tree, &CKTFMTreeModel::RenameFileError);
    QSignalSpy successes(&list, &CKTFMListModel::RenameSuccess);
    QVERIFY(!list.setData(list.index(folder.Path(QStringLiteral("shown/a.txt"))), QStringLiteral("b")));
    QVERIFY(!tree.setData(tree.index(folder.Path(QStringLiteral("shown/sub"))), QStringLiteral("b")));
    QTRY_COMPARE(listErrors, QList<QList<QVariant>>{{1}});
    QTRY_COMPARE(treeErrors, QList<QList<QVariant>>{{1}});
    QCOMPARE(successes.count(), 0);
    QCOMPARE(folder.Read(QStringLiteral("shown/a.txt")), QByteArray("content"));
    QCOMPARE(QDir(folder.Path(QStringLiteral("shown"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({QStringLiteral("a.txt"), QStringLiteral("sub")}));
}

void tst_FileSystemModelsPosix::namesThatAreNotUtf8AreListedAndNeverHarmed()
{
    TestFolder folder;
    folder.File(QStringLiteral("good.txt"));
    const QByteArray bad = QFile::encodeName(folder.Path()) + "/b\xff\xfe.txt";
    const int descriptor = open(bad.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    QVERIFY(descriptor >= 0);
    QCOMPARE(write(descriptor, "content", 7), ssize_t(7));
    close(descriptor);
    List list(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&list);
    const QModelIndex root = list.Load(folder.Path());
    QVERIFY(Names(list, root).contains(QStringLiteral("good.txt")));
    for (int column = 0; column < 4; ++column) {
        proxy.sort(column, Qt::DescendingOrder);
        ShowAll(proxy, proxy.mapFromSource(root));
    }
    for (int row = 0; row < list.rowCount(root); ++row)
        list.setData(list.index(row, 0, root), QStringLiteral("renamed%1").arg(row));
    QCoreApplication::sendPostedEvents(&list);
    // Whether it could be renamed or not: a file with this content is still there.
    int found = 0;
    for (const QByteArray& path : {bad, QFile::encodeName(folder.Path(QStringLiteral("renamed0.txt"))),
                                   QFile::encodeName(folder.Path(QStringLiteral("renamed1.txt")))}) {
        struct stat status = {};
        found += stat(path.constData(), &status) == 0 && status.st_size == 7;
    }
    QCOMPARE(found, 1);
    // A temporary folder cannot remove such a file.
    unlink(bad.constData());
}

void tst_FileSystemModelsPosix::namesWithLineBreaksAreWhole()
{
    TestFolder folder;
    folder.File(QStringLiteral("a\nb.txt"), "content");
    folder.Folder(QStringLiteral("c\nd"));
    List list(folder.Path());
    Tree tree(folder.Path());
    list.Load(folder.Path());
    tree.Load(folder.Path());
    const QModelIndex file = list.index(folder.Path(QStringLiteral("a\nb.txt")));
    QCOMPARE(file.data().toString(), QStringLiteral("a\nb"));
    QCOMPARE(tree.index(folder.Path(QStringLiteral("c\nd"))).data().toString(), QStringLiteral("c\nd"));
    QVERIFY(list.setData(file, QStringLiteral("x\ny")));
    QCOMPARE(folder.Read(QStringLiteral("x\ny.txt")), QByteArray("content"));
}

void tst_FileSystemModelsPosix::namesMayFill255Bytes()
{
    TestFolder folder;
    // Letters of two bytes: fewer letters than bytes.
    const QString name = QString(125, QChar(0xe4)) + QStringLiteral("x.txt");
    QCOMPARE(name.toUtf8().size(), 255);
    folder.File(name, "content");
    List list(folder.Path());
    list.Load(folder.Path());
    const QModelIndex index = list.index(folder.Path(name));
    QCOMPARE(index.data().toString(), name.left(126));
    QVERIFY(list.setData(index, QString(125, QChar(0xf6)) + QLatin1Char('y')));
    QCOMPARE(folder.Read(QString(125, QChar(0xf6)) + QStringLiteral("y.txt")), QByteArray("content"));
}

void tst_FileSystemModelsPosix::circlesOfLinksEndNothing()
{
    TestFolder folder;
    folder.File(QStringLiteral("shown/a.txt"));
    folder.Link(folder.Path(QStringLiteral("shown")), QStringLiteral("shown/itself"));
    folder.Link(folder.Path(QStringLiteral("shown/two")), QStringLiteral("shown/one"));
    folder.Link(folder.Path(QStringLiteral("shown/one")), QStringLiteral("shown/two"));
    const QString shown = folder.Path(QStringLiteral("shown"));
    for (const bool resolve : {false, true}) {
        List list(folder.Path());
        list.setResolveSymlinks(resolve);
        CMySortFilterProxyModel proxy;
        proxy.setSourceModel(&list);
        const QModelIndex root = list.Load(shown);
        QVERIFY(Names(list, root).contains(QStringLiteral("itself")));
        for (int column = 0; column < 4; ++column) {
            proxy.sort(column, Qt::AscendingOrder);
            ShowAll(proxy, proxy.mapFromSource(root));
        }
        Tree tree(folder.Path());
        tree.setResolveSymlinks(resolve);
        QCOMPARE(tree.rowCount(tree.Load(shown)), 0);
    }
    List list(folder.Path());
    const QModelIndex inside = list.Load(shown + QStringLiteral("/itself/itself"));
    QVERIFY(Names(list, inside).contains(QStringLiteral("a.txt")));
}

KTFM_TEST_MAIN(tst_FileSystemModelsPosix)
#include "tst_filesystemmodels_posix.moc"
