#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "models/CMySortFilterProxyModel.h"
#include "models/FileSystemItem.h"
#include "views/CKTListView.h"
#include "views/CKTTreeView.h"
#include "widget/SelectedItems.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStackedWidget>

namespace {

/** What the tree model's filter is flipped through to have it read its folder again. */
constexpr QDir::Filters TreeRefreshFilter = QDir::Filters(QDir::AllDirs | QDir::NoDotAndDotDot);

/** What the list model's filter is flipped through to have it read its folder again. */
constexpr QDir::Filters ListRefreshFilter = QDir::Filters(QDir::Files | QDir::NoDotAndDotDot);

/** @return the path of an index, an empty one for an index of another model */
QString PathIn(const QFileSystemModel& model, const QModelIndex& index)
{
    return index.model() == &model ? model.filePath(index) : QString();
}

} // namespace

QModelIndex CKTFileManager::MapToSource(QModelIndex index) const
{
    return index.model() == m_pProxy ? m_pProxy->mapToSource(index) : QModelIndex();
}

QModelIndex CKTFileManager::MapFromSource(QModelIndex index) const
{
    return m_pProxy->mapFromSource(index);
}

void CKTFileManager::RefreshModel(QFileSystemModel* model, QDir::Filters through)
{
    const QDir::Filters filter = model->filter();
    model->setFilter(through);
    model->setFilter(filter);
}

QModelIndex CKTFileManager::SetTreeRootPath(const QString& path)
{
    const QModelIndex root = m_pTreeModel->setRootPath(path);
    RefreshModel(m_pTreeModel, TreeRefreshFilter);
    return root;
}

void CKTFileManager::ShowInList(const QString& path)
{
    const QModelIndex root = m_pListModel->setRootPath(path);
    m_pListView->setRootIndex(MapFromSource(root));
    m_pDetailView->setRootIndex(MapFromSource(root));
    RefreshModel(m_pListModel, ListRefreshFilter);
}

bool CKTFileManager::SetDirectory(QString path)
{
    const bool isFirst = !FileSystemItem::HasRootPath(*m_pTreeModel);
    const QPersistentModelIndex root = SetTreeRootPath(path);
    // A missing folder leaves the root path as it was; before there is one, the index is that of the
    // process's own current folder.
    if (!isFirst || FileSystemItem::HasRootPath(*m_pTreeModel))
        m_pTreeView->setRootIndex(root);
    if (!isFirst) {
        m_pTreeView->setCurrentIndex(root);
        SelectTreeItem(root);
    }
    for (int section = 1; section < m_pTreeView->header()->count(); ++section)
        m_pTreeView->header()->hideSection(section);
    return true;
}

void CKTFileManager::SelectTreeItem(const QModelIndex& treeIndex)
{
    const QFileInfo folder(PathIn(*m_pTreeModel, treeIndex));
    if (!folder.exists())
        return;
    ShowInList(folder.absoluteFilePath());
    m_pListView->clearSelection();
    m_pDetailView->clearSelection();
    ShownListView()->setFocus(Qt::OtherFocusReason);
}

QAbstractItemView* CKTFileManager::ShownListView() const
{
    if (m_pViewStack->currentIndex() == 0)
        return m_pListView;
    return m_pDetailView;
}

QString CKTFileManager::GoToParentFolder()
{
    const QPersistentModelIndex parent = m_pTreeView->currentIndex().parent();
    if (!parent.isValid())
        return QString();
    m_pTreeView->setCurrentIndex(parent);
    SelectTreeItem(parent);
    return QFileInfo(m_pTreeModel->filePath(parent)).absoluteFilePath();
}

bool CKTFileManager::SetCurrentSelection(int n)
{
    if (!FileSystemItem::HasRootPath(*m_pListModel))
        return false;
    const QDir folder(m_pListModel->rootPath());
    const QStringList names =
        folder.entryList(QDir::Files | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::NoSort);
    if (n < 0 || n >= names.size())
        return false;
    const bool fromLast = m_pDetailView->header()->sortIndicatorOrder() == Qt::DescendingOrder;
    const int position = fromLast ? names.size() - n - 1 : n;
    const QModelIndex source = m_pListModel->index(folder.filePath(names.at(position)));
    if (!source.isValid())
        return false;
    const QPersistentModelIndex index = MapFromSource(source);
    OnListClicked(index);
    m_pListView->setCurrentIndex(index);
    return true;
}

bool CKTFileManager::SetCurrentSelection(QString path, bool notify, bool edit)
{
    const QModelIndex source = m_pListModel->index(path, 0);
    if (!source.isValid()) {
        m_pListView->clearSelection();
        return false;
    }
    const QPersistentModelIndex index = MapFromSource(source);
    if (notify)
        OnListClicked(index);
    ShownListView()->setCurrentIndex(index);
    if (edit)
        ShownListView()->edit(index);
    return true;
}

