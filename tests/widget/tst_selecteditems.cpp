#include "tests/support/TestFolder.h"
#include "widget/SelectedItems.h"

#include <QFileSystemModel>
#include <QItemSelectionModel>
#include <QtTest>

#include <algorithm>
#include <random>

namespace {

/** A folder of files, sub-folders and a link, and a model that has listed it. */
struct Listed
{
    static constexpr int Files = 50;
    static constexpr int Count = Files + 3;

    Listed()
    {
        for (int i = 0; i < Files; ++i)
            m_disk.File(QString::number(i) + QStringLiteral(".txt"));
        m_disk.File(QStringLiteral("sub/inside.txt"));
        m_disk.Folder(QStringLiteral("other"));
        m_disk.Link(m_disk.Path(QStringLiteral("sub")), QStringLiteral("circle.lnk"));
        m_model.setReadOnly(false);
        m_model.setRootPath(m_disk.Path());
    }

    QModelIndex Folder() const { return m_model.index(m_disk.Path()); }
    bool WaitForAll() const { return Wait(m_disk.Path(), Count); }

    bool Wait(const QString& path, int rows) const
    {
        return QTest::qWaitFor([&] { return m_model.rowCount(m_model.index(path)) == rows; });
    }

    QVector<QModelIndex> Items() const
    {
        QVector<QModelIndex> items;
        for (int row = 0; row < m_model.rowCount(Folder()); ++row)
            items.append(m_model.index(row, 0, Folder()));
        return items;
    }

    QStringList PathsOfModel(const QVector<QModelIndex>& items) const
    {
        QStringList paths;
        for (const QModelIndex& item : items)
            paths.append(m_model.filePath(item));
        return paths;
    }

    TestFolder m_disk;
    QFileSystemModel m_model;
};

} // namespace

class tst_SelectedItems : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeRowsAreTakenBeforeCells();
    void cellsAreTakenWhereNoRowIsWhole();
    void manyGapsGiveWhatTheSelectionModelGives();
    void pathsAreThoseOfTheModelInAnyOrder();
    void eachPathOnce();
    void pathsOfOtherFolders();
    void pathsBelowARenamedFolder();
    void pathsOfNothing();
};

void tst_SelectedItems::wholeRowsAreTakenBeforeCells()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QVector<QModelIndex> items = f.Items();
    QItemSelectionModel selection(&f.m_model);
    selection.select(items.at(7).siblingAtColumn(1), QItemSelectionModel::Select);
    selection.select(items.at(9), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    selection.select(items.at(3), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QCOMPARE(SelectedItems::Of(selection), QModelIndexList({items.at(9), items.at(3)}));
}

void tst_SelectedItems::cellsAreTakenWhereNoRowIsWhole()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QModelIndex cell = f.Items().at(7).siblingAtColumn(1);
    QItemSelectionModel selection(&f.m_model);
    QCOMPARE(SelectedItems::Of(selection), QModelIndexList());
    selection.select(cell, QItemSelectionModel::Select);
    QCOMPARE(SelectedItems::Of(selection), QModelIndexList({cell}));
}

void tst_SelectedItems::manyGapsGiveWhatTheSelectionModelGives()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QVector<QModelIndex> items = f.Items();
    QItemSelectionModel selection(&f.m_model);
    for (int row = 0; row < items.size(); row += 2)
        selection.select(items.at(row), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    for (int column = 0; column < f.m_model.columnCount(); ++column)
        selection.select(items.at(1).siblingAtColumn(column), QItemSelectionModel::Select);
    selection.select(items.at(5).siblingAtColumn(2), QItemSelectionModel::Select);
    QModelIndexList expected = selection.selectedRows();
    QModelIndexList rows = SelectedItems::Of(selection);
    QCOMPARE(rows.size(), items.size() / 2 + 2);
    std::sort(expected.begin(), expected.end());
    std::sort(rows.begin(), rows.end());
    QCOMPARE(rows, expected);
}

void tst_SelectedItems::pathsAreThoseOfTheModelInAnyOrder()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    QVector<QModelIndex> items = f.Items();
    std::mt19937 random(1);
    for (int round = 0; round < 5; ++round) {
        std::shuffle(items.begin(), items.end(), random);
        // On Windows the link is named by its target, which is listed too.
        QStringList expected = f.PathsOfModel(items);
        expected.removeDuplicates();
        QVERIFY(expected.size() > Listed::Files);
        QCOMPARE(SelectedItems::Paths(f.m_model, items, f.Folder()), expected);
    }
}

void tst_SelectedItems::eachPathOnce()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QVector<QModelIndex> items = f.Items();
    const QVector<QModelIndex> cells = {items.at(8), items.at(2), items.at(8).siblingAtColumn(3),
                                        items.at(2).siblingAtColumn(1)};
    QCOMPARE(SelectedItems::Paths(f.m_model, cells, f.Folder()), f.PathsOfModel({items.at(8), items.at(2)}));
}

void tst_SelectedItems::pathsOfOtherFolders()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QString sub = f.m_disk.Path(QStringLiteral("sub"));
    f.m_model.fetchMore(f.m_model.index(sub));
    QVERIFY(f.Wait(sub, 1));
    const QVector<QModelIndex> items = {f.Items().at(0), f.m_model.index(0, 0, f.m_model.index(sub)),
                                        f.Items().at(1)};
    for (const QModelIndex& folder : {f.Folder(), f.m_model.index(sub), QModelIndex()})
        QCOMPARE(SelectedItems::Paths(f.m_model, items, folder), f.PathsOfModel(items));
}

void tst_SelectedItems::pathsBelowARenamedFolder()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    const QModelIndex sub = f.m_model.index(f.m_disk.Path(QStringLiteral("sub")));
    f.m_model.fetchMore(sub);
    QVERIFY(f.Wait(f.m_disk.Path(QStringLiteral("sub")), 1));
    const QPersistentModelIndex inside = f.m_model.index(0, 0, sub);
    QVERIFY(f.m_model.setData(sub, QStringLiteral("renamed")));
    QVERIFY(inside.isValid());
    QCOMPARE(SelectedItems::Paths(f.m_model, {inside}, inside.parent()),
             QStringList(f.m_disk.Path(QStringLiteral("renamed/inside.txt"))));
}

void tst_SelectedItems::pathsOfNothing()
{
    Listed f;
    QVERIFY(f.WaitForAll());
    QCOMPARE(SelectedItems::Paths(f.m_model, {}, f.Folder()), QStringList());
    const QModelIndex item = f.Items().at(0);
    QCOMPARE(SelectedItems::Paths(f.m_model, {QModelIndex(), item}, f.Folder()),
             QStringList({QString(), f.m_model.filePath(item)}));
}

QTEST_MAIN(tst_SelectedItems)
#include "tst_selecteditems.moc"
