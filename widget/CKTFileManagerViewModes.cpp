#include <KTFileManager2QU/CKTFileManager.h>

#include <KTFileManager2QU/CKTFMListModel.h>

#include "models/CMySortFilterProxyModel.h"
#include "views/CKTListView.h"
#include "views/CKTTreeView.h"
#include "widget/IconSizes.h"

#include <QStackedWidget>

namespace {

/** The pages of the view stack. */
enum Page : int
{
    GridPage = 0,
    DetailPage = 1
};

} // namespace

void CKTFileManager::SetViewMode(EKTFMViewMode mode)
{
    m_eViewMode = mode;
    switch (mode) {
    case FM_VIEW_DETAIL:
        ShowDetails();
        break;
    case FM_VIEW_ICON:
        ShowGrid(QSize(60, 60), QSize(40, 40), FM_ICON_MEDIUM);
        break;
    case FM_VIEW_LARGE_ICON:
        ShowGrid(QSize(125, 125), QSize(50, 50), FM_ICON_HUGE);
        break;
    default:
        break;
    }
}

void CKTFileManager::ShowDetails()
{
    m_pListSelectionModel->select(m_pListSelectionModel->selection(),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    m_pViewStack->setCurrentIndex(DetailPage);
    m_pDetailView->setFocus();
}

void CKTFileManager::ShowGrid(const QSize& listSize, const QSize& detailSize, EKTFMIconSize preset)
{
    m_pViewStack->setCurrentIndex(GridPage);
    SetIconSizes(listSize, detailSize);
    m_eIconSize = preset;
    TellDetailIconWidth();
    // A margin of the host's lasts for one switch: the columns are spread with the default one from here on.
    m_gridMargin = IconSizes::DefaultGridMargin;
    CalculateItemPosition();
    m_pListView->setFocus();
    m_pProxy->sort(0, Qt::DescendingOrder);
}

void CKTFileManager::SetIconSizes(const QSize& listSize, const QSize& detailSize)
{
    m_pListView->setIconSize(listSize);
    m_pListView->setGridSize(listSize + m_gridMargin);
    m_pDetailView->setIconSize(detailSize);
}

void CKTFileManager::TellDetailIconWidth()
{
    // A row of the table is as high as its image.
    m_pListModel->SetRowHeight(static_cast<unsigned int>(m_pDetailView->iconSize().width()));
}

void CKTFileManager::ToggleListViewMode()
{
    switch (m_eViewMode) {
    case FM_VIEW_ICON:
        SetViewMode(FM_VIEW_LARGE_ICON);
        break;
    case FM_VIEW_LARGE_ICON:
        SetViewMode(FM_VIEW_DETAIL);
        break;
    case FM_VIEW_DETAIL:
        SetViewMode(FM_VIEW_ICON);
        break;
    default:
        break;
    }
}

void CKTFileManager::SetIconSize(EKTFMIconSize size)
{
    if (const auto preset = IconSizes::Of(size))
        SetIconSizes(preset->list, preset->detail);
    m_eIconSize = size;
    TellDetailIconWidth();
}

void CKTFileManager::ToggleListIconSize()
{
    switch (m_eIconSize) {
    case FM_ICON_LARGE:
        SetIconSize(FM_ICON_MEDIUM);
        break;
    case FM_ICON_MEDIUM:
        SetIconSize(FM_ICON_SMALL);
        break;
    case FM_ICON_SMALL:
        SetIconSize(FM_ICON_LARGE);
        break;
    default:
        break;
    }
    CalculateItemPosition();
}

void CKTFileManager::SetGridSize(EKTFMGridSize size)
{
    m_gridMargin = IconSizes::MarginOf(size).value_or(m_gridMargin);
}

void CKTFileManager::SetGridMargin(int width, int height)
{
    m_gridMargin = QSize(width, height);
}

void CKTFileManager::CalculateItemPosition()
{
    if (m_pViewStack->currentIndex() != GridPage)
        return;
    const auto cell =
        IconSizes::SpreadCell(m_pListView->viewport()->width(), m_pListView->iconSize(), m_gridMargin);
    if (cell)
        m_pListView->setGridSize(*cell);
}

bool CKTFileManager::SetSelectionMode(EKTFMSelectionMode mode)
{
    if (mode < FM_SELECTION_NONE || mode > FM_SELECTION_CONTIGUOUS)
        return true;
    const auto qtMode = static_cast<QAbstractItemView::SelectionMode>(mode);
    m_pDetailView->setSelectionMode(qtMode);
    m_pListView->setSelectionMode(qtMode);
    return true;
}

void CKTFileManager::SetFilter(QStringList filters)
{
    if (!filters.isEmpty())
        m_pListModel->setNameFilters(filters);
}
