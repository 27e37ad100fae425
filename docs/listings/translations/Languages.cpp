#include "Languages.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

/** Beside the program, then where the system keeps those of an installed pane. */
QStringList PaneFolders()
{
    return QStringList(QCoreApplication::applicationDirPath() + QStringLiteral("/translations")) +
           QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                     QStringLiteral("KTFileManager2QU/translations"),
                                     QStandardPaths::LocateDirectory);
}

void Change(QTranslator& translator, const QLocale& language, const QString& name, const QStringList& folders)
{
    QCoreApplication::removeTranslator(&translator);
    for (const QString& folder : folders) {
        if (translator.load(language, name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(&translator);
            return;
        }
    }
}

} // namespace

void Languages::Speak(const QLocale& language)
{
    const QStringList qtFolders(QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    Change(m_qt, language, QStringLiteral("qtbase"), qtFolders);
    Change(m_pane, language, QStringLiteral("KTFileManager2QU"), PaneFolders());
}
