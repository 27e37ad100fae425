#ifndef VANISHEDFOLDERS_H
#define VANISHEDFOLDERS_H

class QFileSystemModel;

/**
 * @file VanishedFolders.h
 * @brief Makes a file-system model drop a folder that vanishes while the model lists it.
 */
namespace VanishedFolders {

/**
 * Watches what @p model loads. The base follows the entries of each folder that it has listed, but when a
 * folder itself vanishes it learns of it only from the folder above, which it may never have listed; the
 * entries would then stay for ever. Here the nearest folder above that still exists is listed in that case.
 */
void Follow(QFileSystemModel& model);

} // namespace VanishedFolders

#endif
