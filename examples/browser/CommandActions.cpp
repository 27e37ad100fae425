#include "CommandActions.h"

#include "Actions.h"
#include "PaneViews.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QListView>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

#include <algorithm>
#include <array>

namespace {

/** Where a command is offered in a context menu, as bits. */
enum Place : int
{
    OnListItem = 1,
    BesideListItems = 2,
    OnTreeItem = 4,
    OnAliasItem = 8
};

/** What an action is made of. */
struct Definition
{
    EKTFMCommand command;
    const char* text;
    const char* symbol;
    QKeySequence::StandardKey key;
    const char* otherKey; ///< where the platform has no key for it
    int places;
};

constexpr std::array<Definition, 7> Definitions = {
    {{FM_CMD_NEW_FOLDER, QT_TRANSLATE_NOOP("CommandActions", "&New folder"), "folder-new",
      QKeySequence::UnknownKey, "Ctrl+Shift+N", BesideListItems},
     {FM_CMD_CUT, QT_TRANSLATE_NOOP("CommandActions", "Cu&t"), "edit-cut", QKeySequence::Cut, "", OnListItem},
     {FM_CMD_COPY, QT_TRANSLATE_NOOP("CommandActions", "&Copy"), "edit-copy", QKeySequence::Copy, "",
      OnListItem},
     {FM_CMD_PASTE, QT_TRANSLATE_NOOP("CommandActions", "&Paste"), "edit-paste", QKeySequence::Paste, "",
      BesideListItems | OnAliasItem},
     {FM_CMD_RENAME, QT_TRANSLATE_NOOP("CommandActions", "&Rename"), "edit-rename", QKeySequence::UnknownKey,
      "F2", OnListItem | OnTreeItem | OnAliasItem},
     {FM_CMD_DELETE, QT_TRANSLATE_NOOP("CommandActions", "&Delete"), "edit-delete", QKeySequence::Delete, "",
      OnListItem | OnAliasItem},
     {FM_CMD_SELECT_ALL, QT_TRANSLATE_NOOP("CommandActions", "Select &all"), "edit-select-all",
      QKeySequence::SelectAll, "", BesideListItems}}};

int PlaceOf(EKTFMPart pane, bool onItem)
{
    if (pane == FM_PART_LIST)
        return onItem ? OnListItem : BesideListItems;
    if (!onItem)
        return 0;
    return pane == FM_PART_TREE ? OnTreeItem : OnAliasItem;
}

} // namespace

CommandActions::CommandActions(CKTFileManager& pane, QWidget& window)
    : QObject(&window),
      m_pane(pane),
      m_window(window)
{
    for (const Definition& definition : Definitions) {
        auto* action = Actions::Create(this, tr(definition.text), definition.symbol,
                                       Actions::Keys(definition.key, QLatin1String(definition.otherKey)));
        connect(action, &QAction::triggered, this, [this, command = definition.command] { Run(command); });
        window.addAction(action);
        m_commands.append({definition.command, action, definition.places});
    }
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, const QWidget* focused) { FollowFocus(focused); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &CommandActions::Update);
    connect(PaneViews(pane).grid->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CommandActions::Update);
    Update();
}

QAction* CommandActions::Of(EKTFMCommand command) const
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [command](const Command& each) { return each.command == command; });
    return found->action;
}

void CommandActions::AddTo(QWidget& widget) const
{
    for (const Command& command : m_commands)
        widget.addAction(command.action);
}

void CommandActions::Fill(QMenu& menu, EKTFMPart pane, bool onItem)
{
    m_ePart = pane;
    Update();
    const int place = PlaceOf(pane, onItem);
    for (const Command& command : qAsConst(m_commands)) {
        if (command.places & place)
            menu.addAction(command.action);
    }
}

void CommandActions::FollowFocus(const QWidget* focused)
{
    if (!focused || !m_pane.isAncestorOf(focused))
        return;
    const PaneViews views(m_pane);
    if (focused == views.grid || focused == views.details)
        m_ePart = FM_PART_LIST;
    else if (focused == views.tree)
        m_ePart = FM_PART_TREE;
    else if (focused == views.aliasTree)
        m_ePart = FM_PART_ALIAS_TREE;
    Update();
}

void CommandActions::Update()
{
    const bool selected = PaneViews(m_pane).grid->selectionModel()->hasSelection();
    for (const Command& command : qAsConst(m_commands)) {
        const bool inTree = m_ePart != FM_PART_LIST && (command.places & PlaceOf(m_ePart, true));
        if (command.places & OnListItem)
            command.action->setEnabled(selected || inTree);
    }
    Of(FM_CMD_PASTE)->setEnabled(m_pane.IsPasteable());
}

void CommandActions::Run(EKTFMCommand command)
{
    m_pane.SetLastMenuFrom(m_ePart);
    if (command == FM_CMD_DELETE && !MayDelete())
        return;
    const bool done = m_pane.DoCommand(command);
    Update();
    Q_EMIT Ended(command, done);
}

bool CommandActions::MayDelete() const
{
    const QStringList paths = m_ePart == FM_PART_ALIAS_TREE
                                  ? QStringList(m_pane.GetCurSelectedFolder(FM_PART_ALIAS_TREE))
                                  : m_pane.GetCurSelectedFileList(true);
    if (paths.isEmpty())
        return false;
    const QString text = paths.size() == 1
                             ? tr("Delete “%1” for good?").arg(QFileInfo(paths.constFirst()).fileName())
                             : tr("Delete these %Ln items for good?", nullptr, paths.size());
    QMessageBox question(QMessageBox::Warning, tr("Delete"), text, QMessageBox::Cancel, &m_window);
    const QPushButton* remove = question.addButton(tr("Delete"), QMessageBox::DestructiveRole);
    question.setDefaultButton(QMessageBox::Cancel);
    question.exec();
    return question.clickedButton() == remove;
}
