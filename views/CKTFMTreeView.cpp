#include <KTFileManager2QU/CKTFMTreeView.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

CKTFMTreeView::CKTFMTreeView(QWidget* parent) : QTreeView(parent) {}

CKTFMTreeView::~CKTFMTreeView() = default;

void CKTFMTreeView::SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler)
{
    m_pContextMenuHandler = handler;
}

void CKTFMTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_pContextMenuHandler)
        m_pContextMenuHandler->HandleContextMenuEvent(this, event);
    QAbstractScrollArea::contextMenuEvent(event);
}

void CKTFMTreeView::startDrag(Qt::DropActions supportedActions)
{
    const QModelIndexList indexes = selectedIndexes();
    QDrag* drag = ItemDrag::Create(this, indexes);
    QRect rect;
    drag->setPixmap(renderToPixmap(ItemDrag::FirstColumn(indexes), &rect));
    ItemDrag::Execute(drag, *this, supportedActions, Qt::CopyAction);
}

QPixmap CKTFMTreeView::renderToPixmap(const QModelIndexList& indexes, QRect* rect) const
{
    return DragImage::Compose(*this, indexes, viewOptions(), rect);
}
