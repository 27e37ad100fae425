#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include "benchmarks/GuiStall.h"
#include "models/CMySortFilterProxyModel.h"
#include "views/CKTListView.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileSystemModel>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <map>
#include <memory>
#include <thread>

namespace {

/** The size of both windows, in pixels. */
constexpr QRect WindowRect(0, 0, 1280, 800);

/** A folder of empty files with the names that people have, kept for the run and removed at its end. */
class FolderOfFiles
{
public:
    explicit FolderOfFiles(int count)
    {
        for (int i = 0; i < count; ++i)
            CreateFile(i);
    }

    QString Path() const { return m_dir.path(); }

    void CreateFile(int number)
    {
        static const QStringList words = {QStringLiteral("Chair"), QStringLiteral("table"),
                                          QStringLiteral("Übung"), QStringLiteral("lamp"),
                                          QStringLiteral("Zoo")};
        // Scattered, so that the disk's order is far from the sorted one.
        const unsigned scattered = static_cast<unsigned>(number) * 2654435761U;
        const QString name = QStringLiteral("%1 %2.%3")
                                 .arg(words.at(number % words.size()))
                                 .arg(scattered)
                                 .arg(number % 3 == 0 ? QStringLiteral("png") : QStringLiteral("txt"));
        QFile file(m_dir.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("cannot make a file");
    }

private:
    QTemporaryDir m_dir;
};

FolderOfFiles& Folder(int count)
{
    static std::map<int, std::unique_ptr<FolderOfFiles>> folders;
    auto& folder = folders[count];
    if (!folder)
        folder = std::make_unique<FolderOfFiles>(count);
    return *folder;
}

/** A view of a folder, in whichever stack. */
struct Stack
{
    virtual ~Stack() = default;
    virtual void Open(const QString& path) = 0;
    virtual QFileSystemModel* Model() = 0;
    virtual QListView* View() = 0;

    int Rows() { return View()->model()->rowCount(View()->rootIndex()); }

    /** Lets the event loop run until so many rows are there, the folder is loaded, and all is painted. */
    void WaitForRows(int rows, bool loading)
    {
        bool loaded = !loading;
        const auto connection =
            QObject::connect(Model(), &QFileSystemModel::directoryLoaded, View(),
                             [&loaded](const QString&) { loaded = true; }); // clazy:exclude=lambda-in-connect
        while (!loaded || Rows() != rows)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QObject::disconnect(connection);
        Settle();
    }

    /** Lets delayed sorting and layout take place, and paints. */
    void Settle()
    {
        for (int round = 0; round < 3; ++round) {
            QEventLoop loop;
            QTimer::singleShot(0, &loop, &QEventLoop::quit);
            loop.exec();
        }
        View()->viewport()->repaint();
    }
};

/** What a host would put together from Qt alone, with the same grid. */
struct PlainStack : Stack
{
    PlainStack()
    {
        m_model.setFilter(QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot);
        m_proxy.setSourceModel(&m_model);
        m_proxy.setSortLocaleAware(true);
        m_proxy.setDynamicSortFilter(true);
        m_proxy.sort(0);
        m_view.setModel(&m_proxy);
        m_view.setViewMode(QListView::IconMode);
        m_view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        m_view.setResizeMode(QListView::Adjust);
        m_view.setUniformItemSizes(true);
        m_view.setIconSize(QSize(60, 60));
        m_view.setGridSize(QSize(100, 100));
        m_view.setGeometry(WindowRect);
        m_view.show();
    }

    void Open(const QString& path) override
    {
        m_view.setRootIndex(m_proxy.mapFromSource(m_model.setRootPath(path)));
    }

    QFileSystemModel* Model() override { return &m_model; }
    QListView* View() override { return &m_view; }

    QFileSystemModel m_model;
    QSortFilterProxyModel m_proxy;
    QListView m_view;
};

/** Our pane, showing the list alone. */
struct PaneStack : Stack
{
    PaneStack() : m_pane(std::make_unique<CKTFileManager>(nullptr, WindowRect, FM_MODE_LIST_ONLY, 0, false))
    {
        m_list.reset(m_pane->GetListModel());
        m_tree.reset(m_pane->GetTreeModel());
        m_alias.reset(m_pane->GetAliasTreeModel());
        m_pane->SetFMViewShowStringMode(FM_PART_LIST, FM_SHOW_STRING_CALLBACK);
        m_pane->SetViewMode(FM_VIEW_ICON);
        m_pane->SetSelectionMode(FM_SELECTION_EXTENDED);
        m_pane->show();
    }

    ~PaneStack() override { m_pane.reset(); }

