#ifndef CINIPARSER_H
#define CINIPARSER_H

#include <QString>

#include <cstdio>
#include <string>

// The decoder below stands in for the converters that SimpleIni brings along, and its member functions are
// instantiated from here.
#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

namespace KT {

/**
 * Turns the bytes of a file into the text that SimpleIni parses; what SimpleIni calls a converter.
 *
 * The parser first asks for the size and then for the text. The bytes are decoded once, for the first
 * question, and the text is kept for the second one.
 */
class CIniDecoder
{
public:
    /** Most bytes that are decoded; far enough below the limit of a QString that no step can exceed it. */
    static constexpr size_t MostBytes = 0x1fffffff;

    /** The parser tells whether its files are UTF-8; ours always are. */
    explicit CIniDecoder(bool) {}

    /**
     * Decodes UTF-8: bytes that are none become U+FFFD.
     * @return the characters that the text needs at most, or -1 when the text is too long for the memory
     */
    size_t SizeFromStore(const char* bytes, size_t size);

    /**
     * Hands the text over.
     * @param text zeroed room for as many characters as SizeFromStore answered, and one more
     * @return true
     */
    bool ConvertFromStore(const char* bytes, size_t size, wchar_t* text, size_t room) const;

private:
    QString m_text;
};

/** Orders section and key names without regard to the case of ASCII letters. */
struct IniNameLess
{
    /**
     * Every entry of a section is filed under one and the same pointer to the section's name: telling that
     * first keeps a section with a very long name as cheap as any other.
     */
    bool operator()(const wchar_t* left, const wchar_t* right) const
    {
        return left != right && SI_GenericNoCase<wchar_t>()(left, right);
    }
};

/** The contents of one INI file in UTF-8: one value a key, no values of several lines. */
class CIniParser : private CSimpleIniTempl<wchar_t, IniNameLess, CIniDecoder>
{
public:
    static constexpr qint32 Loaded = 0;
    static constexpr qint32 OutOfMemory = -2;
    static constexpr qint32 CannotRead = -3;

    CIniParser();

    /**
     * Reads a file that was opened in binary mode, from its beginning to its end. Linear in its size.
     * @return Loaded or more; or less than 0: -1 when its text is too long, OutOfMemory or CannotRead
     * @throws std::bad_alloc
     */
    qint32 Read(std::FILE* file);

    /** @return the value of a key, owned by the parser, or null when there is none */
    const wchar_t* Find(const std::wstring& section, const std::wstring& key) const;
};

} // namespace KT

#endif
