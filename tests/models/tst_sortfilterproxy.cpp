#include "models/CMySortFilterProxyModel.h"

#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMSortFilterProxyModel.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/ConfinedModel.h"
#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QItemSelectionModel>
#include <QSet>
#include <QSignalSpy>
#include <QStandardItemModel>

#include <algorithm>

namespace {

constexpr qint64 KiB = 1024;
constexpr qint64 GiB = KiB * KiB * KiB;

/** How long a large folder may take to be noticed and listed, also under a sanitizer, in ms. */
constexpr int FolderTimeout = 60000;

/** A proxy whose comparison can be asked directly. */
template <class Proxy> class AskedProxy : public Proxy
{
public:
    using Proxy::lessThan;
};

using WidgetProxy = AskedProxy<CMySortFilterProxyModel>;
using HostProxy = AskedProxy<CKTFMSortFilterProxyModel>;
using Source = ConfinedModel<QFileSystemModel>;
using ListSource = ConfinedModel<CKTFMListModel>;

/** A host's own order: names by their length; decides only when it is told to. */
class ByLength : public CCustomSortInterface
{
public:
    bool CustomLessThan(const QFileInfo& left, const QFileInfo& right, bool& handled) override
    {
        ++m_calls;
        m_handledAtEntry = m_handledAtEntry || handled;
        m_paths = QStringList{left.filePath(), right.filePath()};
        handled = m_handles;
        return left.fileName().size() < right.fileName().size();
    }

    bool m_handles = true;
    int m_calls = 0;
    bool m_handledAtEntry = false;
    QStringList m_paths;
};

/** A host that orders by size, while the files grow under its hands. */
class BySizeOfGrowing : public CCustomSortInterface
{
public:
    bool CustomLessThan(const QFileInfo& left, const QFileInfo& right, bool& handled) override
    {
        handled = true;
        m_sizes[left.fileName()].insert(left.size());
        m_sizes[right.fileName()].insert(right.size());
        QFile(left.filePath()).resize(left.size() + 1000);
        return left.size() < right.size();
    }

    QHash<QString, QSet<qint64>> m_sizes;
};

QStringList Names(const QAbstractItemModel& model, const QModelIndex& root)
{
    QStringList names;
    for (int row = 0; row < model.rowCount(root); ++row)
        names.append(model.index(row, 0, root).data(QFileSystemModel::FileNameRole).toString());
    return names;
}

/** Makes a file of any size, without writing it. */
void SparseFile(const TestFolder& folder, const QString& name, qint64 size, const QDateTime& modified)
{
    QFile file(folder.File(name));
    if (!file.open(QIODevice::ReadWrite) || !file.resize(size))
        qFatal("cannot make a file of %lld bytes", size);
    if (modified.isValid() && !file.setFileTime(modified, QFileDevice::FileModificationTime))
        qFatal("cannot set a time");
}

QDateTime Day(int day)
{
    return QDateTime(QDate(2020, 1, day), QTime(12, 0), Qt::UTC);
}

/** @return the sort order by the rule as it is told, from the disk and the shown texts alone */
bool Expected(const QFileSystemModel& model, const QModelIndex& left, const QModelIndex& right,
              Qt::SortOrder order)
{
    const QFileInfo leftInfo(model.filePath(left));
    const QFileInfo rightInfo(model.filePath(right));
    const int texts = left.data().toString().localeAwareCompare(right.data().toString());
    const bool foldersApart = leftInfo.isDir() != rightInfo.isDir();
    switch (left.column()) {
    case 0:
        if (foldersApart)
            return leftInfo.isDir() ? order == Qt::AscendingOrder : order == Qt::DescendingOrder;
        return texts > 0;
    case 1: {
        if (foldersApart)
            return leftInfo.isDir() ? order == Qt::DescendingOrder : order == Qt::AscendingOrder;
        const bool sameLowBits = leftInfo.size() % (4 * GiB) == rightInfo.size() % (4 * GiB);
        return leftInfo.isDir() || sameLowBits ? texts > 0 : leftInfo.size() < rightInfo.size();
    }
    case 2:
        return texts == 0 ? leftInfo.lastModified() < rightInfo.lastModified() : texts > 0;
    case 3:
        return leftInfo.lastModified() < rightInfo.lastModified();
    default:
        return false;
    }
}

/** @return the accepted source rows, sorted once as a whole by the proxy's own comparison */
template <class Proxy> QStringList FullSort(const Proxy& proxy, const QModelIndex& root)
{
    const QAbstractItemModel& source = *proxy.sourceModel();
    QList<QModelIndex> rows;
    for (int row = 0; row < source.rowCount(root); ++row) {
        const QModelIndex index = source.index(row, proxy.sortColumn(), root);
        if (proxy.mapFromSource(index).isValid())
            rows.append(index);
    }
    const bool ascending = proxy.sortOrder() == Qt::AscendingOrder;
    std::stable_sort(rows.begin(), rows.end(), [&](const QModelIndex& left, const QModelIndex& right) {
        return ascending ? proxy.lessThan(left, right) : proxy.lessThan(right, left);
    });
    QStringList names;
    for (const QModelIndex& row : qAsConst(rows))
        names.append(row.siblingAtColumn(0).data(QFileSystemModel::FileNameRole).toString());
    return names;
}

template <class Proxy> bool MapsBothWays(const Proxy& proxy, const QModelIndex& root)
{
    const QModelIndex proxyRoot = proxy.mapFromSource(root);
    for (int row = 0; row < proxy.rowCount(proxyRoot); ++row) {
        const QModelIndex index = proxy.index(row, 0, proxyRoot);
        if (proxy.mapFromSource(proxy.mapToSource(index)) != index)
            return false;
    }
    return true;
}

/** @return whether the list gives the same indexes of a folder's rows as the base does */
bool IndexesAreTheBases(const CKTFMListModel& list, const QModelIndex& root)
{
    for (int row = -1; row <= list.rowCount(root); ++row) {
        for (int column = -1; column <= list.columnCount(root); ++column) {
            if (list.index(row, column, root) != list.QFileSystemModel::index(row, column, root))
                return false;
        }
    }
    return true;
}

/** The names that a proxy shows for a folder of its source. */
template <class Proxy> QStringList Shown(const Proxy& proxy, const QModelIndex& root)
{
    return Names(proxy, proxy.mapFromSource(root));
}

/** Files and folders that differ in every column, and some that do not. */
void MakeVariety(const TestFolder& folder)
{
    SparseFile(folder, QStringLiteral("small.txt"), KiB, Day(5));
    SparseFile(folder, QStringLiteral("huge.txt"), 4 * GiB + KiB, Day(2));
    SparseFile(folder, QStringLiteral("middle.png"), 2 * KiB, Day(9));
    SparseFile(folder, QStringLiteral("half.png"), 2 * GiB + 5, Day(1));
    SparseFile(folder, QStringLiteral("three.PNG"), 3 * GiB, Day(3));
    SparseFile(folder, QStringLiteral("empty.txt"), 0, Day(7));
    // The same name in another letter case where that is another name.
    SparseFile(folder,
               TestPlatform::TellsLetterCase() ? QStringLiteral("Empty.txt") : QStringLiteral("Empty2.txt"),
               0, Day(7));
    SparseFile(folder, QStringLiteral("\u00e4rger"), 10, Day(8));
    SparseFile(folder, QStringLiteral("zebra"), 10, QDateTime(QDate(1960, 1, 1), QTime(0, 0), Qt::UTC));
    folder.Folder(QStringLiteral("a folder"));
    folder.Folder(QStringLiteral("Z folder.d"));
}

} // namespace

