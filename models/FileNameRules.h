#ifndef FILENAMERULES_H
#define FILENAMERULES_H

#include <QString>

/**
 * @file FileNameRules.h
 * @brief What a name typed by the user may hold; shared by every model that renames and by the delegate.
 */
namespace FileNameRules {

/** @return whether @p name holds one of the nine characters \ / : * ? | " < > that no file name may have */
bool HasForbiddenCharacter(const QString& name);

/**
 * @return whether @p name would leave its folder when it is appended to a path: it holds a separator of the
 *         platform ("/" everywhere, "\" too on Windows)
 */
bool HasSeparator(const QString& name);

/**
 * @return whether a file system can hold @p name as it is: a null character would end it early, and half of
 *         a surrogate pair would be stored as another character
 */
bool IsRepresentable(const QString& name);

} // namespace FileNameRules

#endif
