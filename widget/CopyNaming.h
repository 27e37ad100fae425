#ifndef COPYNAMING_H
#define COPYNAMING_H

#include <QString>

class QFileInfo;

/**
 * @file CopyNaming.h
 * @brief How the copy of an item is called that is pasted into the folder it lies in.
 */
namespace CopyNaming {

/**
 * @return the first free name for a copy of @p item within its own folder: "Docs-Copy(1)" for a folder Docs,
 *         "name-Copy(1).ext" for a file. A file without an extension gets the dot all the same. A long name
 *         is cut before "-Copy". The number grows until a name is free, which costs one look-up each.
 */
QString FreeName(const QFileInfo& item);

} // namespace CopyNaming

#endif
