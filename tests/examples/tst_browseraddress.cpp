#include "examples/browser/AddressField.h"
#include "examples/browser/LocationBar.h"

#include "tests/examples/BrowserFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QCompleter>
#include <QLabel>
#include <QListView>
#include <QScrollArea>
#include <QStatusBar>
#include <QTreeView>

/** Where the browser is, and how the user goes elsewhere: address field, breadcrumbs, history. */
class tst_BrowserAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysOpenTheField_data();
    void keysOpenTheField();
    void enterGoesThere();
    void escapeGivesUp();
    void otherFocusGivesUp();
    void wrongPathIsSaid();
    void fileIsSelectedInItsFolder();
    void presentFolderEndsTheQuestion();
    void commandsLeaveTheFieldAlone();
    void foldersAreCompleted();
    void linkedFolderIsShownAsItsTarget();
    void hiddenFolderIsSaid();

    void breadcrumbsFollow();
    void breadcrumbGoesThere();
    void pressBesideTheBreadcrumbsOpensTheField();
    void longTrailLeavesTheWindowAsItIs();

    void upSelectsTheFolderThatWasLeft_data();
    void upSelectsTheFolderThatWasLeft();
    void historyGoesBackAndForward();
    void treeShowsWhereTheListIs();
    void treeReachesBeyondTheHomeFolder();
};

namespace {

AddressField* Field(const BrowserFixture& browser)
{
    return browser.m_pWindow->findChild<AddressField*>();
}

CTitleBarView* Trail(const BrowserFixture& browser)
{
    return browser.m_pWindow->findChild<CTitleBarView*>();
}

/** A browser that lists two folders and a file. */
struct TwoFolders : BrowserFixture
{
    TwoFolders()
    {
        m_folder.Folder(QStringLiteral("alpha/inner"));
        m_folder.Folder(QStringLiteral("beta"));
        m_folder.File(QStringLiteral("letter.txt"), "hello");
    }

    bool ShowAll() { return Show(3); }

    void Ask(const QString& text)
    {
        Press(Qt::Key_L, Qt::ControlModifier);
        Type(text);
        Press(Qt::Key_Return);
    }

    QString Alpha() const { return m_folder.Path(QStringLiteral("alpha")); }
};

} // namespace

void tst_BrowserAddress::keysOpenTheField_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    QTest::newRow("Ctrl+L") << int(Qt::Key_L) << int(Qt::ControlModifier);
    QTest::newRow("Alt+D") << int(Qt::Key_D) << int(Qt::AltModifier);
}

void tst_BrowserAddress::keysOpenTheField()
{
    QFETCH(int, key);
    QFETCH(int, modifier);
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    QVERIFY(!Field(browser)->isVisible());
    browser.Press(key, Qt::KeyboardModifiers(modifier));
    QVERIFY(Field(browser)->isVisible());
    QCOMPARE(QApplication::focusWidget(), Field(browser));
    QCOMPARE(Field(browser)->text(), QDir::toNativeSeparators(browser.m_folder.Path()));
    QCOMPARE(Field(browser)->selectedText(), Field(browser)->text());
}

void tst_BrowserAddress::enterGoesThere()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Ask(browser.Alpha());
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    QVERIFY(!Field(browser)->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.grid);
}

void tst_BrowserAddress::escapeGivesUp()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_L, Qt::ControlModifier);
    browser.Type(QStringLiteral("elsewhere"));
    // The first may go to the list of completions.
    if (Field(browser)->completer()->popup()->isVisible())
        QTest::keyClick(Field(browser)->completer()->popup(), Qt::Key_Escape);
    browser.Press(Qt::Key_Escape);
    QVERIFY(!Field(browser)->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.grid);
    QVERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::otherFocusGivesUp()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_L, Qt::ControlModifier);
    browser.m_views.tree->setFocus(Qt::MouseFocusReason);
    QVERIFY(!Field(browser)->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.tree);
}

