#ifndef CONTENTIMAGES_H
#define CONTENTIMAGES_H

#include "KindCards.h"

#include <QCache>
#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QThreadPool>
#include <QVector>

/**
 * The images of files and folders, for callbacks that must answer at once.
 *
 * Nothing here touches the disk on the caller's thread. A file shows the card of its kind; when it is a
 * picture, it is read and scaled on a thread pool, and Ready tells when the views should ask again. What was
 * asked for last is read first, and the oldest of too many requests is dropped: it was scrolled past, and is
 * asked for anew when it is seen again.
 */
class ContentImages : public QObject
{
    Q_OBJECT

public:
    explicit ContentImages(QObject* parent = nullptr);

    /** Waits for the reading that has begun. */
    ~ContentImages() override;

    /** @return the image of a file as it was at @p modified */
    QImage OfFile(const QString& path, const QDateTime& modified);

    const KindCards& Cards() const;

    /** @return whether pictures are still to come */
    bool IsBusy() const;

Q_SIGNALS:
    /** A picture has been read. */
    void Ready();

private:
    struct Request
    {
        QString path;
        QDateTime modified;
    };

    struct Picture
    {
        QDateTime modified;
        QImage image; ///< null for a file that cannot be read as a picture
    };

    void Ask(const Request& request);
    void StartReading();
    void Store(const Request& request, const QImage& image);

    KindCards m_cards;
    QCache<QString, Picture> m_pictures;
    QVector<Request> m_waiting; ///< the latest last
    QSet<QString> m_reading;
    QThreadPool m_pool;
};

#endif
