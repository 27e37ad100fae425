#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListView.h>
#include <KTFileManager2QU/CKTFMSimpleTreeView.h>
#include <KTFileManager2QU/CKTFMTreeView.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/views/RecordedDrag.h"
#include "views/CKTListView.h"
#include "views/ItemDrag.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileSystemModel>
#include <QScrollBar>

#include <memory>

class tst_Views : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructorChangesNoSetting();
    void diesWithItsParent();

    void rightClickReachesHandlerAndParent_data();
    void rightClickReachesHandlerAndParent();
    void rightClickWithoutHandlerIsAsOnAPlainView_data();
    void rightClickWithoutHandlerIsAsOnAPlainView();
    void nullHandlerEndsForwarding();

    void dragCarriesTheFilesAsUrls_data();
    void dragCarriesTheFilesAsUrls();
    void dragOffersCopyOnly_data();
    void dragOffersCopyOnly();
    void defaultActionIsTheViewsOwnIfSupported();
    void defaultActionIsCopyIfSupported();
    void internalMoveHasNoDefaultAction();
    void dragOfNothingIsStartedWithAnEmptyImage();
    void dragWithoutMimeDataIsStarted();
    void dragWithoutAModelIsStarted();
    void nothingIsDeselectedOrRemoved();

    void imageIsTheBoundingBoxOfTheItemsInSight();
    void imageHasItemsAsTheListPaintsThemWhenSelected();
    void imageIsTransparentBetweenItems();
    void imageOfItemsOutOfSightIsEmpty();
    void imageOfATreeHasEachRowOnce();
    void imageIsAsSharpAsTheScreen();
    void imageHasNoHotSpotOfItsOwn();

    void droppedFilesArriveAsACopy();
};

namespace {

using ListView = Open<CKTFMListView>;
using TreeView = Open<CKTFMTreeView>;
using PaneListView = Open<CKTListView>;

/** Remembers what it was called with. */
class Handler : public CKTFMContextMenuHandleInterface
{
public:
    void HandleContextMenuEvent(QWidget* view, QContextMenuEvent* event) override
    {
        views.append(view);
        positions.append(event->pos());
        event->accept();
    }

    QVector<QWidget*> views;
    QVector<QPoint> positions;
};

/** A parent that counts the context menu events that reach it. */
class MenuParent : public QWidget
{
public:
    int events = 0;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        ++events;
        event->accept();
    }
};

/** A file-system model over a real folder with three files. */
struct Files
{
    Files()
    {
        for (const QString& name : qAsConst(names))
            folder.File(name);
        model.setRootPath(folder.Path());
    }

    QModelIndex Root() const { return model.index(folder.Path()); }
    bool IsListed() const { return model.rowCount(Root()) == names.size(); }

    QStringList names = {QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c d")};
    TestFolder folder;
    QFileSystemModel model;
};

void RightClick(QAbstractScrollArea* view, const QPoint& pos)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, view->viewport()->mapToGlobal(pos));
    QCoreApplication::sendEvent(view->viewport(), &event);
}

/** Makes the exported view of some class name, or a plain one. */
QAbstractItemView* MakeView(const QString& name, QWidget* parent, Handler* handler)
{
    const auto with = [handler](auto* view) {
        view->SetContextMenuHandleInterface(handler);
        return view;
    };
    if (name == QStringLiteral("CKTFMListView"))
        return with(new CKTFMListView(parent));
    if (name == QStringLiteral("CKTFMTreeView"))
        return with(new CKTFMTreeView(parent));
    return with(new CKTFMSimpleTreeView(parent));
}

void AddViewRows()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"CKTFMListView", "CKTFMTreeView", "CKTFMSimpleTreeView"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

} // namespace

/** @return whether two views differ in no property but those that depend on what they show */
static bool HaveEqualSettings(const QObject& left, const QObject& right)
{
    const QMetaObject* meta = right.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const char* name = meta->property(i).name();
        if (left.property(name) != right.property(name)) {
            qInfo() << name << left.property(name) << right.property(name);
            return false;
        }
    }
    return true;
}

