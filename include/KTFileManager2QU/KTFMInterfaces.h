#ifndef KTFMINTERFACES_H
#define KTFMINTERFACES_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QImage>
#include <QModelIndex>
#include <QString>

class QContextMenuEvent;
class QFileInfo;
class QItemSelection;
class QWidget;

/**
 * @file KTFMInterfaces.h
 * @brief The callbacks by which a host supplies texts and images and hears of events.
 *
 * A host derives from an interface, owns the object and hands the library a raw pointer, which must stay
 * valid as long as the widget or model that it was given to. A null pointer means that the host handles
 * nothing there: the caller then does everything but the call. The interfaces have no virtual destructor:
 * an object is deleted through its own type. Every call comes on the GUI thread.
 */

/** Events of a CKTFileManager, set with CKTFileManager::SetCallBackInterface. Each does nothing by default.
 */
class CKTFMInterface
{
public:
    /**
     * An existing item of the file list was clicked or activated. A double click gives another one at its
     * end, for the activation.
     * @param absolutePath the item's path, with "/" separators
     */
    virtual void OnLButtonClickListItem(QString absolutePath) { Q_UNUSED(absolutePath) }

    /**
     * An existing item of the file list was double-clicked.
     * @param absolutePath the item's path, with "/" separators
     * @param isFolder true when the widget has opened a folder, false for a file, which is the host's to open
     */
    virtual void OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
    {
        Q_UNUSED(absolutePath)
        Q_UNUSED(isFolder)
    }

    /**
     * An existing folder of the folder tree was clicked or activated; the file list shows it afterwards.
     * @param absolutePath the folder's path, with "/" separators
     */
    virtual void OnLButtonClickTreeItem(QString absolutePath) { Q_UNUSED(absolutePath) }

    /**
     * A context menu is requested; the host fills CKTFileManager::GetContextMenu() during this call. It may
     * do anything here, deleting the widget included.
     * @param pane 1 folder tree, 2 file list, 3 alias tree
     * @param onItem whether the pointer is over an item
     */
    virtual void OnShowPopupMenu(EKTFMMode pane, bool onItem)
    {
        Q_UNUSED(pane)
        Q_UNUSED(onItem)
    }

    /**
     * The file list's selection changed. The widget is in the middle of its own work: what changes folder or
     * selection is to be put off.
     * @param selected what is selected now and was not, as indexes of the list views' model
     * @param deselected what was selected and is not any more
     */
    virtual void OnListViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
    {
        Q_UNUSED(selected)
        Q_UNUSED(deselected)
    }

    /**
     * The folder tree's selection changed; that of the file list is empty by now. See
     * OnListViewSelectionChanged.
     * @param selected what is selected now and was not, as indexes of CKTFileManager::GetTreeModel()
     * @param deselected what was selected and is not any more
     */
    virtual void OnTreeViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
    {
        Q_UNUSED(selected)
        Q_UNUSED(deselected)
    }

    /**
     * The file list gets another folder. The widget is in the middle of showing it: navigation is to be put
     * off.
     * @param newPath the folder's path
     */
    virtual void OnListViewRootPathChanged(const QString& newPath) { Q_UNUSED(newPath) }

    /**
     * The folder tree gets another root. See OnListViewRootPathChanged.
     * @param newPath the root's path
     */
    virtual void OnTreeViewRootPathChanged(const QString& newPath) { Q_UNUSED(newPath) }
};

/** Texts and images of the file list, set on CKTFMListModel and CKTFMCustomListModel. */
class CKTFMListModelInterface
{
public:
    /**
     * Asked for each column of a table: answer a null image for all but the first to have one image a row. It
     * is asked at each painting; an image that is kept, rather than made anew, is converted once.
     * @param index one of the model, in any column
     * @return the item's image; a null image leaves it to the model
     */
    virtual QImage HandleListviewDecorationRole(const QModelIndex& index) = 0;

    /**
     * Asked at each paint and for each item of a folder that is sorted.
     * @param index one of the model, in column 0
     * @return the item's shown name; an empty text leaves it to the model
     */
    virtual QString HandleListviewDisplayRole(const QModelIndex& index)
    {
        Q_UNUSED(index)
        return QString();
    }

