#include "tests/support/TestPlatform.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <windows.h>

namespace TestPlatform {

bool HasSymbolicLinks()
{
    return false;
}

bool HasPipesInFolders()
{
    return false;
}

bool AllowsAllNames()
{
    return false;
}

bool TellsLetterCase()
{
    return false;
}

bool TakesLocaleFromEnvironment()
{
    return false;
}

bool ReplacesOperatorNewEverywhere()
{
    return false;
}

bool HasIconsOfAnySize()
{
    return QGuiApplication::platformName() != QLatin1String("windows");
}

bool IsWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

QString NameOnDisk(const QString& name)
{
    QString kept = name;
    while (kept.endsWith(QLatin1Char('.')))
        kept.chop(1);
    return kept;
}

QString Absolute(const QString& path)
{
    return QFileInfo(path).absoluteFilePath();
}

} // namespace TestPlatform
