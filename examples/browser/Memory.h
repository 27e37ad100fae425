#ifndef MEMORY_H
#define MEMORY_H

#include "Options.h"

class BrowserWindow;
class QSettings;

/** What the program remembers from one time to the next. */
namespace Memory {

/** @return @p options with what the command line leaves open as it was last time */
Options Complete(Options options, const QSettings& settings);

/** Keeps the window's place, view, icon size and colours. */
void Keep(const BrowserWindow& window, QSettings* settings);

} // namespace Memory

#endif