void tst_Views::constructorChangesNoSetting()
{
    QVERIFY(HaveEqualSettings(CKTFMListView(), QListView()));
    QVERIFY(HaveEqualSettings(CKTFMTreeView(), QTreeView()));
    QVERIFY(HaveEqualSettings(CKTFMSimpleTreeView(), QTreeView()));
    QVERIFY(HaveEqualSettings(CKTListView(nullptr, nullptr), QListView()));
}

void tst_Views::diesWithItsParent()
{
    auto parent = std::make_unique<QWidget>();
    const QVector<QPointer<QWidget>> views = {
        new CKTFMListView(parent.get()), new CKTFMTreeView(parent.get()),
        new CKTFMSimpleTreeView(parent.get()), new CKTListView(parent.get(), nullptr)};
    for (const auto& view : views)
        QCOMPARE(view->parentWidget(), parent.get());
    parent.reset();
    for (const auto& view : views)
        QVERIFY(view.isNull());
}

void tst_Views::rightClickReachesHandlerAndParent_data()
{
    AddViewRows();
}

void tst_Views::rightClickReachesHandlerAndParent()
{
    QFETCH(QString, name);
    Handler handler;
    MenuParent parent;
    QAbstractItemView* view = MakeView(name, &parent, &handler);
    QCOMPARE(QString::fromLatin1(view->metaObject()->className()), name);
    RightClick(view, QPoint(7, 9));
    QCOMPARE(handler.views, QVector<QWidget*>{view});
    QCOMPARE(handler.positions, QVector<QPoint>{QPoint(7, 9)});
    QCOMPARE(parent.events, 1);
}

void tst_Views::rightClickWithoutHandlerIsAsOnAPlainView_data()
{
    AddViewRows();
}

void tst_Views::rightClickWithoutHandlerIsAsOnAPlainView()
{
    QFETCH(QString, name);
    MenuParent parent;
    RightClick(MakeView(name, &parent, nullptr), QPoint(7, 9));
    MenuParent plainParent;
    RightClick(new QTreeView(&plainParent), QPoint(7, 9));
    QCOMPARE(parent.events, plainParent.events);
    QCOMPARE(parent.events, 1);
}

void tst_Views::nullHandlerEndsForwarding()
{
    Handler handler;
    MenuParent parent;
    CKTFMListView view(&parent);
    view.SetContextMenuHandleInterface(&handler);
    view.SetContextMenuHandleInterface(nullptr);
    RightClick(&view, QPoint(1, 1));
    QVERIFY(handler.views.isEmpty());
    QCOMPARE(parent.events, 1);
}

/** Calls @p test with each of the views that drag, showing @p model. */
template <typename Test> static void ForEachDraggingView(QAbstractItemModel* model, Test test)
{
    ListView list;
    Show(&list, model);
    test(&list);
    TreeView tree;
    Show(&tree, model);
    test(&tree);
    PaneListView paneList(nullptr, nullptr);
    Show(&paneList, model);
    test(&paneList);
}

void tst_Views::dragCarriesTheFilesAsUrls_data()
{
    QTest::addColumn<int>("rows");
    QTest::newRow("one") << 1;
    QTest::newRow("all") << 3;
}

