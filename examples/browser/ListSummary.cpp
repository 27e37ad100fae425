#include "ListSummary.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAbstractProxyModel>
#include <QItemSelectionModel>
#include <QListView>

ListSummary::ListSummary(const CKTFileManager& pane, QObject* parent)
    : QObject(parent),
      m_model(*pane.GetListModel()),
      m_views(pane)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &ListSummary::Count);
    const QAbstractItemModel* rows = m_views.grid->model();
    connect(rows, &QAbstractItemModel::rowsInserted, this, &ListSummary::Update);
    connect(rows, &QAbstractItemModel::rowsRemoved, this, &ListSummary::Update);
    connect(rows, &QAbstractItemModel::layoutChanged, this, &ListSummary::Update);
    connect(m_views.grid->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ListSummary::Update);
}

void ListSummary::Update()
{
    // Not started anew while it waits: changes that never stop must not keep it from counting.
    if (!m_timer.isActive())
        m_timer.start();
}

void ListSummary::Count()
{
    const QModelIndex root = m_views.grid->rootIndex();
    Q_EMIT Counted(root.isValid() ? m_views.grid->model()->rowCount(root) : 0);
    CountSelection();
}

void ListSummary::CountSelection()
{
    const QAbstractProxyModel* order = m_views.Order();
    int items = 0;
    qint64 bytes = -1;
    const QItemSelection selection = m_views.grid->selectionModel()->selection();
    for (const QItemSelectionRange& range : selection) {
        if (range.left() != 0)
            continue;
        items += range.height();
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex item = order->mapToSource(order->index(row, 0, range.parent()));
            if (!m_model.isDir(item))
                bytes = qMax<qint64>(bytes, 0) + m_model.size(item);
        }
    }
    Q_EMIT SelectionCounted(items, bytes);
}
