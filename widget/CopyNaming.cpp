#include "widget/CopyNaming.h"

#include "models/FileSystemItem.h"
#include "widget/DiskEntry.h"
#include "widget/LocalPaths.h"

#include <QFileInfo>

namespace CopyNaming {

namespace {

/** How much of a name a copy keeps, in UTF-16 units: room is left for the number and the extension. */
constexpr int KeptLength = 163;

QString Shortened(const QString& name)
{
    const QString kept = name.left(KeptLength);
    // Half of a character beyond the basic plane is not a name that a disk can hold.
    return kept.size() < name.size() && kept.back().isHighSurrogate() ? kept.chopped(1) : kept;
}

} // namespace

QString FreeName(const QFileInfo& item)
{
    const bool isFolder = DiskEntry::ShowsFolder(item);
    const QString start =
        Shortened(isFolder ? item.fileName() : item.completeBaseName()) + QLatin1String("-Copy(");
    const QString end = isFolder ? QStringLiteral(")") : QLatin1String(").") + item.suffix();
    for (int n = 1;; ++n) {
        const QString name = start + QString::number(n) + end;
        if (!FileSystemItem::IsTaken(LocalPaths::In(item.path(), name)))
            return name;
    }
}

} // namespace CopyNaming
