#ifndef LOCALPATHS_H
#define LOCALPATHS_H

#include <QList>
#include <QStringList>

class QUrl;

/**
 * @file LocalPaths.h
 * @brief The paths that file commands work with: absolute and clean, so that the last name is the item's.
 */
namespace LocalPaths {

/**
 * @return the path that @p url names on this machine, clean; empty for a URL that names none: it is not a
 *         local file's, it is relative, or it belongs to another host and the platform has no such paths
 */
QString Of(const QUrl& url);

/** @return the paths of those URLs that name one */
QStringList Of(const QList<QUrl>& urls);

/** @return the URLs of local paths */
QList<QUrl> UrlsOf(const QStringList& paths);

/** @return @p path, absolute and clean; an empty path stays empty and never stands for the current folder */
QString Cleaned(const QString& path);

/** @return the path of an entry of a folder, which may be a root */
QString In(const QString& folder, const QString& name);

} // namespace LocalPaths

#endif
