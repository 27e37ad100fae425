#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "models/AliasFolder.h"
#include "models/FileSystemItem.h"
#include "widget/AliasTable.h"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHash>
#include <QItemSelectionModel>
#include <QSet>
#include <QTreeView>

#include <functional>

namespace {

QSet<QString> SetOf(const QStringList& texts)
{
    return QSet<QString>(texts.cbegin(), texts.cend());
}

/** As the watcher and the model compare paths: without asking the disk. */
QString Normalised(const QString& path)
{
    return QFileInfo(path).filePath();
}

/** Calls @p visit with each item of @p model below @p parents; they are visited first. Not recursive. */
void VisitBranches(const QAbstractItemModel& model, QModelIndexList parents,
                   const std::function<void(const QModelIndex&)>& visit)
{
    while (!parents.isEmpty()) {
        const QModelIndex item = parents.takeLast();
        visit(item);
        for (int row = model.rowCount(item) - 1; row >= 0; --row)
            parents.append(model.index(row, 0, item));
    }
}

} // namespace

bool CKTFileManager::PopulateAliasTable(const QString& strFile)
{
    const auto table = AliasTable::TextOf(strFile);
    if (!table)
        return false;
    const bool done = m_pAliasTreeModel->PopulateAliasTree(*table);
    ClearPathesForFileSystemWatcher();
    // The label is the tree; the other columns are what the pane knows of an item.
    for (int column = 1; column < m_pAliasTreeModel->columnCount(); ++column)
        m_pAliasTreeView->hideColumn(column);
    for (int row = 0; row < m_pAliasTreeModel->rowCount(); ++row) {
        const QModelIndex item = m_pAliasTreeModel->index(row, 0);
        ScanForAliasTreeDirectories(item);
        AddPathForFileSystemWatch(item);
        m_pAliasTreeView->setExpanded(item, true);
    }
    return done;
}

QModelIndexList CKTFileManager::AliasChildren(const QModelIndex& index) const
{
    QModelIndexList children;
    const int count = index.isValid() ? m_pAliasTreeModel->rowCount(index) : 0;
    for (int row = 0; row < count; ++row)
        children.append(m_pAliasTreeModel->index(row, 0, index));
    return children;
}

void CKTFileManager::ScanForAliasTreeDirectories(const QModelIndex& index)
{
    if (!index.isValid())
        return;
    const QDir folder(m_pAliasTreeModel->GetMappedFolderPath(index));
    const bool hasFolder = !m_pAliasTreeModel->GetMappedFolderPath(index).isEmpty() && folder.exists();
    if (!hasFolder || !m_pAliasTreeModel->CanFileSysWatch(index))
        return;
    const QStringList names =
        folder.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
    const QPersistentModelIndex item = index;
    AddScannedFolders(item, names);
    RemoveUnlistedFolders(item, names);
}

void CKTFileManager::AddScannedFolders(const QPersistentModelIndex& index, const QStringList& names)
{
    const QString folder = m_pAliasTreeModel->GetMappedFolderPath(index);
    const QString section = m_pAliasTreeModel->GetINISection(index);
    QSet<QString> known;
    const QModelIndexList children = AliasChildren(index);
    for (const QModelIndex& child : children)
        known.insert(m_pAliasTreeModel->GetMappedFolderPath(child));
    QModelIndexList added;
    for (const QString& name : names) {
        const QString path = Normalised(QDir::toNativeSeparators(folder + QLatin1Char('/') + name));
        if (known.contains(path))
            continue;
        known.insert(path);
        added.append(m_pAliasTreeModel->AddAliasItem(index, name, path, AliasFolder::SectionOf(section, name),
                                                     true, FM_OP_RENAME, QVariant()));
    }
    // An open branch is filled one level ahead, so that each item seen shows whether it can be expanded.
    if (!m_pAliasTreeView->isExpanded(index))
        return;
    for (const QModelIndex& child : qAsConst(added))
        ScanForAliasTreeDirectories(child);
    Watch(added);
}

