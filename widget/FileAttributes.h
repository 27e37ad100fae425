#ifndef FILEATTRIBUTES_H
#define FILEATTRIBUTES_H

class QString;

/**
 * @file FileAttributes.h
 * @brief What a system keeps of a file or folder beside its permissions; one source a platform.
 */
namespace FileAttributes {

/** Gives @p target what @p source has of them: on Windows whether it is hidden, and whether it is the
 * system's. */
void Copy(const QString& source, const QString& target);

/**
 * Removes a file, or a shortcut as itself, that could not be removed because it is read-only.
 * @return whether it was removed; otherwise it is as protected as before
 */
bool RemoveReadOnly(const QString& path);

} // namespace FileAttributes

#endif
