#include "BrowserWindow.h"
#include "ColorScheme.h"
#include "Memory.h"
#include "Options.h"
#include "Screenshot.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>
#include <QTextStream>
#include <QTranslator>

namespace {

/** What the program returns when its command line is wrong. */
constexpr int UsageError = 2;

int Complain(const QString& text)
{
    QTextStream(stderr) << QApplication::applicationName() << ": " << text << '\n';
    return UsageError;
}

/** Loads a catalogue from the first of the folders that has it for the language. */
void Install(const QString& catalogue, const QStringList& folders)
{
    auto* texts = new QTranslator(qApp);
    for (const QString& folder : folders) {
        if (texts->load(QLocale(), catalogue, QStringLiteral("_"), folder)) {
            QApplication::installTranslator(texts);
            return;
        }
    }
}

void SpeakLanguage(const QString& code)
{
    // The user's first language alone: the system's locale goes on to their second where the first has no
    // catalogue, and English has none.
    QLocale::setDefault(QLocale(code.isEmpty() ? QLocale::system().name() : code));
    const QStringList pane = QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                                       QStringLiteral("KTFileManager2QU/translations"),
                                                       QStandardPaths::LocateDirectory);
    Install(QStringLiteral("qtbase"), {QLibraryInfo::location(QLibraryInfo::TranslationsPath)});
    Install(QStringLiteral("KTFileManager2QU"),
            QStringList(QApplication::applicationDirPath() + QStringLiteral("/translations")) + pane);
}

int Browse(const Options& options)
{
    ColorScheme::SetDark(options.dark);
    BrowserWindow window(options);
    if (!options.screenshot.isEmpty())
        TakeScreenshotWhenLoaded(window, *window.Pane()->GetListModel(), options.screenshot,
                                 [&window] { return window.IsBusy(); });
    window.show();
    window.OpenFolder(options.folder, options.selected.isEmpty()
                                          ? QString()
                                          : QDir(options.folder).filePath(options.selected));
    const int result = QApplication::exec();
    if (options.screenshot.isEmpty()) {
        QSettings settings;
        Memory::Keep(window, &settings);
    }
    return result;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("KTFileManager2QU"));
    QApplication::setApplicationName(QStringLiteral("ktfm-browser"));

    // The alias tree logs each folder that it shows; that is for who looks for a fault in a table.
    QLoggingCategory::setFilterRules(QStringLiteral("ktfm.aliastree.debug=false"));

    const CommandLine commandLine = ParseCommandLine(QApplication::arguments());
    if (!commandLine.help.isEmpty()) {
        QTextStream(stdout) << commandLine.help;
        return 0;
    }
    if (!commandLine.error.isEmpty())
        return Complain(commandLine.error);
    const Options& options = commandLine.options;
    if (!QFileInfo(options.folder).isDir())
        return Complain(QApplication::translate("main", "There is no folder %1.")
                            .arg(QDir::toNativeSeparators(options.folder)));
    SpeakLanguage(options.language);
    // A picture must not depend on how the program was left last time.
    return Browse(options.screenshot.isEmpty() ? Memory::Complete(options, QSettings()) : options);
}
