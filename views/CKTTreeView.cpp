#include "views/CKTTreeView.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

CKTTreeView::CKTTreeView(QWidget* parent, CKTFileManager* owner) : QTreeView(parent), m_pOwner(owner) {}

CKTTreeView::~CKTTreeView() = default;

void CKTTreeView::selectAll()
{
    // All items are rows of one folder, which one range holds; the base looks for it item by item.
    if (selectionMode() == ExtendedSelection || selectionMode() == MultiSelection)
        QAbstractItemView::selectAll();
    else
        QTreeView::selectAll();
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
