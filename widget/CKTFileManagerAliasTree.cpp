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
#include <QTimer>
#include <QTreeView>

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

/** Hosts know an item by any of its cells; the branch hangs on the first one. */
QModelIndex FirstCellOf(const QModelIndex& index)
{
    return index.sibling(index.row(), 0);
}

/**
 * Calls @p visit with each item of @p branches, in order and before what is below it, which is left out where
 * the answer is false. Without recursion: a table may nest deeper than a stack is.
 */
template <typename Visitor>
void VisitBranches(const QAbstractItemModel& model, const QModelIndexList& branches, Visitor visit)
{
    QModelIndexList pending(branches.crbegin(), branches.crend());
    while (!pending.isEmpty()) {
        const QModelIndex item = pending.takeLast();
        if (!visit(item))
            continue;
        for (int row = model.rowCount(item) - 1; row >= 0; --row)
            pending.append(model.index(row, 0, item));
    }
}

/**
 * How many levels below its start a search opens. No path leads through more folders, while a view needs the
 * square of the open levels in time, and stack for each.
 */
constexpr int MaxSearchLevels = 2048;

/** A place in a walk through a branch, and how far below its top that is. */
struct SearchStep
{
    QPersistentModelIndex item;
    int level;
};

/** @return the place after the branch below @p step, within the branch of @p top; without an item at its end
 */
