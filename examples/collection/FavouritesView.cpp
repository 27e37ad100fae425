#include "FavouritesView.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QUrl>

FavouritesView::FavouritesView(QWidget* parent) : ThumbnailView(parent)
{
    setWrapping(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setDragEnabled(true);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true); // which a list view of items that do not move has switched off
    setDropIndicatorShown(false);     // a favourite is added at the end, wherever it is dropped
}

QSize FavouritesView::sizeHint() const
{
    const int scrollBar = horizontalScrollBar()->sizeHint().height();
    return QSize(ThumbnailView::sizeHint().width(), gridSize().height() + scrollBar + 2 * frameWidth());
}

QSize FavouritesView::minimumSizeHint() const
{
    return QSize(ThumbnailView::minimumSizeHint().width(), sizeHint().height());
}

bool FavouritesView::Takes(const QDropEvent& event) const
{
    return event.source() != this && event.mimeData()->hasUrls() &&
           (event.possibleActions() & Qt::CopyAction);
}

void FavouritesView::dragEnterEvent(QDragEnterEvent* event)
{
    dragMoveEvent(event);
}

void FavouritesView::dragMoveEvent(QDragMoveEvent* event)
{
    if (!Takes(*event)) {
        event->ignore();
        return;
    }
    // Never a move: the file stays where it is.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void FavouritesView::dropEvent(QDropEvent* event)
{
    if (!Takes(*event))
        return;
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT FilesDropped(paths);
}
