#include "FolderTrail.h"

#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QDir>

#include <utility>

FolderTrail::FolderTrail(CKTFMTreeModel& model, std::function<void(const QString&)> open)
    : m_model(model),
      m_open(std::move(open))
{
}

void FolderTrail::OnTitleBarButtonClicked(const QModelIndex& index)
{
    m_open(m_model.filePath(index));
}

void FolderTrail::OnTitleBarMenuTriggered(const QString& path)
{
    m_open(path);
}

QString FolderTrail::GetTitleBarDisplayName(const QModelIndex& index)
{
    const QString name = index.data(Qt::DisplayRole).toString();
    return name.isEmpty() ? QDir::toNativeSeparators(m_model.filePath(index)) : name;
}

QString FolderTrail::GetTitleBarPath(const QModelIndex& index)
{
    return m_model.filePath(index);
}

QModelIndex FolderTrail::GetTitleBarIndexFromPath(const QString& path)
{
    return m_model.index(path);
}
