#include "tests/support/TestMain.h"

#include <KTFileManager2QU/TreeItem.h>

#include <QRandomGenerator>

#include <limits>
#include <memory>

namespace {

/** Far more levels than a call stack has room for. */
constexpr int VeryDeep = 1000000;

using Values = QVector<QVariant>;

/** A value that tells when the item that holds it is deleted. */
std::shared_ptr<int> AddWitness(TreeItem* item)
{
    auto witness = std::make_shared<int>(0);
    item->setData(0, QVariant::fromValue(witness));
    return witness;
}

TreeItem* AddChild(TreeItem* parent, const QVariant& value = QVariant())
{
    auto* child = new TreeItem(Values{value}, parent);
    parent->appendChild(child);
    return child;
}

TreeItem* AddBranch(TreeItem* root, int depth)
{
    TreeItem* item = root;
    for (int i = 0; i < depth; ++i)
        item = AddChild(item, i);
    return item;
}

} // namespace

Q_DECLARE_METATYPE(std::shared_ptr<int>)

class tst_TreeItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newItemHasValuesAndNoChildren();
    void valuesOutOfRangeAreInvalid();
    void setDataRefusesColumnsOutOfRange();
    void childOutOfRangeIsNull();
    void appendChildKeepsTheParentOfTheChild();
    void appendChildIgnoresNull();
    void destructorDeletesAllDescendants();
    void destructorTakesVeryDeepBranches();
    void copySharesChildrenAndParent();
    void assignmentSharesChildrenAndParent();
    void copyIsNotListedByItsParent();
    void removalInTheOriginalLeavesTheListOfTheCopy();
    void insertChildPutsEmptyChildrenAtThePosition();
    void insertChildRefusesPositionsOutOfRange();
    void insertChildOfNothingIsTrue();
    void insertChildWithNegativeColumnsMakesItemsWithoutColumns();
    void removeChildDeletesTheRange();
    void removeChildRefusesRangesBeyondTheEnd();
    void removeChildOfNothingIsTrueWithinTheRange();
    void insertColumnsReachesEveryDescendant();
    void insertColumnsSkipsTooShortDescendantsOnly();
    void insertColumnsRefusesPositionsOutOfRange();
    void removeColumnsReachesEveryDescendant();
    void removeColumnsRefusesRangesBeyondTheEnd();
    void columnsOfVeryDeepBranches();
    void rowOfRootIsZero();
    void rowOfUnlistedItemIsMinusOne();
    void rowFollowsAnItemListedLater();
    void rowEqualsThePositionAfterAnyChanges();
    void rowOfManySiblingsAfterRemovalOfEverySecond();
};

void tst_TreeItem::newItemHasValuesAndNoChildren()
{
    TreeItem parent(Values(), nullptr);
    const TreeItem item(Values{1, QStringLiteral("two")}, &parent);
    QCOMPARE(item.columnCount(), 2);
    QCOMPARE(item.data(0), QVariant(1));
    QCOMPARE(item.data(1), QVariant(QStringLiteral("two")));
    QCOMPARE(item.childCount(), 0);
    QCOMPARE(item.parent(), &parent);
    QCOMPARE(parent.childCount(), 0);
}

void tst_TreeItem::valuesOutOfRangeAreInvalid()
{
    const TreeItem item(Values{1}, nullptr);
    QVERIFY(!item.data(-1).isValid());
    QVERIFY(!item.data(1).isValid());
    QVERIFY(!item.data(std::numeric_limits<int>::max()).isValid());
    QVERIFY(!item.data(std::numeric_limits<int>::min()).isValid());
}

void tst_TreeItem::setDataRefusesColumnsOutOfRange()
{
    TreeItem item(Values{1, 2}, nullptr);
    QVERIFY(item.setData(1, QStringLiteral("new")));
    QCOMPARE(item.data(1), QVariant(QStringLiteral("new")));
    QVERIFY(!item.setData(-1, 5));
    QVERIFY(!item.setData(2, 5));
    QCOMPARE(item.data(0), QVariant(1));
    QCOMPARE(item.columnCount(), 2);
}

void tst_TreeItem::childOutOfRangeIsNull()
{
    TreeItem item(Values(), nullptr);
    TreeItem* child = AddChild(&item);
    QCOMPARE(item.child(0), child);
    QVERIFY(!item.child(-1));
    QVERIFY(!item.child(1));
    QVERIFY(!item.child(std::numeric_limits<int>::min()));
}

