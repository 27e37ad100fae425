#include "widget/LocalPaths.h"

#include <QDir>
#include <QUrl>

namespace LocalPaths {

namespace {

/** Whether a clean path leads to one place from everywhere; one in a drive's own current folder does not. */
bool IsAbsolute(const QString& path)
{
    const bool isFromRoot = path.startsWith(QLatin1Char('/'));
    return !QDir::isRelativePath(path) && (isFromRoot || path.midRef(1, 2) == QLatin1String(":/"));
}

} // namespace

QString Of(const QUrl& url)
{
    if (!url.isLocalFile())
        return QString();
    const QString path = QDir::cleanPath(url.toLocalFile());
    // Where paths cannot lead to another host, cleaning cuts the host's path to one of this machine.
    const bool lostHost = !url.host().isEmpty() && !path.startsWith(QLatin1String("//"));
    return lostHost || !IsAbsolute(path) ? QString() : path;
}

QStringList Of(const QList<QUrl>& urls)
{
    QStringList paths;
    for (const QUrl& url : urls) {
        const QString path = Of(url);
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

QList<QUrl> UrlsOf(const QStringList& paths)
{
    QList<QUrl> urls;
    urls.reserve(paths.size());
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    return urls;
}

QString Cleaned(const QString& path)
{
    return path.isEmpty() ? QString() : QDir::cleanPath(QDir(path).absolutePath());
}

QString In(const QString& folder, const QString& name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

} // namespace LocalPaths
