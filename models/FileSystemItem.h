#ifndef FILESYSTEMITEM_H
#define FILESYSTEMITEM_H

#include "models/RenameErrorEvents.h"

#include <QString>

#include <optional>

class QFileInfo;
class QFileSystemModel;
class QModelIndex;

/**
 * @file FileSystemItem.h
 * @brief What the file-system models say of an item and do to it; shared by the list and the tree.
 */
namespace FileSystemItem {

/** @return whether the model was ever given a root path; without one it names the current folder by "." */
bool HasRootPath(const QFileSystemModel& model);

/**
 * @return the last name of the model's path of an item: that of the target for a linked folder whose link
 *         the model resolves. It is answered from what the model has gathered, without touching the disk.
 */
QString FileName(const QFileSystemModel& model, const QModelIndex& index);

/** @return whether something has this path, a link to nothing included: it could not be created */
bool IsTaken(const QString& path);

/**
 * Renames a file or folder within its own folder. A link is renamed itself.
 *
 * @param newName the new name, which must not leave the folder
 * @param mayBeBlank whether a name that is blank before its last dot is let through
 * @return why it was refused, or nothing when it was done. A refusal leaves the disk untouched.
 */
std::optional<RenameError> Rename(const QFileInfo& item, const QString& newName, bool mayBeBlank);

} // namespace FileSystemItem

#endif
