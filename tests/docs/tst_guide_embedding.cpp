#include "docs/listings/window/MainWindow.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QStatusBar>

namespace {

/** The window of the guide over a folder of its own. */
class Shown
{
public:
    Shown()
    {
        m_folder.File(QStringLiteral("a.txt"));
        m_folder.File(QStringLiteral("b.txt"));
        m_folder.Folder(QStringLiteral("sub"));
        m_pWindow = std::make_unique<MainWindow>(m_folder.Path());
    }

    CKTFileManager* Pane() const { return m_pWindow->findChild<CKTFileManager*>(); }
    QListView* Grid() const { return Pane()->findChild<QListView*>(); }
    QModelIndex Index(const QString& name) const
    {
        const auto* proxy = qobject_cast<QSortFilterProxyModel*>(Grid()->model());
        return proxy->mapFromSource(Pane()->GetListModel()->index(m_folder.Path(name)));
    }

    bool IsListed() const
    {
        // The offscreen platform says so of every window that a layout gives a size.
        if (QGuiApplication::platformName() == QLatin1String("offscreen"))
            QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
        m_pWindow->show();
        return QTest::qWaitFor([this] { return Grid()->model()->rowCount(Grid()->rootIndex()) == 3; }, 20000);
    }

    TestFolder m_folder;
    std::unique_ptr<MainWindow> m_pWindow;
};

} // namespace

class tst_GuideEmbedding : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void modelsGoWithThePaneThatIsTheirParent();
    void modelsMayGoWhileANameIsEdited();
    void modelsWithoutAParentSurviveThePane();
    void firstFolderMayBeShownByItsTreeItem();
    void folderMayBeOpenedOnAFile();
    void windowShowsItsFolder();
    void doubleClickOnAFileReachesTheHost();
    void doubleClickOnAFolderOpensIt();
    void menuOffersWhatCanBeDone();
    void refusedRenameIsShown();
};

void tst_GuideEmbedding::modelsGoWithThePaneThatIsTheirParent()
{
    Shown shown;
    QVERIFY(shown.IsListed());
    const QPointer<QObject> list = shown.Pane()->GetListModel();
    const QPointer<QObject> tree = shown.Pane()->GetTreeModel();
    shown.m_pWindow.reset();
    QVERIFY(!list);
    QVERIFY(!tree);
}

void tst_GuideEmbedding::modelsMayGoWhileANameIsEdited()
{
    Shown shown;
    QVERIFY(shown.IsListed());
    const QString path = shown.m_folder.Path(QStringLiteral("a.txt"));
    QVERIFY(shown.Pane()->SetCurrentSelection(path, false, true));
    const QPointer<QLineEdit> editor = shown.Grid()->findChild<QLineEdit*>();
    QVERIFY(editor);
    editor->setText(QStringLiteral("other"));
    shown.m_pWindow.reset();
    QVERIFY(!editor);
    QVERIFY(QFile::exists(path));
}

void tst_GuideEmbedding::modelsWithoutAParentSurviveThePane()
{
    auto pane = std::make_unique<CKTFileManager>(nullptr, QRect(0, 0, 400, 300), FM_MODE_LIST_ONLY, 0, true);
    std::array<std::unique_ptr<QObject>, 3> models;
    models[0].reset(pane->GetListModel());
    models[1].reset(pane->GetTreeModel());
    models[2].reset(pane->GetAliasTreeModel());
    const QPointer<QObject> list = models[0].get();
    pane.reset();
    QVERIFY(list);
}

void tst_GuideEmbedding::firstFolderMayBeShownByItsTreeItem()
{
    const PaneFixture p;
    p.m_folder.File(QStringLiteral("a.txt"));
    p.m_pPane->SetDirectory(p.m_folder.Path());
    QVERIFY(p.m_pPane->GetListModel()->rootPath() != p.m_folder.Path());
    p.m_pPane->SelectTreeItem(p.m_pPane->GetTreeModel()->index(p.m_folder.Path()));
    QTRY_COMPARE(p.Names(), QStringList(QStringLiteral("a.txt")));
    QCOMPARE(p.m_pPane->GetCurSelectedFolder(FM_PART_TREE), QString());
    QVERIFY(!p.m_pPane->DoCommand(FM_CMD_NEW_FOLDER));
}

