#include "ContentPane.h"

#include "ContentImages.h"
#include "ThumbnailView.h"

#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMSortFilterProxyModel.h>
#include <KTFileManager2QU/CKTFMTreeView.h>

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>

#include <algorithm>
#include <array>

namespace {

/** The columns of a file-system model that an order is by. */
enum Column : int
{
    NameColumn = 0,
    DateColumn = 3
};

/** The height of a row of the table and the side of its image, in pixels. */
constexpr int RowHeight = 36;
constexpr int TableIconSide = 32;

/** The width of the table's column of names, in pixels. */
constexpr int NameWidth = 280;

/** An entry of the order choice. */
struct Order
{
    const char* text;
    int column;
    Qt::SortOrder direction;
    bool isOwn; ///< decided by ContentOrder
    ContentOrder::Kind kind;
};

// The proxy's own order shows names from A to Z when it is descending, as under a header; ours is ascending.
constexpr std::array<Order, 4> Orders = {
    {{QT_TRANSLATE_NOOP("ContentPane", "Name"), NameColumn, Qt::DescendingOrder, false, {}},
     {QT_TRANSLATE_NOOP("ContentPane", "Number"), NameColumn, Qt::AscendingOrder, true,
      ContentOrder::Numbers},
     {QT_TRANSLATE_NOOP("ContentPane", "Kind"), NameColumn, Qt::AscendingOrder, true, ContentOrder::Suffixes},
     {QT_TRANSLATE_NOOP("ContentPane", "Latest first"), DateColumn, Qt::DescendingOrder, false, {}}}};

} // namespace

ContentPane::ContentPane(ContentImages& images, QWidget* parent)
    : QWidget(parent),
      m_images(images),
      m_pViews(new QStackedWidget)
{
    CreateModels();
    CreateThumbnails();
    CreateTable();
    CreateControls();
    ConnectModels();
    Sort();
}

ContentPane::~ContentPane()
{
    // The views go after the models that this object owns.
    m_pThumbnails->setModel(nullptr);
    m_pTable->setModel(nullptr);
}

void ContentPane::CreateModels()
{
    m_pModel = std::make_unique<CKTFMListModel>();
    m_pModel->SetInterface(this); // HandleListviewDecorationRole gives the images
    m_pModel->SetSortedByProxy(true);
    m_pModel->SetRowHeight(RowHeight);

    m_pProxy = std::make_unique<CKTFMSortFilterProxyModel>();
    m_pProxy->setSourceModel(m_pModel.get());
    m_pProxy->SetInterface(&m_order); // asked while SetCustomSort is on
}

void ContentPane::CreateThumbnails()
{
    m_pThumbnails = new ThumbnailView;
    m_pThumbnails->setModel(m_pProxy.get());
    m_pThumbnails->Thumbnails().SetFileSystemModel(m_pModel.get(), m_pProxy.get(), nullptr);
    m_pThumbnails->setDragEnabled(true);
    m_pThumbnails->setAccessibleName(tr("Content as thumbnails"));
    m_pViews->addWidget(m_pThumbnails);
    ConnectView(*m_pThumbnails);
}

void ContentPane::CreateTable()
{
    m_pTable = new CKTFMTreeView;
    m_pTable->setModel(m_pProxy.get());
    m_pTable->setSelectionModel(m_pThumbnails->selectionModel());
    m_pTable->setRootIsDecorated(false);
    m_pTable->setItemsExpandable(false);
    m_pTable->setUniformRowHeights(true);
    m_pTable->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_pTable->setIconSize(QSize(TableIconSide, TableIconSide));
    m_pTable->setDragEnabled(true);
    m_pTable->setAccessibleName(tr("Content as a table"));
    m_pTable->header()->resizeSection(NameColumn, NameWidth);
    m_pViews->addWidget(m_pTable);
    ConnectView(*m_pTable);
}

void ContentPane::CreateControls()
{
    m_pSearchField = new QLineEdit;
    m_pSearchField->setPlaceholderText(tr("Search in this folder"));
    m_pSearchField->setAccessibleName(tr("Search"));
    m_pSearchField->setClearButtonEnabled(true);
    m_pSearchField->installEventFilter(this);
    connect(m_pSearchField, &QLineEdit::textChanged, this, &ContentPane::Search);

    m_pOrderChoice = new QComboBox;
    for (const Order& order : Orders)
        m_pOrderChoice->addItem(tr(order.text));
    connect(m_pOrderChoice, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ContentPane::Sort);
    auto* orderLabel = new QLabel(tr("&Order:"));
    orderLabel->setBuddy(m_pOrderChoice);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* controls = new QHBoxLayout;
    controls->addWidget(m_pSearchField, 1);
    controls->addWidget(orderLabel);
    controls->addWidget(m_pOrderChoice);
    layout->addLayout(controls);
    layout->addWidget(m_pViews, 1);
    setFocusProxy(ShownView());
}

void ContentPane::ConnectModels()
{
    const CKTFMSortFilterProxyModel* proxy = m_pProxy.get();
    connect(proxy, &QAbstractItemModel::rowsInserted, this, &ContentPane::Count);
    connect(proxy, &QAbstractItemModel::rowsRemoved, this, &ContentPane::Count);
    connect(proxy, &QAbstractItemModel::layoutChanged, this, &ContentPane::Count);
    connect(m_pModel.get(), &QFileSystemModel::directoryLoaded, this, &ContentPane::NoteListed);
    // Later, since another folder cannot be opened while the model removes rows.
    connect(m_pModel.get(), &QAbstractItemModel::rowsRemoved, this, &ContentPane::TellIfVanished,
            Qt::QueuedConnection);
    // The models tell nobody that an image has changed: the views ask again.
    connect(&m_images, &ContentImages::Ready, this, [this] { ShownView()->viewport()->update(); });
}

