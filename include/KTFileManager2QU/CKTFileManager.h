#ifndef CKTFILEMANAGER_H
#define CKTFILEMANAGER_H

#include <KTFileManager2QU/KTFMExport.h>
#include <KTFileManager2QU/KTFMTypes.h>

#include <QColor>
#include <QDir>
#include <QHash>
#include <QList>
#include <QModelIndex>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QWidget>

class CKTFMAliasTreeModel;
class CKTFMAliasTreeModelInterface;
class CKTFMDelegate;
class CKTFMInterface;
class CKTFMListModel;
class CKTFMListModelInterface;
class CKTFMTreeModel;
class CKTFMTreeModelInterface;
class CKTListView;
class CKTTreeView;
class CMySortFilterProxyModel;
class QAbstractItemView;
class QFileSystemModel;
class QFileSystemWatcher;
class QItemSelection;
class QItemSelectionModel;
class QMenu;
class QSplitter;
class QStackedWidget;
class QTreeView;
class QUrl;

/**
 * A complete file-manager pane.
 *
 * One widget holds a folder tree, a file list that is shown as a grid of thumbnails or as a table of details,
 * and an alias tree of named categories; EKTFMMode says which of them are seen. The panes are kept in step: a
 * folder opened in one is shown by the others.
 *
 * A host creates the widget, hands it the callbacks by which it supplies texts and images and hears of events
 * (SetCallBackInterface), and points it at a folder (SetDirectory).
 *
 * Ownership: views, menu, proxy and watcher die with the widget. The three models are created without a
 * parent and are never deleted by the widget: they may be used on after it. A host that has no such use takes
 * them from GetListModel(), GetTreeModel() and GetAliasTreeModel() and deletes them after the widget.
 * Callbacks and the parent of message boxes are borrowed.
 *
 * Settings of highlights, names and tips are stored for the next paint and emit nothing: a host that changes
 * them while the pane is shown paints the views anew (UpdateWnd for the grid).
 *
 * Everything runs on the GUI thread.
 */
class KTFM_EXPORT CKTFileManager : public QWidget
{
    Q_OBJECT

public:
    /**
     * Builds the pane, usable at once. It shows no folder until SetDirectory.
     *
     * @param parent owns the widget, as usual with Qt; null for a window of its own
     * @param rect the widget's geometry within @p parent, in pixels
     * @param mode the layout; it never changes. A value beyond the enumeration's shows all three panes.
     * @param leftPanePercent the share of the width that the left pane gets where there are two; the list
     * gets the rest
     * @param showExtension whether a file whose name is not found in the mapping file is shown with its
     *        extension (CKTFMListModel::SetUnfoundINIShowExtName)
     */
    CKTFileManager(QWidget* parent, QRect rect, EKTFMMode mode, int leftPanePercent, bool showExtension);

    /** Leaves the three models alive. */
    ~CKTFileManager() override;

    /** @return the model of the file list; the list views show it through a proxy of their own */
    CKTFMListModel* GetListModel() const;

    /**
     * @return the model of the folder tree. In a mode without one it lists no folders, to save the work: see
     *         CKTFMTreeModel::SetListsFolders.
     */
    CKTFMTreeModel* GetTreeModel() const;

    /** @return the model of the alias tree */
    CKTFMAliasTreeModel* GetAliasTreeModel() const;

    /** @return the view of the alias tree */
    QTreeView* GetAliasTreeView() const;

    /** @return what paints and edits the thumbnails; the table of details keeps Qt's own delegate */
    CKTFMDelegate* GetListViewDelegate() const;

    /** @return the menu shown on a right click, which the host fills; it is not shown while it is empty */
    QMenu* GetContextMenu() const;

    /**
     * @return the stored view mode. It starts as FM_VIEW_DETAIL although the grid is shown, on purpose: the
     *         first ToggleListViewMode therefore shows the grid.
     */
    EKTFMViewMode GetViewMode() const;

    /** @return whether drags from the table of details offer every action instead of copying alone */
    bool IsCustomViewMode() const;

    /** Sets whether drags from the table of details offer every action; false at first. */
    void SetCustomViewMode(bool custom);

