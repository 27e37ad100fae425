#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QImage>
#include <QProcess>

/** The program itself, as a script starts it. */
class tst_BrowserProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void screenshotHasTheSizeOfTheWindow_data();
    void screenshotHasTheSizeOfTheWindow();
    void screenshotIsTwiceAsLargeOnAScreenOfTwiceTheDensity();
    void darkScreenshotIsDark();
    void layoutFromRightToLeftPutsTheTreeOnTheRight();
    void screenshotThatCannotBeWrittenFails();
    void screenshotLeavesTheSettingsAlone();
    void helpIsPrinted();
    void wrongCommandLineFails_data();
    void wrongCommandLineFails();
};

namespace {

struct Ended
{
    int code;
    QByteArray output;
    QByteArray errors;
};

/** Runs the program to its end, with settings in a folder of its own. */
Ended Run(const TestFolder& folder, const QStringList& arguments,
          const QProcessEnvironment& more = QProcessEnvironment())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("HOME"), folder.Path());
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder.Path(QStringLiteral("config")));
    environment.insert(more);
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QStringLiteral(BROWSER_PROGRAM), arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {-1, program.readAllStandardOutput(), program.readAllStandardError()};
    return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

/** A folder with something in it, and where a picture of it goes. */
struct Screenshot
{
    Screenshot()
    {
        folder.Folder(QStringLiteral("content/rooms"));
        folder.File(QStringLiteral("content/letter.txt"), "hello");
    }

    QImage Take(const QStringList& arguments, const QProcessEnvironment& more = QProcessEnvironment()) const
    {
        const QString png = folder.Path(QStringLiteral("picture.png"));
        const QStringList all =
            QStringList{QStringLiteral("--screenshot"), png, folder.Path(QStringLiteral("content"))} +
            arguments;
        const Ended ended = Run(folder, all, more);
        if (ended.code != 0)
            qInfo() << ended.code << ended.errors;
        return QImage(png);
    }

    TestFolder folder;
};

} // namespace

void tst_BrowserProgram::screenshotHasTheSizeOfTheWindow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QSize>("size");
    for (const char* mode : {"tree+list", "tree", "list", "alias+list"})
        QTest::newRow(mode) << QStringList{QStringLiteral("--mode"), QLatin1String(mode)} << QSize(1000, 640);
    QTest::newRow("smaller") << QStringList{QStringLiteral("--size=700x400")} << QSize(700, 400);
    QTest::newRow("details") << QStringList{QStringLiteral("--view=details")} << QSize(1000, 640);
}

void tst_BrowserProgram::screenshotHasTheSizeOfTheWindow()
{
    QFETCH(QStringList, arguments);
    QTEST(Screenshot().Take(arguments).size(), "size");
}

void tst_BrowserProgram::screenshotIsTwiceAsLargeOnAScreenOfTwiceTheDensity()
{
    QProcessEnvironment dense;
    dense.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    QCOMPARE(Screenshot().Take({QStringLiteral("--size=700x400")}, dense).size(), QSize(1400, 800));
}

void tst_BrowserProgram::darkScreenshotIsDark()
{
    const Screenshot screenshot;
    // The lower right of the file list, where nothing is.
    const QPoint empty(900, 500);
    QVERIFY(screenshot.Take({}).pixelColor(empty).lightness() > 200);
    QVERIFY(screenshot.Take({QStringLiteral("--dark")}).pixelColor(empty).lightness() < 60);
}

void tst_BrowserProgram::layoutFromRightToLeftPutsTheTreeOnTheRight()
{
    const Screenshot screenshot;
    const QImage usual = screenshot.Take({});
    const QImage reverse = screenshot.Take({QStringLiteral("-reverse")});
    QCOMPARE(reverse.size(), usual.size());
    // The line between tree and list is a quarter of the width from the side of the tree.
    const auto seam = [](const QImage& image, int x) { return image.copy(x - 15, 450, 30, 1); };
    const auto isPlain = [](const QImage& line) {
        for (int x = 1; x < line.width(); ++x)
            if (line.pixel(x, 0) != line.pixel(0, 0))
                return false;
        return true;
    };
    QVERIFY(!isPlain(seam(usual, 250)));
    QVERIFY(isPlain(seam(usual, 750)));
    QVERIFY(isPlain(seam(reverse, 250)));
    QVERIFY(!isPlain(seam(reverse, 750)));
}

void tst_BrowserProgram::screenshotThatCannotBeWrittenFails()
{
    const TestFolder folder;
    folder.Folder(QStringLiteral("content"));
    const Ended ended =
        Run(folder, {QStringLiteral("--screenshot"), folder.Path(QStringLiteral("none/a.png")),
                     folder.Path(QStringLiteral("content"))});
    QCOMPARE(ended.code, 1);
}

void tst_BrowserProgram::screenshotLeavesTheSettingsAlone()
{
    const Screenshot screenshot;
    QVERIFY(!screenshot.Take({QStringLiteral("--dark")}).isNull());
    QVERIFY(!QFileInfo::exists(screenshot.folder.Path(QStringLiteral("config/KTFileManager2QU"))));
}

void tst_BrowserProgram::helpIsPrinted()
{
    const TestFolder folder;
    const Ended ended = Run(folder, {QStringLiteral("--help")});
    QCOMPARE(ended.code, 0);
    QVERIFY(ended.output.contains("--screenshot"));
}

void tst_BrowserProgram::wrongCommandLineFails_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--nonsense")};
    QTest::newRow("missing folder") << QStringList{QStringLiteral("/no/such/folder")};
}

void tst_BrowserProgram::wrongCommandLineFails()
{
    QFETCH(QStringList, arguments);
    const TestFolder folder;
    const Ended ended = Run(folder, arguments);
    QCOMPARE(ended.code, 2);
    QVERIFY(ended.errors.contains("ktfm-browser: "));
}

KTFM_TEST_MAIN(tst_BrowserProgram)
#include "tst_browserprogram.moc"
