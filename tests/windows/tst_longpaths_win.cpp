#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "widget/DiskEntry.h"
#include "widget/FileIdentity.h"
#include "widget/TreeCopy.h"
#include "widget/TreeRemoval.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

#include <windows.h>
#include <winioctl.h>

namespace {

/** What Windows' own functions take without a prefix, in characters. */
constexpr int OldLimit = 260;

/** A folder in @p folder whose path is longer than the old limit, relative to it. */
QString Deep(const TestFolder& folder, const QString& top)
{
    QString relative = top;
    while (folder.Path(relative).size() <= OldLimit + 50)
        relative += QLatin1Char('/') + QString(50, QLatin1Char('d'));
    folder.Folder(relative);
    return relative;
}

bool RemoveTree(const QString& path)
{
    return TreeRemoval::Remove(path, [](const QString&) {});
}

/** What a folder holds when it is a junction, as the file system takes it. */
struct JunctionData
{
    DWORD tag;
    WORD length;
    WORD reserved;
    WORD targetOffset;
    WORD targetSize;
    WORD shownOffset;
    WORD shownSize;
    WCHAR names[MAX_PATH];
};

/** Makes a junction of the empty folder @p path. @return whether the file system knows junctions */
bool MakeJunction(const QString& path, const QString& target)
{
    const std::wstring name = (QLatin1String("\\??\\") + QDir::toNativeSeparators(target)).toStdWString();
    JunctionData data = {};
    data.tag = IO_REPARSE_TAG_MOUNT_POINT;
    data.targetSize = static_cast<WORD>(name.size() * sizeof(WCHAR));
    data.shownOffset = static_cast<WORD>(data.targetSize + sizeof(WCHAR));
    // The four numbers and both names with their ends.
    data.length = static_cast<WORD>(4 * sizeof(WORD) + data.targetSize + 2 * sizeof(WCHAR));
    name.copy(data.names, MAX_PATH - 2);
    auto* const folder =
        CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), GENERIC_WRITE, 0, nullptr,
                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    DWORD returned = 0;
    const bool isMade = DeviceIoControl(folder, FSCTL_SET_REPARSE_POINT, &data, data.length + 8U, nullptr, 0,
                                        &returned, nullptr);
    CloseHandle(folder);
    return isMade;
}

} // namespace

/** Paths beyond the old limit of 260 characters, and junctions. */
class tst_LongPathsWin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void identityIsFoundAtAnyLength();
    void longPathsAreCopied();
    void longPathsAreMoved();
    void longPathsAreRemoved();
    void readOnlyFileAtALongPathIsRemoved();
    void longPathIsListedAndRenamed();
    void junctionIsRemovedAsItself();
    void removalDoesNotGoThroughAJunction();
};

void tst_LongPathsWin::identityIsFoundAtAnyLength()
{
    const TestFolder folder;
    const QString deep = folder.Path(Deep(folder, QStringLiteral("top")));
    QVERIFY(deep.size() > OldLimit);
    QVERIFY(FileIdentity::Of(deep));
    QVERIFY(FileIdentity::AreSame(deep, deep.toUpper()));
    QVERIFY(!FileIdentity::AreSame(deep, QFileInfo(deep).path()));
}

void tst_LongPathsWin::longPathsAreCopied()
{
    const TestFolder folder;
    const QString deep = Deep(folder, QStringLiteral("top"));
    folder.File(deep + QStringLiteral("/a"), "content");
    TreeCopy copy(TreeCopy::Kind::Copy, [](const QString&) {});
    QVERIFY(copy.Run(folder.Path(QStringLiteral("top")), folder.Path(QStringLiteral("other"))));
    const QString copied = QLatin1String("other") + deep.mid(3) + QStringLiteral("/a");
    QCOMPARE(folder.Read(copied), QByteArray("content"));
    QCOMPARE(folder.Read(deep + QStringLiteral("/a")), QByteArray("content"));
}

void tst_LongPathsWin::longPathsAreMoved()
{
    const TestFolder folder;
    const QString deep = Deep(folder, QStringLiteral("top"));
    folder.File(deep + QStringLiteral("/a"), "content");
    TreeCopy move(TreeCopy::Kind::Move, [](const QString&) {});
    QVERIFY(move.Run(folder.Path(QStringLiteral("top")), folder.Path(QStringLiteral("other"))));
    QCOMPARE(folder.Read(QLatin1String("other") + deep.mid(3) + QStringLiteral("/a")), QByteArray("content"));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
}

void tst_LongPathsWin::longPathsAreRemoved()
{
    const TestFolder folder;
    folder.File(Deep(folder, QStringLiteral("top")) + QStringLiteral("/a"));
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("top"))));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
}

void tst_LongPathsWin::readOnlyFileAtALongPathIsRemoved()
{
    const TestFolder folder;
    const QString path = folder.File(Deep(folder, QStringLiteral("top")) + QStringLiteral("/a"));
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
    QVERIFY(DiskEntry::Remove(path));
    QVERIFY(!QFileInfo::exists(path));
}

void tst_LongPathsWin::longPathIsListedAndRenamed()
{
    const TestFolder folder;
    const QString deep = Deep(folder, QStringLiteral("top"));
    const QString path = folder.File(deep + QStringLiteral("/a.txt"), "content");
    CKTFMListModel model;
    QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
    const QModelIndex root = model.setRootPath(folder.Path(deep));
    QVERIFY(loaded.wait());
    QTRY_COMPARE(model.rowCount(root), 1);
    QVERIFY(model.setData(model.index(path), QStringLiteral("b")));
    QCOMPARE(folder.Read(deep + QStringLiteral("/b.txt")), QByteArray("content"));
    QVERIFY(!QFileInfo::exists(path));
}

void tst_LongPathsWin::junctionIsRemovedAsItself()
{
    const TestFolder folder;
    folder.File(QStringLiteral("target/a"));
    const QString junction = folder.Folder(QStringLiteral("junction"));
    if (!MakeJunction(junction, folder.Path(QStringLiteral("target"))))
        QSKIP("the file system makes no junctions");
    QVERIFY(QFileInfo::exists(junction + QStringLiteral("/a")));
    QVERIFY(RemoveTree(junction));
    QVERIFY(!QFileInfo(junction).isDir());
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("target/a"))));
}

void tst_LongPathsWin::removalDoesNotGoThroughAJunction()
{
    const TestFolder folder;
    folder.File(QStringLiteral("target/a"));
    folder.File(QStringLiteral("top/own"));
    const QString junction = folder.Folder(QStringLiteral("top/junction"));
    if (!MakeJunction(junction, folder.Path(QStringLiteral("target"))))
        QSKIP("the file system makes no junctions");
    QVERIFY(RemoveTree(folder.Path(QStringLiteral("top"))));
    QVERIFY(!QFileInfo::exists(folder.Path(QStringLiteral("top"))));
    QVERIFY(QFileInfo::exists(folder.Path(QStringLiteral("target/a"))));
}

KTFM_TEST_MAIN(tst_LongPathsWin)
#include "tst_longpaths_win.moc"
