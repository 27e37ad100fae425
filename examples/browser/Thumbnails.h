#ifndef THUMBNAILS_H
#define THUMBNAILS_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QObject>

class CKTFMListModel;
class ThumbnailQueue;
struct ThumbnailSource;

/**
 * The pictures of a file list as thumbnails.
 *
 * An item keeps its plain icon until its thumbnail is made. Thumbnails are kept by path, time and size, the
 * ones used last; while a larger or newer one is made, the one that is there is shown.
 */
class Thumbnails : public QObject, public CKTFMListModelInterface
{
    Q_OBJECT

public:
    /** @param model whose indexes are asked about. @param queue makes the thumbnails. Both are borrowed. */
    Thumbnails(const CKTFMListModel& model, ThumbnailQueue& queue);

    /** Sets the longest side that is shown, in pixels of the screen. */
    void SetSide(int pixels);

    QImage HandleListviewDecorationRole(const QModelIndex& index) override;

Q_SIGNALS:
    /** A thumbnail is there: the views should be painted again. */
    void Ready();

private:
    struct Kept
    {
        QDateTime modified;
        int side;
        QImage image; ///< null for a file that is no picture
    };

    void Store(const ThumbnailSource& source, const QImage& image);

    const CKTFMListModel& m_model;
    ThumbnailQueue& m_queue;
    QCache<QString, Kept> m_kept;
    int m_nSide = 0;
};

#endif