void CKTFileManager::ClearCurrentSelection()
{
    m_pListView->clearSelection();
    m_pDetailView->clearSelection();
}

QString CKTFileManager::GetCurSelectedFolder(EKTFMPart part) const
{
    switch (part) {
    case FM_PART_TREE:
    case FM_PART_LIST:
        return m_pTreeModel->filePath(m_pTreeSelectionModel->currentIndex());
    case FM_PART_ALIAS_TREE:
        return m_pAliasTreeModel->GetMappedFolderPath(GetCurSelectedAliasIndex());
    default:
        return QString();
    }
}

QModelIndex CKTFileManager::GetCurSelectedAliasIndex() const
{
    return m_pAliasSelectionModel->currentIndex();
}

bool CKTFileManager::IsFocus() const
{
    const QWidget* focused = focusWidget();
    return focused && (focused == m_pTreeView || focused == m_pListView || focused == m_pDetailView);
}

QStringList CKTFileManager::GetCurSelectedFileList(bool fromList) const
{
    if (!fromList) {
        QStringList paths;
        const QModelIndexList folders = m_pTreeSelectionModel->selectedIndexes();
        for (const QModelIndex& index : folders)
            paths.append(m_pTreeModel->filePath(index));
        return paths;
    }
    const QModelIndexList selected = SelectedItems::Of(*m_pListSelectionModel);
    QVector<QModelIndex> items;
    items.reserve(selected.size());
    for (const QModelIndex& index : selected)
        items.append(MapToSource(index));
    return SelectedItems::Paths(*m_pListModel, items, MapToSource(m_pListView->rootIndex()));
}

QStringList CKTFileManager::GetAllFilePathFromListView(const QStringList& nameFilters) const
{
    QStringList paths;
    if (!FileSystemItem::HasRootPath(*m_pListModel))
        return paths;
    QDirIterator files(m_pListModel->rootPath(), nameFilters, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    return paths;
}

void CKTFileManager::OnTreeClicked(const QModelIndex& index)
{
    const QFileInfo folder(PathIn(*m_pTreeModel, index));
    m_eLastMenuFrom = FM_PART_TREE;
    const QPersistentModelIndex clicked(index);
    if (folder.exists() && m_pInterface)
        m_pInterface->OnLButtonClickTreeItem(folder.absoluteFilePath());
    SelectTreeItem(clicked);
}

void CKTFileManager::OnListClicked(const QModelIndex& index)
{
    const QFileInfo item(m_pListModel->filePath(MapToSource(index)));
    m_eLastMenuFrom = FM_PART_LIST;
    if (item.exists() && m_pInterface)
        m_pInterface->OnLButtonClickListItem(item.absoluteFilePath());
}

void CKTFileManager::OnListDblClicked(const QModelIndex& index)
{
    const QFileInfo item(m_pListModel->filePath(MapToSource(index)));
    m_eLastMenuFrom = FM_PART_LIST;
    if (!item.exists())
        return;
    const bool isFolder = item.isDir();
    if (isFolder)
        OpenFolder(item.absoluteFilePath());
    if (m_pInterface)
        m_pInterface->OnLButtonDblClickListItem(item.absoluteFilePath(), isFolder);
}

void CKTFileManager::OpenFolder(const QString& path)
{
    m_pTreeView->setCurrentIndex(SetTreeRootPath(path));
    ShowInList(path);
    const QList<QModelIndex> aliases = m_pAliasTreeModel->IndexWithFilePath(path.toLower());
    if (!aliases.isEmpty())
        m_pAliasTreeView->setCurrentIndex(aliases.first());
}

void CKTFileManager::OnListViewSelectionChanged(const QItemSelection& selected,
                                                const QItemSelection& deselected)
{
    if (m_pInterface)
        m_pInterface->OnListViewSelectionChanged(selected, deselected);
}

void CKTFileManager::OnTreeViewSelectionChanged(const QItemSelection& selected,
                                                const QItemSelection& deselected)
{
    // The views must not react to the clearing, so they look at the spare selection meanwhile.
    m_pListView->setSelectionModel(m_pDetailSelectionModel);
    m_pDetailView->setSelectionModel(m_pDetailSelectionModel);
    m_pListSelectionModel->clear();
    m_pListView->setSelectionModel(m_pListSelectionModel);
    m_pDetailView->setSelectionModel(m_pListSelectionModel);
    if (m_pInterface)
        m_pInterface->OnTreeViewSelectionChanged(selected, deselected);
}

void CKTFileManager::OnListViewRootPathChanged(const QString& newPath)
{
    if (m_pInterface)
        m_pInterface->OnListViewRootPathChanged(newPath);
}

void CKTFileManager::OnTreeViewRootPathChanged(const QString& newPath)
{
    if (m_pInterface)
        m_pInterface->OnTreeViewRootPathChanged(newPath);
}
