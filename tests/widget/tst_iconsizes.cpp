#include "tests/support/TestMain.h"

#include "widget/IconSizes.h"

#include <limits>

class tst_IconSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetsHaveTheirSizes_data();
    void presetsHaveTheirSizes();
    void valuesBeyondThePresetsHaveNoSize();
    void marginPresets_data();
    void marginPresets();
    void cellsAreSpreadOverTheWidth_data();
    void cellsAreSpreadOverTheWidth();
    void cellThatIsNotPositiveIsNotSpread_data();
    void cellThatIsNotPositiveIsNotSpread();
};

void tst_IconSizes::presetsHaveTheirSizes_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QSize>("list");
    QTest::addColumn<QSize>("detail");
    QTest::newRow("huge") << 0 << QSize(125, 125) << QSize(50, 50);
    QTest::newRow("tall") << 1 << QSize(110, 120) << QSize(50, 50);
    QTest::newRow("large, the first") << 2 << QSize(100, 100) << QSize(50, 50);
    QTest::newRow("large, the second") << 3 << QSize(100, 100) << QSize(50, 50);
    QTest::newRow("medium") << 4 << QSize(60, 60) << QSize(40, 40);
    QTest::newRow("small") << 5 << QSize(40, 40) << QSize(30, 30);
}

void tst_IconSizes::presetsHaveTheirSizes()
{
    QFETCH(int, preset);
    const auto sizes = IconSizes::Of(static_cast<EKTFMIconSize>(preset));
    QVERIFY(sizes.has_value());
    QTEST(sizes->list, "list");
    QTEST(sizes->detail, "detail");
}

void tst_IconSizes::valuesBeyondThePresetsHaveNoSize()
{
    const QList<int> others = {-1, 6, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    for (const int other : others)
        QVERIFY(!IconSizes::Of(static_cast<EKTFMIconSize>(other)));
}

void tst_IconSizes::marginPresets_data()
{
    QTest::addColumn<int>("preset");
    QTest::addColumn<QSize>("margin");
    QTest::newRow("wide") << 0 << QSize(40, 40);
    QTest::newRow("narrow") << 1 << QSize(20, 20);
    QTest::newRow("compact") << 2 << QSize(25, 30);
    QTest::newRow("below") << -1 << QSize();
    QTest::newRow("beyond") << 3 << QSize();
}

void tst_IconSizes::marginPresets()
{
    QFETCH(int, preset);
    QTEST(IconSizes::MarginOf(static_cast<EKTFMGridSize>(preset)).value_or(QSize()), "margin");
}

void tst_IconSizes::cellsAreSpreadOverTheWidth_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QSize>("icon");
    QTest::addColumn<QSize>("margin");
    QTest::addColumn<QSize>("cell");
    struct Case
    {
        QSize icon;
        QSize margin;
        int width;
        QSize cell;
    };
    const QSize wide(40, 40);
    const QList<Case> cases = {
        // 1 to 80 pixels are there for one column of 80; what is left over goes to it, or it shrinks.
        {QSize(40, 40), wide, 17, QSize(81, 80)},
        {QSize(40, 40), wide, 56, QSize(120, 80)},
        {QSize(40, 40), wide, 57, QSize(41, 80)},
        {QSize(40, 40), wide, 96, QSize(80, 80)},
        // Exactly half a cell left over is not enough to shrink; it is shared by one column more than fits.
        {QSize(40, 40), wide, 136, QSize(100, 80)},
        {QSize(40, 40), wide, 137, QSize(60, 80)},
        {QSize(40, 40), wide, 200, QSize(88, 80)},
        {QSize(40, 40), wide, 300, QSize(71, 80)},
        {QSize(40, 40), wide, 500, QSize(80, 80)},
        {QSize(40, 40), wide, 777, QSize(76, 80)},
        {QSize(40, 40), wide, 1016, QSize(83, 80)},
        {QSize(60, 60), wide, 300, QSize(94, 100)},
        {QSize(60, 60), wide, 333, QSize(104, 100)},
        {QSize(60, 60), wide, 1366, QSize(103, 100)},
        {QSize(125, 125), wide, 97, QSize(246, 165)},
        {QSize(125, 125), wide, 136, QSize(120, 165)},
        {QSize(125, 125), wide, 800, QSize(156, 165)},
        {QSize(125, 125), wide, 1920, QSize(158, 165)},
        {QSize(110, 120), QSize(25, 30), 300, QSize(139, 150)},
        {QSize(40, 40), QSize(20, 20), 176, QSize(53, 60)},
        {QSize(60, 60), QSize(25, 30), 640, QSize(88, 90)},
        {QSize(40, 40), QSize(-20, -10), 100, QSize(20, 30)},
    };
    for (const Case& c : cases) {
        QTest::addRow("%d+%d in %d", c.icon.width(), c.margin.width(), c.width)
            << c.width << c.icon << c.margin << c.cell;
    }
}

void tst_IconSizes::cellsAreSpreadOverTheWidth()
{
    QFETCH(int, width);
    QFETCH(QSize, icon);
    QFETCH(QSize, margin);
    QTEST(IconSizes::SpreadCell(width, icon, margin).value_or(QSize()), "cell");
}

void tst_IconSizes::cellThatIsNotPositiveIsNotSpread_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QSize>("margin");
    QTest::newRow("no room beside the scroll bar") << 16 << QSize(40, 40);
    QTest::newRow("no width") << 0 << QSize(40, 40);
    QTest::newRow("no cell width") << 500 << QSize(-40, 40);
    QTest::newRow("negative cell width") << 500 << QSize(-140, 40);
    QTest::newRow("no cell height") << 500 << QSize(40, -40);
    QTest::newRow("negative cell height") << 500 << QSize(40, -400);
}

void tst_IconSizes::cellThatIsNotPositiveIsNotSpread()
{
    QFETCH(int, width);
    QFETCH(QSize, margin);
    QVERIFY(!IconSizes::SpreadCell(width, QSize(40, 40), margin));
}

KTFM_TEST_MAIN(tst_IconSizes)
#include "tst_iconsizes.moc"
