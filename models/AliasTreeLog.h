#ifndef ALIASTREELOG_H
#define ALIASTREELOG_H

#include <QLoggingCategory>

/** The folders of the alias tree items whose labels are shown: "ktfm.aliastree", on unless a host silences
 * it. */
Q_DECLARE_LOGGING_CATEGORY(aliasTreeLog)

#endif
