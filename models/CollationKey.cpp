#include "models/CollationKey.h"

CollationKey::CollationKey(const QString& text) : m_text(text)
{
    if (SystemSortKey::Exists() && !text.isEmpty())
        m_key.emplace(text.normalized(QString::NormalizationForm_C));
}

int CollationKey::Compare(const CollationKey& other) const
{
    if (m_key && other.m_key)
        return m_key->Compare(*other.m_key);
    return m_text.compare(other.m_text);
}
