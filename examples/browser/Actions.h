#ifndef ACTIONS_H
#define ACTIONS_H

#include <QKeySequence>
#include <QList>
#include <QString>

class QAction;
class QObject;

/** What the classes of actions have in common. */
namespace Actions {

/**
 * @param symbol the name of its icon
 * @param shortcuts the first one is shown in menus and in the tip of the tool button
 */
QAction* Create(QObject* parent, const QString& text, const char* symbol,
                const QList<QKeySequence>& shortcuts);

/** @return the keys that the platform has for a command, @p otherwise where it has none */
QList<QKeySequence> Keys(QKeySequence::StandardKey standard, const QString& otherwise = QString());

} // namespace Actions

#endif
