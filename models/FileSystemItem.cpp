#include "models/FileSystemItem.h"

#include "models/DiskNames.h"
#include "models/FileNameRules.h"

#include <QFile>
#include <QFileInfo>
#include <QFileSystemModel>

namespace {

bool IsValidBaseName(const QString& baseName, bool mayBeBlank)
{
    if (FileNameRules::HasForbiddenCharacter(baseName) || baseName.isEmpty())
        return false;
    return mayBeBlank || !baseName.trimmed().isEmpty();
}

/**
 * The name that a disk must keep: a file's without the dot of an empty extension, which files are given all
 * the same and which some disks drop.
 */
QString KeptPart(const QFileInfo& item, const QString& name)
{
    return !item.isDir() && name.endsWith(QLatin1Char('.')) ? name.chopped(1) : name;
}

} // namespace

namespace FileSystemItem {

bool HasRootPath(const QFileSystemModel& model)
{
    return model.rootPath() != QLatin1String(".");
}

QString FileName(const QFileSystemModel& model, const QModelIndex& index)
{
    const QFileInfo info = model.fileInfo(index);
    // The model's path leads through a link to a folder; its file-name role holds that name ready.
    if (info.isSymLink() && model.isDir(index))
        return model.QFileSystemModel::data(index, QFileSystemModel::FileNameRole).toString();
    return info.fileName();
}

bool IsTaken(const QString& path)
{
    return DiskNames::IsTaken(path);
}

std::optional<RenameError> Rename(const QFileInfo& item, const QString& newName, bool mayBeBlank)
{
    if (FileNameRules::HasSeparator(newName) || !FileNameRules::IsRepresentable(newName))
        return RenameError::RenameFailed;
    if (!DiskNames::IsKept(KeptPart(item, newName)))
        return RenameError::RenameFailed;
    const QString target = item.absolutePath() + QLatin1Char('/') + newName;
    if (IsTaken(target))
        return RenameError::NameExists;
    if (!IsValidBaseName(QFileInfo(target).completeBaseName(), mayBeBlank))
        return RenameError::RenameFailed;
    if (!QFile::rename(item.absoluteFilePath(), target))
        return RenameError::RenameFailed;
    return std::nullopt;
}

} // namespace FileSystemItem
