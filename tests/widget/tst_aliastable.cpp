#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"
#include "widget/AliasTable.h"

#include <QDir>

/** Where the table of the alias tree comes from. */
class tst_AliasTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fileIsReadAsUtf8_data();
    void fileIsReadAsUtf8();
    void otherStringIsTheTableItself_data();
    void otherStringIsTheTableItself();
    void fileIsFoundFromTheCurrentFolder();
    void nameOfAFolderIsTheTableItself();
    void nameOfALinkToAFileIsRead();
};

void tst_AliasTable::fileIsReadAsUtf8_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("plain") << QByteArray("a\tb\n") << QStringLiteral("a\tb\n");
    QTest::newRow("umlaut") << QByteArray("\xc3\x84") << QStringLiteral("\u00c4");
    QTest::newRow("beyond 16 bits") << QByteArray("\xf0\x9f\x98\x80") << QString::fromUcs4(U"\U0001f600", 1);
    QTest::newRow("byte-order mark") << QByteArray("\xef\xbb\xbf"
                                                   "a")
                                     << QStringLiteral("a");
    QTest::newRow("byte-order mark alone") << QByteArray("\xef\xbb\xbf") << QString();
    QTest::newRow("line ends of Windows") << QByteArray("a\r\nb\r\n") << QStringLiteral("a\r\nb\r\n");
    QTest::newRow("not UTF-8") << QByteArray("a\xff") << QStringLiteral("a\ufffd");
}

void tst_AliasTable::fileIsReadAsUtf8()
{
    QFETCH(QByteArray, bytes);
    const TestFolder folder;
    const auto text = AliasTable::TextOf(folder.File(QStringLiteral("table"), bytes));
    QVERIFY(text.has_value());
    QTEST(*text, "text");
}

void tst_AliasTable::otherStringIsTheTableItself_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QString(QLatin1String(""));
    QTest::newRow("one label") << QStringLiteral("Documents");
    QTest::newRow("columns") << QStringLiteral("Documents\t/home/documents");
    QTest::newRow("lines") << QStringLiteral("a\n b\n");
    QTest::newRow("a path of nothing") << QStringLiteral("/no/such/file");
    QTest::newRow("longer than a path") << QStringLiteral("x").repeated(100000);
}

void tst_AliasTable::otherStringIsTheTableItself()
{
    QFETCH(QString, text);
    QCOMPARE(AliasTable::TextOf(text), std::make_optional(text));
}

void tst_AliasTable::fileIsFoundFromTheCurrentFolder()
{
    const TestFolder folder;
    folder.File(QStringLiteral("table"), "a");
    const QString former = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.Path()));
    const auto text = AliasTable::TextOf(QStringLiteral("table"));
    QVERIFY(QDir::setCurrent(former));
    QCOMPARE(text, std::make_optional(QStringLiteral("a")));
}

void tst_AliasTable::nameOfAFolderIsTheTableItself()
{
    const TestFolder folder;
    QCOMPARE(AliasTable::TextOf(folder.Path()), std::make_optional(folder.Path()));
}

void tst_AliasTable::nameOfALinkToAFileIsRead()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    const TestFolder folder;
    const QString file = folder.File(QStringLiteral("table"), "a");
    const QString link = folder.Link(file, QStringLiteral("link.lnk"));
    QCOMPARE(AliasTable::TextOf(link), std::make_optional(QStringLiteral("a")));
}

KTFM_TEST_MAIN(tst_AliasTable)
#include "tst_aliastable.moc"