void tst_TreeItem::appendChildKeepsTheParentOfTheChild()
{
    TreeItem lister(Values(), nullptr);
    TreeItem named(Values(), nullptr);
    auto* child = new TreeItem(Values(), &named);
    AddChild(&lister);
    lister.appendChild(child);
    QCOMPARE(lister.child(1), child);
    QCOMPARE(child->parent(), &named);
    QCOMPARE(child->row(), -1);
}

void tst_TreeItem::appendChildIgnoresNull()
{
    TreeItem item(Values(), nullptr);
    item.appendChild(nullptr);
    QCOMPARE(item.childCount(), 0);
}

void tst_TreeItem::destructorDeletesAllDescendants()
{
    auto root = std::make_unique<TreeItem>(Values(), nullptr);
    TreeItem* first = AddChild(root.get());
    TreeItem* second = AddChild(root.get());
    const std::shared_ptr<int> witnesses[] = {AddWitness(first), AddWitness(second),
                                              AddWitness(AddChild(first)), AddWitness(AddChild(second))};
    for (const auto& witness : witnesses)
        QCOMPARE(witness.use_count(), 2L);
    root.reset();
    for (const auto& witness : witnesses)
        QCOMPARE(witness.use_count(), 1L);
}

void tst_TreeItem::destructorTakesVeryDeepBranches()
{
    auto root = std::make_unique<TreeItem>(Values(), nullptr);
    const auto witness = AddWitness(AddBranch(root.get(), VeryDeep));
    root.reset();
    QCOMPARE(witness.use_count(), 1L);
}

void tst_TreeItem::copySharesChildrenAndParent()
{
    TreeItem parent(Values(), nullptr);
    TreeItem item(Values{7}, &parent);
    TreeItem* child = AddChild(&item);
    TreeItem copy(item);
    QCOMPARE(copy.data(0), QVariant(7));
    QCOMPARE(copy.parent(), &parent);
    QCOMPARE(copy.childCount(), 1);
    QCOMPARE(copy.child(0), child);
    QCOMPARE(child->parent(), &item);
    QCOMPARE(child->row(), 0);
    copy = TreeItem(Values(), nullptr); // only one of the two may be destroyed with the children
    QCOMPARE(item.child(0), child);
}

void tst_TreeItem::assignmentSharesChildrenAndParent()
{
    TreeItem parent(Values(), nullptr);
    TreeItem item(Values{7}, &parent);
    TreeItem* child = AddChild(&item);
    TreeItem other(Values{1, 2}, nullptr);
    other = item;
    QCOMPARE(other.columnCount(), 1);
    QCOMPARE(other.parent(), &parent);
    QCOMPARE(other.child(0), child);
    item = TreeItem(Values(), nullptr);
    QCOMPARE(other.child(0), child);
}

void tst_TreeItem::copyIsNotListedByItsParent()
{
    TreeItem parent(Values(), nullptr);
    AddChild(&parent);
    TreeItem* item = AddChild(&parent);
    QCOMPARE(item->row(), 1);
    const TreeItem copy(*item);
    QCOMPARE(copy.row(), -1);
    QCOMPARE(item->row(), 1);
}

void tst_TreeItem::removalInTheOriginalLeavesTheListOfTheCopy()
{
    TreeItem item(Values(), nullptr);
    AddChild(&item);
    TreeItem* kept = AddChild(&item);
    TreeItem copy(item);
    item.removeChild(0, 1);
    QCOMPARE(item.childCount(), 1);
    QCOMPARE(copy.childCount(), 2);
    QCOMPARE(copy.child(1), kept);
    QCOMPARE(kept->row(), 0);
    // The copy names a deleted sibling before its own new child, whose row is found by addresses alone.
    auto added = std::make_unique<TreeItem>(Values(), &copy);
    copy.appendChild(added.get());
    QCOMPARE(added->row(), 2);
    copy = TreeItem(Values(), nullptr);
}

void tst_TreeItem::insertChildPutsEmptyChildrenAtThePosition()
{
    TreeItem item(Values(), nullptr);
    TreeItem* first = AddChild(&item, 1);
    TreeItem* last = AddChild(&item, 2);
    QVERIFY(item.insertChild(1, 2, 3));
    QCOMPARE(item.childCount(), 4);
    QCOMPARE(item.child(0), first);
    QCOMPARE(item.child(3), last);
    for (int row = 1; row <= 2; ++row) {
        QCOMPARE(item.child(row)->columnCount(), 3);
        QVERIFY(!item.child(row)->data(0).isValid());
        QCOMPARE(item.child(row)->parent(), &item);
    }
    for (int row = 0; row < 4; ++row)
        QCOMPARE(item.child(row)->row(), row);
}

