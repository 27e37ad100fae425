/*
 * A collection of content: screens of an application's own, made of the library's models, views and delegate
 * without its pane. What shows what:
 *
 *   FolderPane      CKTFMSimpleTreeView over CKTFMTreeModel, with images from the application
 *   ContentPane     CKTFMListModel, sorted and searched by a CKTFMSortFilterProxyModel, in two views
 *   ContentOrder    CCustomSortInterface: the application's own orders
 *   ThumbnailView   CKTFMListView with a CKTFMDelegate, and the settings that they need
 *   Favourites      CKTFMCustomListModel: files from several folders, that are missing when they vanish
 *   FavouritesView  a view that files are dropped onto
 *   ContentImages   images for callbacks that must not wait: cards at once, pictures when they are read
 *   CollectionWindow  puts them together, with context menus through CKTFMContextMenuHandleInterface
 */

#include "CollectionWindow.h"
#include "Options.h"
#include "Screenshot.h"

#include "ContentPane.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include <QApplication>
#include <QSettings>
#include <QTextStream>

namespace {

int Say(const QString& text, FILE* stream, int code)
{
    QTextStream(stream) << text.trimmed() << '\n';
    return code;
}

QString FolderOf(const Options& options)
{
    return options.folder.isEmpty() ? QStringLiteral(SAMPLE_FOLDER) : options.folder;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("ktfm-collection"));

    const Options options = ReadOptions(QApplication::arguments());
    if (!options.help.isEmpty())
        return Say(options.help, stdout, 0);
    if (!options.error.isEmpty())
        return Say(options.error, stderr, 1);

    QSettings settings(QStringLiteral("KTFileManager2QU"), QApplication::applicationName());
    CollectionWindow window;
    if (options.screenshot.isEmpty() && options.favourites.isEmpty())
        window.KeepFavouritesIn(settings);
    window.Favoured().Add(options.favourites);
    if (!options.screenshot.isEmpty())
        TakeScreenshotWhenLoaded(window, window.Content().Model(), options.screenshot,
                                 [&window] { return window.Images().IsBusy(); });
    if (!window.OpenCollection(FolderOf(options)))
        return Say(QApplication::translate("main", "There is no folder %1").arg(FolderOf(options)), stderr,
                   1);
    window.show();
    return QApplication::exec();
}
