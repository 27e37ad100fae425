#ifndef COMMANDACTIONS_H
#define COMMANDACTIONS_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QObject>
#include <QVector>

class CKTFileManager;
class QAction;
class QMenu;
class QWidget;

/** The file commands of a pane as actions with the usual icons and shortcuts, for tool bars and menus. */
class CommandActions : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p window, where their shortcuts are known. The pane is borrowed. */
    CommandActions(CKTFileManager& pane, QWidget& window);

    /** @return every action, in the order of menus */
    QList<QAction*> All() const;

    /** Fills a context menu with what makes sense for a pane, and @p onItem for one of its items. */
    void Fill(QMenu& menu, bool onItem) const;

private:
    struct Command
    {
        QAction* action;
        bool needsItem;
    };

    QVector<Command> m_commands;
    CKTFileManager& m_pane;
};

#endif
