#ifndef THUMBNAILQUEUE_H
#define THUMBNAILQUEUE_H

#include <QDateTime>
#include <QImage>
#include <QObject>
#include <QPersistentModelIndex>
#include <QQueue>
#include <QSet>
#include <QString>
#include <QThreadPool>

#include <functional>

/** What a thumbnail is made of. */
struct ThumbnailSource
{
    QString path;
    QDateTime modified;
    int side; ///< the longest that the thumbnail's sides may be, in pixels
};

/**
 * The thumbnails that are asked for, in the order in which they are made.
 *
 * Items are asked for as they are painted, from the top down, so that this is the order of the queue. No more
 * are handed to the threads than run at once: before a thumbnail is begun, the queue asks whether its item is
 * still seen, and drops it when it was scrolled away. It will be asked for again when it comes back.
 */
class ThumbnailQueue : public QObject
{
    Q_OBJECT

public:
    /** @param isSeen whether an item is in sight now; called on the GUI thread */
    explicit ThumbnailQueue(std::function<bool(const QModelIndex&)> isSeen);

    /** Waits for the thumbnails that are begun. */
    ~ThumbnailQueue() override;

    /** Asks for the thumbnail of an item's file, unless that is waited for already. */
    void Add(const QModelIndex& item, const ThumbnailSource& source);

    /** @return whether no thumbnail is waited for */
    bool IsEmpty() const;

Q_SIGNALS:
    /** A thumbnail is made. @param image null when the file is no picture */
    void Made(const ThumbnailSource& source, const QImage& image);

    /** How many of those asked for, since none was, are made or dropped. */
    void Progressed(int done, int total);

private:
    struct Request
    {
        QPersistentModelIndex item;
        ThumbnailSource source;
    };

    void StartNext();
    void Start(const ThumbnailSource& source);
    void TellProgress();

    std::function<bool(const QModelIndex&)> m_isSeen;
    QThreadPool m_pool;
    QQueue<Request> m_waiting;
    QSet<QString> m_paths; ///< of those that wait or are begun
    int m_nRunning = 0;
    int m_nTotal = 0;
};

#endif
