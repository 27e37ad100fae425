#include "BrowserWindow.h"
#include "Options.h"
#include "Screenshot.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ktfm-browser"));

    const Options options = ReadOptions(app);
    BrowserWindow window(options);
    if (!options.screenshot.isEmpty())
        TakeScreenshotWhenLoaded(window, options.screenshot);
    window.show();
    window.OpenFolder(options.folder);
    return QApplication::exec();
}
