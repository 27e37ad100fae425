// A small host: it makes one of everything that the library exports and shows a pane on a real folder.

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QListWidgetItem>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <memory>

namespace {

/** How long a folder may take to be listed, in milliseconds; far more than it needs. */
constexpr int Patience = 20000;

bool Becomes(const std::function<bool()>& holds)
{
    const QDeadlineTimer deadline(Patience);
    while (!holds() && !deadline.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 50);
    return holds();
}

void Write(const QString& path, const QByteArray& data)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        qFatal("cannot write %s", qPrintable(path));
}

/** The host side of a breadcrumb bar over the folder tree of a pane. */
class BarHost : public CTitleBarSlotInterface
{
public:
    explicit BarHost(CKTFMTreeModel* tree) : m_pTree(tree) {}

    void OnTitleBarButtonClicked(const QModelIndex&) override {}
    void OnTitleBarMenuTriggered(const QString&) override {}
    QString GetTitleBarDisplayName(const QModelIndex& index) override { return index.data().toString(); }
    QString GetTitleBarPath(const QModelIndex& index) override { return m_pTree->filePath(index); }
    QModelIndex GetTitleBarIndexFromPath(const QString& path) override { return m_pTree->index(path); }

private:
    CKTFMTreeModel* m_pTree;
};

bool ReadsProfile(const QString& folder)
{
    Write(folder + QStringLiteral("/names.ini"), "[Names]\nalpha.txt=First\n");
    KT::CProfile profile;
    std::wstring value;
    return profile.Load((folder + QStringLiteral("/names.ini")).toStdWString(), true).code ==
               KT::ResultDone &&
           profile.GetValue(value, L"Names", L"alpha.txt").code == KT::ResultDone && value == L"First";
}

bool SortsListedFolder(const QString& folder)
{
    CKTFMListModel model;
    CKTFMSortFilterProxyModel proxy;
    proxy.setSourceModel(&model);
    const QPersistentModelIndex root = model.setRootPath(folder);
    proxy.sort(0);
    const auto shownRoot = [&] { return proxy.mapFromSource(root); };
    return Becomes([&] { return proxy.rowCount(shownRoot()) == 3; }) &&
           proxy.index(0, 0, shownRoot()).data(QFileSystemModel::FilePathRole).toString() ==
               folder + QStringLiteral("/sub");
}

bool ListsFilesFromAnywhere(const QString& folder)
{
    QListWidgetItem item(folder + QStringLiteral("/alpha.txt"));
    CKTFMCustomListModel model;
    model.AddItem(&item);
    return model.rowCount() == 1 && model.index(0, 0).data().toString() == QStringLiteral("alpha");
}

bool BuildsTrees()
{
    TreeItem item({QStringLiteral("root")}, nullptr);
    item.appendChild(new TreeItem({QStringLiteral("leaf")}, &item));
    TreeModel generic;
    CKTFMAliasTreeModel aliases;
    aliases.PopulateAliasTree(QStringLiteral("Pictures\nMusic\n"));
    return item.childCount() == 1 && generic.rowCount() == 0 && aliases.rowCount() == 2;
}

bool ShowsViews()
{
    CKTFMListModel model;
    const CKTFMDummyIconProvider icons;
    CKTFMDelegate delegate;
    CKTFMListView list;
    CKTFMTreeView details;
    CKTFMSimpleTreeView tree;
    list.setItemDelegate(&delegate);
    for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{&list, &details, &tree}) {
        view->setModel(&model);
        view->show();
    }
    return tree.isVisible() && icons.icon(QFileInfo(QStringLiteral("/"))).isNull();
}

bool ShowsPane(const QString& folder)
{
    std::unique_ptr<QObject> models[3];
    CKTFileManager pane(nullptr, QRect(0, 0, 640, 480), FM_MODE_TREE_AND_LIST, 30, true);
    models[0].reset(pane.GetListModel());
    models[1].reset(pane.GetTreeModel());
    models[2].reset(pane.GetAliasTreeModel());
    BarHost host(pane.GetTreeModel());
    CTitleBarView bar(&pane, &host);
    pane.show();
    pane.SetDirectory(folder);
    pane.SelectTreeItem(pane.GetTreeModel()->index(folder));
    bar.UpdateCrumBar(pane.GetTreeModel()->index(folder), true);
    CTitleBarButton* button = bar.GetToolButton(0);
    auto* action = new CAction(&bar);
    return button && button->PushAction(action).code == KT::ResultDone && Becomes([&] {
               const CKTFMListModel* list = pane.GetListModel();
               return list->rowCount(list->index(folder)) == 3;
           });
}

int Report(bool holds, const char* what)
{
    std::printf("%s %s\n", holds ? "ok    " : "FAILED", what);
    return holds ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    const QTemporaryDir temporary;
    const QString folder = QFileInfo(temporary.path()).canonicalFilePath();
    QDir(folder).mkdir(QStringLiteral("sub"));
    Write(folder + QStringLiteral("/alpha.txt"), "text");

    return Report(ReadsProfile(folder), "a profile is read") +
           Report(SortsListedFolder(folder), "a listed folder is sorted, folders first") +
           Report(ListsFilesFromAnywhere(folder), "files from anywhere are listed") +
           Report(BuildsTrees(), "trees are built") + Report(ShowsViews(), "views are shown") +
           Report(ShowsPane(folder), "a pane shows a folder");
}
