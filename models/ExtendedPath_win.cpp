#include "models/ExtendedPath_win.h"

#include <QDir>

#include <windows.h>

namespace {

/** The path as Windows writes it: absolute, and without the dots and blanks at its end that it drops. */
std::wstring FullPath(const QString& path)
{
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    std::wstring full(GetFullPathNameW(native.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(GetFullPathNameW(native.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    return full;
}

} // namespace

std::wstring ExtendedPath(const QString& path)
{
    const std::wstring full = FullPath(path);
    // One begins with two backslashes: it leads to another host.
    return full.compare(0, 2, L"\\\\") == 0 ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}
