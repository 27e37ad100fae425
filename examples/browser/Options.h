#ifndef OPTIONS_H
#define OPTIONS_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QString>

class QCoreApplication;

/** An INI file and the section of it that is used. */
struct IniSection
{
    QString file; ///< null for none
    QString section;
};

/** What the command line says. */
struct Options
{
    QString folder;
    QString aliasFile;  ///< empty for the table that ships with the program
    QString screenshot; ///< empty to stay open
    EKTFMMode mode = FM_MODE_TREE_AND_LIST;
    IniSection names;
    IniSection tips;
};

/** Reads the command line; prints help or what is wrong with it and ends the program where that is asked for.
 */
Options ReadOptions(const QCoreApplication& app);

#endif
