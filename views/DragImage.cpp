#include "views/DragImage.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QPainter>

#include <utility>

namespace {

using PaintPair = std::pair<QRect, QModelIndex>;

QVector<PaintPair> ItemsInSight(const QAbstractItemView& view, const QModelIndexList& indexes, QRect* bounds)
{
    const QRect sight = view.viewport()->rect();
    QVector<PaintPair> items;
    for (const QModelIndex& index : indexes) {
        const QRect item = view.visualRect(index);
        if (!item.intersects(sight))
            continue;
        items.append({item, index});
        *bounds |= item;
    }
    return items;
}

QPixmap TransparentPixmap(const QSize& size, qreal devicePixelRatio)
{
    QPixmap pixmap(size * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    return pixmap;
}

} // namespace

namespace DragImage {

QPixmap Compose(const QAbstractItemView& view, const QModelIndexList& indexes, QStyleOptionViewItem option,
                QRect* rect)
{
    const QVector<PaintPair> items = ItemsInSight(view, indexes, rect);
    if (items.isEmpty())
        return QPixmap();
    QPixmap pixmap = TransparentPixmap(rect->size(), view.devicePixelRatioF());
    QPainter painter(&pixmap);
    // What a painter that is opened on the view itself begins with.
    painter.setFont(view.viewport()->font());
    painter.setPen(view.viewport()->palette().color(QPalette::WindowText));
    painter.setLayoutDirection(view.viewport()->layoutDirection());
    option.state |= QStyle::State_Selected;
    for (const auto& [place, index] : items) {
        option.rect = place.translated(-rect->topLeft());
        view.itemDelegate(index)->paint(&painter, option, index);
    }
    return pixmap;
}

} // namespace DragImage
