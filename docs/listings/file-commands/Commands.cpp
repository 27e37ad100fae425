#include "Commands.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeySequence>
#include <QMessageBox>
#include <QToolBar>

namespace {

QString Text(const char* text)
{
    return QCoreApplication::translate("Commands", text);
}

void Add(QToolBar& toolBar, CKTFileManager& pane, const char* text, QKeySequence::StandardKey key,
         EKTFMCommand command)
{
    QAction* action = toolBar.addAction(Text(text), &pane, [&pane, command] { pane.DoCommand(command); });
    action->setShortcut(key);
}

void DeleteIfSure(CKTFileManager& pane)
{
    const QStringList paths = pane.GetCurSelectedFileList(true);
    if (paths.isEmpty())
        return;
    const QString question = Text("Delete %1 items? This cannot be undone.").arg(paths.size());
    if (QMessageBox::question(&pane, Text("Delete"), question) != QMessageBox::Yes)
        return;
    pane.SetLastMenuFrom(FM_PART_LIST);
    pane.DoCommand(FM_CMD_DELETE);
}

} // namespace

void AddCommands(QToolBar& toolBar, CKTFileManager& pane)
{
    Add(toolBar, pane, QT_TRANSLATE_NOOP("Commands", "Copy"), QKeySequence::Copy, FM_CMD_COPY);
    Add(toolBar, pane, QT_TRANSLATE_NOOP("Commands", "Cut"), QKeySequence::Cut, FM_CMD_CUT);
    Add(toolBar, pane, QT_TRANSLATE_NOOP("Commands", "Paste"), QKeySequence::Paste, FM_CMD_PASTE);
    Add(toolBar, pane, QT_TRANSLATE_NOOP("Commands", "New folder"), QKeySequence::New, FM_CMD_NEW_FOLDER);
    QAction* remove = toolBar.addAction(Text("Delete"), &pane, [&pane] { DeleteIfSure(pane); });
    remove->setShortcut(QKeySequence::Delete);
}
