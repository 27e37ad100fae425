#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

QString Text(const char* text)
{
    return QCoreApplication::translate("Options", text);
}

} // namespace

Options ReadOptions(const QStringList& arguments)
{
    const QCommandLineOption folder(QStringLiteral("folder"), Text("The folder of the collection."),
                                    QStringLiteral("DIR"));
    const QCommandLineOption favourites(QStringLiteral("favourites"),
                                        Text("Show these favourites instead of those of the last time."),
                                        QStringLiteral("FILE..."));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"), Text("Write a picture of the window and quit."), QStringLiteral("PNG"));
    QCommandLineParser parser;
    parser.setApplicationDescription(Text("Browses a collection and keeps favourites."));
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions({folder, favourites, screenshot});
    parser.addPositionalArgument(QStringLiteral("file"), Text("More favourites."),
                                 QStringLiteral("[file...]"));

    Options options;
    if (!parser.parse(arguments))
        options.error = parser.errorText();
    if (parser.isSet(help))
        options.help = parser.helpText();
    options.folder = parser.value(folder);
    options.favourites = parser.values(favourites) + parser.positionalArguments();
    options.screenshot = parser.value(screenshot);
    return options;
}
