#ifndef NAVIGATIONACTIONS_H
#define NAVIGATIONACTIONS_H

#include "FolderHistory.h"

#include <QObject>

class QAction;

/** The ways from folder to folder as actions: back, forward, up, home, an address, and reading anew. */
class NavigationActions : public QObject
{
    Q_OBJECT

public:
    explicit NavigationActions(QObject* parent = nullptr);

    /** To be called when the window shows another folder. */
    void FolderChanged(const QString& path);

    QAction* const m_pBack;
    QAction* const m_pForward;
    QAction* const m_pUp;
    QAction* const m_pHome;
    QAction* const m_pReload;
    QAction* const m_pAddress;

Q_SIGNALS:
    /** @param selected the path of what should be selected there; empty for nothing */
    void FolderWanted(const QString& path, const QString& selected);

private:
    void GoBack();
    void GoForward();
    void GoUp();
    void GoHome();
    void UpdateActions();

    FolderHistory m_history;
    QString m_path;
};

#endif
