#include "MainWindow.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QUrl>

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    MainWindow window(QDir::homePath());
    QObject::connect(&window, &MainWindow::FileOpened,
                     [](const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    window.show();
    return QApplication::exec();
}