void tst_Views::dragCarriesTheFilesAsUrls()
{
    QFETCH(int, rows);
    Files files;
    QTRY_VERIFY(files.IsListed());
    QSet<QUrl> expected;
    for (int row = 0; row < rows; ++row)
        expected.insert(QUrl::fromLocalFile(files.folder.Path(files.names.at(row))));
    ForEachDraggingView(&files.model, [&](auto* view) {
        view->setRootIndex(files.Root());
        for (int row = 0; row < rows; ++row)
            view->selectionModel()->select(files.model.index(row, 0, files.Root()),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
        const Drag drag = Dragged(view);
        QCOMPARE(drag.count, 1);
        QCOMPARE(drag.source, static_cast<QObject*>(view));
        QCOMPARE(QSet<QUrl>(drag.urls.cbegin(), drag.urls.cend()), expected);
        QVERIFY(!drag.pixmap.isNull());
    });
}

void tst_Views::dragOffersCopyOnly_data()
{
    QTest::addColumn<int>("supported");
    QTest::newRow("copy") << static_cast<int>(Qt::CopyAction);
    QTest::newRow("copy and move") << static_cast<int>(Qt::CopyAction | Qt::MoveAction);
    QTest::newRow("move") << static_cast<int>(Qt::MoveAction);
    QTest::newRow("nothing") << static_cast<int>(Qt::IgnoreAction);
}

void tst_Views::dragOffersCopyOnly()
{
    QFETCH(int, supported);
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [supported](auto* view) {
        view->selectAll();
        const Drag drag = Dragged(view, static_cast<Qt::DropActions>(supported));
        QCOMPARE(drag.count, 1);
        QCOMPARE(drag.supported, Qt::DropActions(Qt::CopyAction));
    });
}

void tst_Views::defaultActionIsTheViewsOwnIfSupported()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [](auto* view) {
        view->selectAll();
        view->setDefaultDropAction(Qt::MoveAction);
        QCOMPARE(Dragged(view, Qt::CopyAction | Qt::MoveAction).defaultAction, Qt::MoveAction);
        QCOMPARE(Dragged(view, Qt::CopyAction).defaultAction, Qt::CopyAction);
        view->setDragDropMode(QAbstractItemView::InternalMove);
        QCOMPARE(Dragged(view, Qt::CopyAction | Qt::MoveAction).defaultAction, Qt::MoveAction);
    });
}

void tst_Views::defaultActionIsCopyIfSupported()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [](auto* view) {
        view->setDefaultDropAction(Qt::IgnoreAction);
        view->selectAll();
        QCOMPARE(Dragged(view, Qt::CopyAction | Qt::MoveAction).defaultAction, Qt::CopyAction);
    });
}

void tst_Views::internalMoveHasNoDefaultAction()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [](auto* view) {
        view->setDefaultDropAction(Qt::IgnoreAction); // a list view's own is to copy
        view->setDragDropMode(QAbstractItemView::InternalMove);
        QCOMPARE(ItemDrag::DefaultAction(*view, Qt::CopyAction | Qt::MoveAction), Qt::IgnoreAction);
        view->setDragDropMode(QAbstractItemView::DragOnly);
        QCOMPARE(ItemDrag::DefaultAction(*view, Qt::CopyAction | Qt::MoveAction), Qt::CopyAction);
        QCOMPARE(ItemDrag::DefaultAction(*view, Qt::MoveAction), Qt::IgnoreAction);
    });
}

void tst_Views::dragOfNothingIsStartedWithAnEmptyImage()
{
    Files files;
    QTRY_VERIFY(files.IsListed());
    ForEachDraggingView(&files.model, [](auto* view) {
        view->clearSelection();
        const Drag drag = Dragged(view);
        QCOMPARE(drag.count, 1);
        QVERIFY(drag.pixmap.isNull());
        QVERIFY(drag.urls.isEmpty());
    });
}

void tst_Views::dragWithoutMimeDataIsStarted()
{
    const auto model = Table(3, 1); // its mime data of no index is null
    QVERIFY(!model->mimeData({}));
    ForEachDraggingView(model.get(), [](auto* view) {
        const Drag drag = Dragged(view);
        QCOMPARE(drag.count, 1);
        QVERIFY(drag.formats.isEmpty());
        QCOMPARE(drag.supported, Qt::DropActions(Qt::CopyAction));
    });
}

void tst_Views::dragWithoutAModelIsStarted()
{
    ForEachDraggingView(nullptr, [](auto* view) { QCOMPARE(Dragged(view).count, 1); });
}

void tst_Views::nothingIsDeselectedOrRemoved()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [&model](auto* view) {
        view->selectAll();
        Dragged(view, Qt::CopyAction | Qt::MoveAction);
        QCOMPARE(model->rowCount(), 3);
        QCOMPARE(view->selectionModel()->selectedIndexes().size(), 3);
    });
}

