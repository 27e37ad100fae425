#include "models/FileNameRules.h"

#include <QDir>

#include <algorithm>

namespace FileNameRules {

bool HasForbiddenCharacter(const QString& name)
{
    static const QString forbidden = QStringLiteral("\\/:*?|\"<>");
    return std::any_of(name.cbegin(), name.cend(), [](QChar c) { return forbidden.contains(c); });
}

bool HasSeparator(const QString& name)
{
    return name.contains(QLatin1Char('/')) || name.contains(QDir::separator());
}

bool IsRepresentable(const QString& name)
{
    return name.isValidUtf16() && !name.contains(QChar(QChar::Null));
}

} // namespace FileNameRules
