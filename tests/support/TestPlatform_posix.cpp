#include "tests/support/TestPlatform.h"

namespace TestPlatform {

bool HasSymbolicLinks()
{
    return true;
}

bool HasPipesInFolders()
{
    return true;
}

bool AllowsAllNames()
{
    return true;
}

bool TellsLetterCase()
{
    return true;
}

bool TakesLocaleFromEnvironment()
{
    return true;
}

bool ReplacesOperatorNewEverywhere()
{
    return true;
}

bool HasIconsOfAnySize()
{
    return true;
}

bool IsWine()
{
    return false;
}

QString NameOnDisk(const QString& name)
{
    return name;
}

QString Absolute(const QString& path)
{
    return path;
}

} // namespace TestPlatform
