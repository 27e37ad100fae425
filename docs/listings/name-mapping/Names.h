#ifndef NAMES_H
#define NAMES_H

#include <QString>

class CKTFileManager;

/** Shows the names of a mapping file in folder tree and file list, and its tips in the list. */
void MapNames(CKTFileManager* manager, const QString& path);

/** Shows the file list by another section of the same file. */
void MapNamesBySection(CKTFileManager* manager, const QString& section);

#endif
