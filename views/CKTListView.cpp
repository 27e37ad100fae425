#include "views/CKTListView.h"

#include "views/DragImage.h"
#include "views/ItemDrag.h"

#include <QDrag>

#include <numeric>

namespace {

/** The rows whose places in the grid are looked up one by one; few grids show as many at a time. */
constexpr int MostRowsLookedUp = 1000;

} // namespace

CKTListView::CKTListView(QWidget* parent, CKTFileManager* owner) : QListView(parent), m_pOwner(owner) {}

CKTListView::~CKTListView() = default;

QRegion CKTListView::visualRegionForSelection(const QItemSelection& selection) const
{
    const int rows =
        std::accumulate(selection.cbegin(), selection.cend(), 0,
                        [](int sum, const QItemSelectionRange& range) { return sum + range.height(); });
    // To paint what is in sight costs less than to find out which of so many are.
    return rows > MostRowsLookedUp ? viewport()->rect() : QListView::visualRegionForSelection(selection);
}

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
