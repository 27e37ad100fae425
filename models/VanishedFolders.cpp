#include "models/VanishedFolders.h"

#include <QFileInfo>
#include <QFileSystemModel>

namespace {

void ListNearestExisting(QFileSystemModel& model, const QString& vanished)
{
    QModelIndex index = model.index(vanished);
    while (index.isValid() && !QFileInfo::exists(model.filePath(index)))
        index = index.parent();
    if (model.canFetchMore(index))
        model.fetchMore(index);
}

} // namespace

namespace VanishedFolders {

void Follow(QFileSystemModel& model)
{
    QObject::connect(&model, &QFileSystemModel::directoryLoaded, &model, [&model](const QString& path) {
        if (!path.isEmpty() && !QFileInfo::exists(path))
            ListNearestExisting(model, path);
    });
}

} // namespace VanishedFolders