void CKTFileManager::RemoveUnlistedFolders(const QPersistentModelIndex& index, const QStringList& names)
{
    const QSet<QString> present = SetOf(names);
    for (int row = 0; row < m_pAliasTreeModel->rowCount(index); ++row) {
        const QModelIndex child = m_pAliasTreeModel->index(row, 0, index);
        if (present.contains(m_pAliasTreeModel->GetAliasLabel(child)))
            continue;
        RemovePathForFileSystemWatch(child);
        // The row that moves up is left to the next scan, as hosts know it.
        m_pAliasTreeModel->removeRow(row, index);
    }
}

void CKTFileManager::AddPathForFileSystemWatch(const QModelIndex& index)
{
    Watch({index});
}

void CKTFileManager::Watch(const QModelIndexList& items)
{
    QSet<QString> watched = SetOf(m_pWatcher->directories());
    QStringList begun;
    QModelIndexList open = items;
    while (!open.isEmpty()) {
        const QModelIndex item = open.takeFirst();
        const QString path = Normalised(m_pAliasTreeModel->GetMappedFolderPath(item));
        const bool canWatch = item.isValid() && m_pAliasTreeModel->CanFileSysWatch(item) && !path.isEmpty();
        if (canWatch && !watched.contains(path) && QFileInfo::exists(path)) {
            watched.insert(path);
            begun.append(path);
        }
        if (m_pAliasTreeView->isExpanded(item))
            open.append(AliasChildren(item));
    }
    if (!begun.isEmpty())
        m_pWatcher->addPaths(begun);
}

void CKTFileManager::RemovePathForFileSystemWatch(const QModelIndex& index)
{
    if (index.isValid())
        Unwatch({index});
}

void CKTFileManager::Unwatch(const QModelIndexList& items)
{
    QHash<QString, QModelIndexList> itemsOfFolder;
    VisitBranches(*m_pAliasTreeModel, {QModelIndex()}, [this, &itemsOfFolder](const QModelIndex& item) {
        itemsOfFolder[m_pAliasTreeModel->GetMappedFolderPath(item)].append(item);
    });
    QSet<QString> watched = SetOf(m_pWatcher->directories());
    QStringList ended;
    VisitBranches(*m_pAliasTreeModel, items, [&](const QModelIndex& item) {
        const QString path = m_pAliasTreeModel->GetMappedFolderPath(item);
        if (!m_pAliasTreeModel->CanFileSysWatch(item) || !watched.contains(path))
            return;
        if (IsSeenElsewhere(item, itemsOfFolder.value(Normalised(path))))
            return;
        watched.remove(path);
        ended.append(path);
    });
    if (!ended.isEmpty())
        m_pWatcher->removePaths(ended);
}

bool CKTFileManager::IsSeenElsewhere(const QModelIndex& item, const QModelIndexList& sameFolder) const
{
    return std::any_of(sameFolder.begin(), sameFolder.end(), [this, &item](const QModelIndex& other) {
        const bool isSeen = !other.parent().isValid() || m_pAliasTreeView->isExpanded(other.parent());
        return other != item && isSeen;
    });
}

void CKTFileManager::ClearPathesForFileSystemWatcher()
{
    m_pAliasTreeModel->ClearAllPathInFileSystemWatcher();
}

void CKTFileManager::OnDirectoryChanged(const QString& path)
{
    QList<QPersistentModelIndex> items;
    const QModelIndexList matches = m_pAliasTreeModel->IndexWithFilePath(path);
    for (const QModelIndex& found : matches)
        items.append(found.sibling(found.row(), 0));
    for (const QPersistentModelIndex& item : qAsConst(items))
        ScanForAliasTreeDirectories(item);
}

void CKTFileManager::OnAliasTreeExpand(const QModelIndex& index)
{
    const QModelIndexList children = AliasChildren(index);
    for (const QModelIndex& child : children)
        ScanForAliasTreeDirectories(child);
    Watch(AliasChildren(index));
}

void CKTFileManager::OnAliasTreeCollapsed(const QModelIndex& index)
{
    Unwatch(AliasChildren(index));
}

