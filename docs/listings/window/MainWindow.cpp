#include "MainWindow.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QMenu>
#include <QStatusBar>

MainWindow::MainWindow(const QString& folder)
    : m_pPane(new CKTFileManager(this, QRect(0, 0, 1000, 640), FM_MODE_TREE_AND_LIST, 25, true))
{
    m_pPane->GetListModel()->setParent(m_pPane);
    m_pPane->GetTreeModel()->setParent(m_pPane);
    m_pPane->GetAliasTreeModel()->setParent(m_pPane);

    m_pPane->SetCallBackInterface(this, nullptr, nullptr, nullptr);
    m_pPane->SetParentForMsgBox(this);
    m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
    const QColor blue = palette().color(QPalette::Highlight);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_HOVER, blue.lighter(190), blue.lighter(180), blue, 3);
    m_pPane->SetItemDisplayInfo(ITEM_STATUS_SELECTED, blue.lighter(180), blue.lighter(160), blue, 3);
    m_pPane->SetFlagStatus(FM_PART_TREE | FM_PART_LIST, 1 | 2 | 4, true); // renaming, tips, dragging
    connect(m_pPane, &CKTFileManager::OnError, this, &MainWindow::ShowError);

    setCentralWidget(m_pPane);
    statusBar();
    resize(1000, 640);
    ShowFolder(folder);
}

MainWindow::~MainWindow()
{
    delete m_pPane; // before the callbacks of this window are gone
}

void MainWindow::ShowFolder(const QString& folder)
{
    m_pPane->SetDirectory(folder);
    if (m_pPane->GetListModel()->rootPath() != folder)
        m_pPane->SetDirectory(folder); // the first call has filled the folder tree alone
}

void MainWindow::ShowError(int pane, int action, int error)
{
    Q_UNUSED(pane)
    Q_UNUSED(action)
    statusBar()->showMessage(error == 0 ? tr("This name is taken.") : tr("This name cannot be given."));
}

void MainWindow::OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
{
    if (!isFolder) // a folder is open already
        Q_EMIT FileOpened(absolutePath);
}

void MainWindow::OnListViewRootPathChanged(const QString& newPath)
{
    setWindowTitle(QDir::toNativeSeparators(newPath));
}

void MainWindow::OnShowPopupMenu(EKTFMMode pane, bool onItem)
{
    Q_UNUSED(pane)
    QMenu* menu = m_pPane->GetContextMenu();
    menu->clear();
    if (onItem)
        menu->addAction(tr("Delete"), this, [this] { m_pPane->DoCommand(FM_CMD_DELETE); });
    menu->addAction(tr("Paste"), this, [this] { m_pPane->DoCommand(FM_CMD_PASTE); })
        ->setEnabled(m_pPane->IsPasteable());
}
