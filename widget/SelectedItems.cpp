#include "widget/SelectedItems.h"

#include <QFileInfo>
#include <QFileSystemModel>
#include <QHash>
#include <QItemSelectionModel>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <vector>

namespace {

/** The first cell of each row that is selected from end to end, in the order of selection. */
QModelIndexList WholeRows(const QItemSelection& ranges)
{
    QModelIndexList rows;
    QHash<QModelIndex, int> cells;
    for (const QItemSelectionRange& range : ranges) {
        const QAbstractItemModel& model = *range.model();
        const QModelIndex parent = range.parent();
        const int columns = model.columnCount(parent);
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex first = model.index(row, 0, parent);
            // Most often a range goes from end to end, and nothing has to be counted.
            if (range.width() == columns || (cells[first] += range.width()) == columns)
                rows.append(first);
        }
    }
    return rows;
}

/** Tells the paths of items of one folder, whose own is made once. */
class FolderPath
{
public:
    FolderPath(const QFileSystemModel& model, const QModelIndex& folder) : m_model(model), m_folder(folder)
    {
        if (folder.isValid())
            m_path = model.filePath(folder);
        if (!m_path.endsWith(QLatin1Char('/')))
            m_path += QLatin1Char('/');
    }

    /**
     * @return the path of an item that is in the folder and is no link; else a null text. No two items of the
     *         folder have the same.
     */
    QString PathOf(const QModelIndex& item) const
    {
        const QFileInfo info = m_model.fileInfo(item);
        if (!IsHere(item) || info.isSymLink())
            return QString();
        // The model's own text is shared, not copied, where it is the path; below a folder that was renamed
        // it may be an old one.
        const QString path = info.filePath();
        return IsDirectlyBelow(path) ? path : m_path + info.fileName();
    }

private:
    bool IsHere(const QModelIndex& item) const
    {
        return item.isValid() && m_folder.isValid() &&
               m_model.index(item.row(), item.column(), m_folder) == item;
    }

    bool IsDirectlyBelow(const QString& path) const
    {
        return path.startsWith(m_path) && path.lastIndexOf(QLatin1Char('/')) == m_path.size() - 1;
    }

    const QFileSystemModel& m_model;
    QModelIndex m_folder;
    QString m_path;
};

/**
 * @return the places of the items, ordered by their rows. A model gathers its items in that order, so that
 * what it knows of neighbours lies close together; with many files any other order costs a multiple.
 */
std::vector<int> InRowOrder(const QVector<QModelIndex>& items)
{
    int last = -1;
    for (const QModelIndex& item : items)
        last = std::max(last, item.row());
    // Where each row begins, from -1 on, which is that of an index of nothing.
    const auto slot = [](int row) { return static_cast<std::size_t>(row) + 1; };
    std::vector<int> begins(slot(last) + 2);
    for (const QModelIndex& item : items)
        ++begins[slot(item.row()) + 1];
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    std::vector<int> places(static_cast<std::size_t>(items.size()));
    for (int place = 0; place < items.size(); ++place)
        places[static_cast<std::size_t>(begins[slot(items.at(place).row())]++)] = place;
    return places;
}

} // namespace

namespace SelectedItems {

QModelIndexList Of(const QItemSelectionModel& selection)
{
    const QModelIndexList rows = WholeRows(selection.selection());
    return rows.isEmpty() ? selection.selectedIndexes() : rows;
}

QStringList Paths(const QFileSystemModel& model, const QVector<QModelIndex>& items, const QModelIndex& folder)
{
    const FolderPath here(model, folder);
    QStringList paths;
    paths.reserve(items.size());
    std::fill_n(std::back_inserter(paths), items.size(), QString());
    bool mayRepeat = false;
    int previous = -1;
    for (const int place : InRowOrder(items)) {
        const QModelIndex& item = items.at(place);
        QString path = here.PathOf(item);
        mayRepeat = mayRepeat || path.isNull() || item.row() == previous;
        paths[place] = path.isNull() ? model.filePath(item) : path;
        previous = item.row();
    }
    if (mayRepeat)
        paths.removeDuplicates();
    return paths;
}

} // namespace SelectedItems
