#include "ini/NameMapping.h"

#include <KTFileManager2QU/CProfile.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

class tst_NameMapping : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullPathIsRefusedAndChangesNothing();
    void samePathIsNotReadAgain();
    void otherPathReplacesTheTexts();
    void missingFileIsAcceptedAndKeepsThePath();
    void pathWithoutAFileForgetsTheFormerTexts_data();
    void pathWithoutAFileForgetsTheFormerTexts();
    void foundTextReplacesTheName_data();
    void foundTextReplacesTheName();
    void missLeavesTheTextAlone();
    void emptyProfileAnswersTheName();
    void lettersBeyondTheBasicPlaneComeThrough();
    void extensionIsCutAtTheLastDot_data();
    void extensionIsCutAtTheLastDot();
};

namespace {

const QString names = QStringLiteral("names");

QString Text(const KT::CProfile& profile, const QString& name)
{
    return NameMapping::TextOrName(profile, names, name);
}

} // namespace

void tst_NameMapping::nullPathIsRefusedAndChangesNothing()
{
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "[names]\nkey=text\n");
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    QVERIFY(!NameMapping::SetFile(profile, kept, QString()));
    QCOMPARE(kept, ini);
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("text"));
}

void tst_NameMapping::samePathIsNotReadAgain()
{
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "[names]\nkey=before\n");
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    folder.File(QStringLiteral("a.ini"), "[names]\nkey=after\n");
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("before"));
}

void tst_NameMapping::otherPathReplacesTheTexts()
{
    TestFolder folder;
    const QString first = folder.File(QStringLiteral("a.ini"), "[names]\nkey=first\nonly=here\n");
    const QString second = folder.File(QStringLiteral("b.ini"), "[names]\nkey=second\n");
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, first));
    QVERIFY(NameMapping::SetFile(profile, kept, second));
    QCOMPARE(kept, second);
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("second"));
    QCOMPARE(Text(profile, QStringLiteral("only")), QStringLiteral("only"));
}

void tst_NameMapping::missingFileIsAcceptedAndKeepsThePath()
{
    TestFolder folder;
    const QString missing = folder.Path(QStringLiteral("missing.ini"));
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, missing));
    QCOMPARE(kept, missing);
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("key"));
    // The path counts as loaded, although there was nothing: a file that appears later is not read.
    folder.File(QStringLiteral("missing.ini"), "[names]\nkey=text\n");
    QVERIFY(NameMapping::SetFile(profile, kept, missing));
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("key"));
}

void tst_NameMapping::pathWithoutAFileForgetsTheFormerTexts_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "missing.ini";
    QTest::newRow("folder") << ".";
    QTest::newRow("empty but not null") << "";
}

void tst_NameMapping::pathWithoutAFileForgetsTheFormerTexts()
{
    QFETCH(QString, path);
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "[names]\nkey=text\n");
    const QString other = path.isEmpty() ? path : folder.Path(path);
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    QVERIFY(NameMapping::SetFile(profile, kept, other));
    QCOMPARE(kept, other);
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("key"));
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    QCOMPARE(Text(profile, QStringLiteral("key")), QStringLiteral("text"));
}

void tst_NameMapping::foundTextReplacesTheName_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* where, const char* name, const char* text) {
        QTest::addRow("[%s] %s", where, name)
            << QString::fromUtf8(where) << QString::fromUtf8(name) << QString::fromUtf8(text);
    };
    row("names", "Chair.fbx", "Office chair");
    row("names", "Props", "Small things");
    row("names", "Quoted.fbx", "  spaced  ");
    row("names", "Empty.fbx", "");
    row("names", "\u00dcbel.txt", "\u00dcbler Name");
    row("names", "Missing.fbx", "Missing.fbx");
    row("names", "", "");
    row("", "Chair.fbx", "Before any section");
    row("other", "Chair.fbx", "Chair.fbx");
    row("names\nChair.fbx", "Chair.fbx", "Chair.fbx");
    row("names", "Chair.fbx\nProps", "Chair.fbx\nProps");
}

void tst_NameMapping::foundTextReplacesTheName()
{
    QFETCH(QString, section);
    QFETCH(QString, name);
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "Chair.fbx=Before any section\n"
                                                             "[names]\n"
                                                             "Chair.fbx = Office chair\n"
                                                             "Props=Small things\n"
                                                             "Quoted.fbx=\"  spaced  \"\n"
                                                             "Empty.fbx=\"\"\n"
                                                             "\u00dcbel.txt=\u00dcbler Name\n");
    KT::CProfile profile;
    QString kept;
    QVERIFY(NameMapping::SetFile(profile, kept, ini));
    QTEST(NameMapping::TextOrName(profile, section, name), "text");
}

void tst_NameMapping::missLeavesTheTextAlone()
{
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "[names]\nkey=text\n");
    KT::CProfile profile;
    QString kept;
    NameMapping::SetFile(profile, kept, ini);
    QString text = QStringLiteral("fallback");
    QVERIFY(!NameMapping::Find(profile, names, QStringLiteral("other"), text));
    QCOMPARE(text, QStringLiteral("fallback"));
    QVERIFY(NameMapping::Find(profile, names, QStringLiteral("key"), text));
    QCOMPARE(text, QStringLiteral("text"));
}

void tst_NameMapping::emptyProfileAnswersTheName()
{
    const KT::CProfile profile;
    QCOMPARE(Text(profile, QStringLiteral("name.txt")), QStringLiteral("name.txt"));
    QVERIFY(Text(profile, QString()).isNull());
}

void tst_NameMapping::lettersBeyondTheBasicPlaneComeThrough()
{
    TestFolder folder;
    const QString ini = folder.File(QStringLiteral("a.ini"), "[names]\n\U0001f600.txt=\U0001f6b2 wheels\n");
    KT::CProfile profile;
    QString kept;
    NameMapping::SetFile(profile, kept, ini);
    QCOMPARE(Text(profile, QString::fromUtf8("\U0001f600.txt")), QString::fromUtf8("\U0001f6b2 wheels"));
}

void tst_NameMapping::extensionIsCutAtTheLastDot_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one dot") << "a.txt"
                             << "a";
    QTest::newRow("two dots") << "a.b.txt"
                              << "a.b";
    QTest::newRow("no dot") << "plain"
                            << "plain";
    QTest::newRow("dot at the end") << "notes."
                                    << "notes";
    QTest::newRow("dot at the start") << ".profile"
                                      << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_NameMapping::extensionIsCutAtTheLastDot()
{
    QFETCH(QString, name);
    QTEST(NameMapping::WithoutExtension(name), "expected");
}

KTFM_TEST_MAIN(tst_NameMapping)
#include "tst_namemapping.moc"
