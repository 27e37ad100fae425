#include "Thumbnails.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QRunnable>

namespace {

/** The longest side of a thumbnail, in pixels: the largest icons on a screen of twice the density. */
constexpr int LongestSide = 256;

/** How many thumbnails are kept. */
constexpr int KeptThumbnails = 2000;

bool IsPictureName(const QString& suffix)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return formats.contains(suffix.toLower().toLatin1());
}

/** Puts a picture in the middle of a square, so that all thumbnails stand in line. */
QImage Squared(const QImage& picture)
{
    if (picture.isNull())
        return picture;
    const int side = qMax(picture.width(), picture.height());
    QImage square(side, side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((side - picture.width()) / 2, (side - picture.height()) / 2, picture);
    return square;
}

QImage Decoded(const QString& path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > LongestSide || size.height() > LongestSide)
        reader.setScaledSize(size.scaled(LongestSide, LongestSide, Qt::KeepAspectRatio));
    return Squared(reader.read());
}

} // namespace

Thumbnails::Thumbnails(const CKTFMListModel& model) : m_model(model), m_pictures(KeptThumbnails) {}

Thumbnails::~Thumbnails()
{
    m_pool.clear();
    m_pool.waitForDone();
}

QImage Thumbnails::HandleListviewDecorationRole(const QModelIndex& index)
{
    const QFileInfo info = m_model.fileInfo(index);
    if (!IsPictureName(info.suffix()))
        return QImage();
    const QString path = info.absoluteFilePath();
    const QDateTime modified = info.lastModified();
    const Picture* known = m_pictures.object(path);
    if (!known || known->modified != modified)
        Request(path, modified);
    return known ? known->thumbnail : QImage();
}

void Thumbnails::Request(const QString& path, const QDateTime& modified)
{
    if (m_requested.contains(path))
        return;
    m_requested.insert(path);
    m_pool.start(QRunnable::create([this, path, modified] {
                     const QImage thumbnail = Decoded(path);
                     QMetaObject::invokeMethod(
                         this, [=] { Store(path, modified, thumbnail); }, Qt::QueuedConnection);
                 }),
                 ++m_nLatestPriority);
}

void Thumbnails::Store(const QString& path, const QDateTime& modified, const QImage& thumbnail)
{
    m_requested.remove(path);
    m_pictures.insert(path, new Picture{modified, thumbnail});
    Q_EMIT Ready();
}
