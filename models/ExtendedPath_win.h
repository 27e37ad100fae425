#ifndef EXTENDEDPATH_WIN_H
#define EXTENDEDPATH_WIN_H

#include <string>

class QString;

/**
 * @return @p path as the functions of Windows take it at any length: with the prefix that lifts their limit
 * of 260 characters, and with backslashes
 */
std::wstring ExtendedPath(const QString& path);

#endif
