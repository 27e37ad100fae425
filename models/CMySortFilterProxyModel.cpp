#include "models/CMySortFilterProxyModel.h"

#include "models/FileRowOrder.h"

CMySortFilterProxyModel::CMySortFilterProxyModel(QObject* parent)
    : QSortFilterProxyModel(parent),
      m_pOrder(std::make_unique<FileRowOrder>(*this))
{
}

CMySortFilterProxyModel::~CMySortFilterProxyModel() = default;

void CMySortFilterProxyModel::setSourceModel(QAbstractItemModel* sourceModel)
{
    QSortFilterProxyModel::setSourceModel(sourceModel);
    m_pOrder->FollowSource(sourceModel);
}

bool CMySortFilterProxyModel::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    return m_pOrder->LessThan(left, right);
}
