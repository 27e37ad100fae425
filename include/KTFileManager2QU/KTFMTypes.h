#ifndef KTFMTYPES_H
#define KTFMTYPES_H

#include <QtGlobal>

/**
 * @file KTFMTypes.h
 * @brief The vocabulary shared by the widget, its models and its views.
 *
 * All enumerations are plain ones over a 32-bit signed integer and are passed by value. An operation that
 * takes one accepts values that are not listed here and ignores them, unless it says otherwise.
 */

/** The layout of a pane, chosen once when the widget is constructed. */
enum EKTFMMode : int
{
    FM_MODE_TREE_AND_LIST = 0,      ///< folder tree on the left, file list on the right
    FM_MODE_TREE_ONLY = 1,          ///< folder tree alone
    FM_MODE_LIST_ONLY = 2,          ///< file list alone
    FM_MODE_ALIAS_TREE_AND_LIST = 3 ///< alias tree on the left, file list on the right
};

/**
 * One pane of the widget.
 *
 * The values are bits (1, 2, 4), so 3 names no pane. Callbacks and CKTFileManager::OnError number the alias
 * tree 3 instead; the two numberings are kept apart on purpose.
 */
enum EKTFMPart : int
{
    FM_PART_TREE = 1,      ///< the folder tree
    FM_PART_LIST = 2,      ///< the file list, in either of its two views
    FM_PART_ALIAS_TREE = 4 ///< the alias tree
};

/** How the file list is shown. */
enum EKTFMViewMode : int
{
    FM_VIEW_ICON = 0,      ///< icon grid, 60 x 60 icons
    FM_VIEW_DETAIL = 1,    ///< detail (column) view
    FM_VIEW_LARGE_ICON = 2 ///< icon grid, 125 x 125 icons
};

/**
 * Icon size presets of the file list; each sets the icon grid and the detail view together.
 *
 * The two large presets are alike on purpose; CKTFileManager::ToggleListIconSize cycles through
 * FM_ICON_LARGE, FM_ICON_MEDIUM and FM_ICON_SMALL only.
 */
enum EKTFMIconSize : int
{
    FM_ICON_HUGE = 0,      ///< grid 125 x 125, detail 50 x 50
    FM_ICON_TALL = 1,      ///< grid 110 x 120, detail 50 x 50
    FM_ICON_LARGE_ALT = 2, ///< grid 100 x 100, detail 50 x 50
    FM_ICON_LARGE = 3,     ///< grid 100 x 100, detail 50 x 50
    FM_ICON_MEDIUM = 4,    ///< grid 60 x 60, detail 40 x 40
    FM_ICON_SMALL = 5      ///< grid 40 x 40, detail 30 x 30
};

/** Presets of the grid margin, which is added to the icon size to make one cell of the icon grid. */
enum EKTFMGridSize : int
{
    FM_GRID_WIDE = 0,   ///< 40 x 40
    FM_GRID_NARROW = 1, ///< 20 x 20
    FM_GRID_COMPACT = 2 ///< 25 x 30
};

/** File commands for CKTFileManager::DoCommand. */
enum EKTFMCommand : int
{
    FM_CMD_COPY = 0,       ///< copy the selection to the clipboard
    FM_CMD_CUT = 1,        ///< cut the selection
    FM_CMD_PASTE = 2,      ///< paste into the current folder
    FM_CMD_DELETE = 3,     ///< delete the selection
    FM_CMD_SELECT_ALL = 4, ///< select every item of the list
    FM_CMD_RENAME = 5,     ///< start renaming the current item
    FM_CMD_NEW_FOLDER = 6  ///< create a new folder
};

/** Selection behaviour of the file list; the values are those of QAbstractItemView::SelectionMode. */
enum EKTFMSelectionMode : int
{
    FM_SELECTION_NONE = 0,      ///< nothing can be selected
    FM_SELECTION_SINGLE = 1,    ///< one item (at first)
    FM_SELECTION_MULTI = 2,     ///< a click selects an item and deselects it again
    FM_SELECTION_EXTENDED = 3,  ///< several items, with Shift and Ctrl
    FM_SELECTION_CONTIGUOUS = 4 ///< several items side by side, with Shift
};

/** The part of the widget that CKTFileManager::UpdateWnd repaints. */
enum EKTFMUpdateWidget : int
{
    FM_UPDATE_LIST_VIEW = 2 ///< the icon grid of the file list
};

/** Paint state of an item, whose colours CKTFileManager::SetItemDisplayInfo sets. */
enum EItemStatus : int
{
    ITEM_STATUS_HOVER = 0,   ///< the item under the mouse
    ITEM_STATUS_SELECTED = 1 ///< a selected item
};

/** How a model turns an item into its shown name. */
enum EKTFMShowStringMode : int
{
    FM_SHOW_STRING_FULL_NAME = 0, ///< the full name; the list's rename editor starts empty
    FM_SHOW_STRING_BASE_NAME = 1, ///< the host's text, else the name without a file's extension (the default)
    FM_SHOW_STRING_CALLBACK = 2,  ///< the host's text, else the full name
    FM_SHOW_STRING_INI = 3,       ///< the name from the INI name mapping
    FM_SHOW_STRING_CUSTOM = 4     ///< custom list model only: the host's text, else the item's text unchanged
};

/**
 * Operations that an alias tree item permits, as bits.
 *
 * An operation is allowed when the item's value and the operation have a bit in common. The library gives
 * a meaning to FM_OP_RENAME alone; the other bits are the host's.
 */
enum EKTFMOpType : int
{
    FM_OP_RENAME = 32 ///< the item's folder may be renamed
};

/** What stands apart from the pane: the INI profile reader and the outcomes of operations. */
namespace KT {

/** The outcome of an operation of the breadcrumb bar or of the INI profile reader. */
struct Result
{
    qint32 code = 0; ///< one of the Result… codes
};

constexpr qint32 ResultDone = 0;        ///< carried out
constexpr qint32 ResultNothingToDo = 1; ///< there was nothing to do (breadcrumb bar)
/** The file could not be loaded, or the value was not found (profile reader). */
constexpr qint32 ResultFailed = static_cast<qint32>(0x80000000U);
/** The named file does not exist (profile reader). */
constexpr qint32 ResultFileMissing = static_cast<qint32>(0x80000007U);

} // namespace KT

#endif
