#ifndef BROWSERWINDOW_H
#define BROWSERWINDOW_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QMainWindow>

#include <memory>

class CKTFileManager;
class CTitleBarView;
class CommandActions;
class FolderTrail;
class QAction;
class QActionGroup;
class QToolBar;
class Thumbnails;
struct IniSection;
struct Options;

/**
 * A small file browser around one pane.
 *
 * It shows what a host does: it creates the pane, hands it its callbacks, points it at a folder, and gives
 * the user buttons for what the pane can do.
 */
class BrowserWindow : public QMainWindow, private CKTFMInterface
{
    Q_OBJECT

public:
    explicit BrowserWindow(const Options& options);
    ~BrowserWindow() override;

    /** Shows a folder in tree and list. */
    void OpenFolder(const QString& path);

    /** @return the pane, which this window owns */
    CKTFileManager* Pane() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void GivePaneToHost();
    void MapNames(const IniSection& names, const IniSection& tips);
    void CreateTrail();
    void CreateToolBar();
    void ColourThumbnails();
    void AddViewActions(QToolBar& toolBar);
    QAction* AddViewAction(QActionGroup* group, const QString& text, EKTFMViewMode mode);
    void ShowView(EKTFMViewMode mode);
    void OpenParentFolder();

    void OnLButtonDblClickListItem(QString absolutePath, bool isFolder) override;
    void OnListViewRootPathChanged(const QString& newPath) override;
    void OnShowPopupMenu(EKTFMMode pane, bool onItem) override;
    void ShowError(int error);

    CKTFileManager* m_pPane;
    std::unique_ptr<CommandActions> m_pCommands;
    std::unique_ptr<FolderTrail> m_pTrail;
    std::unique_ptr<Thumbnails> m_pThumbnails;
    CTitleBarView* m_pTrailBar = nullptr;
};

#endif
