#include "ThumbnailQueue.h"

#include "Picture.h"

#include <QRunnable>
#include <QThread>

#include <utility>

ThumbnailQueue::ThumbnailQueue(std::function<bool(const QModelIndex&)> isSeen) : m_isSeen(std::move(isSeen))
{
    // One is left to the GUI.
    m_pool.setMaxThreadCount(qMax(1, QThread::idealThreadCount() - 1));
}

ThumbnailQueue::~ThumbnailQueue()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void ThumbnailQueue::Add(const QModelIndex& item, const ThumbnailSource& source)
{
    if (m_paths.contains(source.path))
        return;
    m_paths.insert(source.path);
    m_waiting.enqueue({item, source});
    ++m_nTotal;
    // Not at once: the item is asked for in the midst of painting, when a view must not be asked back.
    QMetaObject::invokeMethod(this, &ThumbnailQueue::StartNext, Qt::QueuedConnection);
}

bool ThumbnailQueue::IsEmpty() const
{
    return m_paths.isEmpty();
}

void ThumbnailQueue::StartNext()
{
    while (m_nRunning < m_pool.maxThreadCount() && !m_waiting.isEmpty()) {
        const Request request = m_waiting.dequeue();
        if (m_isSeen(request.item))
            Start(request.source);
        else
            m_paths.remove(request.source.path);
    }
    TellProgress();
}

void ThumbnailQueue::Start(const ThumbnailSource& source)
{
    ++m_nRunning;
    m_pool.start(QRunnable::create([this, source] {
        const QImage image = Picture::Thumbnail(source.path, source.side);
        const auto deliver = [this, source, image] {
            --m_nRunning;
            m_paths.remove(source.path);
            Q_EMIT Made(source, image);
            StartNext();
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
    }));
}

void ThumbnailQueue::TellProgress()
{
    Q_EMIT Progressed(m_nTotal - m_paths.size(), m_nTotal);
    if (m_paths.isEmpty())
        m_nTotal = 0;
}
