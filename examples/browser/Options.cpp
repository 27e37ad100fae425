#include "Options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <array>

namespace {

/** The options with a value, and whether each is there at all. */
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(Options)

public:
    Reader();

    CommandLine Parse(const QStringList& arguments);

private:
    void Add(const char* name, const QString& description, const QString& valueName);
    QString Value(const char* name) const { return m_parser.value(QLatin1String(name)); }
    IniSection SectionOf(const char* name) const;
    int Choose(const char* name, const QStringList& names);
    void ReadChoices(Options* options);
    void ReadSize(Options* options);
    void ReadFolder(Options* options);

    QCommandLineParser m_parser;
    QString m_error;
};

Reader::Reader()
{
    const QString file = QStringLiteral("FILE");
    const QString section = QStringLiteral("FILE[:SECTION]");
    m_parser.setApplicationDescription(tr("Browses a folder."));
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this help and quit.")});
    Add("folder", tr("The folder to open."), QStringLiteral("FOLDER"));
    Add("select", tr("The name of an item to select in it."), QStringLiteral("NAME"));
    Add("mode", tr("Which panes to show: tree+list, tree, list or alias+list."), QStringLiteral("MODE"));
    Add("view", tr("How to show the files: icons or details."), QStringLiteral("VIEW"));
    Add("icon-size", tr("How large: small, medium, large or huge."), QStringLiteral("SIZE"));
    Add("alias", tr("The table of the alias tree."), file);
    Add("names", tr("An INI file that gives files their names."), section);
    Add("tips", tr("An INI file that gives files their tips."), section);
    Add("language", tr("The language of numbers, dates and dialogs, such as de."), QStringLiteral("CODE"));
    Add("size", tr("The size of the window, such as 1000x640."), QStringLiteral("WIDTHxHEIGHT"));
    m_parser.addOption({QStringLiteral("dark"), tr("Dark colours.")});
    Add("screenshot", tr("Write a picture of the window and quit."), QStringLiteral("PNG"));
    m_parser.addPositionalArgument(QStringLiteral("folder"),
                                   tr("The folder to open; the current one if none is given."),
                                   QStringLiteral("[FOLDER]"));
}

void Reader::Add(const char* name, const QString& description, const QString& valueName)
{
    m_parser.addOption({QLatin1String(name), description, valueName});
}

/** @return whether the colon at @p position stands behind a drive letter, as in C:\names.ini */
bool IsDriveColon(const QString& text, int position)
{
    constexpr int behindLetter = 1;
    if (position != behindLetter || !text.at(0).isLetter())
        return false;
    const QString rest = text.mid(position + 1);
    return rest.isEmpty() || rest.startsWith(QLatin1Char('/')) || rest.startsWith(QLatin1Char('\\'));
}

IniSection Reader::SectionOf(const char* name) const
{
    const QString text = Value(name);
    if (text.isEmpty())
        return {};
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    if (colon < 0 || IsDriveColon(text, colon))
        return {text, QLatin1String("")};
    return {text.left(colon), text.mid(colon + 1)};
}

/** @return the place that the option's text has among @p names; -1 when it is not given or not among them */
int Reader::Choose(const char* name, const QStringList& names)
{
    if (!m_parser.isSet(QLatin1String(name)))
        return -1;
    const int position = names.indexOf(Value(name));
    if (position < 0)
        m_error = tr("--%1 is one of: %2.").arg(QLatin1String(name), names.join(QLatin1String(", ")));
    return position;
}

void Reader::ReadChoices(Options* options)
{
    const QStringList modes = {QStringLiteral("tree+list"), QStringLiteral("tree"), QStringLiteral("list"),
                               QStringLiteral("alias+list")};
    const QStringList views = {QStringLiteral("icons"), QStringLiteral("details")};
    const QStringList sizes = {QStringLiteral("small"), QStringLiteral("medium"), QStringLiteral("large"),
                               QStringLiteral("huge")};
    constexpr std::array<EKTFMIconSize, 4> sizeValues = {FM_ICON_SMALL, FM_ICON_MEDIUM, FM_ICON_LARGE,
                                                         FM_ICON_HUGE};
    options->mode = static_cast<EKTFMMode>(qMax(0, Choose("mode", modes)));
    const int view = Choose("view", views);
    if (view >= 0)
        options->view = static_cast<EKTFMViewMode>(view);
    const int size = Choose("icon-size", sizes);
    if (size >= 0)
        options->iconSize = sizeValues.at(static_cast<std::size_t>(size));
}

void Reader::ReadSize(Options* options)
{
    if (!m_parser.isSet(QStringLiteral("size")))
        return;
    const QStringList sides = Value("size").split(QLatin1Char('x'));
    options->size = QSize(sides.value(0).toInt(), sides.value(1).toInt());
    if (sides.size() != 2 || options->size.isEmpty())
        m_error = tr("--size is a width and a height, such as 1000x640.");
}

void Reader::ReadFolder(Options* options)
{
    QStringList folders = m_parser.positionalArguments();
    if (m_parser.isSet(QStringLiteral("folder")))
        folders.prepend(Value("folder"));
    if (folders.size() > 1)
        m_error = tr("There is more than one folder to open.");
    options->folder = QDir(folders.value(0, QDir::currentPath())).absolutePath();
}

CommandLine Reader::Parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments))
        return {{}, m_parser.errorText(), {}};
    if (m_parser.isSet(QStringLiteral("help")))
        return {{}, {}, m_parser.helpText()};
    Options options;
    ReadChoices(&options);
    ReadSize(&options);
    ReadFolder(&options);
    options.selected = Value("select");
    options.aliasFile = Value("alias");
    options.screenshot = Value("screenshot");
    options.language = Value("language");
    options.dark = m_parser.isSet(QStringLiteral("dark"));
    options.names = SectionOf("names");
    options.tips = SectionOf("tips");
    return {options, m_error, {}};
}

} // namespace

CommandLine ParseCommandLine(const QStringList& arguments)
{
    return Reader().Parse(arguments);
}
