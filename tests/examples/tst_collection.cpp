#include "CollectionWindow.h"
#include "ContentPane.h"
#include "FavouritesView.h"
#include "FolderPane.h"
#include "Options.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeView.h>

#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QProcess>
#include <QSettings>
#include <QSignalSpy>
#include <QThread>
#include <QVariantAnimation>

#include <algorithm>

namespace {

/** The offscreen platform has nobody to tell of menus, and warns of it. */
void ExpectFromOffscreen(std::initializer_list<const char*> operations)
{
    if (QGuiApplication::platformName() != QStringLiteral("offscreen"))
        return;
    for (const char* operation : operations)
        QTest::ignoreMessage(QtWarningMsg,
                             (QByteArray("This plugin does not support ") + operation).constData());
}

/** A window on a folder of its own. */
class Host
{
public:
    Host() : m_typed(&SearchField(), &QLineEdit::textChanged) {}

    ~Host()
    {
        // A clear button that dies while it fades leaks its animation, which is shorter than this one.
        QVariantAnimation fade;
        fade.setStartValue(0.0);
        fade.setEndValue(1.0);
        if (!m_typed.isEmpty())
            fade.start();
        QTRY_COMPARE(fade.state(), QAbstractAnimation::Stopped);
    }

    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    /** Opens the folder and waits until @p count items are listed. */
    void Open(int count)
    {
        QVERIFY(window.OpenCollection(folder.Path()));
        // The offscreen platform warns each time that a window has another smallest size.
        window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(Names().size(), count);
    }

    ThumbnailView& Thumbnails() { return *Pane().findChild<ThumbnailView*>(); }
    CKTFMTreeView& Table() { return *Pane().findChild<CKTFMTreeView*>(); }
    QLineEdit& SearchField() { return *Pane().findChild<QLineEdit*>(); }
    QComboBox& OrderChoice() { return *Pane().findChild<QComboBox*>(); }
    ContentPane& Pane() { return *window.findChild<ContentPane*>(); }
    FolderPane& Folders() { return *window.findChild<FolderPane*>(); }
    FavouritesView& Strip() { return *window.findChild<FavouritesView*>(); }

    QStringList Names() { return NamesIn(Thumbnails()); }
    QStringList FavouriteNames() { return NamesIn(Strip()); }

    QModelIndex Item(const QString& name)
    {
        return Thumbnails().model()->index(Names().indexOf(name), 0, Thumbnails().rootIndex());
    }

    static void Click(QAbstractItemView& view, const QModelIndex& index)
    {
        view.scrollTo(index);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier, view.visualRect(index).center());
    }

    TestFolder folder;
    CollectionWindow window;

private:
    QSignalSpy m_typed;

    static QStringList NamesIn(const QAbstractItemView& view)
    {
        QStringList names;
        for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
            names.append(view.model()->index(row, 0, view.rootIndex()).data().toString());
        return names;
    }
};

QStringList Texts(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts)
        list.append(QString::fromUtf8(text));
    return list;
}

bool HasPixel(const QImage& image, QRgb colour)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == colour)
                return true;
        }
    }
    return false;
}

/** @return what the menu offers that a right click opens */
QStringList MenuTexts(QWidget& viewport, const QPoint& position)
{
    ExpectFromOffscreen({"raise()", "grabbing the keyboard"});
    QContextMenuEvent event(QContextMenuEvent::Mouse, position, viewport.mapToGlobal(position));
    QCoreApplication::sendEvent(&viewport, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QStringList texts;
    if (!menu)
        return texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts.append(action->text());
    menu->close();
    return texts;
}

/** Runs the program. @return what it wrote, both streams, behind its exit code */
QString Run(const QStringList& arguments)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(COLLECTION_PROGRAM), arguments);
    if (!program.waitForFinished())
        return program.errorString();
    return QString::number(program.exitCode()) + QString::fromLocal8Bit(program.readAll());
}

} // namespace

