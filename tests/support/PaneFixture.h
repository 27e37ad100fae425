#ifndef PANEFIXTURE_H
#define PANEFIXTURE_H

#include "tests/support/TestFolder.h"

#include <KTFileManager2QU/CKTFileManager.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QImage>
#include <QMetaType>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class QAbstractItemView;
class QListView;
class QSortFilterProxyModel;
class QSplitter;
class QStackedWidget;
class QTreeView;

Q_DECLARE_METATYPE(EKTFMMode)
Q_DECLARE_METATYPE(EKTFMViewMode)

/** A host that notes what it is told, as "operation argument …", and then does what the test wants. */
class RecordingHost : public CKTFMInterface,
                      public CKTFMListModelInterface,
                      public CKTFMTreeModelInterface,
                      public CKTFMAliasTreeModelInterface
{
public:
    void OnLButtonClickListItem(QString absolutePath) override;
    void OnLButtonDblClickListItem(QString absolutePath, bool isFolder) override;
    void OnLButtonClickTreeItem(QString absolutePath) override;
    void OnShowPopupMenu(EKTFMMode pane, bool onItem) override;
    void OnListViewSelectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) override;
    void OnTreeViewSelectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) override;
    void OnListViewRootPathChanged(const QString& newPath) override;
    void OnTreeViewRootPathChanged(const QString& newPath) override;

    QImage HandleListviewDecorationRole(const QModelIndex& index) override;
    QImage HandleTreeviewDecorationRole(const QModelIndex& index) override;
    QImage HandleAliasTreeViewDecorationRole(const QModelIndex& index) override;

    /** @return the calls whose operation is @p operation */
    QStringList CallsOf(const QString& operation) const;

    QStringList m_calls;
    QImage m_listImage;
    QImage m_treeImage;
    QImage m_aliasImage;
    std::function<void(const QString& call)> m_onCall; ///< runs inside each call, after it was noted

private:
    void Note(const QString& call);
};

/** A pane in a window, over a folder of its own, with a host that notes what it is told. */
class PaneFixture
{
public:
    explicit PaneFixture(EKTFMMode mode = FM_MODE_TREE_AND_LIST, const QRect& rect = QRect(0, 0, 1000, 600),
                         int leftPanePercent = 30, bool showExtension = false);
    ~PaneFixture();

    PaneFixture(const PaneFixture&) = delete;
    PaneFixture& operator=(const PaneFixture&) = delete;

    /** Shows the window. @return whether it came up on the screen */
    bool Show();

    /** Makes a folder the root of the tree, shows it in the list and forgets the calls that this made. */
    void Open(const QString& path);

    /** Shows the pane on the test's folder; returns when the list holds @p count entries. */
    bool ShowFolder(int count);

    QSplitter* Splitter() const;
    QStackedWidget* Stack() const;
    QListView* Grid() const;
    QTreeView* Details() const;
    QTreeView* Tree() const;
    QTreeView* AliasTree() const;
    QSortFilterProxyModel* Proxy() const;

    /** @return the view of the file list that is shown */
    QAbstractItemView* ShownList() const;

    /** @return the full names that the grid shows, in its order, hidden rows left out */
    QStringList Names() const;

    /** @return the same of the table of details */
    QStringList DetailNames() const;

    /** @return the index in the list views of an entry of the test's folder */
    QModelIndex ListIndex(const QString& relative) const;

    /** @return the index in the folder tree of a folder of the test's folder */
    QModelIndex TreeIndex(const QString& relative) const;

    /** Clicks into the middle of an item. */
    static void Click(QAbstractItemView* view, const QModelIndex& index);

    /** Double-clicks an item, as a mouse does: a click comes first. */
    static void DoubleClick(QAbstractItemView* view, const QModelIndex& index);

    /** Deletes the pane, which the three models survive until the fixture ends. */
    void DeletePane();

    TestFolder m_folder;
    RecordingHost m_host;
    QWidget m_window;
    QPointer<CKTFileManager> m_pPane;

private:
    std::unique_ptr<QObject> m_pListModel;
    std::unique_ptr<QObject> m_pTreeModel;
    std::unique_ptr<QObject> m_pAliasTreeModel;
};

#endif
