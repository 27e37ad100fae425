#include "ListKeys.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QAbstractItemView>
#include <QKeyEvent>

namespace {

bool IsEnter(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& press = static_cast<const QKeyEvent&>(event);
    const bool plain = (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return plain && (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter);
}

} // namespace

ListKeys::ListKeys(CKTFileManager& pane, QObject* parent) : QObject(parent), m_pane(pane)
{
    m_pane.InstallEventFilter(this);
}

bool ListKeys::eventFilter(QObject* object, QEvent* event)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(object);
    // The Enter that ends a renaming comes here too, from the editor inside the view.
    if (!view || !view->hasFocus() || !IsEnter(*event))
        return QObject::eventFilter(object, event);
    if (view->currentIndex().isValid())
        m_pane.OnListDblClicked(view->currentIndex());
    return true;
}
