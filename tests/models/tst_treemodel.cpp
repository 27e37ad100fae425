#include "tests/models/FirstColumnTree.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/TreeItem.h>
#include <KTFileManager2QU/TreeModel.h>

#include <QSignalSpy>
#include <QStandardItemModel>

#include <limits>

namespace {

/** A tree model whose tree can be set up from outside, as a derived class does. */
class TestTree : public TreeModel
{
public:
    TestTree() = default;

    explicit TestTree(const QString& data) { Setup(data); }

    bool Setup(const QString& data,
               const QStringList& headers = {QStringLiteral("Name"), QStringLiteral("Path")})
    {
        beginResetModel();
        const bool done = SetupTree(headers, data);
        endResetModel();
        return done;
    }

    using TreeModel::SetupTree;
};

/** A tree model that lets go of its top-level rows, and notes when it is asked to. */
class RowTakingTree : public TestTree
{
public:
    bool removeRows(int position, int rows, const QModelIndex& parent) override
    {
        m_asked.append({position, rows, parent.isValid() ? 1 : 0});
        return TreeModel::removeRows(position, rows, parent);
    }

    QVector<QVector<int>> m_asked;
};

QString TextAt(const QAbstractItemModel& model, int row, const QModelIndex& parent = QModelIndex())
{
    return model.index(row, 0, parent).data().toString();
}

/** The first column of a tree in one line: "Alpha(Beta Gamma) Delta". */
QString Outline(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = Outline(model, index);
        rows.append(below.isEmpty()
                        ? TextAt(model, row, parent)
                        : TextAt(model, row, parent) + QLatin1Char('(') + below + QLatin1Char(')'));
    }
    return rows.join(QLatin1Char(' '));
}

QString Lines(std::initializer_list<const char*> lines)
{
    QStringList list;
    for (const char* line : lines)
        list.append(QString::fromUtf8(line));
    return list.join(QLatin1Char('\n'));
}

const char* const SampleTable = "Alpha\tx\n  Beta\ty\n  Gamma\n Delta\nOmega";

} // namespace

class tst_TreeModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelWithoutTreeIsEmptyAndRefusesChanges();
    void indentationGivesDepth_data();
    void indentationGivesDepth();
    void columnsAreSeparatedByTabs_data();
    void columnsAreSeparatedByTabs();
    void rowKeepsItsOwnNumberOfColumns();
    void setupTreeReplacesTheTree();
    void setupTreeEmitsNothing();
    void veryLongLineIsOneItem();
    void veryDeepTable();
    void manyLinesInThreeLevels();
    void indexAndParentAgree();
    void indexOutOfRangeIsInvalid();
    void everyColumnHasTheChildrenOfItsRow();
    void indexOfAnotherModelHasNothing();
    void dataAnswersDisplayAndEditRoleOnly();
    void setDataStoresAndTells();
    void setDataRefusesOtherRolesAndPlaces();
    void flagsOfferNoEditing();
    void headerShowsRootValues();
    void setHeaderDataStoresAndTells();
    void insertRowsBelowAnItem();
    void insertRowsRefusesTheInvisibleRoot();
    void insertRowsRefusesPositionsOutOfRange();
    void removeRowsDropsBranchesAndTheirIndexes();
    void removeRowsRefusesTheInvisibleRootAndBadRanges();
    void insertColumnsMovesValues();
    void insertColumnsRefusesPositionsOutOfRange();
    void removeColumnsMovesValues();
    void removeColumnsRefusesRangesBeyondTheEnd();
    void removalOfTheLastColumnAsksForTheRowsButKeepsThem();
    void walkOverManySiblings();
};

