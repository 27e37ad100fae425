#ifndef CKTFMSORTFILTERPROXYMODEL_H
#define CKTFMSORTFILTERPROXYMODEL_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QSortFilterProxyModel>

#include <memory>

class CCustomSortInterface;
class FileRowOrder;
class QFileSystemModel;

/**
 * Sorts and searches a file-system model, for hosts that build their own views.
 *
 * The source must be a QFileSystemModel or a class derived from it.
 *
 * Order by column: names with folders before files in either sort order, sizes with files before folders in
 * either sort order, types with equal ones by date, dates by value. Texts compare by the locale and reversed
 * on purpose: with Qt::DescendingOrder, at which a header starts, names run from A to Z. Sizes and dates
 * compare the usual way. A source of n rows is sorted in O(n log n).
 *
 * A CKTFMListModel behind it may be told SetSortedByProxy(true), which halves the cost of opening a large
 * folder.
 */
class KTFM_EXPORT CKTFMSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /** A proxy without source, host order and search text. @param parent owns it; null for none */
    explicit CKTFMSortFilterProxyModel(QObject* parent = nullptr);
    ~CKTFMSortFilterProxyModel() override;

    /** Sets the source, which is borrowed. Of one that is no QFileSystemModel, rows are neither sorted nor
     * searched. */
    void setSourceModel(QAbstractItemModel* sourceModel) override;

    /**
     * Sets the host's order of names; borrowed, null for none. Rows stand as they are until the next sorting:
     * sort() does that for another column or direction, invalidate() for the present ones.
     */
    void SetInterface(CCustomSortInterface* pInterface);

    /** Whether the host's order is consulted; false at first. Rows stand as they are until the next sorting,
     * as for SetInterface. */
    void SetCustomSort(bool bCustom);

    /**
     * Sets the text that a shown name must contain, in any letter case; an empty one lets everything through.
     * Only the direct children of the source's root folder are filtered, folders like files.
     *
     * It takes effect with the proxy's next filtering: call invalidate() to have it at once.
     */
    void SetSearchTextFilter(const QString& strText);

protected:
    /** @return whether the shown name of a row holds the search text; true below the root folder's children
     */
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

    /** @return whether the row of @p left stands before that of @p right in ascending order */
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QModelIndex RootIndex(const QFileSystemModel& source) const;

    QString m_strSearchText;
    bool m_bCustomSort = false;
    CCustomSortInterface* m_pInterface = nullptr;
    std::unique_ptr<FileRowOrder> m_pOrder;
    mutable QString m_strRootPath; ///< what m_rootIndex is the index of
    mutable QPersistentModelIndex m_rootIndex;
};

#endif
