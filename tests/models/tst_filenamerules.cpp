#include "models/FileNameRules.h"
#include "tests/support/TestMain.h"

class tst_FileNameRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsEachForbiddenCharacter_data();
    void findsEachForbiddenCharacter();
    void acceptsOrdinaryNames();
    void findsSeparatorsOfThePlatform();
    void refusesWhatNoFileSystemCanHold();
};

void tst_FileNameRules::findsEachForbiddenCharacter_data()
{
    QTest::addColumn<QString>("character");
    const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    for (const QChar c : forbidden)
        QTest::addRow("U+%04X", c.unicode()) << QString(c);
}

void tst_FileNameRules::findsEachForbiddenCharacter()
{
    QFETCH(QString, character);
    QVERIFY(FileNameRules::HasForbiddenCharacter(character));
    QVERIFY(FileNameRules::HasForbiddenCharacter(QStringLiteral("name") + character));
    QVERIFY(FileNameRules::HasForbiddenCharacter(character + QStringLiteral("name")));
}

void tst_FileNameRules::acceptsOrdinaryNames()
{
    QVERIFY(!FileNameRules::HasForbiddenCharacter(QString()));
    QVERIFY(!FileNameRules::HasForbiddenCharacter(QStringLiteral("a b.c;d'e[f]{g}")));
    QVERIFY(!FileNameRules::HasForbiddenCharacter(QString(QChar(0xD800))));
}

void tst_FileNameRules::findsSeparatorsOfThePlatform()
{
    QVERIFY(FileNameRules::HasSeparator(QStringLiteral("a/b")));
    QVERIFY(FileNameRules::HasSeparator(QStringLiteral("/")));
    QVERIFY(!FileNameRules::HasSeparator(QStringLiteral("..")));
#ifdef Q_OS_WIN
    QVERIFY(FileNameRules::HasSeparator(QStringLiteral("a\\b")));
#else
    QVERIFY(!FileNameRules::HasSeparator(QStringLiteral("a\\b")));
#endif
}

void tst_FileNameRules::refusesWhatNoFileSystemCanHold()
{
    QVERIFY(FileNameRules::IsRepresentable(QStringLiteral("plain")));
    QVERIFY(FileNameRules::IsRepresentable(QString::fromUtf8("\xF0\x9F\x98\x80")));
    QVERIFY(!FileNameRules::IsRepresentable(QStringLiteral("a") + QChar(0xD83D)));
    QVERIFY(!FileNameRules::IsRepresentable(QStringLiteral("a") + QChar(0xDE00) + QStringLiteral("b")));
    QVERIFY(!FileNameRules::IsRepresentable(QStringLiteral("a") + QChar(QChar::Null) + QStringLiteral("b")));
}

KTFM_TEST_MAIN(tst_FileNameRules)
#include "tst_filenamerules.moc"
