#ifndef TREEREMOVAL_H
#define TREEREMOVAL_H

#include <QString>

#include <functional>

/**
 * @file TreeRemoval.h
 * @brief Removes folders with all that is in them, and nothing that links in them lead to.
 *
 * A tree may nest deeper than a stack is: the walk keeps its own. The first entry that cannot be removed ends
 * it and leaves the rest in place. Each folder is emptied folders first, by name.
 */
namespace TreeRemoval {

/** Told of each folder that is gone, inner ones first. */
using FolderRemoved = std::function<void(const QString& path)>;

/**
 * Removes a folder; a link to a folder is removed as itself.
 *
 * @param path a clean path
 * @return whether nothing is left of the folder: true when there was none. A file-system root is never
 * touched.
 */
bool Remove(const QString& path, const FolderRemoved& removed);

/** Removes what is in a real folder. @return whether the folder is empty now */
bool Empty(const QString& path);

} // namespace TreeRemoval

#endif
