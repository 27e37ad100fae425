#include "AliasSample.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace {

/** A line of the table: label, folder, scanned and watched, which operations (32: renaming), INI section. */
QString Line(const QString& label, const QString& folder, const QString& section)
{
    return QStringLiteral("%1\t%2\t1\t32\t%3").arg(label, folder, section);
}

} // namespace

QString AliasSample(const QString& folder, const QString& section)
{
    QStringList lines = {Line(QFileInfo(folder).fileName(), folder, section)};
    for (const auto place : {QStandardPaths::HomeLocation, QStandardPaths::DocumentsLocation,
                             QStandardPaths::PicturesLocation}) {
        const QString path = QStandardPaths::writableLocation(place);
        if (QFileInfo(path).isDir())
            lines.append(Line(QStandardPaths::displayName(place), QDir::cleanPath(path), section));
    }
    lines.removeDuplicates();
    return lines.join(QLatin1Char('\n'));
}
