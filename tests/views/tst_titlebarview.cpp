#include <KTFileManager2QU/CTitleBarView.h>
#include <KTFileManager2QU/KTFMInterfaces.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"
#include "tests/support/TestPlatform.h"

#include <QFileSystemModel>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QTimer>
#include <QWindow>

#include <functional>
#include <memory>

namespace {

/** A host over the real file system, which notes what it is told and then does what the test wants. */
class Host : public CTitleBarSlotInterface
{
public:
    void OnTitleBarButtonClicked(const QModelIndex& index) override
    {
        clicked << index;
        if (onClicked)
            onClicked();
    }
    void OnTitleBarMenuTriggered(const QString& path) override
    {
        triggered << path;
        if (onTriggered)
            onTriggered();
    }
    QString GetTitleBarDisplayName(const QModelIndex& index) override
    {
        if (onQuestion)
            onQuestion();
        const QString path = model.filePath(index);
        return names.value(path, model.fileName(index));
    }
    QString GetTitleBarPath(const QModelIndex& index) override
    {
        return paths.value(index, model.filePath(index));
    }
    QModelIndex GetTitleBarIndexFromPath(const QString& path) override
    {
        asked << path;
        return knowsIndexes ? model.index(path) : QModelIndex();
    }

    QModelIndex IndexOf(const QString& path) { return model.index(path); }

    QFileSystemModel model;
    QModelIndexList clicked;
    QStringList triggered;
    QStringList asked;
    QHash<QString, QString> names;
    QHash<QModelIndex, QString> paths;
    bool knowsIndexes = true;
    std::function<void()> onClicked;
    std::function<void()> onTriggered;
    std::function<void()> onQuestion;
};

/** A bar over a folder of its own, in a window that is shown. */
class Fixture
{
public:
    Fixture() : bar(new CTitleBarView(&window, &host))
    {
        window.resize(900, 100);
        bar->resize(900, 30);
    }

    void Show(const QString& path)
    {
        bar->UpdateCrumBar(host.IndexOf(path), false);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        for (int i = 0; i < bar->GetToolButtonSize(); ++i)
            QTRY_VERIFY(bar->GetToolButton(i)->isVisible());
    }

    CTitleBarButton* Current() const { return bar->GetToolButton(0); }
    CTitleBarButton* Root() const { return bar->GetToolButton(bar->GetToolButtonSize() - 1); }

    TestFolder folder;
    Host host;
    QWidget window;
    QPointer<CTitleBarView> bar;
};

/** The offscreen platform complains of every popup that is shown on it. */
void ExpectPopupWarnings()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        return;
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
    QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
}

/** Runs @p work on the menu that is opened next, from within the menu's event loop, then closes the menu. */
void WhenAMenuOpens(const std::function<void(QMenu*)>& work)
{
    ExpectPopupWarnings();
    auto* poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, work] {
        const QPointer<QMenu> menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu || !menu->isVisible())
            return;
        poll->stop();
        poll->deleteLater();
        work(menu);
        if (menu)
            menu->close();
    });
    poll->start(5);
}

/** Clicks a button that may be deleted by it: the release goes to what is left then. */
void ClickAt(CTitleBarButton* button, const QPoint& position)
{
    const QPointer<CTitleBarButton> alive(button);
    QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, position);
    if (alive)
        QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, position);
}

/** Opens the menu of a button by a click on its arrow; returns when the menu is closed. */
void ClickArrow(CTitleBarButton* button)
{
    constexpr int fromTheEdge = 4;
    const int x = button->isRightToLeft() ? fromTheEdge : button->width() - fromTheEdge;
    ClickAt(button, QPoint(x, button->height() / 2));
}

void ClickName(CTitleBarButton* button)
{
    constexpr int fromTheEdge = 6;
    ClickAt(button, QPoint(fromTheEdge, button->height() / 2));
}

QStringList TextsOf(const QMenu* menu)
{
    QStringList texts;
    const QList<QAction*> actions = menu->actions();
    for (const QAction* action : actions)
        texts << action->text();
    texts.sort();
    return texts;
}

void ClickEntry(QMenu* menu, const QString& text)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (action->text() == text) {
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
            return;
        }
    }
    QFAIL("the menu has no such entry");
}

CAction* ActionNamed(CTitleBarButton* button, const QString& text)
{
    for (std::size_t i = 0; i < button->ActionSize(); ++i) {
        if (button->GetAction(i)->text() == text)
            return button->GetAction(i);
    }
    return nullptr;
}

void DeleteWhatIsDue()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int CodeOf(const KT::Result& result)
{
    return result.code;
}

} // namespace

