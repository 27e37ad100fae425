#ifndef DISKSPACE_H
#define DISKSPACE_H

#include <QObject>
#include <QString>
#include <QThreadPool>

/** Finds out how much room the disk of a folder has, in a thread: a disk of the network may not answer. */
class DiskSpace : public QObject
{
    Q_OBJECT

public:
    explicit DiskSpace(QObject* parent = nullptr);

    /** Waits for the question under way. */
    ~DiskSpace() override;

    /** Asks for the disk of @p folder. Only the latest question is answered. */
    void Ask(const QString& folder);

Q_SIGNALS:
    /** The answer. @param free in bytes; negative when the system does not know */
    void Known(qint64 free);

private:
    QString m_folder;
    QThreadPool m_pool;
};

#endif
