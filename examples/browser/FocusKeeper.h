#ifndef FOCUSKEEPER_H
#define FOCUSKEEPER_H

#include <QApplication>
#include <QPointer>
#include <QWidget>

/**
 * Gives the focus back, at the end of a command, to what had it at the begin. Many operations of the pane
 * leave the focus in the file list; who works in the folder tree wants to stay there. What is hidden
 * meanwhile does not get it.
 */
class FocusKeeper
{
public:
    FocusKeeper() : m_focused(QApplication::focusWidget()) {}
    ~FocusKeeper()
    {
        if (m_focused && m_focused->isVisible())
            m_focused->setFocus(Qt::OtherFocusReason);
    }

    FocusKeeper(const FocusKeeper&) = delete;
    FocusKeeper& operator=(const FocusKeeper&) = delete;

private:
    QPointer<QWidget> m_focused;
};

#endif
