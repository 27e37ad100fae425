#include "widget/DiskEntry.h"

#include "widget/FileAttributes.h"

#include <QDir>
#include <QDirIterator>
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

QFileInfoList EntriesIn(const QString& path)
{
    // Qt takes a folder named like a shortcut for the place that a shortcut leads to, unless a separator says
    // that it is a folder.
    QDirIterator entry(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'),
                       QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    QFileInfoList entries;
    while (entry.hasNext()) {
        entry.next();
        entries.append(entry.fileInfo());
    }
    return entries;
}

bool Remove(const QString& path)
{
    if (QFile::remove(path) || FileAttributes::RemoveReadOnly(path))
        return true;
    // Where a link to a folder is a kind of folder, it is removed like an empty one.
    return IsLink(QFileInfo(path)) && QDir().rmdir(path);
}

} // namespace DiskEntry
