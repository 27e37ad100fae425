#ifndef CMYSORTFILTERPROXYMODEL_H
#define CMYSORTFILTERPROXYMODEL_H

#include <QSortFilterProxyModel>

#include <memory>

class FileRowOrder;

/** The proxy of the widget's file list: sorts a file-system model in the order of FileRowOrder, filters
 * nothing. */
class CMySortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CMySortFilterProxyModel(QObject* parent = nullptr);
    ~CMySortFilterProxyModel() override;

    void setSourceModel(QAbstractItemModel* sourceModel) override;

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    std::unique_ptr<FileRowOrder> m_pOrder;
};

#endif
