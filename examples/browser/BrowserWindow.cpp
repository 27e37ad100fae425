#include "BrowserWindow.h"

#include "Actions.h"
#include "AddressPath.h"
#include "AliasSample.h"
#include "CategoryIcons.h"
#include "ColorScheme.h"
#include "CommandActions.h"
#include "EmptyHint.h"
#include "FocusKeeper.h"
#include "FolderNavigator.h"
#include "ListKeys.h"
#include "ListSummary.h"
#include "LocationBar.h"
#include "NavigationActions.h"
#include "Options.h"
#include "StatusLine.h"
#include "ThumbnailQueue.h"
#include "Thumbnails.h"
#include "ViewActions.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QListView>
#include <QScreen>
#include <QStatusBar>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

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

/** The corners of a thumbnail's highlight, in pixels. */
constexpr int HighlightRadius = 4;

/** How long a message stands in the status bar, in ms. */
constexpr int MessageTime = 8000;

} // namespace

BrowserWindow::BrowserWindow(const Options& options)
    : m_pPane(new CKTFileManager(this, QRect(QPoint(0, 0), WindowSize), options.mode, TreePercent, true)),
      m_views(*m_pPane),
      m_pQueue(
          std::make_unique<ThumbnailQueue>([this](const QModelIndex& item) { return m_views.Shows(item); })),
      m_pThumbnails(std::make_unique<Thumbnails>(*m_pPane->GetListModel(), *m_pQueue)),
      m_pCategoryIcons(std::make_unique<CategoryIcons>()),
      m_pCommands(new CommandActions(*m_pPane, *this)),
      m_pFolders(new FolderNavigator(*m_pPane, this)),
      m_pNavigation(new NavigationActions(this)),
      m_pViewActions(new ViewActions(*m_pPane, this)),
      m_pLocation(new LocationBar(*m_pPane->GetTreeModel(), this)),
      m_pStatus(new StatusLine(statusBar())),
      m_pSummary(new ListSummary(*m_pPane, this)),
      m_pEmptyHint(new EmptyHint({m_views.grid, m_views.details}, this)),
      m_pOpen(Actions::Create(this, tr("&Open"), "document-open", {})),
      m_pDark(Actions::Create(this, tr("D&ark"), "weather-clear-night", {}))
{
    GivePaneToHost(options);
    NamePanes();
    CreateContent();
    CreateMenus();
    CreateToolBar();
    ConnectStatus();
    ConnectLocation();
    ColourThumbnails();
    new ListKeys(*m_pPane, this);
    m_pViewActions->Show(options.view.value_or(FM_VIEW_ICON), options.iconSize.value_or(FM_ICON_MEDIUM));
    resize(options.size.isValid() ? options.size : WindowSize);
    restoreGeometry(options.geometry);
}

BrowserWindow::~BrowserWindow()
{
    // What follows the focus must not do so into a pane that is going, and neither the bar nor the pane may
    // outlive the callbacks that they were given.
    delete m_pCommands;
    delete m_pLocation;
    delete m_pPane;
}

CKTFileManager* BrowserWindow::Pane() const
{
    return m_pPane;
}

const ViewActions& BrowserWindow::Views() const
{
    return *m_pViewActions;
}

bool BrowserWindow::IsBusy() const
{
    return !m_pQueue->IsEmpty();
}

void BrowserWindow::GivePaneToHost(const Options& options)
{
    // The pane leaves its models to the host; here nothing uses them without it.
    m_pPane->GetListModel()->setParent(this);
    m_pPane->GetTreeModel()->setParent(this);
    m_pPane->GetAliasTreeModel()->setParent(this);
    m_pPane->SetCallBackInterface(this, nullptr, m_pThumbnails.get(), m_pCategoryIcons.get());
    m_pPane->SetParentForMsgBox(this);
    m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    m_pPane->SetFlagStatus(FM_PART_TREE | FM_PART_LIST | FM_PART_ALIAS_TREE, AllInteractions, true);
    MapNames(options.names, options.tips);
    m_pPane->PopulateAliasTable(options.aliasFile.isEmpty()
                                    ? AliasSample(options.folder, options.names.section)
                                    : AliasTableFrom(options.aliasFile));
    connect(m_pPane, &CKTFileManager::OnError, this, [this](int, int, int error) { ShowRenameError(error); });
}

