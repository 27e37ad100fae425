#ifndef SYMBOLS_H
#define SYMBOLS_H

#include <QIcon>

/** The icons of the commands. */
namespace Symbols {

/**
 * @param name a freedesktop.org icon name that the table of drawn symbols knows
 * @return the icon of the desktop's theme. Where it has none, and while the program has colours of its own,
 *         for which the theme was not made, it is a line drawing in the colour of the buttons' text, which
 *         follows the palette and is sharp at any size. Arrows point the other way in a layout from right to
 *         left.
 */
QIcon Icon(const char* name);

} // namespace Symbols

#endif