void tst_BrowserAddress::wrongPathIsSaid()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Ask(QStringLiteral("/no/such/folder"));
    QVERIFY(browser.m_pWindow->statusBar()->currentMessage().contains(QLatin1String("/no/such/folder")));
    QVERIFY(Field(browser)->isVisible());
    QCOMPARE(Field(browser)->text(), QStringLiteral("/no/such/folder"));
    QVERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::fileIsSelectedInItsFolder()
{
    TwoFolders browser;
    browser.m_folder.File(QStringLiteral("alpha/note.txt"));
    QVERIFY(browser.ShowAll());
    browser.Ask(QStringLiteral("alpha/note.txt"));
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 2));
    QTRY_COMPARE(browser.Selected(), QStringList(QStringLiteral("note.txt")));
}

void tst_BrowserAddress::presentFolderEndsTheQuestion()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Ask(browser.m_folder.Path());
    QVERIFY(!Field(browser)->isVisible());
    QVERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::commandsLeaveTheFieldAlone()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(browser.Selected().size(), 3);
    browser.Press(Qt::Key_L, Qt::ControlModifier);
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    browser.Press(Qt::Key_Delete);
    QCOMPARE(Field(browser)->text(), QString());
    browser.Type(QStringLiteral("ab"));
    browser.Press(Qt::Key_Backspace);
    QCOMPARE(Field(browser)->text(), QStringLiteral("a"));
    QVERIFY(Field(browser)->isVisible());
    QVERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::foldersAreCompleted()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_L, Qt::ControlModifier);
    QCompleter* completer = Field(browser)->completer();
    Field(browser)->clear();
    browser.Type(QDir::toNativeSeparators(browser.m_folder.Path() + QStringLiteral("/al")));
    QTRY_COMPARE(completer->completionCount(), 1);
    QCOMPARE(completer->currentCompletion(), QDir::toNativeSeparators(browser.Alpha()));
}

void tst_BrowserAddress::linkedFolderIsShownAsItsTarget()
{
    TwoFolders browser;
    browser.m_folder.Link(browser.Alpha(), QStringLiteral("link"));
    QVERIFY(browser.Show(4));
    browser.Ask(QStringLiteral("link"));
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    QVERIFY(!Field(browser)->isVisible());
}

void tst_BrowserAddress::hiddenFolderIsSaid()
{
    TwoFolders browser;
    browser.m_folder.File(QStringLiteral(".hidden/one"));
    QVERIFY(browser.ShowAll());
    browser.Ask(QStringLiteral(".hidden"));
    QVERIFY(browser.m_pWindow->statusBar()->currentMessage().contains(QLatin1String(".hidden")));
    QVERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::breadcrumbsFollow()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    const QString name = QDir(browser.m_folder.Path()).dirName();
    QCOMPARE(Trail(browser)->GetToolButton(0)->text(), name);
    browser.m_pWindow->OpenFolder(browser.Alpha());
    QCOMPARE(Trail(browser)->GetToolButton(0)->text(), QStringLiteral("alpha"));
    QCOMPARE(Trail(browser)->GetToolButton(1)->text(), name);
}

void tst_BrowserAddress::breadcrumbGoesThere()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.m_pWindow->OpenFolder(browser.Alpha());
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    QTRY_VERIFY(Trail(browser)->GetToolButton(1)->isVisible());
    QTest::mouseClick(Trail(browser)->GetToolButton(1), Qt::LeftButton);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

void tst_BrowserAddress::pressBesideTheBreadcrumbsOpensTheField()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    const QPoint beside(Trail(browser)->width() - 5, Trail(browser)->height() / 2);
    QTest::mouseClick(Trail(browser), Qt::LeftButton, Qt::NoModifier, beside);
    QVERIFY(Field(browser)->isVisible());
}

