#include "DiskSpace.h"

#include <QRunnable>
#include <QStorageInfo>

DiskSpace::DiskSpace(QObject* parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

DiskSpace::~DiskSpace()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void DiskSpace::Ask(const QString& folder)
{
    m_folder = folder;
    m_pool.clear();
    m_pool.start(QRunnable::create([this, folder] {
        const qint64 free = QStorageInfo(folder).bytesAvailable();
        const auto answer = [this, folder, free] {
            if (folder == m_folder)
                Q_EMIT Known(free);
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    }));
}
