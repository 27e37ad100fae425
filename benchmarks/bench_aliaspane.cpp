#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileSystemWatcher>
#include <QLoggingCategory>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTreeView>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>

// Opening and closing a branch of the alias tree beside the plain way to the same picture: listings of the
// branch and of each child in a standard item model, an open tree view and a watcher on the same folders.
// Qt's registry of watches is a list that it searches for each path; WatchAlone tells what that costs by
// itself.

namespace {

/** The size of both windows, in pixels. */
constexpr QRect WindowRect(0, 0, 1000, 700);

/** What both sides show: sub-folders, in the order of the disk. */
constexpr QDir::Filters Shown = QDir::Filters(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);

/** A folder with sub-folders, each of them with one of its own; made once for each size. */
QString BranchOf(int subFolders)
{
    static QTemporaryDir root;
    static std::map<int, QString> branches;
    QString& path = branches[subFolders];
    if (path.isEmpty()) {
        path = root.filePath(QString::number(subFolders));
        for (int i = 0; i < subFolders; ++i)
            QDir().mkpath(QStringLiteral("%1/folder %2/below").arg(path).arg(i));
    }
    return path;
}

/** A shown pane with an alias tree; a table can be loaded as often as one likes. */
class AliasWindow
{
public:
    AliasWindow()
        : m_pane(new CKTFileManager(nullptr, WindowRect, FM_MODE_ALIAS_TREE_AND_LIST, 30, true)),
          m_listModel(m_pane->GetListModel()),
          m_treeModel(m_pane->GetTreeModel()),
          m_aliasModel(m_pane->GetAliasTreeModel())
    {
        QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));
        m_pane->show();
    }
    ~AliasWindow() { delete m_pane; }
    AliasWindow(const AliasWindow&) = delete;
    AliasWindow& operator=(const AliasWindow&) = delete;

    void Load(const QString& folder)
    {
        const QString line = QStringLiteral("Top\t%1\ttrue\t32\tsection\n").arg(folder);
        m_pane->PopulateAliasTable(folder.isEmpty() ? QString() : line);
        QCoreApplication::processEvents();
    }

    QTreeView* View() const { return m_pane->GetAliasTreeView(); }
    QModelIndex Top() const { return m_aliasModel->index(0, 0); }
    int Watches() const { return m_pane->findChild<QFileSystemWatcher*>()->directories().size(); }

private:
    CKTFileManager* m_pane;
    std::unique_ptr<CKTFMListModel> m_listModel;
    std::unique_ptr<CKTFMTreeModel> m_treeModel;
    std::unique_ptr<CKTFMAliasTreeModel> m_aliasModel;
};

/** The plain window: what a program without the pane would put together. */
class PlainWindow
{
public:
    PlainWindow()
    {
        m_view.setUniformRowHeights(true);
        m_view.setHeaderHidden(true);
        m_view.setModel(&m_model);
        m_view.setGeometry(WindowRect);
        m_view.show();
    }

    void Clear()
    {
        m_model.clear();
        if (!m_watcher.directories().isEmpty())
            m_watcher.removePaths(m_watcher.directories());
        QCoreApplication::processEvents();
    }

    void Load(const QString& folder)
    {
        auto* top = new QStandardItem(QStringLiteral("Top"));
        m_model.appendRow(top);
        QStringList watched{folder};
        const QStringList names = QDir(folder).entryList(Shown, QDir::NoSort);
        for (const QString& name : names) {
            const QString path = folder + QLatin1Char('/') + name;
            top->appendRow(WithSubFolders(name, path));
            watched.append(path);
        }
        m_view.expand(top->index());
        m_watcher.addPaths(watched);
        QCoreApplication::processEvents();
    }

    void Collapse()
    {
        m_view.collapse(m_model.index(0, 0));
        QStringList closed = m_watcher.directories();
        closed.removeFirst();
        m_watcher.removePaths(closed);
    }

    int Watches() const { return m_watcher.directories().size(); }

private:
    static QStandardItem* WithSubFolders(const QString& name, const QString& path)
    {
        auto* item = new QStandardItem(name);
        const QStringList below = QDir(path).entryList(Shown, QDir::NoSort);
        for (const QString& sub : below)
            item->appendRow(new QStandardItem(sub));
        return item;
    }

    QStandardItemModel m_model;
    QTreeView m_view;
    QFileSystemWatcher m_watcher;
};

/** One more watch than the branch has children: its own. */
void CheckWatches(benchmark::State& state, int watches)
{
    if (watches != static_cast<int>(state.range(0)) + 1)
        state.SkipWithError("not every folder is watched");
}

void OpenAliasBranch(benchmark::State& state)
{
    const QString folder = BranchOf(static_cast<int>(state.range(0)));
    AliasWindow window;
    while (state.KeepRunning()) {
        window.Load(folder);
        CheckWatches(state, window.Watches());
        state.PauseTiming();
        window.Load(QString());
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void OpenPlainBranch(benchmark::State& state)
{
    const QString folder = BranchOf(static_cast<int>(state.range(0)));
    PlainWindow window;
    while (state.KeepRunning()) {
        window.Load(folder);
        CheckWatches(state, window.Watches());
        state.PauseTiming();
        window.Clear();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void CloseAliasBranch(benchmark::State& state)
{
    const QString folder = BranchOf(static_cast<int>(state.range(0)));
    AliasWindow window;
    while (state.KeepRunning()) {
        state.PauseTiming();
        window.Load(folder);
        state.ResumeTiming();
        window.View()->collapse(window.Top());
    }
    state.SetComplexityN(state.range(0));
}

void ClosePlainBranch(benchmark::State& state)
{
    const QString folder = BranchOf(static_cast<int>(state.range(0)));
    PlainWindow window;
    while (state.KeepRunning()) {
        state.PauseTiming();
        window.Clear();
        window.Load(folder);
        state.ResumeTiming();
        window.Collapse();
    }
    state.SetComplexityN(state.range(0));
}

void WatchAlone(benchmark::State& state)
{
    const QString folder = BranchOf(static_cast<int>(state.range(0)));
    QStringList paths;
    const QStringList names = QDir(folder).entryList(Shown, QDir::NoSort);
    for (const QString& name : names)
        paths.append(folder + QLatin1Char('/') + name);
    QFileSystemWatcher watcher;
    while (state.KeepRunning()) {
        watcher.addPaths(paths);
        watcher.removePaths(paths);
    }
    state.SetComplexityN(state.range(0));
}

BENCHMARK(OpenAliasBranch)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenPlainBranch)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(CloseAliasBranch)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(ClosePlainBranch)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK(WatchAlone)->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);

} // namespace