    /** Sets the parent of the message boxes that file commands show; borrowed, null at first. */
    void SetParentForMsgBox(QWidget* parent);

    /**
     * Names the pane that file commands act on; clicks and context menus set it too. The list at first.
     * @param part one pane
     */
    void SetLastMenuFrom(EKTFMPart part);

    /**
     * Sets the host's callbacks: the widget's own and those of the three models. All are borrowed, must live
     * as long as the widget and its models, and may be null.
     * @param fm hears of events
     * @param tree is asked for images of the folder tree
     * @param list is asked for images, names and tips of the file list
     * @param alias is asked for images and names of the alias tree
     */
    void SetCallBackInterface(CKTFMInterface* fm, CKTFMTreeModelInterface* tree,
                              CKTFMListModelInterface* list, CKTFMAliasTreeModelInterface* alias);

    /** @return the size of the grid's images, in pixels */
    QSize GetListIconSize() const;

    /** @return the size of the images in the table of details, in pixels */
    QSize GetDetailIconSize() const;

    /** @return 100 x 100, although presets reach 125 x 125 */
    QSize GetMaxIconSize() const;

    /**
     * Repaints the grid, as a host wants when it has new images for it.
     * @param widget FM_UPDATE_LIST_VIEW; other values do nothing
     */
    void UpdateWnd(EKTFMUpdateWidget widget);

    /**
     * Installs an event filter on the two views of the file list.
     * @param filter as for QObject::installEventFilter; borrowed
     */
    void InstallEventFilter(QObject* filter);

    /**
     * Shows the file list as @p mode says and stores the mode.
     *
     * A grid mode resets the grid margin to 40 x 40 after it has been used once, and sorts by name. Showing
     * the details selects whole rows and leaves icon sizes and grid alone. Other values are stored only.
     */
    void SetViewMode(EKTFMViewMode mode);

    /**
     * Sets the icon size preset of grid and details; values beyond the presets are stored only. The columns
     * of the grid are spread at the next CalculateItemPosition.
     */
    void SetIconSize(EKTFMIconSize size);

    /**
     * Sets the grid margin of a preset, to be used by the next change of icon size or view mode, or by
     * CalculateItemPosition.
     * @param size the preset; other values change nothing
     */
    void SetGridSize(EKTFMGridSize size);

    /**
     * Sets the grid margin, to be used like that of SetGridSize.
     * @param width,height what a cell is larger than its image, in pixels
     */
    void SetGridMargin(int width, int height);

    /**
     * Spreads the columns of the grid evenly over the width of its view; done when the widget is resized or
     * shown. It does nothing while the details are shown, or when a cell would have no width.
     */
    void CalculateItemPosition();

    /** Sets the selection behaviour of the file list. @return true, also for a value that changes nothing */
    bool SetSelectionMode(EKTFMSelectionMode mode);

    /** Sets the name filters of the file list, such as "*.png"; an empty list is ignored. */
    void SetFilter(QStringList filters);

    /**
     * Makes a folder the root of the folder tree.
     *
     * The first call shows the tree alone; each later one also makes the folder the tree's current one and
     * shows it in the file list. To fill the list right away, call it twice. A folder that does not exist
     * leaves the tree as it is, an empty path shows the drives in the tree alone.
     * @return true
     */
    bool SetDirectory(QString path);

    /** Shows the folder of a tree-model index in the file list and focuses it; nothing if it does not exist.
     */
    void SelectTreeItem(const QModelIndex& treeIndex);

    /**
     * Moves the folder tree's current item one level up and shows that folder in the file list.
     * @return the absolute path of the folder; empty when nothing is above the current item, which then stays
     */
    QString GoToParentFolder();

    /**
     * Makes the n-th file of the listed folder current, as if it had been clicked.
     *
     * Files are counted from 0 in the order of the disk, folders and links left out; from the last one when
     * the header of the table of details shows a descending order. Linear in the folder's entries.
     * @return false when there is no such file
     */
    bool SetCurrentSelection(int n);

