#ifndef FILEROWORDER_H
#define FILEROWORDER_H

#include "models/CollationKey.h"

#include <QFileInfo>
#include <QMetaObject>
#include <QModelIndex>

#include <array>
#include <optional>
#include <vector>

class QAbstractItemModel;
class QFileSystemModel;
class QSortFilterProxyModel;

/**
 * The order of the rows of a file-system model, shared by the proxies that sort one.
 *
 * In the name column folders stand before files, in the size column files before folders, in either sort
 * order. Texts are compared by the locale and reversed on purpose: the greater one counts as less, so that
 * the descending indicator with which a header starts shows names from A to Z. Sizes and dates compare the
 * usual way.
 *
 * Two things make it fast without changing an answer:
 * - While the proxy sorts everything, which it announces as a change of layout, the text, time and file of
 * each row are asked once and kept for that pass. Nothing is kept beyond it, so nothing can go stale.
 * - A batch of rows that the source inserts is appended and sorted in with one such pass, instead of each row
 *   being put in its place by itself, which costs a search, a shift and a signal a row.
 */
class FileRowOrder
{
public:
    /** Serves @p proxy, which owns this object. */
    explicit FileRowOrder(QSortFilterProxyModel& proxy);
    ~FileRowOrder();

    FileRowOrder(const FileRowOrder&) = delete;
    FileRowOrder& operator=(const FileRowOrder&) = delete;

    /** Follows the insertions of a new source. To be called when the proxy has connected itself to it. */
    void FollowSource(QAbstractItemModel* source);

    /** @return whether @p index is a valid one of the proxy's source: no other can be asked about files */
    bool IsOfSource(const QModelIndex& index) const;

    /**
     * Compares two rows of the source by the column of @p left.
     * @return whether @p left counts as less; false for columns beyond the file-system model's four and for
     *         indexes that are not the source's
     */
    bool LessThan(const QModelIndex& left, const QModelIndex& right) const;

    /**
     * @return the file of a row of the source, for a host to compare. While everything is sorted it stays the
     *         same: the disk is asked once a file, and one that changes meanwhile cannot upset the sorting.
     */
    QFileInfo FileOf(const QModelIndex& index) const;

private:
    struct Row
    {
        const void* id = nullptr;
        bool isFolder = false;
        std::optional<CollationKey> text;
        std::optional<qint64> modified; ///< ms since the epoch
        std::optional<QFileInfo> file;
    };

    void BeginPass();
    void EndPass();
    void SortInsertedRowsLater(int first, int last);
    void SortInsertedRows();

    Row& RowOf(const QModelIndex& index, Row& scratch) const;
    const CollationKey& TextOf(const QModelIndex& index, Row& row) const;
    qint64 ModifiedOf(const QModelIndex& index, Row& row) const;
    bool TextIsAfter(const QModelIndex& left, Row& leftRow, const QModelIndex& right, Row& rightRow) const;
    bool SizeIsLess(const QModelIndex& left, Row& leftRow, const QModelIndex& right, Row& rightRow) const;
    bool TypeIsLess(const QModelIndex& left, Row& leftRow, const QModelIndex& right, Row& rightRow) const;

    QSortFilterProxyModel& m_proxy;
    const QFileSystemModel* m_pSource = nullptr;
    std::array<QMetaObject::Connection, 2> m_insertions;
    bool m_bInPass = false;
    bool m_bSortPending = false;
    mutable std::vector<Row> m_rows; ///< by source row; filled during a pass, empty outside of one
};

#endif
