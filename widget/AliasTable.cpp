#include "widget/AliasTable.h"

#include <QFile>
#include <QFileInfo>

namespace AliasTable {

std::optional<QString> TextOf(const QString& fileOrText)
{
    // What has lines or columns is a table: the disk need not be asked for it.
    const bool isTable = fileOrText.contains(QLatin1Char('\n')) || fileOrText.contains(QLatin1Char('\t'));
    if (isTable || !QFileInfo(fileOrText).isFile())
        return fileOrText;
    QFile file(fileOrText);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return QString::fromUtf8(bytes);
}

} // namespace AliasTable
