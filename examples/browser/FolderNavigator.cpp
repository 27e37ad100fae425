#include "FolderNavigator.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QTreeView>

#include <utility>

namespace {

/** @return whether @p path is @p folder or below it, as the model has it */
bool IsWithin(const QFileSystemModel& model, const QString& path, const QString& folder)
{
    const QModelIndex top = model.index(folder);
    QModelIndex index = model.index(path);
    while (index.isValid() && index != top)
        index = index.parent();
    return index.isValid();
}

/** @return @p path, or the folder that it is a link to, since the model has no links; an empty text when the
 * model does not have that either, as with hidden folders */
QString ShownPath(const QFileSystemModel& model, const QString& path)
{
    // Asked by the disk: until the model has listed the folder above, it takes both for folders like others.
    const QFileInfo folder(path);
    if (folder.isHidden() && !folder.isRoot())
        return QString();
    if (!folder.isSymLink() && model.index(path).isValid())
        return path;
    const QString target = folder.canonicalFilePath();
    return model.index(target).isValid() ? target : QString();
}

/** @return the folder that the tree begins with to show @p path: the user's own, or the top of the disk */
QString TreeRootFor(const QFileSystemModel& model, const QString& path)
{
    if (IsWithin(model, path, QDir::homePath()))
        return QDir::homePath();
    QDir folder(path);
    while (folder.cdUp()) {
    }
    return folder.absolutePath();
}

} // namespace

FolderNavigator::FolderNavigator(CKTFileManager& pane, QObject* parent)
    : QObject(parent),
      m_pane(pane),
      m_views(pane)
{
    // Queued: the view itself must have heard of it first.
    const CKTFMTreeModel* tree = m_pane.GetTreeModel();
    connect(tree, &QFileSystemModel::directoryLoaded, this, &FolderNavigator::KeepInSight,
            Qt::QueuedConnection);
    connect(tree, &QAbstractItemModel::layoutChanged, this, &FolderNavigator::KeepInSightSorted,
            Qt::QueuedConnection);
}

bool FolderNavigator::Show(const QString& path)
{
    const CKTFMTreeModel* model = m_pane.GetTreeModel();
    const QString folder = ShownPath(*model, QDir::cleanPath(QDir(path).absolutePath()));
    if (folder.isEmpty())
        return false;
    const QModelIndex root = m_views.tree->rootIndex();
    if (!root.isValid() || !IsWithin(*model, folder, model->filePath(root)))
        MakeRoot(TreeRootFor(*model, folder));
    const QModelIndex index = model->index(folder);
    m_views.tree->setCurrentIndex(index);
    m_pane.SelectTreeItem(index);
    return true;
}

void FolderNavigator::MakeRoot(const QString& path)
{
    // Every call but the first shows the folder in the list as well, which is not where the user goes.
    const QScopedValueRollback<bool> passing(m_bPassing, true);
    m_pane.SetDirectory(path);
}

void FolderNavigator::Reload()
{
    // The model lists a folder when it is made its root: left and come back to, it is listed anew.
    const QScopedValueRollback<bool> passing(m_bPassing, true);
    CKTFMListModel* model = m_pane.GetListModel();
    const QString folder = model->rootPath();
    model->setRootPath(QString());
    model->setRootPath(folder);
}

bool FolderNavigator::IsPassing() const
{
    return m_bPassing;
}

void FolderNavigator::KeepInSight(const QString& listed)
{
    // What is listed above the current folder has moved it, and moves it again when the model sorts it.
    const CKTFMTreeModel* model = m_pane.GetTreeModel();
    const QModelIndex current = m_views.tree->currentIndex();
    if (!IsWithin(*model, model->filePath(current), listed))
        return;
    m_views.tree->scrollTo(current);
    m_bTreeUnsorted = true;
}

void FolderNavigator::KeepInSightSorted()
{
    // Once only: later changes must not take the tree from where the user has scrolled it.
    if (std::exchange(m_bTreeUnsorted, false))
        m_views.tree->scrollTo(m_views.tree->currentIndex());
}
