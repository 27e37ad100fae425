#include "models/FileRowOrder.h"

#include "models/CollationKey.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <iterator>
#include <utility>

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

QString TextOf(const QModelIndex& index)
{
    return index.data(Qt::DisplayRole).toString();
}

} // namespace

/** Gives each row the place of its text among all; equal texts share one. */
void FileRowOrder::RankTexts(std::vector<Row>& rows)
{
    std::vector<std::pair<CollationKey, Row*>> sorted;
    sorted.reserve(rows.size());
    for (Row& row : rows)
        sorted.emplace_back(CollationKey(row.text), &row);
    std::sort(sorted.begin(), sorted.end(),
              [](const auto& left, const auto& right) { return left.first.Compare(right.first) < 0; });
    int rank = 0;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        if (i > 0 && sorted[i - 1].first.Compare(sorted[i].first) != 0)
            ++rank;
        sorted[i].second->rank = rank;
    }
}

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
    if (m_bInPass)
        return;
    m_bInPass = true;
    ++m_nPass;
    m_pFolder = nullptr;
}

void FileRowOrder::EndPass()
{
    m_bInPass = false;
    m_pFolder = nullptr;
    for (auto folder = m_folders.begin(); folder != m_folders.end();) {
        folder->second.files.clear();
        folder = folder->second.pass == m_nPass ? std::next(folder) : m_folders.erase(folder);
    }
}

void FileRowOrder::SortInsertedRowsLater(int first, int last)
{
    const bool isBatch = last - first + 1 >= BatchSize;
    if (!isBatch || !m_proxy.dynamicSortFilter() || m_proxy.sortColumn() < 0)
        return;
    m_bSortPending = true;
    m_proxy.setDynamicSortFilter(false);
    // The proxy sorts the new rows among themselves before it appends them; that belongs to the pass.
    BeginPass();
}

void FileRowOrder::SortInsertedRows()
{
    if (!m_bSortPending)
        return;
    m_bSortPending = false;
    // Switching it on again sorts, and that ends the pass.
    m_proxy.setDynamicSortFilter(true);
}

bool FileRowOrder::IsOfSource(const QModelIndex& index) const
{
    return index.isValid() && index.model() == m_proxy.sourceModel();
}

QFileInfo FileRowOrder::FileOf(const QModelIndex& index) const
{
    if (!m_pSource)
        return QFileInfo();
    if (m_bInPass)
        EnterFolder(index);
    if (!Known(index))
        return QFileInfo(m_pSource->filePath(index));
    m_pFolder->files.resize(m_pFolder->rows.size());
    auto& file = m_pFolder->files[static_cast<std::size_t>(index.row())];
    if (!file)
        file = QFileInfo(m_pSource->filePath(index));
    return *file;
}

bool FileRowOrder::LessThan(const QModelIndex& left, const QModelIndex& right) const
{
    if (!IsOfSource(left) || !IsOfSource(right))
        return false;
    if (m_bInPass && m_pSource)
        EnterFolder(left);
    switch (left.column()) {
    case NameColumn:
        return NameIsLess(left, right);
    case SizeColumn:
        return SizeIsLess(left, right);
    case TypeColumn:
        return TypeIsLess(left, right);
    case DateColumn:
        return Modified(left) < Modified(right);
    default:
        return false;
    }
}

bool FileRowOrder::NameIsLess(const QModelIndex& left, const QModelIndex& right) const
{
    const bool leftIsFolder = IsFolder(left);
    if (leftIsFolder != IsFolder(right))
        return leftIsFolder == (m_proxy.sortOrder() == Qt::AscendingOrder);
    return CompareTexts(left, right) > 0;
}

