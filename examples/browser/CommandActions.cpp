#include "CommandActions.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QAction>
#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

#include <array>

namespace {

/** What an action is made of. */
struct Definition
{
    EKTFMCommand command;
    const char* text;
    const char* icon;
    QKeySequence shortcut;
    bool needsItem; ///< whether it is offered on an item alone
};

const std::array<Definition, 7>& Definitions()
{
    static const std::array<Definition, 7> definitions = {
        {{FM_CMD_COPY, QT_TR_NOOP("Copy"), "edit-copy", QKeySequence::Copy, true},
         {FM_CMD_CUT, QT_TR_NOOP("Cut"), "edit-cut", QKeySequence::Cut, true},
         {FM_CMD_PASTE, QT_TR_NOOP("Paste"), "edit-paste", QKeySequence::Paste, false},
         {FM_CMD_DELETE, QT_TR_NOOP("Delete"), "edit-delete", QKeySequence::Delete, true},
         {FM_CMD_RENAME, QT_TR_NOOP("Rename"), "edit-rename", QKeySequence(Qt::Key_F2), true},
         {FM_CMD_NEW_FOLDER, QT_TR_NOOP("New folder"), "folder-new",
          QKeySequence(QStringLiteral("Ctrl+Shift+N")), false},
         {FM_CMD_SELECT_ALL, QT_TR_NOOP("Select all"), "edit-select-all", QKeySequence::SelectAll, false}}};
    return definitions;
}

} // namespace

CommandActions::CommandActions(CKTFileManager& pane, QWidget& window) : m_pane(pane)
{
    for (const Definition& definition : Definitions()) {
        auto* action =
            new QAction(QIcon::fromTheme(QLatin1String(definition.icon)), tr(definition.text), this);
        action->setShortcut(definition.shortcut);
        connect(action, &QAction::triggered, this,
                [this, command = definition.command] { m_pane.DoCommand(command); });
        window.addAction(action);
        m_commands.append({action, definition.needsItem});
    }
}

QList<QAction*> CommandActions::All() const
{
    QList<QAction*> actions;
    for (const Command& command : m_commands)
        actions.append(command.action);
    return actions;
}

void CommandActions::Fill(QMenu& menu, bool onItem) const
{
    menu.clear();
    for (const Command& command : m_commands) {
        if (onItem || !command.needsItem)
            menu.addAction(command.action);
    }
}