    /**
     * @param index one of the model, in column 0
     * @return the item's tip; a null text (the default) leaves it to the model, an empty one means no tip
     */
    virtual QString HandleListviewToolTipRole(const QModelIndex& index)
    {
        Q_UNUSED(index)
        return QString();
    }
};

/** Images of the folder tree, set on CKTFMTreeModel. */
class CKTFMTreeModelInterface
{
public:
    /**
     * Asked at each paint, so to be answered from memory, with the same QImage object each time.
     * @param index one of the model, in any column
     * @return the folder's image; a null image leaves it to the model
     */
    virtual QImage HandleTreeviewDecorationRole(const QModelIndex& index) = 0;
};

/** Texts and images of the alias tree, set on CKTFMAliasTreeModel. */
class CKTFMAliasTreeModelInterface
{
public:
    /**
     * Asked at each paint, so to be answered from memory, with the same QImage object each time.
     * @param index one of the model, in any column
     * @return the item's image; with a null image it has none
     */
    virtual QImage HandleAliasTreeViewDecorationRole(const QModelIndex& index) = 0;

    /**
     * @param index one of the model, in column 0
     * @return the item's shown name; an empty text leaves it to the model
     */
    virtual QString HandleAliasTreeViewDisplayRole(const QModelIndex& index)
    {
        Q_UNUSED(index)
        return QString();
    }
};

/** Right clicks on the exported views, set with their SetContextMenuHandleInterface. */
class CKTFMContextMenuHandleInterface
{
public:
    /**
     * A context menu is requested.
     * @param view the view, which leaves the event to its parent widget afterwards; it must not be deleted
     * here
     * @param event what was requested, with the position in the view and on the screen
     */
    virtual void HandleContextMenuEvent(QWidget* view, QContextMenuEvent* event) = 0;
};

/** A host's own order of the name column, set on CKTFMSortFilterProxyModel. */
class CCustomSortInterface
{
public:
    /**
     * Compares two rows. The answers must make an order: the same for the same rows while a sort goes on, and
     * never true both ways round. The files are seen in one state throughout a sort. A file's name and suffix
     * cost nothing; any other fact is looked up on disk when it is first asked for in a sort.
     *
     * The built-in rule shows names from A to Z in descending order. To show the host's order as it is, sort
     * with Qt::AscendingOrder; rows that it leaves to the built-in rule then run from Z to A.
     * @param left,right the files of the two rows
     * @param handled false on entry; set it to true to have the returned value taken as the answer, leave it
     *        to have the rows compared by the built-in rule
     * @return whether @p left sorts before @p right in ascending order
     */
    virtual bool CustomLessThan(const QFileInfo& left, const QFileInfo& right, bool& handled) = 0;
};

/** The folders behind a breadcrumb bar (CTitleBarView) and what the user chose in it. */
class CTitleBarSlotInterface
{
public:
    /**
     * A button was clicked. The host may do anything here, deleting the bar included.
     * @param index the folder that the button stands for
     */
    virtual void OnTitleBarButtonClicked(const QModelIndex& index) = 0;

    /**
     * A folder was chosen in a button's menu. The host may do anything here, deleting the bar included.
     * @param path the folder's path
     */
    virtual void OnTitleBarMenuTriggered(const QString& path) = 0;

    /**
     * @param index one that the bar was given, one above it, or one that GetTitleBarIndexFromPath answered
     * @return the text and tool tip of the folder's button or menu entry
     */
    virtual QString GetTitleBarDisplayName(const QModelIndex& index) = 0;

    /**
     * @param index one that the bar was given, or one above it
     * @return the path of the folder that its button stands for
     */
    virtual QString GetTitleBarPath(const QModelIndex& index) = 0;

    /**
     * @param path the path of a sub-folder
     * @return the index of the folder, to label its menu entry; an invalid one keeps the folder's own name
     */
    virtual QModelIndex GetTitleBarIndexFromPath(const QString& path) = 0;
};

#endif
