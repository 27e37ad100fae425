#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "models/CMySortFilterProxyModel.h"
#include "views/AliasNameDelegate.h"
#include "views/CKTListView.h"
#include "views/CKTTreeView.h"
#include "widget/IconSizes.h"

#include <QFileSystemWatcher>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>

namespace {

/** The largest icon size that hosts are told of. Presets go beyond it, as they always have. */
constexpr QSize MaxIconSize(100, 100);

/** The panes as the OnError signal numbers them; it gives the alias tree 3, where EKTFMPart has 4. */
enum ErrorPane : int
{
    TreeErrors = 1,
    ListErrors = 2,
    AliasTreeErrors = 3
};

/** The number by which the OnError signal names renaming. */
constexpr int RenameAction = 0;

} // namespace

CKTFileManager::CKTFileManager(QWidget* parent, QRect rect, EKTFMMode mode, int leftPanePercent,
                               bool showExtension)
    : QWidget(parent),
      m_eMode(mode),
      m_gridMargin(IconSizes::DefaultGridMargin)
{
    setAccessibleName(QStringLiteral("CKTFileManagerWidget"));
    setGeometry(rect);
    m_pContextMenu = new QMenu(this);
    CreateTreeView();
    CreateListView();
    CreateDetailView();
    CreateViewStack();
    CreateAliasTreeView();
    CreateLayout(rect, leftPanePercent);
    CreateModels(showExtension);
    CreateDelegate();
    ApplyInitialSizes();
    ShareSelection();
    ConnectViews();
    ConnectSelections();
    ConnectModels();
    ConnectAliasTree();
}

CKTFileManager::~CKTFileManager()
{
    // The parts die after this object has ended, and some tell of it: an open editor that it closes.
    const QList<QObject*> parts = findChildren<QObject*>();
    for (const QObject* part : parts)
        disconnect(part, nullptr, this, nullptr);
}

void CKTFileManager::CreateTreeView()
{
    m_pTreeView = new QTreeView(this);
    m_pTreeView->setHeaderHidden(true);
    m_pTreeView->setRootIsDecorated(false);
    m_pTreeView->setUniformRowHeights(true);
}

void CKTFileManager::CreateListView()
{
    m_pListView = new CKTListView(this, this);
    m_pListView->setUniformItemSizes(true);
    m_pListView->setViewMode(QListView::IconMode);
    m_pListView->setAttribute(Qt::WA_MouseTracking);
    // An icon view lets its items be dragged and takes drops unless told otherwise.
    m_pListView->setDragDropMode(QAbstractItemView::NoDragDrop);
    m_pListView->setSelectionRectVisible(true);
    m_pListView->setResizeMode(QListView::Adjust);
    m_pListView->setFlow(QListView::LeftToRight);
    m_pListView->setTextElideMode(Qt::ElideRight);
    m_pListView->setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
}

