#ifndef FILECOPY_H
#define FILECOPY_H

#include <QString>

/**
 * @file FileCopy.h
 * @brief Copies the content of one file.
 */
namespace FileCopy {

/**
 * Copies a regular file, or the one that a link shows, with its permissions.
 *
 * The copy appears under its name when it is complete, so that a full disk or the end of the process leaves
 * nothing half-written. Pipes, sockets and devices are not opened.
 * @return false when @p target is taken, be it by a link to nothing, or when a byte could not be copied
 */
bool Copy(const QString& source, const QString& target);

} // namespace FileCopy

#endif