void tst_TreeModel::modelWithoutTreeIsEmptyAndRefusesChanges()
{
    TestTree model;
    FirstColumnTree::Watch(&model);
    QCOMPARE(model.rowCount(), 0);
    QCOMPARE(model.columnCount(), 0);
    QVERIFY(!model.index(0, 0).isValid());
    QVERIFY(!model.data(QModelIndex()).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal).isValid());
    QVERIFY(!model.setData(QModelIndex(), 1));
    QVERIFY(!model.setHeaderData(0, Qt::Horizontal, 1));
    QVERIFY(!model.insertRows(0, 1));
    QVERIFY(!model.removeRows(0, 1));
    QVERIFY(!model.insertColumns(0, 1));
    QVERIFY(!model.removeColumns(0, 0));
}

void tst_TreeModel::indentationGivesDepth_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<QString>("outline");
    const auto row = [](const char* name, const QString& data, const char* outline) {
        QTest::newRow(name) << data << QString::fromLatin1(outline);
    };
    row("between two levels joins the upper one", QString::fromLatin1(SampleTable),
        "Alpha(Beta Gamma) Delta Omega");
    row("first line indented", Lines({"   A", "B", " C"}), "A B(C)");
    row("indented lines before any other", Lines({"   A", "  B"}), "A(B)");
    row("second line at the first one's indentation", Lines({"  A", "  B", "    C"}), "A(B(C))");
    row("any jump is one level", Lines({"A", "         B", "          C", "A2"}), "A(B(C)) A2");
    row("back over several levels", Lines({"A", " B", "  C", "   D", " E"}), "A(B(C(D)) E)");
    row("falling short of a level", Lines({"A", "    B", "        C", "      D", "   E"}), "A(B(C) D) E");
    row("zig-zag", Lines({"A", "  B", "C", "  D", "E", "  F"}), "A(B) C(D) E(F)");
    row("tab ends the indentation", Lines({"A", "\t  B", " \t   C"}), "A B(C)");
    row("other blanks are no indentation", QStringLiteral("A\n\u00a0\u00a0B\n\u3000C"), "A B C");
    row("mixed line ends", QStringLiteral("A\r\n  B\r\n  C\nD\r\n"), "A(B C) D");
    row("lone carriage return is no line end", QStringLiteral("A\rB"), "A\rB");
    row("blank lines do not count", Lines({"A", "", "      ", "\t\t", " \t ", "  B", "\r"}), "A(B)");
    row("no final line end", QStringLiteral("A\nB"), "A B");
    row("empty", QString(), "");
    row("only tabs", QStringLiteral("\t\t\t\n\t"), "");
    row("only line ends", QStringLiteral("\n\n\n"), "");
    const QString null(QChar(0));
    const QString surrogate(QChar(0xD800));
    QTest::newRow("not quite text") << null + QLatin1Char('\n') + surrogate
                                    << null + QLatin1Char(' ') + surrogate;
}

void tst_TreeModel::indentationGivesDepth()
{
    QFETCH(QString, data);
    QFETCH(QString, outline);
    TestTree model;
    FirstColumnTree::Watch(&model);
    QVERIFY(model.Setup(data));
    QCOMPARE(Outline(model), outline);
    QCOMPARE(model.columnCount(), 2);
}

