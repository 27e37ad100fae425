#ifndef TRANSLATEDNAMES_H
#define TRANSLATEDNAMES_H

#include <QString>

/**
 * @file TranslatedNames.h
 * @brief The words in the user's language that names on disk are made of.
 *
 * A catalogue may come from anyone. A text of it that no file name may hold is not used: the English one
 * stands in for it. Names of copies are the same in all languages.
 */
namespace TranslatedNames {

/** @return the start of a new folder's name, such as "New Folder", which a number follows */
QString NewFolder();

} // namespace TranslatedNames

#endif
