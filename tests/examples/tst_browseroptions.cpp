#include "examples/browser/AddressPath.h"
#include "examples/browser/AliasSample.h"
#include "examples/browser/FolderHistory.h"
#include "examples/browser/Options.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>

Q_DECLARE_METATYPE(EKTFMMode)

/** What the browser is asked for: on the command line, as an address, by a table of aliases. */
class tst_BrowserOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingGivenOpensTheCurrentFolder();
    void folderIsAnOptionOrAnArgument_data();
    void folderIsAnOptionOrAnArgument();
    void modeIsNamed_data();
    void modeIsNamed();
    void viewAndSizesAreNamed();
    void viewIsLeftOpenWhenNotGiven();
    void sectionStandsBehindTheLastColon_data();
    void sectionStandsBehindTheLastColon();
    void namesAreNullWhenNotGiven();
    void otherOptionsAreRead();
    void wrongCommandLineIsSaid_data();
    void wrongCommandLineIsSaid();
    void helpNamesEveryOption();

    void addressIsUnderstood_data();
    void addressIsUnderstood();
    void addressMayBeAUrl();

    void tableFolderIsRelativeToItsFile();
    void tableThatIsNotThereIsNull();
    void sampleTableNamesFolderAndSection();

    void historyGoesBackAndForward();
    void visitForgetsWhatWasAhead();
    void visitOfThePresentFolderChangesNothing();
    void historyForgetsTheOldest();
};

namespace {

CommandLine Parsed(const QStringList& arguments)
{
    return ParseCommandLine(QStringList(QStringLiteral("ktfm-browser")) + arguments);
}

} // namespace

void tst_BrowserOptions::nothingGivenOpensTheCurrentFolder()
{
    const CommandLine line = Parsed({});
    QCOMPARE(line.error, QString());
    QCOMPARE(line.help, QString());
    QCOMPARE(line.options.folder, QDir::currentPath());
    QCOMPARE(line.options.mode, FM_MODE_TREE_AND_LIST);
    QVERIFY(!line.options.size.isValid());
    QVERIFY(!line.options.dark);
}

void tst_BrowserOptions::folderIsAnOptionOrAnArgument_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QString folder = QDir::tempPath();
    QTest::newRow("option") << QStringList{QStringLiteral("--folder"), folder};
    QTest::newRow("option with =") << QStringList{QStringLiteral("--folder=") + folder};
    QTest::newRow("argument") << QStringList{folder};
    QTest::newRow("argument behind options") << QStringList{QStringLiteral("--dark"), folder};
}

void tst_BrowserOptions::folderIsAnOptionOrAnArgument()
{
    QFETCH(QStringList, arguments);
    const CommandLine line = Parsed(arguments);
    QCOMPARE(line.error, QString());
    QCOMPARE(line.options.folder, QDir(QDir::tempPath()).absolutePath());
}

void tst_BrowserOptions::modeIsNamed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<EKTFMMode>("mode");
    QTest::newRow("both") << QStringLiteral("tree+list") << FM_MODE_TREE_AND_LIST;
    QTest::newRow("tree") << QStringLiteral("tree") << FM_MODE_TREE_ONLY;
    QTest::newRow("list") << QStringLiteral("list") << FM_MODE_LIST_ONLY;
    QTest::newRow("alias") << QStringLiteral("alias+list") << FM_MODE_ALIAS_TREE_AND_LIST;
}

void tst_BrowserOptions::modeIsNamed()
{
    QFETCH(QString, name);
    QTEST(Parsed({QStringLiteral("--mode"), name}).options.mode, "mode");
}

void tst_BrowserOptions::viewAndSizesAreNamed()
{
    const Options options = Parsed({QStringLiteral("--view=details"), QStringLiteral("--icon-size=huge"),
                                    QStringLiteral("--size=640x480")})
                                .options;
    QCOMPARE(options.view.value_or(FM_VIEW_ICON), FM_VIEW_DETAIL);
    QCOMPARE(options.iconSize.value_or(FM_ICON_MEDIUM), FM_ICON_HUGE);
    QCOMPARE(options.size, QSize(640, 480));
    QCOMPARE(Parsed({QStringLiteral("--view=icons")}).options.view.value_or(FM_VIEW_DETAIL), FM_VIEW_ICON);
    QCOMPARE(Parsed({QStringLiteral("--icon-size=small")}).options.iconSize.value_or(FM_ICON_MEDIUM),
             FM_ICON_SMALL);
}

void tst_BrowserOptions::viewIsLeftOpenWhenNotGiven()
{
    const Options options = Parsed({}).options;
    QVERIFY(!options.view);
    QVERIFY(!options.iconSize);
}

