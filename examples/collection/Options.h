#ifndef OPTIONS_H
#define OPTIONS_H

#include <QString>
#include <QStringList>

/** What the command line says. */
struct Options
{
    QString folder;         ///< empty for the folder that the program knows
    QStringList favourites; ///< null items are never in it; empty for those of the last time
    QString screenshot;     ///< empty to stay open
    QString error;          ///< what is wrong with the command line; empty for nothing
    QString help;           ///< the text to show instead of the window; empty when it is not asked for
};

/** Reads a command line; the first of @p arguments is the program's name. */
Options ReadOptions(const QStringList& arguments);

#endif
