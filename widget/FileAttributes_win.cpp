#include "widget/FileAttributes.h"

#include "models/ExtendedPath_win.h"

#include <windows.h>

namespace FileAttributes {

namespace {

/** What a copy takes over. Read-only is among the permissions, the rest is how the disk stores a file. */
constexpr DWORD Kept = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

} // namespace

void Copy(const QString& source, const QString& target)
{
    const DWORD wanted = GetFileAttributesW(ExtendedPath(source).c_str());
    if (wanted == INVALID_FILE_ATTRIBUTES || !(wanted & Kept))
        return;
    const std::wstring name = ExtendedPath(target);
    const DWORD present = GetFileAttributesW(name.c_str());
    if (present != INVALID_FILE_ATTRIBUTES)
        SetFileAttributesW(name.c_str(), present | (wanted & Kept));
}

bool RemoveReadOnly(const QString& path)
{
    const std::wstring name = ExtendedPath(path);
    const DWORD attributes = GetFileAttributesW(name.c_str());
    const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    if (!isReadOnly || (attributes & FILE_ATTRIBUTE_DIRECTORY) ||
        !SetFileAttributesW(name.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY}))
        return false;
    if (DeleteFileW(name.c_str()))
        return true;
    SetFileAttributesW(name.c_str(), attributes);
    return false;
}

} // namespace FileAttributes
