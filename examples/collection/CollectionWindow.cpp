#include "CollectionWindow.h"

#include "ContentPane.h"
#include "FavouritesView.h"
#include "FolderPane.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

namespace {

/** The window's size at the start, in pixels. */
constexpr QSize WindowSize(1000, 680);

/** The width of the folders at the start, in pixels. */
constexpr int FoldersWidth = 220;

/** The distance between the parts and to the edges of the window, in pixels. */
constexpr int Distance = 8;

/** How long the status bar shows a message, in ms. */
constexpr int MessageTime = 8000;

QString FavouritesKey()
{
    return QStringLiteral("favourites");
}

} // namespace

CollectionWindow::CollectionWindow() : m_favourites(m_images)
{
    CreateContent();
    CreateActions();
    ConnectParts();
    UpdateActions();
    resize(WindowSize);
    m_pContent->setFocus();
}

CollectionWindow::~CollectionWindow()
{
    // The views go before the favourites and images that they show.
    delete takeCentralWidget();
}

void CollectionWindow::CreateContent()
{
    m_pFolders = new FolderPane(m_images.Cards());
    m_pContent = new ContentPane(m_images);
    auto* panes = new QSplitter(Qt::Horizontal);
    panes->addWidget(m_pFolders);
    panes->addWidget(m_pContent);
    panes->setStretchFactor(1, 1);
    panes->setChildrenCollapsible(false);
    panes->setSizes({FoldersWidth, WindowSize.width() - FoldersWidth});

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(Distance, Distance, Distance, Distance);
    layout->setSpacing(Distance);
    layout->addWidget(panes, 1);
    layout->addWidget(CreateFavourites());
    setCentralWidget(content);

    m_pCount = new QLabel;
    statusBar()->addPermanentWidget(m_pCount);
}

QWidget* CollectionWindow::CreateFavourites()
{
    m_pFavouritesView = new FavouritesView;
    m_pFavouritesView->setModel(&m_favourites.Model());
    m_pFavouritesView->setAccessibleName(tr("Favourites"));
    m_pFavouritesView->SetEmptyText(
        tr("Drag files here, or select some and choose \u201cAdd to favourites\u201d."));
    auto* label = new QLabel(tr("Fa&vourites"));
    label->setBuddy(m_pFavouritesView);

    auto* strip = new QWidget;
    auto* layout = new QVBoxLayout(strip);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_pFavouritesView);
    return strip;
}