void tst_Views::imageIsTheBoundingBoxOfTheItemsInSight()
{
    const auto model = Table(300, 1);
    ForEachDraggingView(model.get(), [&model](auto* view) {
        FillingDelegate delegate;
        view->setItemDelegate(&delegate);
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / 2);
        view->selectAll();
        QRect bounds;
        QVector<QModelIndex> inSight;
        for (int row = 0; row < model->rowCount(); ++row) {
            const QRect place = view->visualRect(model->index(row, 0));
            if (!place.intersects(view->viewport()->rect()))
                continue;
            bounds |= place;
            inSight.append(model->index(row, 0));
        }
        QVERIFY(inSight.size() > 5 && inSight.size() < 30);
        const QPixmap pixmap = Dragged(view).pixmap;
        QCOMPARE(pixmap.size() / pixmap.devicePixelRatio(), bounds.size());
        QCOMPARE(delegate.painted, inSight);
        view->setItemDelegate(nullptr);
    });
}

/** @return the part of a view's picture that shows @p rect */
static QImage PictureOf(QAbstractItemView* view, const QRect& rect)
{
    return view->viewport()->grab(rect).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/** @return @p pixmap on the ground of a view */
static QImage OnGround(const QPixmap& pixmap, const QAbstractItemView& view)
{
    QImage image(pixmap.size(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixmap.devicePixelRatio());
    image.fill(view.palette().color(QPalette::Base));
    QPainter(&image).drawPixmap(0, 0, pixmap);
    return image;
}

void tst_Views::imageHasItemsAsTheListPaintsThemWhenSelected()
{
    const auto model = Table(2, 1);
    QPixmap icon(60, 60);
    icon.fill(Qt::darkGreen);
    for (int row = 0; row < 2; ++row)
        model->item(row)->setIcon(QIcon(icon));
    ListView view;
    QFont font = view.font();
    font.setPixelSize(17);
    view.setFont(font);
    view.setViewMode(QListView::IconMode);
    view.setMovement(QListView::Static);
    view.setIconSize(QSize(60, 60));
    view.setItemDelegate(new CKTFMDelegate(&view));
    Show(&view, model.get());
    view.selectAll();
    const QRect both = view.visualRect(model->index(0, 0)) | view.visualRect(model->index(1, 0));
    QCOMPARE(OnGround(Dragged(&view).pixmap, view), PictureOf(&view, both));
}

void tst_Views::imageIsTransparentBetweenItems()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [&model](auto* view) {
        FillingDelegate delegate;
        view->setItemDelegate(&delegate);
        view->selectionModel()->select(model->index(0, 0), QItemSelectionModel::Select);
        view->selectionModel()->select(model->index(2, 0), QItemSelectionModel::Select);
        const QPoint middle = view->visualRect(model->index(1, 0)).center();
        const QPoint last = view->visualRect(model->index(2, 0)).center();
        const QPixmap pixmap = Dragged(view).pixmap;
        const QImage image = pixmap.toImage();
        const qreal ratio = pixmap.devicePixelRatio();
        const QPoint origin = view->visualRect(model->index(0, 0)).topLeft();
        QCOMPARE(image.pixelColor(((middle - origin) * ratio)).alpha(), 0);
        QCOMPARE(image.pixelColor(((last - origin) * ratio)), QColor(0, 0, 102));
        QCOMPARE(image.pixelColor(QPoint(3, 3)), QColor(0, 0, 100));
        view->setItemDelegate(nullptr);
    });
}

void tst_Views::imageOfItemsOutOfSightIsEmpty()
{
    const auto model = Table(300, 1);
    ForEachDraggingView(model.get(), [&model](auto* view) {
        view->selectionModel()->select(model->index(0, 0), QItemSelectionModel::ClearAndSelect);
        QVERIFY(!Dragged(view).pixmap.isNull());
        view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
        const Drag drag = Dragged(view);
        QVERIFY(drag.pixmap.isNull());
        QVERIFY(!drag.formats.isEmpty());
    });
}

