#include "widget/FileCopy.h"

#include "models/FileSystemItem.h"
#include "widget/DiskEntry.h"
#include "widget/FileAttributes.h"
#include "widget/LocalPaths.h"

#include <QFileInfo>
#include <QTemporaryFile>

#include <array>

namespace FileCopy {

namespace {

/** Read and written at once, in bytes; a file of less is written in one go. It fits on any stack. */
constexpr int BlockSize = 64 * 1024;

/** What a file is read into. */
class Block
{
public:
    /** Reads until the block is full or the file ends. @return whether it could be read */
    bool Fill(QFile& file)
    {
        m_size = 0;
        while (!IsFull()) {
            const qint64 length = file.read(m_bytes.data() + m_size, BlockSize - m_size);
            if (length <= 0)
                return length == 0;
            m_size += length;
        }
        return true;
    }

    bool WriteTo(QFile& file) const { return file.write(m_bytes.data(), m_size) == m_size; }
    bool IsFull() const { return m_size == BlockSize; }

private:
    std::array<char, BlockSize> m_bytes;
    qint64 m_size = 0;
};

/** The permissions that are stored with a file. Qt can also say what this user may do with it, for a price.
 */
QFile::Permissions StoredPermissions(const QFileInfo& file)
{
    QFile::Permissions stored;
    for (const QFile::Permission permission :
         {QFile::ReadOwner, QFile::WriteOwner, QFile::ExeOwner, QFile::ReadGroup, QFile::WriteGroup,
          QFile::ExeGroup, QFile::ReadOther, QFile::WriteOther, QFile::ExeOther}) {
        if (file.permission(permission))
            stored |= permission;
    }
    return stored;
}

bool WriteAtOnce(const Block& content, const QString& target, QFile::Permissions permissions)
{
    QFile to(target);
    if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    const bool isWritten = content.WriteTo(to);
    to.setPermissions(permissions);
    to.close();
    if (isWritten && to.error() == QFile::NoError)
        return true;
    to.remove();
    return false;
}

/** Writes @p block and the rest of @p from. */
bool WriteAll(QFile& from, Block& block, QFile& to)
{
    while (block.WriteTo(to)) {
        if (!block.IsFull())
            return true;
        if (!block.Fill(from))
            return false;
    }
    return false;
}

bool WriteBeside(QFile& from, Block& block, const QString& target, QFile::Permissions permissions)
{
    QTemporaryFile to(LocalPaths::In(QFileInfo(target).path(), QStringLiteral("copy.XXXXXX")));
    if (FileSystemItem::IsTaken(target) || !to.open() || !WriteAll(from, block, to) || !to.flush())
        return false;
    to.setPermissions(permissions);
    if (!to.rename(target))
        return false;
    to.setAutoRemove(false);
    return true;
}

} // namespace

bool Copy(const QString& source, const QString& target)
{
    const QFileInfo info(source);
    QFile from(source);
    if (!DiskEntry::ShowsFile(info) || !from.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    Block block;
    if (!block.Fill(from))
        return false;
    const QFile::Permissions permissions = StoredPermissions(info);
    const bool isCopied = block.IsFull() ? WriteBeside(from, block, target, permissions)
                                         : WriteAtOnce(block, target, permissions);
    if (isCopied)
        FileAttributes::Copy(source, target);
    return isCopied;
}

} // namespace FileCopy
