#ifndef TREECOPY_H
#define TREECOPY_H

#include "widget/FileIdentity.h"

#include <QSet>
#include <QStringList>

#include <functional>
#include <vector>

/**
 * Copies or moves a folder with all that is in it.
 *
 * Links are read through: the copy holds the files and folders that they show. A folder that leads back to
 * one that is now being copied, to one above it, to one that is being written or to the destination is left
 * out, so that no copy goes in a circle. Files that exist at the target are kept and never overwritten.
 * Pipes, sockets, devices and links to nothing are not copied.
 *
 * A move removes each source once its copy is complete: a file when all its bytes have arrived, a link when
 * all that it shows has arrived (it is then removed as itself), a folder when nothing is left in it. It does
 * so while it goes on, to need little room, unless the tree holds links: these may lead to something within
 * the tree, and so everything stays until all has been copied.
 *
 * A tree may nest deeper than a stack is: the walk keeps its own. The cost is linear in the entries.
 */
class TreeCopy
{
public:
    /** Whether sources stay or are removed. */
    enum class Kind
    {
        Copy,
        Move
    };

    /** Told of each source folder that a move has removed, inner ones first. */
    using FolderRemoved = std::function<void(const QString& path)>;

    TreeCopy(Kind kind, FolderRemoved removed);
    ~TreeCopy();
    Q_DISABLE_COPY(TreeCopy)

    /**
     * @param source a folder or a link to one
     * @param target the folder to copy into; it is made when it does not exist, in a folder that does
     * @return false when a file of @p source itself failed to arrive, or the folder as a whole was left out;
     *         what failed in its sub-folders does not count
     */
    bool Run(const QString& source, const QString& target);

private:
    struct Level;
    struct Content;

    bool Enter(const QString& source, const QString& target, bool isMoved);
    void CopyFiles(Level& level, const QStringList& names);
    void CopyNextFolder();
    void Leave();
    void Open(Level& level, const FileIdentity& folder);
    void OpenFoldersAbove(Level& level);
    void Discard(const QString& path);
    void RemoveSource(const QString& path);

    Kind m_kind;
    FolderRemoved m_removed;
    bool m_isRemovalPutOff = false;
    QStringList m_putOff;        ///< sources to remove when all has been copied, in this order
    QSet<FileIdentity> m_open;   ///< folders that must not be gone into
    std::vector<Level> m_levels; ///< the folders that are being copied, the innermost last
};

#endif
