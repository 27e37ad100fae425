#ifndef ALIASNAMEDELEGATE_H
#define ALIASNAMEDELEGATE_H

#include <QStyledItemDelegate>

#include <functional>

/**
 * Edits the names of the alias tree.
 *
 * When an editor closes, its item is read again from the disk and comes back as another row. Tab therefore
 * ends an edit as Return does; with the base class it would also open the next item's editor, and that item
 * would be the one to be read again.
 */
class AliasNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param onEditBegins called with its item when an editor opens, by whatever way */
    explicit AliasNameDelegate(std::function<void(const QModelIndex&)> onEditBegins,
                               QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    std::function<void(const QModelIndex&)> m_onEditBegins;
};

#endif
