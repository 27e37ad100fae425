#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "views/NameLayouts.h"

#include <QPainter>

class tst_NameLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameThatFitsIsDrawnWhole_data();
    void nameThatFitsIsDrawnWhole();
    void longNameIsShortenedInTheMiddleToTwoLines();
    void nameOfManyWordsNeverTakesAThirdLine();
    void wordThatCannotWrapIsBrokenWhereItIsShortened();
    void nameThatStillWrapsAsBeforeIsShortenedToOneLine();
    void lineBreaksInANameNeverMakeAThirdLine();
    void drawsWhatThePainterWouldDraw_data();
    void drawsWhatThePainterWouldDraw();
    void drawsTheSameAgain();
    void drawsInThePainterOwnFontAndPenEachTime();
    void emptyAreaDrawsNothing();
    void hostileNamesAreDrawn_data();
    void hostileNamesAreDrawn();
};

static QFont TestFont()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(14);
    return font;
}

/** @return @p count letters that a line cannot be broken between */
static QString Word(int count)
{
    return QString(count, QLatin1Char('n'));
}

static int WidthOf(const QString& text)
{
    return QFontMetrics(TestFont()).horizontalAdvance(text);
}

static QString Fitted(const QString& name, int width)
{
    return NameLayouts::Fitted(name, TestFont(), width, Qt::LeftToRight);
}

static WrappedText Wrapped(const QString& name, int width)
{
    return WrappedText(name, TestFont(), width, Qt::LeftToRight);
}

static const QChar Ellipsis(0x2026);

void tst_NameLayouts::nameThatFitsIsDrawnWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("lines");
    QTest::newRow("empty") << QString() << 1;
    QTest::newRow("one word") << Word(5) << 1;
    QTest::newRow("one word as wide as the area") << Word(10) << 1;
    QTest::newRow("two words on a line each") << Word(9) + QLatin1Char(' ') + Word(9) << 2;
}

void tst_NameLayouts::nameThatFitsIsDrawnWhole()
{
    QFETCH(QString, name);
    QFETCH(int, lines);
    const int width = WidthOf(Word(10));
    QCOMPARE(Fitted(name, width), name);
    const WrappedText wrapped = Wrapped(name, width);
    QCOMPARE(wrapped.LineCount(), lines);
}

void tst_NameLayouts::longNameIsShortenedInTheMiddleToTwoLines()
{
    // Words of one letter fill their lines, so that two lines hold two areas' width.
    const QString name = QStringLiteral("i ").repeated(200) + QStringLiteral("end");
    const int width = WidthOf(Word(10));
    const QString fitted = Fitted(name, width);
    QVERIFY(fitted.startsWith(QStringLiteral("i i ")));
    QVERIFY(fitted.endsWith(QStringLiteral(" end")));
    QCOMPARE(fitted.count(Ellipsis), 1);
    QVERIFY(WidthOf(fitted) > width);
    QVERIFY(WidthOf(fitted) <= 2 * width - WidthOf(QStringLiteral("...")));
    const WrappedText wrapped = Wrapped(fitted, width);
    QCOMPARE(wrapped.LineCount(), 2);
}

void tst_NameLayouts::nameOfManyWordsNeverTakesAThirdLine()
{
    for (int letters = 1; letters <= 9; ++letters) {
        const QString name = (Word(letters) + QLatin1Char(' ')).repeated(30) + QStringLiteral("end");
        for (int width = WidthOf(Word(9)); width < WidthOf(Word(20)); width += 7) {
            const QString fitted = Fitted(name, width);
            const WrappedText wrapped = Wrapped(fitted, width);
            QVERIFY(wrapped.LineCount() <= 2);
            QVERIFY(wrapped.Width() <= width);
            QCOMPARE(fitted.count(Ellipsis), 1);
        }
    }
}

void tst_NameLayouts::wordThatCannotWrapIsBrokenWhereItIsShortened()
{
    const QString name = QStringLiteral("start") + Word(100) + QStringLiteral("end");
    const int width = WidthOf(Word(20));
    const QString fitted = Fitted(name, width);
    QVERIFY(fitted.startsWith(QStringLiteral("start")));
    QVERIFY(fitted.endsWith(QStringLiteral("end")));
    const WrappedText wrapped = Wrapped(fitted, width);
    QCOMPARE(wrapped.LineCount(), 2);
    QVERIFY(wrapped.Width() <= width);
}

void tst_NameLayouts::nameThatStillWrapsAsBeforeIsShortenedToOneLine()
{
    KTFM_SKIP_ON_WINE("letters are a little narrower there, and two lines hold this name");
    // Three lines, which the width of two lines cannot hold because of the blanks at their ends.
    const QString name = Word(7) + QLatin1Char(' ') + Word(7) + QLatin1Char(' ') + Word(7);
    const int width = WidthOf(Word(10));
    const WrappedText whole = Wrapped(name, width);
    QCOMPARE(whole.LineCount(), 3);
    const QString fitted = Fitted(name, width);
    QVERIFY(WidthOf(fitted) <= width);
    QVERIFY(fitted.contains(Ellipsis));
}

void tst_NameLayouts::lineBreaksInANameNeverMakeAThirdLine()
{
    const int width = WidthOf(Word(20));
    const QString twoLines = Fitted(QStringLiteral("a\nb"), width);
    QCOMPARE(Wrapped(twoLines, width).LineCount(), 2);
    for (const QString& name :
         {QStringLiteral("a\nb\nc\nd"), QStringLiteral("a\u2029b\u2029c"), QStringLiteral("\n\n\n\n")}) {
        const QString fitted = Fitted(name, width);
        QCOMPARE(Wrapped(fitted, width).LineCount(), 1);
    }
    QCOMPARE(Fitted(QStringLiteral("a\tb\rc"), width), QStringLiteral("a b c"));
}