class tst_Collection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsTakeSeveralFavourites();
    void optionsSayWhatIsWrong();
    void programDrawsItself();
    void programSaysThatAFolderIsMissing();
    void searchShowsWhatContainsTheText();
    void searchedAwayItemsAreNotSelected();
    void searchEndsWithEscape();
    void searchEndsWithTheFolder();
    void returnGoesFromTheSearchToTheItems();
    void ordersSwitch_data();
    void ordersSwitch();
    void latestComesFirst();
    void arrivingFilesKeepTheHostsOrder();
    void folderOpensFromTheTree();
    void focusInTheTreeOpensNothing();
    void folderOpensWithReturnAndClosesWithUp();
    void favouriteFolderElsewhereOpensBesideTheTree();
    void vanishedFolderGivesWayToTheOneAbove();
    void vanishedCollectionGivesWayToTheOneAbove();
    void tableAndThumbnailsShareTheSelection();
    void selectedItemsBecomeFavourites();
    void favouritesFromSeveralFoldersKeepTheirOrder();
    void droppedFilesBecomeFavourites();
    void favouritesDoNotDropOntoThemselves();
    void favouritesLeaveByTheDeleteKey();
    void deleteKeyElsewhereTakesNoFavourite();
    void favouriteSurvivesItsFile();
    void favouritesAreThereTheNextTime();
    void allFavouritesCanBeSelectedAndFound();
    void menusOfferWhatTheViewCan();
    void picturesReplaceTheirCards();
    void requestsBeyondTheQueueAreAskedAnew();
    void countIsShown();
    void whatTakesTheFocusHasAName();
};

void tst_Collection::optionsTakeSeveralFavourites()
{
    const Options options = ReadOptions(Texts({"program", "--folder", "/x", "--favourites", "/a b", "/c",
                                               "--favourites", "/d", "--screenshot", "y.png"}));
    QCOMPARE(options.folder, QStringLiteral("/x"));
    QCOMPARE(options.favourites, Texts({"/a b", "/d", "/c"}));
    QCOMPARE(options.screenshot, QStringLiteral("y.png"));
    QVERIFY(options.error.isEmpty());
    QVERIFY(options.help.isEmpty());
}

void tst_Collection::optionsSayWhatIsWrong()
{
    QVERIFY(ReadOptions(Texts({"program", "--nonsense"})).error.contains(QStringLiteral("nonsense")));
    QVERIFY(ReadOptions(Texts({"program", "--help"})).help.contains(QStringLiteral("--favourites")));
}

void tst_Collection::programDrawsItself()
{
    const TestFolder folder;
    const QString favourite = folder.File(QStringLiteral("chair.txt"));
    const QString picture = folder.Path(QStringLiteral("picture.png"));
    const QString answer = Run({QStringLiteral("--folder"), folder.Path(), QStringLiteral("--favourites"),
                                favourite, QStringLiteral("--screenshot"), picture});
    QVERIFY2(answer.startsWith(QLatin1Char('0')), qPrintable(answer));
    const QImage image(picture);
    QCOMPARE(image.size(), QSize(1000, 680));
    // The card of the file, in the list and among the favourites.
    const QRgb card = KindCards().Of(QStringLiteral("txt")).pixel(KindCards::Side / 2, KindCards::Side / 8);
    QVERIFY(HasPixel(image.copy(0, 0, 1000, 400), card));
    QVERIFY(HasPixel(image.copy(0, 480, 1000, 200), card));
}

void tst_Collection::programSaysThatAFolderIsMissing()
{
    const TestFolder folder;
    const QString missing = folder.Path(QStringLiteral("missing"));
    const QString answer = Run({QStringLiteral("--folder"), missing});
    QVERIFY2(answer.startsWith(QLatin1Char('1')), qPrintable(answer));
    QVERIFY2(answer.contains(missing), qPrintable(answer));
}

