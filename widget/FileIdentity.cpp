#include "widget/FileIdentity.h"

bool FileIdentity::AreSame(const QString& left, const QString& right)
{
    const std::optional<FileIdentity> identity = Of(left);
    return identity && identity == Of(right);
}
