#include "ini/CIniParser.h"

#include "ini/ProfileFile.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace KT {

namespace {

const char* const ByteOrderMark = "\xEF\xBB\xBF";

constexpr qint32 CannotConvert = -1;

bool IsLineEnd(wchar_t c)
{
    return c == L'\r' || c == L'\n';
}

bool IsBlank(wchar_t c)
{
    return c == L' ' || c == L'\t';
}

/**
 * Makes comments of the lines that open a section and do not close its name. They are to be passed over, but
 * the parser would take them as the start of a section whose name runs on into the following lines.
 */
void DisarmUnclosedSections(wchar_t* line, wchar_t* end)
{
    while (line != end) {
        wchar_t* const lineEnd = std::find_if(line, end, IsLineEnd);
        wchar_t* const first = std::find_if_not(line, lineEnd, IsBlank);
        if (first != lineEnd && *first == L'[' && std::find(first, lineEnd, L']') == lineEnd)
            *first = L';';
        line = std::find_if_not(lineEnd, end, IsLineEnd);
    }
}

/** The UTF-8 text of @p bytes. A mark at the front is text here: the parser has dropped the file's own. */
QString Decode(const char* bytes, size_t size)
{
    QString text = QString::fromUtf8(bytes, static_cast<int>(size));
    if (size >= std::strlen(ByteOrderMark) && std::equal(ByteOrderMark, ByteOrderMark + 3, bytes))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

/** Whether the parser, which knows texts by their terminating NUL, would see the whole of @p name. */
bool IsWhole(const std::wstring& name)
{
    return name.find(L'\0') == std::wstring::npos;
}

} // namespace

size_t CIniDecoder::SizeFromStore(const char* bytes, size_t size)
{
    constexpr auto failed = static_cast<size_t>(-1);
    if (size > MostBytes)
        return failed;
    try {
        m_text = Decode(bytes, size);
    } catch (const std::bad_alloc&) {
        // Told by its answer, so that the parser frees the bytes.
        return failed;
    }
    return static_cast<size_t>(m_text.size());
}

bool CIniDecoder::ConvertFromStore(const char*, size_t, wchar_t* text, size_t) const
{
    const int length = m_text.toWCharArray(text);
    DisarmUnclosedSections(text, std::find(text, text + length, L'\0'));
    return true;
}

CIniParser::CIniParser() : CSimpleIniTempl(true, false, false) {}

qint32 CIniParser::Read(std::FILE* file)
{
    // A file of any size can be made of nothing but a hole; it is measured before memory is taken for it.
    const bool tooLong = ProfileFile::SizeOf(file) > static_cast<std::int64_t>(CIniDecoder::MostBytes);
    return tooLong ? CannotConvert : LoadFile(file);
}

const wchar_t* CIniParser::Find(const std::wstring& section, const std::wstring& key) const
{
    return IsWhole(section) && IsWhole(key) ? GetValue(section.c_str(), key.c_str(), nullptr) : nullptr;
}

} // namespace KT
