#ifndef COMMANDS_H
#define COMMANDS_H

class CKTFileManager;
class QToolBar;

/** Adds a button for each file command of a pane. */
void AddCommands(QToolBar& toolBar, CKTFileManager& pane);

#endif
