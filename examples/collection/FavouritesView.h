#ifndef FAVOURITESVIEW_H
#define FAVOURITESVIEW_H

#include "ThumbnailView.h"

#include <QStringList>

/** One row of thumbnails, onto which files can be dropped from anywhere. */
class FavouritesView final : public ThumbnailView
{
    Q_OBJECT

public:
    explicit FavouritesView(QWidget* parent = nullptr);

    /** @return the height of one row and a scroll bar */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /** Files were dropped. */
    void FilesDropped(const QStringList& paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool Takes(const QDropEvent& event) const;
};

#endif
