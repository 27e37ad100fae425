#include "models/HostImageCache.h"

#include <QPixmap>

namespace {

/** What the icons kept may hold together, in KiB of pixels: some thousand thumbnails. */
constexpr int CacheLimitKiB = 128 * 1024;

/** The longest side of an icon's pixmap, in pixels. Its pixels (64 MiB at most) fit the cache. */
constexpr int LongestSide = 4096;

QImage Bounded(const QImage& image)
{
    if (image.width() <= LongestSide && image.height() <= LongestSide)
        return image;
    return image.scaled(LongestSide, LongestSide, Qt::KeepAspectRatio, Qt::FastTransformation);
}

int CostInKiB(const QPixmap& pixmap)
{
    constexpr int bytesPerPixel = 4;
    return 1 + pixmap.width() * bytesPerPixel * pixmap.height() / 1024;
}

} // namespace

HostImageCache::HostImageCache() : m_icons(CacheLimitKiB) {}

QIcon HostImageCache::IconFor(const QImage& image) const
{
    if (image.isNull())
        return QIcon();
    if (const QIcon* known = m_icons.object(image.cacheKey()))
        return *known;
    const QPixmap pixmap = QPixmap::fromImage(Bounded(image));
    const QIcon icon(pixmap);
    m_icons.insert(image.cacheKey(), new QIcon(icon), CostInKiB(pixmap));
    return icon;
}
