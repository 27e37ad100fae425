#ifndef FILEIDENTITY_H
#define FILEIDENTITY_H

#include <QHash>
#include <QString>

#include <optional>

/**
 * Which file or folder on disk a path leads to.
 *
 * Two paths lead to the same one when their identities are equal, however they are written: through links,
 * by another hard link, in another letter case.
 */
struct FileIdentity
{
    quint64 volume;
    quint64 file;

    /** @return what @p path leads to, links followed; nothing when there is nothing */
    static std::optional<FileIdentity> Of(const QString& path);

    /** @return whether both paths lead to one file or folder that is there */
    static bool AreSame(const QString& left, const QString& right);
};

inline bool operator==(const FileIdentity& left, const FileIdentity& right)
{
    return left.volume == right.volume && left.file == right.file;
}

inline uint qHash(const FileIdentity& identity, uint seed = 0)
{
    return ::qHash(identity.file, seed) ^ ::qHash(identity.volume, seed);
}

#endif
