#include "Screenshot.h"

#include <QApplication>
#include <QFileSystemModel>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace {

/** The time for layouts, lazy icons and the tree beside the list to settle, in ms. */
constexpr int SettleTime = 400;

void TakeWhenSettled(QWidget& window, const QString& pngPath, const std::function<bool()>& isBusy)
{
    QTimer::singleShot(SettleTime, &window, [&window, pngPath, isBusy] {
        if (isBusy && isBusy())
            TakeWhenSettled(window, pngPath, isBusy);
        else
            QApplication::exit(window.grab().save(pngPath, "PNG") ? 0 : 1);
    });
}

} // namespace

void TakeScreenshotWhenLoaded(QWidget& window, const QFileSystemModel& files, const QString& pngPath,
                              const std::function<bool()>& isBusy)
{
    QObject::connect(&files, &QFileSystemModel::directoryLoaded, &window,
                     [&window, &files, pngPath, isBusy](const QString& path) {
                         if (path == files.rootPath())
                             TakeWhenSettled(window, pngPath, isBusy);
                     });
}
