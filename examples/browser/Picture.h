#ifndef PICTURE_H
#define PICTURE_H

#include <QImage>
#include <QString>

/** Thumbnails of picture files. */
namespace Picture {

/** @return whether a file of that suffix is read as a picture */
bool IsSuffix(const QString& suffix);

/**
 * Reads a picture, scaled down while it is read where its format can. May run in any thread.
 * @param side the longest that the thumbnail's sides may be, in pixels; a smaller picture keeps its size
 * @return the picture in the middle of a square, so that all thumbnails stand in line; a null image for a
 * file that is no picture, or one too large to be read for a thumbnail
 */
QImage Thumbnail(const QString& path, int side);

} // namespace Picture

#endif
