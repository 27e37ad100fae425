#ifndef ALIASTABLE_H
#define ALIASTABLE_H

#include <QString>

#include <optional>

/**
 * @file AliasTable.h
 * @brief Where the table of the alias tree comes from.
 */
namespace AliasTable {

/**
 * @param fileOrText the name of an existing regular file, or else the text of a table
 * @return the table's text: the file's, as UTF-8 without a leading byte-order mark, or @p fileOrText itself;
 *         nothing for a file that cannot be read
 */
std::optional<QString> TextOf(const QString& fileOrText);

} // namespace AliasTable

#endif
