#ifndef HOSTIMAGECACHE_H
#define HOSTIMAGECACHE_H

#include <QCache>
#include <QIcon>
#include <QImage>

/**
 * Icons made from the images that a host's decoration callbacks answer.
 *
 * A callback is asked at every paint and usually answers an image that it keeps; turning it into a pixmap
 * each time would copy it each time. The cache does that once for each QImage::cacheKey() and drops the
 * icons that were used longest ago when it grows past its limit.
 */
class HostImageCache
{
public:
    HostImageCache();

    /**
     * @return the icon of @p image, a null icon for a null image. An image with a side beyond 4096 pixels is
     *         scaled down to it first: no view shows more, and its pixmap would not fit the cache.
     */
    QIcon IconFor(const QImage& image) const;

private:
    mutable QCache<qint64, QIcon> m_icons;
};

#endif
