#include <KTFileManager2QU/CKTFMDelegate.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileSystemModel>
#include <QImage>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTemporaryDir>

/**
 * @file bench_delegate.cpp
 * Frames of a scroll through a folder of 10,000 thumbnails, painted by CKTFMDelegate and, to compare with, by
 * the delegate that it derives from.
 */

namespace {

constexpr int FileCount = 10000;
constexpr int IconSide = 60;
constexpr QSize ViewSize(1920, 1080);

/** Enough images for neighbours to differ; a host's thumbnails are as many as its files, but only paint time
 * counts. */
constexpr int ImageCount = 64;

/** A folder whose files have images of their own, as a host's decoration callback gives them. */
class Thumbnails : public QFileSystemModel
{
public:
    Thumbnails()
    {
        for (int i = 0; i < ImageCount; ++i) {
            QPixmap pixmap(IconSide, IconSide);
            pixmap.fill(QColor::fromHsv(i * 5, 200, 200));
            m_icons.append(QIcon(pixmap));
        }
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DecorationRole && index.column() == 0)
            return m_icons.at(index.row() % ImageCount);
        return QFileSystemModel::data(index, role);
    }

private:
    QVector<QIcon> m_icons;
};

/** The folder in an icon grid. */
class Grid
{
public:
    Grid()
    {
        for (int i = 0; i < FileCount; ++i)
            QFile(m_folder.filePath(NameOf(i))).open(QIODevice::WriteOnly);
        m_model.setRootPath(m_folder.path());
        const QModelIndex root = m_model.index(m_folder.path());
        while (m_model.rowCount(root) < FileCount)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        m_proxy.setSourceModel(&m_model);
        m_view.setViewMode(QListView::IconMode);
        m_view.setUniformItemSizes(true);
        m_view.setIconSize(QSize(IconSide, IconSide));
        m_view.setGridSize(QSize(2 * IconSide, 2 * IconSide));
        m_view.setWordWrap(true);
        m_view.resize(ViewSize);
        m_view.setModel(&m_proxy);
        m_view.setRootIndex(m_proxy.mapFromSource(root));
        m_view.show();
    }

    QListView& View() { return m_view; }
    QFileSystemModel* Model() { return &m_model; }
    QSortFilterProxyModel* Proxy() { return &m_proxy; }

private:
    /** @return a name of which some fit on a line, some on two, and some on neither */
    static QString NameOf(int number)
    {
        static const QStringList patterns = {
            QStringLiteral("IMG_%1.jpg"), QStringLiteral("holiday picture %1.jpg"),
            QStringLiteral("a report of everything that happened in the year %1, with figures.pdf")};
        return patterns.at(number % patterns.size()).arg(number, 5, 10, QLatin1Char('0'));
    }

    QTemporaryDir m_folder;
    Thumbnails m_model;
    QSortFilterProxyModel m_proxy;
    QListView m_view;
};

/** Paints a frame for each line of thumbnails passed, to the end of the folder and again from its start. */
void Scroll(benchmark::State& state, Grid* grid)
{
    QListView& view = grid->View();
    QImage screen(view.viewport()->size(), QImage::Format_RGB32);
    QScrollBar* bar = view.verticalScrollBar();
    const int step = view.gridSize().height();
    bar->setValue(0);
    while (state.KeepRunning()) {
        bar->setValue(bar->value() >= bar->maximum() ? 0 : bar->value() + step);
        view.viewport()->render(&screen);
    }
}

void ScrollThumbnails(benchmark::State& state)
{
    Grid grid;
    auto* delegate = new CKTFMDelegate(&grid.View());
    delegate->SetFileSystemModel(grid.Model(), grid.Proxy(), nullptr);
    delegate->SetItemSpacing(60, 60);
    grid.View().setItemDelegate(delegate);
    Scroll(state, &grid);
}
BENCHMARK(ScrollThumbnails)->Unit(benchmark::kMillisecond);

void ScrollThumbnailsOfTheBaseDelegate(benchmark::State& state)
{
    Grid grid;
    grid.View().setItemDelegate(new QStyledItemDelegate(&grid.View()));
    Scroll(state, &grid);
}
BENCHMARK(ScrollThumbnailsOfTheBaseDelegate)->Unit(benchmark::kMillisecond);

} // namespace
