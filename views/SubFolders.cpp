#include "views/SubFolders.h"

#include <QDir>
#include <QDirIterator>

namespace {

constexpr QDir::Filters FoldersOnly = QDir::Dirs | QDir::NoDotAndDotDot;

} // namespace

namespace SubFolders {

bool AnyIn(const QString& path)
{
    return !path.isEmpty() && QDirIterator(path, FoldersOnly).hasNext();
}

QStringList NamesIn(const QString& path)
{
    return path.isEmpty() ? QStringList() : QDir(path).entryList(FoldersOnly, QDir::Unsorted);
}

} // namespace SubFolders
