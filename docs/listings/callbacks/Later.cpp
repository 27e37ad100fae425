#include "Later.h"

#include <KTFileManager2QU/CKTFileManager.h>

#include <QTimer>

void Later(CKTFileManager& pane, const std::function<void()>& work)
{
    QTimer::singleShot(0, &pane, work); // dropped when the pane is gone by then
}