    void Open(const QString& path) override
    {
        m_pane->SetDirectory(path);
        m_pane->SelectTreeItem(m_tree->index(path));
    }

    QFileSystemModel* Model() override { return m_list.get(); }
    QListView* View() override { return m_pane->findChild<CKTListView*>(); }

    std::unique_ptr<CKTFMListModel> m_list;
    std::unique_ptr<CKTFMTreeModel> m_tree;
    std::unique_ptr<CKTFMAliasTreeModel> m_alias;
    std::unique_ptr<CKTFileManager> m_pane;
};

double HeapMiB()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / (1024.0 * 1024.0);
}

/** Opens a folder until every row is listed, sorted and painted. */
template <typename AnyStack> void OpenFolder(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString path = Folder(count).Path();
    double stall = 0;
    double heap = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const double before = HeapMiB();
        auto stack = std::make_unique<AnyStack>();
        stack->Settle();
        state.ResumeTiming();
        GuiStall watch;
        stack->Open(path);
        stack->WaitForRows(count, true);
        stall = std::max(stall, watch.LongestMs());
        state.PauseTiming();
        heap = HeapMiB() - before;
        stack.reset();
        state.ResumeTiming();
    }
    state.counters["longest_stall_ms"] = stall;
    state.counters["heap_MiB"] = heap;
}

/** Turns the order of names round, and paints. */
template <typename AnyStack> void TurnOrder(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    AnyStack stack;
    stack.Open(Folder(count).Path());
    stack.WaitForRows(count, true);
    Qt::SortOrder order = Qt::AscendingOrder;
    for (auto _ : state) {
        stack.View()->model()->sort(0, order);
        stack.Settle();
        order = order == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    }
}

/** Files that others create in the folder while it is shown; only the longest stall is of interest. */
template <typename AnyStack> void FilesAppear(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const int created = static_cast<int>(state.range(1));
    double stall = 0;
    for (auto _ : state) {
        state.PauseTiming();
        FolderOfFiles folder(count);
        AnyStack stack;
        stack.Open(folder.Path());
        stack.WaitForRows(count, true);
        GuiStall watch;
        state.ResumeTiming();
        std::thread others([&folder, count, created] {
            for (int i = 0; i < created; ++i)
                folder.CreateFile(count + i);
        });
        stack.WaitForRows(count + created, true);
        others.join();
        stall = std::max(stall, watch.LongestMs());
    }
    state.counters["longest_stall_ms"] = stall;
}

/** The paths of what is selected, as a host of the plain stack would collect them. */
QStringList SelectedPaths(const PlainStack& stack)
{
    QStringList paths;
    const QModelIndexList selected = stack.m_view.selectionModel()->selectedRows();
    for (const QModelIndex& index : selected)
        paths.append(stack.m_model.filePath(stack.m_proxy.mapToSource(index)));
    return paths;
}

QStringList SelectedPaths(const PaneStack& stack)
{
    return stack.m_pane->GetCurSelectedFileList(true);
}

void SelectAll(PlainStack& stack)
{
    stack.m_view.selectAll();
}

void SelectAll(PaneStack& stack)
{
    stack.m_pane->DoCommand(FM_CMD_SELECT_ALL);
}

/** Selects every file of a folder and asks for their paths; with a second argument of 1 the selection is
 * painted. */
template <typename AnyStack> void SelectAllFiles(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    AnyStack stack;
    stack.Open(Folder(count).Path());
    const bool isPainted = state.range(1) != 0;
    stack.WaitForRows(count, true);
    SelectAll(stack);
    for (auto _ : state) {
        state.PauseTiming();
        stack.View()->clearSelection();
        stack.Settle();
        state.ResumeTiming();
        SelectAll(stack);
        if (isPainted)
            stack.Settle();
        const QStringList paths = SelectedPaths(stack);
        if (paths.size() != count)
            qFatal("not all files are selected");
    }
}

} // namespace

BENCHMARK_TEMPLATE(OpenFolder, PlainStack)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->UseRealTime();
BENCHMARK_TEMPLATE(OpenFolder, PaneStack)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3)
    ->UseRealTime();
BENCHMARK_TEMPLATE(TurnOrder, PlainStack)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_TEMPLATE(TurnOrder, PaneStack)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_TEMPLATE(FilesAppear, PlainStack)
    ->Args({10000, 1000})
    ->Args({100000, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();
BENCHMARK_TEMPLATE(FilesAppear, PaneStack)
    ->Args({10000, 1000})
    ->Args({100000, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1)
    ->UseRealTime();
BENCHMARK_TEMPLATE(SelectAllFiles, PlainStack)
    ->ArgsProduct({{500, 100000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(SelectAllFiles, PaneStack)
    ->ArgsProduct({{500, 100000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
