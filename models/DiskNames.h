#ifndef DISKNAMES_H
#define DISKNAMES_H

class QString;

/**
 * @file DiskNames.h
 * @brief Which names this system's disks keep, and which are taken; one source a platform answers it.
 */
namespace DiskNames {

/**
 * @return whether an entry that is given @p name has that name then. Windows drops dots at the end, keeps
 * blanks there only for programs that know a trick, and takes the names of devices for the devices. The
 *         characters that no name may have are not looked for.
 */
bool IsKept(const QString& name);

/**
 * @return whether something has this path, a link to nothing included. On Windows a path is known as a link
 * by its name alone, so that Qt knows links where nothing is.
 */
bool IsTaken(const QString& path);

} // namespace DiskNames

#endif
