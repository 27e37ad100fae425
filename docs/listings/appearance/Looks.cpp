#include "Looks.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QTreeView>

void ShowLargeThumbnails(CKTFileManager& pane)
{
    pane.SetViewMode(FM_VIEW_LARGE_ICON); // 125 x 125; sets the margin back to 40 x 40
    pane.SetGridMargin(60, 48);           // a cell: 185 x 173 pixels
    pane.SetItemBorder(30, 24);           // half of the margin on each side
    pane.SetHeightRatioOfTextArea(2.0F);  // names of two lines
    pane.CalculateItemPosition();         // uses the margin now
}

void ShowDark(CKTFileManager& pane)
{
    const QColor dark(40, 42, 46);
    const QColor light(230, 230, 230);
    pane.SetBgColor(dark, dark);
    pane.SetItemDisplayInfo(ITEM_STATUS_HOVER, dark.lighter(150), dark.lighter(130), light, 4);
    pane.SetItemDisplayInfo(ITEM_STATUS_SELECTED, dark.lighter(200), dark.lighter(170), light, 4);
    pane.GetListViewDelegate()->SetNameColor(light);
    // The names are there since SetBgColor; the alias tree has none.
    pane.setStyleSheet(QStringLiteral("QAbstractItemView { color: rgb(230, 230, 230); }"
                                      "#pListDetailView { font-size: 13px; }"));
    pane.GetAliasTreeView()->setStyleSheet(QStringLiteral("background-color: rgb(40, 42, 46);"));
}

void WidenNames(CKTFileManager& pane, int pixels)
{
    pane.SetBgColor(Qt::white, Qt::white); // gives the views their names
    auto* details = pane.findChild<QTreeView*>(QStringLiteral("pListDetailView"));
    details->setColumnWidth(0, pixels);
}

void PaintAnew(const CKTFileManager& pane)
{
    const auto views = pane.findChildren<QAbstractItemView*>();
    for (const QAbstractItemView* view : views)
        view->viewport()->update();
}
