#include "views/ItemDrag.h"

#include <QAbstractItemView>
#include <QDrag>
#include <QMimeData>

#include <algorithm>
#include <iterator>

namespace ItemDrag {

QDrag* Create(QAbstractItemView* view, const QModelIndexList& indexes)
{
    QMimeData* data = view->model() ? view->model()->mimeData(indexes) : nullptr;
    auto* drag = new QDrag(view);
    // A model without data for these indexes still has them dragged, which QDrag refuses without any.
    drag->setMimeData(data ? data : new QMimeData);
    return drag;
}

QModelIndexList FirstColumn(const QModelIndexList& indexes)
{
    QModelIndexList first;
    std::copy_if(indexes.cbegin(), indexes.cend(), std::back_inserter(first),
                 [](const QModelIndex& index) { return index.column() == 0; });
    return first;
}

Qt::DropAction DefaultAction(const QAbstractItemView& view, Qt::DropActions supported)
{
    const Qt::DropAction chosen = view.defaultDropAction();
    if (chosen != Qt::IgnoreAction && (supported & chosen))
        return chosen;
    const bool copies =
        (supported & Qt::CopyAction) && view.dragDropMode() != QAbstractItemView::InternalMove;
    return copies ? Qt::CopyAction : Qt::IgnoreAction;
}

void Execute(QDrag* drag, const QAbstractItemView& view, Qt::DropActions supported, Qt::DropActions offered)
{
    drag->exec(offered, DefaultAction(view, supported));
}

} // namespace ItemDrag
