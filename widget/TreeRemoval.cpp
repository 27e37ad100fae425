#include "widget/TreeRemoval.h"

#include "widget/DiskEntry.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <vector>

namespace TreeRemoval {

namespace {

/** A folder that is being emptied. */
struct Level
{
    QString path;
    QFileInfoList entries;
    int next; ///< the first of the entries that has not been removed
};

bool GoesFirst(const QFileInfo& left, const QFileInfo& right)
{
    return left.isDir() != right.isDir() ? left.isDir() : left.fileName() < right.fileName();
}

Level Opened(const QString& path)
{
    QFileInfoList entries = DiskEntry::EntriesIn(path);
    std::sort(entries.begin(), entries.end(), GoesFirst);
    return {path, entries, 0};
}

bool RemoveEmptyFolder(const QString& path, const FolderRemoved& removed)
{
    if (!QDir().rmdir(path) && QFileInfo::exists(path))
        return false;
    removed(path);
    return true;
}

bool RemoveLink(const QString& path, const FolderRemoved& removed)
{
    if (!DiskEntry::Remove(path))
        return false;
    removed(path);
    return true;
}

/** Removes the next entry of the innermost folder, or goes into it when it is a folder. */
bool TakeNextEntry(std::vector<Level>& levels)
{
    Level& level = levels.back();
    const QFileInfo entry = level.entries.at(level.next++);
    const QString path = entry.absoluteFilePath();
    // What was a folder when it was listed may be a link by now.
    if (!DiskEntry::IsRealFolder(entry) || !DiskEntry::IsRealFolder(QFileInfo(path)))
        return DiskEntry::Remove(path);
    levels.push_back(Opened(path));
    return true;
}

/** Empties @p top and removes each folder in it. */
bool RemoveBelow(const QString& top, const FolderRemoved& removed)
{
    std::vector<Level> levels = {Opened(top)};
    for (;;) {
        const Level& level = levels.back();
        if (level.next < level.entries.size()) {
            if (!TakeNextEntry(levels))
                return false;
        } else if (levels.size() == 1) {
            return true;
        } else if (RemoveEmptyFolder(level.path, removed)) {
            levels.pop_back();
        } else {
            return false;
        }
    }
}

} // namespace

bool Remove(const QString& path, const FolderRemoved& removed)
{
    const QFileInfo top(path);
    if (path.isEmpty() || !top.isDir())
        return true;
    if (DiskEntry::IsLink(top))
        return RemoveLink(path, removed);
    return !top.isRoot() && RemoveBelow(path, removed) && RemoveEmptyFolder(path, removed);
}

bool Empty(const QString& path)
{
    const QFileInfo top(path);
    return DiskEntry::IsRealFolder(top) && !top.isRoot() && RemoveBelow(path, [](const QString&) {});
}

} // namespace TreeRemoval
