#include <KTFileManager2QU/CTitleBarView.h>

#include "views/SubFolders.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QScopedValueRollback>

CTitleBarView::CTitleBarView(QWidget* parent, CTitleBarSlotInterface* slotInterface)
    : QWidget(parent),
      m_pReferenceWidget(parent),
      m_pSlotInterface(slotInterface)
{
    IniCrumBarWidget();
}

CTitleBarView::~CTitleBarView()
{
    // The host may delete the bar because a button of it was clicked or an entry of its menu was chosen. Both
    // are used by the event's sender after that call, so that they must outlive it.
    const auto buttons = findChildren<CTitleBarButton*>(QString(), Qt::FindDirectChildrenOnly);
    for (CTitleBarButton* button : buttons) {
        if (button->IsCallingHost()) {
            button->setParent(nullptr);
            button->deleteLater();
        }
    }
}

KT::Result CTitleBarView::IniCrumBarWidget()
{
    delete m_pLayout;
    m_pLayout = new QHBoxLayout;
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(0);
    m_pLayout->addStretch(1);
    m_pLayout->setDirection(QBoxLayout::LeftToRight);
    if (m_pReferenceWidget) {
        setMaximumSize(m_pReferenceWidget->maximumSize());
        setMinimumSize(m_pReferenceWidget->minimumSize());
        setSizePolicy(m_pReferenceWidget->sizePolicy());
    }
    setLayout(m_pLayout);
    InsertButtons();
    return {KT::ResultDone};
}

KT::Result CTitleBarView::UpdateCrumBar(const QModelIndex& index, bool force)
{
    if (m_bBuilding || (index == m_shownIndex && !force))
        return {KT::ResultNothingToDo};
    const QScopedValueRollback<bool> building(m_bBuilding, true);
    m_shownIndex = index;
    ClearHBoxLayout();
    m_buttons.clear();
    CreateButtons();
    if (!m_buttons.isEmpty()) {
        ShowRootIcon();
        DropMenuWithoutFolders();
    }
    InsertButtons();
    update();
    return {KT::ResultDone};
}

void CTitleBarView::CreateButtons()
{
    for (QModelIndex index = m_shownIndex; index.isValid(); index = index.parent())
        AddButton(index);
}

void CTitleBarView::AddButton(QModelIndex& index)
{
    auto* button = new CTitleBarButton(this, index);
    m_buttons.append(button);
    connect(button, &QToolButton::clicked, button, &CTitleBarButton::OnClicked);
    connect(button->GetMenuPtr(), &QMenu::aboutToShow, button, &CTitleBarButton::CreateMenu);
}

void CTitleBarView::ShowRootIcon()
{
    if (!m_bRootItemUseIcon)
        return;
    CTitleBarButton* root = m_buttons.last();
    root->setText(QString());
    root->setIcon(m_rootIcon);
}

void CTitleBarView::DropMenuWithoutFolders()
{
    CTitleBarButton* current = m_buttons.first();
    if (SubFolders::AnyIn(current->GetCurrentPath()))
        return;
    current->setMenu(nullptr);
    current->setArrowType(Qt::NoArrow);
    current->setPopupMode(QToolButton::DelayedPopup);
}

void CTitleBarView::InsertButtons()
{
    int position = 0;
    for (int i = m_buttons.size() - 1; i >= 0; --i) {
        if (CTitleBarButton* button = m_buttons.at(i))
            m_pLayout->insertWidget(position++, button);
    }
}

KT::Result CTitleBarView::ClearHBoxLayout()
{
    for (const QPointer<CTitleBarButton>& button : qAsConst(m_buttons)) {
        if (!button)
            continue;
        m_pLayout->removeWidget(button);
        // A nested event loop of the host may keep the button for long: it must not show under the new ones.
        button->hide();
        button->deleteLater();
    }
    if (m_pReferenceWidget)
        m_pReferenceWidget->update();
    return {KT::ResultDone};
}

CTitleBarButton* CTitleBarView::GetToolButton(int i)
{
    return m_buttons.at(i);
}

int CTitleBarView::GetToolButtonSize()
{
    return m_buttons.size();
}

CTitleBarSlotInterface* CTitleBarView::GetTitleBarInterface() const
{
    return m_pSlotInterface;
}

void CTitleBarView::SetRootIcon(QIcon icon)
{
    m_rootIcon = icon;
}

void CTitleBarView::SetRootItemUseIcon(bool use)
{
    m_bRootItemUseIcon = use;
}

bool CTitleBarView::IsRootItemUseIcon() const
{
    return m_bRootItemUseIcon;
}
