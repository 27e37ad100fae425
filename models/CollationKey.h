#ifndef COLLATIONKEY_H
#define COLLATIONKEY_H

#include "models/SystemSortKey.h"

#include <QString>

#include <optional>

/**
 * A text prepared for comparing by the locale.
 *
 * Comparing two texts by locale costs a collation each time; a key costs one when it is made and a memory
 * compare from then on, with the same answer. The order is that of QString::localeAwareCompare in the locale
 * that is the default when the first key is made.
 */
class CollationKey
{
public:
    CollationKey() = default;
    explicit CollationKey(const QString& text);

    /** @return less than, equal to or greater than 0 as this text sorts before, with or after @p other */
    int Compare(const CollationKey& other) const;

private:
    QString m_text;
    std::optional<SystemSortKey> m_key; ///< not set for an empty text and where the locale has no keys
};

#endif
