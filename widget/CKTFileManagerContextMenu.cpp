#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/KTFMInterfaces.h>

#include "views/CKTListView.h"
#include "views/CKTTreeView.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <array>

/** A pane that a right click may be in: its view, its number for the host, and its name for file commands. */
struct CKTFileManager::MenuPane
{
    const QAbstractItemView* view;
    int hostNumber;
    EKTFMPart part;
};

bool CKTFileManager::IsGlobalPositionInWidget(const QWidget* widget, const QPoint& globalPos) const
{
    return QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()).contains(globalPos);
}

void CKTFileManager::contextMenuEvent(QContextMenuEvent* pContextMenuEvent)
{
    pContextMenuEvent->accept();
    // The host may do anything when it is told, even delete this pane.
    const QPointer<CKTFileManager> self(this);
    TellHostOfMenu(pContextMenuEvent->globalPos());
    if (self && !m_pContextMenu->isEmpty())
        m_pContextMenu->exec(QCursor::pos());
}

void CKTFileManager::TellHostOfMenu(const QPoint& globalPos)
{
    const std::array<MenuPane, 4> panes = {{{m_pTreeView, 1, FM_PART_TREE},
                                            {m_pListView, 2, FM_PART_LIST},
                                            {m_pDetailView, 2, FM_PART_LIST},
                                            {m_pAliasTreeView, 3, FM_PART_ALIAS_TREE}}};
    // A view that is hidden keeps the place that it once had, and must not answer for it.
    const auto pane = std::find_if(panes.begin(), panes.end(), [this, &globalPos](const MenuPane& candidate) {
        return candidate.view->isVisible() && IsGlobalPositionInWidget(candidate.view, globalPos);
    });
    if (pane == panes.end())
        return;
    const QWidget* viewport = pane->view->viewport();
    const bool onItem = pane->view->indexAt(viewport->mapFromGlobal(globalPos)).isValid();
    m_eLastMenuFrom = pane->part;
    if (m_pInterface)
        m_pInterface->OnShowPopupMenu(static_cast<EKTFMMode>(pane->hostNumber), onItem);
}
