#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include "tests/support/TestMain.h"
#include "tests/views/RecordedDrag.h"
#include "views/CKTTreeView.h"

/** The drags of the detail view, whose actions depend on the pane that it belongs to. */
class tst_DetailView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void offersCopyOnly();
    void offersEveryActionInCustomViewMode();
    void choosesTheDefaultActionInCustomViewMode();
    void dragsEachRowOnceWithAllItsCells();
    void dragOfNothingIsStartedWithAnEmptyImage();
    void hasTheOwnerPanesModeOfTheMoment();

private:
    std::unique_ptr<CKTFileManager> m_pane;
    std::unique_ptr<QStandardItemModel> m_model;
    std::unique_ptr<Open<CKTTreeView>> m_view;
};

void tst_DetailView::init()
{
    m_pane = std::make_unique<CKTFileManager>(nullptr, QRect(0, 0, 400, 300), FM_MODE_LIST_ONLY, 30, true);
    m_model = Table(3, 4);
    m_view = std::make_unique<Open<CKTTreeView>>(nullptr, m_pane.get());
    Show(m_view.get(), m_model.get());
    m_view->selectAll();
}

void tst_DetailView::cleanup()
{
    m_view.reset();
    const QVector<QObject*> models = {m_pane->GetListModel(), m_pane->GetTreeModel(),
                                      m_pane->GetAliasTreeModel()};
    m_pane.reset();
    qDeleteAll(models);
}

void tst_DetailView::offersCopyOnly()
{
    const Drag drag = Dragged(m_view.get(), Qt::CopyAction | Qt::MoveAction | Qt::LinkAction);
    QCOMPARE(drag.count, 1);
    QCOMPARE(drag.supported, Qt::DropActions(Qt::CopyAction));
    QCOMPARE(drag.defaultAction, Qt::CopyAction);
}

void tst_DetailView::offersEveryActionInCustomViewMode()
{
    m_pane->SetCustomViewMode(true);
    const Qt::DropActions all = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
    QCOMPARE(Dragged(m_view.get(), all).supported, all);
    QCOMPARE(Dragged(m_view.get(), Qt::MoveAction).supported, Qt::DropActions(Qt::MoveAction));
    QCOMPARE(m_model->rowCount(), 3);
}

void tst_DetailView::choosesTheDefaultActionInCustomViewMode()
{
    m_pane->SetCustomViewMode(true);
    QCOMPARE(Dragged(m_view.get(), Qt::CopyAction | Qt::MoveAction).defaultAction, Qt::CopyAction);
    m_view->setDefaultDropAction(Qt::MoveAction);
    QCOMPARE(Dragged(m_view.get(), Qt::CopyAction | Qt::MoveAction).defaultAction, Qt::MoveAction);
}

void tst_DetailView::dragsEachRowOnceWithAllItsCells()
{
    FillingDelegate delegate;
    m_view->setItemDelegate(&delegate);
    const Drag drag = Dragged(m_view.get());
    QCOMPARE(delegate.painted.size(), 3);
    for (int row = 0; row < 3; ++row)
        QVERIFY(delegate.painted.contains(m_model->index(row, 0)));
    const QRect names = m_view->visualRect(m_model->index(0, 0)) | m_view->visualRect(m_model->index(2, 0));
    QCOMPARE(drag.pixmap.size() / drag.pixmap.devicePixelRatio(), names.size());
    const QModelIndexList cells = m_view->selectionModel()->selectedIndexes();
    QCOMPARE(cells.size(), 12);
    const std::unique_ptr<QMimeData> all(m_model->mimeData(cells));
    QCOMPARE(drag.items, all->data(ItemsFormat()));
}

void tst_DetailView::dragOfNothingIsStartedWithAnEmptyImage()
{
    m_view->clearSelection();
    const Drag drag = Dragged(m_view.get());
    QCOMPARE(drag.count, 1);
    QVERIFY(drag.pixmap.isNull());
}

void tst_DetailView::hasTheOwnerPanesModeOfTheMoment()
{
    const Qt::DropActions both = Qt::CopyAction | Qt::MoveAction;
    m_pane->SetCustomViewMode(true);
    QCOMPARE(Dragged(m_view.get(), both).supported, both);
    m_pane->SetCustomViewMode(false);
    QCOMPARE(Dragged(m_view.get(), both).supported, Qt::DropActions(Qt::CopyAction));
}

KTFM_TEST_MAIN(tst_DetailView)
#include "tst_detailview.moc"