SearchStep StepOver(const SearchStep& step, const QModelIndex& top)
{
    int level = step.level;
    for (QModelIndex item = step.item; item.isValid() && item != top; item = item.parent(), --level) {
        const QModelIndex next = item.sibling(item.row() + 1, 0);
        if (next.isValid())
            return {next, level};
    }
    return {QModelIndex(), 0};
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
        const QPersistentModelIndex item = m_pAliasTreeModel->index(row, 0);
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

bool CKTFileManager::CanScanAlias(const QModelIndex& index) const
{
    const QString folder = m_pAliasTreeModel->GetMappedFolderPath(index);
    return !folder.isEmpty() && m_pAliasTreeModel->CanFileSysWatch(index) && AliasFolder::CanBeListed(folder);
}

void CKTFileManager::ScanForAliasTreeDirectories(const QModelIndex& index)
{
    if (!CanScanAlias(index))
        return;
    const QDir folder(m_pAliasTreeModel->GetMappedFolderPath(index));
    const QStringList names =
        folder.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
    const QPersistentModelIndex item = FirstCellOf(index);
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
    QModelIndexList unlisted;
    const QModelIndexList children = AliasChildren(index);
    for (int i = 0; i < children.size(); ++i) {
        if (present.contains(m_pAliasTreeModel->GetAliasLabel(children.at(i))))
            continue;
        unlisted.append(children.at(i));
        // The row that moves up is left to the next scan, as hosts know it.
        ++i;
    }
    RemoveAliasItems(unlisted);
}

void CKTFileManager::RemoveAliasItems(const QModelIndexList& siblings)
{
    if (siblings.isEmpty())
        return;
    Unwatch(siblings, AliasFate::Removed);
    const QPersistentModelIndex parent = siblings.first().parent();
    // From the last one on, so that the rows of the others stay what they are.
    for (auto item = siblings.crbegin(); item != siblings.crend(); ++item)
        m_pAliasTreeModel->removeRow(item->row(), parent);
}

void CKTFileManager::AddPathForFileSystemWatch(const QModelIndex& index)
{
    Watch({FirstCellOf(index)});
}

void CKTFileManager::Watch(const QModelIndexList& items)
{
    QStringList folders;
    VisitBranches(*m_pAliasTreeModel, items, [this, &folders](const QModelIndex& item) {
        const QString folder = Normalised(m_pAliasTreeModel->GetMappedFolderPath(item));
        // What cannot be read cannot be watched either, and the watcher would complain.
        if (m_pAliasTreeModel->CanFileSysWatch(item) && AliasFolder::CanBeListed(folder))
            folders.append(folder);
        return m_pAliasTreeView->isExpanded(item);
    });
    // The watcher passes over those that it watches already.
    if (!folders.isEmpty())
        m_pWatcher->addPaths(folders);
}

void CKTFileManager::RemovePathForFileSystemWatch(const QModelIndex& index)
{
    if (index.isValid())
        Unwatch({FirstCellOf(index)}, AliasFate::Kept);
}

void CKTFileManager::Unwatch(const QModelIndexList& items, AliasFate fate)
{
    QHash<QString, int> seen = SeenAliasFolders();
    const auto folderOf = [this](const QModelIndex& item) {
        return Normalised(m_pAliasTreeModel->GetMappedFolderPath(item));
    };
    if (fate == AliasFate::Removed) {
        VisitBranches(*m_pAliasTreeModel, items, [&](const QModelIndex& item) {
            seen[folderOf(item)] -= IsAliasSeen(item) ? 1 : 0;
            return true;
        });
    }
    QSet<QString> watched = SetOf(m_pWatcher->directories());
    QStringList ended;
    VisitBranches(*m_pAliasTreeModel, items, [&](const QModelIndex& item) {
        const QString folder = folderOf(item);
        const int itself = fate == AliasFate::Kept && IsAliasSeen(item) ? 1 : 0;
        const bool isSeenElsewhere = seen.value(folder) > itself;
        if (!isSeenElsewhere && m_pAliasTreeModel->CanFileSysWatch(item) && watched.remove(folder))
            ended.append(folder);
        return true;
    });
    if (!ended.isEmpty())
        m_pWatcher->removePaths(ended);
}

bool CKTFileManager::IsAliasSeen(const QModelIndex& item) const
{
    return !item.parent().isValid() || m_pAliasTreeView->isExpanded(item.parent());
}

QHash<QString, int> CKTFileManager::SeenAliasFolders() const
{
    QHash<QString, int> seen;
    VisitBranches(*m_pAliasTreeModel, {QModelIndex()}, [this, &seen](const QModelIndex& parent) {
        const int count = m_pAliasTreeModel->rowCount(parent);
        const bool isOpen = !parent.isValid() || m_pAliasTreeView->isExpanded(parent);
        for (int row = 0; isOpen && row < count; ++row)
            ++seen[Normalised(
                m_pAliasTreeModel->GetMappedFolderPath(m_pAliasTreeModel->index(row, 0, parent)))];
        return count > 0;
    });
    return seen;
}

void CKTFileManager::ClearPathesForFileSystemWatcher()
{
    const QStringList watched = m_pWatcher->directories() + m_pWatcher->files();
    if (!watched.isEmpty())
        m_pWatcher->removePaths(watched);
}

void CKTFileManager::OnDirectoryChanged(const QString& path)
{
    const QString folder = Normalised(path);
    // A folder that has vanished leaves nothing to scan; when many do, the tree need not be searched for
    // each.
    if (!QFileInfo(folder).isDir())
        return;
    QList<QPersistentModelIndex> items;
    VisitBranches(*m_pAliasTreeModel, {QModelIndex()}, [this, &folder, &items](const QModelIndex& item) {
        if (item.isValid() && m_pAliasTreeModel->GetMappedFolderPath(item) == folder)
            items.append(item);
        return true;
    });
    for (const QPersistentModelIndex& item : qAsConst(items))
        ScanForAliasTreeDirectories(item);
}

void CKTFileManager::OnAliasTreeExpand(const QModelIndex& index)
{
    const QModelIndexList children = AliasChildren(index);
    for (const QModelIndex& child : children)
        ScanForAliasTreeDirectories(child);
    Watch(children);
}

void CKTFileManager::OnAliasTreeCollapsed(const QModelIndex& index)
{
    Unwatch(AliasChildren(index), AliasFate::Kept);
}

void CKTFileManager::OnAliasTreeClicked(const QModelIndex& index)
{
    if (!index.isValid())
        return;
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
    if (!index.isValid())
        return;
    m_eLastMenuFrom = FM_PART_ALIAS_TREE;
    RemovePathForFileSystemWatch(index);
    // Without an editor none will close, after which the branch would be watched again.
    const QPersistentModelIndex item = FirstCellOf(index);
    QTimer::singleShot(0, this, [this, item] {
        if (item.isValid() && IsAliasSeen(item) && !m_pAliasTreeView->isPersistentEditorOpen(item))
            AddPathForFileSystemWatch(item);
    });
}

void CKTFileManager::OnAliasTreeViewSelectionChanged(const QItemSelection& selected,
                                                     const QItemSelection& deselected)
{
    Q_UNUSED(selected)
    Q_UNUSED(deselected)
}

void CKTFileManager::PrepareAliasEdit(const QModelIndex& index)
{
    // Hosts open editors by the view as well; however it opens, what closes is the current item's editor.
    RemovePathForFileSystemWatch(index);
    if (index != GetCurSelectedAliasIndex())
        SetCurrentAliasTreeSelection(index);
}

void CKTFileManager::OnAliasTreeCloseEditor()
{
    const QPersistentModelIndex current = FirstCellOf(GetCurSelectedAliasIndex());
    if (!current.isValid())
        return;
    const bool expanded = m_pAliasTreeView->isExpanded(current);
    if (CanScanAlias(current)) {
        RemoveAliasItems(AliasChildren(current));
        ScanForAliasTreeDirectories(current);
    }
    if (!ReadAgainFromParent(current, expanded)) {
        if (expanded)
            OnAliasTreeExpand(current);
        AddPathForFileSystemWatch(current);
    }
    const QString folder = GetCurSelectedFolder(FM_PART_ALIAS_TREE);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        ShowFolder(folder);
}

bool CKTFileManager::ReadAgainFromParent(const QPersistentModelIndex& item, bool expanded)
{
    const QPersistentModelIndex parent = item.parent();
    // What no scan brings back must not be gone because its name was edited.
    if (!CanScanAlias(parent))
        return false;
    const QString path = Normalised(m_pAliasTreeModel->GetMappedFolderPath(item));
    RemoveAliasItems({item});
    // The watch on the parent's folder would do this after a rename; when the edit was given up nothing has
    // changed on disk, and the item must not be gone for that.
    ScanForAliasTreeDirectories(parent);
    const QModelIndexList found = m_pAliasTreeModel->ChildIndexWithFilePath(path, parent, 1);
    if (found.isEmpty())
        return true;
    const QPersistentModelIndex again = FirstCellOf(found.first());
    SetCurrentAliasTreeSelection(again);
    m_pAliasTreeView->setExpanded(again, expanded);
    return true;
}

bool CKTFileManager::SetCurrentAliasTreeSelection(const QModelIndex& index)
{
    if (index.model() != m_pAliasTreeModel)
        return false;
    m_pAliasSelectionModel->setCurrentIndex(index, QItemSelectionModel::SelectCurrent);
    return true;
}

bool CKTFileManager::SetCurrentAliasTreeSelection(QString strPath, const QModelIndex& start, bool, bool)
{
    const QString wanted = strPath.toLower();
    const QPersistentModelIndex top = start.isValid() ? FirstCellOf(start) : m_pAliasTreeModel->index(0, 0);
    SearchStep step{top, 0};
    while (step.item.isValid()) {
        const QString folder = m_pAliasTreeModel->GetMappedFolderPath(step.item).toLower();
        if (folder == wanted)
            return SetCurrentAliasTreeSelection(step.item);
        const bool mayHold = !m_pAliasTreeModel->CanFileSysWatch(step.item) || wanted.startsWith(folder);
        QModelIndex child;
        if (mayHold && step.level < MaxSearchLevels) {
            m_pAliasTreeView->expand(step.item);
            child = m_pAliasTreeModel->index(0, 0, step.item);
        }
        step = child.isValid() ? SearchStep{child, step.level + 1} : StepOver(step, top);
    }
    return false;
}
