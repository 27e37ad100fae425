#include "AliasSample.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

namespace {

/** A line of the table: label, folder, scanned and watched, which operations (32: renaming), INI section. */
QString Line(const QString& label, const QString& folder, const QString& section)
{
    return QStringLiteral("%1\t%2\t1\t32\t%3").arg(label, folder, section);
}

/** The column of the table that holds the folder. */
constexpr int FolderColumn = 1;

QString WithAbsoluteFolder(const QString& line, const QDir& base)
{
    // More than one tab between two columns counts as one.
    QStringList cells = line.split(QLatin1Char('\t'), Qt::SkipEmptyParts);
    if (cells.size() > FolderColumn)
        cells[FolderColumn] = QDir::cleanPath(base.absoluteFilePath(cells.at(FolderColumn).trimmed()));
    return cells.join(QLatin1Char('\t'));
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

QString AliasTableFrom(const QString& file)
{
    QFile table(file);
    if (!table.open(QIODevice::ReadOnly | QIODevice::Text))
        return QString();
    QStringList lines = QString::fromUtf8(table.readAll()).split(QLatin1Char('\n'));
    const QDir base = QFileInfo(file).absoluteDir();
    for (QString& line : lines)
        line = WithAbsoluteFolder(line, base);
    return lines.join(QLatin1Char('\n'));
}