void tst_TreeModel::columnsAreSeparatedByTabs_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("columns");
    const auto row = [](const char* line, const QStringList& columns) {
        QTest::newRow(line) << QString::fromLatin1(line) << columns;
    };
    const QString a = QStringLiteral("Alpha");
    const QString b = QStringLiteral("Beta");
    row("Alpha\t\tBeta", {a, b});
    row("Alpha\t\t\t\tBeta\t\t", {a, b});
    row("\tAlpha\tBeta\r", {a, b});
    row("Alpha\t \tBeta", {a, QStringLiteral(" "), b});
    row("Alpha \t Beta ", {QStringLiteral("Alpha "), QStringLiteral(" Beta")});
    row("Alpha Beta", {QStringLiteral("Alpha Beta")});
    row("Alpha\t1\t2\t3\t4\t5\t6", {a, QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                                    QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6")});
}

void tst_TreeModel::columnsAreSeparatedByTabs()
{
    QFETCH(QString, line);
    QFETCH(QStringList, columns);
    // As the child of itself: an item is reached by as many columns as the line above it has.
    TestTree model(line + QStringLiteral("\n ") + line);
    const QModelIndex parent = model.index(0, 0);
    QCOMPARE(model.columnCount(parent), columns.size());
    QStringList read;
    for (int column = 0; column < columns.size(); ++column)
        read.append(model.index(0, column, parent).data().toString());
    QCOMPARE(read, columns);
    QCOMPARE(model.index(0, 0, parent).data().type(), QVariant::String);
}

void tst_TreeModel::rowKeepsItsOwnNumberOfColumns()
{
    TestTree model(Lines({"short", "long\tp\textra", " below\tq\tr"}));
    FirstColumnTree::Watch(&model);
    QCOMPARE(model.columnCount(), 2);
    QVERIFY(model.index(0, 1).isValid());
    QVERIFY(!model.index(0, 1).data().isValid());
    QVERIFY(!model.index(1, 2).isValid());
    QCOMPARE(model.columnCount(model.index(0, 0)), 1);
    QCOMPARE(model.columnCount(model.index(1, 0)), 3);
    QCOMPARE(model.index(0, 2, model.index(1, 0)).data().toString(), QStringLiteral("r"));
}

void tst_TreeModel::setupTreeReplacesTheTree()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    const QPersistentModelIndex old = model.index(0, 0, model.index(0, 0));
    QVERIFY(model.Setup(QStringLiteral("Only"), {QStringLiteral("One")}));
    QVERIFY(!old.isValid());
    QCOMPARE(Outline(model), QStringLiteral("Only"));
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("One"));
    QVERIFY(model.Setup(QString()));
    QCOMPARE(model.rowCount(), 0);
}

void tst_TreeModel::setupTreeEmitsNothing()
{
    TestTree model;
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QVERIFY(model.SetupTree({QStringLiteral("Name")}, QString::fromLatin1(SampleTable)));
    QVERIFY(reset.isEmpty());
    QVERIFY(inserted.isEmpty());
}

void tst_TreeModel::veryLongLineIsOneItem()
{
    constexpr int length = 10 * 1024 * 1024;
    TestTree model(QString(length, QLatin1Char('x')) + QStringLiteral("\n ") +
                   QString(length, QLatin1Char(' ')) + QStringLiteral("y\n") +
                   QString(length, QLatin1Char('\t')) + QStringLiteral("z"));
    QCOMPARE(model.rowCount(), 2);
    QCOMPARE(TextAt(model, 0).size(), length);
    QCOMPARE(TextAt(model, 0, model.index(0, 0)), QStringLiteral("y"));
    QCOMPARE(TextAt(model, 1), QStringLiteral("z"));
}

void tst_TreeModel::veryDeepTable()
{
    constexpr int depth = 5000;
    QString data;
    for (int i = 0; i < depth; ++i)
        data += QString(i, QLatin1Char(' ')) + QStringLiteral("x\n");
    TestTree model(data);
    QModelIndex index;
    for (int i = 0; i < depth; ++i) {
        index = model.index(0, 0, index);
        QVERIFY(index.isValid());
    }
    QCOMPARE(model.rowCount(index), 0);
    int up = 0;
    for (; index.isValid(); index = index.parent())
        ++up;
    QCOMPARE(up, depth);
}

void tst_TreeModel::manyLinesInThreeLevels()
{
    QString data;
    for (int i = 0; i < 20; ++i) {
        data += QStringLiteral("top\tx\n");
        for (int j = 0; j < 100; ++j)
            data += QStringLiteral("  middle\tx\n") + QStringLiteral("    leaf\tx\n").repeated(99);
    }
    TestTree model(data);
    QCOMPARE(model.rowCount(), 20);
    const QModelIndex last = model.index(19, 0);
    QCOMPARE(model.rowCount(last), 100);
    QCOMPARE(model.rowCount(model.index(99, 0, last)), 99);
    QCOMPARE(TextAt(model, 98, model.index(99, 0, last)), QStringLiteral("leaf"));
}

