#ifndef KTFILEMANAGER2QU_H
#define KTFILEMANAGER2QU_H

/**
 * @file KTFileManager2QU.h
 * @brief Everything that a host may use of the library.
 */

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMCustomListModel.h>
#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMDummyIconProvider.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMListView.h>
#include <KTFileManager2QU/CKTFMSimpleTreeView.h>
#include <KTFileManager2QU/CKTFMSortFilterProxyModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFMTreeView.h>
#include <KTFileManager2QU/CKTFileManager.h>
#include <KTFileManager2QU/CProfile.h>
#include <KTFileManager2QU/CTitleBarView.h>
#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMInterfaces.h>
#include <KTFileManager2QU/KTFMTypes.h>
#include <KTFileManager2QU/TreeItem.h>
#include <KTFileManager2QU/TreeModel.h>

#endif
