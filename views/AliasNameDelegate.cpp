#include "views/AliasNameDelegate.h"

#include <QKeyEvent>
#include <QWidget>

namespace {

bool IsTab(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

AliasNameDelegate::AliasNameDelegate(std::function<void(const QModelIndex&)> onEditBegins, QObject* parent)
    : QStyledItemDelegate(parent),
      m_onEditBegins(std::move(onEditBegins))
{
}

QWidget* AliasNameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    m_onEditBegins(index);
    return QStyledItemDelegate::createEditor(parent, option, index);
}

bool AliasNameDelegate::eventFilter(QObject* object, QEvent* event)
{
    auto* editor = qobject_cast<QWidget*>(object);
    if (!editor || !IsTab(*event))
        return QStyledItemDelegate::eventFilter(object, event);
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor, NoHint);
    return true;
}
