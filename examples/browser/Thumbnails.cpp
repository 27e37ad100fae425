#include "Thumbnails.h"

#include "Picture.h"
#include "ThumbnailQueue.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QFileInfo>

namespace {

/** What the thumbnails kept may hold together, in KiB: some two thousand of 128 x 128 pixels. */
constexpr int KeptKiB = 128 * 1024;

} // namespace

Thumbnails::Thumbnails(const CKTFMListModel& model, ThumbnailQueue& queue)
    : m_model(model),
      m_queue(queue),
      m_kept(KeptKiB)
{
    connect(&m_queue, &ThumbnailQueue::Made, this, &Thumbnails::Store);
}

void Thumbnails::SetSide(int pixels)
{
    m_nSide = pixels;
}

QImage Thumbnails::HandleListviewDecorationRole(const QModelIndex& index)
{
    // The model asks for every column; in the table of details the name alone has a picture.
    if (index.column() != 0)
        return QImage();
    const QString path = m_model.filePath(index);
    if (m_model.isDir(index) || !Picture::IsSuffix(QFileInfo(path).suffix()))
        return QImage();
    const QDateTime modified = m_model.lastModified(index);
    const Kept* kept = m_kept.object(path);
    if (!kept || kept->modified != modified || kept->side < m_nSide)
        m_queue.Add(index, {path, modified, m_nSide});
    return kept ? kept->image : QImage();
}

void Thumbnails::Store(const ThumbnailSource& source, const QImage& image)
{
    const int kibibytes = 1 + static_cast<int>(image.sizeInBytes() / 1024);
    m_kept.insert(source.path, new Kept{source.modified, source.side, image}, kibibytes);
    Q_EMIT Ready();
}
