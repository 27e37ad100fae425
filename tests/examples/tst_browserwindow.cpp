#include "examples/browser/ColorScheme.h"
#include "examples/browser/Memory.h"
#include "examples/browser/StatusLine.h"
#include "examples/browser/ViewActions.h"

#include "tests/examples/BrowserFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

#include <QAccessible>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QToolButton>
#include <QTreeView>
#include <QUrl>

Q_DECLARE_METATYPE(EKTFMPart)

/** The browser's keys, menus, status bar and colours. */
class tst_BrowserWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void statusCountsItems();
    void statusCountsTheSelection();
    void statusTellsFreeSpace();
    void longWorkShowsItsProgress();
    void emptyFolderIsSaid();

    void enterOpensAFolder_data();
    void enterOpensAFolder();
    void typedLettersFindAnItem_data();
    void typedLettersFindAnItem();
    void typedLettersFindAFolderInTheTree();
    void f2Renames();
    void f2InTheTreeRenamesTheFolder();
    void deleteAsksFirst();
    void deleteRemovesWhenToldSo();
    void copyAndPasteByKeys();
    void cutAndPasteByKeys();
    void newFolderByKeys();
    void itemCommandsNeedASelection();
    void pasteNeedsUrls();
    void reloadKeepsTheSelection();

    void viewSwitchesKeepTheFocusInTheTree();
    void keysSwitchTheView();
    void keysChangeTheIconSize();
    void nameColumnTakesWhatIsLeft();
    void contextMenusSuitThePane_data();
    void contextMenusSuitThePane();

    void whatTakesFocusHasAName();
    void noButtonIsEmpty();
    void shortcutsAreUnique();
    void darkColoursReachTheNames();
    void windowIsAsItWasLeft();
    void settingsThatMakeNoSenseAreHarmless();
};

namespace {

/** A browser that lists a folder and three files. */
struct FourItems : BrowserFixture
{
    explicit FourItems(const Options& options = Options()) : BrowserFixture(options)
    {
        m_folder.File(QStringLiteral("rooms/kitchen.txt"), "k");
        m_folder.File(QStringLiteral("apple.txt"), QByteArray(1000, 'a'));
        m_folder.File(QStringLiteral("banana.txt"), QByteArray(24, 'b'));
        m_folder.File(QStringLiteral("cherry.txt"), "c");
    }

    bool ShowAll() { return Show(4); }

    void Select(const QString& name) const { Pane()->SetCurrentSelection(m_folder.Path(name), false, false); }

    bool Exists(const QString& name) const { return QFileInfo::exists(m_folder.Path(name)); }
};

/** Presses the button of the next message box that has @p role. */
void AnswerNextQuestion(QMessageBox::ButtonRole role)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, role] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || QApplication::activeWindow() != box)
            return;
        timer->deleteLater();
        const auto buttons = box->buttons();
        for (QAbstractButton* button : buttons)
            if (box->buttonRole(button) == role)
                QTest::mouseClick(button, Qt::LeftButton);
    });
    timer->start(5);
}

/** Opens the context menu at a point of a view. @return the texts of its entries, without mnemonics */
QStringList ContextMenuAt(QAbstractItemView* view, const QPoint& point)
{
    QStringList texts;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&texts] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        const auto actions = menu->actions();
        for (const QAction* action : actions)
            texts.append(action->text().remove(QLatin1Char('&')));
        menu->close();
    });
    timer.start(5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
    QApplication::sendEvent(view->viewport(), &event);
    return texts;
}

QAction* ActionNamed(const BrowserFixture& browser, const QString& text)
{
    const auto actions = browser.m_pWindow->findChildren<QAction*>();
    for (QAction* action : actions)
        if (action->text().remove(QLatin1Char('&')) == text)
            return action;
    qFatal("there is no action %s", qPrintable(text));
}

Options Showing(EKTFMViewMode view)
{
    Options options;
    options.view = view;
    return options;
}

void AddViews()
{
    QTest::addColumn<int>("view");
    QTest::newRow("icons") << int(FM_VIEW_ICON);
    QTest::newRow("details") << int(FM_VIEW_DETAIL);
}

} // namespace

void tst_BrowserWindow::init()
{
    QApplication::clipboard()->clear();
}

void tst_BrowserWindow::statusCountsItems()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    QTRY_COMPARE(browser.Status("count"), QStringLiteral("4 items"));
    browser.m_folder.File(QStringLiteral("date.txt"));
    QTRY_COMPARE(browser.Status("count"), QStringLiteral("5 items"));
    browser.m_pWindow->OpenFolder(browser.m_folder.Path(QStringLiteral("rooms")));
    QTRY_COMPARE(browser.Status("count"), QStringLiteral("1 item"));
}

