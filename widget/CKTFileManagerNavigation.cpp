#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "models/CMySortFilterProxyModel.h"
#include "views/CKTListView.h"
#include "views/CKTTreeView.h"

#include <QFileInfo>
#include <QHeaderView>
#include <QStackedWidget>

namespace {

/** What the tree model's filter is flipped through to have it read its folder again. */
constexpr QDir::Filters TreeRefreshFilter = QDir::Filters(QDir::AllDirs | QDir::NoDotAndDotDot);

/** What the list model's filter is flipped through to have it read its folder again. */
constexpr QDir::Filters ListRefreshFilter = QDir::Filters(QDir::Files | QDir::NoDotAndDotDot);

/** A model whose root path was never set names the current folder by this. */
bool HasRootPath(const QFileSystemModel& model)
{
    return model.rootPath() != QLatin1String(".");
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
    HideTopLevelRows();
}

bool CKTFileManager::SetDirectory(QString path)
{
    const bool isFirst = !HasRootPath(*m_pTreeModel);
    const QModelIndex root = SetTreeRootPath(path);
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
    const QFileInfo folder(m_pTreeModel->filePath(treeIndex));
    if (!folder.exists())
        return;
    ShowInList(folder.absoluteFilePath());
    m_pListView->clearSelection();
    m_pDetailView->clearSelection();
    m_pViewStack->currentWidget()->setFocus(Qt::OtherFocusReason);
}

bool CKTFileManager::IsGlobalPositionInWidget(const QWidget* widget, const QPoint& globalPos) const
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()).contains(globalPos);
}

void CKTFileManager::OnTreeClicked(const QModelIndex& index)
{
    const QFileInfo folder(m_pTreeModel->filePath(index));
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