void CKTFileManager::OnAliasTreeClicked(const QModelIndex& index)
{
    m_eLastMenuFrom = FM_PART_ALIAS_TREE;
    const QString path = m_pAliasTreeModel->GetMappedFolderPath(index);
    if (!path.isEmpty() && QFileInfo(path).isDir())
        ShowFolder(path);
    m_pAliasTreeView->setFocus(Qt::OtherFocusReason);
}

void CKTFileManager::ShowFolder(const QString& path)
{
    const bool isFirst = !FileSystemItem::HasRootPath(*m_pTreeModel);
    SetDirectory(path);
    // The very first folder that the tree gets does not reach the list by itself.
    if (isFirst)
        SetDirectory(path);
}

void CKTFileManager::OnAliasTreeDblClicked(const QModelIndex& index)
{
    m_eLastMenuFrom = FM_PART_ALIAS_TREE;
    RemovePathForFileSystemWatch(index);
}

void CKTFileManager::OnAliasTreeViewSelectionChanged(const QItemSelection& selected,
                                                     const QItemSelection& deselected)
{
    Q_UNUSED(selected)
    Q_UNUSED(deselected)
}

void CKTFileManager::OnAliasTreeCloseEditor()
{
    const QPersistentModelIndex current = GetCurSelectedAliasIndex();
    if (!current.isValid())
        return;
    const QPersistentModelIndex parent = current.parent();
    const QString path = m_pAliasTreeModel->GetMappedFolderPath(current);
    const bool expanded = m_pAliasTreeView->isExpanded(current);
    for (int row = m_pAliasTreeModel->rowCount(current) - 1; row >= 0; --row)
        m_pAliasTreeModel->removeRow(row, current);
    ScanForAliasTreeDirectories(current);
    if (m_pAliasTreeModel->removeRow(current.row(), current.parent())) {
        ReadAgainFromParent(parent, path, expanded);
    } else if (expanded) {
        const QModelIndexList children = AliasChildren(current);
        for (const QModelIndex& child : children)
            ScanForAliasTreeDirectories(child);
    }
    const QString folder = GetCurSelectedFolder(FM_PART_ALIAS_TREE);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        ShowFolder(folder);
}

void CKTFileManager::ReadAgainFromParent(const QPersistentModelIndex& parent, const QString& path,
                                         bool expanded)
{
    // The watch on the parent's folder would do this after a rename; when the edit was given up nothing has
    // changed on disk, and the item must not be gone for that.
    ScanForAliasTreeDirectories(parent);
    const QModelIndexList found = m_pAliasTreeModel->ChildIndexWithFilePath(Normalised(path), parent, 1);
    if (found.isEmpty())
        return;
    const QModelIndex item = found.first().sibling(found.first().row(), 0);
    SetCurrentAliasTreeSelection(item);
    m_pAliasTreeView->setExpanded(item, expanded);
}

bool CKTFileManager::SetCurrentAliasTreeSelection(const QModelIndex& index)
{
    if (!index.isValid())
        return false;
    m_pAliasSelectionModel->setCurrentIndex(index, QItemSelectionModel::SelectCurrent);
    return true;
}

bool CKTFileManager::SetCurrentAliasTreeSelection(QString strPath, const QModelIndex& start, bool, bool)
{
    const QString wanted = strPath.toLower();
    QList<QPersistentModelIndex> items = {start.isValid() ? start : m_pAliasTreeModel->index(0, 0)};
    while (!items.isEmpty()) {
        const QPersistentModelIndex item = items.takeLast();
        if (!item.isValid())
            continue;
        const QString folder = m_pAliasTreeModel->GetMappedFolderPath(item).toLower();
        if (folder == wanted)
            return SetCurrentAliasTreeSelection(item);
        if (m_pAliasTreeModel->CanFileSysWatch(item) && !wanted.startsWith(folder))
            continue;
        m_pAliasTreeView->expand(item);
        for (int row = m_pAliasTreeModel->rowCount(item) - 1; row >= 0; --row)
            items.append(m_pAliasTreeModel->index(row, 0, item));
    }
    return false;
}
