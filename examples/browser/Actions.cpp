#include "Actions.h"

#include "Symbols.h"

#include <QAction>

QAction* Actions::Create(QObject* parent, const QString& text, const char* symbol,
                         const QList<QKeySequence>& shortcuts)
{
    auto* action = new QAction(Symbols::Icon(symbol), text, parent);
    action->setShortcuts(shortcuts);
    if (!shortcuts.isEmpty()) {
        const QString keys = shortcuts.constFirst().toString(QKeySequence::NativeText);
        action->setToolTip(QStringLiteral("%1 (%2)").arg(action->toolTip(), keys));
    }
    return action;
}

QList<QKeySequence> Actions::Keys(QKeySequence::StandardKey standard, const QString& otherwise)
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(standard);
    if (keys.isEmpty() && !otherwise.isEmpty())
        keys.append(QKeySequence(otherwise));
    return keys;
}