void tst_GuideEmbedding::folderMayBeOpenedOnAFile()
{
    PaneFixture p;
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        p.m_folder.File(QString::fromLatin1(name));
    p.Open(p.m_folder.Path());
    const QStringList chosen(p.m_folder.Path(QStringLiteral("b.txt")));
    QVERIFY(p.m_pPane->SetCurrentSelection(chosen.first(), false, false));
    QVERIFY(p.Names().size() < 3);
    QVERIFY(p.Show());
    QTRY_COMPARE(p.Names().size(), 3);
    QCOMPARE(p.m_pPane->GetCurSelectedFileList(true), chosen);
}

void tst_GuideEmbedding::windowShowsItsFolder()
{
    const Shown shown;
    QVERIFY(shown.IsListed());
    QCOMPARE(shown.m_pWindow->windowTitle(), QDir::toNativeSeparators(shown.m_folder.Path()));
}

void tst_GuideEmbedding::doubleClickOnAFileReachesTheHost()
{
    const Shown shown;
    QVERIFY(shown.IsListed());
    QSignalSpy opened(shown.m_pWindow.get(), &MainWindow::FileOpened);
    shown.Pane()->OnListDblClicked(shown.Index(QStringLiteral("a.txt")));
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.first().first().toString(), shown.m_folder.Path(QStringLiteral("a.txt")));
}

void tst_GuideEmbedding::doubleClickOnAFolderOpensIt()
{
    const Shown shown;
    QVERIFY(shown.IsListed());
    QSignalSpy opened(shown.m_pWindow.get(), &MainWindow::FileOpened);
    shown.Pane()->OnListDblClicked(shown.Index(QStringLiteral("sub")));
    QCOMPARE(opened.size(), 0);
    QCOMPARE(shown.m_pWindow->windowTitle(),
             QDir::toNativeSeparators(shown.m_folder.Path(QStringLiteral("sub"))));
}

void tst_GuideEmbedding::menuOffersWhatCanBeDone()
{
    const Shown shown;
    QVERIFY(shown.IsListed());
    const QModelIndex item = shown.Index(QStringLiteral("a.txt"));
    shown.Grid()->setCurrentIndex(item);
    const QPoint position = shown.Grid()->visualRect(item).center();
    QMenu* menu = shown.Pane()->GetContextMenu();
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
    }
    QTimer::singleShot(0, menu, [menu] { menu->close(); });
    QContextMenuEvent event(QContextMenuEvent::Mouse, position,
                            shown.Grid()->viewport()->mapToGlobal(position));
    QApplication::sendEvent(shown.Grid()->viewport(), &event);
    QCOMPARE(menu->actions().size(), 2);
    menu->actions().constFirst()->trigger();
    QVERIFY(!QFile::exists(shown.m_folder.Path(QStringLiteral("a.txt"))));
}

void tst_GuideEmbedding::refusedRenameIsShown()
{
    const Shown shown;
    QVERIFY(shown.IsListed());
    CKTFMListModel* model = shown.Pane()->GetListModel();
    const QModelIndex item = model->index(shown.m_folder.Path(QStringLiteral("a.txt")));
    QVERIFY(!model->setData(item, QStringLiteral("b.txt"), Qt::EditRole));
    QVERIFY(shown.m_pWindow->statusBar()->currentMessage().isEmpty());
    QTRY_COMPARE(shown.m_pWindow->statusBar()->currentMessage(), QStringLiteral("This name is taken."));
}

KTFM_TEST_MAIN(tst_GuideEmbedding)
#include "tst_guide_embedding.moc"