void tst_BrowserWindow::statusCountsTheSelection()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    QCOMPARE(browser.Status("selection"), QString());
    browser.Select(QStringLiteral("rooms"));
    QTRY_COMPARE(browser.Status("selection"), QStringLiteral("1 selected"));
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    QTRY_COMPARE(browser.Status("selection"),
                 QStringLiteral("4 selected, %1").arg(QLocale().formattedDataSize(1025)));
    browser.Pane()->ClearCurrentSelection();
    QTRY_COMPARE(browser.Status("selection"), QString());
}

void tst_BrowserWindow::statusTellsFreeSpace()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    QTRY_VERIFY(browser.Status("free").endsWith(QLatin1String(" free")));
}

void tst_BrowserWindow::longWorkShowsItsProgress()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    auto* status = browser.m_pWindow->findChild<StatusLine*>();
    const auto* progress = browser.m_pWindow->findChild<QProgressBar*>();
    status->SetProgress(0, 10);
    status->SetProgress(3, 10);
    QVERIFY(!progress->isVisible());
    QTRY_VERIFY(progress->isVisible());
    QCOMPARE(progress->value(), 3);
    status->SetProgress(10, 10);
    QVERIFY(!progress->isVisible());
    // Work that ends at once shows nothing, not even later.
    status->SetProgress(0, 1);
    status->SetProgress(1, 1);
    QVERIFY(!QTest::qWaitFor([progress] { return progress->isVisible(); }, 500));
}

void tst_BrowserWindow::emptyFolderIsSaid()
{
    FourItems browser;
    browser.m_folder.Folder(QStringLiteral("rooms/empty"));
    QVERIFY(browser.ShowAll());
    const auto* hint = browser.m_views.grid->viewport()->findChild<QLabel*>();
    QVERIFY(!hint->isVisible());
    browser.m_pWindow->OpenFolder(browser.m_folder.Path(QStringLiteral("rooms/empty")));
    QTRY_VERIFY(hint->isVisible());
    QVERIFY(!hint->text().isEmpty());
    browser.m_folder.File(QStringLiteral("rooms/empty/file"));
    QTRY_VERIFY(!hint->isVisible());
}

void tst_BrowserWindow::enterOpensAFolder_data()
{
    AddViews();
}

void tst_BrowserWindow::enterOpensAFolder()
{
    QFETCH(int, view);
    FourItems browser(Showing(static_cast<EKTFMViewMode>(view)));
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("rooms"));
    QCOMPARE(QApplication::focusWidget(), browser.m_views.ShownList());
    browser.Press(Qt::Key_Return);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(QStringLiteral("rooms")), 1));
    QCOMPARE(QApplication::focusWidget(), browser.m_views.ShownList());
}

void tst_BrowserWindow::typedLettersFindAnItem_data()
{
    AddViews();
}

void tst_BrowserWindow::typedLettersFindAnItem()
{
    QFETCH(int, view);
    FourItems browser(Showing(static_cast<EKTFMViewMode>(view)));
    QVERIFY(browser.ShowAll());
    browser.Type(QStringLiteral("ch"));
    QCOMPARE(browser.Selected(), QStringList(QStringLiteral("cherry.txt")));
}

void tst_BrowserWindow::typedLettersFindAFolderInTheTree()
{
    FourItems browser;
    browser.m_folder.Folder(QStringLiteral("attic"));
    browser.m_folder.Folder(QStringLiteral("roof"));
    QVERIFY(browser.Show(6));
    const CKTFMTreeModel* model = browser.Pane()->GetTreeModel();
    const QModelIndex root = browser.m_views.tree->rootIndex();
    // The model sorts a little later than it lists.
    QTRY_COMPARE(model->index(1, 0, root).data().toString(), QStringLiteral("roof"));
    QCOMPARE(model->rowCount(root), 3);
    browser.m_views.tree->setFocus();
    browser.Type(QStringLiteral("roo"));
    QCOMPARE(model->fileName(browser.m_views.tree->currentIndex()), QStringLiteral("roof"));
    browser.Type(QStringLiteral("m"));
    QCOMPARE(model->fileName(browser.m_views.tree->currentIndex()), QStringLiteral("rooms"));
}