    /**
     * Makes an item of the file list current, in the view that is shown.
     *
     * @param path the item's path
     * @param notify whether the host is told as if the item had been clicked
     * @param edit whether to start renaming it
     * @return false when the model does not list @p path; the selection is then cleared
     */
    bool SetCurrentSelection(QString path, bool notify, bool edit);

    /** Clears the selection of the file list. */
    void ClearCurrentSelection();

    /**
     * @return the current folder of a pane. For the file list this is the current folder of the tree; for a
     *         value that names no pane it is empty.
     */
    QString GetCurSelectedFolder(EKTFMPart part) const;

    /** @return the current index of the alias tree */
    QModelIndex GetCurSelectedAliasIndex() const;

    /** @return whether the folder tree or a view of the file list is this widget's focus widget */
    bool IsFocus() const;

    /**
     * @return the paths of the selected items of the file list, each once, or, when @p fromList is false, of
     *         the folder tree, there once for each selected cell; both in the order of selection. Linear in
     *         the selection.
     */
    QStringList GetCurSelectedFileList(bool fromList) const;

    /**
     * @return every file below the listed folder whose name matches @p nameFilters. Reads all the folders
     * below, without following links.
     * @param nameFilters patterns such as "*.png"; an empty list matches every file
     */
    QStringList GetAllFilePathFromListView(const QStringList& nameFilters) const;

    /**
     * Sets the background of the folder tree and of both views of the file list by style sheets; the alias
     * tree keeps its own. The views get the object names "pTreeView", "pListView" and "pListDetailView", for
     * style sheets of the host.
     * @param treeColor the folder tree's background
     * @param listColor that of both views of the file list
     */
    void SetBgColor(QColor treeColor, QColor listColor);

    /**
     * Styles a scroll bar of the icon grid.
     * @param vertical which bar
     * @param width the thickness of the vertical bar, in pixels
     * @param height the thickness of the horizontal bar, in pixels
     * @param color stands in the style sheet with an opacity of 0, on purpose, and so is not seen
     */
    void SetListviewScrollBarStyle(bool vertical, int width, int height, QColor color);

    /** Styles a scroll bar of the table of details, like SetListviewScrollBarStyle. */
    void SetDetailviewScrollBarStyle(bool vertical, int width, int height, QColor color);

    /** Lets the grid fill rows and scroll vertically, or fill columns and scroll horizontally. */
    void SetListviewScrollBarDirection(bool vertical);

    /**
     * Sets the highlight of hovered or selected thumbnails: see CKTFMDelegate::SetItemHoverColor.
     * @param status which of the two
     * @param c1,c2 the ends of the gradient, top and bottom
     * @param c3 the frame, one pixel wide
     * @param n the radius of the corners, in pixels
     */
    void SetItemDisplayInfo(EItemStatus status, QColor c1, QColor c2, QColor c3, int n);

    /**
     * Sets the border around each thumbnail.
     * @param width,height pixels on each side; negative ones count as 0
     */
    void SetItemBorder(int width, int height);

    /**
     * Sets the height of a thumbnail's name.
     * @param ratio lines of its font; 2 at first
     */
    void SetHeightRatioOfTextArea(float ratio);

    /** Whether the thumbnails of files have a grey backdrop. */
    void SetThumbnailDrawOutline(bool draw);

    /**
     * Switches interactions on or off for panes.
     * @param parts a set of EKTFMPart bits
     * @param flags a set of bits: 1 renaming, 2 tool tips, 4 dragging; all are off at first
     * @param on whether they are switched on or off; others stay as they are
     */
    void SetFlagStatus(int parts, int flags, bool on);

    /**
     * Sets how a pane's names are shown.
     * @param part one pane
     * @param mode FM_SHOW_STRING_BASE_NAME at first
     */
    void SetFMViewShowStringMode(EKTFMPart part, EKTFMShowStringMode mode);

    /**
     * Sets the INI file and section that a pane's names are mapped through. The alias tree takes its sections
     * from its items and passes over @p section.
     *
     * The file is read at once, and again only when another path is set. One that cannot be read is not
     * reported: its names count as not found.
     * @param part one pane; its names are shown by FM_SHOW_STRING_INI from now on
     * @param file the path; a null one changes nothing
     * @param section the section's name; a null one leaves it as it was
     */
    void SetFilenameMappingINIFile(EKTFMPart part, const QString& file, const QString& section);

