#include <KTFileManager2QU/CTitleBarView.h>

CAction::CAction(QObject* parent) : QAction(parent) {}

CAction::~CAction() = default;