void tst_TreeItem::insertChildRefusesPositionsOutOfRange()
{
    TreeItem item(Values(), nullptr);
    AddChild(&item);
    QVERIFY(!item.insertChild(-1, 1, 1));
    QVERIFY(!item.insertChild(2, 1, 1));
    QVERIFY(!item.insertChild(2, 0, 1));
    QCOMPARE(item.childCount(), 1);
    QVERIFY(item.insertChild(1, 1, 1));
    QCOMPARE(item.childCount(), 2);
}

void tst_TreeItem::insertChildOfNothingIsTrue()
{
    TreeItem item(Values(), nullptr);
    QVERIFY(item.insertChild(0, 0, 1));
    QVERIFY(item.insertChild(0, -3, 1));
    QCOMPARE(item.childCount(), 0);
}

void tst_TreeItem::insertChildWithNegativeColumnsMakesItemsWithoutColumns()
{
    TreeItem item(Values(), nullptr);
    QVERIFY(item.insertChild(0, 1, -1));
    QCOMPARE(item.child(0)->columnCount(), 0);
}

void tst_TreeItem::removeChildDeletesTheRange()
{
    TreeItem item(Values(), nullptr);
    QList<TreeItem*> children;
    for (int i = 0; i < 5; ++i)
        children.append(AddChild(&item));
    const auto removed = AddWitness(children.at(1));
    const auto removedBelow = AddWitness(AddChild(children.at(2)));
    QVERIFY(item.removeChild(1, 2));
    QCOMPARE(removed.use_count(), 1L);
    QCOMPARE(removedBelow.use_count(), 1L);
    QCOMPARE(item.childCount(), 3);
    QCOMPARE(item.child(0), children.at(0));
    QCOMPARE(item.child(1), children.at(3));
    QCOMPARE(item.child(2), children.at(4));
    QCOMPARE(children.at(4)->row(), 2);
}

void tst_TreeItem::removeChildRefusesRangesBeyondTheEnd()
{
    TreeItem item(Values(), nullptr);
    AddChild(&item);
    QVERIFY(!item.removeChild(-1, 1));
    QVERIFY(!item.removeChild(0, 2));
    QVERIFY(!item.removeChild(1, 1));
    QVERIFY(!item.removeChild(1, std::numeric_limits<int>::max()));
    QVERIFY(!item.removeChild(2, 0));
    QCOMPARE(item.childCount(), 1);
}

void tst_TreeItem::removeChildOfNothingIsTrueWithinTheRange()
{
    TreeItem item(Values(), nullptr);
    AddChild(&item);
    QVERIFY(item.removeChild(1, 0));
    QVERIFY(item.removeChild(0, -1));
    QCOMPARE(item.childCount(), 1);
}

void tst_TreeItem::insertColumnsReachesEveryDescendant()
{
    TreeItem root(Values{0, 1}, nullptr);
    auto* child = new TreeItem(Values{2, 3}, &root);
    root.appendChild(child);
    auto* grandchild = new TreeItem(Values{4, 5, 6}, child);
    child->appendChild(grandchild);
    QVERIFY(root.insertColumns(1, 2));
    QCOMPARE(root.columnCount(), 4);
    QVERIFY(!root.data(1).isValid());
    QCOMPARE(root.data(3), QVariant(1));
    QCOMPARE(child->data(3), QVariant(3));
    QCOMPARE(grandchild->columnCount(), 5);
    QCOMPARE(grandchild->data(3), QVariant(5));
}

void tst_TreeItem::insertColumnsSkipsTooShortDescendantsOnly()
{
    TreeItem root(Values{0, 1, 2}, nullptr);
    TreeItem* shortItem = AddChild(&root);
    auto* longItem = new TreeItem(Values{4, 5}, shortItem);
    shortItem->appendChild(longItem);
    QVERIFY(root.insertColumns(2, 1));
    QCOMPARE(root.columnCount(), 4);
    QCOMPARE(shortItem->columnCount(), 1);
    QCOMPARE(longItem->columnCount(), 3);
    QVERIFY(root.removeColumns(1, 2));
    QCOMPARE(shortItem->columnCount(), 1);
    QCOMPARE(longItem->columnCount(), 1);
}

