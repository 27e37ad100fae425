#include "models/CollationKey.h"
#include "tests/support/TestPlatform.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRandomGenerator>
#include <QtTest>

namespace {

/** Enough pairs to meet each kind of letter beside each other kind several times. */
constexpr int RandomPairs = 50000;

/** Fixed, so that a failure comes again. */
constexpr quint32 Seed = 20240229;

int Sign(int value)
{
    return (value > 0) - (value < 0);
}

/** Letters that collation treats each in a way of its own. */
const QVector<QString>& Letters()
{
    static const QVector<QString> letters = [] {
        QVector<QString> all;
        const QByteArray ascii("abzABZ019 -_.~'(\t\n\x01\x1f\x7f");
        for (const char c : ascii)
            all.append(QString(QLatin1Char(c)));
        for (const int c :
             {0xc4,   0xe4,   0xdf,   0xe5,   0xf6,   0x1b5,  0x200d, 0xad,   0x301,  0x308,  0x30a,  0x327,
              0x345,  0x1e9b, 0x3b1,  0x3c2,  0x436,  0x5d0,  0x627,  0x0e40, 0x0e01, 0x1100, 0x1161, 0xac00,
              0x3042, 0x30a2, 0x4e2d, 0x212b, 0xfb01, 0xff21, 0xfeff, 0xfffd, 0xfffe, 0xffff, 0xe000, 0x0})
            all.append(QString(QChar(c)));
        for (const uint c : {0x1f600u, 0x20000u, 0x10ffffu, 0x1d15eu})
            all.append(QString::fromUcs4(&c, 1));
        // Halves of surrogate pairs, as a name on disk may hold.
        all.append(QString(QChar(0xd83d)));
        all.append(QString(QChar(0xde00)));
        return all;
    }();
    return letters;
}

QString RandomText(QRandomGenerator& random)
{
    QString text;
    const int length = random.bounded(8);
    for (int i = 0; i < length; ++i)
        text += Letters().at(random.bounded(Letters().size()));
    return text;
}

/** @return a text that differs from @p text in little, so that all levels of collation have their say */
QString Neighbour(QRandomGenerator& random, const QString& text)
{
    switch (random.bounded(6)) {
    case 0:
        return text.normalized(QString::NormalizationForm_D);
    case 1:
        return text.normalized(QString::NormalizationForm_C);
    case 2:
        return text.toUpper();
    case 3:
        return text + Letters().at(random.bounded(Letters().size()));
    case 4:
        return Letters().at(random.bounded(Letters().size())) + text;
    default:
        return RandomText(random);
    }
}

QString Hex(const QString& text)
{
    QStringList units;
    for (const QChar c : text)
        units.append(QString::number(c.unicode(), 16));
    return units.join(QLatin1Char(' '));
}

bool AgreesWithQString(const QString& left, const QString& right)
{
    const int order = Sign(CollationKey(left).Compare(CollationKey(right)));
    const int expected = Sign(left.localeAwareCompare(right));
    if (order == expected)
        return true;
    qInfo("[%s] and [%s]: %d instead of %d", qPrintable(Hex(left)), qPrintable(Hex(right)), order, expected);
    return false;
}

} // namespace

class tst_CollationKey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void runsInTheLocaleOfTheEnvironment();
    void agreesWithTheLocaleOnChosenTexts();
    void agreesWithTheLocaleOnRandomTexts();
    void longTextsAreComparedWhole();
    void emptyAndNullAreAlike();
    void keysCanBeCopiedAndOutliveTheirTexts();
};

void tst_CollationKey::runsInTheLocaleOfTheEnvironment()
{
    if (!TestPlatform::TakesLocaleFromEnvironment())
        QSKIP("the user's settings choose the locale");
    const QString asked = QString::fromLatin1(qgetenv("LC_ALL")).section(QLatin1Char('.'), 0, 0);
    QCOMPARE(QLocale().name(), asked);
}

void tst_CollationKey::agreesWithTheLocaleOnChosenTexts()
{
    const QStringList texts = {QString(),
                               QLatin1String(""),
                               QStringLiteral("a"),
                               QStringLiteral("A"),
                               QStringLiteral("a "),
                               QStringLiteral("a10"),
                               QStringLiteral("a9"),
                               QStringLiteral("resume"),
                               QString::fromUtf8("r\u00e9sum\u00e9"),
                               QString::fromUtf8("re\u0301sume\u0301"),
                               QString::fromUtf8("\u00c5"),
                               QString::fromUtf8("A\u030a"),
                               QString::fromUtf8("\u212b"),
                               QString::fromUtf8("\u0301"),
                               QStringLiteral("\n"),
                               QStringLiteral("\x7f"),
                               QString(1, QChar(QChar::Null)),
                               QString(QChar(0xd800)),
                               QString(QChar(0xdc00)),
                               QString(QChar(0xffff)),
                               QStringLiteral("1.00 KiB"),
                               QStringLiteral("4.00 GiB"),
                               QStringLiteral("co-op"),
                               QStringLiteral("coop"),
                               QStringLiteral("Coop")};
    for (const QString& left : texts) {
        for (const QString& right : texts)
            QVERIFY(AgreesWithQString(left, right));
    }
}

void tst_CollationKey::agreesWithTheLocaleOnRandomTexts()
{
    QRandomGenerator random(Seed);
    int different = 0;
    for (int i = 0; i < RandomPairs; ++i) {
        const QString left = RandomText(random);
        if (!AgreesWithQString(left, Neighbour(random, left)))
            ++different;
    }
    QCOMPARE(different, 0);
}

void tst_CollationKey::longTextsAreComparedWhole()
{
    const QString common(5000, QLatin1Char('x'));
    QVERIFY(CollationKey(common + QLatin1Char('a')).Compare(CollationKey(common + QLatin1Char('b'))) < 0);
    QVERIFY(CollationKey(common + QLatin1Char('b')).Compare(CollationKey(common + QLatin1Char('a'))) > 0);
    QVERIFY(CollationKey(common).Compare(CollationKey(common + QLatin1Char('a'))) < 0);
}

void tst_CollationKey::emptyAndNullAreAlike()
{
    const CollationKey empty(QLatin1String(""));
    QCOMPARE(empty.Compare(CollationKey(QString())), 0);
    QCOMPARE(empty.Compare(CollationKey()), 0);
    QVERIFY(empty.Compare(CollationKey(QStringLiteral("a"))) < 0);
    QVERIFY(CollationKey(QStringLiteral("a")).Compare(empty) > 0);
}

void tst_CollationKey::keysCanBeCopiedAndOutliveTheirTexts()
{
    CollationKey key;
    {
        const CollationKey other(QStringLiteral("b"));
        key = other;
    }
    QCOMPARE(key.Compare(CollationKey(QStringLiteral("b"))), 0);
    QVERIFY(key.Compare(CollationKey(QStringLiteral("c"))) < 0);
}

// The locale is left as the environment says: CTest runs this program in several.
QTEST_GUILESS_MAIN(tst_CollationKey)
#include "tst_collationkey.moc"
