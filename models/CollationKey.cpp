#include "models/CollationKey.h"

#include <QCollator>

namespace {

const QCollator& DefaultCollator()
{
    static const QCollator collator;
    return collator;
}

bool HasLanguage()
{
    static const bool hasLanguage = DefaultCollator().locale().language() != QLocale::C;
    return hasLanguage;
}

} // namespace

CollationKey::CollationKey(const QString& text) : m_text(text)
{
    if (HasLanguage() && !text.isEmpty())
        m_key = DefaultCollator().sortKey(text.normalized(QString::NormalizationForm_C));
}

int CollationKey::Compare(const CollationKey& other) const
{
    if (m_key && other.m_key)
        return m_key->compare(*other.m_key);
    return m_text.compare(other.m_text);
}
