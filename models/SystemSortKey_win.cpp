#include "models/SystemSortKey.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

namespace {

/** The key of @p text, or its size in bytes when there is no room; 0 when the system makes none. */
int MapToKey(const QString& text, char* key, int room)
{
    const auto* units = reinterpret_cast<const wchar_t*>(text.utf16());
    // Asked for a key, the system writes bytes where it writes characters otherwise.
    return LCMapStringEx(LOCALE_NAME_USER_DEFAULT, LCMAP_SORTKEY, units, text.size(),
                         reinterpret_cast<wchar_t*>(key), room, nullptr, nullptr, 0);
}

} // namespace

bool SystemSortKey::Exists()
{
    return true;
}

SystemSortKey::SystemSortKey(const QString& text) : m_key(MapToKey(text, nullptr, 0), '\0')
{
    MapToKey(text, m_key.data(), m_key.size());
}

int SystemSortKey::Compare(const SystemSortKey& other) const
{
    const int common = std::min(m_key.size(), other.m_key.size());
    const int order = std::memcmp(m_key.constData(), other.m_key.constData(), static_cast<size_t>(common));
    return order != 0 ? order : m_key.size() - other.m_key.size();
}
