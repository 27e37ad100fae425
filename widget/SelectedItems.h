#ifndef SELECTEDITEMS_H
#define SELECTEDITEMS_H

#include <QModelIndex>
#include <QStringList>
#include <QVector>

class QFileSystemModel;
class QItemSelectionModel;

/**
 * @file SelectedItems.h
 * @brief What is selected in the file list, and the paths of it.
 */
namespace SelectedItems {

/**
 * What QItemSelectionModel::selectedRows gives or, where that is nothing,
 * QItemSelectionModel::selectedIndexes: the grid may select items that are no whole rows.
 *
 * @return the first cell of each row that is selected from end to end, else all selected cells; in the order
 * of selection. The cost is linear, where that of selectedRows grows with the square of a selection that has
 * many gaps.
 */
QModelIndexList Of(const QItemSelectionModel& selection);

/**
 * @param items items of @p model
 * @param folder the folder that most of them are in; their paths need no look at the folders above
 * @return what QFileSystemModel::filePath answers for each item, in their order, each path once. The cost is
 *         linear.
 */
QStringList Paths(const QFileSystemModel& model, const QVector<QModelIndex>& items,
                  const QModelIndex& folder);

} // namespace SelectedItems

#endif