bool FileRowOrder::SizeIsLess(const QModelIndex& left, const QModelIndex& right) const
{
    const bool leftIsFolder = IsFolder(left);
    if (leftIsFolder != IsFolder(right))
        return leftIsFolder == (m_proxy.sortOrder() == Qt::DescendingOrder);
    if (leftIsFolder || !m_pSource)
        return CompareTexts(left, right) > 0;
    const qint64 leftSize = m_pSource->size(left);
    const qint64 rightSize = m_pSource->size(right);
    // Sizes are first compared as 32-bit numbers: files that differ by a multiple of 4 GiB go by their text.
    if (static_cast<quint32>(leftSize) == static_cast<quint32>(rightSize))
        return CompareTexts(left, right) > 0;
    return leftSize < rightSize;
}

bool FileRowOrder::TypeIsLess(const QModelIndex& left, const QModelIndex& right) const
{
    const int order = CompareTexts(left, right);
    return order == 0 ? Modified(left) < Modified(right) : order > 0;
}

bool FileRowOrder::IsFolder(const QModelIndex& index) const
{
    if (const Row* row = Known(index))
        return row->isFolder;
    return m_pSource && m_pSource->isDir(index);
}

qint64 FileRowOrder::Modified(const QModelIndex& index) const
{
    if (const Row* row = Known(index)) {
        if (!m_pFolder->hasTimes)
            GatherTimes(index);
        return row->modified;
    }
    return m_pSource ? m_pSource->lastModified(index).toMSecsSinceEpoch() : 0;
}

int FileRowOrder::CompareTexts(const QModelIndex& left, const QModelIndex& right) const
{
    const Row* leftRow = Known(left);
    const Row* rightRow = Known(right);
    if (leftRow && rightRow) {
        if (!m_pFolder->hasTexts)
            GatherTexts(left);
        return leftRow->rank - rightRow->rank;
    }
    return CollationKey(TextOf(left)).Compare(CollationKey(TextOf(right)));
}

const FileRowOrder::Row* FileRowOrder::Known(const QModelIndex& index) const
{
    const auto number = static_cast<std::size_t>(index.row());
    if (!m_pFolder || number >= m_pFolder->rows.size())
        return nullptr;
    const Row* row = &m_pFolder->rows[number];
    return row->id == index.internalPointer() ? row : nullptr;
}

void FileRowOrder::EnterFolder(const QModelIndex& index) const
{
    // A pass may go through several folders, one after the other.
    if (Known(index))
        return;
    const QModelIndex parent = index.parent();
    Folder& folder = m_folders[parent.internalPointer()];
    if (folder.column != index.column())
        folder.rows.clear();
    folder.pass = m_nPass;
    folder.column = index.column();
    folder.hasTexts = false;
    folder.hasTimes = false;
    folder.files.clear();
    folder.rows.resize(static_cast<std::size_t>(m_pSource->rowCount(parent)));
    int number = 0;
    for (Row& row : folder.rows) {
        const QModelIndex child = m_pSource->index(number++, folder.column, parent);
        row.id = child.internalPointer();
        row.isFolder = m_pSource->isDir(child);
    }
    m_pFolder = &folder;
}

void FileRowOrder::GatherTexts(const QModelIndex& index) const
{
    m_pFolder->hasTexts = true;
    const QModelIndex parent = index.parent();
    std::vector<Row>& rows = m_pFolder->rows;
    bool isSame = true;
    for (std::size_t number = 0; number < rows.size(); ++number) {
        const QString text = TextOf(m_pSource->index(static_cast<int>(number), m_pFolder->column, parent));
        // A row that has no rank yet has a null text.
        isSame = isSame && !rows[number].text.isNull() && text == rows[number].text;
        rows[number].text = text.isNull() ? QString(QLatin1String("")) : text;
    }
    if (!isSame)
        RankTexts(rows);
}

void FileRowOrder::GatherTimes(const QModelIndex& index) const
{
    m_pFolder->hasTimes = true;
    const QModelIndex parent = index.parent();
    int number = 0;
    for (Row& row : m_pFolder->rows)
        row.modified = m_pSource->lastModified(m_pSource->index(number++, 0, parent)).toMSecsSinceEpoch();
}