class tst_TitleBarView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newBarHasALayoutWithoutButtons();
    void barTakesSizeLimitsAndPolicyOfItsParent();
    void anotherInitialisationKeepsTheButtons();
    void buttonsRunFromTheRootToTheCurrentFolder();
    void buttonsAreMirroredFromRightToLeft();
    void buttonStandsForItsFolder();
    void shownIndexAgainKeepsTheButtons();
    void forceRebuildsTheButtons();
    void invalidIndexEmptiesTheBar();
    void oldButtonsDisappearAtOnceAndAreDeletedLater();
    void clearingKeepsTheCount();
    void buttonDeletedByTheHostIsPassedOver();
    void updateRepaintsParentAndBar();
    void clickReportsTheButtonsIndex();
    void spaceKeyReportsTheButtonsIndex();
    void rootShowsOnlyTheIcon();
    void rootShowsItsTextWithoutTheIcon();
    void currentFolderWithoutFoldersHasNoMenu();
    void filesAndHiddenFoldersGiveNoMenu();
    void arrowOpensTheMenuOfFolders();
    void menuFollowsTheDisk();
    void chosenEntryReportsItsPath();
    void entryChosenByKeyReportsItsPath();
    void entryOfTheFileSystemRootHasOneSeparator();
    void entriesAreNamedByTheHost();
    void folderWithoutIndexKeepsItsOwnName();
    void ampersandsAreShown();
    void shellLinkStandsForItsTarget();
    void hostIsAskedForTheTargetOfAShellLink();
    void realFolderNamedLikeALinkIsAFolder();
    void danglingLinkIsLeftOut();
    void circleOfLinksIsHarmless();
    void createMenuEmptiesTheActions();
    void setMenuQActionsAppendsToMenuAndActions();
    void pushActionAppendsToActionsOnly();
    void vanishedFolderGivesAnEmptyMenu();
    void emptyPathIsNotTheCurrentFolder();
    void tenThousandFoldersFitAMenu();
    void opacityIsStoredAndPainted();
    void opacityBeyondTheRangeIsPaintedAsItsEnd();
    void settingTheOpacityRepaints();
    void barWithoutHostBuildsBlankButtons();
    void buttonWithoutBarHasNoFolder();
    void longNamesAreKept();
    void hostMayRebuildTheBarFromAClick();
    void hostMayDeleteTheBarFromAClick();
    void hostMayRebuildAndThenDeleteTheBarFromAClick();
    void hostMayDeleteTheBarFromAKey();
    void hostMayRebuildTheBarFromAMenu();
    void hostMayDeleteTheBarFromAMenu();
    void hostMayDeleteTheBarFromAMenuByKey();
    void hostMayDeleteTheBarFromATriggeredAction();
    void hostMayFillTheMenuAgainFromAnEntry();
    void hostMayRebuildTheBarWhileAMenuIsOpen();
    void hostMayDeleteTheBarWhileAMenuIsOpen();
    void rebuildFromAQuestionIsRefused();
    void rebuildFromAMenuQuestionIsCarriedOut();
};

void tst_TitleBarView::newBarHasALayoutWithoutButtons()
{
    Host host;
    CTitleBarView bar(nullptr, &host);
    QCOMPARE(bar.GetToolButtonSize(), 0);
    QCOMPARE(bar.GetTitleBarInterface(), static_cast<CTitleBarSlotInterface*>(&host));
    QVERIFY(!bar.IsRootItemUseIcon());
    const auto* layout = qobject_cast<QHBoxLayout*>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->direction(), QBoxLayout::LeftToRight);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 1);
    QVERIFY(layout->itemAt(0)->spacerItem());
}

void tst_TitleBarView::barTakesSizeLimitsAndPolicyOfItsParent()
{
    QWidget parent;
    parent.setMinimumSize(50, 20);
    parent.setMaximumSize(500, 40);
    parent.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const CTitleBarView bar(&parent, nullptr);
    QCOMPARE(bar.minimumSize(), QSize(50, 20));
    QCOMPARE(bar.maximumSize(), QSize(500, 40));
    QCOMPARE(bar.sizePolicy(), parent.sizePolicy());
    QCOMPARE(bar.parentWidget(), &parent);
}

void tst_TitleBarView::anotherInitialisationKeepsTheButtons()
{
    Fixture f;
    f.Show(f.folder.Path());
    const int count = f.bar->GetToolButtonSize();
    QCOMPARE(CodeOf(f.bar->IniCrumBarWidget()), 0);
    QCOMPARE(f.bar->GetToolButtonSize(), count);
    QCOMPARE(f.bar->layout()->count(), count + 1);
    QCOMPARE(f.bar->layout()->itemAt(0)->widget(), f.Root());
}

void tst_TitleBarView::buttonsRunFromTheRootToTheCurrentFolder()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("a/b"));
    f.Show(path);
    QCOMPARE(f.Current()->GetCurrentPath(), path);
    QCOMPARE(f.bar->GetToolButton(1)->GetCurrentPath(), f.folder.Path(QStringLiteral("a")));
    QVERIFY(f.Root()->GetCurrentDir().isRoot());
    const QLayout* layout = f.bar->layout();
    const int count = f.bar->GetToolButtonSize();
    QCOMPARE(layout->count(), count + 1);
    for (int i = 0; i < count; ++i)
        QCOMPARE(layout->itemAt(i)->widget(), f.bar->GetToolButton(count - 1 - i));
    QVERIFY(layout->itemAt(count)->spacerItem());
    QTRY_COMPARE(f.Root()->x(), 0);
    for (int i = 0; i + 1 < count; ++i)
        QCOMPARE(f.bar->GetToolButton(i)->x(), f.bar->GetToolButton(i + 1)->geometry().right() + 1);
    QVERIFY(f.Current()->geometry().right() < f.bar->width());
}

