#include "widget/NumberedFolder.h"

#include "models/FileSystemItem.h"
#include "widget/LocalPaths.h"

#include <QFileSystemModel>

namespace NumberedFolder {

QModelIndex Make(QFileSystemModel& model, const QModelIndex& parent, const QString& start)
{
    if (!parent.isValid())
        return QModelIndex();
    const QString folder = model.filePath(parent);
    for (int n = 1;; ++n) {
        const QString name = start + QString::number(n);
        const QModelIndex made = model.mkdir(parent, name);
        if (made.isValid() || !FileSystemItem::IsTaken(LocalPaths::In(folder, name)))
            return made;
    }
}

} // namespace NumberedFolder