    /**
     * Sets the section alone.
     * @param part FM_PART_TREE or FM_PART_LIST; others change nothing
     * @param section the section's name; a null one changes nothing
     */
    void SetFilenameMappingINISection(EKTFMPart part, const QString& section);

    /**
     * Loads the table of the alias tree, scans the folders of its top-level items and shows them expanded.
     *
     * @param strFile the name of an existing file, which is read as UTF-8, or else the table's text itself:
     * an item a line, its depth by leading spaces, its columns (label, folder, whether the folder is scanned
     *        and watched, allowed operations, INI section, host data) separated by tabs
     * @return false for a file that cannot be read; tree and watches then stay as they were
     */
    bool PopulateAliasTable(const QString& strFile);

    /**
     * Brings the children of an alias tree item in step with the sub-folders of its folder. Linear in both.
     *
     * A sub-folder without an item gets one; hidden folders and links get none. An item whose label is no
     * sub-folder's name is removed, but of two such items in a row only the first: the next scan removes the
     * other. In an expanded branch new items are scanned and watched at once. Nothing
     * changes when the item may not be watched, has no folder, or the folder is gone or cannot be read.
     * @param index any cell of the item
     */
    void ScanForAliasTreeDirectories(const QModelIndex& index);

    /** Makes an item of the alias tree current. @return false for an invalid index */
    bool SetCurrentAliasTreeSelection(const QModelIndex& index);

    /**
     * Finds the item that maps to a folder, in any letter case, and makes it current. Branches are expanded,
     * and so scanned, along the search and stay so when it fails. It goes 2048 levels deep, more than a path
     * has.
     *
     * @param strPath the folder
     * @param start where to search; an invalid index stands for the first top-level item alone
     * @return whether it was found. The last two arguments are accepted and passed over.
     */
    bool SetCurrentAliasTreeSelection(QString strPath, const QModelIndex& start, bool, bool);

    /**
     * Runs a file command on the pane that was clicked last (SetLastMenuFrom).
     *
     * A command runs to its end before it returns; there is no undo and no recycle bin, and a deletion asks
     * no one. Only a paste asks: once for each item whose name is taken, in an event loop of its own. What
     * fails on disk is skipped without a message.
     *
     * - Copy and cut put the selected items on the clipboard as URLs; copying with nothing selected changes
     *   nothing. Links are taken as themselves: a copy holds what they show.
     * - Paste copies the URLs of the clipboard into the list's folder or the current alias folder. From a
     *   cut of this widget until its next copy it moves them, whoever put them there. An item pasted into
     *   its own folder is copied under another name. It ends quietly when the pane is destroyed, when the
     *   clipboard changes, or when another paste begins while it asks.
     * - Delete removes the selected items of the list, also after a click into the folder tree, or the
     *   current alias folder. Links are removed as themselves, file-system roots never.
     * - Select all selects the list's items, whichever pane was clicked.
     * - Rename and new folder open an editor where the items are renamable; a new folder is made in the
     *   folder tree's current one, and the list becomes the pane that commands act on.
     *
     * @return whether the command was run: false for a copy of nothing, for a paste that has no writable
     *         folder, that would paste a folder into itself or that did not get its answers, for a folder
     *         that could not be made, and for a value that is no command
     */
    bool DoCommand(EKTFMCommand eCommand);

    /** @return whether the clipboard holds URLs, of whatever kind */
    bool IsPasteable();

    /**
     * @param widget any widget
     * @param globalPos a point on the screen, in pixels
     * @return whether the point lies in the widget's rectangle, edges included, whether or not the widget is
     * seen
     */
    bool IsGlobalPositionInWidget(const QWidget* widget, const QPoint& globalPos) const;

public Q_SLOTS:
    /** Tells the host of a right click, by pane, and shows the context menu unless it is empty. */
    void contextMenuEvent(QContextMenuEvent* pContextMenuEvent) override;

    /** Cycles the view mode: grid, large grid, details. */
    void ToggleListViewMode();

