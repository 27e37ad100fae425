#ifndef TREEMODEL_H
#define TREEMODEL_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QAbstractItemModel>
#include <QStringList>

class TreeItem;

/**
 * A small editable tree model over TreeItem nodes, built from a block of indented text.
 *
 * A derived class fills it with SetupTree. The texts of the header are the values of an invisible root item,
 * whose children are the top-level rows. Until SetupTree has run there is no root: the model is empty and
 * refuses every change.
 *
 * Rows differ from those of common models in three ways, all intended: any column of a row, not only the
 * first, has the row's children; a row has as many columns as its own line gave it, and its children are
 * reached by as many; rows can be inserted and removed only below another row, never at the top level.
 */
class KTFM_EXPORT TreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /** An empty model. @param parent owns it; null for none */
    explicit TreeModel(QObject* parent = nullptr);
    ~TreeModel() override;

    using QObject::parent;

    /** @return the index of a cell; an invalid one when there is no such row or the row has no such column */
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;

    /** @return the parent in column 0; an invalid index for a top-level item. See TreeItem::row for the cost.
     */
    QModelIndex parent(const QModelIndex& index) const override;

    /** @return the number of children, whichever cell of an item is asked about */
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /** @return the number of cells of the item itself, by which its children are reached; of the header for
     * none */
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /** @return the stored value for Qt::DisplayRole and Qt::EditRole, an invalid one for any other role */
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /**
     * Stores a value, for Qt::EditRole only. Emits dataChanged, without roles, when it succeeds.
     * @return false when there is no such item or the item has no such column
     */
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /** @return the header's text for Qt::Horizontal and Qt::DisplayRole */
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /** Replaces a header's text, for Qt::Horizontal and Qt::EditRole only. Emits headerDataChanged. */
    bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                       int role = Qt::EditRole) override;

    /**
     * Inserts empty rows, as wide as the header, below @p parent.
     * @return false, and nothing is emitted, when @p parent is invalid or @p position is out of range
     */
    bool insertRows(int position, int rows, const QModelIndex& parent = QModelIndex()) override;

    /**
     * Inserts empty columns into the header and into every item that reaches @p position; @p parent is only
     * what the signals name.
     * @return false, and nothing is emitted, when there is no root or @p position is out of its range
     */
    bool insertColumns(int position, int columns, const QModelIndex& parent = QModelIndex()) override;

    /**
     * Removes rows below @p parent with all their descendants.
     * @return false, and nothing is emitted, when @p parent is invalid or the range reaches beyond its rows
     */
    bool removeRows(int position, int rows, const QModelIndex& parent = QModelIndex()) override;

    /**
     * Removes columns from the header and from every item that has all of them; @p parent is only what the
     * signals name.
     *
     * When the header has no column left, the top-level rows are asked to go too, through removeRows with an
     * invalid parent; as that refuses, they stay unless a derived class overrides it.
     *
     * @return false, and nothing is emitted, when there is no root or the range reaches beyond its columns
     */
    bool removeColumns(int position, int columns, const QModelIndex& parent = QModelIndex()) override;

    /** @return selectable and enabled: views do not edit the items, although setData changes them */
    Qt::ItemFlags flags(const QModelIndex& index) const override;

protected:
    /**
     * Replaces the whole tree. Linear in the length of @p data.
     *
     * Each line of @p data is one item. The spaces at its beginning give its depth: a line with more of them
     * than the line before is that line's child, one with fewer joins the deepest open level that has no
     * more. Only spaces count; a first line may have any number. Tabs separate the columns, several in a row
     * as one; blanks at the ends of a line, a carriage return among them, are dropped, and a line of nothing
     * but blanks is skipped.
     *
     * Emits nothing: a caller whose model is already shown brackets the call with beginResetModel and
     * endResetModel.
     *
     * @param headers the texts of the header, one for each column
     * @param data the items, as above
     * @return true
     */
    virtual bool SetupTree(const QStringList& headers, const QString& data);

    /** @return the item behind an index; null for an invalid index and for one of another model */
    TreeItem* ItemOf(const QModelIndex& index) const;

    /** @return the item whose children are the rows below @p parent: for an invalid index the root, if any */
    TreeItem* ParentItemOf(const QModelIndex& parent) const;

private:
    void setupModelData(const QStringList& lines, TreeItem* parent);

    TreeItem* m_rootItem = nullptr;
};

#endif
