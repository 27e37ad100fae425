#include "Picture.h"

#include <QImageReader>
#include <QPainter>
#include <QSet>

namespace {

/** The most pixels that are read of a picture whose format cannot scale while it is read: 400 MB of them. */
constexpr qint64 MostPixels = 100000000;

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

bool IsTooLarge(const QImageReader& reader, const QSize& size)
{
    return qint64(size.width()) * size.height() > MostPixels &&
           !reader.supportsOption(QImageIOHandler::ScaledSize);
}

} // namespace

bool Picture::IsSuffix(const QString& suffix)
{
    static const QSet<QByteArray> formats = [] {
        const QList<QByteArray> list = QImageReader::supportedImageFormats();
        return QSet<QByteArray>(list.begin(), list.end());
    }();
    return formats.contains(suffix.toLower().toLatin1());
}

QImage Picture::Thumbnail(const QString& path, int side)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (IsTooLarge(reader, size))
        return QImage();
    if (size.width() > side || size.height() > side)
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return Squared(reader.read());
}