void tst_TitleBarView::buttonsAreMirroredFromRightToLeft()
{
    Fixture f;
    f.window.setLayoutDirection(Qt::RightToLeft);
    f.Show(f.folder.Folder(QStringLiteral("a/b")));
    QTRY_COMPARE(f.Root()->geometry().right(), f.bar->width() - 1);
    QVERIFY(f.Current()->x() < f.bar->GetToolButton(1)->x());
    WhenAMenuOpens([](QMenu* menu) { ClickEntry(menu, QStringLiteral("b")); });
    ClickArrow(f.bar->GetToolButton(1));
    QCOMPARE(f.host.triggered, QStringList{f.folder.Path(QStringLiteral("a/b"))});
}

void tst_TitleBarView::buttonStandsForItsFolder()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("a"));
    f.host.names.insert(path, QStringLiteral("Shown name"));
    f.Show(path);
    const CTitleBarButton* button = f.bar->GetToolButton(0);
    QCOMPARE(button->text(), QStringLiteral("Shown name"));
    QCOMPARE(button->toolTip(), QStringLiteral("Shown name"));
    QCOMPARE(button->GetModelIndex(), f.host.IndexOf(path));
    QCOMPARE(button->GetCurrentDir(), QDir(path));
    QCOMPARE(button->GetCurrentPath(), path);
    QCOMPARE(button->parentWidget(), f.bar.data());
    CTitleBarButton* above = f.bar->GetToolButton(1);
    QCOMPARE(above->popupMode(), QToolButton::MenuButtonPopup);
    QCOMPARE(above->menu(), above->GetMenuPtr());
    QCOMPARE(above->GetMenuPtr()->parentWidget(), above);
    QCOMPARE(above->ActionSize(), std::size_t(0));
}

void tst_TitleBarView::shownIndexAgainKeepsTheButtons()
{
    Fixture f;
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(QModelIndex(), false)), 1);
    const QModelIndex index = f.host.IndexOf(f.folder.Path());
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(index, false)), 0);
    const CTitleBarButton* button = f.Current();
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(index, false)), 1);
    DeleteWhatIsDue();
    QCOMPARE(f.Current(), button);
    QVERIFY(f.bar->layout()->indexOf(f.Current()) >= 0);
}

void tst_TitleBarView::forceRebuildsTheButtons()
{
    Fixture f;
    const QModelIndex index = f.host.IndexOf(f.folder.Path());
    f.bar->UpdateCrumBar(index, false);
    const QPointer<CTitleBarButton> old = f.Current();
    const int count = f.bar->GetToolButtonSize();
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(index, true)), 0);
    QVERIFY(f.Current() != old);
    QCOMPARE(f.bar->GetToolButtonSize(), count);
    DeleteWhatIsDue();
    QVERIFY(!old);
}

void tst_TitleBarView::invalidIndexEmptiesTheBar()
{
    Fixture f;
    f.Show(f.folder.Path());
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(QModelIndex(), false)), 0);
    QCOMPARE(f.bar->GetToolButtonSize(), 0);
    QCOMPARE(f.bar->layout()->count(), 1);
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(QModelIndex(), true)), 0);
    DeleteWhatIsDue();
    QVERIFY(f.bar->findChildren<CTitleBarButton*>().isEmpty());
}

void tst_TitleBarView::oldButtonsDisappearAtOnceAndAreDeletedLater()
{
    Fixture f;
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> old = f.Current();
    f.bar->UpdateCrumBar(f.host.IndexOf(f.folder.Folder(QStringLiteral("a"))), false);
    QVERIFY(old);
    QVERIFY(!old->isVisible());
    QCOMPARE(f.bar->layout()->indexOf(old), -1);
    QTRY_VERIFY(!old);
}

void tst_TitleBarView::clearingKeepsTheCount()
{
    Fixture f;
    QCOMPARE(CodeOf(f.bar->ClearHBoxLayout()), 0);
    f.Show(f.folder.Path());
    const int count = f.bar->GetToolButtonSize();
    QCOMPARE(CodeOf(f.bar->ClearHBoxLayout()), 0);
    QCOMPARE(f.bar->GetToolButtonSize(), count);
    QCOMPARE(f.bar->layout()->count(), 1);
    QVERIFY(f.Current());
    DeleteWhatIsDue();
    QVERIFY(!f.Current());
    QCOMPARE(CodeOf(f.bar->ClearHBoxLayout()), 0);
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(f.host.IndexOf(f.folder.Path()), true)), 0);
    QCOMPARE(f.bar->GetToolButtonSize(), count);
}

void tst_TitleBarView::buttonDeletedByTheHostIsPassedOver()
{
    Fixture f;
    f.Show(f.folder.Path());
    const int count = f.bar->GetToolButtonSize();
    delete f.bar->GetToolButton(1);
    QCOMPARE(f.bar->GetToolButtonSize(), count);
    QCOMPARE(CodeOf(f.bar->IniCrumBarWidget()), 0);
    QCOMPARE(f.bar->layout()->count(), count);
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(f.host.IndexOf(f.folder.Path()), true)), 0);
    QCOMPARE(f.bar->layout()->count(), count + 1);
}

/** Counts the paint events of a widget. */
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }

    int count = 0;
};

void tst_TitleBarView::updateRepaintsParentAndBar()
{
    Fixture f;
    f.Show(f.folder.Path());
    QCoreApplication::processEvents();
    const PaintCounter parent(&f.window);
    const PaintCounter bar(f.bar);
    f.bar->UpdateCrumBar(QModelIndex(), false);
    QTRY_VERIFY(parent.count > 0);
    QTRY_VERIFY(bar.count > 0);
}

