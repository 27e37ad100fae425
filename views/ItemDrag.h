#ifndef ITEMDRAG_H
#define ITEMDRAG_H

#include <QModelIndexList>

class QAbstractItemView;
class QDrag;

/** How the views of this library drag their items; each of them adds its image between the two steps. */
namespace ItemDrag {

/** @return a drag of @p indexes, owned by @p view, with the mime data that its model makes of them */
QDrag* Create(QAbstractItemView* view, const QModelIndexList& indexes);

/** @return those of @p indexes that stand in the first column: one for each row */
QModelIndexList FirstColumn(const QModelIndexList& indexes);

/**
 * @return what a drop does unless the user asks for something else: the view's own default action if it is
 * among
 *         @p supported; otherwise copying if that is, except in a view that moves its items within itself
 */
Qt::DropAction DefaultAction(const QAbstractItemView& view, Qt::DropActions supported);

/**
 * Carries the drag out and returns when the items are dropped or the user gives up. It runs an event loop, in
 * which the view may be deleted.
 *
 * @param supported what the view would permit, which chooses the default action
 * @param offered what the drop target may choose from
 */
void Execute(QDrag* drag, const QAbstractItemView& view, Qt::DropActions supported, Qt::DropActions offered);

} // namespace ItemDrag

#endif
