#ifndef COLORSCHEME_H
#define COLORSCHEME_H

/** The colours of the application: the system's own, or dark ones of ours. */
namespace ColorScheme {

/** Gives every widget the dark colours, or takes them away again. */
void SetDark(bool dark);

/** @return whether the dark colours are on */
bool IsDark();

} // namespace ColorScheme

#endif
