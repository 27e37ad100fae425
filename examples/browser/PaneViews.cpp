#include "PaneViews.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAbstractProxyModel>
#include <QTreeView>

PaneViews::PaneViews(const CKTFileManager& pane)
    : grid(pane.findChild<QListView*>()),
      aliasTree(pane.GetAliasTreeView())
{
    const auto trees = pane.findChildren<QTreeView*>();
    for (QTreeView* view : trees) {
        if (view->model() == grid->model())
            details = view;
        else if (view->model() == pane.GetTreeModel())
            tree = view;
    }
}

QAbstractItemView* PaneViews::ShownList() const
{
    return grid->isHidden() ? static_cast<QAbstractItemView*>(details) : grid;
}

QAbstractProxyModel* PaneViews::Order() const
{
    return qobject_cast<QAbstractProxyModel*>(grid->model());
}

bool PaneViews::Shows(const QModelIndex& listItem) const
{
    const QAbstractItemView* view = ShownList();
    const QModelIndex item = Order()->mapFromSource(listItem);
    return view->isVisible() && item.isValid() && item.parent() == view->rootIndex() &&
           view->viewport()->rect().intersects(view->visualRect(item));
}
