#include "ini/ProfileFile.h"

#include <io.h>
#include <windows.h>

#include <utility>

namespace ProfileFile {

namespace {

/** Whether a stream reads from a disk: consoles, serial ports and pipes can be opened by name as well. */
bool IsOnDisk(std::FILE* file)
{
    const intptr_t handle = _get_osfhandle(_fileno(file));
    // NOLINTNEXTLINE(performance-no-int-to-ptr) the runtime library keeps handles as numbers
    return GetFileType(reinterpret_cast<HANDLE>(handle)) == FILE_TYPE_DISK;
}

} // namespace

bool EntryExists(const std::wstring& path)
{
    WIN32_FIND_DATAW found;
    auto* const search = FindFirstFileW(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return true;
}

Stream OpenForReading(const std::wstring& path)
{
    std::FILE* file = nullptr;
    if (_wfopen_s(&file, path.c_str(), L"rb") != 0)
        return Stream();
    Stream stream(file);
    return IsOnDisk(file) ? std::move(stream) : Stream();
}

std::int64_t SizeOf(std::FILE* file)
{
    return _filelengthi64(_fileno(file));
}

} // namespace ProfileFile
