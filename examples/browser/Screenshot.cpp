#include "Screenshot.h"

#include "BrowserWindow.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QApplication>
#include <QPixmap>
#include <QTimer>

namespace {

/** The time for layouts, lazy icons and the tree beside the list to settle, in ms. */
constexpr int SettleTime = 400;

} // namespace

void TakeScreenshotWhenLoaded(BrowserWindow& window, const QString& pngPath)
{
    const CKTFMListModel* list = window.Pane()->GetListModel();
    QObject::connect(list, &QFileSystemModel::directoryLoaded, &window,
                     [&window, list, pngPath](const QString& path) {
                         if (path != list->rootPath())
                             return;
                         QTimer::singleShot(SettleTime, &window, [&window, pngPath] {
                             QApplication::exit(window.grab().save(pngPath, "PNG") ? 0 : 1);
                         });
                     });
}