void tst_Collection::searchShowsWhatContainsTheText()
{
    Host host;
    for (const char* name : {"desk lamp.txt", "Floor Lamp.txt", "stool.txt"})
        host.folder.File(QLatin1String(name));
    host.folder.Folder(QStringLiteral("lamps"));
    host.Open(4);
    QTest::keyClick(&host.window, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(host.SearchField().hasFocus());
    QTest::keyClicks(&host.SearchField(), QStringLiteral("LAMP"));
    QCOMPARE(host.Names(), Texts({"lamps", "desk lamp", "Floor Lamp"}));
    QTest::keyClicks(&host.SearchField(), QStringLiteral("x"));
    QCOMPARE(host.Names(), QStringList());
    host.folder.File(QStringLiteral("lampx.txt"));
    QTRY_COMPARE(host.Names(), Texts({"lampx"}));
}

void tst_Collection::searchedAwayItemsAreNotSelected()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.folder.File(QStringLiteral("b.txt"));
    host.Open(2);
    const auto actions = host.window.findChildren<QAction*>();
    const auto isAdd = [](const QAction* action) {
        return action->text() == QStringLiteral("Add to favourites");
    };
    const QAction* add = *std::find_if(actions.cbegin(), actions.cend(), isAdd);
    QVERIFY(!add->isEnabled());
    Host::Click(host.Thumbnails(), host.Item(QStringLiteral("a")));
    QVERIFY(add->isEnabled());
    QTest::keyClicks(&host.SearchField(), QStringLiteral("b"));
    QCOMPARE(host.Names(), Texts({"b"}));
    QVERIFY(!add->isEnabled());
    QCOMPARE(host.Pane().SelectedPaths(), QStringList());
}

void tst_Collection::searchEndsWithEscape()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.folder.File(QStringLiteral("b.txt"));
    host.Open(2);
    host.Pane().StartSearch();
    QTest::keyClicks(&host.SearchField(), QStringLiteral("b"));
    QCOMPARE(host.Names(), Texts({"b"}));
    QTest::keyClick(&host.SearchField(), Qt::Key_Escape);
    QCOMPARE(host.Names(), Texts({"a", "b"}));
    QVERIFY(host.Thumbnails().hasFocus());
}

void tst_Collection::searchEndsWithTheFolder()
{
    Host host;
    host.folder.File(QStringLiteral("sub/one.txt"));
    host.folder.File(QStringLiteral("sub/two.txt"));
    host.Open(1);
    QTest::keyClicks(&host.SearchField(), QStringLiteral("sub"));
    host.window.OpenFolder(host.folder.Path(QStringLiteral("sub")));
    QTRY_COMPARE(host.Names(), Texts({"one", "two"}));
    QVERIFY(host.SearchField().text().isEmpty());
}

void tst_Collection::returnGoesFromTheSearchToTheItems()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.Open(1);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        host.Pane().StartSearch();
        QTest::keyClick(&host.SearchField(), key);
        QVERIFY(host.Thumbnails().hasFocus());
    }
}

void tst_Collection::ordersSwitch_data()
{
    QTest::addColumn<QString>("order");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("names") << QStringLiteral("Name") << Texts({"box 3", "box 10", "box 2", "box 9", "chair"});
    QTest::newRow("numbers") << QStringLiteral("Number")
                             << Texts({"box 2", "box 3", "box 9", "box 10", "chair"});
    QTest::newRow("kinds") << QStringLiteral("Kind") << Texts({"box 3", "box 2", "box 10", "chair", "box 9"});
}

void tst_Collection::ordersSwitch()
{
    QFETCH(QString, order);
    QFETCH(QStringList, names);
    Host host;
    for (const char* name : {"box 10.png", "box 2.PNG", "box 9.txt", "chair.png"})
        host.folder.File(QLatin1String(name));
    host.folder.Folder(QStringLiteral("box 3"));
    host.Open(5);
    // From each order to this one, and to itself.
    for (int other = 0; other < host.OrderChoice().count(); ++other) {
        host.OrderChoice().setCurrentIndex(other);
        host.OrderChoice().setCurrentText(order);
        QCOMPARE(host.Names(), names);
    }
}

void tst_Collection::latestComesFirst()
{
    Host host;
    const QDateTime now = QDateTime::currentDateTime();
    host.folder.File(QStringLiteral("a.txt"), {}, now.addDays(-3));
    host.folder.File(QStringLiteral("b.txt"), {}, now.addDays(-1));
    host.folder.File(QStringLiteral("c.txt"), {}, now.addDays(-2));
    host.Open(3);
    host.OrderChoice().setCurrentText(QStringLiteral("Latest first"));
    QCOMPARE(host.Names(), Texts({"b", "c", "a"}));
}

