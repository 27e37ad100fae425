#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "models/CMySortFilterProxyModel.h"
#include "models/FileSystemItem.h"
#include "views/CKTListView.h"
#include "views/CKTTreeView.h"
#include "widget/CopyNaming.h"
#include "widget/DiskEntry.h"
#include "widget/FileCopy.h"
#include "widget/LocalPaths.h"
#include "widget/NumberedFolder.h"
#include "widget/PasteRules.h"
#include "widget/PasteTurn.h"
#include "widget/ReplacePrompt.h"
#include "widget/SelectedItems.h"
#include "widget/TranslatedNames.h"
#include "widget/TreeCopy.h"
#include "widget/TreeRemoval.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QMimeData>
#include <QSet>
#include <QUrl>

#include <memory>

namespace {

QClipboard& Clipboard()
{
    return *QApplication::clipboard();
}

QList<QUrl> ClipboardUrls()
{
    const QMimeData* content = Clipboard().mimeData(QClipboard::Clipboard);
    return content ? content->urls() : QList<QUrl>();
}

/** The folder that a list model shows; empty until it has been given one. */
QString ShownFolder(const QFileSystemModel& model)
{
    return FileSystemItem::HasRootPath(model) ? model.rootPath() : QString();
}

/** An item's own path. The model may name a linked folder by where it leads to, which is not the item. */
QString OwnPath(const QFileSystemModel& model, const QModelIndex& index)
{
    const QString path = model.fileInfo(index).absoluteFilePath();
    return LocalPaths::Cleaned(path.isEmpty() ? model.filePath(index) : path);
}

/** The first cell of each row that has one among @p cells, in their order. */
QModelIndexList FirstOfEachRow(const QModelIndexList& cells)
{
    QModelIndexList firsts;
    QSet<QModelIndex> seen;
    for (const QModelIndex& cell : cells) {
        const QModelIndex first = cell.sibling(cell.row(), 0);
        if (seen.contains(first))
            continue;
        seen.insert(first);
        firsts.append(first);
    }
    return firsts;
}

void Edit(QAbstractItemView& view, const QModelIndex& index)
{
    if (index.flags() & Qt::ItemIsEditable)
        view.edit(index);
}

} // namespace

/** What copy and cut take. */
struct CKTFileManager::Selected
{
    QModelIndexList indexes;
    QStringList paths;
    std::unique_ptr<QMimeData> mimeData;
};

bool CKTFileManager::DoCommand(EKTFMCommand eCommand)
{
    switch (eCommand) {
    case FM_CMD_COPY:
        return CopyFiles();
    case FM_CMD_CUT:
        return CutFiles();
    case FM_CMD_PASTE:
        return Paste();
    case FM_CMD_DELETE:
        return DeleteFiles();
    case FM_CMD_SELECT_ALL:
        return SelectAll();
    case FM_CMD_RENAME:
        return Rename(true);
    case FM_CMD_NEW_FOLDER:
        return NewFolder(true);
    default:
        return false;
    }
}

bool CKTFileManager::IsPasteable()
{
    const QMimeData* content = Clipboard().mimeData(QClipboard::Clipboard);
    return content && content->hasUrls();
}

QModelIndexList CKTFileManager::SelectedListItems() const
{
    if (ShownFolder(*m_pListModel).isEmpty())
        return QModelIndexList();
    return FirstOfEachRow(SelectedItems::Of(*m_pListSelectionModel));
}

QStringList CKTFileManager::PathsOfSelected(const QModelIndexList& selected) const
{
    QStringList paths;
    for (const QModelIndex& index : selected) {
        const QString path = index.model() == m_pProxy
                                 ? OwnPath(*m_pListModel, MapToSource(index))
                                 : LocalPaths::Cleaned(m_pAliasTreeModel->GetMappedFolderPath(index));
        if (!path.isEmpty() && !QFileInfo(path).isRoot())
            paths.append(path);
    }
    paths.removeDuplicates();
    return paths;
}

CKTFileManager::Selected CKTFileManager::SelectedForCommand() const
{
    Selected selected;
    if (m_eLastMenuFrom == FM_PART_ALIAS_TREE) {
        selected.indexes = m_pAliasSelectionModel->selectedIndexes();
        selected.paths = PathsOfSelected(selected.indexes);
        selected.mimeData.reset(m_pAliasTreeModel->mimeData(selected.indexes));
        return selected;
    }
    if (m_eLastMenuFrom == FM_PART_LIST)
        selected.indexes = SelectedListItems();
    selected.paths = PathsOfSelected(selected.indexes);
    selected.mimeData.reset(m_pProxy->mimeData(selected.indexes));
    // A link is taken as itself, and a single cell of a row as the whole item.
    selected.mimeData->setUrls(LocalPaths::UrlsOf(selected.paths));
    return selected;
}