void tst_BrowserAddress::longTrailLeavesTheWindowAsItIs()
{
    TwoFolders browser;
    const QString deep =
        browser.m_folder.Folder(QStringLiteral("alpha/%1/%1/end").arg(QString(200, QLatin1Char('n'))));
    QVERIFY(browser.ShowAll());
    const QSize size = browser.m_pWindow->size();
    browser.m_pWindow->OpenFolder(deep);
    QTRY_VERIFY(browser.Lists(deep, 0));
    const QScrollArea* area = browser.m_pWindow->findChild<LocationBar*>()->findChild<QScrollArea*>();
    QTRY_VERIFY(Trail(browser)->width() > area->width());
    QCOMPARE(browser.m_pWindow->size(), size);
    // The current folder is in sight.
    const QWidget* current = Trail(browser)->GetToolButton(0);
    QTRY_VERIFY(area->viewport()->rect().contains(
        QRect(current->mapTo(area->viewport(), QPoint(0, 0)), current->size())));
}

void tst_BrowserAddress::upSelectsTheFolderThatWasLeft_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    QTest::newRow("Alt+Up") << int(Qt::Key_Up) << int(Qt::AltModifier);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << int(Qt::NoModifier);
}

void tst_BrowserAddress::upSelectsTheFolderThatWasLeft()
{
    QFETCH(int, key);
    QFETCH(int, modifier);
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.m_pWindow->OpenFolder(browser.Alpha());
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    browser.Press(key, Qt::KeyboardModifiers(modifier));
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 3));
    QTRY_COMPARE(browser.Selected(), QStringList(QStringLiteral("alpha")));
}

void tst_BrowserAddress::historyGoesBackAndForward()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    browser.m_pWindow->OpenFolder(browser.Alpha());
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    browser.Press(Qt::Key_Left, Qt::AltModifier);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 3));
    QTRY_COMPARE(browser.Selected(), QStringList(QStringLiteral("alpha")));
    browser.Press(Qt::Key_Right, Qt::AltModifier);
    QTRY_VERIFY(browser.Lists(browser.Alpha(), 1));
    // Nothing is ahead of it.
    browser.Press(Qt::Key_Right, Qt::AltModifier);
    QVERIFY(browser.Lists(browser.Alpha(), 1));
}

void tst_BrowserAddress::treeShowsWhereTheListIs()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    const QString inner = browser.m_folder.Path(QStringLiteral("alpha/inner"));
    browser.m_pWindow->OpenFolder(inner);
    QTRY_VERIFY(browser.Lists(inner, 0));
    const CKTFMTreeModel* model = browser.Pane()->GetTreeModel();
    QCOMPARE(model->filePath(browser.m_views.tree->currentIndex()), inner);
    QCOMPARE(model->filePath(browser.m_views.tree->rootIndex()), browser.m_folder.Path());
    QTRY_VERIFY(browser.m_views.tree->viewport()->rect().intersects(
        browser.m_views.tree->visualRect(browser.m_views.tree->currentIndex())));
}

void tst_BrowserAddress::treeReachesBeyondTheHomeFolder()
{
    TwoFolders browser;
    QVERIFY(browser.ShowAll());
    const TestFolder elsewhere;
    elsewhere.File(QStringLiteral("one"));
    browser.m_pWindow->OpenFolder(elsewhere.Path());
    QTRY_VERIFY(browser.Lists(elsewhere.Path(), 1));
    const CKTFMTreeModel* model = browser.Pane()->GetTreeModel();
    QCOMPARE(model->filePath(browser.m_views.tree->rootIndex()), QDir::rootPath());
    QCOMPARE(model->filePath(browser.m_views.tree->currentIndex()), elsewhere.Path());
    // The top of the disk was passed through only.
    browser.Press(Qt::Key_Left, Qt::AltModifier);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 3));
}

KTFM_TEST_MAIN(tst_BrowserAddress)
#include "tst_browseraddress.moc"