void tst_TitleBarView::clickReportsTheButtonsIndex()
{
    Fixture f;
    f.Show(f.folder.Folder(QStringLiteral("a/b")));
    ClickName(f.bar->GetToolButton(1));
    ClickName(f.Current());
    QCOMPARE(f.host.clicked, (QModelIndexList{f.host.IndexOf(f.folder.Path(QStringLiteral("a"))),
                                              f.host.IndexOf(f.folder.Path(QStringLiteral("a/b")))}));
    QVERIFY(f.host.triggered.isEmpty());
}

void tst_TitleBarView::spaceKeyReportsTheButtonsIndex()
{
    Fixture f;
    f.Show(f.folder.Path());
    QTest::keyClick(f.Current(), Qt::Key_Space);
    QCOMPARE(f.host.clicked, QModelIndexList{f.host.IndexOf(f.folder.Path())});
}

void tst_TitleBarView::rootShowsOnlyTheIcon()
{
    Fixture f;
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::magenta);
    f.bar->SetRootIcon(QIcon(pixmap));
    f.bar->SetRootItemUseIcon(true);
    QVERIFY(f.bar->IsRootItemUseIcon());
    f.host.names.insert(QDir::rootPath(), QStringLiteral("Computer"));
    f.Show(f.folder.Path());
    QCOMPARE(f.Root()->text(), QString());
    QCOMPARE(f.Root()->toolTip(), QStringLiteral("Computer"));
    QCOMPARE(f.Root()->accessibleName(), QStringLiteral("Computer"));
    QVERIFY(!f.Root()->icon().isNull());
    QVERIFY(!f.Current()->text().isEmpty());
    QVERIFY(f.Current()->icon().isNull());
    const QImage image = f.Root()->grab().toImage();
    int magenta = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            magenta += image.pixelColor(x, y) == QColor(Qt::magenta) ? 1 : 0;
    }
    QVERIFY(magenta >= 12 * 12);
}

void tst_TitleBarView::rootShowsItsTextWithoutTheIcon()
{
    Fixture f;
    f.bar->SetRootIcon(QIcon(QPixmap(16, 16)));
    f.host.names.insert(QDir::rootPath(), QStringLiteral("Computer"));
    f.Show(f.folder.Path());
    QCOMPARE(f.Root()->text(), QStringLiteral("Computer"));
    QVERIFY(f.Root()->icon().isNull());
}

void tst_TitleBarView::currentFolderWithoutFoldersHasNoMenu()
{
    Fixture f;
    f.Show(f.folder.Folder(QStringLiteral("a/leaf")));
    QVERIFY(!f.Current()->menu());
    QCOMPARE(f.Current()->arrowType(), Qt::NoArrow);
    QCOMPARE(f.Current()->popupMode(), QToolButton::DelayedPopup);
    for (int i = 1; i < f.bar->GetToolButtonSize(); ++i) {
        QVERIFY(f.bar->GetToolButton(i)->menu());
        QCOMPARE(f.bar->GetToolButton(i)->popupMode(), QToolButton::MenuButtonPopup);
    }
    ClickArrow(f.Current());
    QCOMPARE(f.host.clicked.size(), 1);
}

void tst_TitleBarView::filesAndHiddenFoldersGiveNoMenu()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("a"));
    f.folder.File(QStringLiteral("a/file.txt"));
    f.folder.Folder(QStringLiteral("a/.hidden"));
    f.Show(path);
    QVERIFY(!f.Current()->menu());
    f.folder.Folder(QStringLiteral("a/shown"));
    f.bar->UpdateCrumBar(f.host.IndexOf(path), true);
    QVERIFY(f.Current()->menu());
}

void tst_TitleBarView::arrowOpensTheMenuOfFolders()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.folder.Folder(QStringLiteral("two"));
    f.folder.Folder(QStringLiteral(".hidden"));
    f.folder.File(QStringLiteral("file"));
    f.Show(f.folder.Path());
    QStringList texts;
    bool visible = false;
    WhenAMenuOpens([&](QMenu* menu) {
        texts = TextsOf(menu);
        visible = menu->actionGeometry(menu->actions().constFirst()).isValid();
    });
    ClickArrow(f.Current());
    QCOMPARE(texts, (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    QVERIFY(visible);
    QVERIFY(f.host.clicked.isEmpty());
    QVERIFY(f.host.triggered.isEmpty());
    QCOMPARE(f.Current()->ActionSize(), std::size_t(2));
}

void tst_TitleBarView::menuFollowsTheDisk()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    QStringList texts;
    WhenAMenuOpens([](QMenu*) {});
    ClickArrow(f.Current());
    // Qt complains of a menu that is shown again before the X server has taken it off the screen.
    QTRY_VERIFY(!f.Current()->menu()->windowHandle()->isExposed());
    f.folder.Folder(QStringLiteral("two"));
    QVERIFY(QDir(f.folder.Path()).rmdir(QStringLiteral("one")));
    WhenAMenuOpens([&](QMenu* menu) { texts = TextsOf(menu); });
    ClickArrow(f.Current());
    QCOMPARE(texts, QStringList{QStringLiteral("two")});
}

