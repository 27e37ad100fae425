#ifndef PASTERULES_H
#define PASTERULES_H

#include "widget/TreeCopy.h"

#include <QStringList>

class QFileSystemModel;

/**
 * @file PasteRules.h
 * @brief What a paste looks at before it changes anything on disk.
 */
namespace PasteRules {

/** @return whether items can be pasted into @p destination: a folder that is there and can be written */
bool CanPasteInto(const QString& destination);

/**
 * @return whether the canonical path of one of the folders among @p sources occurs in that of
 *         @p destination. It is looked for anywhere, not only at the start, and without regard to letter
 * case.
 */
bool HoldDestination(const QStringList& sources, const QString& destination);

/**
 * @return whether @p source would be pasted over something that the user must be asked about. Items of
 *         @p destination itself get another name; letter case does not make another folder here.
 */
bool IsConflict(const QString& source, const QString& destination);

/**
 * Removes what the items @p replacing are to replace in @p destination, in their order. What is listed goes
 * through @p model; a link is removed as itself.
 *
 * A target stays when its item cannot be read any more, and when one of @p sources is the target, by whatever
 * way it leads there, or lies in it, or is reached through it. It stays as well when its item will not be
 * there in its turn, since one of @p sources takes it along in a move, or when the paste ends before it.
 * @return @p sources without the items whose targets had to stay
 */
QStringList RemoveReplaced(QFileSystemModel& model, const QStringList& sources, const QStringList& replacing,
                           const QString& destination, TreeCopy::Kind kind);

} // namespace PasteRules

#endif
