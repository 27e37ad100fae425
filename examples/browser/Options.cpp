#include "Options.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

namespace {

QString Text(const char* text)
{
    return QApplication::translate("Options", text);
}

/** The part behind the last colon is the section, unless the colon belongs to a drive letter. */
IniSection SplitSection(const QString& text)
{
    constexpr int afterDrive = 1;
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon <= afterDrive)
        return {text, QLatin1String("")};
    return {text.left(colon), text.mid(colon + 1)};
}

EKTFMMode ModeNamed(const QString& name)
{
    static const QStringList names = {QStringLiteral("tree+list"), QStringLiteral("tree"),
                                      QStringLiteral("list"), QStringLiteral("alias+list")};
    return static_cast<EKTFMMode>(qMax(0, names.indexOf(name)));
}

} // namespace

Options ReadOptions(const QCoreApplication& app)
{
    const QCommandLineOption mode(QStringLiteral("mode"),
                                  Text("Which panes to show: tree+list, tree, list or alias+list."),
                                  QStringLiteral("MODE"), QStringLiteral("tree+list"));
    const QCommandLineOption alias(QStringLiteral("alias"), Text("The table of the alias tree."),
                                   QStringLiteral("FILE"));
    const QCommandLineOption names(QStringLiteral("names"), Text("An INI file that gives files their names."),
                                   QStringLiteral("FILE[:SECTION]"));
    const QCommandLineOption tips(QStringLiteral("tips"), Text("An INI file that gives files their tips."),
                                  QStringLiteral("FILE[:SECTION]"));
    const QCommandLineOption screenshot(
        QStringLiteral("screenshot"), Text("Write a picture of the window and quit."), QStringLiteral("PNG"));
    QCommandLineParser parser;
    parser.setApplicationDescription(Text("Browses a folder."));
    parser.addHelpOption();
    parser.addOptions({mode, alias, names, tips, screenshot});
    parser.addPositionalArgument(QStringLiteral("folder"),
                                 Text("The folder to open; the current one if none is given."));
    parser.process(app);

    Options options;
    options.folder = parser.positionalArguments().value(0, QDir::currentPath());
    options.mode = ModeNamed(parser.value(mode));
    options.aliasFile = parser.value(alias);
    options.screenshot = parser.value(screenshot);
    if (parser.isSet(names))
        options.names = SplitSection(parser.value(names));
    if (parser.isSet(tips))
        options.tips = SplitSection(parser.value(tips));
    return options;
}
