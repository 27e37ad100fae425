#include "ini/ProfileFile.h"

#include <QByteArray>
#include <QFile>
#include <QString>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ProfileFile {

namespace {

struct CloseFolder
{
    void operator()(DIR* folder) const noexcept { closedir(folder); }
};

QByteArray NativeName(const std::wstring& path)
{
    return QFile::encodeName(QString::fromStdWString(path));
}

/**
 * Whether @p name fits @p pattern. A "*" first stands for nothing; each time the rest does not fit, the last
 * "*" takes one more character, so that the cost stays below the product of the two lengths.
 */
bool Fits(const std::wstring& name, const std::wstring& pattern)
{
    size_t inName = 0;
    size_t inPattern = 0;
    size_t afterStar = std::wstring::npos;
    size_t starEnd = 0;
    while (inName < name.size()) {
        const wchar_t wanted = inPattern < pattern.size() ? pattern[inPattern] : L'\0';
        if (wanted == L'*') {
            afterStar = ++inPattern;
            starEnd = inName;
        } else if (wanted == L'?' || wanted == name[inName]) {
            ++inPattern;
            ++inName;
        } else if (afterStar != std::wstring::npos) {
            inPattern = afterStar;
            inName = ++starEnd;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(L'*', inPattern) == std::wstring::npos;
}

bool HoldsMatch(const std::wstring& folder, const std::wstring& pattern)
{
    const std::unique_ptr<DIR, CloseFolder> entries(opendir(NativeName(folder).constData()));
    if (!entries)
        return false;
    while (const dirent* entry = readdir(entries.get())) {
        if (Fits(QFile::decodeName(entry->d_name).toStdWString(), pattern))
            return true;
    }
    return false;
}

bool IsRegular(const struct stat& status)
{
    return S_ISREG(status.st_mode);
}

/** The stream of an open file; closes the file and answers null when it is not a regular one. */
Stream StreamOf(int file)
{
    struct stat status = {};
    if (fstat(file, &status) == 0 && IsRegular(status)) {
        if (std::FILE* stream = fdopen(file, "rb"))
            return Stream(stream);
    }
    close(file);
    return Stream();
}

} // namespace

bool EntryExists(const std::wstring& path)
{
    const size_t separator = path.rfind(L'/');
    const size_t last = separator == std::wstring::npos ? 0 : separator + 1;
    if (path.find_first_of(L"*?", last) != std::wstring::npos)
        return HoldsMatch(last == 0 ? L"." : path.substr(0, last), path.substr(last));
    struct stat status = {};
    return lstat(NativeName(path).constData(), &status) == 0;
}

Stream OpenForReading(const std::wstring& path)
{
    const QByteArray name = NativeName(path);
    struct stat status = {};
    // Looked at before it is opened, because opening alone already wakes the writer of a pipe or rewinds a
    // device; opened without waiting and looked at again, because another entry may have taken the name.
    if (stat(name.constData(), &status) != 0 || !IsRegular(status))
        return Stream();
    const int file = open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    return file < 0 ? Stream() : StreamOf(file);
}

std::int64_t SizeOf(std::FILE* file)
{
    struct stat status = {};
    return fstat(fileno(file), &status) == 0 ? status.st_size : -1;
}

} // namespace ProfileFile