void CKTFileManager::CreateDetailView()
{
    m_pDetailView = new CKTTreeView(this, this);
    m_pDetailView->setRootIsDecorated(false);
    m_pDetailView->setItemsExpandable(false);
    m_pDetailView->setUniformRowHeights(true);
    m_pDetailView->setSortingEnabled(true);
    m_pDetailView->setEditTriggers(QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
}

void CKTFileManager::CreateViewStack()
{
    m_pViewStack = new QStackedWidget;
    m_pViewStack->addWidget(m_pListView);
    m_pViewStack->addWidget(m_pDetailView);
    m_pViewStack->setCurrentIndex(0);
}

void CKTFileManager::CreateAliasTreeView()
{
    m_pAliasTreeView = new QTreeView(this);
    m_pAliasTreeView->setHeaderHidden(true);
    m_pAliasTreeView->setRootIsDecorated(true);
    m_pAliasTreeView->setUniformRowHeights(true);
    m_pAliasTreeView->setItemsExpandable(true);
    m_pAliasTreeView->setEditTriggers(QAbstractItemView::DoubleClicked);
    const auto prepare = [this](const QModelIndex& index) { PrepareAliasEdit(index); };
    m_pAliasTreeView->setItemDelegate(new AliasNameDelegate(prepare, m_pAliasTreeView));
}

void CKTFileManager::CreateLayout(const QRect& rect, int leftPanePercent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* splitter = new QSplitter(Qt::Horizontal, this);
    splitter->setGeometry(rect);
    splitter->addWidget(m_pTreeView);
    splitter->addWidget(m_pAliasTreeView);
    splitter->addWidget(m_pViewStack);
    ArrangePanes(splitter, leftPanePercent);
    layout->addWidget(splitter);
    splitter->show();
}

void CKTFileManager::ArrangePanes(QSplitter* splitter, int leftPanePercent)
{
    const int leftWidth = splitter->width() * leftPanePercent / 100;
    const int listWidth = splitter->width() * (100 - leftPanePercent) / 100;
    QWidget* focused = m_pListView;
    switch (m_eMode) {
    case FM_MODE_TREE_AND_LIST:
        m_pAliasTreeView->hide();
        splitter->setSizes({leftWidth, 0, listWidth});
        break;
    case FM_MODE_TREE_ONLY:
        m_pViewStack->hide();
        m_pAliasTreeView->hide();
        focused = m_pTreeView;
        break;
    case FM_MODE_LIST_ONLY:
        m_pTreeView->hide();
        m_pAliasTreeView->hide();
        break;
    case FM_MODE_ALIAS_TREE_AND_LIST:
        m_pTreeView->hide();
        splitter->setSizes({0, leftWidth, listWidth});
        break;
    default:
        focused = nullptr;
        break;
    }
    if (focused)
        focused->setFocus(Qt::OtherFocusReason);
}

void CKTFileManager::CreateModels(bool showExtension)
{
    m_pTreeModel = new CKTFMTreeModel;
    m_pTreeModel->setReadOnly(true);
    m_pTreeModel->SetListsFolders(!m_pTreeView->isHidden());
    m_pTreeView->setModel(m_pTreeModel);
    m_pListModel = new CKTFMListModel;
    m_pListModel->setResolveSymlinks(true);
    m_pListModel->SetSortedByProxy(true);
    m_pListModel->SetUnfoundINIShowExtName(showExtension);
    CreateProxy();
    m_pAliasTreeModel = new CKTFMAliasTreeModel;
    m_pAliasTreeView->setModel(m_pAliasTreeModel);
    m_pWatcher = new QFileSystemWatcher(this);
    m_pAliasTreeModel->SetFileSystemWatcher(m_pWatcher);
}

void CKTFileManager::CreateProxy()
{
    m_pProxy = new CMySortFilterProxyModel(this);
    m_pProxy->setSourceModel(m_pListModel);
    m_pProxy->setDynamicSortFilter(true);
    m_pProxy->sort(0, Qt::AscendingOrder);
    m_pListView->setModel(m_pProxy);
    // The sort indicator of its header, which starts at descending, sorts the proxy anew: folders first, A to
    // Z.
    m_pDetailView->setModel(m_pProxy);
}

void CKTFileManager::CreateDelegate()
{
    m_pDelegate = new CKTFMDelegate(m_pListView);
    m_pDelegate->SetFileSystemModel(m_pListModel, m_pProxy, nullptr);
    m_pListView->setItemDelegate(m_pDelegate);
}

void CKTFileManager::ApplyInitialSizes()
{
    const IconSizes::Preset preset = *IconSizes::Of(FM_ICON_SMALL);
    SetIconSizes(preset.list, preset.detail);
    m_eIconSize = FM_ICON_SMALL;
    TellDetailIconWidth();
}

void CKTFileManager::ShareSelection()
{
    m_pListSelectionModel = m_pListView->selectionModel();
    m_pTreeSelectionModel = m_pTreeView->selectionModel();
    m_pDetailSelectionModel = m_pDetailView->selectionModel();
    m_pAliasSelectionModel = m_pAliasTreeView->selectionModel();
    m_pDetailView->setSelectionModel(m_pListSelectionModel);
}

void CKTFileManager::ConnectViews()
{
    connect(m_pTreeView, &QTreeView::clicked, this, &CKTFileManager::OnTreeClicked);
    connect(m_pTreeView, &QTreeView::activated, this, &CKTFileManager::OnTreeClicked);
    const QList<QAbstractItemView*> listViews = {m_pListView, m_pDetailView};
    for (const QAbstractItemView* view : listViews) {
        connect(view, &QAbstractItemView::clicked, this, &CKTFileManager::OnListClicked);
        connect(view, &QAbstractItemView::activated, this, &CKTFileManager::OnListClicked);
        connect(view, &QAbstractItemView::doubleClicked, this, &CKTFileManager::OnListDblClicked);
    }
}

void CKTFileManager::ConnectSelections()
{
    connect(m_pListSelectionModel, &QItemSelectionModel::selectionChanged, this,
            &CKTFileManager::OnListViewSelectionChanged);
    connect(m_pTreeSelectionModel, &QItemSelectionModel::selectionChanged, this,
            &CKTFileManager::OnTreeViewSelectionChanged);
}

void CKTFileManager::ConnectModels()
{
    connect(m_pListModel, &QFileSystemModel::rootPathChanged, this,
            &CKTFileManager::OnListViewRootPathChanged);
    connect(m_pTreeModel, &QFileSystemModel::rootPathChanged, this,
            &CKTFileManager::OnTreeViewRootPathChanged);
    connect(m_pListModel, &CKTFMListModel::RenameFileError, this, &CKTFileManager::OnListRenameFileError);
    connect(m_pTreeModel, &CKTFMTreeModel::RenameFileError, this, &CKTFileManager::OnTreeRenameFileError);
    connect(m_pAliasTreeModel, &CKTFMAliasTreeModel::RenameFileError, this,
            &CKTFileManager::OnAliasTreeRenameFileError);
    // Queued, because the base model also inserts rows in the midst of changing its layout, and an index that
    // a view keeps from in there would point to nothing afterwards.
    connect(m_pProxy, &QAbstractItemModel::rowsInserted, this, &CKTFileManager::HideTopLevelRows,
            Qt::QueuedConnection);
    connect(m_pProxy, &QAbstractItemModel::rowsRemoved, this, &CKTFileManager::HideTopLevelRows,
            Qt::QueuedConnection);
    connect(m_pProxy, &QAbstractItemModel::layoutChanged, this, &CKTFileManager::HideTopLevelRows,
            Qt::QueuedConnection);
}

void CKTFileManager::ConnectAliasTree()
{
    connect(m_pAliasTreeView, &QTreeView::clicked, this, &CKTFileManager::OnAliasTreeClicked);
    connect(m_pAliasTreeView, &QTreeView::activated, this, &CKTFileManager::OnAliasTreeClicked);
    connect(m_pAliasTreeView, &QTreeView::doubleClicked, this, &CKTFileManager::OnAliasTreeDblClicked);
    connect(m_pAliasSelectionModel, &QItemSelectionModel::selectionChanged, this,
            &CKTFileManager::OnAliasTreeViewSelectionChanged);
    connect(m_pWatcher, &QFileSystemWatcher::directoryChanged, this, &CKTFileManager::OnDirectoryChanged,
            Qt::UniqueConnection);
    connect(m_pAliasTreeView, &QTreeView::expanded, this, &CKTFileManager::OnAliasTreeExpand,
            Qt::UniqueConnection);
    connect(m_pAliasTreeView, &QTreeView::collapsed, this, &CKTFileManager::OnAliasTreeCollapsed,
            Qt::UniqueConnection);
    connect(m_pAliasTreeView->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &CKTFileManager::OnAliasTreeCloseEditor, Qt::UniqueConnection);
}

void CKTFileManager::HideTopLevelRows()
{
    // A view without a root shows the drives. This happens before a folder is set and after the shown one has
    // vanished, when the list has nothing to show.
    if (m_pListView->rootIndex().isValid())
        return;
    for (int row = 0; row < m_pProxy->rowCount(); ++row) {
        m_pListView->setRowHidden(row, true);
        m_pDetailView->setRowHidden(row, QModelIndex(), true);
    }
}

CKTFMListModel* CKTFileManager::GetListModel() const
{
    return m_pListModel;
}

CKTFMTreeModel* CKTFileManager::GetTreeModel() const
{
    return m_pTreeModel;
}

CKTFMAliasTreeModel* CKTFileManager::GetAliasTreeModel() const
{
    return m_pAliasTreeModel;
}

QTreeView* CKTFileManager::GetAliasTreeView() const
{
    return m_pAliasTreeView;
}

CKTFMDelegate* CKTFileManager::GetListViewDelegate() const
{
    return m_pDelegate;
}

QMenu* CKTFileManager::GetContextMenu() const
{
    return m_pContextMenu;
}

EKTFMViewMode CKTFileManager::GetViewMode() const
{
    return m_eViewMode;
}

bool CKTFileManager::IsCustomViewMode() const
{
    return m_bCustomViewMode;
}

void CKTFileManager::SetCustomViewMode(bool custom)
{
    m_bCustomViewMode = custom;
}

void CKTFileManager::SetParentForMsgBox(QWidget* parent)
{
    m_pMsgBoxParent = parent;
}

void CKTFileManager::SetLastMenuFrom(EKTFMPart part)
{
    m_eLastMenuFrom = part;
}

void CKTFileManager::SetCallBackInterface(CKTFMInterface* fm, CKTFMTreeModelInterface* tree,
                                          CKTFMListModelInterface* list, CKTFMAliasTreeModelInterface* alias)
{
    m_pInterface = fm;
    m_pTreeModel->SetInterface(tree);
    m_pListModel->SetInterface(list);
    m_pAliasTreeModel->SetInterface(alias);
}

QSize CKTFileManager::GetListIconSize() const
{
    return m_pListView->iconSize();
}

QSize CKTFileManager::GetDetailIconSize() const
{
    return m_pDetailView->iconSize();
}

QSize CKTFileManager::GetMaxIconSize() const
{
    return MaxIconSize;
}

void CKTFileManager::UpdateWnd(EKTFMUpdateWidget widget)
{
    if (widget == FM_UPDATE_LIST_VIEW)
        m_pListView->viewport()->update();
}

void CKTFileManager::InstallEventFilter(QObject* filter)
{
    m_pListView->installEventFilter(filter);
    m_pDetailView->installEventFilter(filter);
}

void CKTFileManager::resizeEvent(QResizeEvent* event)
{
    Q_UNUSED(event)
    CalculateItemPosition();
}

void CKTFileManager::showEvent(QShowEvent* event)
{
    Q_UNUSED(event)
    CalculateItemPosition();
}

void CKTFileManager::RelayError(int pane, int error)
{
    update();
    Q_EMIT OnError(pane, RenameAction, error);
}

void CKTFileManager::OnTreeRenameFileError(int error)
{
    RelayError(TreeErrors, error);
}

void CKTFileManager::OnListRenameFileError(int error)
{
    RelayError(ListErrors, error);
}

void CKTFileManager::OnAliasTreeRenameFileError(int error)
{
    RelayError(AliasTreeErrors, error);
}
