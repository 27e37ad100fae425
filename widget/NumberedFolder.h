#ifndef NUMBEREDFOLDER_H
#define NUMBEREDFOLDER_H

#include <QModelIndex>

class QFileSystemModel;

/**
 * @file NumberedFolder.h
 * @brief Makes the folder that the user is about to name.
 */
namespace NumberedFolder {

/**
 * Makes a folder through @p model, under the first free name of @p start with 1, 2, 3 and so on behind it.
 *
 * @param parent the folder to make it in
 * @return the folder's index, invalid when none can be made: a try that fails although the name is free is
 * the last. Costs one try for each name that is taken.
 */
QModelIndex Make(QFileSystemModel& model, const QModelIndex& parent, const QString& start);

} // namespace NumberedFolder

#endif
