#include "widget/PasteRules.h"

#include "models/FileSystemItem.h"
#include "widget/DiskEntry.h"
#include "widget/FileIdentity.h"
#include "widget/LocalPaths.h"
#include "widget/TreeRemoval.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QSet>

#include <algorithm>

namespace PasteRules {

namespace {

QString CanonicalFolder(const QString& path)
{
    const QFileInfo info(path);
    return info.isDir() ? info.canonicalFilePath() : info.canonicalPath();
}

/** The listed item that has this very path; nothing when the model knows it by another, or not at all. */
QModelIndex ListedItem(const QFileSystemModel& model, const QString& path)
{
    const QModelIndex index = model.index(path);
    return index.isValid() && model.filePath(index) == path ? index : QModelIndex();
}

/** @return where an item itself is, without links on the way to it; empty when its folder is not there */
QString RealPath(const QString& path)
{
    const QFileInfo item(path);
    const QString folder = QFileInfo(item.path()).canonicalFilePath();
    return folder.isEmpty() ? QString() : LocalPaths::In(folder, item.fileName());
}

/**
 * What must be where it is for items to be found: the items, where they lead to when they are links, and in
 * the same way all folders above them.
 */
QSet<QString> NeededBy(const QStringList& items)
{
    QSet<QString> needed;
    QSet<QString> seen;
    QStringList ways = items;
    while (!ways.isEmpty()) {
        const QString way = ways.takeLast();
        // Links may lead in a circle.
        if (way.isEmpty() || seen.contains(way))
            continue;
        seen.insert(way);
        needed.insert(RealPath(way));
        const QFileInfo info(way);
        ways << info.path() << info.canonicalFilePath() << info.symLinkTarget();
    }
    return needed;
}

QSet<FileIdentity> FilesAt(const QSet<QString>& paths)
{
    QSet<FileIdentity> files;
    for (const QString& path : paths) {
        if (const std::optional<FileIdentity> identity = FileIdentity::Of(path))
            files.insert(*identity);
    }
    return files;
}

/** Whether a paste ends at an item: a folder that would be pasted onto itself but for the letter case. */
bool IsEnd(const QString& source, const QString& destination)
{
    const QFileInfo item(source);
    return item.path() != destination && item.path().compare(destination, Qt::CaseInsensitive) == 0 &&
           DiskEntry::ShowsFolder(item);
}

/** Those of @p replacing that a paste does not come to, or that have moved with one before them by then. */
QSet<QString> NotPasted(const QStringList& sources, const QStringList& replacing, const QString& destination,
                        TreeCopy::Kind kind)
{
    const QSet<QString> asked(replacing.cbegin(), replacing.cend());
    QSet<QString> pasted;
    QSet<QString> left;
    QSet<QString> moved;
    bool isOver = false;
    for (const QString& source : sources) {
        isOver = isOver || IsEnd(source, destination);
        if (asked.contains(source) && !pasted.contains(source)) {
            const bool isLeft = isOver || NeededBy({source}).intersects(moved);
            (isLeft ? left : pasted).insert(source);
        }
        if (kind == TreeCopy::Kind::Move)
            moved.insert(RealPath(source));
    }
    return left;
}

/** Removes one entry of the destination. */
void Remove(QFileSystemModel& model, const QString& path)
{
    const QFileInfo replaced(path);
    const bool isFolder = DiskEntry::IsRealFolder(replaced);
    // The model's own way of emptying a folder goes through some kinds of links.
    if (isFolder && !TreeRemoval::Empty(path))
        return;
    const QModelIndex index = DiskEntry::IsLink(replaced) ? QModelIndex() : ListedItem(model, path);
    if (index.isValid())
        model.remove(index);
    else if (isFolder)
        QDir().rmdir(path);
    else
        DiskEntry::Remove(path);
}

} // namespace

bool CanPasteInto(const QString& destination)
{
    return !destination.isEmpty() && QDir(destination).exists() && QFileInfo(destination).isWritable();
}

bool HoldDestination(const QStringList& sources, const QString& destination)
{
    const QString inner = CanonicalFolder(destination);
    return std::any_of(sources.cbegin(), sources.cend(), [&inner](const QString& source) {
        if (!DiskEntry::ShowsFolder(QFileInfo(source)))
            return false;
        const QString outer = CanonicalFolder(source);
        return !outer.isEmpty() && inner.contains(outer, Qt::CaseInsensitive);
    });
}

bool IsConflict(const QString& source, const QString& destination)
{
    const QFileInfo item(source);
    return !item.fileName().isEmpty() && item.path().compare(destination, Qt::CaseInsensitive) != 0 &&
           FileSystemItem::IsTaken(LocalPaths::In(destination, item.fileName()));
}

QStringList RemoveReplaced(QFileSystemModel& model, const QStringList& sources, const QStringList& replacing,
                           const QString& destination, TreeCopy::Kind kind)
{
    if (replacing.isEmpty())
        return sources;
    const QSet<FileIdentity> needed = FilesAt(NeededBy(sources));
    const QSet<QString> notPasted = NotPasted(sources, replacing, destination, kind);
    QStringList pasted = sources;
    for (const QString& source : replacing) {
        const QString target = LocalPaths::In(destination, QFileInfo(source).fileName());
        const std::optional<FileIdentity> replaced = FileIdentity::Of(target);
        const bool isNeeded = replaced && needed.contains(*replaced);
        if (isNeeded || notPasted.contains(source) || !DiskEntry::CanBeRead(source))
            pasted.removeOne(source);
        else
            Remove(model, target);
    }
    return pasted;
}

} // namespace PasteRules
