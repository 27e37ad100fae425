#ifndef CPROFILE_H
#define CPROFILE_H

#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <memory>
#include <string>

namespace KT {

class CIniParser;

/**
 * A read-only reader of INI files in UTF-8.
 *
 * A file is read whole by Load and answered from memory from then on; later changes of the file are not seen
 * until the next Load. Section and key names ignore the case of ASCII letters. Nothing is ever written.
 *
 * The format: `[section]` opens a section, `key = value` sets a value, a line that starts with ";" or "#" is
 * a comment; a value runs to the end of its line and loses the blanks around it. A key that occurs twice
 * keeps its later value. Entries before the first section belong to the section with the empty name.
 *
 * Used from the GUI thread; an object takes no lock.
 */
class KTFM_EXPORT CProfile
{
public:
    /** A reader without a file: every lookup fails. */
    CProfile();
    virtual ~CProfile();

    CProfile(const CProfile&) = delete;
    CProfile& operator=(const CProfile&) = delete;

    /**
     * Replaces the contents by those of a file. Linear in the file's size.
     *
     * @param path the file; native or "/" separators
     * @param load true to check for the file and read it; false only resets the reader to an empty one
     * @return code ResultDone; ResultFileMissing when there is no such file, in which case the reader keeps
     *         what it had; ResultFailed when the file cannot be read (a folder, a device, a file that memory
     *         cannot hold), in which case every lookup fails from then on. Any bytes are readable text: those
     *         that are not UTF-8 become U+FFFD.
     */
    Result Load(std::wstring path, bool load);

    /**
     * Looks one value up.
     *
     * One pair of double quotes around the whole value is removed, which is how a file writes a text with
     * blanks at its ends or an empty one.
     *
     * @param value receives the text; left as it was when nothing is found, so that it may hold a fallback
     * @param section the section's name; empty for the entries before the first one
     * @param key the key's name
     * @return code ResultDone, or ResultFailed when nothing is loaded or the key is not there
     */
    Result GetValue(std::wstring& value, std::wstring section, std::wstring key) const;

    /**
     * @return whether a file or folder exists; one separator at the end of @p path is passed over. "*" and
     *         "?" in the last element are wildcards: such a path exists when anything matches.
     */
    bool FileExists(std::wstring path) const;

private:
    std::wstring m_strFilePath;
    std::unique_ptr<CIniParser> m_pIni;
    qint32 m_nLoadResult = 0;
};

} // namespace KT

#endif
