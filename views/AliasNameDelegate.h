#ifndef ALIASNAMEDELEGATE_H
#define ALIASNAMEDELEGATE_H

#include <QStyledItemDelegate>

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
    explicit AliasNameDelegate(QObject* parent = nullptr);

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;

Q_SIGNALS:
    /** An editor opens on an item, by whatever way. */
    void EditBegins(const QModelIndex& index) const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

#endif
