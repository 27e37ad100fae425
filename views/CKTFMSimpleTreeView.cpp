#include <KTFileManager2QU/CKTFMSimpleTreeView.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

CKTFMSimpleTreeView::CKTFMSimpleTreeView(QWidget* parent) : QTreeView(parent) {}

CKTFMSimpleTreeView::~CKTFMSimpleTreeView() = default;

void CKTFMSimpleTreeView::SetContextMenuHandleInterface(CKTFMContextMenuHandleInterface* handler)
{
    m_pContextMenuHandler = handler;
}

void CKTFMSimpleTreeView::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_pContextMenuHandler)
        m_pContextMenuHandler->HandleContextMenuEvent(this, event);
    QAbstractScrollArea::contextMenuEvent(event);
}