class tst_SortFilterProxy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparesByTheRuleInEveryColumn_data();
    void comparesByTheRuleInEveryColumn();
    void namesRunFromAToZAtTheDescendingIndicator();
    void foldersComeFirstByNameInBothOrders();
    void filesComeFirstBySizeInBothOrders();
    void sizesFourGigabytesApartGoByTheirText();
    void equalTypesRunFromOldToNew();
    void datesHaveNoFolderRule();
    void columnsBeyondTheFourAreLeftAlone();
    void shownNamesDecideNotThoseOnDisk();
    void shownNamesThatChangeAreSeenByTheNextSorting();

    void searchKeepsWhatContainsTheText();
    void searchTakesEffectWithTheNextFiltering();
    void emptySearchShowsEverything();
    void onlyChildrenOfTheRootAreSearched();
    void searchFollowsTheRootOfTheSource();
    void searchLooksAtShownNames();
    void searchedBatchesAreFilteredAndSorted();

    void hostOrderDecidesNamesAlone();
    void hostOrderThatHandlesNothingChangesNothing();
    void hostOrderNeedsBothSwitches();
    void hostOrderShowsWithTheNextSorting();
    void hostSeesAFileInOneStateWhileSorting();

    void largeFolderStaysSortedThroughChanges_data();
    void largeFolderStaysSortedThroughChanges();
    void selectionAndIndexesSurviveBatches();
    void turningTheOrderRoundResorts();
    void widgetProxyFiltersNothing();
    void unsortedProxyKeepsTheSourcesOrder();
    void proxyWithoutDynamicSortingIsLeftSo();
    void subfolderBatchesAreSortedToo();
    void changeOfTimeMovesTheRow();

    void sourceMayDieFirst();
    void proxyMayDieFirst();
    void sourceMayBeTakenAwayAndExchanged();
    void otherModelsAreSortedByTheirTexts();
    void sourceMayBeInsertedIntoWhenNotAFileSystem();
    void indexesOfOthersAreNeverLess();
    void modelTesterAcceptsBoth();
};

void tst_SortFilterProxy::comparesByTheRuleInEveryColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    for (int column = 0; column < 4; ++column) {
        QTest::addRow("column %d ascending", column) << column << Qt::AscendingOrder;
        QTest::addRow("column %d descending", column) << column << Qt::DescendingOrder;
    }
}

void tst_SortFilterProxy::comparesByTheRuleInEveryColumn()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    TestFolder folder;
    MakeVariety(folder);
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    WidgetProxy widgetProxy;
    HostProxy hostProxy;
    widgetProxy.setSourceModel(&source);
    hostProxy.setSourceModel(&source);
    widgetProxy.sort(column, order);
    hostProxy.sort(column, order);
    const int count = source.rowCount(root);
    QCOMPARE(count, 11);
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < count; ++j) {
            const QModelIndex left = source.index(i, column, root);
            const QModelIndex right = source.index(j, column, root);
            const bool expected = Expected(source, left, right, order);
            QCOMPARE(widgetProxy.lessThan(left, right), expected);
            QCOMPARE(hostProxy.lessThan(left, right), expected);
        }
    }
    QCOMPARE(Shown(widgetProxy, root), FullSort(widgetProxy, root));
    QCOMPARE(Shown(hostProxy, root), FullSort(hostProxy, root));
    QVERIFY(MapsBothWays(widgetProxy, root));
}

