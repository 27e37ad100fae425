#ifndef LATER_H
#define LATER_H

#include <functional>

class CKTFileManager;

/** Does some work when the pane has ended what it is in the middle of. */
void Later(CKTFileManager& pane, const std::function<void()>& work);

#endif