void tst_TreeModel::indexAndParentAgree()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    const QModelIndex alpha = model.index(0, 0);
    const QModelIndex gammaPath = model.index(1, 1, alpha);
    QVERIFY(gammaPath.isValid());
    QCOMPARE(gammaPath.row(), 1);
    QCOMPARE(gammaPath.column(), 1);
    QCOMPARE(model.parent(gammaPath), alpha);
    QVERIFY(!model.parent(alpha).isValid());
    QVERIFY(!model.parent(QModelIndex()).isValid());
}

void tst_TreeModel::indexOutOfRangeIsInvalid()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QVERIFY(!model.index(-1, 0).isValid());
    QVERIFY(!model.index(0, -1).isValid());
    QVERIFY(!model.index(3, 0).isValid());
    QVERIFY(!model.index(0, 2).isValid());
    QVERIFY(!model.index(2, 0, model.index(0, 0)).isValid());
    QVERIFY(!model.index(std::numeric_limits<int>::max(), 0).isValid());
    QVERIFY(!model.index(std::numeric_limits<int>::min(), 0).isValid());
}

void tst_TreeModel::everyColumnHasTheChildrenOfItsRow()
{
    TestTree model(QString::fromLatin1(SampleTable));
    const QModelIndex alphaPath = model.index(0, 1);
    QCOMPARE(model.rowCount(alphaPath), 2);
    QCOMPARE(model.columnCount(alphaPath), 2);
    QCOMPARE(TextAt(model, 0, alphaPath), QStringLiteral("Beta"));
    QCOMPARE(model.parent(model.index(0, 1, alphaPath)), model.index(0, 0));
}

void tst_TreeModel::indexOfAnotherModelHasNothing()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QStandardItemModel other(3, 3);
    const QModelIndex foreign = other.index(0, 0);
    QVERIFY(!model.data(foreign).isValid());
    QVERIFY(!model.setData(foreign, 1));
    QVERIFY(!model.parent(foreign).isValid());
    QVERIFY(!model.index(0, 0, foreign).isValid());
    QCOMPARE(model.rowCount(foreign), 0);
    QCOMPARE(model.columnCount(foreign), 0);
    QVERIFY(!model.insertRows(0, 1, foreign));
    QVERIFY(!model.removeRows(0, 1, foreign));
    QCOMPARE(Outline(model), QStringLiteral("Alpha(Beta Gamma) Delta Omega"));
}

void tst_TreeModel::dataAnswersDisplayAndEditRoleOnly()
{
    TestTree model(QString::fromLatin1(SampleTable));
    const QModelIndex path = model.index(0, 1);
    QCOMPARE(model.data(path), QVariant(QStringLiteral("x")));
    QCOMPARE(model.data(path, Qt::EditRole), QVariant(QStringLiteral("x")));
    for (const int role : {Qt::DecorationRole, Qt::ToolTipRole, Qt::SizeHintRole, Qt::UserRole})
        QVERIFY(!model.data(path, role).isValid());
}

void tst_TreeModel::setDataStoresAndTells()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    const QModelIndex beta = model.index(0, 1, model.index(0, 0));
    QVERIFY(model.setData(beta, 42));
    QCOMPARE(beta.data(), QVariant(42));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).at(0).toModelIndex(), beta);
    QCOMPARE(changed.at(0).at(1).toModelIndex(), beta);
    QVERIFY(changed.at(0).at(2).value<QVector<int>>().isEmpty());
}

void tst_TreeModel::setDataRefusesOtherRolesAndPlaces()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QVERIFY(!model.setData(model.index(0, 0), 1, Qt::DisplayRole));
    QVERIFY(!model.setData(QModelIndex(), 1));
    // Omega has one value only, although its row shows two columns.
    QVERIFY(!model.setData(model.index(2, 1), 1));
    QVERIFY(changed.isEmpty());
    QCOMPARE(TextAt(model, 0), QStringLiteral("Alpha"));
}

