#ifndef DISKENTRY_H
#define DISKENTRY_H

#include <QFileInfo>
#include <QString>

/**
 * @file DiskEntry.h
 * @brief What an entry of a folder is to the file commands: a link is told from what it leads to.
 */
namespace DiskEntry {

/** @return whether the entry is a symbolic link, a junction or a shortcut, wherever it leads */
bool IsLink(const QFileInfo& entry);

/** @return whether the entry shows a folder: it is one, or a link to one. A shortcut is a file. */
bool ShowsFolder(const QFileInfo& entry);

/** @return whether the entry is a folder itself, not a link to one */
bool IsRealFolder(const QFileInfo& entry);

/** @return whether the entry shows a regular file. Pipes, sockets and devices are none: opening one may
 * block. */
bool ShowsFile(const QFileInfo& entry);

/**
 * @return everything that the folder at @p path holds, hidden entries and links to nothing included, in the
 *         disk's order; of a folder that is named like a shortcut too
 */
QFileInfoList EntriesIn(const QString& path);

/** @return whether the content of a file or folder is there and can be read at this moment */
bool CanBeRead(const QString& path);

/**
 * Removes a file, or a link as itself; what a link leads to is never touched. A folder is left alone. That a
 * file is read-only does not keep it.
 */
bool Remove(const QString& path);

} // namespace DiskEntry

#endif