bool CKTFileManager::CopyFiles()
{
    Selected selected = SelectedForCommand();
    if (selected.indexes.isEmpty())
        return false;
    m_cutPaths.clear();
    Clipboard().clear(QClipboard::Clipboard);
    m_bCut = false;
    if (Clipboard().supportsSelection())
        Clipboard().setText(selected.paths.join(QLatin1Char('\n')), QClipboard::Selection);
    Clipboard().setMimeData(selected.mimeData.release(), QClipboard::Clipboard);
    return true;
}

bool CKTFileManager::CutFiles()
{
    Selected selected = SelectedForCommand();
    m_bCut = true;
    Clipboard().clear(QClipboard::Clipboard);
    m_cutPaths = selected.paths;
    Clipboard().setMimeData(selected.mimeData.release(), QClipboard::Clipboard);
    m_pListSelectionModel->clear();
    m_pAliasSelectionModel->clear();
    return true;
}

QString CKTFileManager::PasteDestination() const
{
    if (m_eLastMenuFrom == FM_PART_LIST)
        return LocalPaths::Cleaned(ShownFolder(*m_pListModel));
    if (m_eLastMenuFrom == FM_PART_ALIAS_TREE)
        return LocalPaths::Cleaned(GetCurSelectedFolder(FM_PART_ALIAS_TREE));
    return QString();
}

bool CKTFileManager::Paste()
{
    const QList<QUrl> urls = ClipboardUrls();
    const QString destination = PasteDestination();
    QStringList paths = LocalPaths::Of(urls);
    if (!PasteRules::CanPasteInto(destination) || PasteRules::HoldDestination(paths, destination))
        return false;
    const PasteTurn turn(this);
    QStringList replaced;
    for (const QString& path : qAsConst(paths)) {
        if (!PasteRules::IsConflict(path, destination))
            continue;
        const auto answer = ReplacePrompt::Ask(this, m_pMsgBoxParent, QFileInfo(path).fileName());
        if (!turn.Goes())
            return false;
        if (answer == ReplacePrompt::Answer::Cancel) {
            m_cutPaths.clear();
            return false;
        }
        if (ClipboardUrls() != urls || !PasteRules::CanPasteInto(destination))
            return false;
        if (answer == ReplacePrompt::Answer::Yes)
            replaced.append(path);
    }
    const auto kind = m_bCut ? TreeCopy::Kind::Move : TreeCopy::Kind::Copy;
    paths = PasteRules::RemoveReplaced(*m_pListModel, paths, replaced, destination, kind);
    m_pListSelectionModel->clear();
    PasteFiles(LocalPaths::UrlsOf(paths), destination);
    update();
    return true;
}

bool CKTFileManager::PasteFiles(QList<QUrl> urls, QString strDestFolder)
{
    const QStringList paths = LocalPaths::Of(urls);
    for (const QString& path : paths) {
        const QFileInfo item(path);
        const bool isInPlace = item.path() == strDestFolder;
        if (item.fileName().isEmpty() || (isInPlace && m_bCut))
            continue;
        const bool isCopied = isInPlace && item.exists();
        const QString target =
            LocalPaths::In(strDestFolder, isCopied ? CopyNaming::FreeName(item) : item.fileName());
        if (FileSystemItem::IsTaken(target) && !DiskEntry::ShowsFolder(QFileInfo(target)))
            continue;
        if (!DiskEntry::ShowsFolder(item))
            CutCopyFile(path, target, m_bCut);
        else if (target.compare(path, Qt::CaseInsensitive) == 0)
            return false;
        else
            CopyFolder(path, target, m_bCut);
    }
    if (m_bCut) {
        m_cutPaths.clear();
        Clipboard().clear(QClipboard::Clipboard);
    }
    return true;
}

bool CKTFileManager::CutCopyFile(QString strSrc, QString strDest, bool bCut)
{
    if (!FileCopy::Copy(strSrc, strDest))
        return false;
    if (bCut)
        DiskEntry::Remove(strSrc);
    return true;
}

