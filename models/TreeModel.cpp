#include <KTFileManager2QU/TreeItem.h>
#include <KTFileManager2QU/TreeModel.h>

#include <QStack>

#include <algorithm>

namespace {

/** An item that takes the lines below it, and the indentation from which on a line belongs there. */
struct OpenLevel
{
    TreeItem* parent;
    int indentation;
};

int IndentationOf(const QString& line)
{
    const auto text = std::find_if(line.cbegin(), line.cend(), [](QChar c) { return c != QLatin1Char(' '); });
    return static_cast<int>(text - line.cbegin());
}

QVector<QVariant> ColumnsOf(const QStringRef& text)
{
    const QVector<QStringRef> parts = text.trimmed().split(QLatin1Char('\t'), Qt::SkipEmptyParts);
    QVector<QVariant> columns;
    columns.reserve(parts.size());
    for (const QStringRef& part : parts)
        columns.append(part.toString());
    return columns;
}

QVector<QVariant> ValuesOf(const QStringList& texts)
{
    QVector<QVariant> values;
    values.reserve(texts.size());
    for (const QString& text : texts)
        values.append(text);
    return values;
}

/** Opens or closes levels until the top one is where a line with @p indentation belongs. */
void EnterLevel(QStack<OpenLevel>& levels, int indentation)
{
    const OpenLevel& current = levels.top();
    if (indentation > current.indentation) {
        const int children = current.parent->childCount();
        if (children > 0)
            levels.push({current.parent->child(children - 1), indentation});
        return;
    }
    // The lowest level has indentation 0, so that it is never left.
    while (indentation < levels.top().indentation)
        levels.pop();
}

} // namespace

TreeModel::TreeModel(QObject* parent) : QAbstractItemModel(parent) {}

TreeModel::~TreeModel()
{
    delete m_rootItem;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const TreeItem* parentItem = ParentItemOf(parent);
    if (!parentItem || !hasIndex(row, column, parent))
        return QModelIndex();
    TreeItem* item = parentItem->child(row);
    return item ? createIndex(row, column, item) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex& index) const
{
    const TreeItem* item = ItemOf(index);
    TreeItem* parentItem = item ? item->parent() : nullptr;
    if (!parentItem || parentItem == m_rootItem)
        return QModelIndex();
    return createIndex(parentItem->row(), 0, parentItem);
}

int TreeModel::rowCount(const QModelIndex& parent) const
{
    const TreeItem* item = ParentItemOf(parent);
    return item ? item->childCount() : 0;
}

int TreeModel::columnCount(const QModelIndex& parent) const
{
    const TreeItem* item = ParentItemOf(parent);
    return item ? item->columnCount() : 0;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return QVariant();
    const TreeItem* item = ItemOf(index);
    return item ? item->data(index.column()) : QVariant();
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    TreeItem* item = role == Qt::EditRole ? ItemOf(index) : nullptr;
    if (!item || !item->setData(index.column(), value))
        return false;
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant TreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (!m_rootItem || orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return m_rootItem->data(section);
}

bool TreeModel::setHeaderData(int section, Qt::Orientation orientation, const QVariant& value, int role)
{
    if (!m_rootItem || orientation != Qt::Horizontal || role != Qt::EditRole)
        return false;
    if (!m_rootItem->setData(section, value))
        return false;
    Q_EMIT headerDataChanged(Qt::Horizontal, section, section);
    return true;
}

// The ranges are looked at before a change is announced: views and persistent indexes believe what is
// announced, and an item that then refused would leave them with rows or columns that do not exist.

bool TreeModel::insertRows(int position, int rows, const QModelIndex& parent)
{
    TreeItem* item = ItemOf(parent);
    if (!item || position < 0 || position > item->childCount())
        return false;
    if (rows < 1)
        return true;
    beginInsertRows(parent, position, position + rows - 1);
    const bool done = item->insertChild(position, rows, m_rootItem->columnCount());
    endInsertRows();
    return done;
}

bool TreeModel::insertColumns(int position, int columns, const QModelIndex& parent)
{
    if (!m_rootItem || position < 0 || position > m_rootItem->columnCount())
        return false;
    if (columns < 1)
        return true;
    beginInsertColumns(parent, position, position + columns - 1);
    const bool done = m_rootItem->insertColumns(position, columns);
    endInsertColumns();
    return done;
}

bool TreeModel::removeRows(int position, int rows, const QModelIndex& parent)
{
    TreeItem* item = ItemOf(parent);
    if (!item || position < 0 || rows > item->childCount() - position)
        return false;
    if (rows < 1)
        return true;
    beginRemoveRows(parent, position, position + rows - 1);
    const bool done = item->removeChild(position, rows);
    endRemoveRows();
    return done;
}

bool TreeModel::removeColumns(int position, int columns, const QModelIndex& parent)
{
    if (!m_rootItem || position < 0 || columns > m_rootItem->columnCount() - position)
        return false;
    if (columns < 1)
        return true;
    beginRemoveColumns(parent, position, position + columns - 1);
    const bool done = m_rootItem->removeColumns(position, columns);
    endRemoveColumns();
    if (m_rootItem->columnCount() == 0)
        removeRows(0, rowCount(), QModelIndex());
    return done;
}

Qt::ItemFlags TreeModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

bool TreeModel::SetupTree(const QStringList& headers, const QString& data)
{
    const QVector<QVariant> values = ValuesOf(headers);
    delete m_rootItem;
    m_rootItem = new TreeItem(values, nullptr);
    setupModelData(data.split(QLatin1Char('\n')), m_rootItem);
    return true;
}

TreeItem* TreeModel::ItemOf(const QModelIndex& index) const
{
    return index.isValid() && index.model() == this ? static_cast<TreeItem*>(index.internalPointer())
                                                    : nullptr;
}

TreeItem* TreeModel::ParentItemOf(const QModelIndex& parent) const
{
    return parent.isValid() ? ItemOf(parent) : m_rootItem;
}

void TreeModel::setupModelData(const QStringList& lines, TreeItem* parent)
{
    QStack<OpenLevel> levels;
    levels.push({parent, 0});
    for (const QString& line : lines) {
        const int indentation = IndentationOf(line);
        const QVector<QVariant> columns = ColumnsOf(line.midRef(indentation));
        if (columns.isEmpty())
            continue;
        EnterLevel(levels, indentation);
        TreeItem* top = levels.top().parent;
        top->appendChild(new TreeItem(columns, top));
    }
}
