#include "models/FileRowOrder.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

#include <algorithm>

namespace {

/** The columns of a file-system model. */
enum Column : int
{
    NameColumn = 0,
    SizeColumn = 1,
    TypeColumn = 2,
    DateColumn = 3
};

/** The number of rows from which on sorting everything once is cheaper than placing each row by itself. */
constexpr int BatchSize = 32;

} // namespace

FileRowOrder::FileRowOrder(QSortFilterProxyModel& proxy) : m_proxy(proxy)
{
    QObject::connect(&proxy, &QAbstractItemModel::layoutAboutToBeChanged, &proxy, [this] { BeginPass(); });
    QObject::connect(&proxy, &QAbstractItemModel::layoutChanged, &proxy, [this] { EndPass(); });
}

FileRowOrder::~FileRowOrder() = default;

void FileRowOrder::FollowSource(QAbstractItemModel* source)
{
    for (const QMetaObject::Connection& connection : m_insertions)
        QObject::disconnect(connection);
    m_pSource = qobject_cast<QFileSystemModel*>(source);
    m_bSortPending = false;
    EndPass();
    if (!source)
        return;
    m_insertions = {QObject::connect(source, &QAbstractItemModel::rowsAboutToBeInserted, &m_proxy,
                                     [this](const QModelIndex&, int first, int last) {
                                         SortInsertedRowsLater(first, last);
                                     }),
                    QObject::connect(source, &QAbstractItemModel::rowsInserted, &m_proxy,
                                     [this] { SortInsertedRows(); })};
}

void FileRowOrder::BeginPass()
{
    m_bInPass = true;
    m_rows.clear();
}

void FileRowOrder::EndPass()
{
    m_bInPass = false;
    m_rows = std::vector<Row>();
}

void FileRowOrder::SortInsertedRowsLater(int first, int last)
{
    const bool isBatch = last - first + 1 >= BatchSize;
    if (!isBatch || !m_proxy.dynamicSortFilter() || m_proxy.sortColumn() < 0)
        return;
    m_bSortPending = true;
    m_proxy.setDynamicSortFilter(false);
}

void FileRowOrder::SortInsertedRows()
{
    if (!m_bSortPending)
        return;
    m_bSortPending = false;
    // Switching it on again sorts.
    m_proxy.setDynamicSortFilter(true);
}

bool FileRowOrder::LessThan(const QModelIndex& left, const QModelIndex& right) const
{
    Row leftScratch;
    Row rightScratch;
    Row& leftRow = RowOf(left, leftScratch);
    Row& rightRow = RowOf(right, rightScratch);
    switch (left.column()) {
    case NameColumn:
        if (leftRow.isFolder != rightRow.isFolder)
            return leftRow.isFolder == (m_proxy.sortOrder() == Qt::AscendingOrder);
        return TextIsAfter(left, leftRow, right, rightRow);
    case SizeColumn:
        return SizeIsLess(left, leftRow, right, rightRow);
    case TypeColumn:
        return TypeIsLess(left, leftRow, right, rightRow);
    case DateColumn:
        return ModifiedOf(left, leftRow) < ModifiedOf(right, rightRow);
    default:
        return false;
    }
}

FileRowOrder::Row& FileRowOrder::RowOf(const QModelIndex& index, Row& scratch) const
{
    Row* row = &scratch;
    if (m_bInPass && index.isValid()) {
        const auto number = static_cast<std::size_t>(index.row());
        // Room for the whole folder at once: the row of the other side stays where it is.
        if (number >= m_rows.size())
            m_rows.resize(
                std::max(number + 1, static_cast<std::size_t>(index.model()->rowCount(index.parent()))));
        row = &m_rows[number];
    }
    // A pass may go through several folders, whose rows have the same numbers.
    if (row->id != index.internalPointer() || !row->id) {
        *row = Row();
        row->id = index.internalPointer();
        row->isFolder = m_pSource && m_pSource->isDir(index);
    }
    return *row;
}

const CollationKey& FileRowOrder::TextOf(const QModelIndex& index, Row& row) const
{
    if (!row.text)
        row.text = CollationKey(index.data(Qt::DisplayRole).toString());
    return *row.text;
}

qint64 FileRowOrder::ModifiedOf(const QModelIndex& index, Row& row) const
{
    if (!row.modified)
        row.modified = m_pSource ? m_pSource->lastModified(index).toMSecsSinceEpoch() : 0;
    return *row.modified;
}

bool FileRowOrder::TextIsAfter(const QModelIndex& left, Row& leftRow, const QModelIndex& right,
                               Row& rightRow) const
{
    return TextOf(left, leftRow).Compare(TextOf(right, rightRow)) > 0;
}

bool FileRowOrder::SizeIsLess(const QModelIndex& left, Row& leftRow, const QModelIndex& right,
                              Row& rightRow) const
{
    if (leftRow.isFolder != rightRow.isFolder)
        return leftRow.isFolder == (m_proxy.sortOrder() == Qt::DescendingOrder);
    if (leftRow.isFolder || !m_pSource)
        return TextIsAfter(left, leftRow, right, rightRow);
    const qint64 leftSize = m_pSource->size(left);
    const qint64 rightSize = m_pSource->size(right);
    // Sizes are first compared as 32-bit numbers: files that differ by a multiple of 4 GiB go by their text.
    if (static_cast<quint32>(leftSize) == static_cast<quint32>(rightSize))
        return TextIsAfter(left, leftRow, right, rightRow);
    return leftSize < rightSize;
}

bool FileRowOrder::TypeIsLess(const QModelIndex& left, Row& leftRow, const QModelIndex& right,
                              Row& rightRow) const
{
    const int order = TextOf(left, leftRow).Compare(TextOf(right, rightRow));
    return order == 0 ? ModifiedOf(left, leftRow) < ModifiedOf(right, rightRow) : order > 0;
}
