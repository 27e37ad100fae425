#include "NavigationActions.h"

#include "Actions.h"

#include <QAction>
#include <QDir>

namespace {

/** Backspace goes up here, also where the platform has it for going back. */
QList<QKeySequence> WithoutBackspace(QList<QKeySequence> keys)
{
    keys.removeAll(QKeySequence(Qt::Key_Backspace));
    return keys;
}

QList<QKeySequence> BackKeys()
{
    return WithoutBackspace(Actions::Keys(QKeySequence::Back, QStringLiteral("Alt+Left")));
}

QList<QKeySequence> UpKeys()
{
    return {QKeySequence(QStringLiteral("Alt+Up")), QKeySequence(Qt::Key_Backspace)};
}

QList<QKeySequence> AddressKeys()
{
    return {QKeySequence(QStringLiteral("Ctrl+L")), QKeySequence(QStringLiteral("Alt+D"))};
}

/** @return the folder above @p path, an empty text above the top-most */
QString ParentOf(const QString& path)
{
    QDir folder(path);
    return !path.isEmpty() && folder.cdUp() ? folder.absolutePath() : QString();
}

} // namespace

NavigationActions::NavigationActions(QObject* parent)
    : QObject(parent),
      m_pBack(Actions::Create(this, tr("&Back"), "go-previous", BackKeys())),
      m_pForward(Actions::Create(
          this, tr("&Forward"), "go-next",
          WithoutBackspace(Actions::Keys(QKeySequence::Forward, QStringLiteral("Alt+Right"))))),
      m_pUp(Actions::Create(this, tr("&Up"), "go-up", UpKeys())),
      m_pHome(Actions::Create(this, tr("&Home"), "go-home", {QKeySequence(QStringLiteral("Alt+Home"))})),
      m_pReload(Actions::Create(this, tr("&Reload"), "view-refresh",
                                Actions::Keys(QKeySequence::Refresh, QStringLiteral("F5")))),
      m_pAddress(Actions::Create(this, tr("&Address"), "document-edit", AddressKeys()))
{
    connect(m_pBack, &QAction::triggered, this, &NavigationActions::GoBack);
    connect(m_pForward, &QAction::triggered, this, &NavigationActions::GoForward);
    connect(m_pUp, &QAction::triggered, this, &NavigationActions::GoUp);
    connect(m_pHome, &QAction::triggered, this, &NavigationActions::GoHome);
    UpdateActions();
}

void NavigationActions::FolderChanged(const QString& path)
{
    m_path = path;
    m_history.Visit(path);
    UpdateActions();
}

void NavigationActions::GoBack()
{
    const QString left = m_path;
    Q_EMIT FolderWanted(m_history.GoBack(), left);
    UpdateActions();
}

void NavigationActions::GoForward()
{
    Q_EMIT FolderWanted(m_history.GoForward(), QString());
    UpdateActions();
}

void NavigationActions::GoUp()
{
    Q_EMIT FolderWanted(ParentOf(m_path), m_path);
}

void NavigationActions::GoHome()
{
    Q_EMIT FolderWanted(QDir::homePath(), QString());
}

void NavigationActions::UpdateActions()
{
    m_pBack->setEnabled(m_history.CanGoBack());
    m_pForward->setEnabled(m_history.CanGoForward());
    m_pUp->setEnabled(!ParentOf(m_path).isEmpty());
}