void CollectionWindow::CreateActions()
{
    QToolBar* toolBar = addToolBar(tr("Commands"));
    toolBar->setMovable(false);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_pUp = AddAction(*toolBar, tr("Up"), QKeySequence(QStringLiteral("Alt+Up")));
    m_pUp->setIcon(style()->standardIcon(QStyle::SP_FileDialogToParent));
    m_pHome = AddAction(*toolBar, tr("Whole collection"), QKeySequence(QStringLiteral("Alt+Home")));
    m_pHome->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    toolBar->addSeparator();
    m_pTable = AddAction(*toolBar, tr("Table"), QKeySequence(QStringLiteral("Ctrl+T")));
    m_pTable->setIcon(style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    m_pTable->setCheckable(true);
    m_pSearch = AddAction(*toolBar, tr("Search"), QKeySequence(QKeySequence::Find));
    m_pSearch->setIcon(style()->standardIcon(QStyle::SP_FileDialogContentsView));
    toolBar->addSeparator();
    m_pAdd = AddAction(*toolBar, tr("Add to favourites"), QKeySequence(QStringLiteral("Ctrl+D")));
    m_pAdd->setIcon(style()->standardIcon(QStyle::SP_DialogApplyButton));
    m_pRemove = AddAction(*toolBar, tr("Remove from favourites"), QKeySequence(QKeySequence::Delete));
    m_pRemove->setIcon(style()->standardIcon(QStyle::SP_DialogCancelButton));
    // Elsewhere the key must not take a favourite away.
    m_pRemove->setShortcutContext(Qt::WidgetShortcut);
    m_pFavouritesView->addAction(m_pRemove);
}

QAction* CollectionWindow::AddAction(QToolBar& toolBar, const QString& text, const QKeySequence& shortcut)
{
    QAction* action = toolBar.addAction(text);
    action->setShortcut(shortcut);
    return action;
}

void CollectionWindow::ConnectParts()
{
    connect(m_pFolders, &FolderPane::Chosen, this, &CollectionWindow::OpenFolder);
    connect(m_pContent, &ContentPane::Activated, this, &CollectionWindow::Open);
    connect(m_pContent, &ContentPane::Counted, this, &CollectionWindow::ShowCount);
    connect(m_pContent, &ContentPane::Vanished, this, &CollectionWindow::OpenNearest);
    connect(m_pContent, &ContentPane::SelectionChanged, this, &CollectionWindow::UpdateActions);
    // A search takes selected items away without a change of the selection.
    connect(m_pContent, &ContentPane::Counted, this, &CollectionWindow::UpdateActions);
    connect(m_pFavouritesView, &QAbstractItemView::activated, this, &CollectionWindow::OpenFavourite);
    connect(m_pFavouritesView, &FavouritesView::FilesDropped, &m_favourites, &Favourites::Add);
    connect(m_pFavouritesView->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CollectionWindow::UpdateActions);
    connect(&m_favourites, &Favourites::Refreshed, m_pFavouritesView->viewport(),
            QOverload<>::of(&QWidget::update));

    connect(m_pUp, &QAction::triggered, this, &CollectionWindow::OpenParent);
    connect(m_pHome, &QAction::triggered, this, [this] { OpenFolder(m_collection); });
    connect(m_pTable, &QAction::toggled, m_pContent, &ContentPane::ShowTable);
    connect(m_pSearch, &QAction::triggered, m_pContent, &ContentPane::StartSearch);
    connect(m_pAdd, &QAction::triggered, this, &CollectionWindow::AddSelected);
    connect(m_pRemove, &QAction::triggered, this, &CollectionWindow::RemoveSelected);

    m_pContent->SetContextMenuHandleInterface(this);
    m_pFavouritesView->SetContextMenuHandleInterface(this);
}

bool CollectionWindow::OpenCollection(const QString& path)
{
    const QFileInfo folder(path);
    if (path.isEmpty() || !folder.isDir())
        return false;
    m_collection = QDir::cleanPath(folder.absoluteFilePath());
    m_pFolders->SetCollection(m_collection);
    OpenFolder(m_collection);
    return true;
}

void CollectionWindow::OpenFolder(const QString& path)
{
    if (path == m_pContent->Folder() && m_pContent->Model().index(path).isValid())
        return;
    if (!QFileInfo(path).isDir()) {
        statusBar()->showMessage(tr("There is no folder %1.").arg(QDir::toNativeSeparators(path)),
                                 MessageTime);
        return;
    }
    m_pContent->ShowFolder(path);
    m_pFolders->Select(path);
    setWindowTitle(QDir::toNativeSeparators(path));
    UpdateActions();
}

void CollectionWindow::OpenParent()
{
    OpenFolder(QFileInfo(m_pContent->Folder()).path());
}

void CollectionWindow::OpenNearest(const QString& vanished)
{
    QFileInfo folder(vanished);
    while (!folder.exists() && !folder.isRoot())
        folder.setFile(folder.path());
    if (!QFileInfo::exists(m_collection))
        OpenCollection(folder.filePath());
    else
        OpenFolder(folder.filePath());
}

void CollectionWindow::Open(const QString& path, bool isFolder)
{
    if (isFolder)
        OpenFolder(path);
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        statusBar()->showMessage(tr("No application opens this file."), MessageTime);
}

void CollectionWindow::OpenFavourite(const QModelIndex& row)
{
    const QString path = m_favourites.PathOf(row);
    if (m_favourites.IsMissing(row))
        statusBar()->showMessage(tr("%1 is missing.").arg(QDir::toNativeSeparators(path)), MessageTime);
    else
        Open(path, QFileInfo(path).isDir());
}

void CollectionWindow::AddSelected()
{
    m_favourites.Add(m_pContent->SelectedPaths());
}

void CollectionWindow::RemoveSelected()
{
    m_favourites.Remove(m_pFavouritesView->selectionModel()->selectedRows());
}

void CollectionWindow::UpdateActions()
{
    m_pUp->setEnabled(m_pContent->Folder() != m_collection);
    m_pHome->setEnabled(m_pUp->isEnabled());
    m_pAdd->setEnabled(!m_pContent->SelectedPaths().isEmpty());
    m_pRemove->setEnabled(m_pFavouritesView->selectionModel()->hasSelection());
}

void CollectionWindow::ShowCount(int shown, int all)
{
    m_pCount->setText(shown == all ? tr("Items: %1").arg(all) : tr("Items: %1 of %2").arg(shown).arg(all));
}

void CollectionWindow::KeepFavouritesIn(QSettings& settings)
{
    m_favourites.Add(settings.value(FavouritesKey()).toStringList());
    connect(&m_favourites, &Favourites::Changed, this,
            [this, &settings] { settings.setValue(FavouritesKey(), m_favourites.Paths()); });
}

Favourites& CollectionWindow::Favoured()
{
    return m_favourites;
}

const ContentImages& CollectionWindow::Images() const
{
    return m_images;
}

const ContentPane& CollectionWindow::Content() const
{
    return *m_pContent;
}

bool CollectionWindow::event(QEvent* event)
{
    // Files may have come and gone, on drives that cannot be watched too, while the user was elsewhere.
    if (event->type() == QEvent::WindowActivate)
        m_favourites.Refresh();
    return QMainWindow::event(event);
}

void CollectionWindow::HandleContextMenuEvent(QWidget* view, QContextMenuEvent* event)
{
    auto* menu = new QMenu(view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(view == m_pFavouritesView ? m_pRemove : m_pAdd);
    menu->popup(event->globalPos());
}