void BrowserWindow::NamePanes()
{
    // What a screen reader says when a pane gets the focus.
    m_views.grid->setAccessibleName(tr("Files"));
    m_views.details->setAccessibleName(tr("Files"));
    m_views.tree->setAccessibleName(tr("Folders"));
    m_views.aliasTree->setAccessibleName(tr("Categories"));
    // Without it the top-most folders could be opened by a double click alone.
    m_views.tree->setRootIsDecorated(true);
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

void BrowserWindow::CreateContent()
{
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pLocation);
    layout->addWidget(m_pPane, 1);
    setCentralWidget(content);
}

void BrowserWindow::ConnectStatus()
{
    connect(m_pSummary, &ListSummary::Counted, this, [this](int items) {
        m_nItems = items;
        m_pStatus->SetCount(items);
        SayWhyEmpty();
    });
    connect(m_pSummary, &ListSummary::SelectionCounted, m_pStatus, &StatusLine::SetSelection);
    connect(m_pQueue.get(), &ThumbnailQueue::Progressed, m_pStatus, &StatusLine::SetProgress);
    connect(m_pThumbnails.get(), &Thumbnails::Ready, this, [this] {
        m_pPane->UpdateWnd(FM_UPDATE_LIST_VIEW);
        m_views.details->viewport()->update();
    });
    connect(m_pCommands, &CommandActions::Ended, this, [this](EKTFMCommand command, bool done) {
        m_pStatus->SetFolder(m_pPane->GetListModel()->rootPath());
        if (command == FM_CMD_NEW_FOLDER && !done)
            Say(tr("A folder cannot be made here."));
    });
    m_pDark->setCheckable(true);
    m_pDark->setChecked(ColorScheme::IsDark());
    connect(m_pDark, &QAction::toggled, this, [](bool dark) { ColorScheme::SetDark(dark); });
}

void BrowserWindow::ConnectLocation()
{
    connect(m_pNavigation, &NavigationActions::FolderWanted, this, &BrowserWindow::OpenFolder);
    connect(m_pNavigation->m_pReload, &QAction::triggered, this, &BrowserWindow::Reload);
    connect(m_pNavigation->m_pAddress, &QAction::triggered, m_pLocation, &LocationBar::AskForAddress);
    connect(m_pOpen, &QAction::triggered, this, &BrowserWindow::OpenCurrentItem);
    connect(m_pLocation, &LocationBar::FolderChosen, this, [this](const QString& path) { OpenFolder(path); });
    connect(m_pLocation, &LocationBar::AddressEntered, this, &BrowserWindow::OpenAddress);
    connect(m_pLocation, &LocationBar::AddressGivenUp, this, [this] { m_views.ShownList()->setFocus(); });
    const auto* selection = m_views.grid->selectionModel();
    const auto offerOpen = [this, selection] { m_pOpen->setEnabled(selection->hasSelection()); };
    connect(selection, &QItemSelectionModel::selectionChanged, this, offerOpen);
    offerOpen();
    connect(m_pViewActions, &ViewActions::Changed, this, &BrowserWindow::FitThumbnails);
    connect(m_pPane->GetListModel(), &QFileSystemModel::directoryLoaded, this, &BrowserWindow::FolderListed,
            Qt::QueuedConnection);
}

void BrowserWindow::ColourThumbnails()
{
    const QColor highlight = palette().color(QPalette::Highlight);
    QColor hover = highlight;
    hover.setAlpha(HoverAlpha);
    QColor selected = highlight;
    selected.setAlpha(SelectedAlpha);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_HOVER, hover, hover, Qt::transparent, HighlightRadius);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, selected, selected, highlight, HighlightRadius);
    m_pPane->GetListViewDelegate()->SetNameColor(palette().color(QPalette::Text));
}

