#include "tests/support/TestFolder.h"

#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QTimer>

namespace {

/** How long a program may take to show a folder, in milliseconds; far more than it needs. */
constexpr int Patience = 60000;

/**
 * Looks at a program that shows the user's home folder in a pane and knows nothing of being watched: gives it
 * a home folder, and ends it with success once the pane shows what is in there.
 */
class HomeWatch : public QObject
{
public:
    explicit HomeWatch(QObject* parent) : QObject(parent)
    {
        m_home.File(QStringLiteral("letter.txt"));
        m_home.Folder(QStringLiteral("pictures"));
        for (const char* variable : {"HOME", "USERPROFILE"})
            qputenv(variable, m_home.Path().toLocal8Bit());
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, &HomeWatch::Look);
        timer->start(10);
    }

private:
    void Look() const
    {
        if (ShowsHome())
            QCoreApplication::exit(0);
        else if (m_deadline.hasExpired())
            QCoreApplication::exit(1);
    }

    bool ShowsHome() const
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (const QWidget* widget : widgets) {
            const auto* pane = qobject_cast<const CKTFileManager*>(widget);
            if (pane && pane->isVisible())
                return Lists(pane->GetListModel(), 2) && Lists(pane->GetTreeModel(), 1);
        }
        return false;
    }

    bool Lists(const QFileSystemModel* model, int count) const
    {
        return model->rootPath() == m_home.Path() && model->rowCount(model->index(m_home.Path())) == count;
    }

    const TestFolder m_home;
    const QDeadlineTimer m_deadline{Patience};
};

void Watch()
{
    new HomeWatch(qApp);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(Watch)
