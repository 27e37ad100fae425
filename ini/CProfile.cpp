#include "KTFileManager2QU/CProfile.h"

#include "ini/CIniParser.h"
#include "ini/ProfileFile.h"

#include <new>
#include <utility>

namespace KT {

namespace {

bool EndsInSeparator(const std::wstring& path)
{
    return !path.empty() && (path.back() == L'\\' || path.back() == L'/');
}

/** Removes the quotes when one pair of them is around all of @p text. */
void StripQuotes(std::wstring& text)
{
    if (text.size() < 2 || text.front() != L'"' || text.back() != L'"')
        return;
    text.pop_back();
    text.erase(0, 1);
}

qint32 ReadFile(CIniParser& parser, const std::wstring& path)
{
    const ProfileFile::Stream file = ProfileFile::OpenForReading(path);
    return file ? parser.Read(file.get()) : CIniParser::CannotRead;
}

} // namespace

CProfile::CProfile() = default;

CProfile::~CProfile() = default;

Result CProfile::Load(std::wstring path, bool load)
{
    try {
        if (load && !FileExists(path))
            return {ResultFileMissing};
        m_strFilePath = std::move(path);
        m_pIni.reset();
        m_pIni = std::make_unique<CIniParser>();
        m_nLoadResult = load ? ReadFile(*m_pIni, m_strFilePath) : CIniParser::Loaded;
    } catch (const std::bad_alloc&) {
        m_nLoadResult = CIniParser::OutOfMemory;
    }
    if (m_nLoadResult >= 0)
        return {ResultDone};
    m_pIni.reset();
    return {ResultFailed};
}

Result CProfile::GetValue(std::wstring& value, std::wstring section, std::wstring key) const
{
    if (!m_pIni || m_nLoadResult < 0)
        return {ResultFailed};
    const wchar_t* const found = m_pIni->Find(section, key);
    if (!found)
        return {ResultFailed};
    try {
        value = found;
    } catch (const std::bad_alloc&) {
        return {ResultFailed};
    }
    StripQuotes(value);
    return {ResultDone};
}

bool CProfile::FileExists(std::wstring path) const
{
    if (EndsInSeparator(path))
        path.pop_back();
    // The file system would take the part before a NUL for the whole path.
    if (path.find(L'\0') != std::wstring::npos)
        return false;
    try {
        return ProfileFile::EntryExists(path);
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace KT