    /** Cycles the presets FM_ICON_LARGE, FM_ICON_MEDIUM, FM_ICON_SMALL; from another one it changes nothing.
     */
    void ToggleListIconSize();

    /** An item of the file list was clicked or activated. @param index an index of the list views' model */
    void OnListClicked(const QModelIndex& index);

    /** An item of the file list was double-clicked: a folder is opened in every pane, a file left to the
     * host. */
    void OnListDblClicked(const QModelIndex& index);

    /** A folder of the tree was clicked or activated: it is shown in the file list. */
    void OnTreeClicked(const QModelIndex& index);

    /** An item of the alias tree was clicked or activated: its folder is shown in the file list. */
    void OnAliasTreeClicked(const QModelIndex& index);

    /**
     * An item of the alias tree was double-clicked: its branch is no longer watched while it may be renamed.
     * When no editor opens, it is watched again as soon as control has returned to the event loop.
     */
    void OnAliasTreeDblClicked(const QModelIndex& index);

    /** Relays a changed selection of the file list to the host. */
    void OnListViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);

    /** Clears the file list's selection and relays the tree's to the host. */
    void OnTreeViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);

    /** The alias tree's selection changed. No callback hears of it: hosts use the view's selection model. */
    void OnAliasTreeViewSelectionChanged(const QItemSelection& selected, const QItemSelection& deselected);

    /** Relays the list's new folder to the host. */
    void OnListViewRootPathChanged(const QString& newPath);

    /** Relays the tree's new root to the host. */
    void OnTreeViewRootPathChanged(const QString& newPath);

    /** Relays a refused rename of the list. */
    void OnListRenameFileError(int error);

    /** Relays a refused rename of the tree. */
    void OnTreeRenameFileError(int error);

    /** Relays a refused rename of the alias tree. */
    void OnAliasTreeRenameFileError(int error);

    /** A watched folder changed: every alias tree item that maps to it is scanned again. */
    void OnDirectoryChanged(const QString& path);

    /** A branch of the alias tree was expanded: its children are scanned and watched. */
    void OnAliasTreeExpand(const QModelIndex& index);

    /** A branch of the alias tree was collapsed: what is below it is no longer watched. */
    void OnAliasTreeCollapsed(const QModelIndex& index);

    /**
     * An edit in the alias tree has ended, renamed or not: the current item is read again from the disk.
     * Where its parent's folder is scanned it gets a new row, behind its siblings; else it keeps its row. Its
     * folder is shown in the file list.
     */
    void OnAliasTreeCloseEditor();

Q_SIGNALS:
    /**
     * Something that the user asked for failed.
     * @param nFrom the pane: 1 folder tree, 2 file list, 3 alias tree
     * @param nActionID the operation: 0 rename
     * @param nErrorID 0 the new name exists, 1 it is invalid or the file system refused it
     */
    void OnError(int nFrom, int nActionID, int nErrorID);

protected:
    /** Spreads the columns of the grid: see CalculateItemPosition. */
    void resizeEvent(QResizeEvent* event) override;

    /** Spreads the columns of the grid: see CalculateItemPosition. */
    void showEvent(QShowEvent* event) override;

