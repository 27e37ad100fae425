#include "ThumbnailView.h"

#include <KTFileManager2QU/CKTFMDelegate.h>

#include <QEvent>
#include <QPainter>

namespace {

/** The side of a thumbnail, in pixels. */
constexpr int IconSide = 96;

/** What a cell is wider than its thumbnail, in pixels: room for names. */
constexpr int CellMargin = 50;

/** What a cell has above the thumbnail, between it and the name, and below, in pixels. */
constexpr int NameDistance = 20;

/** The corners of a highlight, in pixels. */
constexpr int HighlightRadius = 6;

/** How much of the palette's highlight colour shows behind a thumbnail, in per 255: the name on it is in the
    colour of plain text. */
constexpr int HoverAlpha = 40;
constexpr int SelectedAlpha = 90;

/** The distance of the text of an empty view to its edges, in pixels. */
constexpr int EmptyTextMargin = 24;

QColor WithAlpha(QColor colour, int alpha)
{
    colour.setAlpha(alpha);
    return colour;
}

} // namespace

ThumbnailView::ThumbnailView(QWidget* parent) : CKTFMListView(parent), m_pDelegate(new CKTFMDelegate(this))
{
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static); // icon mode would let the user move the items about
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(true); // or all items are measured before the first is shown
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setMouseTracking(true); // for the highlight below the mouse
    setIconSize(QSize(IconSide, IconSide));
    setItemDelegate(m_pDelegate);
    FitToFont();
    FitToPalette();
}

CKTFMDelegate& ThumbnailView::Thumbnails() const
{
    return *m_pDelegate;
}

QSize ThumbnailView::minimumSizeHint() const
{
    return gridSize() + 2 * QSize(frameWidth(), frameWidth());
}

void ThumbnailView::SetEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

void ThumbnailView::changeEvent(QEvent* event)
{
    CKTFMListView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        FitToFont();
    else if (event->type() == QEvent::PaletteChange)
        FitToPalette();
}

void ThumbnailView::FitToFont()
{
    // The delegate writes a name into the cell's spacing; two lines of it have to fit there.
    const int nameHeight = 2 * fontMetrics().lineSpacing() + NameDistance;
    m_pDelegate->SetItemSpacing(CellMargin, static_cast<unsigned>(nameHeight));
    setGridSize(iconSize() + QSize(CellMargin, nameHeight));
}

void ThumbnailView::FitToPalette()
{
    const QColor colour = palette().color(QPalette::Highlight);
    const QColor hover = WithAlpha(colour, HoverAlpha);
    const QColor selected = WithAlpha(colour, SelectedAlpha);
    m_pDelegate->SetNameColor(palette().color(QPalette::Text));
    m_pDelegate->SetItemHoverColor(hover, hover, Qt::transparent, HighlightRadius);
    m_pDelegate->SetItemSelectedColor(selected, selected, colour, HighlightRadius);
}

void ThumbnailView::paintEvent(QPaintEvent* event)
{
    CKTFMListView::paintEvent(event);
    if (m_emptyText.isEmpty() || !model() || model()->rowCount(rootIndex()) > 0)
        return;
    constexpr int m = EmptyTextMargin;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(viewport()->rect().adjusted(m, m, -m, -m), Qt::AlignCenter | Qt::TextWordWrap,
                     m_emptyText);
}