void tst_SortFilterProxy::namesRunFromAToZAtTheDescendingIndicator()
{
    TestFolder folder;
    for (const char* name : {"b", "C", "a", "\u00e4", "d"})
        folder.File(QString::fromUtf8(name));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    const QStringList fromAToZ = {QStringLiteral("a"), QStringLiteral("\u00e4"), QStringLiteral("b"),
                                  QStringLiteral("C"), QStringLiteral("d")};
    QCOMPARE(Shown(proxy, root), fromAToZ);
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root), QStringList(fromAToZ.crbegin(), fromAToZ.crend()));
}

void tst_SortFilterProxy::foldersComeFirstByNameInBothOrders()
{
    TestFolder folder;
    folder.File(QStringLiteral("a"));
    folder.Folder(QStringLiteral("b"));
    folder.File(QStringLiteral("c"));
    folder.Folder(QStringLiteral("d"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("bdac"));
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("dbca"));
}

void tst_SortFilterProxy::filesComeFirstBySizeInBothOrders()
{
    TestFolder folder;
    SparseFile(folder, QStringLiteral("3"), 3, QDateTime());
    SparseFile(folder, QStringLiteral("1"), 1, QDateTime());
    SparseFile(folder, QStringLiteral("2"), 2 * GiB, QDateTime());
    folder.Folder(QStringLiteral("f"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(1, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("132f"));
    proxy.sort(1, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("231f"));
}

void tst_SortFilterProxy::sizesFourGigabytesApartGoByTheirText()
{
    TestFolder folder;
    SparseFile(folder, QStringLiteral("small"), KiB, QDateTime());
    SparseFile(folder, QStringLiteral("large"), 4 * GiB + KiB, QDateTime());
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(1, Qt::AscendingOrder);
    // "4.00 GiB" is after "1.00 KiB", and what is after counts as less.
    QCOMPARE(Shown(proxy, root), QStringList({QStringLiteral("large"), QStringLiteral("small")}));
}

void tst_SortFilterProxy::equalTypesRunFromOldToNew()
{
    TestFolder folder;
    folder.File(QStringLiteral("1.txt"), "x", Day(2));
    folder.File(QStringLiteral("2.txt"), "x", Day(1));
    folder.File(QStringLiteral("3.txt"), "x", Day(3));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(2, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("2.txt1.txt3.txt"));
    proxy.sort(2, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root).join(QString()), QStringLiteral("3.txt1.txt2.txt"));
}

void tst_SortFilterProxy::datesHaveNoFolderRule()
{
    TestFolder folder;
    folder.File(QStringLiteral("old"), "x", Day(1));
    folder.Folder(QStringLiteral("new"));
    folder.File(QStringLiteral("future"), "x", QDateTime::currentDateTime().addYears(1));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    const QStringList byDate = {QStringLiteral("old"), QStringLiteral("new"), QStringLiteral("future")};
    proxy.sort(3, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root), byDate);
    proxy.sort(3, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), QStringList(byDate.crbegin(), byDate.crend()));
}

void tst_SortFilterProxy::columnsBeyondTheFourAreLeftAlone()
{
    QStandardItemModel source(2, 5);
    source.setItem(0, 4, new QStandardItem(QStringLiteral("a")));
    source.setItem(1, 4, new QStandardItem(QStringLiteral("b")));
    WidgetProxy proxy;
    proxy.setSourceModel(&source);
    QVERIFY(!proxy.lessThan(source.index(0, 4), source.index(1, 4)));
    QVERIFY(!proxy.lessThan(source.index(1, 4), source.index(0, 4)));
}

void tst_SortFilterProxy::shownNamesDecideNotThoseOnDisk()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    folder.File(QStringLiteral("b.txt"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "a.txt=Zebra\nb.txt=Ant\n");
    ListSource source(folder.Path());
    source.SetFileNameMappingFile(ini);
    source.SetFileMappingSection(QLatin1String(""));
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), QStringList({QStringLiteral("b.txt"), QStringLiteral("a.txt")}));
}

void tst_SortFilterProxy::shownNamesThatChangeAreSeenByTheNextSorting()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    folder.File(QStringLiteral("b.txt"));
    folder.File(QStringLiteral("c.txt"));
    TestFolder elsewhere;
    const QString ini = elsewhere.File(QStringLiteral("names.ini"), "[1]\na.txt=z\n[2]\nc.txt=0\n");
    ListSource source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    const auto sorted = [&proxy, &root] {
        proxy.sort(0, Qt::AscendingOrder);
        proxy.sort(0, Qt::DescendingOrder);
        return Shown(proxy, root).join(QLatin1Char(' '));
    };
    QCOMPARE(sorted(), QStringLiteral("a.txt b.txt c.txt"));
    source.SetFileNameMappingFile(ini);
    source.SetFileMappingSection(QStringLiteral("1"));
    QCOMPARE(sorted(), QStringLiteral("b.txt c.txt a.txt"));
    source.SetFileMappingSection(QStringLiteral("2"));
    QCOMPARE(sorted(), QStringLiteral("c.txt a.txt b.txt"));
    source.SetShowStringMode(FM_SHOW_STRING_BASE_NAME);
    QCOMPARE(sorted(), QStringLiteral("a.txt b.txt c.txt"));
}

