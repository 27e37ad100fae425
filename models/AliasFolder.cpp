#include "models/AliasFolder.h"

#include "models/DiskNames.h"
#include "models/FileNameRules.h"
#include "models/FileSystemItem.h"
#include "models/RenameErrorEvents.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace AliasFolder {

namespace {

QString PathIn(const QString& folder, const QString& name)
{
    return QFileInfo(folder + QLatin1Char('/') + name).filePath();
}

QLatin1String ShortcutEnd()
{
    return QLatin1String(".lnk");
}

} // namespace

QStringList EntryNames(const QString& folder)
{
    const QDir dir(folder);
    const QStringList folders =
        dir.entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::Unsorted);
    // Without QDir::System a shortcut whose target is gone would not be listed.
    const QStringList shortcuts =
        dir.entryList({QLatin1Char('*') + ShortcutEnd()},
                      QDir::Files | QDir::Dirs | QDir::System | QDir::NoDotAndDotDot, QDir::Unsorted);
    return folders + shortcuts;
}

bool CanBeListed(const QString& folder)
{
    const QDir dir(folder);
    return dir.exists() && dir.isReadable();
}

std::optional<Entry> EntryOf(const QString& folder, const QString& name)
{
    const QString path = PathIn(folder, name);
    if (!name.endsWith(ShortcutEnd(), Qt::CaseInsensitive))
        return Entry{name, path, QVariant()};
    const QFileInfo shortcut(path);
    if (!shortcut.exists())
        return Entry{name, path, QVariant()};
    const QString target = shortcut.symLinkTarget();
    if (!QFileInfo(target).isDir())
        return std::nullopt;
    return Entry{name.chopped(ShortcutEnd().size()), QFileInfo(target).filePath(), path};
}

QString SectionOf(const QString& section, const QString& name)
{
    QString joined = section + QLatin1Char('/') + name;
    return joined.replace(QLatin1Char('/'), QLatin1Char('\\'));
}

bool IsAmong(const QSet<QString>& names, const QString& label, const QString& path)
{
    const QString folderName = QFileInfo(QDir::cleanPath(path)).fileName();
    return names.contains(label) || names.contains(folderName) || names.contains(label + ShortcutEnd()) ||
           names.contains(folderName + ShortcutEnd());
}

QString RenamedPath(const QFileInfo& folder, const QString& newName)
{
    const QString parent = folder.absolutePath();
    return parent.endsWith(QLatin1Char('/')) ? parent + newName : parent + QLatin1Char('/') + newName;
}

std::optional<RenameError> Rename(const QFileInfo& folder, const QString& newName)
{
    const bool canBeName = !FileNameRules::HasSeparator(newName) && FileNameRules::IsRepresentable(newName) &&
                           DiskNames::IsKept(newName);
    if (folder.filePath().isEmpty() || !canBeName)
        return RenameError::RenameFailed;
    const QString target = RenamedPath(folder, newName);
    const QString baseName = QFileInfo(target).completeBaseName();
    if (baseName.isEmpty() || FileNameRules::HasForbiddenCharacter(baseName))
        return RenameError::RenameFailed;
    if (FileSystemItem::IsTaken(target))
        return RenameError::NameExists;
    if (!QFile::rename(folder.absoluteFilePath(), target))
        return RenameError::RenameFailed;
    return std::nullopt;
}

} // namespace AliasFolder
