#ifndef ALIASFOLDER_H
#define ALIASFOLDER_H

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

class QFileInfo;
enum class RenameError : int;

/**
 * @file AliasFolder.h
 * @brief What the alias tree reads from the folder of a category, and how it renames that folder.
 */
namespace AliasFolder {

/** A child that an entry of a folder gives to the folder's category. */
struct Entry
{
    QString label;
    QString path;
    QVariant shortcut; ///< the path of the shortcut that leads to the folder; invalid for a sub-folder
};

/**
 * @return the names of the entries that may become children: first the sub-folders, then whatever ends in
 *         ".lnk", each in the file system's order; a folder that ends so is named twice. Nothing when the
 *         folder is not there or cannot be read: see CanBeListed.
 */
QStringList EntryNames(const QString& folder);

bool CanBeListed(const QString& folder);

/** @return the child that the entry @p name of @p folder gives, if it gives one */
std::optional<Entry> EntryOf(const QString& folder, const QString& name);

/** @return the section for the entry @p name of the item with @p section, with backslashes as separators */
QString SectionOf(const QString& section, const QString& name);

/**
 * @return whether a child stands for one of a folder's entries @p names: its label or the last name of its
 *         path is one of them, or becomes one with ".lnk" after it. A separator at the path's end does not
 *         count.
 */
bool IsAmong(const QSet<QString>& names, const QString& label, const QString& path);

/** @return the path of @p folder once it has the name @p newName */
QString RenamedPath(const QFileInfo& folder, const QString& newName);

/** Renames a folder on disk. @return why it failed, nothing when it has its new name */
std::optional<RenameError> Rename(const QFileInfo& folder, const QString& newName);

} // namespace AliasFolder

#endif
