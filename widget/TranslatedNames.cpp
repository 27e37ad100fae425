#include "widget/TranslatedNames.h"

#include "models/FileNameRules.h"

#include <QCoreApplication>

namespace TranslatedNames {

namespace {

/** The class in whose context a translator finds these texts. */
constexpr const char* Context = "CKTFileManager";

//: The name of a folder that the user makes. A number follows it at once: "New Folder1".
constexpr const char* NewFolderText = QT_TRANSLATE_NOOP("CKTFileManager", "New Folder");

bool CanBePartOfAName(const QString& text)
{
    return !text.trimmed().isEmpty() && FileNameRules::IsRepresentable(text) &&
           !FileNameRules::HasForbiddenCharacter(text);
}

} // namespace

QString NewFolder()
{
    const QString text = QCoreApplication::translate(Context, NewFolderText);
    return CanBePartOfAName(text) ? text : QString(QLatin1String(NewFolderText));
}

} // namespace TranslatedNames
