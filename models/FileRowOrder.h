#ifndef FILEROWORDER_H
#define FILEROWORDER_H

#include <QFileInfo>
#include <QMetaObject>
#include <QModelIndex>
#include <QString>

#include <array>
#include <optional>
#include <unordered_map>
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
 * - While the proxy sorts everything, which it announces as a change of layout, each row is asked for its
 * facts once, and the texts are compared by their ranks, which one sorting of their collation keys gives. The
 *   ranks are kept for the next pass, where they serve if every row still has the same text.
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
    /** What a pass knows of a row. */
    struct Row
    {
        const void* id = nullptr;
        bool isFolder = false;
        int rank = 0;        ///< the place of its text among the folder's
        qint64 modified = 0; ///< ms since the epoch
        QString text;
    };

    /** What a pass knows of the rows of one folder, for one column. */
    struct Folder
    {
        quint64 pass = 0;
        int column = -1;
        bool hasTexts = false; ///< in this pass
        bool hasTimes = false; ///< in this pass
        std::vector<Row> rows;
        std::vector<std::optional<QFileInfo>> files; ///< by row, as asked for; for one pass
    };

    void BeginPass();
    void EndPass();
    void SortInsertedRowsLater(int first, int last);
    void SortInsertedRows();

    static void RankTexts(std::vector<Row>& rows);
    void EnterFolder(const QModelIndex& index) const;
    const Row* Known(const QModelIndex& index) const;
    void GatherTexts(const QModelIndex& index) const;
    void GatherTimes(const QModelIndex& index) const;

    bool IsFolder(const QModelIndex& index) const;
    qint64 Modified(const QModelIndex& index) const;
    int CompareTexts(const QModelIndex& left, const QModelIndex& right) const;
    bool NameIsLess(const QModelIndex& left, const QModelIndex& right) const;
    bool SizeIsLess(const QModelIndex& left, const QModelIndex& right) const;
    bool TypeIsLess(const QModelIndex& left, const QModelIndex& right) const;

    QSortFilterProxyModel& m_proxy;
    const QFileSystemModel* m_pSource = nullptr;
    std::array<QMetaObject::Connection, 2> m_insertions;
    bool m_bSortPending = false;
    quint64 m_nPass = 0; ///< the number of the latest pass
    bool m_bInPass = false;
    mutable std::unordered_map<const void*, Folder> m_folders; ///< by the node of the folder
    mutable Folder* m_pFolder = nullptr;                       ///< the one being sorted
};

#endif