void tst_TitleBarView::chosenEntryReportsItsPath()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.folder.Folder(QStringLiteral("two"));
    f.Show(f.folder.Path());
    WhenAMenuOpens([](QMenu* menu) { ClickEntry(menu, QStringLiteral("one")); });
    ClickArrow(f.Current());
    QCOMPARE(f.host.triggered, QStringList{path});
    QVERIFY(f.host.clicked.isEmpty());
}

void tst_TitleBarView::entryChosenByKeyReportsItsPath()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    WhenAMenuOpens([](QMenu* menu) {
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    ClickArrow(f.Current());
    QCOMPARE(f.host.triggered, QStringList{path});
}

void tst_TitleBarView::entryOfTheFileSystemRootHasOneSeparator()
{
    Fixture f;
    f.Show(QDir::rootPath());
    QCOMPARE(f.bar->GetToolButtonSize(), 1);
    f.Current()->CreateMenu();
    QVERIFY(f.Current()->ActionSize() > 0);
    for (std::size_t i = 0; i < f.Current()->ActionSize(); ++i) {
        const QString path = f.Current()->GetAction(i)->m_strPath;
        QCOMPARE(path, QDir::cleanPath(path));
    }
}

void tst_TitleBarView::entriesAreNamedByTheHost()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.host.names.insert(path, QStringLiteral("First"));
    f.Show(f.folder.Path());
    QCOMPARE(CodeOf(f.Current()->CreateMenu()), 0);
    QCOMPARE(f.host.asked, QStringList{path});
    QCOMPARE(f.Current()->ActionSize(), std::size_t(1));
    const CAction* action = f.Current()->GetAction(0);
    QCOMPARE(action->text(), QStringLiteral("First"));
    QCOMPARE(action->toolTip(), QStringLiteral("First"));
    QCOMPARE(action->m_strPath, path);
    f.host.names.insert(path, QLatin1String(""));
    f.Current()->CreateMenu();
    QCOMPARE(f.Current()->GetAction(0)->text(), QString());
}

void tst_TitleBarView::folderWithoutIndexKeepsItsOwnName()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.host.names.insert(path, QStringLiteral("First"));
    f.host.knowsIndexes = false;
    f.Show(f.folder.Path());
    f.Current()->CreateMenu();
    QCOMPARE(f.Current()->GetAction(0)->text(), QStringLiteral("one"));
    QCOMPARE(f.Current()->GetAction(0)->m_strPath, path);
}

void tst_TitleBarView::ampersandsAreShown()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("R&D"));
    f.folder.Folder(QStringLiteral("R&D/Q&A"));
    f.Show(path);
    QCOMPARE(f.Current()->text(), QStringLiteral("R&&D"));
    QCOMPARE(f.Current()->toolTip(), QStringLiteral("R&D"));
    QVERIFY(f.Current()->shortcut().isEmpty());
    f.Current()->CreateMenu();
    QCOMPARE(f.Current()->GetAction(0)->text(), QStringLiteral("Q&&A"));
    QCOMPARE(f.Current()->GetAction(0)->toolTip(), QStringLiteral("Q&A"));
    QCOMPARE(f.Current()->GetAction(0)->m_strPath, f.folder.Path(QStringLiteral("R&D/Q&A")));
}

void tst_TitleBarView::shellLinkStandsForItsTarget()
{
    Fixture f;
    const QString target = f.folder.Folder(QStringLiteral("elsewhere/target"));
    const QString place = f.folder.Folder(QStringLiteral("place"));
    f.folder.Link(target, QStringLiteral("place/Work.lnk"));
    f.folder.Link(target, QStringLiteral("place/Home.LNK"));
    f.host.knowsIndexes = false;
    f.Show(place);
    QVERIFY(f.Current()->menu());
    WhenAMenuOpens([](QMenu* menu) { ClickEntry(menu, QStringLiteral("Work")); });
    ClickArrow(f.Current());
    QCOMPARE(f.host.triggered, QStringList{target});
    // Shell links are what the system takes for some, and that goes by the letter case of their end.
    if (TestPlatform::HasSymbolicLinks()) {
        QVERIFY(ActionNamed(f.Current(), QStringLiteral("Home")));
        QCOMPARE(ActionNamed(f.Current(), QStringLiteral("Home"))->m_strPath, target);
    }
}

void tst_TitleBarView::hostIsAskedForTheTargetOfAShellLink()
{
    Fixture f;
    const QString target = f.folder.Folder(QStringLiteral("elsewhere/target"));
    const QString place = f.folder.Folder(QStringLiteral("place"));
    f.folder.Link(target, QStringLiteral("place/Work.lnk"));
    f.Show(place);
    f.Current()->CreateMenu();
    QCOMPARE(f.host.asked, QStringList{target});
    QCOMPARE(f.Current()->GetAction(0)->text(), QStringLiteral("target"));
}

void tst_TitleBarView::realFolderNamedLikeALinkIsAFolder()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("Archive.lnk"));
    f.host.knowsIndexes = false;
    f.Show(f.folder.Path());
    f.Current()->CreateMenu();
    QCOMPARE(f.Current()->ActionSize(), std::size_t(1));
    QCOMPARE(f.Current()->GetAction(0)->text(), QStringLiteral("Archive.lnk"));
    QCOMPARE(f.Current()->GetAction(0)->m_strPath, path);
    // Left to the cleaning up, it would stay where such names are those of links.
    QVERIFY(QDir().rmdir(path));
}