void tst_BrowserWindow::f2Renames()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("banana.txt"));
    browser.Press(Qt::Key_F2);
    QVERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    browser.Type(QStringLiteral("berry.txt"));
    browser.Press(Qt::Key_Return);
    QTRY_VERIFY(browser.Exists(QStringLiteral("berry.txt")));
    QVERIFY(!browser.Exists(QStringLiteral("banana.txt")));
    QTRY_COMPARE(QApplication::focusWidget(), browser.m_views.grid);
}

void tst_BrowserWindow::f2InTheTreeRenamesTheFolder()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.m_views.tree->setFocus();
    browser.m_views.tree->setCurrentIndex(
        browser.Pane()->GetTreeModel()->index(browser.m_folder.Path(QStringLiteral("rooms"))));
    browser.Press(Qt::Key_F2);
    QVERIFY(browser.m_views.tree->isAncestorOf(QApplication::focusWidget()));
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    browser.Type(QStringLiteral("halls"));
    browser.Press(Qt::Key_Return);
    QTRY_VERIFY(browser.Exists(QStringLiteral("halls")));
    QTRY_COMPARE(QApplication::focusWidget(), browser.m_views.tree);
}

void tst_BrowserWindow::deleteAsksFirst()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("banana.txt"));
    AnswerNextQuestion(QMessageBox::RejectRole);
    browser.Press(Qt::Key_Delete);
    QVERIFY(browser.Exists(QStringLiteral("banana.txt")));
    QCOMPARE(browser.Selected(), QStringList(QStringLiteral("banana.txt")));
}

void tst_BrowserWindow::deleteRemovesWhenToldSo()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_A, Qt::ControlModifier);
    AnswerNextQuestion(QMessageBox::DestructiveRole);
    browser.Press(Qt::Key_Delete);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 0));
    QTRY_COMPARE(browser.Status("count"), QStringLiteral("0 items"));
    QCOMPARE(QDir(browser.m_folder.Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_BrowserWindow::copyAndPasteByKeys()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("apple.txt"));
    browser.Press(Qt::Key_C, Qt::ControlModifier);
    browser.Select(QStringLiteral("rooms"));
    browser.Press(Qt::Key_Return);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(QStringLiteral("rooms")), 1));
    browser.Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(browser.m_folder.Read(QStringLiteral("rooms/apple.txt")), QByteArray(1000, 'a'));
    QVERIFY(browser.Exists(QStringLiteral("apple.txt")));
}

void tst_BrowserWindow::cutAndPasteByKeys()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("apple.txt"));
    browser.Press(Qt::Key_X, Qt::ControlModifier);
    browser.Select(QStringLiteral("rooms"));
    browser.Press(Qt::Key_Return);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(QStringLiteral("rooms")), 1));
    browser.Press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(browser.m_folder.Read(QStringLiteral("rooms/apple.txt")), QByteArray(1000, 'a'));
    QVERIFY(!browser.Exists(QStringLiteral("apple.txt")));
}

void tst_BrowserWindow::newFolderByKeys()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_VERIFY(browser.Lists(browser.m_folder.Path(), 5));
    QTRY_VERIFY(qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    browser.Press(Qt::Key_Escape);
    QTRY_COMPARE(QApplication::focusWidget(), browser.m_views.grid);
}

void tst_BrowserWindow::itemCommandsNeedASelection()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    for (const char* text : {"Cut", "Copy", "Rename", "Delete", "Open"})
        QVERIFY2(!ActionNamed(browser, QLatin1String(text))->isEnabled(), text);
    browser.Select(QStringLiteral("apple.txt"));
    for (const char* text : {"Cut", "Copy", "Rename", "Delete", "Open"})
        QTRY_VERIFY2(ActionNamed(browser, QLatin1String(text))->isEnabled(), text);
    browser.Pane()->ClearCurrentSelection();
    browser.m_views.tree->setFocus();
    QVERIFY(ActionNamed(browser, QStringLiteral("Rename"))->isEnabled());
    QVERIFY(!ActionNamed(browser, QStringLiteral("Copy"))->isEnabled());
    QVERIFY(!ActionNamed(browser, QStringLiteral("Delete"))->isEnabled());
}

void tst_BrowserWindow::pasteNeedsUrls()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    const QAction* paste = ActionNamed(browser, QStringLiteral("Paste"));
    QApplication::clipboard()->setText(QStringLiteral("text"));
    QTRY_VERIFY(!paste->isEnabled());
    auto* data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(browser.m_folder.Path(QStringLiteral("apple.txt")))});
    QApplication::clipboard()->setMimeData(data);
    QTRY_VERIFY(paste->isEnabled());
}