private:
    struct MenuPane;
    struct Selected;

    /** What becomes of alias tree items whose watches end: those that are kept still count for each other. */
    enum class AliasFate
    {
        Kept,
        Removed
    };

    void CreateTreeView();
    void CreateListView();
    void CreateDetailView();
    void CreateViewStack();
    void CreateAliasTreeView();
    void CreateLayout(const QRect& rect, int leftPanePercent);
    void ArrangePanes(QSplitter* splitter, int leftPanePercent);
    void CreateModels(bool showExtension);
    void CreateProxy();
    void CreateDelegate();
    void ApplyInitialSizes();
    void ShareSelection();
    void ConnectViews();
    void ConnectSelections();
    void ConnectModels();
    void ConnectAliasTree();
    void HideTopLevelRows();

    void RelayError(int pane, int error);
    void SetIconSizes(const QSize& listSize, const QSize& detailSize);
    void TellDetailIconWidth();
    void ShowDetails();
    void ShowGrid(const QSize& listSize, const QSize& detailSize, EKTFMIconSize preset);

    QModelIndex MapToSource(QModelIndex index) const;
    QModelIndex MapFromSource(QModelIndex index) const;
    void RefreshModel(QFileSystemModel* model, QDir::Filters through);
    QModelIndex SetTreeRootPath(const QString& path);
    void ShowInList(const QString& path);
    void OpenFolder(const QString& path);
    void ShowFolder(const QString& path);
    QAbstractItemView* ShownListView() const;
    void TellHostOfMenu(const QPoint& globalPos);

    bool CopyFiles();
    bool CutFiles();
    bool Paste();
    bool PasteFiles(QList<QUrl> urls, QString strDestFolder);
    bool CopyFolder(QString strSrc, QString strDest, bool bCut);
    bool CutCopyFile(QString strSrc, QString strDest, bool bCut);
    bool DeleteFiles();
    bool DeleteDirectory(QString strPath);
    bool NewFolder(bool bInList);
    bool Rename(bool);
    bool SelectAll();

    QModelIndexList SelectedListItems() const;
    QStringList PathsOfSelected(const QModelIndexList& selected) const;
    Selected SelectedForCommand() const;
    QString PasteDestination() const;
    QModelIndex UnwatchAliasOf(const QString& folder);
    QModelIndex LeaveAliasFolder();
    void RenameAlias();

    void AddPathForFileSystemWatch(const QModelIndex& index);
    void RemovePathForFileSystemWatch(const QModelIndex& index);
    void ClearPathesForFileSystemWatcher();
    void Watch(const QModelIndexList& items);
    void Unwatch(const QModelIndexList& items, AliasFate fate);
    bool IsAliasSeen(const QModelIndex& item) const;
    QHash<QString, int> SeenAliasFolders() const;
    bool CanScanAlias(const QModelIndex& index) const;
    QModelIndexList AliasChildren(const QModelIndex& index) const;
    void AddScannedFolders(const QPersistentModelIndex& index, const QStringList& names);
    void RemoveUnlistedFolders(const QPersistentModelIndex& index, const QStringList& names);
    void RemoveAliasItems(const QModelIndexList& siblings);
    void PrepareAliasEdit(const QModelIndex& index);
    bool ReadAgainFromParent(const QPersistentModelIndex& item, bool expanded);

    QWidget* m_pMsgBoxParent = nullptr;
    QStackedWidget* m_pViewStack = nullptr;
    CKTListView* m_pListView = nullptr;
    CKTTreeView* m_pDetailView = nullptr;
    QTreeView* m_pTreeView = nullptr;
    QTreeView* m_pAliasTreeView = nullptr;
    EKTFMMode m_eMode;
    CKTFMListModel* m_pListModel = nullptr;
    CKTFMTreeModel* m_pTreeModel = nullptr;
    CKTFMAliasTreeModel* m_pAliasTreeModel = nullptr;
    CKTFMInterface* m_pInterface = nullptr;
    CKTFMDelegate* m_pDelegate = nullptr;
    QItemSelectionModel* m_pListSelectionModel = nullptr;
    QItemSelectionModel* m_pTreeSelectionModel = nullptr;
    QItemSelectionModel* m_pDetailSelectionModel = nullptr; ///< spare, used while the shared one is cleared
    QItemSelectionModel* m_pAliasSelectionModel = nullptr;
    CMySortFilterProxyModel* m_pProxy = nullptr;
    EKTFMIconSize m_eIconSize = FM_ICON_SMALL;
    QMenu* m_pContextMenu = nullptr;
    QSize m_gridMargin;
    QFileSystemWatcher* m_pWatcher = nullptr;
    EKTFMPart m_eLastMenuFrom = FM_PART_LIST;
    bool m_bCustomViewMode = false;
    EKTFMViewMode m_eViewMode = FM_VIEW_DETAIL;
    QStringList m_cutPaths; ///< the items of the last cut, until they have been pasted
    bool m_bCut = false;    ///< whether a paste moves; a finished paste leaves it set
};

#endif