void tst_TitleBarView::danglingLinkIsLeftOut()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.folder.Link(f.folder.Path(QStringLiteral("nowhere")), QStringLiteral("Gone.lnk"));
    f.Show(f.folder.Path());
    f.Current()->CreateMenu();
    QCOMPARE(TextsOf(f.Current()->menu()), QStringList{QStringLiteral("one")});
}

void tst_TitleBarView::circleOfLinksIsHarmless()
{
    Fixture f;
    const QString place = f.folder.Folder(QStringLiteral("place"));
    f.folder.Link(place, QStringLiteral("place/Self.lnk"));
    f.folder.Link(f.folder.Path(QStringLiteral("place/b.lnk")), QStringLiteral("place/a.lnk"));
    f.folder.Link(f.folder.Path(QStringLiteral("place/a.lnk")), QStringLiteral("place/b.lnk"));
    f.host.knowsIndexes = false;
    f.Show(place);
    f.Current()->CreateMenu();
    QCOMPARE(TextsOf(f.Current()->menu()), QStringList{QStringLiteral("Self")});
    QCOMPARE(f.Current()->GetAction(0)->m_strPath, place);
}

void tst_TitleBarView::createMenuEmptiesTheActions()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    CTitleBarButton* button = f.Current();
    button->CreateMenu();
    const QPointer<CAction> old = button->GetAction(0);
    CAction pushed;
    button->PushAction(&pushed);
    QCOMPARE(button->ActionSize(), std::size_t(2));
    button->CreateMenu();
    QVERIFY(!old);
    QCOMPARE(button->ActionSize(), std::size_t(1));
    QCOMPARE(button->menu()->actions(), QList<QAction*>{button->GetAction(0)});
}

void tst_TitleBarView::setMenuQActionsAppendsToMenuAndActions()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    CTitleBarButton* button = f.Current();
    QString text = QStringLiteral("Extra");
    button->SetMenuQActions(text);
    QCOMPARE(button->ActionSize(), std::size_t(1));
    QCOMPARE(button->menu()->actions(), QList<QAction*>{button->GetAction(0)});
    QCOMPARE(button->GetAction(0)->text(), text);
    QCOMPARE(button->GetAction(0)->m_strPath, QString());
    button->GetAction(0)->trigger();
    QVERIFY(f.host.triggered.isEmpty());
    button->CreateMenu();
    QCOMPARE(TextsOf(button->menu()), QStringList{QStringLiteral("one")});
}

void tst_TitleBarView::pushActionAppendsToActionsOnly()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    CAction action;
    QCOMPARE(action.m_strPath, QString());
    QCOMPARE(CodeOf(f.Current()->PushAction(&action)), 0);
    QCOMPARE(f.Current()->ActionSize(), std::size_t(1));
    QCOMPARE(f.Current()->GetAction(0), &action);
    QVERIFY(f.Current()->menu()->isEmpty());
}

void tst_TitleBarView::vanishedFolderGivesAnEmptyMenu()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("a/b"));
    f.Show(f.folder.Path(QStringLiteral("a")));
    QVERIFY(f.Current()->menu());
    QVERIFY(QDir(f.folder.Path(QStringLiteral("a"))).removeRecursively());
    f.Current()->CreateMenu();
    QCOMPARE(f.Current()->ActionSize(), std::size_t(0));
    QVERIFY(f.Current()->menu()->isEmpty());
}

void tst_TitleBarView::emptyPathIsNotTheCurrentFolder()
{
    Fixture f;
    const QModelIndex index = f.host.IndexOf(f.folder.Path());
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QDir::rootPath()));
    f.host.paths.insert(index, QLatin1String(""));
    f.bar->UpdateCrumBar(index, false);
    const bool hasMenu = f.Current()->menu();
    f.Current()->CreateMenu();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(!hasMenu);
    QCOMPARE(f.Current()->GetCurrentPath(), QString());
    QCOMPARE(f.Current()->ActionSize(), std::size_t(0));
}

void tst_TitleBarView::tenThousandFoldersFitAMenu()
{
    KTFM_SKIP_ON_WINE("each name is looked for among all others, whose making takes minutes");
    Fixture f;
    constexpr int count = 10000;
    const QString place = f.folder.Folder(QStringLiteral("many"));
    // Links to folders: some file systems take half a minute to remove as many folders.
    for (int i = 0; i < count; ++i)
        f.folder.Link(place, QStringLiteral("many/%1.lnk").arg(i));
    f.host.knowsIndexes = false;
    f.Show(place);
    int shown = 0;
    WhenAMenuOpens([&shown](QMenu* menu) {
        shown = menu->actions().size();
        QTest::keyClick(menu, Qt::Key_Escape);
    });
    ClickArrow(f.Current());
    QCOMPARE(shown, count);
    QCOMPARE(f.Current()->ActionSize(), std::size_t(count));
    QVERIFY(ActionNamed(f.Current(), QString::number(count - 1)));
}

