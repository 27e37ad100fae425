#include "widget/CopyNaming.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QFileInfo>

class tst_CopyNaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersTheBaseName_data();
    void numbersTheBaseName();
    void folderKeepsItsDots();
    void takesTheFirstFreeNumber();
    void linkToNothingTakesAName();
    void longBaseNameIsCutTo163();
    void neverCutsACharacterInHalf();
    void placeholdersInANameStay();
    void linkToAFolderIsNamedLikeAFolder();
};

void tst_CopyNaming::numbersTheBaseName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("copy");
    QTest::newRow("one extension") << "name.ext"
                                   << "name-Copy(1).ext";
    QTest::newRow("several dots") << "a.tar.gz"
                                  << "a.tar-Copy(1).gz";
    QTest::newRow("no extension gets the dot") << "README"
                                               << "README-Copy(1).";
    QTest::newRow("leading dot alone") << ".profile"
                                       << "-Copy(1).profile";
    QTest::newRow("dot at the end") << "notes."
                                    << "notes-Copy(1).";
    QTest::newRow("a copy is copied") << "a-Copy(1).txt"
                                      << "a-Copy(1)-Copy(1).txt";
}

void tst_CopyNaming::numbersTheBaseName()
{
    QFETCH(QString, name);
    const TestFolder folder;
    const QFileInfo item(folder.File(name));
    QTEST(CopyNaming::FreeName(item), "copy");
}

void tst_CopyNaming::folderKeepsItsDots()
{
    const TestFolder folder;
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.Folder(QStringLiteral("Docs")))),
             QStringLiteral("Docs-Copy(1)"));
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.Folder(QStringLiteral("v1.2")))),
             QStringLiteral("v1.2-Copy(1)"));
}

void tst_CopyNaming::takesTheFirstFreeNumber()
{
    const TestFolder folder;
    const QFileInfo item(folder.File(QStringLiteral("a.txt")));
    folder.File(QStringLiteral("a-Copy(1).txt"));
    folder.Folder(QStringLiteral("a-Copy(2).txt"));
    folder.File(QStringLiteral("a-Copy(4).txt"));
    QCOMPARE(CopyNaming::FreeName(item), QStringLiteral("a-Copy(3).txt"));
}

void tst_CopyNaming::linkToNothingTakesAName()
{
    const TestFolder folder;
    const QFileInfo item(folder.File(QStringLiteral("a.txt")));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("a-Copy(1).txt"));
    QCOMPARE(CopyNaming::FreeName(item), QStringLiteral("a-Copy(2).txt"));
}

void tst_CopyNaming::longBaseNameIsCutTo163()
{
    const TestFolder folder;
    const QString base(200, QLatin1Char('x'));
    const QString kept(163, QLatin1Char('x'));
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.File(base + QStringLiteral(".txt")))),
             kept + QStringLiteral("-Copy(1).txt"));
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.Folder(base))), kept + QStringLiteral("-Copy(1)"));
    const QString exact(163, QLatin1Char('y'));
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.Folder(exact))), exact + QStringLiteral("-Copy(1)"));
}

void tst_CopyNaming::neverCutsACharacterInHalf()
{
    const TestFolder folder;
    const QString kept(162, QLatin1Char('x'));
    const uint faceCode = 0x1F600;
    const QString face = QString::fromUcs4(&faceCode, 1);
    QCOMPARE(face.size(), 2);
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.Folder(kept + face + QStringLiteral("tail")))),
             kept + QStringLiteral("-Copy(1)"));
}

void tst_CopyNaming::placeholdersInANameStay()
{
    const TestFolder folder;
    QCOMPARE(CopyNaming::FreeName(QFileInfo(folder.File(QStringLiteral("100%2 %1.%3")))),
             QStringLiteral("100%2 %1-Copy(1).%3"));
}

void tst_CopyNaming::linkToAFolderIsNamedLikeAFolder()
{
    KTFM_NEEDS_SYMBOLIC_LINKS();
    const TestFolder folder;
    const QString target = folder.Folder(QStringLiteral("real"));
    const QFileInfo link(folder.Link(target, QStringLiteral("v1.2")));
    QCOMPARE(CopyNaming::FreeName(link), QStringLiteral("v1.2-Copy(1)"));
}

KTFM_TEST_MAIN(tst_CopyNaming)
#include "tst_copynaming.moc"