bool CKTFileManager::CopyFolder(QString strSrc, QString strDest, bool bCut)
{
    const auto kind = bCut ? TreeCopy::Kind::Move : TreeCopy::Kind::Copy;
    TreeCopy copy(kind, [this](const QString& folder) {
        const QModelIndex item = UnwatchAliasOf(folder);
        if (item.isValid())
            m_pAliasTreeModel->removeRow(item.row(), item.parent());
    });
    return copy.Run(strSrc, strDest);
}

QModelIndex CKTFileManager::UnwatchAliasOf(const QString& folder)
{
    const QList<QModelIndex> items = m_pAliasTreeModel->IndexWithFilePath(folder);
    if (items.isEmpty())
        return QModelIndex();
    const QModelIndex item = items.first().sibling(items.first().row(), 0);
    RemovePathForFileSystemWatch(item);
    return item;
}

bool CKTFileManager::DeleteFiles()
{
    QStringList paths;
    QPersistentModelIndex parent;
    if (m_eLastMenuFrom == FM_PART_ALIAS_TREE) {
        paths = PathsOfSelected({GetCurSelectedAliasIndex()});
        parent = LeaveAliasFolder();
    } else if (m_eLastMenuFrom == FM_PART_TREE || m_eLastMenuFrom == FM_PART_LIST) {
        paths = PathsOfSelected(SelectedListItems());
    }
    for (const QString& path : qAsConst(paths)) {
        if (DiskEntry::ShowsFolder(QFileInfo(path)))
            DeleteDirectory(path);
        else
            DiskEntry::Remove(path);
    }
    if (parent.isValid())
        m_pAliasTreeView->expand(parent);
    return true;
}

QModelIndex CKTFileManager::LeaveAliasFolder()
{
    const QPersistentModelIndex current = GetCurSelectedAliasIndex();
    const QPersistentModelIndex parent = current.parent();
    if (!parent.isValid())
        return QModelIndex();
    m_pAliasTreeView->collapse(parent);
    RemovePathForFileSystemWatch(current);
    m_pAliasSelectionModel->setCurrentIndex(parent, QItemSelectionModel::SelectCurrent);
    const QString folder = m_pAliasTreeModel->GetMappedFolderPath(parent);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        ShowFolder(folder);
    return parent;
}

bool CKTFileManager::DeleteDirectory(QString strPath)
{
    return TreeRemoval::Remove(strPath, [this](const QString& folder) { UnwatchAliasOf(folder); });
}

bool CKTFileManager::NewFolder(bool bInList)
{
    m_eLastMenuFrom = FM_PART_LIST;
    QFileSystemModel* model = m_pTreeModel;
    if (bInList)
        model = m_pListModel;
    const QModelIndex parent = model->index(GetCurSelectedFolder(FM_PART_LIST), 0);
    const QModelIndex made = NumberedFolder::Make(*model, parent, TranslatedNames::NewFolder());
    if (!made.isValid())
        return false;
    const QPersistentModelIndex shown = bInList ? MapFromSource(made) : made;
    QItemSelectionModel* selection = bInList ? m_pListSelectionModel : m_pTreeSelectionModel;
    selection->setCurrentIndex(shown, QItemSelectionModel::ClearAndSelect);
    Edit(bInList ? *ShownListView() : *m_pTreeView, shown);
    return true;
}

bool CKTFileManager::Rename(bool)
{
    if (m_eLastMenuFrom == FM_PART_TREE)
        Edit(*m_pTreeView, m_pTreeSelectionModel->currentIndex());
    else if (m_eLastMenuFrom == FM_PART_LIST && !ShownFolder(*m_pListModel).isEmpty())
        Edit(*ShownListView(), m_pListSelectionModel->currentIndex());
    else if (m_eLastMenuFrom == FM_PART_ALIAS_TREE)
        RenameAlias();
    return true;
}

void CKTFileManager::RenameAlias()
{
    // A search by path finds another cell, one that the tree does not show.
    const QModelIndex found = GetCurSelectedAliasIndex();
    const QPersistentModelIndex current = found.sibling(found.row(), 0);
    // Nothing would watch the folder again without an editor that closes.
    if (!(current.flags() & Qt::ItemIsEditable))
        return;
    m_pAliasTreeView->collapse(current);
    RemovePathForFileSystemWatch(current);
    Edit(*m_pAliasTreeView, current);
}

bool CKTFileManager::SelectAll()
{
    m_pListView->selectAll();
    m_pDetailView->selectAll();
    return true;
}
