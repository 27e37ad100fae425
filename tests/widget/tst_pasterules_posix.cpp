#include "widget/PasteRules.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>

#include <sys/mount.h>

class tst_PasteRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyAWritableFolderTakesAPaste();
    void readOnlyFolderTakesNoPaste();
    void conflictIsWhatHasTheName();
    void destinationIsFoundInAnyPartOfItsPath();
    void filesHoldNoDestination();
    void itemsWhoseTargetsStayAreLeftOut();
    void unlistedTargetNeverEmptiesTheCurrentFolder();
};

void tst_PasteRules::onlyAWritableFolderTakesAPaste()
{
    const TestFolder folder;
    QVERIFY(PasteRules::CanPasteInto(folder.Path()));
    QVERIFY(!PasteRules::CanPasteInto(folder.Path(QStringLiteral("gone"))));
    QVERIFY(!PasteRules::CanPasteInto(folder.File(QStringLiteral("file"))));
    QVERIFY(!PasteRules::CanPasteInto(QString()));
}

void tst_PasteRules::readOnlyFolderTakesNoPaste()
{
    const TestFolder folder;
    const QString path = folder.Folder(QStringLiteral("fixed"));
    if (mount("none", qPrintable(path), "tmpfs", MS_RDONLY, "size=64k") != 0)
        QSKIP("a read-only file system, which stops everyone, cannot be mounted here");
    const bool can = PasteRules::CanPasteInto(path);
    umount(qPrintable(path));
    QVERIFY(!can);
    QVERIFY(PasteRules::CanPasteInto(path));
}

void tst_PasteRules::conflictIsWhatHasTheName()
{
    const TestFolder folder;
    folder.File(QStringLiteral("to/a"));
    folder.Folder(QStringLiteral("to/docs"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("to/link"));
    const QString to = folder.Path(QStringLiteral("to"));
    for (const QString& name : {QStringLiteral("a"), QStringLiteral("docs"), QStringLiteral("link")})
        QVERIFY(PasteRules::IsConflict(folder.Path(QStringLiteral("out/") + name), to));
    QVERIFY(!PasteRules::IsConflict(folder.Path(QStringLiteral("out/b")), to));
    QVERIFY(!PasteRules::IsConflict(to + QStringLiteral("/a"), to));
    QVERIFY(!PasteRules::IsConflict(folder.Path(QStringLiteral("TO/a")), to));
    QVERIFY(!PasteRules::IsConflict(QStringLiteral("/"), to));
}

void tst_PasteRules::destinationIsFoundInAnyPartOfItsPath()
{
    const TestFolder folder;
    const QString inner = folder.Folder(QStringLiteral("Outer/inner"));
    QVERIFY(PasteRules::HoldDestination({folder.Path(QStringLiteral("Outer"))}, inner));
    QVERIFY(PasteRules::HoldDestination({folder.Folder(QStringLiteral("out"))}, inner));
    QVERIFY(PasteRules::HoldDestination({folder.Folder(QStringLiteral("OUTER"))}, inner));
    QVERIFY(PasteRules::HoldDestination({inner}, inner));
    QVERIFY(!PasteRules::HoldDestination({folder.Folder(QStringLiteral("other")), QString()}, inner));
    QVERIFY(!PasteRules::HoldDestination({folder.Folder(QStringLiteral("Outer/inner/deep"))}, inner));
}

void tst_PasteRules::filesHoldNoDestination()
{
    const TestFolder folder;
    const QString inner = folder.Folder(QStringLiteral("outer/inner"));
    QVERIFY(!PasteRules::HoldDestination({folder.File(QStringLiteral("out"))}, inner));
}

void tst_PasteRules::itemsWhoseTargetsStayAreLeftOut()
{
    const TestFolder folder;
    const QStringList sources = {folder.File(QStringLiteral("out/a"), "new"),
                                 folder.Path(QStringLiteral("out/gone")),
                                 folder.File(QStringLiteral("out/free"))};
    folder.File(QStringLiteral("to/a"), "old");
    folder.File(QStringLiteral("to/gone"), "old");
    QFileSystemModel model;
    const QStringList left = PasteRules::RemoveReplaced(
        model, sources, sources.mid(0, 2), folder.Path(QStringLiteral("to")), TreeCopy::Kind::Copy);
    QCOMPARE(left, QStringList({sources.at(0), sources.at(2)}));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("to/a"))));
    QCOMPARE(folder.Read(QStringLiteral("to/gone")), QByteArray("old"));
}

void tst_PasteRules::unlistedTargetNeverEmptiesTheCurrentFolder()
{
    const TestFolder folder;
    const TestFolder current;
    current.File(QStringLiteral("bystander"));
    const QString source = folder.File(QStringLiteral("out/a"));
    folder.Folder(QStringLiteral("to"));
    QFileSystemModel model;
    const QString before = QDir::currentPath();
    QDir::setCurrent(current.Path());
    // The target has vanished since the user was asked: the model has no index for it.
    const QStringList left = PasteRules::RemoveReplaced(
        model, {source}, {source}, folder.Path(QStringLiteral("to")), TreeCopy::Kind::Copy);
    QDir::setCurrent(before);
    QCOMPARE(left, QStringList(source));
    QVERIFY(QFileInfo::exists(current.Path(QStringLiteral("bystander"))));
}

KTFM_TEST_MAIN(tst_PasteRules)
#include "tst_pasterules_posix.moc"
