#include "models/AliasTreeLog.h"

Q_LOGGING_CATEGORY(aliasTreeLog, "ktfm.aliastree")
