#include "widget/FileAttributes.h"

#include <QString>

namespace FileAttributes {

void Copy(const QString& source, const QString& target)
{
    Q_UNUSED(source)
    Q_UNUSED(target)
}

bool RemoveReadOnly(const QString& path)
{
    // What may be removed depends on its folder alone.
    Q_UNUSED(path)
    return false;
}

} // namespace FileAttributes
