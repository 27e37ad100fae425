#ifndef FIRSTCOLUMNTREE_H
#define FIRSTCOLUMNTREE_H

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>

/**
 * A tree model as QAbstractItemModelTester wants it.
 *
 * In a TreeModel every column of a row has the row's children, on purpose; the tester insists that only the
 * first has them. This proxy leaves that one check out by hiding the children of the other columns; all
 * others go through to the model.
 */
class FirstColumnTree : public QIdentityProxyModel
{
public:
    /** Watches @p model from now on, as its child; every violation fails the running test. */
    static void Watch(QAbstractItemModel* model)
    {
        auto* tree = new FirstColumnTree(model);
        new QAbstractItemModelTester(tree, QAbstractItemModelTester::FailureReportingMode::QtTest, tree);
    }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : QIdentityProxyModel::rowCount(parent);
    }

    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.column() <= 0 && QIdentityProxyModel::hasChildren(parent);
    }

private:
    explicit FirstColumnTree(QAbstractItemModel* model) : QIdentityProxyModel(model)
    {
        setSourceModel(model);
    }
};

#endif