void tst_TreeModel::flagsOfferNoEditing()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QCOMPARE(model.flags(model.index(0, 0)), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
}

void tst_TreeModel::headerShowsRootValues()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(QStringLiteral("Path")));
    QVERIFY(!model.headerData(2, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(-1, Qt::Horizontal).isValid());
    QVERIFY(!model.headerData(0, Qt::Vertical).isValid());
    QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::EditRole).isValid());
}

void tst_TreeModel::setHeaderDataStoresAndTells()
{
    qRegisterMetaType<Qt::Orientation>();
    TestTree model(QString::fromLatin1(SampleTable));
    QSignalSpy changed(&model, &QAbstractItemModel::headerDataChanged);
    QVERIFY(model.setHeaderData(1, Qt::Horizontal, QStringLiteral("Folder")));
    QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant(QStringLiteral("Folder")));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.at(0).mid(1), (QVariantList{1, 1}));
    QVERIFY(!model.setHeaderData(2, Qt::Horizontal, 1));
    QVERIFY(!model.setHeaderData(-1, Qt::Horizontal, 1));
    QVERIFY(!model.setHeaderData(0, Qt::Vertical, 1));
    QVERIFY(!model.setHeaderData(0, Qt::Horizontal, 1, Qt::DisplayRole));
    QCOMPARE(changed.size(), 1);
}

void tst_TreeModel::insertRowsBelowAnItem()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    const QModelIndex alpha = model.index(0, 0);
    const QPersistentModelIndex gamma = model.index(1, 0, alpha);
    QVERIFY(model.insertRows(1, 2, alpha));
    QCOMPARE(model.rowCount(alpha), 4);
    QCOMPARE(gamma.row(), 3);
    QVERIFY(!model.index(1, 1, alpha).data().isValid());
    QVERIFY(model.setData(model.index(1, 1, alpha), QStringLiteral("path")));
    QVERIFY(model.insertRows(4, 1, alpha));
    QCOMPARE(model.rowCount(alpha), 5);
}

void tst_TreeModel::insertRowsRefusesTheInvisibleRoot()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QSignalSpy about(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QVERIFY(!model.insertRows(0, 1, QModelIndex()));
    QCOMPARE(model.rowCount(), 3);
    QVERIFY(about.isEmpty());
}

void tst_TreeModel::insertRowsRefusesPositionsOutOfRange()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    const QModelIndex alpha = model.index(0, 0);
    QSignalSpy about(&model, &QAbstractItemModel::rowsAboutToBeInserted);
    QVERIFY(!model.insertRows(-1, 1, alpha));
    QVERIFY(!model.insertRows(3, 1, alpha));
    QVERIFY(model.insertRows(0, 0, alpha));
    QVERIFY(model.insertRows(0, -1, alpha));
    QCOMPARE(model.rowCount(alpha), 2);
    QVERIFY(about.isEmpty());
}

void tst_TreeModel::removeRowsDropsBranchesAndTheirIndexes()
{
    TestTree model(Lines({"A", " B", "  C", " D", " E"}));
    FirstColumnTree::Watch(&model);
    const QModelIndex a = model.index(0, 0);
    const QPersistentModelIndex b = model.index(0, 0, a);
    const QPersistentModelIndex c = model.index(0, 0, b);
    const QPersistentModelIndex e = model.index(2, 0, a);
    QVERIFY(model.removeRows(0, 2, a));
    QVERIFY(!b.isValid());
    QVERIFY(!c.isValid());
    QCOMPARE(e.row(), 0);
    QCOMPARE(Outline(model), QStringLiteral("A(E)"));
}

