#ifndef OPTIONS_H
#define OPTIONS_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QByteArray>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/** An INI file and the section of it that is used. */
struct IniSection
{
    QString file; ///< null for none
    QString section;
};

/** What the command line asks for. */
struct Options
{
    QString folder;
    QString selected;   ///< the name of the item to select; empty for none
    QString aliasFile;  ///< empty for a table of the user's own folders
    QString screenshot; ///< empty to stay open
    QString language;   ///< such as "de"; empty for the system's
    EKTFMMode mode = FM_MODE_TREE_AND_LIST;
    std::optional<EKTFMViewMode> view;
    std::optional<EKTFMIconSize> iconSize;
    QSize size;          ///< of the window; not valid for the usual one
    QByteArray geometry; ///< of the window as it was last time; empty when it is not known
    bool dark = false;
    IniSection names;
    IniSection tips;
};

/** A command line as it was understood. */
struct CommandLine
{
    Options options;
    QString error; ///< what is wrong with it; empty for nothing
    QString help;  ///< the help text; empty unless it is asked for
};

/** @param arguments the program's name first */
CommandLine ParseCommandLine(const QStringList& arguments);

#endif
