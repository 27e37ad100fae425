#ifndef COLLECTIONWINDOW_H
#define COLLECTIONWINDOW_H

#include "ContentImages.h"
#include "Favourites.h"

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QMainWindow>

class ContentPane;
class FavouritesView;
class FolderPane;
class QAction;
class QLabel;
class QModelIndex;
class QSettings;
class QToolBar;

/**
 * A collection of content: its folders on the left, the content of one of them beside it, and the favourites
 * of the user below.
 */
class CollectionWindow final : public QMainWindow, private CKTFMContextMenuHandleInterface
{
    Q_OBJECT

public:
    CollectionWindow();
    ~CollectionWindow() override;

    /** Shows a folder as the collection. @return false, changing nothing, if it is no folder */
    bool OpenCollection(const QString& path);

    /** Shows a folder of the collection. A path that is no folder is said in the status bar. */
    void OpenFolder(const QString& path);

    /** Restores the favourites and writes each change of them; @p settings is borrowed. */
    void KeepFavouritesIn(QSettings& settings);

    Favourites& Favoured();
    const ContentImages& Images() const;
    const ContentPane& Content() const;

protected:
    bool event(QEvent* event) override;

private:
    void CreateContent();
    QWidget* CreateFavourites();
    void CreateActions();
    QAction* AddAction(QToolBar& toolBar, const QString& text, const QKeySequence& shortcut);
    void ConnectParts();
    void UpdateActions();
    void OpenParent();
    void OpenNearest(const QString& vanished);
    void Open(const QString& path, bool isFolder);
    void OpenFavourite(const QModelIndex& row);
    void AddSelected();
    void RemoveSelected();
    void ShowCount(int shown, int all);
    void HandleContextMenuEvent(QWidget* view, QContextMenuEvent* event) override;

    ContentImages m_images;
    Favourites m_favourites;
    QString m_collection;
    FolderPane* m_pFolders = nullptr;
    ContentPane* m_pContent = nullptr;
    FavouritesView* m_pFavouritesView = nullptr;
    QLabel* m_pCount = nullptr;
    QAction* m_pUp = nullptr;
    QAction* m_pHome = nullptr;
    QAction* m_pTable = nullptr;
    QAction* m_pSearch = nullptr;
    QAction* m_pAdd = nullptr;
    QAction* m_pRemove = nullptr;
};

#endif