void tst_BrowserOptions::sectionStandsBehindTheLastColon_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("section");
    QTest::newRow("file alone") << QStringLiteral("names.ini") << QStringLiteral("names.ini") << QString();
    QTest::newRow("with section") << QStringLiteral("names.ini:Rooms") << QStringLiteral("names.ini")
                                  << QStringLiteral("Rooms");
    QTest::newRow("nested section") << QStringLiteral("/a/names.ini:Rooms\\Kitchen")
                                    << QStringLiteral("/a/names.ini") << QStringLiteral("Rooms\\Kitchen");
    QTest::newRow("drive") << QStringLiteral("C:\\x.ini") << QStringLiteral("C:\\x.ini") << QString();
    QTest::newRow("drive, /") << QStringLiteral("C:/x.ini") << QStringLiteral("C:/x.ini") << QString();
    QTest::newRow("drive and section")
        << QStringLiteral("C:\\x.ini:Section") << QStringLiteral("C:\\x.ini") << QStringLiteral("Section");
    QTest::newRow("one-letter file") << QStringLiteral("n:Rooms") << QStringLiteral("n")
                                     << QStringLiteral("Rooms");
    QTest::newRow("empty section") << QStringLiteral("names.ini:") << QStringLiteral("names.ini")
                                   << QString();
}

void tst_BrowserOptions::sectionStandsBehindTheLastColon()
{
    QFETCH(QString, text);
    const Options options = Parsed({QStringLiteral("--names"), text, QStringLiteral("--tips"), text}).options;
    QTEST(options.names.file, "file");
    QTEST(options.names.section, "section");
    QTEST(options.tips.file, "file");
    QTEST(options.tips.section, "section");
    // A null section is refused by the models, where an empty one names the entries before the first.
    QVERIFY(!options.names.section.isNull());
}

void tst_BrowserOptions::namesAreNullWhenNotGiven()
{
    QVERIFY(Parsed({}).options.names.file.isNull());
    QVERIFY(Parsed({}).options.tips.file.isNull());
}

void tst_BrowserOptions::otherOptionsAreRead()
{
    const Options options =
        Parsed({QStringLiteral("--alias=table.txt"), QStringLiteral("--screenshot=a.png"),
                QStringLiteral("--select=b.png"), QStringLiteral("--language=de"), QStringLiteral("--dark")})
            .options;
    QCOMPARE(options.aliasFile, QStringLiteral("table.txt"));
    QCOMPARE(options.screenshot, QStringLiteral("a.png"));
    QCOMPARE(options.selected, QStringLiteral("b.png"));
    QCOMPARE(options.language, QStringLiteral("de"));
    QVERIFY(options.dark);
}

void tst_BrowserOptions::wrongCommandLineIsSaid_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--nonsense")};
    QTest::newRow("unknown mode") << QStringList{QStringLiteral("--mode=trees")};
    QTest::newRow("unknown view") << QStringList{QStringLiteral("--view=")};
    QTest::newRow("unknown icon size") << QStringList{QStringLiteral("--icon-size=60")};
    QTest::newRow("size without height") << QStringList{QStringLiteral("--size=100")};
    QTest::newRow("size of three sides") << QStringList{QStringLiteral("--size=1x2x3")};
    QTest::newRow("size of nothing") << QStringList{QStringLiteral("--size=0x100")};
    QTest::newRow("two folders") << QStringList{QStringLiteral("a"), QStringLiteral("b")};
    QTest::newRow("folder twice") << QStringList{QStringLiteral("--folder=a"), QStringLiteral("b")};
}

void tst_BrowserOptions::wrongCommandLineIsSaid()
{
    QFETCH(QStringList, arguments);
    QVERIFY(!Parsed(arguments).error.isEmpty());
}

void tst_BrowserOptions::helpNamesEveryOption()
{
    const CommandLine line = Parsed({QStringLiteral("--help")});
    QCOMPARE(line.error, QString());
    for (const char* name : {"--mode", "--folder", "--alias", "--names", "--tips", "--screenshot", "--size",
                             "--dark", "--language", "--select", "--view", "--icon-size", "--help"})
        QVERIFY2(line.help.contains(QLatin1String(name)), name);
}

