#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "widget/DiskEntry.h"
#include "widget/FileCopy.h"
#include "widget/TreeCopy.h"
#include "widget/TreeRemoval.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

namespace {

DWORD AttributesOf(const QString& path)
{
    return GetFileAttributesW(QDir::toNativeSeparators(path).toStdWString().c_str());
}

void Give(const QString& path, DWORD attributes)
{
    if (!SetFileAttributesW(QDir::toNativeSeparators(path).toStdWString().c_str(), attributes))
        qFatal("the attributes of %s cannot be set", qPrintable(path));
}

bool Exists(const QString& path)
{
    return AttributesOf(path) != INVALID_FILE_ATTRIBUTES;
}

bool RemoveTree(const QString& path)
{
    return TreeRemoval::Remove(path, [](const QString&) {});
}

bool Transfer(TreeCopy::Kind kind, const QString& source, const QString& target)
{
    return TreeCopy(kind, [](const QString&) {}).Run(source, target);
}

} // namespace

/** Read-only, hidden and system files and folders, and folders named like a shortcut. */
class tst_AttributesWin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsRemovedWhateverItsAttributes_data();
    void fileIsRemovedWhateverItsAttributes();
    void readOnlyFileThatIsInUseStaysReadOnly();
    void folderWithReadOnlyAndHiddenContentIsRemoved();
    void copyKeepsTheAttributes_data();
    void copyKeepsTheAttributes();
    void copyOfALargeFileKeepsTheAttributes();
    void plainCopyIsNotHidden();
    void moveKeepsTheAttributesAndLeavesNothing();
    void folderNamedLikeAShortcutIsCopiedWhole();
    void folderNamedLikeAShortcutIsRemovedWhole();
};

