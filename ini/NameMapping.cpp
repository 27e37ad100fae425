#include "ini/NameMapping.h"

#include <KTFileManager2QU/CProfile.h>

namespace NameMapping {

bool SetFile(KT::CProfile& profile, QString& keptPath, const QString& path)
{
    if (path.isNull())
        return false;
    if (path != keptPath) {
        keptPath = path;
        // A profile that finds no file keeps what it had; the names of the former file must not stay.
        profile.Load(path.toStdWString(), false);
        profile.Load(path.toStdWString(), true);
    }
    return true;
}

bool Find(const KT::CProfile& profile, const QString& section, const QString& key, QString& text)
{
    std::wstring value;
    if (profile.GetValue(value, section.toStdWString(), key.toStdWString()).code != KT::ResultDone)
        return false;
    text = QString::fromStdWString(value);
    return true;
}

QString TextOrName(const KT::CProfile& profile, const QString& section, const QString& name)
{
    QString text;
    return Find(profile, section, name, text) ? text : name;
}

QString WithoutExtension(const QString& name)
{
    return name.left(name.lastIndexOf(QLatin1Char('.')));
}

} // namespace NameMapping
