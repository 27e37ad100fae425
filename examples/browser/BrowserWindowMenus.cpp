#include "BrowserWindow.h"

#include "Actions.h"
#include "CommandActions.h"
#include "NavigationActions.h"
#include "ViewActions.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

namespace {

/** The side of a tool button's icon, in pixels. */
constexpr int ToolIconSide = 20;

/** The pane that a context menu's number stands for. */
EKTFMPart PartNumbered(int number)
{
    constexpr int treeNumber = 1;
    constexpr int listNumber = 2;
    if (number == treeNumber)
        return FM_PART_TREE;
    return number == listNumber ? FM_PART_LIST : FM_PART_ALIAS_TREE;
}

} // namespace

void BrowserWindow::CreateMenus()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->addActions({m_pCommands->Of(FM_CMD_NEW_FOLDER), m_pOpen});
    file->addSeparator();
    QAction* quit = Actions::Create(this, tr("&Quit"), "application-exit",
                                    Actions::Keys(QKeySequence::Quit, QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, this, &QWidget::close);
    file->addAction(quit);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    connect(edit, &QMenu::aboutToShow, m_pCommands, &CommandActions::Update);
    edit->addActions(
        {m_pCommands->Of(FM_CMD_CUT), m_pCommands->Of(FM_CMD_COPY), m_pCommands->Of(FM_CMD_PASTE)});
    edit->addSeparator();
    edit->addActions({m_pCommands->Of(FM_CMD_RENAME), m_pCommands->Of(FM_CMD_DELETE)});
    edit->addSeparator();
    edit->addAction(m_pCommands->Of(FM_CMD_SELECT_ALL));

    QMenu* view = menuBar()->addMenu(tr("&View"));
    view->addActions(m_pViewActions->Modes());
    view->addSeparator();
    view->addActions(m_pViewActions->Sizes());
    view->addActions({m_pViewActions->m_pLarger, m_pViewActions->m_pSmaller});
    view->addSeparator();
    view->addActions({m_pDark, m_pNavigation->m_pReload});

    QMenu* go = menuBar()->addMenu(tr("&Go"));
    go->addActions({m_pNavigation->m_pBack, m_pNavigation->m_pForward, m_pNavigation->m_pUp,
                    m_pNavigation->m_pHome, m_pNavigation->m_pAddress});
}

void BrowserWindow::CreateToolBar()
{
    QToolBar* toolBar = addToolBar(tr("Tool bar"));
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setMovable(false);
    toolBar->setIconSize(QSize(ToolIconSide, ToolIconSide));
    toolBar->addActions({m_pNavigation->m_pBack, m_pNavigation->m_pForward, m_pNavigation->m_pUp,
                         m_pNavigation->m_pHome, m_pNavigation->m_pReload});
    toolBar->addSeparator();
    m_pCommands->AddTo(*toolBar);
    auto* space = new QWidget(toolBar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    toolBar->addWidget(space);
    toolBar->addActions({m_pViewActions->m_pSmaller, m_pViewActions->m_pLarger});
    toolBar->addSeparator();
    toolBar->addActions(m_pViewActions->Modes());
    toolBar->addSeparator();
    toolBar->addAction(m_pDark);
}

void BrowserWindow::OnShowPopupMenu(EKTFMMode pane, bool onItem)
{
    QMenu* menu = m_pPane->GetContextMenu();
    const EKTFMPart part = PartNumbered(pane);
    menu->clear();
    if (part == FM_PART_LIST && onItem)
        menu->addAction(m_pOpen);
    m_pCommands->Fill(*menu, part, onItem);
    if (part == FM_PART_LIST && !onItem)
        menu->addAction(m_pNavigation->m_pReload);
}
