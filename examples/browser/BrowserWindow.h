#ifndef BROWSERWINDOW_H
#define BROWSERWINDOW_H

#include "PaneViews.h"

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QMainWindow>

#include <memory>

class CKTFileManager;
class CategoryIcons;
class CommandActions;
class EmptyHint;
class FolderNavigator;
class ListSummary;
class LocationBar;
class NavigationActions;
class StatusLine;
class ThumbnailQueue;
class Thumbnails;
class ViewActions;
struct IniSection;
struct Options;

/**
 * A small file manager around one pane.
 *
 * It shows what a host does: it creates the pane, hands it its callbacks, points it at a folder, and gives
 * the user menus, buttons and keys for what the pane can do. Each concern has a class of its own; this one
 * puts them together.
 */
class BrowserWindow : public QMainWindow, private CKTFMInterface
{
    Q_OBJECT

public:
    explicit BrowserWindow(const Options& options);
    ~BrowserWindow() override;

    /**
     * Shows a folder in tree and list; one that does not exist is told in the status bar.
     * @param selected the path of an item to select when the folder is listed; empty for none
     */
    void OpenFolder(const QString& path, const QString& selected = QString());

    /** @return the pane, which this window owns */
    CKTFileManager* Pane() const;

    const ViewActions& Views() const;

    /** @return whether thumbnails are being made */
    bool IsBusy() const;

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void GivePaneToHost(const Options& options);
    void NamePanes();
    void MapNames(const IniSection& names, const IniSection& tips);
    void CreateContent();
    void CreateMenus();
    void CreateToolBar();
    void ConnectStatus();
    void ConnectLocation();
    void ColourThumbnails();
    void FitThumbnails();

    void OpenAddress(const QString& text);
    void Reload();
    void OpenCurrentItem();
    void SelectWanted();
    void FolderListed(const QString& path);
    void SayWhyEmpty();
    void Say(const QString& text);

    void OnLButtonDblClickListItem(QString absolutePath, bool isFolder) override;
    void OnListViewRootPathChanged(const QString& newPath) override;
    void OnShowPopupMenu(EKTFMMode pane, bool onItem) override;
    void ShowRenameError(int error);

    CKTFileManager* m_pPane;
    PaneViews m_views;
    std::unique_ptr<ThumbnailQueue> m_pQueue;
    std::unique_ptr<Thumbnails> m_pThumbnails;
    std::unique_ptr<CategoryIcons> m_pCategoryIcons;
    CommandActions* m_pCommands;
    FolderNavigator* m_pFolders;
    NavigationActions* m_pNavigation;
    ViewActions* m_pViewActions;
    LocationBar* m_pLocation;
    StatusLine* m_pStatus;
    ListSummary* m_pSummary;
    EmptyHint* m_pEmptyHint;
    QAction* m_pOpen;
    QAction* m_pDark;
    QString m_selected;     ///< the path to select when the folder is listed; empty for none
    int m_nItems = 0;       ///< how many items the list shows
    bool m_bListed = false; ///< whether the folder's items have all arrived
};

#endif
