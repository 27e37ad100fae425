#include "models/ChildNodes.h"

#include <QFileSystemModel>

namespace {

/**
 * The folders that are remembered at a time. A proxy asks for the listed one and, to find that, for those
 * above; what is left of folders that were listed before goes when there are more.
 */
constexpr int MostFolders = 32;

} // namespace

ChildNodes::ChildNodes(const QFileSystemModel& model)
{
    const auto forget = [this] { m_nodes.clear(); };
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model,
                     [this](const QModelIndex& folder, int first) { ForgetFrom(first, folder); });
    QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::rowsMoved, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::modelAboutToBeReset, &model, forget);
    QObject::connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, &model, [this] {
        m_nodes.clear();
        m_bRowsMove = true;
    });
    QObject::connect(&model, &QAbstractItemModel::layoutChanged, &model, [this] { m_bRowsMove = false; });
}

void* ChildNodes::At(int row, const QModelIndex& folder) const
{
    if (!folder.isValid())
        return nullptr;
    const auto nodes = m_nodes.constFind(folder.internalPointer());
    const auto number = static_cast<std::size_t>(row);
    return nodes != m_nodes.cend() && number < nodes->size() ? (*nodes)[number] : nullptr;
}

void ChildNodes::Remember(const QModelIndex& child, const QModelIndex& folder)
{
    if (m_bRowsMove || !folder.isValid() || !child.isValid())
        return;
    if (m_nodes.size() >= MostFolders && !m_nodes.contains(folder.internalPointer()))
        m_nodes.clear();
    auto& nodes = m_nodes[folder.internalPointer()];
    const auto number = static_cast<std::size_t>(child.row());
    if (number >= nodes.size())
        nodes.resize(number + 1);
    nodes[number] = child.internalPointer();
}

/** Rows were inserted: what stood there or below has another row now. */
void ChildNodes::ForgetFrom(int row, const QModelIndex& folder)
{
    const auto nodes = m_nodes.find(folder.internalPointer());
    if (nodes != m_nodes.end() && static_cast<std::size_t>(row) < nodes->size())
        nodes->resize(static_cast<std::size_t>(row));
}
