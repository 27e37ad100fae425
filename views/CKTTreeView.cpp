#include "views/CKTTreeView.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

CKTTreeView::CKTTreeView(QWidget* parent, CKTFileManager* owner) : QTreeView(parent), m_pOwner(owner) {}

CKTTreeView::~CKTTreeView() = default;

void CKTTreeView::selectAll()
{
    const int rows = model() ? model()->rowCount(rootIndex()) : 0;
    if (rows == 0 || (selectionMode() != ExtendedSelection && selectionMode() != MultiSelection)) {
        QTreeView::selectAll();
        return;
    }
    // All items are rows of one folder, which one range holds; the base looks for it item by item.
    const QModelIndex first = model()->index(0, 0, rootIndex());
    const QModelIndex last = model()->index(rows - 1, model()->columnCount(rootIndex()) - 1, rootIndex());
    selectionModel()->select(QItemSelection(first, last),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CKTTreeView::startDrag(Qt::DropActions supportedActions)
{
    const QModelIndexList indexes = selectedIndexes();
    QDrag* drag = ItemDrag::Create(this, indexes);
    QRect rect;
    drag->setPixmap(renderToPixmap(ItemDrag::FirstColumn(indexes), &rect));
    const Qt::DropActions offered = m_pOwner->IsCustomViewMode() ? supportedActions : Qt::CopyAction;
    ItemDrag::Execute(drag, *this, supportedActions, offered);
}

QPixmap CKTTreeView::renderToPixmap(const QModelIndexList& indexes, QRect* rect) const
{
    return DragImage::Compose(*this, indexes, viewOptions(), rect);
}
