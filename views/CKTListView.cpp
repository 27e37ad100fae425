#include "views/CKTListView.h"

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

CKTListView::CKTListView(QWidget* parent, CKTFileManager* owner) : QListView(parent), m_pOwner(owner) {}

CKTListView::~CKTListView() = default;

void CKTListView::startDrag(Qt::DropActions supportedActions)
{
    const QModelIndexList indexes = selectedIndexes();
    QDrag* drag = ItemDrag::Create(this, indexes);
    QRect rect;
    drag->setPixmap(renderToPixmap(indexes, &rect));
    ItemDrag::Execute(drag, *this, supportedActions, Qt::CopyAction);
}

QPixmap CKTListView::renderToPixmap(const QModelIndexList& indexes, QRect* rect) const
{
    return DragImage::Compose(*this, indexes, viewOptions(), rect);
}
