#include <KTFileManager2QU/CKTFMSortFilterProxyModel.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "models/FileRowOrder.h"

#include <QFileSystemModel>

CKTFMSortFilterProxyModel::CKTFMSortFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent),
      m_pOrder(std::make_unique<FileRowOrder>(*this))
{
}

CKTFMSortFilterProxyModel::~CKTFMSortFilterProxyModel() = default;

void CKTFMSortFilterProxyModel::setSourceModel(QAbstractItemModel* sourceModel)
{
    QSortFilterProxyModel::setSourceModel(sourceModel);
    m_pOrder->FollowSource(sourceModel);
}

void CKTFMSortFilterProxyModel::SetInterface(CCustomSortInterface* pInterface)
{
    m_pInterface = pInterface;
}

void CKTFMSortFilterProxyModel::SetCustomSort(bool bCustom)
{
    m_bCustomSort = bCustom;
}

void CKTFMSortFilterProxyModel::SetSearchTextFilter(const QString& strText)
{
    m_strSearchText = strText;
}

bool CKTFMSortFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const
{
    const auto* source = qobject_cast<QFileSystemModel*>(sourceModel());
    if (m_strSearchText.isEmpty() || !source || sourceParent != RootIndex(*source))
        return true;
    const QString text = source->index(sourceRow, 0, sourceParent).data(Qt::DisplayRole).toString();
    return text.isNull() || text.contains(m_strSearchText, Qt::CaseInsensitive);
}

QModelIndex CKTFMSortFilterProxyModel::RootIndex(const QFileSystemModel& source) const
{
    const QString rootPath = source.rootPath();
    if (!m_rootIndex.isValid() || m_rootIndex.model() != &source || m_strRootPath != rootPath) {
        m_rootIndex = source.index(rootPath);
        m_strRootPath = rootPath;
    }
    return m_rootIndex;
}

bool CKTFMSortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (!m_pOrder->IsOfSource(left) || !m_pOrder->IsOfSource(right))
        return false;
    const bool hasFiles = qobject_cast<QFileSystemModel*>(sourceModel());
    if (left.column() == 0 && m_bCustomSort && m_pInterface && hasFiles) {
        bool handled = false;
        const bool less =
            m_pInterface->CustomLessThan(m_pOrder->FileOf(left), m_pOrder->FileOf(right), handled);
        if (handled)
            return less;
    }
    return m_pOrder->LessThan(left, right);
}
