#include "AddressPath.h"

#include <QDir>
#include <QUrl>

namespace {

QString WithoutQuotes(const QString& text)
{
    constexpr int quotes = 2;
    const QLatin1Char quote('"');
    const bool quoted = text.size() >= quotes && text.startsWith(quote) && text.endsWith(quote);
    return quoted ? text.mid(1, text.size() - quotes) : text;
}

QString WithHome(const QString& path)
{
    const bool atHome = path == QLatin1String("~") || path.startsWith(QLatin1String("~/"));
    return atHome ? QDir::homePath() + path.mid(1) : path;
}

} // namespace

QString AddressPath(const QString& text, const QString& folder)
{
    const QString typed = WithoutQuotes(text.trimmed());
    if (typed.isEmpty())
        return QString();
    const QUrl url(typed);
    const QString path = url.isLocalFile() ? url.toLocalFile() : WithHome(QDir::fromNativeSeparators(typed));
    return QDir::cleanPath(QDir(folder).absoluteFilePath(path));
}
