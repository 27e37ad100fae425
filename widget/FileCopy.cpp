#include "widget/FileCopy.h"

#include "models/FileSystemItem.h"
#include "widget/DiskEntry.h"
#include "widget/LocalPaths.h"

#include <QFileInfo>
#include <QTemporaryFile>

namespace FileCopy {

namespace {

/** Read and written at once, in bytes: small enough for the allocator's heap, large enough for the disk. */
constexpr int BlockSize = 64 * 1024;

bool CopyContent(QFile& from, QFile& to)
{
    QByteArray block(BlockSize, Qt::Uninitialized);
    for (;;) {
        const qint64 length = from.read(block.data(), block.size());
        if (length <= 0)
            return length == 0;
        if (to.write(block.constData(), length) != length)
            return false;
    }
}

} // namespace

bool Copy(const QString& source, const QString& target)
{
    if (!DiskEntry::ShowsFile(QFileInfo(source)) || FileSystemItem::IsTaken(target))
        return false;
    QFile from(source);
    if (!from.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    QTemporaryFile to(LocalPaths::In(QFileInfo(target).path(), QStringLiteral("copy.XXXXXX")));
    if (!to.open() || !CopyContent(from, to) || !to.flush())
        return false;
    // Of a file that is open, Qt also reports what this user may do with it; only what is stored is copied.
    const QFile::Permissions ofThisUser = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser;
    to.setPermissions(from.permissions() & ~ofThisUser);
    if (!to.rename(target))
        return false;
    to.setAutoRemove(false);
    return true;
}

} // namespace FileCopy