void tst_Views::imageOfATreeHasEachRowOnce()
{
    const auto model = Table(3, 4);
    TreeView view;
    FillingDelegate delegate;
    Show(&view, model.get());
    view.setItemDelegate(&delegate);
    view.selectAll();
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 12);
    const Drag drag = Dragged(&view);
    const std::unique_ptr<QMimeData> all(model->mimeData(view.selectionModel()->selectedIndexes()));
    QCOMPARE(drag.items, all->data(ItemsFormat()));
    QRect first;
    for (int row = 0; row < 3; ++row)
        first |= view.visualRect(model->index(row, 0));
    QCOMPARE(drag.pixmap.size() / drag.pixmap.devicePixelRatio(), first.size());
    QVERIFY(first.width() < view.viewport()->width());
    for (const QModelIndex& index : qAsConst(delegate.painted))
        QCOMPARE(index.column(), 0);
    QCOMPARE(delegate.painted.size(), 3);
}

void tst_Views::imageIsAsSharpAsTheScreen()
{
    const auto model = Table(3, 1);
    ForEachDraggingView(model.get(), [&model](auto* view) {
        view->selectionModel()->select(model->index(1, 0), QItemSelectionModel::ClearAndSelect);
        const QSize size = view->visualRect(model->index(1, 0)).size();
        const QPixmap pixmap = Dragged(view).pixmap;
        QCOMPARE(pixmap.devicePixelRatio(), view->devicePixelRatioF());
        QCOMPARE(pixmap.size(), size * view->devicePixelRatioF());
    });
}

void tst_Views::imageHasNoHotSpotOfItsOwn()
{
    const auto model = Table(3, 1);
    const QPoint initial = QDrag(this).hotSpot();
    ForEachDraggingView(model.get(), [initial](auto* view) {
        view->selectAll();
        QCOMPARE(Dragged(view).hotSpot, initial);
    });
}

namespace {

/** A window that takes what is dropped on it. */
class DropTarget : public QWidget
{
public:
    DropTarget() { setAcceptDrops(true); }

    QList<QUrl> urls;
    Qt::DropActions possible;
    Qt::DropAction action = Qt::IgnoreAction;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }

    void dropEvent(QDropEvent* event) override
    {
        urls = event->mimeData()->urls();
        possible = event->possibleActions();
        action = event->dropAction();
        event->acceptProposedAction();
    }
};

} // namespace

void tst_Views::droppedFilesArriveAsACopy()
{
    if (QGuiApplication::platformName() != QStringLiteral("xcb"))
        QSKIP("drops need a platform with drags of its own");
    Files files;
    QTRY_VERIFY(files.IsListed());
    CKTFMListView view;
    view.setDragEnabled(true);
    Show(&view, &files.model);
    view.setRootIndex(files.Root());
    DropTarget target;
    target.setGeometry(600, 50, 300, 300);
    target.show();
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    const QPoint start = view.visualRect(files.model.index(0, 0, files.Root())).center();
    const QPoint from = view.viewport()->mapTo(&view, start);
    QWindow* window = view.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, from);
    QTimer mover;
    QSignalSpy moves(&mover, &QTimer::timeout);
    connect(&mover, &QTimer::timeout, this, [&] {
        const QPoint to =
            window->mapFromGlobal(target.mapToGlobal(QPoint(100, 100 + static_cast<int>(moves.size()))));
        if (moves.size() < 5)
            QTest::mouseMove(window, to);
        else
            QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, to);
    });
    mover.start(50);
    // The first move leaves the item, the second starts the drag, which returns when the button is released.
    QTest::mouseMove(window, from + QPoint(40, 40));
    QTest::mouseMove(window, from + QPoint(41, 41));
    mover.stop();
    QTRY_VERIFY(!target.urls.isEmpty());
    QCOMPARE(target.urls, QList<QUrl>{QUrl::fromLocalFile(files.folder.Path(files.names.first()))});
    QCOMPARE(target.possible, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(target.action, Qt::CopyAction);
    QVERIFY(QFile::exists(files.folder.Path(files.names.first())));
}

KTFM_TEST_MAIN(tst_Views)
#include "tst_views.moc"
