#ifndef ALIASTREECOLUMNS_H
#define ALIASTREECOLUMNS_H

#include <KTFileManager2QU/TreeItem.h>

#include <QFileInfo>
#include <QString>

/**
 * @file AliasTreeColumns.h
 * @brief What an item of the alias tree holds, and the form in which its folder is compared.
 */
namespace AliasTree {

/** The columns of the tree, in their order. */
enum Column : int
{
    LabelColumn,
    PathColumn,
    WatchColumn,
    OpsColumn,
    SectionColumn,
    CustomColumn
};

/** As paths are compared: without asking the disk. */
inline QString Normalised(const QString& path)
{
    return QFileInfo(path).filePath();
}

/** @return the folder that an item points at, as it was given */
inline QString FolderOf(const TreeItem* item)
{
    return item->data(PathColumn).toString();
}

} // namespace AliasTree

#endif
