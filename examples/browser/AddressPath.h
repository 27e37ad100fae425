#ifndef ADDRESSPATH_H
#define ADDRESSPATH_H

#include <QString>

/**
 * @param text as a user types or pastes it: a path, with or without quotes around it, one that begins with ~
 *             for the home folder, or a file: URL
 * @param folder against which a relative path is resolved
 * @return the absolute path that is meant, which need not exist; an empty one for a blank text
 */
QString AddressPath(const QString& text, const QString& folder);

#endif
