#include "BrowserWindow.h"
#include "Screenshot.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ktfm-browser"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Browses a folder."));
    parser.addHelpOption();
    parser.addPositionalArgument(
        QStringLiteral("folder"),
        QApplication::translate("main", "The folder to open; the current one if none is given."));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"),
        QApplication::translate("main", "Write a picture of the window and quit."), QStringLiteral("PNG"));
    parser.addOption(screenshot);
    parser.process(app);

    BrowserWindow window;
    if (parser.isSet(screenshot))
        TakeScreenshotWhenLoaded(window, parser.value(screenshot));
    window.show();
    window.OpenFolder(parser.positionalArguments().value(0, QDir::currentPath()));
    return QApplication::exec();
}
