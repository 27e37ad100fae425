#include "widget/TreeCopy.h"

#include "widget/DiskEntry.h"
#include "widget/FileAttributes.h"
#include "widget/FileCopy.h"
#include "widget/LocalPaths.h"

#include <QDir>
#include <QFileInfo>

namespace {

/** Whether a tree has links in it; those at which a walk would leave the tree end it here. */
bool HoldsLinks(const QString& folder)
{
    QStringList pending = {folder};
    while (!pending.isEmpty()) {
        const QFileInfoList entries = DiskEntry::EntriesIn(pending.takeLast());
        for (const QFileInfo& entry : entries) {
            if (DiskEntry::IsLink(entry))
                return true;
            if (entry.isDir())
                pending.append(entry.filePath());
        }
    }
    return false;
}

bool MakeLike(const QString& source, const QString& target)
{
    if (!QDir().mkdir(target))
        return false;
    FileAttributes::Copy(source, target);
    return true;
}

} // namespace

/** What a folder holds, by what can be done with it. */
struct TreeCopy::Content
{
    explicit Content(const QString& folder);

    QStringList files;
    QStringList folders;
    bool isAllOfIt; ///< whether the folder could be read and holds nothing else
};

TreeCopy::Content::Content(const QString& folder) : isAllOfIt(QFileInfo(folder).isReadable())
{
    const QFileInfoList entries = DiskEntry::EntriesIn(folder);
    for (const QFileInfo& entry : entries) {
        if (DiskEntry::ShowsFolder(entry))
            folders.append(entry.fileName());
        else if (DiskEntry::ShowsFile(entry))
            files.append(entry.fileName());
        else
            isAllOfIt = false;
    }
}

/** A folder that is being copied. */
struct TreeCopy::Level
{
    QString source;
    QString target;
    QStringList folders;            ///< its sub-folders, links to folders included
    int next = 0;                   ///< the first of them that has not been copied
    bool isMoved = false;           ///< whether the source is removed when it is complete
    bool isLink = false;            ///< whether the source is a link, whose content stays in a move
    bool haveFilesArrived = true;   ///< whether all its own files are at the target
    bool isComplete = true;         ///< whether everything in it is at the target
    QVector<FileIdentity> opened{}; ///< what it has put among the folders that must not be gone into
};

TreeCopy::TreeCopy(Kind kind, FolderRemoved removed) : m_kind(kind), m_removed(std::move(removed)) {}

TreeCopy::~TreeCopy() = default;

bool TreeCopy::Run(const QString& source, const QString& target)
{
    m_isRemovalPutOff = m_kind == Kind::Move && HoldsLinks(source);
    const std::optional<FileIdentity> destination = FileIdentity::Of(QFileInfo(target).path());
    if (!destination)
        return false;
    m_open = {*destination};
    if (!Enter(source, target, m_kind == Kind::Move))
        return false;
    const bool haveFilesArrived = m_levels.back().haveFilesArrived;
    while (!m_levels.empty()) {
        if (m_levels.back().next < m_levels.back().folders.size())
            CopyNextFolder();
        else
            Leave();
    }
    for (const QString& path : qAsConst(m_putOff))
        RemoveSource(path);
    m_putOff.clear();
    return haveFilesArrived;
}

bool TreeCopy::Enter(const QString& source, const QString& target, bool isMoved)
{
    const std::optional<FileIdentity> folder = FileIdentity::Of(source);
    if (!folder || m_open.contains(*folder))
        return false;
    const Content content(source);
    const bool isThere = QFileInfo(target).isDir() || MakeLike(source, target);
    const std::optional<FileIdentity> written = FileIdentity::Of(target);
    if (!isThere || !written || *written == *folder)
        return false;
    Level level{source, target, content.folders};
    level.isMoved = isMoved;
    level.isLink = DiskEntry::IsLink(QFileInfo(source));
    level.isComplete = content.isAllOfIt;
    Open(level, *folder);
    Open(level, *written);
    if (level.isLink || m_levels.empty())
        OpenFoldersAbove(level);
    CopyFiles(level, content.files);
    m_levels.push_back(std::move(level));
    return true;
}

void TreeCopy::Open(Level& level, const FileIdentity& folder)
{
    if (m_open.contains(folder))
        return;
    m_open.insert(folder);
    level.opened.append(folder);
}

void TreeCopy::OpenFoldersAbove(Level& level)
{
    QDir folder(QFileInfo(level.source).canonicalFilePath());
    while (!folder.isRoot() && folder.cdUp()) {
        if (const std::optional<FileIdentity> above = FileIdentity::Of(folder.path()))
            Open(level, *above);
    }
}

void TreeCopy::CopyFiles(Level& level, const QStringList& names)
{
    for (const QString& name : names) {
        const QString source = LocalPaths::In(level.source, name);
        if (!FileCopy::Copy(source, LocalPaths::In(level.target, name)))
            level.haveFilesArrived = false;
        else if (level.isMoved && !level.isLink)
            Discard(source);
    }
    level.isComplete = level.isComplete && level.haveFilesArrived;
}

void TreeCopy::CopyNextFolder()
{
    Level& level = m_levels.back();
    const QString name = level.folders.at(level.next++);
    const QString source = LocalPaths::In(level.source, name);
    const QString target = LocalPaths::In(level.target, name);
    // Entering puts another level behind this one, which may move this one in memory.
    const size_t depth = m_levels.size() - 1;
    if (!Enter(source, target, level.isMoved && !level.isLink))
        m_levels[depth].isComplete = false;
}

void TreeCopy::Leave()
{
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    for (const FileIdentity& folder : level.opened)
        m_open.remove(folder);
    if (!level.isComplete && !m_levels.empty())
        m_levels.back().isComplete = false;
    if (level.isMoved && level.isComplete && QFileInfo(level.target).isDir())
        Discard(level.source);
}

void TreeCopy::Discard(const QString& path)
{
    if (m_isRemovalPutOff)
        m_putOff.append(path);
    else
        RemoveSource(path);
}

void TreeCopy::RemoveSource(const QString& path)
{
    const QFileInfo source(path);
    const bool wasFolder = source.isDir();
    const bool isRemoved = DiskEntry::IsRealFolder(source) ? QDir().rmdir(path) : DiskEntry::Remove(path);
    if (isRemoved && wasFolder)
        m_removed(path);
}
