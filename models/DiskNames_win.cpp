#include "models/DiskNames.h"

#include "models/ExtendedPath_win.h"

#include <QString>

#include <windows.h>

#include <algorithm>
#include <array>

namespace {

/** A device's name is that of the device in every folder, whatever extension follows it. */
bool IsDevice(const QString& name)
{
    static const std::array<QLatin1String, 4> single = {QLatin1String("CON"), QLatin1String("PRN"),
                                                        QLatin1String("AUX"), QLatin1String("NUL")};
    static const std::array<QLatin1String, 2> numbered = {QLatin1String("COM"), QLatin1String("LPT")};
    const QString stem = name.section(QLatin1Char('.'), 0, 0).trimmed().toUpper();
    if (std::find(single.begin(), single.end(), stem) != single.end())
        return true;
    // The raised digits 1, 2 and 3 count as well.
    return stem.size() == 4 && QStringLiteral("123456789\u00b9\u00b2\u00b3").contains(stem.back()) &&
           std::find(numbered.begin(), numbered.end(), stem.left(3)) != numbered.end();
}

bool IsControl(QChar c)
{
    return c.unicode() < ' ';
}

/** The two names that every folder has for itself and for the one above are kept, though they are dots. */
bool EndsInLostDot(const QString& name)
{
    return name.endsWith(QLatin1Char('.')) && name != QLatin1String(".") && name != QLatin1String("..");
}

} // namespace

bool DiskNames::IsKept(const QString& name)
{
    return !EndsInLostDot(name) && !name.endsWith(QLatin1Char(' ')) && !IsDevice(name) &&
           std::none_of(name.cbegin(), name.cend(), IsControl);
}

bool DiskNames::IsTaken(const QString& path)
{
    return GetFileAttributesW(ExtendedPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}
