#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include <benchmark/benchmark.h>

#include <QDir>
#include <QStandardItemModel>
#include <QTemporaryDir>

#include <memory>

// The alias tree beside the plain way to the same result: a listing of sub-folders into a standard item
// model, and a search with the base class's match.

namespace {

constexpr int Siblings = 50000;

/** A folder with sub-folders, made once for each size. */
QString FolderWith(int subFolders)
{
    static QTemporaryDir root;
    const QString path = root.filePath(QString::number(subFolders));
    if (!QFileInfo::exists(path)) {
        QDir().mkdir(path);
        for (int i = 0; i < subFolders; ++i)
            QDir(path).mkdir(QStringLiteral("folder %1").arg(i));
    }
    return path;
}

QString CategoryFor(const QString& folder)
{
    return QStringLiteral("Category\t%1\ttrue\t32\tsection\tdata\n").arg(folder);
}

/** A table of three levels, a tenth of its lines categories with sub-categories. */
QString TableOf(int lines)
{
    const QString block =
        QStringLiteral("top\t/some/folder\ttrue\t32\tsection\n  middle\t/some/folder/sub\ttrue\n") +
        QStringLiteral("    leaf\t/some/folder/sub/leaf\ttrue\n").repeated(8);
    return block.repeated(lines / 10);
}

QString TableOfSiblings()
{
    return QStringLiteral("top\t/folder\ttrue\n") +
           QStringLiteral("  child\t/folder/child\ttrue\n").repeated(Siblings);
}

void ScanFolder(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString folder = FolderWith(count);
    while (state.KeepRunning()) {
        CKTFMAliasTreeModel model;
        model.PopulateAliasTree(CategoryFor(folder));
        model.ScanAliasTreeDirectory(model.index(0, 0));
        if (model.rowCount(model.index(0, 0)) != count)
            state.SkipWithError("the scan missed folders");
    }
    state.SetComplexityN(count);
}

void RescanFolder(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(CategoryFor(FolderWith(count)));
    model.ScanAliasTreeDirectory(model.index(0, 0));
    while (state.KeepRunning())
        model.ScanAliasTreeDirectory(model.index(0, 0));
    state.SetComplexityN(count);
}

void ScanThatRemovesAll(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QTemporaryDir empty;
    const QString table =
        CategoryFor(empty.path()) + QStringLiteral("  gone\t/folder/gone\ttrue\n").repeated(count);
    while (state.KeepRunning()) {
        CKTFMAliasTreeModel model;
        model.PopulateAliasTree(table);
        model.ScanAliasTreeDirectory(model.index(0, 0));
        if (model.rowCount(model.index(0, 0)) != 0)
            state.SkipWithError("the scan kept what is gone");
    }
    state.SetComplexityN(count);
}

QStandardItem* StandardRow(const QString& folder, const QString& name, QList<QStandardItem*>& row)
{
    row = {new QStandardItem(name), new QStandardItem(folder + QLatin1Char('/') + name)};
    for (const QVariant& value : {QVariant(true), QVariant(32), QVariant(name), QVariant()}) {
        row.append(new QStandardItem);
        row.last()->setData(value, Qt::EditRole);
    }
    return row.first();
}

void PlainListing(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const QString folder = FolderWith(count);
    while (state.KeepRunning()) {
        QStandardItemModel model;
        auto* top = new QStandardItem(QStringLiteral("Category"));
        model.appendRow(top);
        const QStringList names =
            QDir(folder).entryList(QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot, QDir::Unsorted);
        QList<QStandardItem*> row;
        for (const QString& name : names) {
            StandardRow(folder, name, row);
            top->appendRow(row);
        }
    }
    state.SetComplexityN(count);
}

void BuildTable(benchmark::State& state)
{
    const QString table = TableOf(static_cast<int>(state.range(0)));
    while (state.KeepRunning()) {
        CKTFMAliasTreeModel model;
        model.PopulateAliasTree(table);
        benchmark::DoNotOptimize(model.rowCount());
    }
    state.SetComplexityN(state.range(0));
}

/** Down to each child's row and up again, after every row has moved by one. */
template <typename Model> void WalkRows(const Model& model, const QModelIndex& parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex child = model.index(row, 0, parent);
        benchmark::DoNotOptimize(model.parent(child).row());
        benchmark::DoNotOptimize(model.data(child, Qt::EditRole));
    }
}

void WalkSiblings(benchmark::State& state)
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(TableOfSiblings());
    model.removeRow(0, model.index(0, 0));
    while (state.KeepRunning())
        WalkRows(model, model.index(0, 0));
}

void WalkStandardSiblings(benchmark::State& state)
{
    QStandardItemModel model;
    auto* top = new QStandardItem;
    model.appendRow(top);
    for (int i = 1; i < Siblings; ++i)
        top->appendRow(new QStandardItem(QStringLiteral("child")));
    while (state.KeepRunning())
        WalkRows(model, model.index(0, 0));
}

/** The parent of every grandchild, which asks for the row of every child, after an insertion in front of
 * them.
 */
void ParentsAfterInsertion(benchmark::State& state)
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("top\t/f\n") +
                            QStringLiteral("  child\t/f\n    leaf\n").repeated(Siblings));
    const QModelIndex top = model.index(0, 0);
    QModelIndexList leaves;
    for (int row = 1; row < Siblings; ++row)
        leaves.append(model.index(0, 0, model.index(row, 0, top)));
    while (state.KeepRunning()) {
        model.insertRows(0, 1, top);
        for (const QModelIndex& leaf : qAsConst(leaves))
            benchmark::DoNotOptimize(model.parent(leaf).row());
    }
}

void FindFolder(benchmark::State& state)
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(TableOf(200000));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(model.IndexWithFilePath(QStringLiteral("/some/folder")));
}

void FindFolderByMatch(benchmark::State& state)
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(TableOf(200000));
    const Qt::MatchFlags flags = Qt::MatchFixedString | Qt::MatchCaseSensitive | Qt::MatchRecursive;
    while (state.KeepRunning()) {
        benchmark::DoNotOptimize(
            model.match(model.index(0, 1), Qt::DisplayRole, QStringLiteral("/some/folder"), -1, flags));
    }
}

BENCHMARK(ScanFolder)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainListing)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(RescanFolder)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(ScanThatRemovesAll)->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(BuildTable)->Arg(20000)->Arg(200000)->Unit(benchmark::kMillisecond);
BENCHMARK(WalkSiblings)->Unit(benchmark::kMillisecond);
BENCHMARK(WalkStandardSiblings)->Unit(benchmark::kMillisecond);
BENCHMARK(ParentsAfterInsertion)->Unit(benchmark::kMillisecond);
BENCHMARK(FindFolder)->Unit(benchmark::kMillisecond);
BENCHMARK(FindFolderByMatch)->Unit(benchmark::kMillisecond);

} // namespace