void tst_SortFilterProxy::searchKeepsWhatContainsTheText()
{
    TestFolder folder;
    folder.File(QStringLiteral("Abc.txt"));
    folder.File(QStringLiteral("x.txt"));
    folder.Folder(QStringLiteral("lab"));
    folder.Folder(QStringLiteral("other"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.SetSearchTextFilter(QStringLiteral("ab"));
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), QStringList({QStringLiteral("lab"), QStringLiteral("Abc.txt")}));
    // The folders above stay, or nothing could be shown at all.
    for (QModelIndex above = root; above.isValid(); above = above.parent())
        QVERIFY(proxy.mapFromSource(above).isValid());
    QVERIFY(MapsBothWays(proxy, root));
}

void tst_SortFilterProxy::searchTakesEffectWithTheNextFiltering()
{
    TestFolder folder;
    folder.File(QStringLiteral("a"));
    folder.File(QStringLiteral("b"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, root).size(), 2);
    proxy.SetSearchTextFilter(QStringLiteral("B"));
    QCOMPARE(Shown(proxy, root).size(), 2);
    proxy.invalidate();
    QCOMPARE(Shown(proxy, root), QStringList{QStringLiteral("b")});
    // Rows that the source adds are filtered without being told.
    folder.File(QStringLiteral("bb"));
    folder.File(QStringLiteral("c"));
    QTRY_COMPARE(source.rowCount(root), 4);
    QCOMPARE(Shown(proxy, root).size(), 2);
}

void tst_SortFilterProxy::emptySearchShowsEverything()
{
    TestFolder folder;
    folder.File(QStringLiteral("a"));
    folder.File(QStringLiteral("b"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.SetSearchTextFilter(QStringLiteral("a"));
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, root).size(), 1);
    for (const QString& empty : {QString(QLatin1String("")), QString()}) {
        proxy.SetSearchTextFilter(empty);
        proxy.invalidate();
        QCOMPARE(Shown(proxy, root).size(), 2);
    }
}

void tst_SortFilterProxy::onlyChildrenOfTheRootAreSearched()
{
    TestFolder folder;
    folder.File(QStringLiteral("sub/x"));
    folder.File(QStringLiteral("sub/y"));
    Source source(folder.Path());
    source.Load(folder.Path());
    const QModelIndex sub = source.Load(folder.Path(QStringLiteral("sub")));
    source.setRootPath(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.SetSearchTextFilter(QStringLiteral("sub"));
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, sub).size(), 2);
}

void tst_SortFilterProxy::searchFollowsTheRootOfTheSource()
{
    TestFolder folder;
    folder.File(QStringLiteral("one/ab"));
    folder.File(QStringLiteral("one/x"));
    folder.File(QStringLiteral("two/ab"));
    folder.File(QStringLiteral("two/y"));
    Source source(folder.Path());
    const QPersistentModelIndex one = source.Load(folder.Path(QStringLiteral("one")));
    CKTFMSortFilterProxyModel proxy;
    proxy.SetSearchTextFilter(QStringLiteral("ab"));
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, one).size(), 1);
    const QPersistentModelIndex two = source.Load(folder.Path(QStringLiteral("two")));
    proxy.invalidate();
    QCOMPARE(Shown(proxy, one).size(), 2);
    QCOMPARE(Shown(proxy, two).size(), 1);
    source.setRootPath(folder.Path(QStringLiteral("one")));
    proxy.invalidate();
    QCOMPARE(Shown(proxy, one).size(), 1);
    QCOMPARE(Shown(proxy, two).size(), 2);
}

void tst_SortFilterProxy::searchLooksAtShownNames()
{
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"));
    folder.File(QStringLiteral("txt.png"));
    ListSource source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CKTFMSortFilterProxyModel proxy;
    proxy.SetSearchTextFilter(QStringLiteral("txt"));
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, root), QStringList{QStringLiteral("txt.png")});
}

void tst_SortFilterProxy::searchedBatchesAreFilteredAndSorted()
{
    TestFolder folder;
    for (int i = 0; i < 300; ++i)
        folder.File(QStringLiteral("%1 %2").arg(i * 7 % 300).arg(QLatin1String(i % 2 ? "odd" : "even")));
    Source source(folder.Path());
    HostProxy proxy;
    proxy.SetSearchTextFilter(QStringLiteral("ODD"));
    proxy.sort(0, Qt::DescendingOrder);
    proxy.setSourceModel(&source);
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(Shown(proxy, root).size(), 150);
    QCOMPARE(Shown(proxy, root), FullSort(proxy, root));
    for (int i = 0; i < 300; ++i)
        folder.File(QStringLiteral("new %1 %2").arg(i * 7 % 300).arg(QLatin1String(i % 2 ? "odd" : "even")));
    QTRY_COMPARE(Shown(proxy, root).size(), 300);
    QCOMPARE(Shown(proxy, root), FullSort(proxy, root));
    QVERIFY(MapsBothWays(proxy, root));
}