void tst_TitleBarView::opacityIsStoredAndPainted()
{
    Fixture f;
    f.Show(f.folder.Path());
    CTitleBarButton* button = f.Current();
    QCOMPARE(button->Opacity(), 255);
    QCOMPARE(button->property("Opacity").toInt(), 255);
    const auto painted = [button] {
        QImage image(button->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        button->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    };
    // Below the text, whose pixels are painted on those of the button, and above its frame.
    const auto alphaBelowTheTextOf = [](const QImage& image) {
        return image.pixelColor(image.width() / 4, image.height() - 5).alpha();
    };
    const QImage opaque = painted();
    QVERIFY(alphaBelowTheTextOf(opaque) > 0);
    QVERIFY(button->setProperty("Opacity", 128));
    QCOMPARE(button->Opacity(), 128);
    QVERIFY(qAbs(alphaBelowTheTextOf(painted()) - alphaBelowTheTextOf(opaque) * 128 / 255) <= 2);
    button->setOpacity(0);
    QImage nothing(button->size(), QImage::Format_ARGB32_Premultiplied);
    nothing.fill(Qt::transparent);
    QCOMPARE(painted(), nothing);
}

void tst_TitleBarView::opacityBeyondTheRangeIsPaintedAsItsEnd()
{
    Fixture f;
    f.Show(f.folder.Path());
    CTitleBarButton* button = f.Current();
    const QImage opaque = button->grab().toImage();
    button->setOpacity(1000);
    QCOMPARE(button->Opacity(), 1000);
    QCOMPARE(button->grab().toImage(), opaque);
    button->setOpacity(0);
    const QImage invisible = button->grab().toImage();
    QVERIFY(invisible != opaque);
    button->setOpacity(-1);
    QCOMPARE(button->Opacity(), -1);
    QCOMPARE(button->grab().toImage(), invisible);
}

void tst_TitleBarView::settingTheOpacityRepaints()
{
    Fixture f;
    f.Show(f.folder.Path());
    QCoreApplication::processEvents();
    const PaintCounter paints(f.Current());
    f.Current()->setOpacity(100);
    QTRY_VERIFY(paints.count > 0);
}

void tst_TitleBarView::barWithoutHostBuildsBlankButtons()
{
    QWidget window;
    CTitleBarView bar(&window, nullptr);
    QFileSystemModel model;
    const TestFolder folder;
    QCOMPARE(CodeOf(bar.UpdateCrumBar(model.index(folder.Path()), false)), 0);
    QVERIFY(bar.GetToolButtonSize() > 1);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    CTitleBarButton* button = bar.GetToolButton(1);
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->toolTip(), QString());
    QCOMPARE(button->GetCurrentPath(), QString());
    button->click();
    QCOMPARE(CodeOf(button->CreateMenu()), 0);
    QCOMPARE(button->ActionSize(), std::size_t(0));
}

void tst_TitleBarView::buttonWithoutBarHasNoFolder()
{
    Host host;
    const TestFolder folder;
    QModelIndex index = host.IndexOf(folder.Path());
    QWidget window;
    CTitleBarButton button(&window, index);
    QCOMPARE(button.GetModelIndex(), index);
    QCOMPARE(button.text(), QString());
    QCOMPARE(button.GetCurrentPath(), QString());
    QCOMPARE(CodeOf(button.CreateMenu()), 0);
    QCOMPARE(button.ActionSize(), std::size_t(0));
}

void tst_TitleBarView::longNamesAreKept()
{
    Fixture f;
    const QString name(250, QLatin1Char('w'));
    f.Show(f.folder.Folder(name));
    QCOMPARE(f.Current()->text(), name);
    QCOMPARE(f.Current()->toolTip(), name);
    const QString endless(100000, QLatin1Char('w'));
    f.host.names.insert(f.folder.Path(name), endless);
    f.bar->UpdateCrumBar(f.host.IndexOf(f.folder.Path(name)), true);
    QTRY_VERIFY(f.Current()->isVisible());
    QCOMPARE(f.Current()->text(), endless);
}

void tst_TitleBarView::hostMayRebuildTheBarFromAClick()
{
    Fixture f;
    f.Show(f.folder.Folder(QStringLiteral("a/b")));
    f.host.onClicked = [&f] { f.bar->UpdateCrumBar(f.host.clicked.constLast(), true); };
    ClickName(f.bar->GetToolButton(1));
    QCOMPARE(f.Current()->GetCurrentPath(), f.folder.Path(QStringLiteral("a")));
    QTRY_VERIFY(f.Current()->isVisible());
    ClickName(f.Current());
    QCOMPARE(f.host.clicked.size(), 2);
    QCOMPARE(f.Current()->GetCurrentPath(), f.folder.Path(QStringLiteral("a")));
}

void tst_TitleBarView::hostMayDeleteTheBarFromAClick()
{
    Fixture f;
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> button = f.bar->GetToolButton(1);
    const QPointer<CTitleBarButton> other = f.Current();
    f.host.onClicked = [&f] { delete f.bar; };
    ClickName(button);
    QVERIFY(!f.bar);
    QVERIFY(!other);
    QCOMPARE(f.host.clicked.size(), 1);
    QTRY_VERIFY(!button);
}

void tst_TitleBarView::hostMayRebuildAndThenDeleteTheBarFromAClick()
{
    Fixture f;
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> button = f.bar->GetToolButton(1);
    f.host.onClicked = [&f] {
        f.bar->UpdateCrumBar(f.host.clicked.constLast(), false);
        delete f.bar;
    };
    ClickName(button);
    QVERIFY(!f.bar);
    QTRY_VERIFY(!button);
}

