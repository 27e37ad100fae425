#ifndef THUMBNAILS_H
#define THUMBNAILS_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QCache>
#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QThreadPool>

class CKTFMListModel;

/**
 * The pictures of a file list as thumbnails.
 *
 * A picture is decoded on a thread pool, scaled while it is read, when its item is first painted; until then
 * the item keeps its plain icon. The latest request comes first, so that what the user looks at does not wait
 * for what was scrolled past. Thumbnails are kept by path and time, the ones used last.
 */
class Thumbnails : public QObject, public CKTFMListModelInterface
{
    Q_OBJECT

public:
    /** @param model whose indexes are asked about; borrowed */
    explicit Thumbnails(const CKTFMListModel& model);

    /** Waits for the decoding that has begun. */
    ~Thumbnails() override;

    QImage HandleListviewDecorationRole(const QModelIndex& index) override;

Q_SIGNALS:
    /** A thumbnail is ready: the views should be painted again. */
    void Ready();

private:
    struct Picture
    {
        QDateTime modified;
        QImage thumbnail; ///< null for a file that is no picture
    };

    void Request(const QString& path, const QDateTime& modified);
    void Store(const QString& path, const QDateTime& modified, const QImage& thumbnail);

    const CKTFMListModel& m_model;
    QThreadPool m_pool;
    QSet<QString> m_requested;
    QCache<QString, Picture> m_pictures;
    int m_nLatestPriority = 0;
};

#endif