void tst_AttributesWin::fileIsRemovedWhateverItsAttributes_data()
{
    QTest::addColumn<uint>("attributes");
    QTest::newRow("plain") << uint(FILE_ATTRIBUTE_NORMAL);
    QTest::newRow("read-only") << uint(FILE_ATTRIBUTE_READONLY);
    QTest::newRow("hidden") << uint(FILE_ATTRIBUTE_HIDDEN);
    QTest::newRow("system") << uint(FILE_ATTRIBUTE_SYSTEM);
    QTest::newRow("all") << uint(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
}

void tst_AttributesWin::fileIsRemovedWhateverItsAttributes()
{
    QFETCH(uint, attributes);
    const TestFolder folder;
    const QString path = folder.File(QStringLiteral("a"), "content");
    Give(path, attributes);
    QVERIFY(DiskEntry::Remove(path));
    QVERIFY(!Exists(path));
}

void tst_AttributesWin::readOnlyFileThatIsInUseStaysReadOnly()
{
    const TestFolder folder;
    const QString path = folder.File(QStringLiteral("a"), "content");
    Give(path, FILE_ATTRIBUTE_READONLY);
    auto* const open = CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_READ,
                                   FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    QVERIFY(open != INVALID_HANDLE_VALUE);
    const bool isRemoved = DiskEntry::Remove(path);
    const DWORD attributes = AttributesOf(path);
    CloseHandle(open);
    QVERIFY(!isRemoved);
    QVERIFY(attributes & FILE_ATTRIBUTE_READONLY);
    QVERIFY(DiskEntry::Remove(path));
}

void tst_AttributesWin::folderWithReadOnlyAndHiddenContentIsRemoved()
{
    const TestFolder folder;
    Give(folder.File(QStringLiteral("top/read-only")), FILE_ATTRIBUTE_READONLY);
    Give(folder.File(QStringLiteral("top/hidden")), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    folder.File(QStringLiteral("top/sub/a"));
    Give(folder.Path(QStringLiteral("top/sub")), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("top"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("top"))));
}

void tst_AttributesWin::copyKeepsTheAttributes_data()
{
    fileIsRemovedWhateverItsAttributes_data();
}

void tst_AttributesWin::copyKeepsTheAttributes()
{
    QFETCH(uint, attributes);
    constexpr DWORD compared = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
    const TestFolder folder;
    const QString source = folder.File(QStringLiteral("a"), "content");
    const QString target = folder.Path(QStringLiteral("b"));
    Give(source, attributes);
    QVERIFY(FileCopy::Copy(source, target));
    QCOMPARE(folder.Read(QStringLiteral("b")), QByteArray("content"));
    QCOMPARE(AttributesOf(target) & compared, DWORD(attributes) & compared);
    QVERIFY(DiskEntry::Remove(source));
    QVERIFY(DiskEntry::Remove(target));
}

void tst_AttributesWin::copyOfALargeFileKeepsTheAttributes()
{
    const TestFolder folder;
    const QByteArray content(300000, 'x');
    const QString source = folder.File(QStringLiteral("a"), content);
    const QString target = folder.Path(QStringLiteral("b"));
    Give(source, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    QVERIFY(FileCopy::Copy(source, target));
    QCOMPARE(folder.Read(QStringLiteral("b")), content);
    QVERIFY(AttributesOf(target) & FILE_ATTRIBUTE_READONLY);
    QVERIFY(AttributesOf(target) & FILE_ATTRIBUTE_HIDDEN);
    QVERIFY(DiskEntry::Remove(source));
    QVERIFY(DiskEntry::Remove(target));
}

void tst_AttributesWin::plainCopyIsNotHidden()
{
    const TestFolder folder;
    const QString target = folder.Path(QStringLiteral("b"));
    QVERIFY(FileCopy::Copy(folder.File(QStringLiteral("a")), target));
    QVERIFY(!(AttributesOf(target) & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)));
}

void tst_AttributesWin::moveKeepsTheAttributesAndLeavesNothing()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("to"));
    Give(folder.File(QStringLiteral("top/sub/read-only"), "r"), FILE_ATTRIBUTE_READONLY);
    Give(folder.File(QStringLiteral("top/sub/hidden"), "h"), FILE_ATTRIBUTE_HIDDEN);
    Give(folder.Path(QStringLiteral("top/sub")), FILE_ATTRIBUTE_HIDDEN);
    QVERIFY(Transfer(TreeCopy::Kind::Move, folder.Path(QStringLiteral("top")),
                     folder.Path(QStringLiteral("to/top"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("top"))));
    QCOMPARE(folder.Read(QStringLiteral("to/top/sub/read-only")), QByteArray("r"));
    QCOMPARE(folder.Read(QStringLiteral("to/top/sub/hidden")), QByteArray("h"));
    QVERIFY(AttributesOf(folder.Path(QStringLiteral("to/top/sub"))) & FILE_ATTRIBUTE_HIDDEN);
    QVERIFY(AttributesOf(folder.Path(QStringLiteral("to/top/sub/hidden"))) & FILE_ATTRIBUTE_HIDDEN);
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("to"))));
}

void tst_AttributesWin::folderNamedLikeAShortcutIsCopiedWhole()
{
    const TestFolder folder;
    folder.File(QStringLiteral("top.lnk/a"), "a");
    folder.File(QStringLiteral("top.lnk/sub.lnk/b"), "b");
    QVERIFY(Transfer(TreeCopy::Kind::Copy, folder.Path(QStringLiteral("top.lnk")),
                     folder.Path(QStringLiteral("copy.lnk"))));
    QCOMPARE(folder.Read(QStringLiteral("copy.lnk/a")), QByteArray("a"));
    QCOMPARE(folder.Read(QStringLiteral("copy.lnk/sub.lnk/b")), QByteArray("b"));
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("top.lnk"))));
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("copy.lnk"))));
}

void tst_AttributesWin::folderNamedLikeAShortcutIsRemovedWhole()
{
    const TestFolder folder;
    folder.File(QStringLiteral("top.lnk/a"));
    folder.File(QStringLiteral("top.lnk/sub.lnk/b"));
    folder.File(QStringLiteral("beside"));
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("top.lnk"))));
    QVERIFY(!Exists(folder.Path(QStringLiteral("top.lnk"))));
    QVERIFY(Exists(folder.Path(QStringLiteral("beside"))));
}

KTFM_TEST_MAIN(tst_AttributesWin)
#include "tst_attributes_win.moc"