void tst_BrowserWindow::reloadKeepsTheSelection()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("banana.txt"));
    QSignalSpy loaded(browser.Pane()->GetListModel(), &QFileSystemModel::directoryLoaded);
    browser.Press(Qt::Key_F5);
    const auto listed = [&loaded, &browser] {
        return std::any_of(loaded.begin(), loaded.end(), [&browser](const QList<QVariant>& call) {
            return call.constFirst().toString() == browser.m_folder.Path();
        });
    };
    QTRY_VERIFY(listed());
    QVERIFY(browser.Lists(browser.m_folder.Path(), 4));
    QCOMPARE(browser.Selected(), QStringList(QStringLiteral("banana.txt")));
    QCOMPARE(QApplication::focusWidget(), browser.m_views.grid);
}

void tst_BrowserWindow::viewSwitchesKeepTheFocusInTheTree()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.m_views.tree->setFocus();
    browser.Press(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(browser.m_views.details->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.tree);
    browser.Press(Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), browser.m_views.tree);
}

void tst_BrowserWindow::keysSwitchTheView()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Select(QStringLiteral("banana.txt"));
    browser.Press(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(browser.m_views.details->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.details);
    QCOMPARE(browser.Selected(), QStringList(QStringLiteral("banana.txt")));
    browser.Press(Qt::Key_1, Qt::ControlModifier);
    QVERIFY(browser.m_views.grid->isVisible());
    QCOMPARE(QApplication::focusWidget(), browser.m_views.grid);
    QCOMPARE(browser.Selected(), QStringList(QStringLiteral("banana.txt")));
}

void tst_BrowserWindow::keysChangeTheIconSize()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    QCOMPARE(browser.Pane()->GetListIconSize(), QSize(60, 60));
    browser.Press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(browser.Pane()->GetListIconSize(), QSize(100, 100));
    browser.Press(Qt::Key_Plus, Qt::ControlModifier);
    browser.Press(Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(browser.Pane()->GetListIconSize(), QSize(125, 125));
    for (int i = 0; i < 5; ++i)
        browser.Press(Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(browser.Pane()->GetListIconSize(), QSize(40, 40));
}

void tst_BrowserWindow::nameColumnTakesWhatIsLeft()
{
    FourItems browser(Showing(FM_VIEW_DETAIL));
    QVERIFY(browser.ShowAll());
    const QHeaderView* header = browser.m_views.details->header();
    QTRY_COMPARE(header->length(), header->width());
    const int name = header->sectionSize(0);
    browser.m_pWindow->resize(browser.m_pWindow->width() + 200, browser.m_pWindow->height());
    QTRY_VERIFY(header->sectionSize(0) > name);
    QCOMPARE(header->length(), header->width());
    // A narrow window scrolls before names can no longer be told apart.
    browser.m_pWindow->resize(500, browser.m_pWindow->height());
    QTRY_VERIFY(header->length() > header->width());
    QVERIFY(header->sectionSize(0) >= 10 * header->fontMetrics().averageCharWidth());
}

void tst_BrowserWindow::contextMenusSuitThePane_data()
{
    QTest::addColumn<bool>("inTree");
    QTest::addColumn<bool>("onItem");
    QTest::addColumn<QString>("texts");
    QTest::newRow("file") << false << true << QStringLiteral("Open Cut Copy Rename Delete");
    QTest::newRow("beside files")
        << false << false
        << QStringLiteral("New folder|Paste|Select all|Reload").replace(QLatin1Char('|'), QLatin1Char(' '));
    QTest::newRow("folder of the tree") << true << true << QStringLiteral("Rename");
    QTest::newRow("beside folders") << true << false << QString();
}

void tst_BrowserWindow::contextMenusSuitThePane()
{
    QFETCH(bool, inTree);
    QFETCH(bool, onItem);
    FourItems browser;
    QVERIFY(browser.ShowAll());
    QTRY_COMPARE(browser.Pane()->GetTreeModel()->rowCount(browser.m_views.tree->rootIndex()), 1);
    QAbstractItemView* view = browser.m_views.grid;
    if (inTree)
        view = browser.m_views.tree;
    const QRect item = view->visualRect(view->model()->index(0, 0, view->rootIndex()));
    const QPoint point = onItem ? item.center() : QPoint(view->width() / 2, view->height() - 20);
    QTEST(ContextMenuAt(view, point).join(QLatin1Char(' ')), "texts");
}

void tst_BrowserWindow::whatTakesFocusHasAName()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    browser.Press(Qt::Key_L, Qt::ControlModifier);
    const auto widgets = browser.m_pWindow->findChildren<QWidget*>();
    int named = 0;
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                 widget->metaObject()->className());
        ++named;
    }
    QVERIFY(named >= 3);
}