void tst_TreeModel::removeRowsRefusesTheInvisibleRootAndBadRanges()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    const QModelIndex alpha = model.index(0, 0);
    QSignalSpy about(&model, &QAbstractItemModel::rowsAboutToBeRemoved);
    QVERIFY(!model.removeRows(0, 1, QModelIndex()));
    QVERIFY(!model.removeRows(-1, 1, alpha));
    QVERIFY(!model.removeRows(0, 3, alpha));
    QVERIFY(!model.removeRows(1, std::numeric_limits<int>::max(), alpha));
    QVERIFY(model.removeRows(0, 0, alpha));
    QVERIFY(about.isEmpty());
    QCOMPARE(Outline(model), QStringLiteral("Alpha(Beta Gamma) Delta Omega"));
}

void tst_TreeModel::insertColumnsMovesValues()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    QSignalSpy inserted(&model, &QAbstractItemModel::columnsInserted);
    QVERIFY(model.insertColumns(1, 1));
    QCOMPARE(inserted.size(), 1);
    QCOMPARE(model.columnCount(), 3);
    QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), QStringLiteral("Path"));
    QCOMPARE(model.index(0, 2).data().toString(), QStringLiteral("x"));
    QCOMPARE(model.index(0, 2, model.index(0, 0)).data().toString(), QStringLiteral("y"));
}

void tst_TreeModel::insertColumnsRefusesPositionsOutOfRange()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QSignalSpy about(&model, &QAbstractItemModel::columnsAboutToBeInserted);
    QVERIFY(!model.insertColumns(-1, 1));
    QVERIFY(!model.insertColumns(3, 1));
    QVERIFY(model.insertColumns(0, 0));
    QVERIFY(about.isEmpty());
    QCOMPARE(model.columnCount(), 2);
}

void tst_TreeModel::removeColumnsMovesValues()
{
    TestTree model(QString::fromLatin1(SampleTable));
    FirstColumnTree::Watch(&model);
    QSignalSpy removed(&model, &QAbstractItemModel::columnsRemoved);
    QVERIFY(model.removeColumns(0, 1));
    QCOMPARE(removed.size(), 1);
    QCOMPARE(model.columnCount(), 1);
    QCOMPARE(TextAt(model, 0), QStringLiteral("x"));
    QCOMPARE(TextAt(model, 0, model.index(0, 0)), QStringLiteral("y"));
}

void tst_TreeModel::removeColumnsRefusesRangesBeyondTheEnd()
{
    TestTree model(QString::fromLatin1(SampleTable));
    QSignalSpy about(&model, &QAbstractItemModel::columnsAboutToBeRemoved);
    QVERIFY(!model.removeColumns(-1, 1));
    QVERIFY(!model.removeColumns(0, 3));
    QVERIFY(!model.removeColumns(1, std::numeric_limits<int>::max()));
    QVERIFY(model.removeColumns(0, 0));
    QVERIFY(about.isEmpty());
    QCOMPARE(model.columnCount(), 2);
}

void tst_TreeModel::removalOfTheLastColumnAsksForTheRowsButKeepsThem()
{
    RowTakingTree model;
    model.Setup(QString::fromLatin1(SampleTable));
    QVERIFY(model.removeColumns(0, 1));
    QVERIFY(model.m_asked.isEmpty());
    QVERIFY(model.removeColumns(0, 1));
    QCOMPARE(model.m_asked, (QVector<QVector<int>>{{0, 3, 0}}));
    QCOMPARE(model.columnCount(), 0);
    QCOMPARE(model.rowCount(), 3);
}

void tst_TreeModel::walkOverManySiblings()
{
    constexpr int siblings = 50000;
    TestTree model(QStringLiteral("parent\tx\n") + QStringLiteral(" child\tx\n  leaf\n").repeated(siblings));
    const QModelIndex parent = model.index(0, 0);
    QCOMPARE(model.rowCount(parent), siblings);
    QVERIFY(model.removeRows(0, 1, parent));
    for (int row = 0; row < siblings - 1; ++row) {
        const QModelIndex child = model.index(row, 0, parent);
        QCOMPARE(model.index(0, 0, child).parent(), child);
    }
}

KTFM_TEST_MAIN(tst_TreeModel)
#include "tst_treemodel.moc"