static QImage Canvas()
{
    QImage image(300, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

static void Prepare(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(TestFont());
    painter->setPen(QColor(112, 110, 110));
}

void tst_NameLayouts::drawsWhatThePainterWouldDraw_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("area");
    const QRect wide(20, 20, 200, 33);
    QTest::newRow("one line") << QStringLiteral("report.txt") << wide;
    QTest::newRow("two lines") << QStringLiteral("an annual report of everything that happened") << wide;
    QTest::newRow("shortened") << QStringLiteral("report_").repeated(30) << wide;
    QTest::newRow("odd width") << QStringLiteral("annual report") << QRect(20, 20, 121, 36);
    QTest::newRow("clipped") << QStringLiteral("clipped") << QRect(20, 20, 200, 7);
    QTest::newRow("narrow") << QStringLiteral("narrow") << QRect(20, 20, 20, 33);
    QTest::newRow("right to left") << QStringLiteral("\u05e9\u05dc\u05d5\u05dd file.txt") << wide;
    QTest::newRow("trailing blanks") << QStringLiteral("report   ") << wide;
}

void tst_NameLayouts::drawsWhatThePainterWouldDraw()
{
    QFETCH(QString, name);
    QFETCH(QRect, area);
    QImage expected = Canvas();
    QPainter expectedPainter(&expected);
    Prepare(&expectedPainter);
    const QString fitted =
        NameLayouts::Fitted(name, expectedPainter.font(), area.width(), expectedPainter.layoutDirection());
    expectedPainter.drawText(area, Qt::AlignCenter | Qt::TextWordWrap, fitted);

    NameLayouts layouts;
    QImage drawn = Canvas();
    QPainter painter(&drawn);
    Prepare(&painter);
    layouts.Draw(&painter, area, name);
    QVERIFY(drawn != Canvas());
    QCOMPARE(drawn, expected);
}

static QImage Drawn(NameLayouts* layouts, const QString& name, const QFont& font, const QColor& pen)
{
    QImage image = Canvas();
    QPainter painter(&image);
    Prepare(&painter);
    painter.setFont(font);
    painter.setPen(pen);
    layouts->Draw(&painter, QRect(20, 20, 200, 40), name);
    return image;
}

void tst_NameLayouts::drawsTheSameAgain()
{
    NameLayouts layouts;
    const QString name = QStringLiteral("an annual report of everything that happened in a year");
    const QImage first = Drawn(&layouts, name, TestFont(), Qt::black);
    Drawn(&layouts, QStringLiteral("another"), TestFont(), Qt::black);
    QCOMPARE(Drawn(&layouts, name, TestFont(), Qt::black), first);
}

void tst_NameLayouts::drawsInThePainterOwnFontAndPenEachTime()
{
    NameLayouts layouts;
    NameLayouts fresh;
    QFont large = TestFont();
    large.setPixelSize(18);
    const QString name = QStringLiteral("report");
    const QImage first = Drawn(&layouts, name, TestFont(), Qt::black);
    const QImage second = Drawn(&layouts, name, large, Qt::red);
    QVERIFY(first != second);
    QCOMPARE(second, Drawn(&fresh, name, large, Qt::red));
}

void tst_NameLayouts::emptyAreaDrawsNothing()
{
    NameLayouts layouts;
    QImage image = Canvas();
    QPainter painter(&image);
    Prepare(&painter);
    layouts.Draw(&painter, QRect(20, 20, 0, 30), QStringLiteral("report"));
    layouts.Draw(&painter, QRect(20, 20, -30, 30), QStringLiteral("report"));
    layouts.Draw(&painter, QRect(20, 20, 30, -3), QStringLiteral("report"));
    QCOMPARE(image, Canvas());
}

void tst_NameLayouts::hostileNamesAreDrawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("high surrogate alone") << QString(QChar(0xd800));
    QTest::newRow("low surrogate alone") << QString(QChar(0xdc00)).repeated(90);
    QTest::newRow("longest name") << QString(255, QLatin1Char('W'));
    QTest::newRow("combining marks") << QStringLiteral("a") + QString(254, QChar(0x0301));
    QTest::newRow("marks without a base") << QString(100, QChar(0x0301));
    QTest::newRow("direction overrides") << QString(60, QChar(0x202e)) + QStringLiteral("txt.exe");
    QTest::newRow("emoji") << QStringLiteral("\U0001F468\u200D\U0001F469\u200D\U0001F467").repeated(20);
    QTest::newRow("zero width") << QString(255, QChar(0x200b));
    QTest::newRow("separators") << QString(255, QChar(QChar::LineSeparator));
    QTest::newRow("controls") << QStringLiteral("\x01\x02\x7f\x9c\x1b") + QChar(QChar::Null);
    QTest::newRow("megabyte") << QString(1000000, QLatin1Char('x'));
}

void tst_NameLayouts::hostileNamesAreDrawn()
{
    QFETCH(QString, name);
    NameLayouts layouts;
    const QImage first = Drawn(&layouts, name, TestFont(), Qt::black);
    QCOMPARE(Drawn(&layouts, name, TestFont(), Qt::black), first);
    for (const int width : {1, 7, 126}) {
        const QString fitted = Fitted(name, width);
        QVERIFY(Wrapped(fitted, qMax(width, WidthOf(fitted))).LineCount() <= 2);
    }
}

KTFM_TEST_MAIN(tst_NameLayouts)
#include "tst_namelayouts.moc"
