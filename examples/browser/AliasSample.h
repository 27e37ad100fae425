#ifndef ALIASSAMPLE_H
#define ALIASSAMPLE_H

#include <QString>

/**
 * @param section the INI section in which the names below the folders are looked up; empty for none
 * @return a table for the alias tree, of @p folder and the folders that most people have
 */
QString AliasSample(const QString& folder, const QString& section);

/**
 * Reads a table from a file. A folder that is given relative to the file's own becomes absolute, so that a
 * table may travel with its folders.
 * @return the table's text; a null one when the file cannot be read
 */
QString AliasTableFrom(const QString& file);

#endif
