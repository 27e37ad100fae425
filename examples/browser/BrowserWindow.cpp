#include "BrowserWindow.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAction>
#include <QActionGroup>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>

namespace {

/** The window's size at the start, in pixels. */
constexpr QSize WindowSize(1000, 640);

/** The part of the width that the folder tree gets. */
constexpr int TreePercent = 25;

} // namespace

BrowserWindow::BrowserWindow()
    : m_pPane(
          new CKTFileManager(this, QRect(QPoint(0, 0), WindowSize), FM_MODE_TREE_AND_LIST, TreePercent, true))
{
    // The pane leaves its models to the host; here nothing uses them without it.
    m_pPane->GetListModel()->setParent(this);
    m_pPane->GetTreeModel()->setParent(this);
    m_pPane->GetAliasTreeModel()->setParent(this);
    m_pPane->SetCallBackInterface(this, nullptr, nullptr, nullptr);
    setCentralWidget(m_pPane);
    CreateViewActions();
    statusBar();
    resize(WindowSize);
}

BrowserWindow::~BrowserWindow()
{
    // The pane must not outlive this window as its callback, nor the models that it shows.
    delete m_pPane;
}

CKTFileManager* BrowserWindow::Pane() const
{
    return m_pPane;
}

void BrowserWindow::CreateViewActions()
{
    QToolBar* toolBar = addToolBar(tr("Navigation"));
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* up = toolBar->addAction(style()->standardIcon(QStyle::SP_FileDialogToParent), tr("Up"), this,
                                     &BrowserWindow::OpenParentFolder);
    up->setShortcut(QKeySequence(static_cast<int>(Qt::ALT) | Qt::Key_Up));
    toolBar->addSeparator();
    auto* views = new QActionGroup(this);
    toolBar->addAction(AddViewAction(views, tr("Thumbnails"), FM_VIEW_ICON));
    toolBar->addAction(AddViewAction(views, tr("Large thumbnails"), FM_VIEW_LARGE_ICON));
    toolBar->addAction(AddViewAction(views, tr("Details"), FM_VIEW_DETAIL));
    views->actions().constFirst()->trigger();
}

QAction* BrowserWindow::AddViewAction(QActionGroup* group, const QString& text, EKTFMViewMode mode)
{
    QAction* action = group->addAction(text);
    action->setCheckable(true);
    action->setIcon(style()->standardIcon(mode == FM_VIEW_DETAIL ? QStyle::SP_FileDialogDetailedView
                                                                 : QStyle::SP_FileDialogListView));
    connect(action, &QAction::triggered, this, [this, mode] { m_pPane->SetViewMode(mode); });
    return action;
}

void BrowserWindow::OpenFolder(const QString& path)
{
    const QString folder = QDir::cleanPath(QDir(path).absolutePath());
    m_pPane->SetDirectory(folder);
    m_pPane->SelectTreeItem(m_pPane->GetTreeModel()->index(folder));
}

void BrowserWindow::OpenParentFolder()
{
    QDir folder(m_pPane->GetListModel()->rootPath());
    if (folder.cdUp())
        OpenFolder(folder.path());
}

void BrowserWindow::OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
{
    if (!isFolder)
        QDesktopServices::openUrl(QUrl::fromLocalFile(absolutePath));
}

void BrowserWindow::OnListViewRootPathChanged(const QString& newPath)
{
    setWindowTitle(QDir::toNativeSeparators(newPath));
    statusBar()->showMessage(QDir::toNativeSeparators(newPath));
}