void tst_Collection::arrivingFilesKeepTheHostsOrder()
{
    Host host;
    host.folder.File(QStringLiteral("box 10.txt"));
    host.folder.File(QStringLiteral("box 1.txt"));
    host.Open(2);
    host.OrderChoice().setCurrentText(QStringLiteral("Number"));
    host.folder.File(QStringLiteral("box 9.txt"));
    QTRY_COMPARE(host.Names(), Texts({"box 1", "box 9", "box 10"}));
}

void tst_Collection::folderOpensFromTheTree()
{
    Host host;
    host.folder.File(QStringLiteral("chairs/stool.txt"));
    host.Open(1);
    QTRY_COMPARE(host.Folders().model()->rowCount(host.Folders().rootIndex()), 1);
    Host::Click(host.Folders(), host.Folders().model()->index(0, 0, host.Folders().rootIndex()));
    QTRY_COMPARE(host.Names(), Texts({"stool"}));
    QCOMPARE(host.Pane().Folder(), host.folder.Path(QStringLiteral("chairs")));
}

void tst_Collection::focusInTheTreeOpensNothing()
{
    Host host;
    host.folder.Folder(QStringLiteral("chairs"));
    host.Open(1);
    QTRY_COMPARE(host.Folders().model()->rowCount(host.Folders().rootIndex()), 1);
    QVERIFY(host.Thumbnails().hasFocus());
    host.Folders().setFocus(Qt::TabFocusReason);
    QCOMPARE(host.Pane().Folder(), host.folder.Path());
    QTest::keyClick(&host.Folders(), Qt::Key_Space);
    QCOMPARE(host.Pane().Folder(), host.folder.Path(QStringLiteral("chairs")));
}

void tst_Collection::folderOpensWithReturnAndClosesWithUp()
{
    Host host;
    host.folder.File(QStringLiteral("chairs/stool.txt"));
    host.Open(1);
    host.Thumbnails().setCurrentIndex(host.Item(QStringLiteral("chairs")));
    QTest::keyClick(&host.Thumbnails(), Qt::Key_Return);
    QTRY_COMPARE(host.Names(), Texts({"stool"}));
    QCOMPARE(host.Folders().selectionModel()->selectedRows().size(), 1);
    QTest::keyClick(&host.window, Qt::Key_Up, Qt::AltModifier);
    QTRY_COMPARE(host.Names(), Texts({"chairs"}));
    QVERIFY(!host.Folders().selectionModel()->hasSelection());
    // There is nothing above the collection.
    QTest::keyClick(&host.window, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(host.Pane().Folder(), host.folder.Path());
}

void tst_Collection::favouriteFolderElsewhereOpensBesideTheTree()
{
    const TestFolder elsewhere;
    elsewhere.File(QStringLiteral("far/away.txt"));
    Host host;
    host.folder.File(QStringLiteral("chairs/stool.txt"));
    host.Open(1);
    host.window.OpenFolder(host.folder.Path(QStringLiteral("chairs")));
    QCOMPARE(host.Folders().selectionModel()->selectedRows().size(), 1);
    host.window.Favoured().Add({elsewhere.Path(QStringLiteral("far"))});
    host.Strip().setFocus();
    host.Strip().setCurrentIndex(host.Strip().model()->index(0, 0));
    QTest::keyClick(&host.Strip(), Qt::Key_Return);
    QTRY_COMPARE(host.Names(), Texts({"away"}));
    QVERIFY(!host.Folders().selectionModel()->hasSelection());
    QTest::keyClick(&host.window, Qt::Key_Home, Qt::AltModifier);
    QTRY_COMPARE(host.Names(), Texts({"chairs"}));
}

void tst_Collection::vanishedFolderGivesWayToTheOneAbove()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    Host host;
    host.folder.File(QStringLiteral("a/b/c.txt"));
    host.Open(1);
    host.window.OpenFolder(host.folder.Path(QStringLiteral("a/b")));
    QTRY_COMPARE(host.Names(), Texts({"c"}));
    QVERIFY(QDir(host.folder.Path(QStringLiteral("a"))).removeRecursively());
    QTRY_COMPARE(host.Pane().Folder(), host.folder.Path());
    QTRY_COMPARE(host.Names(), QStringList());
}