void tst_SortFilterProxy::hostOrderDecidesNamesAlone()
{
    TestFolder folder;
    SparseFile(folder, QStringLiteral("ccc"), 1, Day(3));
    SparseFile(folder, QStringLiteral("b"), 3, Day(2));
    SparseFile(folder, QStringLiteral("aa"), 2, Day(1));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    ByLength host;
    HostProxy proxy;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root).join(QLatin1Char(' ')), QStringLiteral("b aa ccc"));
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root).join(QLatin1Char(' ')), QStringLiteral("ccc aa b"));
    QVERIFY(!host.m_handledAtEntry);
    QVERIFY(proxy.lessThan(source.index(folder.Path(QStringLiteral("b"))),
                           source.index(folder.Path(QStringLiteral("aa")))));
    QCOMPARE(host.m_paths,
             QStringList({folder.Path(QStringLiteral("b")), folder.Path(QStringLiteral("aa"))}));
    const int calls = host.m_calls;
    const QVector<QString> expected = {QString(), QStringLiteral("ccc aa b"), QStringLiteral("aa b ccc"),
                                       QStringLiteral("aa b ccc")};
    for (int column = 1; column < 4; ++column) {
        proxy.sort(column, Qt::AscendingOrder);
        QCOMPARE(Shown(proxy, root).join(QLatin1Char(' ')), expected.at(column));
    }
    QCOMPARE(host.m_calls, calls);
}

void tst_SortFilterProxy::hostOrderThatHandlesNothingChangesNothing()
{
    TestFolder folder;
    MakeVariety(folder);
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    ByLength host;
    host.m_handles = false;
    HostProxy proxy;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    proxy.setSourceModel(&source);
    WidgetProxy builtIn;
    builtIn.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    builtIn.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), Shown(builtIn, root));
    QVERIFY(host.m_calls > 0);
}

void tst_SortFilterProxy::hostOrderNeedsBothSwitches()
{
    TestFolder folder;
    folder.File(QStringLiteral("ccc"));
    folder.File(QStringLiteral("b"));
    Source source(folder.Path());
    source.Load(folder.Path());
    ByLength host;
    HostProxy proxy;
    proxy.setSourceModel(&source);
    const QModelIndex longer = source.index(folder.Path(QStringLiteral("ccc")));
    const QModelIndex shorter = source.index(folder.Path(QStringLiteral("b")));
    proxy.SetInterface(&host);
    QVERIFY(proxy.lessThan(longer, shorter));
    QCOMPARE(host.m_calls, 0);
    proxy.SetCustomSort(true);
    QVERIFY(!proxy.lessThan(longer, shorter));
    QCOMPARE(host.m_calls, 1);
    proxy.SetInterface(nullptr);
    QVERIFY(proxy.lessThan(longer, shorter));
    QCOMPARE(host.m_calls, 1);
}

void tst_SortFilterProxy::hostOrderShowsWithTheNextSorting()
{
    TestFolder folder;
    folder.File(QStringLiteral("aaa"));
    folder.File(QStringLiteral("b"));
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    ByLength host;
    HostProxy proxy;
    proxy.SetInterface(&host);
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), (QStringList{QStringLiteral("aaa"), QStringLiteral("b")}));
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root), (QStringList{QStringLiteral("b"), QStringLiteral("aaa")}));
    proxy.sort(0, Qt::DescendingOrder);
    proxy.SetCustomSort(true);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(host.m_calls, 0);
    proxy.invalidate();
    QCOMPARE(Shown(proxy, root), (QStringList{QStringLiteral("aaa"), QStringLiteral("b")}));
    QVERIFY(host.m_calls > 0);
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root), (QStringList{QStringLiteral("b"), QStringLiteral("aaa")}));
}

void tst_SortFilterProxy::hostSeesAFileInOneStateWhileSorting()
{
    TestFolder folder;
    for (int i = 0; i < 100; ++i)
        SparseFile(folder, QStringLiteral("%1").arg(i), i * 7 % 100, QDateTime());
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(source.rowCount(root), 100);
    CKTFMSortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, root).size(), 100);
    BySizeOfGrowing host;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(host.m_sizes.size(), 100);
    for (const QSet<qint64>& sizes : qAsConst(host.m_sizes))
        QCOMPARE(sizes.size(), 1);
    // The next sorting asks the disk again.
    host.m_sizes.clear();
    proxy.sort(0, Qt::DescendingOrder);
    int grown = 0;
    for (const QSet<qint64>& sizes : qAsConst(host.m_sizes))
        grown += *sizes.cbegin() >= 1000;
    QVERIFY(grown > 0);
}

void tst_SortFilterProxy::largeFolderStaysSortedThroughChanges_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<Qt::SortOrder>("order");
    QTest::addColumn<int>("batch");
    QTest::addColumn<bool>("sortedByProxy");
    QTest::newRow("names as the header starts") << 0 << Qt::DescendingOrder << 1000 << true;
    QTest::newRow("names turned round") << 0 << Qt::AscendingOrder << 200 << false;
    QTest::newRow("sizes") << 1 << Qt::AscendingOrder << 200 << true;
    QTest::newRow("types") << 2 << Qt::AscendingOrder << 200 << false;
    QTest::newRow("dates") << 3 << Qt::DescendingOrder << 200 << true;
}

