#ifndef PANEVIEWS_H
#define PANEVIEWS_H

class CKTFileManager;
class QAbstractItemView;
class QAbstractProxyModel;
class QListView;
class QModelIndex;
class QTreeView;

/** The views inside a pane, for what a host wants of them beyond the pane's own operations. */
struct PaneViews
{
    explicit PaneViews(const CKTFileManager& pane);

    /** @return the view of the file list that is shown */
    QAbstractItemView* ShownList() const;

    /** @return the order in which both views of the file list show the list model */
    QAbstractProxyModel* Order() const;

    /** @return whether an item of the list model is in sight */
    bool Shows(const QModelIndex& listItem) const;

    QListView* grid = nullptr;
    QTreeView* details = nullptr;
    QTreeView* tree = nullptr;
    QTreeView* aliasTree = nullptr;
};

#endif
