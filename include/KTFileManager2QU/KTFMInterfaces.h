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
    /** An existing item of the file list was clicked or activated. */
    virtual void OnLButtonClickListItem(QString absolutePath) { Q_UNUSED(absolutePath) }

    /**
     * An existing item of the file list was double-clicked.
     * @param isFolder true when the widget has opened a folder, false for a file, which is the host's to open
     */
    virtual void OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
    {
        Q_UNUSED(absolutePath)
        Q_UNUSED(isFolder)
    }

    /** An existing folder of the folder tree was clicked or activated. */
    virtual void OnLButtonClickTreeItem(QString absolutePath) { Q_UNUSED(absolutePath) }

    /**
     * A context menu is requested; the host fills CKTFileManager::GetContextMenu() during this call.
     * @param pane 1 folder tree, 2 file list, 3 alias tree
     * @param onItem whether the pointer is over an item
     */
    virtual void OnShowPopupMenu(EKTFMMode pane, bool onItem)
    {
        Q_UNUSED(pane)
        Q_UNUSED(onItem)
    }

    /** The file list's selection changed. The indexes are those of the list views' model. */
    virtual void OnListViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
    {
        Q_UNUSED(selected)
        Q_UNUSED(deselected)
    }

    /** The folder tree's selection changed. The indexes are those of CKTFileManager::GetTreeModel(). */
    virtual void OnTreeViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
    {
        Q_UNUSED(selected)
        Q_UNUSED(deselected)
    }

    /** The file list shows another folder. */
    virtual void OnListViewRootPathChanged(const QString& newPath) { Q_UNUSED(newPath) }

    /** The folder tree has another root. */
    virtual void OnTreeViewRootPathChanged(const QString& newPath) { Q_UNUSED(newPath) }
};

/** Texts and images of the file list, set on CKTFMListModel and CKTFMCustomListModel. */
class CKTFMListModelInterface
{
public:
    /** @return the item's image; a null image leaves it to the model */
    virtual QImage HandleListviewDecorationRole(const QModelIndex& index) = 0;

    /** @return the item's shown name; an empty text leaves it to the model */
    virtual QString HandleListviewDisplayRole(const QModelIndex& index)
    {
        Q_UNUSED(index)
        return QString();
    }

    /** @return the item's tip; a null text (the default) leaves it to the model, an empty one means no tip */
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
    /** @return the folder's image; a null image leaves it to the model */
    virtual QImage HandleTreeviewDecorationRole(const QModelIndex& index) = 0;
};

/** Texts and images of the alias tree, set on CKTFMAliasTreeModel. */
class CKTFMAliasTreeModelInterface
{
public:
    /** @return the item's image; a null image leaves it to the model */
    virtual QImage HandleAliasTreeViewDecorationRole(const QModelIndex& index) = 0;

    /** @return the item's shown name; an empty text leaves it to the model */
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
    /** A context menu is requested in @p view, which handles the event as usual afterwards. */
    virtual void HandleContextMenuEvent(QWidget* view, QContextMenuEvent* event) = 0;
};

/** A host's own order of the name column, set on CKTFMSortFilterProxyModel. */
class CCustomSortInterface
{
public:
    /**
     * Compares two rows. The answers must make an order: the same for the same rows while a sort goes on, and
     * never true both ways round. The files are seen in one state throughout a sort.
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
    /** The button that stands for @p index was clicked. */
    virtual void OnTitleBarButtonClicked(const QModelIndex& index) = 0;

    /** The entry that stands for the folder @p path was chosen in a button's menu. */
    virtual void OnTitleBarMenuTriggered(const QString& path) = 0;

    /** @return the text and tool tip of the button for @p index */
    virtual QString GetTitleBarDisplayName(const QModelIndex& index) = 0;

    /** @return the folder that the button for @p index stands for */
    virtual QString GetTitleBarPath(const QModelIndex& index) = 0;

    /** @return the index of a folder, to label its menu entry; an invalid one keeps the folder's own name */
    virtual QModelIndex GetTitleBarIndexFromPath(const QString& path) = 0;
};

#endif
