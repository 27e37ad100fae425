#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include "models/AliasFolder.h"
#include "models/AliasTreeColumns.h"

#include <QFileSystemWatcher>
#include <QSet>

using namespace AliasTree;

namespace {

/** @return @p branches and all that is below them */
QVector<const TreeItem*> AllItemsOf(const QVector<TreeItem*>& branches)
{
    QVector<const TreeItem*> items(branches.cbegin(), branches.cend());
    for (int i = 0; i < items.size(); ++i) {
        const TreeItem* item = items.at(i);
        for (int row = 0; row < item->childCount(); ++row)
            items.append(item->child(row));
    }
    return items;
}

bool IsAmong(const QSet<QString>& names, const TreeItem* child)
{
    return AliasFolder::IsAmong(names, child->data(LabelColumn).toString(), FolderOf(child));
}

/** @return the children that stand for none of @p names */
QVector<TreeItem*> ChildrenNotAmong(const QSet<QString>& names, const TreeItem* parent)
{
    QVector<TreeItem*> others;
    for (int row = 0; row < parent->childCount(); ++row) {
        if (!IsAmong(names, parent->child(row)))
            others.append(parent->child(row));
    }
    return others;
}

QSet<QString> FoldersOfChildren(const TreeItem* parent)
{
    QSet<QString> folders;
    for (int row = 0; row < parent->childCount(); ++row)
        folders.insert(FolderOf(parent->child(row)));
    return folders;
}

} // namespace

void CKTFMAliasTreeModel::ScanAliasTreeDirectory(const QModelIndex& parent)
{
    const QString folder = GetMappedFolderPath(parent);
    if (folder.isEmpty() || !CanFileSysWatch(parent) || !AliasFolder::CanBeListed(folder))
        return;
    const QStringList names = AliasFolder::EntryNames(folder);
    // Slots run at every change and may change the tree themselves; then this index follows, or is lost.
    const QPersistentModelIndex category = parent.sibling(parent.row(), LabelColumn);
    AddScannedChildren(category, names);
    RemoveVanishedChildren(category, names);
}

void CKTFMAliasTreeModel::AddScannedChildren(const QPersistentModelIndex& parent, const QStringList& names)
{
    const QString folder = GetMappedFolderPath(parent);
    const QString section = GetINISection(parent);
    QSet<QString> known = FoldersOfChildren(ItemOf(parent));
    for (const QString& name : names) {
        const auto entry = AliasFolder::EntryOf(folder, name);
        if (!entry || known.contains(entry->path))
            continue;
        known.insert(entry->path);
        AddAliasItem(parent, entry->label, entry->path, AliasFolder::SectionOf(section, name), true,
                     FM_OP_RENAME, entry->shortcut);
    }
}

void CKTFMAliasTreeModel::RemoveVanishedChildren(const QPersistentModelIndex& parent,
                                                 const QStringList& names)
{
    const QSet<QString> present(names.cbegin(), names.cend());
    if (parent.isValid())
        StopWatching(ChildrenNotAmong(present, ItemOf(parent)));
    for (int row = 0; parent.isValid() && row < rowCount(parent);) {
        const bool kept = IsAmong(present, ItemOf(parent)->child(row)) || !removeRow(row, parent);
        row += kept ? 1 : 0;
    }
}

void CKTFMAliasTreeModel::SetFileSystemWatcher(QFileSystemWatcher* watcher)
{
    m_pWatcher = watcher;
}

void CKTFMAliasTreeModel::AddPathToFileSystemWatcher(const QModelIndex& index)
{
    if (!m_pWatcher || !CanFileSysWatch(index))
        return;
    const QString folder = Normalised(GetMappedFolderPath(index));
    if (QFileInfo(folder).isDir() && !m_pWatcher->directories().contains(folder))
        m_pWatcher->addPath(folder);
}

void CKTFMAliasTreeModel::RemovePathFromFileSystemWatcher(const QModelIndex& index)
{
    if (TreeItem* item = ItemOf(index))
        StopWatching({item});
}

void CKTFMAliasTreeModel::StopWatching(const QVector<TreeItem*>& branches)
{
    if (!m_pWatcher || branches.isEmpty())
        return;
    const QStringList directories = m_pWatcher->directories();
    QSet<QString> watched(directories.cbegin(), directories.cend());
    QStringList ended;
    const QVector<const TreeItem*> items = AllItemsOf(branches);
    for (const TreeItem* item : items) {
        const QString folder = Normalised(FolderOf(item));
        if (item->data(WatchColumn).toBool() && watched.remove(folder))
            ended.append(folder);
    }
    if (!ended.isEmpty())
        m_pWatcher->removePaths(ended);
}

void CKTFMAliasTreeModel::ClearAllPathInFileSystemWatcher()
{
    if (!m_pWatcher)
        return;
    const QStringList directories = m_pWatcher->directories();
    if (!directories.isEmpty())
        m_pWatcher->removePaths(directories);
    const QStringList files = m_pWatcher->files();
    if (!files.isEmpty())
        m_pWatcher->removePaths(files);
}
