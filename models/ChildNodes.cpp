#include "models/ChildNodes.h"

#include <QFileSystemModel>

ChildNodes::ChildNodes(const QFileSystemModel& model)
{
    const auto forget = [this] { Forget(); };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                     [this](const QModelIndex&, int first) {
                         if (static_cast<std::size_t>(first) < m_nodes.size())
                             Forget();
                     });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, &model, [this] {
        Forget();
        m_bRowsMove = true;
    });
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, &model, [this] { m_bRowsMove = false; });
}

void* ChildNodes::At(int row, const QModelIndex& folder) const
{
    const auto number = static_cast<std::size_t>(row);
    const bool isKnown = folder.isValid() && folder.internalPointer() == m_pFolder && number < m_nodes.size();
    return isKnown ? m_nodes[number] : nullptr;
}

void ChildNodes::Remember(const QModelIndex& child, const QModelIndex& folder)
{
    if (m_bRowsMove || !folder.isValid() || !child.isValid())
        return;
    if (m_pFolder != folder.internalPointer()) {
        Forget();
        m_pFolder = folder.internalPointer();
    }
    const auto number = static_cast<std::size_t>(child.row());
    if (number >= m_nodes.size())
        m_nodes.resize(number + 1);
    m_nodes[number] = child.internalPointer();
}

void ChildNodes::Forget()
{
    m_pFolder = nullptr;
    m_nodes.clear();
}
