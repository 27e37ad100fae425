#include "tests/support/PaneFixture.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>

#include <QItemSelection>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStackedWidget>
#include <QTreeView>
#include <QtTest>

namespace {

QString Text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

/** The number of indexes, which is what tells one selection from another in these tests. */
QString Counts(const QItemSelection& selected, const QItemSelection& deselected)
{
    return QStringLiteral("+%1 -%2").arg(selected.indexes().size()).arg(deselected.indexes().size());
}

} // namespace

void RecordingHost::Note(const QString& call)
{
    m_calls.append(call);
    if (m_onCall)
        m_onCall(call);
}

void RecordingHost::OnLButtonClickListItem(QString absolutePath)
{
    Note(QStringLiteral("OnLButtonClickListItem ") + absolutePath);
}

void RecordingHost::OnLButtonDblClickListItem(QString absolutePath, bool isFolder)
{
    Note(QStringLiteral("OnLButtonDblClickListItem %1 %2").arg(absolutePath, Text(isFolder)));
}

void RecordingHost::OnLButtonClickTreeItem(QString absolutePath)
{
    Note(QStringLiteral("OnLButtonClickTreeItem ") + absolutePath);
}

void RecordingHost::OnShowPopupMenu(EKTFMMode pane, bool onItem)
{
    Note(QStringLiteral("OnShowPopupMenu %1 %2").arg(pane).arg(Text(onItem)));
}

void RecordingHost::OnListViewSelectionChanged(const QItemSelection& selected,
                                               const QItemSelection& deselected)
{
    Note(QStringLiteral("OnListViewSelectionChanged ") + Counts(selected, deselected));
}

void RecordingHost::OnTreeViewSelectionChanged(const QItemSelection& selected,
                                               const QItemSelection& deselected)
{
    Note(QStringLiteral("OnTreeViewSelectionChanged ") + Counts(selected, deselected));
}

void RecordingHost::OnListViewRootPathChanged(const QString& newPath)
{
    Note(QStringLiteral("OnListViewRootPathChanged ") + newPath);
}

void RecordingHost::OnTreeViewRootPathChanged(const QString& newPath)
{
    Note(QStringLiteral("OnTreeViewRootPathChanged ") + newPath);
}

QImage RecordingHost::HandleListviewDecorationRole(const QModelIndex& index)
{
    Q_UNUSED(index)
    return m_listImage;
}

QImage RecordingHost::HandleTreeviewDecorationRole(const QModelIndex& index)
{
    Q_UNUSED(index)
    return m_treeImage;
}

QImage RecordingHost::HandleAliasTreeViewDecorationRole(const QModelIndex& index)
{
    Q_UNUSED(index)
    return m_aliasImage;
}

QStringList RecordingHost::CallsOf(const QString& operation) const
{
    return m_calls.filter(QRegularExpression(QStringLiteral("^%1 ").arg(operation)));
}

PaneFixture::PaneFixture(EKTFMMode mode, const QRect& rect, int leftPanePercent, bool showExtension)
    : m_pPane(new CKTFileManager(&m_window, rect, mode, leftPanePercent, showExtension)),
      m_pListModel(m_pPane->GetListModel()),
      m_pTreeModel(m_pPane->GetTreeModel()),
      m_pAliasTreeModel(m_pPane->GetAliasTreeModel())
{
    m_window.resize(rect.size());
    m_pPane->SetCallBackInterface(&m_host, &m_host, &m_host, &m_host);
}

PaneFixture::~PaneFixture()
{
    DeletePane();
}

void PaneFixture::DeletePane()
{
    delete m_pPane;
}

bool PaneFixture::Show()
{
    m_window.show();
    return QTest::qWaitForWindowExposed(&m_window);
}

void PaneFixture::Open(const QString& path)
{
    // The first one shows the tree alone.
    m_pPane->SetDirectory(path);
    m_pPane->SetDirectory(path);
    m_host.m_calls.clear();
}

bool PaneFixture::ShowFolder(int count)
{
    Open(m_folder.Path());
    return Show() && QTest::qWaitFor([this, count] { return Names().size() == count; });
}

QSplitter* PaneFixture::Splitter() const
{
    return m_pPane->findChild<QSplitter*>();
}

QStackedWidget* PaneFixture::Stack() const
{
    return m_pPane->findChild<QStackedWidget*>();
}

QListView* PaneFixture::Grid() const
{
    return qobject_cast<QListView*>(Stack()->widget(0));
}

QTreeView* PaneFixture::Details() const
{
    return qobject_cast<QTreeView*>(Stack()->widget(1));
}

QTreeView* PaneFixture::Tree() const
{
    return qobject_cast<QTreeView*>(Splitter()->widget(0));
}

QTreeView* PaneFixture::AliasTree() const
{
    return m_pPane->GetAliasTreeView();
}

QSortFilterProxyModel* PaneFixture::Proxy() const
{
    return qobject_cast<QSortFilterProxyModel*>(Grid()->model());
}

QAbstractItemView* PaneFixture::ShownList() const
{
    return qobject_cast<QAbstractItemView*>(Stack()->currentWidget());
}

QStringList PaneFixture::Names() const
{
    QStringList names;
    const QModelIndex root = Grid()->rootIndex();
    for (int row = 0; row < Proxy()->rowCount(root); ++row) {
        if (!Grid()->isRowHidden(row))
            names.append(Proxy()->index(row, 0, root).data(QFileSystemModel::FileNameRole).toString());
    }
    return names;
}

QStringList PaneFixture::DetailNames() const
{
    QStringList names;
    const QModelIndex root = Details()->rootIndex();
    for (int row = 0; row < Proxy()->rowCount(root); ++row) {
        if (!Details()->isRowHidden(row, root))
            names.append(Proxy()->index(row, 0, root).data(QFileSystemModel::FileNameRole).toString());
    }
    return names;
}

QModelIndex PaneFixture::ListIndex(const QString& relative) const
{
    return Proxy()->mapFromSource(m_pPane->GetListModel()->index(m_folder.Path(relative)));
}

QModelIndex PaneFixture::TreeIndex(const QString& relative) const
{
    return m_pPane->GetTreeModel()->index(m_folder.Path(relative));
}

void PaneFixture::Click(QAbstractItemView* view, const QModelIndex& index)
{
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
}

void PaneFixture::DoubleClick(QAbstractItemView* view, const QModelIndex& index)
{
    Click(view, index);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
}
