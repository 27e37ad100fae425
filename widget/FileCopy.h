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
 * A failure leaves nothing half-written behind. A large copy appears under its name when it is complete, so
 * that the end of the process leaves nothing either; a small one is written at once. Pipes, sockets and
 * devices are not opened.
 * @return false when @p target is taken, be it by a link to nothing, or when a byte could not be copied
 */
bool Copy(const QString& source, const QString& target);

} // namespace FileCopy

#endif
