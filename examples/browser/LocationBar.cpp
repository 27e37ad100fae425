#include "LocationBar.h"

#include "AddressField.h"
#include "FolderTrail.h"
#include "Symbols.h"

#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CTitleBarView.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStyle>
#include <QToolButton>

namespace {

/** The pages of the bar. */
enum Page : int
{
    TrailPage = 0,
    AddressPage = 1
};

/** The space around the bar, in pixels. */
constexpr int Margin = 3;

} // namespace

LocationBar::LocationBar(CKTFMTreeModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_pTrail(
          std::make_unique<FolderTrail>(model, [this](const QString& path) { Q_EMIT FolderChosen(path); })),
      m_pPages(new QStackedLayout),
      m_pField(new AddressField(this))
{
    m_pPages->addWidget(CreateTrailRow());
    m_pPages->addWidget(m_pField);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addLayout(m_pPages);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(m_pField, &AddressField::Entered, this, &LocationBar::AddressEntered);
    connect(m_pField, &AddressField::GivenUp, this, &LocationBar::ShowTrail);
}

LocationBar::~LocationBar()
{
    disconnect(m_pField, nullptr, this, nullptr);
    delete m_pTrailBar;
}

QWidget* LocationBar::CreateTrailRow()
{
    auto* row = new QWidget(this);
    CreateTrail(row);
    auto* edit = new QToolButton(row);
    edit->setAutoRaise(true);
    edit->setIcon(Symbols::Icon("document-edit"));
    edit->setToolTip(tr("Type an address"));
    edit->setAccessibleName(edit->toolTip());
    connect(edit, &QToolButton::clicked, this, &LocationBar::AskForAddress);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pTrailArea, 1);
    layout->addWidget(edit);
    return row;
}

void LocationBar::CreateTrail(QWidget* row)
{
    m_pTrailArea = new QScrollArea(row);
    m_pTrailArea->setFrameShape(QFrame::NoFrame);
    m_pTrailArea->setFocusPolicy(Qt::NoFocus);
    m_pTrailArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pTrailArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pTrailArea->setWidgetResizable(true);
    m_pTrailBar = new CTitleBarView(m_pTrailArea->viewport(), m_pTrail.get());
    m_pTrailBar->SetRootIcon(style()->standardIcon(QStyle::SP_DriveHDIcon));
    m_pTrailBar->SetRootItemUseIcon(true);
    m_pTrailBar->installEventFilter(this);
    m_pTrailArea->setWidget(m_pTrailBar);
    QScrollBar* scroll = m_pTrailArea->horizontalScrollBar();
    connect(scroll, &QScrollBar::rangeChanged, scroll, [scroll](int, int end) { scroll->setValue(end); });
}

void LocationBar::ShowFolder(const QString& path)
{
    m_path = path;
    m_pTrailBar->UpdateCrumBar(m_model.index(path), true);
    m_pPages->setCurrentIndex(TrailPage);
}

void LocationBar::AskForAddress()
{
    m_pPages->setCurrentIndex(AddressPage);
    m_pField->Ask(m_path);
}

void LocationBar::ShowTrail()
{
    if (m_pPages->currentIndex() == TrailPage)
        return;
    const bool hadFocus = m_pField->hasFocus();
    m_pPages->setCurrentIndex(TrailPage);
    if (hadFocus)
        Q_EMIT AddressGivenUp();
}

bool LocationBar::eventFilter(QObject* object, QEvent* event)
{
    // The bar's buttons count only when they are shown, a little later than they are made.
    if (object == m_pTrailBar && event->type() == QEvent::LayoutRequest)
        m_pTrailArea->setFixedHeight(qMax(m_pTrailBar->sizeHint().height(), m_pField->sizeHint().height()));
    // A press on a button goes to the button: this one is beside them.
    if (object == m_pTrailBar && event->type() == QEvent::MouseButtonPress)
        AskForAddress();
    return QWidget::eventFilter(object, event);
}
