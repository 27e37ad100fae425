#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMDelegate.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include "views/CKTListView.h"
#include "views/CKTTreeView.h"

#include <QScrollBar>

namespace {

/** The interactions that SetFlagStatus switches, as bits. */
enum InteractionFlag : int
{
    RenameFlag = 1,
    ToolTipFlag = 2,
    DragFlag = 4
};

void SetBackground(QWidget* view, const QString& className, const QString& objectName, const QColor& color)
{
    view->setObjectName(objectName);
    view->setStyleSheet(QStringLiteral("%1#%2{ background-color: rgb(%3, %4, %5); }")
                            .arg(className, objectName)
                            .arg(color.red())
                            .arg(color.green())
                            .arg(color.blue()));
}

void SetScrollBarStyle(QAbstractItemView* view, bool vertical, int width, int height, const QColor& color)
{
    QScrollBar* bar = vertical ? view->verticalScrollBar() : view->horizontalScrollBar();
    const QString style = vertical ? QStringLiteral("width: %1 px;background-color:rgba( %2, %3, %4, 0%)")
                                   : QStringLiteral("height: %1 px;background-color:rgba( %2, %3, %4, 0%)");
    bar->setStyleSheet(
        style.arg(vertical ? width : height).arg(color.red()).arg(color.green()).arg(color.blue()));
}

void SetDraggable(QAbstractItemView* view, bool on)
{
    view->setDragEnabled(on);
    view->setDragDropMode(on ? QAbstractItemView::DragOnly : QAbstractItemView::NoDragDrop);
}

/** Switches the interactions of one pane, which may have several views over its model. */
template <typename Model>
void SetInteractions(Model* model, const QList<QAbstractItemView*>& views, int flags, bool on)
{
    if (flags & DragFlag) {
        for (QAbstractItemView* view : views)
            SetDraggable(view, on);
    }
    if (flags & RenameFlag)
        model->SetRenamable(on);
    if (flags & ToolTipFlag)
        model->SetShowTips(on);
}

} // namespace

void CKTFileManager::SetBgColor(QColor treeColor, QColor listColor)
{
    SetBackground(m_pListView, QStringLiteral("QListView"), QStringLiteral("pListView"), listColor);
    SetBackground(m_pDetailView, QStringLiteral("QTreeView"), QStringLiteral("pListDetailView"), listColor);
    SetBackground(m_pTreeView, QStringLiteral("QTreeView"), QStringLiteral("pTreeView"), treeColor);
}

void CKTFileManager::SetListviewScrollBarStyle(bool vertical, int width, int height, QColor color)
{
    SetScrollBarStyle(m_pListView, vertical, width, height, color);
}

void CKTFileManager::SetDetailviewScrollBarStyle(bool vertical, int width, int height, QColor color)
{
    SetScrollBarStyle(m_pDetailView, vertical, width, height, color);
}

void CKTFileManager::SetListviewScrollBarDirection(bool vertical)
{
    m_pListView->setFlow(vertical ? QListView::LeftToRight : QListView::TopToBottom);
    m_pListView->setWrapping(true);
}

void CKTFileManager::SetItemDisplayInfo(EItemStatus status, QColor c1, QColor c2, QColor c3, int n)
{
    if (status == ITEM_STATUS_HOVER)
        m_pDelegate->SetItemHoverColor(c1, c2, c3, n);
    else if (status == ITEM_STATUS_SELECTED)
        m_pDelegate->SetItemSelectedColor(c1, c2, c3, n);
}

void CKTFileManager::SetItemBorder(int width, int height)
{
    constexpr unsigned sides = 2;
    m_pDelegate->SetItemSpacing(sides * static_cast<unsigned>(qMax(0, width)),
                                sides * static_cast<unsigned>(qMax(0, height)));
}

void CKTFileManager::SetHeightRatioOfTextArea(float ratio)
{
    m_pDelegate->SetHeightRatioOfTextArea(ratio);
}

void CKTFileManager::SetThumbnailDrawOutline(bool draw)
{
    m_pDelegate->SetDrawOutline(draw);
}

void CKTFileManager::SetFlagStatus(int parts, int flags, bool on)
{
    if (parts & FM_PART_LIST)
        SetInteractions(m_pListModel, {m_pListView, m_pDetailView}, flags, on);
    if (parts & FM_PART_TREE)
        SetInteractions(m_pTreeModel, {m_pTreeView}, flags, on);
    if (parts & FM_PART_ALIAS_TREE)
        SetInteractions(m_pAliasTreeModel, {m_pAliasTreeView}, flags, on);
}

void CKTFileManager::SetFMViewShowStringMode(EKTFMPart part, EKTFMShowStringMode mode)
{
    switch (part) {
    case FM_PART_TREE:
        m_pTreeModel->SetShowStringMode(mode);
        break;
    case FM_PART_LIST:
        m_pListModel->SetShowStringMode(mode);
        break;
    case FM_PART_ALIAS_TREE:
        m_pAliasTreeModel->SetShowStringMode(mode);
        break;
    default:
        break;
    }
}

void CKTFileManager::SetFilenameMappingINIFile(EKTFMPart part, const QString& file, const QString& section)
{
    switch (part) {
    case FM_PART_TREE:
        m_pTreeModel->SetFolderNameMappingFile(file);
        m_pTreeModel->SetFileMappingSection(section);
        break;
    case FM_PART_LIST:
        m_pListModel->SetFileNameMappingFile(file);
        m_pListModel->SetFileMappingSection(section);
        break;
    case FM_PART_ALIAS_TREE:
        m_pAliasTreeModel->SetFileMappingIni(file);
        m_pAliasTreeModel->SetFileMappingSection(section);
        break;
    default:
        break;
    }
}

void CKTFileManager::SetFilenameMappingINISection(EKTFMPart part, const QString& section)
{
    if (part == FM_PART_TREE)
        m_pTreeModel->SetFileMappingSection(section);
    else if (part == FM_PART_LIST)
        m_pListModel->SetFileMappingSection(section);
}