void tst_Collection::vanishedCollectionGivesWayToTheOneAbove()
{
    KTFM_SKIP_ON_WINE("a folder that is removed stays until nobody watches it");
    Host host;
    host.folder.File(QStringLiteral("a/b/c.txt"));
    host.Open(1);
    QVERIFY(host.window.OpenCollection(host.folder.Path(QStringLiteral("a/b"))));
    QTRY_COMPARE(host.Names(), Texts({"c"}));
    QVERIFY(QDir(host.folder.Path(QStringLiteral("a"))).removeRecursively());
    QTRY_COMPARE(host.Pane().Folder(), host.folder.Path());
    QVERIFY(!host.window.OpenCollection(host.folder.Path(QStringLiteral("a"))));
}

void tst_Collection::tableAndThumbnailsShareTheSelection()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.folder.File(QStringLiteral("b.txt"));
    host.Open(2);
    Host::Click(host.Thumbnails(), host.Item(QStringLiteral("b")));
    QTest::keyClick(&host.window, Qt::Key_T, Qt::ControlModifier);
    QVERIFY(host.Table().isVisible());
    QVERIFY(host.Table().hasFocus());
    QVERIFY(host.Table().selectionModel()->isRowSelected(1, host.Table().rootIndex()));
    QCOMPARE(host.Pane().SelectedPaths(), QStringList{host.folder.Path(QStringLiteral("b.txt"))});
    Host::Click(host.Table(), host.Item(QStringLiteral("a")));
    QTest::keyClick(&host.window, Qt::Key_T, Qt::ControlModifier);
    QVERIFY(host.Thumbnails().hasFocus());
    QCOMPARE(host.Pane().SelectedPaths(), QStringList{host.folder.Path(QStringLiteral("a.txt"))});
}

