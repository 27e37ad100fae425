#include "widget/DiskEntry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace DiskEntry {

bool IsLink(const QFileInfo& entry)
{
    return entry.isSymLink() || entry.isJunction();
}

bool ShowsFolder(const QFileInfo& entry)
{
    return entry.isDir() && !entry.isShortcut();
}

bool IsRealFolder(const QFileInfo& entry)
{
    return entry.isDir() && !IsLink(entry);
}

bool ShowsFile(const QFileInfo& entry)
{
    return entry.isFile() || (entry.isShortcut() && entry.isDir());
}

bool CanBeRead(const QString& path)
{
    const QFileInfo entry(path);
    if (ShowsFolder(entry))
        return QDir(path).isReadable();
    return ShowsFile(entry) && QFile(path).open(QIODevice::ReadOnly);
}

bool Remove(const QString& path)
{
    if (QFile::remove(path))
        return true;
    // Where a link to a folder is a kind of folder, it is removed like an empty one.
    return IsLink(QFileInfo(path)) && QDir().rmdir(path);
}

} // namespace DiskEntry
