#include "models/RenameErrorEvents.h"

#include <QCoreApplication>

RenameErrorEvents::RenameErrorEvents()
    : m_nameExists(static_cast<QEvent::Type>(QEvent::registerEventType())),
      m_renameFailed(static_cast<QEvent::Type>(QEvent::registerEventType()))
{
}

void RenameErrorEvents::Post(QObject* model, RenameError error) const
{
    const QEvent::Type type = error == RenameError::NameExists ? m_nameExists : m_renameFailed;
    QCoreApplication::postEvent(model, new QEvent(type));
}

int RenameErrorEvents::CodeOf(const QEvent& event) const
{
    if (event.type() == m_nameExists)
        return static_cast<int>(RenameError::NameExists);
    if (event.type() == m_renameFailed)
        return static_cast<int>(RenameError::RenameFailed);
    return -1;
}