void ContentPane::ConnectView(QAbstractItemView& view)
{
    connect(&view, &QAbstractItemView::activated, this, &ContentPane::Activate);
    connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ContentPane::SelectionChanged, Qt::UniqueConnection);
}

void ContentPane::ShowFolder(const QString& path)
{
    m_folder = path;
    m_bListed = !m_pModel->canFetchMore(m_pModel->index(path));
    m_pSearchField->clear();
    const QModelIndex root = m_pProxy->mapFromSource(m_pModel->setRootPath(path));
    m_pThumbnails->setRootIndex(root);
    m_pTable->setRootIndex(root);
    m_pThumbnails->selectionModel()->clear();
    SayWhyEmpty();
    Count();
}

void ContentPane::Search(const QString& text)
{
    m_pProxy->SetSearchTextFilter(text);
    m_pProxy->invalidate(); // the text alone changes nothing yet
    SayWhyEmpty();
    ShownView()->scrollTo(ShownView()->currentIndex());
}

void ContentPane::Sort()
{
    const Order& order = Orders.at(static_cast<std::size_t>(m_pOrderChoice->currentIndex()));
    m_order.SetKind(order.kind);
    m_pProxy->SetCustomSort(order.isOwn);
    // A proxy that is asked for the column and direction that it has does not sort again.
    if (m_pProxy->sortColumn() == order.column && m_pProxy->sortOrder() == order.direction)
        m_pProxy->invalidate();
    else
        m_pProxy->sort(order.column, order.direction);
}

void ContentPane::SayWhyEmpty()
{
    const QString text = m_pSearchField->text();
    if (!text.isEmpty())
        m_pThumbnails->SetEmptyText(tr("No name here contains \u201c%1\u201d.").arg(text));
    else
        m_pThumbnails->SetEmptyText(m_bListed ? tr("This folder is empty.") : QString());
}

QString ContentPane::Folder() const
{
    return m_folder;
}

const CKTFMListModel& ContentPane::Model() const
{
    return *m_pModel;
}

QAbstractItemView* ContentPane::ShownView() const
{
    return qobject_cast<QAbstractItemView*>(m_pViews->currentWidget());
}

QStringList ContentPane::SelectedPaths() const
{
    QModelIndexList rows = m_pThumbnails->selectionModel()->selectedIndexes();
    const auto isOtherCell = [](const QModelIndex& index) { return index.column() != NameColumn; };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isOtherCell), rows.end());
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const QModelIndex& row : rows)
        paths.append(m_pModel->filePath(m_pProxy->mapToSource(row)));
    return paths;
}

void ContentPane::ShowTable(bool on)
{
    const bool hadFocus = ShownView()->hasFocus();
    QItemSelectionModel* selection = m_pThumbnails->selectionModel();
    if (on) // the thumbnails select the first column alone
        selection->select(selection->selection(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    m_pViews->setCurrentWidget(on ? static_cast<QWidget*>(m_pTable) : m_pThumbnails);
    ShownView()->scrollTo(ShownView()->currentIndex());
    setFocusProxy(ShownView());
    if (hadFocus)
        setFocus();
}

void ContentPane::SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler)
{
    m_pThumbnails->SetContextMenuHandleInterface(handler);
    m_pTable->SetContextMenuHandleInterface(handler);
}

void ContentPane::StartSearch()
{
    m_pSearchField->setFocus(Qt::ShortcutFocusReason);
    m_pSearchField->selectAll();
}

bool ContentPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_pSearchField || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape)
        m_pSearchField->clear();
    const bool leaves =
        key == Qt::Key_Escape || key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (leaves)
        setFocus(Qt::OtherFocusReason);
    return leaves;
}

void ContentPane::NoteListed(const QString& path)
{
    if (path != m_pModel->rootPath())
        return;
    m_bListed = true;
    SayWhyEmpty();
    Count();
}

void ContentPane::Count()
{
    const QModelIndex root = m_pThumbnails->rootIndex();
    if (root.isValid())
        Q_EMIT Counted(m_pProxy->rowCount(root), m_pModel->rowCount(m_pProxy->mapToSource(root)));
}

void ContentPane::TellIfVanished()
{
    // A view whose root is gone would show the disks.
    if (!m_folder.isEmpty() && !m_pThumbnails->rootIndex().isValid())
        Q_EMIT Vanished(m_folder);
}

void ContentPane::Activate(const QModelIndex& index)
{
    const QModelIndex file = m_pProxy->mapToSource(index);
    Q_EMIT Activated(m_pModel->filePath(file), m_pModel->isDir(file));
}

QImage ContentPane::HandleListviewDecorationRole(const QModelIndex& index)
{
    if (index.column() != NameColumn) // every column is asked for
        return QImage();
    // The model answers from what it has gathered; nothing here asks the disk.
    return m_pModel->isDir(index) ? m_images.Cards().Folder()
                                  : m_images.OfFile(m_pModel->filePath(index), m_pModel->lastModified(index));
}