void tst_BrowserWindow::noButtonIsEmpty()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    const auto buttons = browser.m_pWindow->findChildren<QToolButton*>();
    int seen = 0;
    for (const QToolButton* button : buttons) {
        if (!button->isVisible() || button->objectName().startsWith(QLatin1String("qt_")))
            continue;
        QVERIFY2(!button->icon().pixmap(20).isNull() || !button->text().isEmpty(),
                 qPrintable(button->toolTip()));
        QVERIFY(!button->toolTip().isEmpty());
        ++seen;
    }
    QVERIFY(seen >= 15);
}

void tst_BrowserWindow::shortcutsAreUnique()
{
    FourItems browser;
    QSet<QKeySequence> known;
    const auto actions = browser.m_pWindow->findChildren<QAction*>();
    for (const QAction* action : actions) {
        const auto keys = action->shortcuts();
        for (const QKeySequence& key : keys) {
            QVERIFY2(!known.contains(key), qPrintable(key.toString()));
            known.insert(key);
        }
    }
    QVERIFY(known.contains(QKeySequence(Qt::Key_F2)));
}

void tst_BrowserWindow::darkColoursReachTheNames()
{
    FourItems browser;
    QVERIFY(browser.ShowAll());
    const auto corner = [&browser] {
        const QImage image = browser.m_views.grid->viewport()->grab().toImage();
        return image.pixelColor(image.width() - 3, image.height() - 3).lightness();
    };
    QVERIFY(corner() > 200);
    QAction* dark = ActionNamed(browser, QStringLiteral("Dark"));
    dark->trigger();
    QVERIFY(ColorScheme::IsDark());
    QTRY_VERIFY(corner() < 60);
    // Names are lighter than their ground, by a contrast that reads well.
    const QImage image = browser.m_views.grid->viewport()->grab().toImage();
    int lightest = 0;
    const QRect item = browser.m_views.grid->visualRect(
        browser.m_views.grid->model()->index(0, 0, browser.m_views.grid->rootIndex()));
    for (int y = item.top() + 70; y < item.bottom(); ++y)
        for (int x = item.left(); x < item.right(); ++x)
            lightest = qMax(lightest, image.pixelColor(x, y).lightness());
    QVERIFY(lightest > 180);
    dark->trigger();
    QTRY_VERIFY(corner() > 200);
}

void tst_BrowserWindow::windowIsAsItWasLeft()
{
    const TestFolder folder;
    QSettings settings(folder.Path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    {
        FourItems browser;
        QVERIFY(browser.ShowAll());
        browser.m_pWindow->resize(800, 500);
        browser.Press(Qt::Key_2, Qt::ControlModifier);
        browser.Press(Qt::Key_Plus, Qt::ControlModifier);
        Memory::Keep(*browser.m_pWindow, &settings);
    }
    const Options options = Memory::Complete(Options(), settings);
    QCOMPARE(options.view.value_or(FM_VIEW_ICON), FM_VIEW_DETAIL);
    QCOMPARE(options.iconSize.value_or(FM_ICON_MEDIUM), FM_ICON_LARGE);
    QVERIFY(!options.dark);
    const BrowserFixture again(options);
    QCOMPARE(again.m_pWindow->size(), QSize(800, 500));
    QCOMPARE(again.m_pWindow->Views().Mode(), FM_VIEW_DETAIL);
    // What the command line says is stronger.
    Options given;
    given.view = FM_VIEW_ICON;
    QCOMPARE(Memory::Complete(given, settings).view.value_or(FM_VIEW_DETAIL), FM_VIEW_ICON);
}

void tst_BrowserWindow::settingsThatMakeNoSenseAreHarmless()
{
    const TestFolder folder;
    QSettings settings(folder.Path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("view/iconSize"), 77);
    settings.setValue(QStringLiteral("window/geometry"), QByteArray("nonsense"));
    const Options options = Memory::Complete(Options(), settings);
    QCOMPARE(options.iconSize.value_or(FM_ICON_SMALL), FM_ICON_MEDIUM);
    const BrowserFixture browser(options);
    QCOMPARE(browser.m_pWindow->size(), QSize(1000, 640));
}

KTFM_TEST_MAIN(tst_BrowserWindow)
#include "tst_browserwindow.moc"
