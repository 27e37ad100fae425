#include "ViewActions.h"

#include "Actions.h"
#include "DetailColumns.h"
#include "FocusKeeper.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QActionGroup>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>

namespace {

/** What a cell of the grid is wider than its image, in pixels: room for names. */
constexpr int GridMarginWidth = 60;

/** What a cell has above its image and between image and name, in pixels. */
constexpr int NameDistance = 16;

/** From the smallest on. */
const QList<EKTFMIconSize>& OfferedSizes()
{
    static const QList<EKTFMIconSize> sizes = {FM_ICON_SMALL, FM_ICON_MEDIUM, FM_ICON_LARGE, FM_ICON_HUGE};
    return sizes;
}

} // namespace

ViewActions::ViewActions(CKTFileManager& pane, QObject* parent)
    : QObject(parent),
      m_pLarger(Actions::Create(this, tr("&Larger"), "zoom-in", Actions::Keys(QKeySequence::ZoomIn))),
      m_pSmaller(Actions::Create(this, tr("S&maller"), "zoom-out", Actions::Keys(QKeySequence::ZoomOut))),
      m_pane(pane),
      m_views(pane),
      m_pModes(new QActionGroup(this)),
      m_pSizes(new QActionGroup(this))
{
    AddMode(tr("&Icons"), "view-list-icons", QStringLiteral("Ctrl+1"), FM_VIEW_ICON);
    AddMode(tr("&Details"), "view-list-details", QStringLiteral("Ctrl+2"), FM_VIEW_DETAIL);
    AddSizes();
    connect(m_pLarger, &QAction::triggered, this, [this] { Step(1); });
    connect(m_pSmaller, &QAction::triggered, this, [this] { Step(-1); });
    new DetailColumns(m_views.details->header(), this);
}

QAction* ViewActions::AddMode(const QString& text, const char* symbol, const QString& shortcut,
                              EKTFMViewMode mode)
{
    QAction* action = Actions::Create(this, text, symbol, {QKeySequence(shortcut)});
    action->setCheckable(true);
    action->setData(int(mode));
    m_pModes->addAction(action);
    connect(action, &QAction::triggered, this, [this, mode] { Show(mode, m_eSize); });
    return action;
}

void ViewActions::AddSizes()
{
    const QStringList texts = {tr("Small"), tr("Medium"), tr("Large"), tr("Huge")};
    for (int i = 0; i < texts.size(); ++i) {
        QAction* action = m_pSizes->addAction(texts.at(i));
        action->setCheckable(true);
        action->setData(int(OfferedSizes().at(i)));
        connect(action, &QAction::triggered, this, [this, i] { Show(m_eMode, OfferedSizes().at(i)); });
    }
}

EKTFMViewMode ViewActions::Mode() const
{
    return m_eMode;
}

EKTFMIconSize ViewActions::Size() const
{
    return m_eSize;
}

QList<QAction*> ViewActions::Modes() const
{
    return m_pModes->actions();
}

QList<QAction*> ViewActions::Sizes() const
{
    return m_pSizes->actions();
}

void ViewActions::Step(int steps)
{
    const int position = OfferedSizes().indexOf(m_eSize) + steps;
    Show(m_eMode, OfferedSizes().at(qBound(0, position, OfferedSizes().size() - 1)));
}

void ViewActions::Show(EKTFMViewMode mode, EKTFMIconSize size)
{
    const FocusKeeper focus;
    m_eMode = mode;
    m_eSize = size;
    // The pane's own mode starts as details while it shows the grid: what it shows counts too.
    const bool showsDetails = m_views.ShownList() == m_views.details;
    if (m_pane.GetViewMode() != mode || showsDetails != (mode == FM_VIEW_DETAIL))
        m_pane.SetViewMode(mode);
    ShowGrid();
    QAbstractItemView* view = m_views.ShownList();
    view->scrollTo(view->currentIndex());
    UpdateActions();
    Q_EMIT Changed();
}

void ViewActions::ShowGrid()
{
    // The pane goes back to its own margin with each switch; this one has room for two lines of the font.
    m_pane.SetGridMargin(GridMarginWidth, NameDistance + 2 * m_pane.fontMetrics().lineSpacing());
    m_pane.SetItemBorder(GridMarginWidth / 2, GridMarginWidth / 2);
    m_pane.SetIconSize(m_eSize);
    m_pane.CalculateItemPosition();
}

void ViewActions::UpdateActions()
{
    const auto actions = Modes() + Sizes();
    for (QAction* action : actions) {
        const int value = action->actionGroup() == m_pModes ? int(m_eMode) : int(m_eSize);
        action->setChecked(action->data().toInt() == value);
    }
    m_pSmaller->setEnabled(m_eSize != OfferedSizes().constFirst());
    m_pLarger->setEnabled(m_eSize != OfferedSizes().constLast());
}
