#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QItemSelectionModel>
#include <QListView>
#include <QMimeData>
#include <QProcess>
#include <QSortFilterProxyModel>
#include <QTemporaryDir>
#include <QUrl>

#include <benchmark/benchmark.h>
#include <memory>

namespace {

/** The tree of the benchmarks: so many folders of so many files of so many bytes. */
constexpr int Folders = 100;
constexpr int FilesInEach = 100;
constexpr int FileSize = 512;

void Write(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(FileSize, 'x')) != FileSize)
        qFatal("cannot make a file");
}

/** A folder "tree" of 10,000 small files, and an empty folder "to" beside it, kept for the run. */
const QString& Place()
{
    static const QTemporaryDir place;
    static const QString path = place.path();
    static const bool isMade = [] {
        for (int folder = 0; folder < Folders; ++folder) {
            const QString name = QStringLiteral("%1/tree/%2").arg(path).arg(folder);
            QDir().mkpath(name);
            for (int file = 0; file < FilesInEach; ++file)
                Write(QStringLiteral("%1/file %2.txt").arg(name).arg(file));
        }
        return QDir(path).mkdir(QStringLiteral("to"));
    }();
    if (!isMade)
        qFatal("cannot make the tree");
    return path;
}

void Run(const QString& program, const QStringList& arguments)
{
    if (QProcess::execute(program, arguments) != 0)
        qFatal("%s failed", qPrintable(program));
}

QString Source()
{
    return Place() + QStringLiteral("/tree");
}

QString Destination()
{
    return Place() + QStringLiteral("/to");
}

QString Target()
{
    return Destination() + QStringLiteral("/tree");
}

void CopyBeside()
{
    Run(QStringLiteral("cp"), {QStringLiteral("-r"), Source(), Target()});
}

void RemoveBeside()
{
    Run(QStringLiteral("rm"), {QStringLiteral("-r"), Target()});
}

/** A pane that shows the destination. */
class Pane
{
public:
    Pane()
        : m_pPane(
              std::make_unique<CKTFileManager>(nullptr, QRect(0, 0, 1280, 800), FM_MODE_LIST_ONLY, 0, true)),
          m_pListModel(m_pPane->GetListModel()),
          m_pTreeModel(m_pPane->GetTreeModel()),
          m_pAliasModel(m_pPane->GetAliasTreeModel())
    {
        m_pPane->SetDirectory(Destination());
        m_pPane->SetDirectory(Destination());
        m_pPane->show();
    }
    ~Pane() { m_pPane.reset(); }
    Q_DISABLE_COPY(Pane)

    CKTFileManager& Widget() { return *m_pPane; }

    /** Selects the pasted tree once the list shows it. */
    void SelectTree()
    {
        auto* grid = m_pPane->findChild<QListView*>();
        const auto* proxy = qobject_cast<QSortFilterProxyModel*>(grid->model());
        QModelIndex index;
        while (!index.isValid()) {
            QCoreApplication::processEvents();
            index = proxy->mapFromSource(m_pListModel->index(Target()));
        }
        grid->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
    }

private:
    std::unique_ptr<CKTFileManager> m_pPane;
    std::unique_ptr<CKTFMListModel> m_pListModel;
    std::unique_ptr<CKTFMTreeModel> m_pTreeModel;
    std::unique_ptr<CKTFMAliasTreeModel> m_pAliasModel;
};

void OfferTree()
{
    auto* mime = new QMimeData;
    mime->setUrls({QUrl::fromLocalFile(Source())});
    QApplication::clipboard()->setMimeData(mime);
}

void PasteTreeByCommand(benchmark::State& state)
{
    Pane pane;
    while (state.KeepRunning()) {
        state.PauseTiming();
        OfferTree();
        state.ResumeTiming();
        pane.Widget().DoCommand(FM_CMD_PASTE);
        state.PauseTiming();
        RemoveBeside();
        state.ResumeTiming();
    }
}

void PasteTreeByCp(benchmark::State& state)
{
    while (state.KeepRunning()) {
        CopyBeside();
        state.PauseTiming();
        RemoveBeside();
        state.ResumeTiming();
    }
}

void DeleteTreeByCommand(benchmark::State& state)
{
    Pane pane;
    while (state.KeepRunning()) {
        state.PauseTiming();
        CopyBeside();
        pane.SelectTree();
        state.ResumeTiming();
        pane.Widget().DoCommand(FM_CMD_DELETE);
    }
}

void DeleteTreeByRm(benchmark::State& state)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        CopyBeside();
        state.ResumeTiming();
        RemoveBeside();
    }
}

BENCHMARK(PasteTreeByCommand)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(PasteTreeByCp)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteTreeByCommand)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteTreeByRm)->UseRealTime()->Unit(benchmark::kMillisecond);

} // namespace
