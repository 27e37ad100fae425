#include <KTFileManager2QU/TreeItem.h>

namespace {

/** Calls @p visit for each item below @p top, without recursion: a table may nest deeper than a stack is. */
template <typename Visitor> void ForEachDescendant(const TreeItem* top, Visitor visit)
{
    QVector<const TreeItem*> pending{top};
    while (!pending.isEmpty()) {
        const TreeItem* item = pending.takeLast();
        for (int row = 0; row < item->childCount(); ++row) {
            visit(item->child(row));
            pending.append(item->child(row));
        }
    }
}

/** @return where @p item stands in @p items, looking from @p start outwards; -1 when it is not there */
int NearestIndexOf(const QList<TreeItem*>& items, const TreeItem* item, int start)
{
    const int middle = qBound(0, start, items.size());
    for (int up = middle, down = middle - 1; up < items.size() || down >= 0; ++up, --down) {
        if (items.value(up) == item)
            return up;
        if (items.value(down) == item)
            return down;
    }
    return -1;
}

void InsertValues(QVector<QVariant>& values, int position, int count)
{
    if (count > 0 && position <= values.size())
        values.insert(position, count, QVariant());
}

void RemoveValues(QVector<QVariant>& values, int position, int count)
{
    if (count > 0 && count <= values.size() - position)
        values.remove(position, count);
}

} // namespace

TreeItem::TreeItem(const QVector<QVariant>& data, TreeItem* parent) : m_data(data), m_parent(parent) {}

TreeItem::~TreeItem()
{
    // Each item hands its children over before it dies, so that no destructor runs inside another one's.
    QList<TreeItem*> doomed;
    doomed.swap(m_children);
    while (!doomed.isEmpty()) {
        TreeItem* item = doomed.takeLast();
        doomed.append(item->m_children);
        item->m_children.clear();
        delete item;
    }
}

void TreeItem::appendChild(TreeItem* child)
{
    if (!child)
        return;
    if (child->m_parent == this)
        child->m_lastRow = m_children.size();
    m_children.append(child);
}

TreeItem* TreeItem::child(int row) const
{
    return m_children.value(row);
}

int TreeItem::childCount() const
{
    return m_children.size();
}

int TreeItem::columnCount() const
{
    return m_data.size();
}

QVariant TreeItem::data(int column) const
{
    return m_data.value(column);
}

bool TreeItem::setData(int column, const QVariant& value)
{
    if (column < 0 || column >= m_data.size())
        return false;
    m_data[column] = value;
    return true;
}

bool TreeItem::insertChild(int position, int count, int columns)
{
    if (position < 0 || position > m_children.size())
        return false;
    if (count < 1)
        return true;
    const QList<TreeItem*> following = m_children.mid(position);
    m_children.erase(m_children.begin() + position, m_children.end());
    m_children.reserve(position + count + following.size());
    for (int i = 0; i < count; ++i)
        appendChild(new TreeItem(QVector<QVariant>(qMax(0, columns)), this));
    m_children.append(following);
    return true;
}

bool TreeItem::removeChild(int position, int count)
{
    if (position < 0 || count > m_children.size() - position)
        return false;
    if (count < 1)
        return true;
    const QList<TreeItem*> removed = m_children.mid(position, count);
    const auto first = m_children.begin() + position;
    m_children.erase(first, first + count);
    qDeleteAll(removed);
    return true;
}

bool TreeItem::insertColumns(int position, int columns)
{
    if (position < 0 || position > m_data.size())
        return false;
    InsertValues(m_data, position, columns);
    ForEachDescendant(this, [=](TreeItem* item) { InsertValues(item->m_data, position, columns); });
    return true;
}

bool TreeItem::removeColumns(int position, int columns)
{
    if (position < 0 || columns > m_data.size() - position)
        return false;
    RemoveValues(m_data, position, columns);
    ForEachDescendant(this, [=](TreeItem* item) { RemoveValues(item->m_data, position, columns); });
    return true;
}

TreeItem* TreeItem::parent() const
{
    return m_parent;
}

int TreeItem::row() const
{
    if (!m_parent)
        return 0;
    const int row = m_parent->RowOf(this, m_lastRow);
    if (row >= 0)
        m_lastRow = row;
    return row;
}

/**
 * Finds a child from the row that it had when it was last asked for.
 *
 * Insertions and removals move the children behind them all by the same number of rows. The search therefore
 * starts where the child would be if it had moved as far as the one found before it: whoever walks the
 * children in order pays for each change of their rows once.
 */
int TreeItem::RowOf(const TreeItem* item, int lastRow) const
{
    if (child(lastRow) == item)
        return lastRow;
    const int found = NearestIndexOf(m_children, item, lastRow + m_lastShift);
    if (found >= 0)
        m_lastShift = found - lastRow;
    return found;
}