void tst_TitleBarView::hostMayDeleteTheBarFromAKey()
{
    Fixture f;
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> button = f.Current();
    f.host.onClicked = [&f] { delete f.bar; };
    QTest::keyPress(button, Qt::Key_Space);
    QTest::keyRelease(button, Qt::Key_Space);
    QVERIFY(!f.bar);
    QTRY_VERIFY(!button);
}

void tst_TitleBarView::hostMayRebuildTheBarFromAMenu()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    f.host.onTriggered = [&f] { f.bar->UpdateCrumBar(f.host.IndexOf(f.host.triggered.constLast()), false); };
    WhenAMenuOpens([](QMenu* menu) { ClickEntry(menu, QStringLiteral("one")); });
    ClickArrow(f.Current());
    QCOMPARE(f.Current()->GetCurrentPath(), path);
    QTRY_VERIFY(f.Current()->isVisible());
}

void tst_TitleBarView::hostMayDeleteTheBarFromAMenu()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    const QPointer<QMenu> menu = f.Current()->GetMenuPtr();
    f.host.onTriggered = [&f] { delete f.bar; };
    WhenAMenuOpens([](QMenu* open) { ClickEntry(open, QStringLiteral("one")); });
    ClickArrow(f.Current());
    QVERIFY(!f.bar);
    QCOMPARE(f.host.triggered.size(), 1);
    QTRY_VERIFY(!menu);
}

void tst_TitleBarView::hostMayDeleteTheBarFromAMenuByKey()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    const QPointer<QMenu> menu = f.Current()->GetMenuPtr();
    f.host.onTriggered = [&f] { delete f.bar; };
    WhenAMenuOpens([](QMenu* open) {
        QTest::keyClick(open, Qt::Key_Down);
        QTest::keyClick(open, Qt::Key_Return);
    });
    ClickArrow(f.Current());
    QVERIFY(!f.bar);
    QTRY_VERIFY(!menu);
}

void tst_TitleBarView::hostMayDeleteTheBarFromATriggeredAction()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    f.Current()->CreateMenu();
    const QPointer<QMenu> menu = f.Current()->GetMenuPtr();
    f.host.onTriggered = [&f] { delete f.bar; };
    f.Current()->GetAction(0)->trigger();
    QVERIFY(!f.bar);
    QTRY_VERIFY(!menu);
}

void tst_TitleBarView::hostMayFillTheMenuAgainFromAnEntry()
{
    Fixture f;
    const QString path = f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    f.host.onTriggered = [&f] { f.Current()->CreateMenu(); };
    WhenAMenuOpens([](QMenu* menu) { ClickEntry(menu, QStringLiteral("one")); });
    ClickArrow(f.Current());
    QCOMPARE(f.host.triggered, QStringList{path});
    QCOMPARE(f.Current()->ActionSize(), std::size_t(1));
}

void tst_TitleBarView::hostMayRebuildTheBarWhileAMenuIsOpen()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> old = f.Current();
    WhenAMenuOpens([&](QMenu*) {
        f.bar->UpdateCrumBar(f.host.IndexOf(f.folder.Path()), true);
        DeleteWhatIsDue();
    });
    ClickArrow(f.Current());
    QTRY_VERIFY(!old);
    QTRY_VERIFY(f.Current()->isVisible());
}

void tst_TitleBarView::hostMayDeleteTheBarWhileAMenuIsOpen()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.Show(f.folder.Path());
    WhenAMenuOpens([&](QMenu*) { delete f.bar; });
    ClickArrow(f.Current());
    QVERIFY(!f.bar);
}

void tst_TitleBarView::rebuildFromAQuestionIsRefused()
{
    Fixture f;
    const QModelIndex index = f.host.IndexOf(f.folder.Folder(QStringLiteral("a")));
    const QModelIndex other = f.host.IndexOf(f.folder.Path());
    int refused = 0;
    f.host.onQuestion = [&] { refused += f.bar->UpdateCrumBar(other, true).code; };
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(index, false)), 0);
    QCOMPARE(refused, f.bar->GetToolButtonSize());
    QCOMPARE(f.Current()->GetModelIndex(), index);
    f.host.onQuestion = nullptr;
    QCOMPARE(CodeOf(f.bar->UpdateCrumBar(other, false)), 0);
}

void tst_TitleBarView::rebuildFromAMenuQuestionIsCarriedOut()
{
    Fixture f;
    f.folder.Folder(QStringLiteral("one"));
    f.folder.Folder(QStringLiteral("two"));
    const QModelIndex index = f.host.IndexOf(f.folder.Path());
    f.Show(f.folder.Path());
    const QPointer<CTitleBarButton> old = f.Current();
    f.host.onQuestion = [&] {
        f.host.onQuestion = nullptr;
        f.bar->UpdateCrumBar(index, true);
        DeleteWhatIsDue();
    };
    QCOMPARE(CodeOf(f.Current()->CreateMenu()), 0);
    QVERIFY(!old);
    QCOMPARE(f.host.asked.size(), 2);
    QCOMPARE(f.Current()->GetModelIndex(), index);
}

KTFM_TEST_MAIN(tst_TitleBarView)
#include "tst_titlebarview.moc"
