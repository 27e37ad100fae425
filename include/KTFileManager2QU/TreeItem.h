#ifndef TREEITEM_H
#define TREEITEM_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QList>
#include <QVariant>
#include <QVector>

/**
 * One node of a TreeModel: a row of values, its children and its parent.
 *
 * An item owns its children and deletes them with itself, however deep they nest. The number of its values
 * is its own: it need not be that of its parent or of its siblings.
 */
class KTFM_EXPORT TreeItem
{
public:
    /**
     * An item without children.
     * @param data its values, one for each column
     * @param parent borrowed, null for a root; it does not list the item until appendChild is called there
     */
    TreeItem(const QVector<QVariant>& data, TreeItem* parent);

    /**
     * A shallow copy: the copy names the same children and the same parent as @p other.
     *
     * The children are not cloned, so whoever copies an item sees to it that only one of the two is
     * destroyed with them. They go on naming @p other as their parent.
     */
    TreeItem(const TreeItem& other) = default;

    /** Takes over values, children and parent as the copy constructor does; the former children are not
     * deleted. */
    TreeItem& operator=(const TreeItem& other) = default;

    /** Deletes every descendant. */
    ~TreeItem();

    /**
     * Adds a child after the last one and takes ownership of it. O(1) amortised.
     *
     * The child's parent is left as it was constructed, and should be this item. A null @p child is ignored.
     */
    void appendChild(TreeItem* child);

    /** @return the child in @p row, null when there is no such row */
    TreeItem* child(int row) const;

    /** @return the number of children */
    int childCount() const;

    /** @return the number of values */
    int columnCount() const;

    /** @return the value in @p column, an invalid one when there is no such column */
    QVariant data(int column) const;

    /**
     * Replaces a value.
     * @param column from 0 to columnCount() - 1
     * @param value the new one, shared with the caller as usual with Qt
     * @return false when there is no such column
     */
    bool setData(int column, const QVariant& value);

    /**
     * Adds @p count children with @p columns invalid values each before the child in row @p position.
     * Linear in the children there are afterwards.
     *
     * @return false, and nothing is done, when @p position is negative or beyond the child count; true
     *         without doing anything when @p count is below 1
     */
    bool insertChild(int position, int count, int columns);

    /**
     * Deletes @p count children from row @p position on.
     *
     * @return false, and nothing is done, when @p position is negative or the range reaches beyond the last
     *         child; true without doing anything when @p count is below 1
     */
    bool removeChild(int position, int count);

    /**
     * Adds @p columns invalid values before column @p position, here and in every descendant. A descendant
     * that has fewer than @p position values stays as it is.
     *
     * @return false, and nothing is done anywhere, when @p position is negative or beyond this item's columns
     */
    bool insertColumns(int position, int columns);

    /**
     * Removes @p columns values from column @p position on, here and in every descendant. A descendant that
     * the range reaches beyond stays as it is.
     *
     * @return false, and nothing is done anywhere, when @p position is negative or the range reaches beyond
     *         this item's columns
     */
    bool removeColumns(int position, int columns);

    /** @return the parent, null for a root */
    TreeItem* parent() const;

    /**
     * @return the row in which the parent lists this item; 0 without a parent, -1 when the parent does not
     *         list it
     *
     * O(1) while siblings keep their rows. After rows were inserted or removed, a walk over the siblings is
     * still linear in their number.
     */
    int row() const;

private:
    int RowOf(const TreeItem* item, int lastRow) const;

    QList<TreeItem*> m_children;
    QVector<QVariant> m_data;
    TreeItem* m_parent;

    // Where row() looks first; what it finds there is always checked against the parent's children.
    mutable int m_lastRow = 0;   // this item's row when it was last asked for
    mutable int m_lastShift = 0; // by how many rows the child that was last looked for had moved
};

#endif
