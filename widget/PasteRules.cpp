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

/** The files and folders at @p paths and all folders above them, each looked at once. */
QSet<FileIdentity> TouchedBy(const QStringList& paths)
{
    QSet<FileIdentity> touched;
    QSet<QString> seen;
    for (const QString& source : paths) {
        QString path = QFileInfo(source).canonicalFilePath();
        while (!path.isEmpty() && !seen.contains(path)) {
            seen.insert(path);
            if (const std::optional<FileIdentity> identity = FileIdentity::Of(path))
                touched.insert(*identity);
            path = QFileInfo(path).path();
        }
    }
    return touched;
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
                           const QString& destination)
{
    const QSet<FileIdentity> touched = TouchedBy(sources);
    QStringList pasted = sources;
    for (const QString& source : replacing) {
        const QString target = LocalPaths::In(destination, QFileInfo(source).fileName());
        const std::optional<FileIdentity> replaced = FileIdentity::Of(target);
        if (!DiskEntry::CanBeRead(source) || (replaced && touched.contains(*replaced)))
            pasted.removeOne(source);
        else
            Remove(model, target);
    }
    return pasted;
}

} // namespace PasteRules
