#include "BrowserWindow.h"

#include "AliasSample.h"
#include "CommandActions.h"
#include "FolderTrail.h"
#include "Options.h"
#include "Thumbnails.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAction>
#include <QActionGroup>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/** The window's size at the start, in pixels. */
constexpr QSize WindowSize(1000, 640);

/** The part of the width that the folder tree gets. */
constexpr int TreePercent = 25;

/** Renaming, tool tips and dragging, as SetFlagStatus takes them. */
constexpr int AllInteractions = 1 | 2 | 4;

/** How much of the palette's highlight colour shows behind a thumbnail, in per 255: light and dark palettes
    shine through. */
constexpr int HoverAlpha = 50;
constexpr int SelectedAlpha = 100;

/** What a grid cell is wider than its image, in pixels: room for names. */
constexpr int GridMarginWidth = 60;

/** What a grid cell has above and between its image and name, in pixels. */
constexpr int NameDistance = 16;

/** The corners of a thumbnail's highlight, in pixels. */
constexpr int HighlightRadius = 4;

} // namespace

BrowserWindow::BrowserWindow(const Options& options)
    : m_pPane(new CKTFileManager(this, QRect(QPoint(0, 0), WindowSize), options.mode, TreePercent, true))
{
    GivePaneToHost();
    m_pCommands = std::make_unique<CommandActions>(*m_pPane, *this);
    CreateTrail();
    CreateToolBar();
    ColourThumbnails();
    m_pPane->SetFlagStatus(FM_PART_TREE | FM_PART_LIST | FM_PART_ALIAS_TREE, AllInteractions, true);
    MapNames(options.names, options.tips);
    m_pPane->PopulateAliasTable(options.aliasFile.isEmpty()
                                    ? AliasSample(QDir(options.folder).absolutePath(), options.names.section)
                                    : options.aliasFile);
    connect(m_pPane, &CKTFileManager::OnError, this, [this](int, int, int error) { ShowError(error); });
    statusBar();
    resize(WindowSize);
}

BrowserWindow::~BrowserWindow()
{
    // Neither the bar nor the pane may outlive the callbacks that they were given.
    delete m_pTrailBar;
    delete m_pPane;
}

CKTFileManager* BrowserWindow::Pane() const
{
    return m_pPane;
}

void BrowserWindow::GivePaneToHost()
{
    // The pane leaves its models to the host; here nothing uses them without it.
    m_pPane->GetListModel()->setParent(this);
    m_pPane->GetTreeModel()->setParent(this);
    m_pPane->GetAliasTreeModel()->setParent(this);
    m_pThumbnails = std::make_unique<Thumbnails>(*m_pPane->GetListModel());
    connect(m_pThumbnails.get(), &Thumbnails::Ready, this,
            [this] { m_pPane->UpdateWnd(FM_UPDATE_LIST_VIEW); });
    m_pPane->SetCallBackInterface(this, nullptr, m_pThumbnails.get(), nullptr);
    m_pPane->SetParentForMsgBox(this);
}

void BrowserWindow::MapNames(const IniSection& names, const IniSection& tips)
{
    if (!names.file.isNull()) {
        for (const EKTFMPart part : {FM_PART_TREE, FM_PART_LIST, FM_PART_ALIAS_TREE})
            m_pPane->SetFilenameMappingINIFile(part, names.file, names.section);
    }
    if (!tips.file.isNull())
        m_pPane->GetListModel()->SetFileTipsMappingFile(tips.file, tips.section);
}

void BrowserWindow::CreateTrail()
{
    m_pTrail = std::make_unique<FolderTrail>(*m_pPane->GetTreeModel(),
                                             [this](const QString& path) { OpenFolder(path); });
    auto* content = new QWidget(this);
    m_pTrailBar = new CTitleBarView(content, m_pTrail.get());
    m_pTrailBar->SetRootIcon(style()->standardIcon(QStyle::SP_DriveHDIcon));
    m_pTrailBar->SetRootItemUseIcon(true);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pTrailBar);
    layout->addWidget(m_pPane, 1);
    setCentralWidget(content);
}

void BrowserWindow::ColourThumbnails()
{
    QColor hover = palette().color(QPalette::Highlight);
    hover.setAlpha(HoverAlpha);
    QColor selected = hover;
    selected.setAlpha(SelectedAlpha);
    const QColor frame = palette().color(QPalette::Highlight);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_HOVER, hover, hover, Qt::transparent, HighlightRadius);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, selected, selected, frame, HighlightRadius);
}

void BrowserWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange && m_pPane)
        ColourThumbnails();
    QMainWindow::changeEvent(event);
}

void BrowserWindow::CreateToolBar()
{
    QToolBar* toolBar = addToolBar(tr("Commands"));
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* up = toolBar->addAction(style()->standardIcon(QStyle::SP_FileDialogToParent), tr("Up"), this,
                                     &BrowserWindow::OpenParentFolder);
    up->setShortcut(QKeySequence(QStringLiteral("Alt+Up")));
    toolBar->addSeparator();
    AddViewActions(*toolBar);
    toolBar->addSeparator();
    toolBar->addActions(m_pCommands->All());
}

void BrowserWindow::AddViewActions(QToolBar& toolBar)
{
    auto* views = new QActionGroup(this);
    toolBar.addAction(AddViewAction(views, tr("Grid"), FM_VIEW_ICON));
    toolBar.addAction(AddViewAction(views, tr("Large grid"), FM_VIEW_LARGE_ICON));
    toolBar.addAction(AddViewAction(views, tr("Details"), FM_VIEW_DETAIL));
    views->actions().constFirst()->trigger();
}

QAction* BrowserWindow::AddViewAction(QActionGroup* group, const QString& text, EKTFMViewMode mode)
{
    QAction* action = group->addAction(text);
    action->setCheckable(true);
    action->setIcon(style()->standardIcon(mode == FM_VIEW_DETAIL ? QStyle::SP_FileDialogDetailedView
                                                                 : QStyle::SP_FileDialogListView));
    connect(action, &QAction::triggered, this, [this, mode] { ShowView(mode); });
    return action;
}

void BrowserWindow::ShowView(EKTFMViewMode mode)
{
    m_pPane->SetViewMode(mode);
    // The pane goes back to its own margin with each switch; this one has room for two lines of the font.
    m_pPane->SetGridMargin(GridMarginWidth, NameDistance + 2 * fontMetrics().lineSpacing());
    m_pPane->SetItemBorder(GridMarginWidth / 2, GridMarginWidth / 2);
    m_pPane->CalculateItemPosition();
}

void BrowserWindow::OpenFolder(const QString& path)
{
    const QString folder = QDir::cleanPath(QDir(path).absolutePath());
    m_pPane->SetDirectory(folder);
    // The first folder that a pane is given fills the tree alone; given again, it fills the list.
    if (m_pPane->GetListModel()->rootPath() != folder)
        m_pPane->SetDirectory(folder);
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
    m_pTrailBar->UpdateCrumBar(m_pPane->GetTreeModel()->index(newPath), false);
    setWindowTitle(QDir::toNativeSeparators(newPath));
    statusBar()->showMessage(QDir::toNativeSeparators(newPath));
}

void BrowserWindow::OnShowPopupMenu(EKTFMMode pane, bool onItem)
{
    Q_UNUSED(pane)
    m_pCommands->Fill(*m_pPane->GetContextMenu(), onItem);
}

void BrowserWindow::ShowError(int error)
{
    constexpr int displayTime = 8000;
    statusBar()->showMessage(error == 0 ? tr("Something of that name is already there.")
                                        : tr("That name cannot be given."),
                             displayTime);
}
