#ifndef COMMANDACTIONS_H
#define COMMANDACTIONS_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QObject>
#include <QVector>

class CKTFileManager;
class QAction;
class QMenu;
class QWidget;

/**
 * The file commands of a pane as actions with the usual icons and shortcuts, for tool bars and menus.
 *
 * A command acts on the pane that the user works in: the one that has the focus, or that a context menu was
 * opened in. The user is asked before anything is deleted, since the pane deletes at once and for good.
 */
class CommandActions : public QObject
{
    Q_OBJECT

public:
    /** Adds the actions to @p window, which owns this object and knows their keys. The pane is borrowed. */
    CommandActions(CKTFileManager& pane, QWidget& window);

    /** @return the action of a command */
    QAction* Of(EKTFMCommand command) const;

    /** Adds the actions of the commands for a file to a menu or tool bar, in their usual order. */
    void AddTo(QWidget& widget) const;

    /** Fills a context menu with what makes sense for a pane, and @p onItem for one of its items. */
    void Fill(QMenu& menu, EKTFMPart pane, bool onItem);

    /** Offers what can be done now, with the present selection and clipboard. */
    void Update();

Q_SIGNALS:
    /** A command has ended. @param done what the pane says of it */
    void Ended(EKTFMCommand command, bool done);

private:
    struct Command
    {
        EKTFMCommand command;
        QAction* action;
        int places;
    };

    void Run(EKTFMCommand command);
    bool MayDelete() const;
    void FollowFocus(const QWidget* focused);

    QVector<Command> m_commands;
    CKTFileManager& m_pane;
    QWidget& m_window;
    EKTFMPart m_ePart = FM_PART_LIST; ///< the pane that commands act on
};

#endif