void tst_TreeItem::insertColumnsRefusesPositionsOutOfRange()
{
    TreeItem root(Values{0}, nullptr);
    auto* child = new TreeItem(Values{1, 2, 3}, &root);
    root.appendChild(child);
    QVERIFY(!root.insertColumns(-1, 1));
    QVERIFY(!root.insertColumns(2, 1));
    QVERIFY(root.insertColumns(1, -1));
    QCOMPARE(root.columnCount(), 1);
    QCOMPARE(child->columnCount(), 3);
}

void tst_TreeItem::removeColumnsReachesEveryDescendant()
{
    TreeItem root(Values{0, 1, 2}, nullptr);
    auto* child = new TreeItem(Values{3, 4, 5, 6}, &root);
    root.appendChild(child);
    QVERIFY(root.removeColumns(0, 2));
    QCOMPARE(root.columnCount(), 1);
    QCOMPARE(root.data(0), QVariant(2));
    QCOMPARE(child->columnCount(), 2);
    QCOMPARE(child->data(0), QVariant(5));
}

void tst_TreeItem::removeColumnsRefusesRangesBeyondTheEnd()
{
    TreeItem root(Values{0, 1}, nullptr);
    auto* child = new TreeItem(Values{1, 2, 3}, &root);
    root.appendChild(child);
    QVERIFY(!root.removeColumns(-1, 1));
    QVERIFY(!root.removeColumns(0, 3));
    QVERIFY(!root.removeColumns(1, std::numeric_limits<int>::max()));
    QVERIFY(root.removeColumns(0, 0));
    QVERIFY(root.removeColumns(0, -1));
    QCOMPARE(root.columnCount(), 2);
    QCOMPARE(child->columnCount(), 3);
}

void tst_TreeItem::columnsOfVeryDeepBranches()
{
    TreeItem root(Values{0}, nullptr);
    const TreeItem* leaf = AddBranch(&root, VeryDeep);
    QVERIFY(root.insertColumns(0, 1));
    QCOMPARE(leaf->columnCount(), 2);
    QVERIFY(root.removeColumns(0, 1));
    QCOMPARE(leaf->columnCount(), 1);
    QCOMPARE(leaf->data(0), QVariant(VeryDeep - 1));
}

void tst_TreeItem::rowOfRootIsZero()
{
    const TreeItem root(Values(), nullptr);
    QCOMPARE(root.row(), 0);
}

void tst_TreeItem::rowOfUnlistedItemIsMinusOne()
{
    TreeItem parent(Values(), nullptr);
    const TreeItem item(Values(), &parent);
    QCOMPARE(item.row(), -1);
    AddChild(&parent);
    QCOMPARE(item.row(), -1);
}

void tst_TreeItem::rowFollowsAnItemListedLater()
{
    TreeItem parent(Values(), nullptr);
    auto* item = new TreeItem(Values(), &parent);
    AddChild(&parent);
    QCOMPARE(item->row(), -1);
    parent.appendChild(item);
    QCOMPARE(item->row(), 1);
}

void tst_TreeItem::rowEqualsThePositionAfterAnyChanges()
{
    QRandomGenerator random(20240117);
    TreeItem stranger(Values(), nullptr);
    TreeItem root(Values(), nullptr);
    for (int round = 0; round < 400; ++round) {
        const int position = random.bounded(root.childCount() + 1);
        if (random.bounded(2) == 0)
            QVERIFY(root.insertChild(position, random.bounded(8), 1));
        else
            root.removeChild(position, random.bounded(6));
        if (random.bounded(10) == 0)
            root.appendChild(new TreeItem(Values(), &stranger));
        for (int asked = 0; asked < 5 && root.childCount() > 0; ++asked) {
            const int row = random.bounded(root.childCount());
            const TreeItem* child = root.child(row);
            QCOMPARE(child->row(), child->parent() == &root ? row : -1);
        }
    }
}

void tst_TreeItem::rowOfManySiblingsAfterRemovalOfEverySecond()
{
    TreeItem root(Values(), nullptr);
    root.insertChild(0, 50000, 1);
    for (int row = 0; row < 25000; ++row)
        root.removeChild(row, 1);
    for (int row = 0; row < root.childCount(); ++row)
        QCOMPARE(root.child(row)->row(), row);
}

KTFM_TEST_MAIN(tst_TreeItem)
#include "tst_treeitem.moc"
