#include "tests/examples/BrowserFixture.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QtTest>

BrowserFixture::BrowserFixture(const Options& options)
    : m_pWindow(std::make_unique<BrowserWindow>(options)),
      m_views(*m_pWindow->Pane()),
      m_home(qgetenv("HOME"))
{
    qputenv("HOME", m_folder.Path().toUtf8());
}

BrowserFixture::~BrowserFixture()
{
    m_pWindow.reset();
    qputenv("HOME", m_home);
}

bool BrowserFixture::Show(int count)
{
    m_pWindow->show();
    m_pWindow->OpenFolder(m_folder.Path());
    m_pWindow->activateWindow();
    return QTest::qWaitForWindowActive(m_pWindow.get()) &&
           QTest::qWaitFor([this, count] { return Lists(m_folder.Path(), count); });
}

bool BrowserFixture::Lists(const QString& path, int count) const
{
    const QModelIndex root = m_views.grid->rootIndex();
    return Pane()->GetListModel()->rootPath() == path && m_views.grid->model()->rowCount(root) == count;
}

QString BrowserFixture::Status(const char* label) const
{
    return m_pWindow->findChild<QLabel*>(QLatin1String(label))->text();
}

void BrowserFixture::Press(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
}

void BrowserFixture::Type(const QString& text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

QStringList BrowserFixture::Selected() const
{
    QStringList names;
    const QStringList paths = Pane()->GetCurSelectedFileList(true);
    for (const QString& path : paths)
        names.append(QFileInfo(path).fileName());
    names.sort();
    return names;
}

CKTFileManager* BrowserFixture::Pane() const
{
    return m_pWindow->Pane();
}
