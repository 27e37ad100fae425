#ifndef ALIASTREE_H
#define ALIASTREE_H

#include <QString>

class CKTFileManager;

/** Loads a table and opens the category of @p folder. @return whether there is one */
bool ShowAliases(CKTFileManager& pane, const QString& table, const QString& folder);

/** @return what the host wrote into the last column of the current item of the alias tree */
QString CurrentCollection(const CKTFileManager& pane);

#endif