void tst_BrowserOptions::addressIsUnderstood_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("path");
    const QString here = QDir::tempPath();
    QTest::newRow("absolute") << here << here;
    QTest::newRow("blanks around it") << QStringLiteral("  %1 ").arg(here) << here;
    QTest::newRow("quotes around it") << QStringLiteral("\"%1\"").arg(here) << here;
    QTest::newRow("separator at the end") << here + QLatin1Char('/') << here;
    QTest::newRow("native separators") << QDir::toNativeSeparators(here) << here;
    QTest::newRow("relative") << QStringLiteral("below") << here + QStringLiteral("/below");
    QTest::newRow("parent") << QStringLiteral("below/..") << here;
    QTest::newRow("home") << QStringLiteral("~") << QDir::homePath();
    QTest::newRow("below home") << QStringLiteral("~/below") << QDir::homePath() + QStringLiteral("/below");
    QTest::newRow("a name that begins with ~") << QStringLiteral("~me") << here + QStringLiteral("/~me");
    QTest::newRow("blank") << QStringLiteral("   ") << QString();
    QTest::newRow("a quote alone") << QStringLiteral("\"") << here + QStringLiteral("/\"");
}

void tst_BrowserOptions::addressIsUnderstood()
{
    QFETCH(QString, text);
    QTEST(AddressPath(text, QDir::tempPath()), "path");
}

void tst_BrowserOptions::addressMayBeAUrl()
{
    const QString path = QDir::tempPath() + QStringLiteral("/a b");
    const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    QVERIFY(url.startsWith(QLatin1String("file:")));
    QCOMPARE(AddressPath(url, QStringLiteral("/")), path);
}

void tst_BrowserOptions::tableFolderIsRelativeToItsFile()
{
    const TestFolder folder;
    const QString file = folder.File(QStringLiteral("in/table.txt"),
                                     "Rooms\tcontent\t1\t32\tRooms\n  Kitchen\t../kitchen\t\t1\nGroup\n");
    const QStringList lines = AliasTableFrom(file).split(QLatin1Char('\n'));
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0),
             QStringLiteral("Rooms\t%1\t1\t32\tRooms").arg(folder.Path(QStringLiteral("in/content"))));
    QCOMPARE(lines.at(1), QStringLiteral("  Kitchen\t%1\t1").arg(folder.Path(QStringLiteral("kitchen"))));
    QCOMPARE(lines.at(2), QStringLiteral("Group"));
}

void tst_BrowserOptions::tableThatIsNotThereIsNull()
{
    const TestFolder folder;
    QVERIFY(AliasTableFrom(folder.Path(QStringLiteral("none"))).isNull());
}

void tst_BrowserOptions::sampleTableNamesFolderAndSection()
{
    const TestFolder folder;
    const QString first =
        AliasSample(folder.Path(), QStringLiteral("Rooms")).section(QLatin1Char('\n'), 0, 0);
    const QString name = QDir(folder.Path()).dirName();
    QCOMPARE(first, QStringLiteral("%1\t%2\t1\t32\tRooms").arg(name, folder.Path()));
}

void tst_BrowserOptions::historyGoesBackAndForward()
{
    FolderHistory history;
    QVERIFY(!history.CanGoBack());
    QVERIFY(!history.CanGoForward());
    history.Visit(QStringLiteral("a"));
    QVERIFY(!history.CanGoBack());
    history.Visit(QStringLiteral("b"));
    QCOMPARE(history.GoBack(), QStringLiteral("a"));
    QVERIFY(!history.CanGoBack());
    QCOMPARE(history.GoForward(), QStringLiteral("b"));
    QVERIFY(!history.CanGoForward());
}

void tst_BrowserOptions::visitForgetsWhatWasAhead()
{
    FolderHistory history;
    history.Visit(QStringLiteral("a"));
    history.Visit(QStringLiteral("b"));
    history.GoBack();
    history.Visit(QStringLiteral("c"));
    QVERIFY(!history.CanGoForward());
    QCOMPARE(history.GoBack(), QStringLiteral("a"));
}

void tst_BrowserOptions::visitOfThePresentFolderChangesNothing()
{
    FolderHistory history;
    history.Visit(QStringLiteral("a"));
    history.Visit(QStringLiteral("b"));
    history.GoBack();
    history.Visit(QStringLiteral("a"));
    QVERIFY(!history.CanGoBack());
    QVERIFY(history.CanGoForward());
}

void tst_BrowserOptions::historyForgetsTheOldest()
{
    FolderHistory history;
    for (int i = 0; i < 1000; ++i)
        history.Visit(QString::number(i));
    int steps = 0;
    QString path;
    for (; history.CanGoBack(); ++steps)
        path = history.GoBack();
    QVERIFY(steps < 1000);
    QCOMPARE(path, QString::number(999 - steps));
}

KTFM_TEST_MAIN(tst_BrowserOptions)
#include "tst_browseroptions.moc"
