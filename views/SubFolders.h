#ifndef SUBFOLDERS_H
#define SUBFOLDERS_H

#include <QStringList>

/**
 * @file SubFolders.h
 * @brief Which sub-folders a folder has: links to folders included, hidden ones left out.
 *
 * A path that is empty, or that cannot be listed, has none: an empty path never stands for the current
 * folder of the process.
 */
namespace SubFolders {

/** @return whether there is at least one; reads the folder only as far as the first */
bool AnyIn(const QString& path);

/** @return all names, in the order in which the file system lists them */
QStringList NamesIn(const QString& path);

} // namespace SubFolders

#endif
