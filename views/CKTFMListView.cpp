#include <KTFileManager2QU/CKTFMListView.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

CKTFMListView::CKTFMListView(QWidget* parent) : QListView(parent) {}

CKTFMListView::~CKTFMListView() = default;

void CKTFMListView::SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler)
{
    m_pContextMenuHandler = handler;
}

void CKTFMListView::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_pContextMenuHandler)
        m_pContextMenuHandler->HandleContextMenuEvent(this, event);
    QAbstractScrollArea::contextMenuEvent(event);
}

void CKTFMListView::startDrag(Qt::DropActions supportedActions)
{
    const QModelIndexList indexes = selectedIndexes();
    QDrag* drag = ItemDrag::Create(this, indexes);
    QRect rect;
    drag->setPixmap(renderToPixmap(indexes, &rect));
    ItemDrag::Execute(drag, *this, supportedActions, Qt::CopyAction);
}

QPixmap CKTFMListView::renderToPixmap(const QModelIndexList& indexes, QRect* rect) const
{
    return DragImage::Compose(*this, indexes, viewOptions(), rect);
}
