#include "models/DiskNames.h"

#include <QFileInfo>

bool DiskNames::IsKept(const QString& name)
{
    Q_UNUSED(name)
    return true;
}

bool DiskNames::IsTaken(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}
