// Fills an alias tree, then says its first header in each language that is named on the command line.

#include "Languages.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>

#include <QApplication>
#include <QLocale>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    Languages languages;
    // The user's first language alone: QLocale::system() goes on to their second where the first has no
    // catalogue, and English has none.
    languages.Speak(QLocale(QLocale::system().name()));

    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Music\n"));
    const QStringList names = QApplication::arguments().mid(1);
    for (const QString& name : names) {
        languages.Speak(QLocale(name));
        std::printf("%s %s\n", qPrintable(name),
                    model.headerData(0, Qt::Horizontal).toString().toUtf8().constData());
    }
    return 0;
}
