#ifndef DRAGIMAGE_H
#define DRAGIMAGE_H

#include <QModelIndexList>
#include <QPixmap>

class QAbstractItemView;
class QRect;
class QStyleOptionViewItem;

/** The image under the cursor during a drag: the dragged items as their view paints them when selected. */
namespace DragImage {

/**
 * Paints those of @p indexes that are in sight, each at its place in the view. Linear in the indexes; an item
 * out of sight costs no painting.
 *
 * @param option the view's standard option for items
 * @param rect is united with the rectangles of the items painted, in coordinates of the viewport; pass a null
 * one
 * @return a picture of the size of @p rect, in the view's device pixels; a null one when no item is in sight
 */
QPixmap Compose(const QAbstractItemView& view, const QModelIndexList& indexes, QStyleOptionViewItem option,
                QRect* rect);

} // namespace DragImage

#endif
