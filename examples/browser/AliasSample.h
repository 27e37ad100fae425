#ifndef ALIASSAMPLE_H
#define ALIASSAMPLE_H

#include <QString>

/**
 * @param section the INI section in which the names below the folders are looked up; empty for none
 * @return a table for the alias tree, of @p folder and the folders that most people have
 */
QString AliasSample(const QString& folder, const QString& section);

#endif