void BrowserWindow::FitThumbnails()
{
    const QSize grid = m_pPane->GetListIconSize();
    const QSize details = m_pPane->GetDetailIconSize();
    const QSize shown = m_pViewActions->Mode() == FM_VIEW_DETAIL ? details : grid;
    m_pThumbnails->SetSide(qRound(qMax(shown.width(), shown.height()) * devicePixelRatioF()));
}

void BrowserWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        ColourThumbnails();
    QMainWindow::changeEvent(event);
}

void BrowserWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    connect(windowHandle(), &QWindow::screenChanged, this, &BrowserWindow::FitThumbnails,
            Qt::UniqueConnection);
    FitThumbnails();
}

void BrowserWindow::OpenFolder(const QString& path, const QString& selected)
{
    const FocusKeeper focus;
    if (!QFileInfo(path).isDir()) {
        Say(tr("There is no folder “%1”.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    m_selected = selected;
    if (!m_pFolders->Show(path)) {
        Say(tr("“%1” is hidden, and hidden folders are not shown.").arg(QDir::toNativeSeparators(path)));
        return;
    }
    if (m_bListed)
        SelectWanted();
}

void BrowserWindow::OpenAddress(const QString& text)
{
    const QString path = AddressPath(text, m_pPane->GetListModel()->rootPath());
    const QFileInfo info(path);
    if (path.isEmpty() || !info.exists()) {
        Say(tr("There is no file or folder “%1”.").arg(text.trimmed()));
        return;
    }
    if (info.isDir())
        OpenFolder(path);
    else
        OpenFolder(info.absolutePath(), path);
    m_pLocation->ShowFolder(m_pPane->GetListModel()->rootPath());
    m_views.ShownList()->setFocus();
}

void BrowserWindow::Reload()
{
    const QString folder = m_pPane->GetListModel()->rootPath();
    m_pFolders->Reload();
    m_pLocation->ShowFolder(folder);
    m_pStatus->SetFolder(folder);
}

void BrowserWindow::OpenCurrentItem()
{
    const QModelIndex current = m_views.grid->selectionModel()->currentIndex();
    if (current.isValid())
        m_pPane->OnListDblClicked(current);
}

void BrowserWindow::SelectWanted()
{
    if (!m_selected.isEmpty())
        m_pPane->SetCurrentSelection(m_selected, false, false);
    m_selected.clear();
}

void BrowserWindow::FolderListed(const QString& path)
{
    if (path != m_pPane->GetListModel()->rootPath())
        return;
    m_bListed = true;
    SelectWanted();
    m_pSummary->Update();
}

void BrowserWindow::SayWhyEmpty()
{
    QString text;
    if (m_bListed && m_nItems == 0) {
        const bool readable = QFileInfo(m_pPane->GetListModel()->rootPath()).isReadable();
        text = readable ? tr("This folder is empty.") : tr("This folder cannot be read.");
    }
    m_pEmptyHint->Show(text);
}

void BrowserWindow::Say(const QString& text)
{
    statusBar()->showMessage(text, MessageTime);
}

void BrowserWindow::OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
{
    if (!isFolder)
        QDesktopServices::openUrl(QUrl::fromLocalFile(absolutePath));
}

void BrowserWindow::OnListViewRootPathChanged(const QString& newPath)
{
    if (m_pFolders->IsPassing())
        return;
    m_bListed = false;
    statusBar()->clearMessage();
    m_pLocation->ShowFolder(newPath);
    m_pNavigation->FolderChanged(newPath);
    m_pStatus->SetFolder(newPath);
    m_pSummary->Update();
    setWindowTitle(QDir::toNativeSeparators(newPath));
}

void BrowserWindow::ShowRenameError(int error)
{
    Say(error == 0 ? tr("Something of that name is already there.") : tr("That name cannot be given."));
}