void tst_SortFilterProxy::largeFolderStaysSortedThroughChanges()
{
    QFETCH(int, column);
    QFETCH(Qt::SortOrder, order);
    QFETCH(int, batch);
    QFETCH(bool, sortedByProxy);
    TestFolder folder;
    const auto make = [&folder](const char* prefix, int count) {
        for (int i = 0; i < count; ++i) {
            const int mixed = i * 7919 % count;
            // No two have the same text, size and time, so that there is one order only.
            SparseFile(folder, QStringLiteral("%1%2.txt").arg(QLatin1String(prefix)).arg(mixed),
                       mixed * 3000 + prefix[0], Day(1).addSecs(i * 5 + prefix[0]));
        }
    };
    make("m", 2 * batch);
    folder.Folder(QStringLiteral("folder"));
    ListSource source(folder.Path());
    source.SetSortedByProxy(sortedByProxy);
    WidgetProxy proxy;
    proxy.sort(column, order);
    proxy.setSourceModel(&source);
    const QModelIndex root = source.Load(folder.Path());
    const auto isSorted = [&](int count) {
        return Shown(proxy, root).size() == count && Shown(proxy, root) == FullSort(proxy, root) &&
               MapsBothWays(proxy, root) && IndexesAreTheBases(source, root) && proxy.dynamicSortFilter();
    };
    QTRY_COMPARE_WITH_TIMEOUT(Shown(proxy, root).size(), 2 * batch + 1, FolderTimeout);
    QTRY_VERIFY(isSorted(2 * batch + 1));

    make("a", batch);
    QTRY_COMPARE_WITH_TIMEOUT(Shown(proxy, root).size(), 3 * batch + 1, FolderTimeout);
    QTRY_VERIFY(isSorted(3 * batch + 1));

    for (int i = 0; i < batch; ++i)
        QVERIFY(QFile::remove(folder.Path(QStringLiteral("m%1.txt").arg(i * 2))));
    QTRY_COMPARE_WITH_TIMEOUT(Shown(proxy, root).size(), 2 * batch + 1, FolderTimeout);
    QTRY_VERIFY(isSorted(2 * batch + 1));

    for (int i = 0; i < batch; ++i) {
        QVERIFY(QFile::rename(folder.Path(QStringLiteral("a%1.txt").arg(i)),
                              folder.Path(QStringLiteral("z%1.txt").arg(i))));
    }
    QTRY_VERIFY_WITH_TIMEOUT(Shown(proxy, root).filter(QStringLiteral("z")).size() == batch &&
                                 Shown(proxy, root).size() == 2 * batch + 1,
                             FolderTimeout);
    QTRY_VERIFY(isSorted(2 * batch + 1));
}

void tst_SortFilterProxy::selectionAndIndexesSurviveBatches()
{
    TestFolder folder;
    for (int i = 0; i < 500; ++i)
        folder.File(QStringLiteral("m%1").arg(i));
    Source source(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(Shown(proxy, root).size(), 500);
    QItemSelectionModel selection(&proxy);
    QStringList selected;
    QList<QPersistentModelIndex> kept;
    for (int i = 0; i < 500; i += 50) {
        const QString name = QStringLiteral("m%1").arg(i);
        kept.append(proxy.mapFromSource(source.index(folder.Path(name))));
        selection.select(kept.last(), QItemSelectionModel::Select);
        selected.append(name);
    }
    selection.setCurrentIndex(kept.first(), QItemSelectionModel::NoUpdate);
    for (int i = 0; i < 500; ++i)
        folder.File(QStringLiteral("a%1").arg(i));
    QTRY_COMPARE_WITH_TIMEOUT(Shown(proxy, root).size(), 1000, FolderTimeout);
    for (int i = 0; i < 500; i += 2)
        QVERIFY(QFile::remove(folder.Path(QStringLiteral("a%1").arg(i))));
    QTRY_COMPARE_WITH_TIMEOUT(Shown(proxy, root).size(), 750, FolderTimeout);
    for (int i = 0; i < kept.size(); ++i)
        QCOMPARE(kept.at(i).data().toString(), selected.at(i));
    QStringList stillSelected;
    const QModelIndexList selectedIndexes = selection.selectedIndexes();
    for (const QModelIndex& index : selectedIndexes)
        stillSelected.append(index.data().toString());
    stillSelected.sort();
    selected.sort();
    QCOMPARE(stillSelected, selected);
    QCOMPARE(selection.currentIndex().data().toString(), QStringLiteral("m0"));
}

void tst_SortFilterProxy::turningTheOrderRoundResorts()
{
    TestFolder folder;
    for (int i = 0; i < 200; ++i)
        folder.File(QStringLiteral("%1").arg(i));
    Source source(folder.Path());
    WidgetProxy proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::AscendingOrder);
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(Shown(proxy, root).size(), 200);
    const QStringList ascending = Shown(proxy, root);
    proxy.sort(0, Qt::DescendingOrder);
    QCOMPARE(Shown(proxy, root), QStringList(ascending.crbegin(), ascending.crend()));
    proxy.sort(0, Qt::AscendingOrder);
    QCOMPARE(Shown(proxy, root), ascending);
}

