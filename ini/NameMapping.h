#ifndef NAMEMAPPING_H
#define NAMEMAPPING_H

#include <QString>

namespace KT {
class CProfile;
}

/**
 * @file NameMapping.h
 * @brief Looking up shown names and tips in mapping files; shared by every model that maps names.
 */
namespace NameMapping {

/**
 * Gives a model's profile a mapping file.
 *
 * @param path the file; its contents are read only when it differs from @p keptPath. That it is missing or
 *        cannot be read is not reported: every lookup then misses.
 * @param keptPath the path that the profile was loaded from
 * @return false for a null path, which changes nothing
 */
bool SetFile(KT::CProfile& profile, QString& keptPath, const QString& path);

/** @return whether the profile has @p key in @p section; @p text then receives its value */
bool Find(const KT::CProfile& profile, const QString& section, const QString& key, QString& text);

/** @return the profile's text for @p name in @p section, or @p name itself when there is none */
QString TextOrName(const KT::CProfile& profile, const QString& section, const QString& name);

/** @return @p name before its last dot; all of it when it has none */
QString WithoutExtension(const QString& name);

} // namespace NameMapping

#endif
