#ifndef PROFILEFILE_H
#define PROFILEFILE_H

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

/**
 * @file ProfileFile.h
 * @brief What the profile reader asks of the file system; one source a platform answers it.
 */
namespace ProfileFile {

/** Closes the stream of a ProfileFile::Stream. */
struct CloseStream
{
    void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

/** An open file, closed with its owner. */
using Stream = std::unique_ptr<std::FILE, CloseStream>;

/**
 * @param path without a separator at its end and without NUL characters
 * @return whether the folder that @p path names holds such an entry, of whatever kind; a link is an entry
 *         wherever it leads. "*" (any characters) and "?" (one character) in the last element are wildcards;
 *         nothing else is special, and letter case counts where it counts for the file system.
 */
bool EntryExists(const std::wstring& path);

/**
 * Opens a regular file, or a link to one, for reading its bytes as they are.
 *
 * @return the stream, or null when @p path cannot be opened or is something else: folders, pipes, sockets
 *         and devices are left alone, because reading them could block or never end
 */
Stream OpenForReading(const std::wstring& path);

/** @return the size of an open file in bytes, however large; -1 when it cannot be told */
std::int64_t SizeOf(std::FILE* file);

} // namespace ProfileFile

#endif
