#include "models/SystemSortKey.h"

namespace {

const QCollator& DefaultCollator()
{
    static const QCollator collator;
    return collator;
}

} // namespace

bool SystemSortKey::Exists()
{
    static const bool hasLanguage = DefaultCollator().locale().language() != QLocale::C;
    return hasLanguage;
}

SystemSortKey::SystemSortKey(const QString& text) : m_key(DefaultCollator().sortKey(text)) {}

int SystemSortKey::Compare(const SystemSortKey& other) const
{
    return m_key.compare(other.m_key);
}