void tst_Collection::selectedItemsBecomeFavourites()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.folder.File(QStringLiteral("b.txt"));
    host.folder.Folder(QStringLiteral("c.d"));
    host.Open(3);
    QTest::keyClick(&host.window, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(host.FavouriteNames(), QStringList());
    host.Thumbnails().setFocus();
    QTest::keyClick(&host.Thumbnails(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&host.window, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(host.FavouriteNames(), Texts({"c.d", "a", "b"}));
    QTest::keyClick(&host.window, Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(host.FavouriteNames(), Texts({"c.d", "a", "b"}));
}

void tst_Collection::favouritesFromSeveralFoldersKeepTheirOrder()
{
    Host host;
    host.folder.File(QStringLiteral("x/1.txt"));
    host.folder.File(QStringLiteral("y/2.txt"));
    Favourites& favourites = host.window.Favoured();
    const QSignalSpy changed(&favourites, &Favourites::Changed);
    favourites.Add({host.folder.Path(QStringLiteral("y/2.txt")), host.folder.Path(QStringLiteral("x//1.txt")),
                    host.folder.Path(QStringLiteral("y/../y/2.txt")), QString()});
    QCOMPARE(favourites.Paths(), (QStringList{host.folder.Path(QStringLiteral("y/2.txt")),
                                              host.folder.Path(QStringLiteral("x/1.txt"))}));
    QCOMPARE(changed.size(), 1);
    favourites.Add(favourites.Paths());
    QCOMPARE(changed.size(), 1);
}

void tst_Collection::droppedFilesBecomeFavourites()
{
    Host host;
    const QString file = host.folder.File(QStringLiteral("a.txt"));
    host.Open(1);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(file), QUrl(QStringLiteral("https://example.org/b.txt"))});
    const QPoint middle = host.Strip().viewport()->rect().center();
    QDragEnterEvent enter(middle, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(host.Strip().viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QCOMPARE(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(middle, Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(host.Strip().viewport(), &drop);
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QCOMPARE(host.window.Favoured().Paths(), QStringList{file});
}

void tst_Collection::favouritesDoNotDropOntoThemselves()
{
    Host host;
    host.Open(0);
    QMimeData text;
    text.setText(QStringLiteral("/x/a.txt"));
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(host.Strip().viewport(), &enter);
    QVERIFY(!enter.isAccepted());
}

void tst_Collection::favouritesLeaveByTheDeleteKey()
{
    Host host;
    const QStringList files = {host.folder.File(QStringLiteral("a.txt")),
                               host.folder.File(QStringLiteral("b.txt")),
                               host.folder.File(QStringLiteral("c.txt"))};
    host.Open(3);
    host.window.Favoured().Add(files);
    Host::Click(host.Strip(), host.Strip().model()->index(1, 0));
    QTest::keyClick(&host.Strip(), Qt::Key_Delete);
    QCOMPARE(host.FavouriteNames(), Texts({"a", "c"}));
    QVERIFY(QFile::exists(files.at(1)));
    QTest::keyClick(&host.Strip(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&host.Strip(), Qt::Key_Delete);
    QCOMPARE(host.FavouriteNames(), QStringList());
}

void tst_Collection::deleteKeyElsewhereTakesNoFavourite()
{
    Host host;
    const QString file = host.folder.File(QStringLiteral("a.txt"));
    host.Open(1);
    host.window.Favoured().Add({file});
    Host::Click(host.Strip(), host.Strip().model()->index(0, 0));
    Host::Click(host.Thumbnails(), host.Item(QStringLiteral("a")));
    QTest::keyClick(&host.Thumbnails(), Qt::Key_Delete);
    QCOMPARE(host.FavouriteNames(), Texts({"a"}));
    QVERIFY(QFile::exists(file));
}

void tst_Collection::favouriteSurvivesItsFile()
{
    Host host;
    const QString file = host.folder.File(QStringLiteral("sub/a.txt"));
    host.Open(1);
    host.window.Favoured().Add({file});
    QVERIFY(QFile::remove(file));
    QTRY_COMPARE(host.FavouriteNames(), Texts({"a (missing)"}));
    host.folder.File(QStringLiteral("sub/a.txt"));
    QTRY_COMPARE(host.FavouriteNames(), Texts({"a"}));
    QVERIFY(QDir(host.folder.Path(QStringLiteral("sub"))).removeRecursively());
    QTRY_COMPARE(host.FavouriteNames(), Texts({"a (missing)"}));
    // A folder that is gone cannot be watched: this is seen when the user comes back to the window.
    host.folder.File(QStringLiteral("sub/a.txt"));
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&host.window, &activation);
    QCOMPARE(host.FavouriteNames(), Texts({"a"}));
    QVERIFY(QFile::remove(file));
    QTRY_COMPARE(host.FavouriteNames(), Texts({"a (missing)"}));
}

void tst_Collection::favouritesAreThereTheNextTime()
{
    const TestFolder folder;
    const QStringList files = {folder.File(QStringLiteral("b.txt")), folder.Path(QStringLiteral("gone.txt"))};
    QSettings settings(folder.Path(QStringLiteral("settings.ini")), QSettings::IniFormat);
    {
        CollectionWindow window;
        window.KeepFavouritesIn(settings);
        window.Favoured().Add(files);
    }
    {
        CollectionWindow window;
        window.KeepFavouritesIn(settings);
        QCOMPARE(window.Favoured().Paths(), files);
        window.Favoured().Remove({window.Favoured().Model().index(0, 0)});
    }
    CollectionWindow window;
    window.KeepFavouritesIn(settings);
    QCOMPARE(window.Favoured().Paths(), files.mid(1));
}

void tst_Collection::allFavouritesCanBeSelectedAndFound()
{
    Host host;
    host.Open(0);
    host.window.Favoured().Add(
        {host.folder.Path(QStringLiteral("one.txt")), host.folder.Path(QStringLiteral("two.txt"))});
    host.Strip().setFocus();
    QTest::keyClicks(&host.Strip(), QStringLiteral("tw"));
    QCOMPARE(host.Strip().currentIndex().row(), 1);
    QTest::keyClick(&host.Strip(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(host.Strip().selectionModel()->selectedRows().size(), 2);
}

void tst_Collection::menusOfferWhatTheViewCan()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.Open(1);
    const QPoint middle = host.Thumbnails().visualRect(host.Item(QStringLiteral("a"))).center();
    QCOMPARE(MenuTexts(*host.Thumbnails().viewport(), middle), Texts({"Add to favourites"}));
    QCOMPARE(MenuTexts(*host.Strip().viewport(), middle), Texts({"Remove from favourites"}));
}

void tst_Collection::picturesReplaceTheirCards()
{
    const TestFolder folder;
    const QString path = folder.Path(QStringLiteral("a.png"));
    QImage picture(400, 400, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QVERIFY(picture.save(path));
    const QDateTime time = QDateTime::currentDateTime();
    ContentImages images;
    QSignalSpy ready(&images, &ContentImages::Ready);
    const QImage card = images.OfFile(path, time);
    QCOMPARE(card.width(), KindCards::Side);
    QTRY_COMPARE(ready.size(), 1);
    const QImage shown = images.OfFile(path, time);
    QCOMPARE(shown.size(), card.size());
    QCOMPARE(shown.pixelColor(2, 2), QColor(Qt::green));
    QCOMPARE(images.OfFile(path, time).cacheKey(), shown.cacheKey());

    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    images.OfFile(path, time.addSecs(1));
    QTRY_COMPARE(ready.size(), 2);
    QCOMPARE(images.OfFile(path, time.addSecs(1)).pixelColor(2, 2), QColor(Qt::red));

    // What is no picture keeps its card, whatever its name says, and is not read again and again.
    const QString fake = folder.File(QStringLiteral("b.png"), "no picture");
    QCOMPARE(images.OfFile(fake, time), card);
    QTRY_COMPARE(ready.size(), 3);
    QCOMPARE(images.OfFile(fake, time), card);
    QVERIFY(!ready.wait(50));
}

void tst_Collection::requestsBeyondTheQueueAreAskedAnew()
{
    const int begun = QThread::idealThreadCount();
    const int count = begun + 300;
    const TestFolder folder;
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::green);
    QStringList paths;
    for (int number = 0; number < count; ++number) {
        paths.append(folder.Path(QStringLiteral("%1.png").arg(number)));
        QVERIFY(picture.save(paths.constLast()));
    }
    ContentImages images;
    const QDateTime time = QDateTime::currentDateTime();
    const QColor centre(Qt::green);
    const auto isShown = [&](const QString& path) {
        return images.OfFile(path, time).pixelColor(KindCards::Side / 2, KindCards::Side / 2) == centre;
    };
    QSignalSpy ready(&images, &ContentImages::Ready);
    for (const QString& path : paths)
        images.OfFile(path, time);
    // One a thread has begun; of the others the latest wait, and the oldest are forgotten.
    QTRY_VERIFY(!images.IsBusy());
    QCOMPARE(ready.size(), begun + 200);
    QVERIFY(isShown(paths.constLast()));
    QVERIFY(!isShown(paths.at(begun)));
    const auto areAllShown = [&] {
        return std::count_if(paths.cbegin(), paths.cend(), isShown) == paths.size();
    };
    QTRY_VERIFY(areAllShown());
}

void tst_Collection::countIsShown()
{
    Host host;
    host.folder.File(QStringLiteral("a.txt"));
    host.folder.File(QStringLiteral("b.txt"));
    host.Open(2);
    QSignalSpy counted(&host.Pane(), &ContentPane::Counted);
    QTest::keyClicks(&host.SearchField(), QStringLiteral("b"));
    QCOMPARE(counted.constLast(), (QVariantList{1, 2}));
    QTest::keyClick(&host.SearchField(), Qt::Key_Backspace);
    QCOMPARE(counted.constLast(), (QVariantList{2, 2}));
}

void tst_Collection::whatTakesTheFocusHasAName()
{
    Host host;
    host.Open(0);
    QWidget* widget = &host.window;
    QSet<QWidget*> visited;
    for (widget = widget->nextInFocusChain(); !visited.contains(widget);
         widget = widget->nextInFocusChain()) {
        visited.insert(widget);
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
            continue;
        const QAccessibleInterface* known = QAccessible::queryAccessibleInterface(widget);
        QVERIFY2(known && !known->text(QAccessible::Name).isEmpty(), widget->metaObject()->className());
    }
    QVERIFY(visited.size() > 5);
}

KTFM_TEST_MAIN(tst_Collection)
#include "tst_collection.moc"