void tst_SortFilterProxy::widgetProxyFiltersNothing()
{
    TestFolder folder;
    MakeVariety(folder);
    Source source(folder.Path());
    const QModelIndex root = source.Load(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    QCOMPARE(Shown(proxy, root).size(), source.rowCount(root));
}

void tst_SortFilterProxy::unsortedProxyKeepsTheSourcesOrder()
{
    TestFolder folder;
    for (int i = 0; i < 200; ++i)
        folder.File(QStringLiteral("%1").arg(i));
    Source source(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(Shown(proxy, root).size(), 200);
    QTRY_COMPARE(Shown(proxy, root), Names(source, root));
    QVERIFY(proxy.dynamicSortFilter());
}

void tst_SortFilterProxy::proxyWithoutDynamicSortingIsLeftSo()
{
    QStandardItemModel source;
    source.appendRow(new QStandardItem(QStringLiteral("m")));
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    proxy.setDynamicSortFilter(false);
    QCOMPARE(proxy.rowCount(), 1);
    QList<QStandardItem*> column;
    for (int i = 0; i < 200; ++i)
        column.append(new QStandardItem(QStringLiteral("a%1").arg(i)));
    source.invisibleRootItem()->appendRows(column);
    QCOMPARE(proxy.rowCount(), 201);
    QVERIFY(!proxy.dynamicSortFilter());
    QCOMPARE(proxy.index(0, 0).data().toString(), QStringLiteral("m"));
}

void tst_SortFilterProxy::subfolderBatchesAreSortedToo()
{
    TestFolder folder;
    for (int i = 0; i < 150; ++i) {
        folder.File(QStringLiteral("one/%1").arg(i * 7 % 150));
        folder.File(QStringLiteral("two/%1").arg(i * 11 % 150));
    }
    Source source(folder.Path());
    WidgetProxy proxy;
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    const QPersistentModelIndex one = source.Load(folder.Path(QStringLiteral("one")));
    QTRY_COMPARE(Shown(proxy, one).size(), 150);
    const QPersistentModelIndex two = source.Load(folder.Path(QStringLiteral("two")));
    QTRY_COMPARE(Shown(proxy, two).size(), 150);
    // Both folders are sorted in the same pass, with the same row numbers.
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        proxy.sort(0, order);
        QCOMPARE(Shown(proxy, one), FullSort(proxy, one));
        QCOMPARE(Shown(proxy, two), FullSort(proxy, two));
        QCOMPARE(Shown(proxy, one), Shown(proxy, two));
    }
}

void tst_SortFilterProxy::changeOfTimeMovesTheRow()
{
    TestFolder folder;
    folder.File(QStringLiteral("1"), "x", Day(1));
    folder.File(QStringLiteral("2"), "x", Day(2));
    folder.File(QStringLiteral("3"), "x", Day(3));
    Source source(folder.Path());
    CMySortFilterProxyModel proxy;
    proxy.setSourceModel(&source);
    proxy.sort(3, Qt::AscendingOrder);
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(Shown(proxy, root).join(QString()), QStringLiteral("123"));
    folder.File(QStringLiteral("1"), "xx", Day(9));
    // The listing is read again when a name appears.
    folder.File(QStringLiteral("0"), "x", Day(10));
    QTRY_COMPARE(Shown(proxy, root).join(QString()), QStringLiteral("2310"));
}

void tst_SortFilterProxy::sourceMayDieFirst()
{
    TestFolder folder;
    for (int i = 0; i < 100; ++i)
        folder.File(QStringLiteral("%1").arg(i));
    HostProxy proxy;
    ByLength host;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    proxy.SetSearchTextFilter(QStringLiteral("1"));
    proxy.sort(0, Qt::AscendingOrder);
    {
        Source source(folder.Path());
        proxy.setSourceModel(&source);
        const QModelIndex root = source.Load(folder.Path());
        QVERIFY(!Shown(proxy, root).isEmpty());
    }
    QCOMPARE(proxy.rowCount(), 0);
    proxy.invalidate();
    proxy.sort(1, Qt::DescendingOrder);
    QVERIFY(!proxy.lessThan(QModelIndex(), QModelIndex()));
    Source next(folder.Path());
    proxy.setSourceModel(&next);
    const QModelIndex root = next.Load(folder.Path());
    QCOMPARE(Shown(proxy, root).size(), 19);
}

void tst_SortFilterProxy::proxyMayDieFirst()
{
    TestFolder folder;
    for (int i = 0; i < 100; ++i)
        folder.File(QStringLiteral("%1").arg(i));
    Source source(folder.Path());
    {
        CMySortFilterProxyModel proxy;
        proxy.setSourceModel(&source);
        proxy.sort(0, Qt::AscendingOrder);
    }
    const QModelIndex root = source.Load(folder.Path());
    QTRY_COMPARE(source.rowCount(root), 100);
}

void tst_SortFilterProxy::sourceMayBeTakenAwayAndExchanged()
{
    TestFolder folder;
    for (int i = 0; i < 100; ++i)
        folder.File(QStringLiteral("one/%1").arg(i));
    for (int i = 0; i < 50; ++i)
        folder.File(QStringLiteral("two/%1").arg(i));
    Source first(folder.Path());
    Source second(folder.Path());
    WidgetProxy proxy;
    proxy.sort(0, Qt::DescendingOrder);
    proxy.setSourceModel(&first);
    const QPersistentModelIndex one = first.Load(folder.Path(QStringLiteral("one")));
    QTRY_COMPARE(Shown(proxy, one).size(), 100);
    proxy.setSourceModel(nullptr);
    QCOMPARE(proxy.rowCount(), 0);
    // What happens in a model that it no longer shows is nothing to the proxy.
    QSignalSpy insertions(&proxy, &QAbstractItemModel::rowsInserted);
    for (int i = 100; i < 200; ++i)
        folder.File(QStringLiteral("one/%1").arg(i));
    QTRY_COMPARE(first.rowCount(one), 200);
    QCOMPARE(insertions.count(), 0);
    QVERIFY(proxy.dynamicSortFilter());

    proxy.setSourceModel(&second);
    const QPersistentModelIndex two = second.Load(folder.Path(QStringLiteral("two")));
    QTRY_COMPARE(Shown(proxy, two).size(), 50);
    QCOMPARE(Shown(proxy, two), FullSort(proxy, two));

    proxy.setSourceModel(&first);
    proxy.setSourceModel(&first);
    QCOMPARE(Shown(proxy, one).size(), 200);
    QCOMPARE(Shown(proxy, one), FullSort(proxy, one));
    for (int i = 200; i < 300; ++i)
        folder.File(QStringLiteral("one/%1").arg(i));
    QTRY_COMPARE(Shown(proxy, one).size(), 300);
    QCOMPARE(Shown(proxy, one), FullSort(proxy, one));
}

void tst_SortFilterProxy::otherModelsAreSortedByTheirTexts()
{
    QStandardItemModel source;
    for (const char* text : {"b", "a", "c"}) {
        QList<QStandardItem*> row;
        for (int column = 0; column < 5; ++column)
            row.append(new QStandardItem(QString::fromLatin1(text)));
        source.appendRow(row);
    }
    const auto shown = [](const QAbstractItemModel& model) {
        QString texts;
        for (int row = 0; row < model.rowCount(); ++row)
            texts += model.index(row, 0).data().toString();
        return texts;
    };
    CKTFMSortFilterProxyModel proxy;
    CMySortFilterProxyModel widgetProxy;
    ByLength host;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    proxy.SetSearchTextFilter(QStringLiteral("nothing"));
    for (QSortFilterProxyModel* model :
         {static_cast<QSortFilterProxyModel*>(&proxy), static_cast<QSortFilterProxyModel*>(&widgetProxy)}) {
        const QAbstractItemModelTester tester(model);
        model->setSourceModel(&source);
        QCOMPARE(model->rowCount(), 3);
        for (int column = 0; column < 3; ++column) {
            model->sort(column, Qt::DescendingOrder);
            QCOMPARE(shown(*model), QStringLiteral("abc"));
            model->sort(column, Qt::AscendingOrder);
            QCOMPARE(shown(*model), QStringLiteral("cba"));
        }
        // Without dates, and beyond the four columns, no row is less: all stay as they are.
        for (int column = 3; column < 5; ++column) {
            model->sort(column, Qt::DescendingOrder);
            QCOMPARE(shown(*model), QStringLiteral("cba"));
        }
    }
    QCOMPARE(host.m_calls, 0);
}

void tst_SortFilterProxy::sourceMayBeInsertedIntoWhenNotAFileSystem()
{
    QStandardItemModel source;
    CMySortFilterProxyModel proxy;
    const QAbstractItemModelTester tester(&proxy);
    proxy.setSourceModel(&source);
    proxy.sort(0, Qt::DescendingOrder);
    source.appendRow(new QStandardItem(QStringLiteral("parent")));
    QList<QStandardItem*> children;
    for (int i = 0; i < 100; ++i)
        children.append(new QStandardItem(QStringLiteral("%1").arg(i * 7 % 100, 3)));
    source.item(0)->appendRows(children);
    const QModelIndex parent = proxy.index(0, 0);
    QCOMPARE(proxy.rowCount(parent), 100);
    for (int i = 0; i < 100; ++i)
        QCOMPARE(proxy.index(i, 0, parent).data().toString().toInt(), i);
    QVERIFY(proxy.dynamicSortFilter());
}

void tst_SortFilterProxy::indexesOfOthersAreNeverLess()
{
    TestFolder folder;
    folder.File(QStringLiteral("a"));
    folder.File(QStringLiteral("b"));
    Source source(folder.Path());
    source.Load(folder.Path());
    QStandardItemModel other(2, 4);
    ByLength host;
    HostProxy proxy;
    proxy.SetInterface(&host);
    proxy.SetCustomSort(true);
    WidgetProxy widgetProxy;
    proxy.setSourceModel(&source);
    widgetProxy.setSourceModel(&source);
    for (int column = 0; column < 4; ++column) {
        const QModelIndex own = source.index(folder.Path(QStringLiteral("b")), column);
        for (const QModelIndex& foreign : {other.index(0, column), QModelIndex()}) {
            QVERIFY(!proxy.lessThan(own, foreign));
            QVERIFY(!proxy.lessThan(foreign, own));
            QVERIFY(!proxy.lessThan(foreign, foreign));
            QVERIFY(!widgetProxy.lessThan(own, foreign));
            QVERIFY(!widgetProxy.lessThan(foreign, own));
        }
    }
    QCOMPARE(host.m_calls, 0);
}

void tst_SortFilterProxy::modelTesterAcceptsBoth()
{
    TestFolder folder;
    MakeVariety(folder);
    Source source(folder.Path());
    CMySortFilterProxyModel widgetProxy;
    CKTFMSortFilterProxyModel hostProxy;
    hostProxy.SetSearchTextFilter(QStringLiteral("e"));
    const QAbstractItemModelTester widgetTester(&widgetProxy);
    const QAbstractItemModelTester hostTester(&hostProxy);
    widgetProxy.setSourceModel(&source);
    hostProxy.setSourceModel(&source);
    widgetProxy.sort(0, Qt::DescendingOrder);
    hostProxy.sort(0, Qt::AscendingOrder);
    const QModelIndex root = source.Load(folder.Path());
    for (int i = 0; i < 100; ++i)
        folder.File(QStringLiteral("e%1").arg(i));
    QTRY_COMPARE(Shown(widgetProxy, root).size(), 111);
    for (int i = 0; i < 100; ++i)
        QVERIFY(QFile::remove(folder.Path(QStringLiteral("e%1").arg(i))));
    QTRY_COMPARE(Shown(widgetProxy, root).size(), 11);
}

KTFM_TEST_MAIN(tst_SortFilterProxy)
#include "tst_sortfilterproxy.moc"
