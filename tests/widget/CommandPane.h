#ifndef COMMANDPANE_H
#define COMMANDPANE_H

#include "tests/support/TestFolder.h"

#include <KTFileManager2QU/CKTFMAliasTreeModel.h>
#include <KTFileManager2QU/CKTFMListModel.h>
#include <KTFileManager2QU/CKTFMTreeModel.h>
#include <KTFileManager2QU/CKTFileManager.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeView>
#include <QUrl>
#include <QtTest>

#include <functional>
#include <memory>

/** A pane over the folder "shown" of a test's folder; the clipboard is empty at first. */
class CommandPane
{
public:
    explicit CommandPane(EKTFMMode mode = FM_MODE_TREE_AND_LIST)
        : m_pPane(new CKTFileManager(&m_window, QRect(0, 0, 900, 500), mode, 30, true)),
          m_pListModel(m_pPane->GetListModel()),
          m_pTreeModel(m_pPane->GetTreeModel()),
          m_pAliasModel(m_pPane->GetAliasTreeModel())
    {
        QApplication::clipboard()->clear();
        m_folder.Folder(QStringLiteral("shown"));
        m_pPane->SetSelectionMode(FM_SELECTION_EXTENDED);
        m_window.resize(900, 500);
        m_window.show();
    }
    ~CommandPane() { delete m_pPane; }
    Q_DISABLE_COPY(CommandPane)

    /** Shows the folder "shown" in tree and list; returns when the list holds @p count entries. */
    bool Open(int count)
    {
        m_pPane->SetDirectory(Path());
        m_pPane->SetDirectory(Path());
        return Lists(count);
    }

    /** @return whether the list comes to hold @p count entries */
    bool Lists(int count) const
    {
        return QTest::qWaitFor([&] { return Grid()->model()->rowCount(Grid()->rootIndex()) == count; },
                               20000);
    }

    QString Path() const { return m_folder.Path(QStringLiteral("shown")); }
    QString Path(const QString& name) const { return Path() + QLatin1Char('/') + name; }

    QListView* Grid() const { return m_pPane->findChild<QListView*>(); }
    QTreeView* AliasView() const { return m_pPane->GetAliasTreeView(); }
    QTreeView* TreeView() const { return ViewOf(m_pTreeModel.get()); }
    QTreeView* Details() const { return ViewOf(Grid()->model()); }

    QModelIndex Index(const QString& name) const
    {
        const auto* proxy = qobject_cast<QSortFilterProxyModel*>(Grid()->model());
        return proxy->mapFromSource(m_pListModel->index(Path(name)));
    }

    /** Selects items of the list as clicks with Ctrl do, in this order. */
    void Select(const QStringList& names) const
    {
        for (const QString& name : names)
            Grid()->selectionModel()->select(Index(name), QItemSelectionModel::Select);
    }

    /** Names of what is on disk in a folder of the test, sorted. */
    QStringList Names(const QString& relative = QStringLiteral("shown")) const
    {
        return QDir(m_folder.Path(relative))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    bool Do(EKTFMCommand command) const { return m_pPane->DoCommand(command); }

    TestFolder m_folder;
    QWidget m_window; ///< a window without a layout, which asks nothing of the platform
    QPointer<CKTFileManager> m_pPane;
    std::unique_ptr<CKTFMListModel> m_pListModel;
    std::unique_ptr<CKTFMTreeModel> m_pTreeModel;
    std::unique_ptr<CKTFMAliasTreeModel> m_pAliasModel;

private:
    QTreeView* ViewOf(const QAbstractItemModel* model) const
    {
        const QList<QTreeView*> views = m_pPane->findChildren<QTreeView*>();
        for (QTreeView* view : views) {
            if (view->model() == model)
                return view;
        }
        return nullptr;
    }
};

/** Puts paths on the clipboard as another program does. */
inline void OfferPaths(const QStringList& paths)
{
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    auto* mime = new QMimeData;
    mime->setUrls(urls);
    QApplication::clipboard()->setMimeData(mime);
}

inline QStringList ClipboardPaths()
{
    QStringList paths;
    const QList<QUrl> urls = QApplication::clipboard()->mimeData()->urls();
    for (const QUrl& url : urls)
        paths.append(url.toLocalFile());
    return paths;
}

inline QStringList Words(const QString& words)
{
    return words.split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/** Answers message boxes by clicks, each when it is on the screen, and notes what they asked. */
class PromptAnswers
{
public:
    explicit PromptAnswers(const QList<QMessageBox::StandardButton>& answers) : m_answers(answers)
    {
        // The offscreen platform says so of every window that a layout gives a size.
        if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
            for (int i = 0; i < answers.size(); ++i)
                QTest::ignoreMessage(QtWarningMsg, "This plugin does not support propagateSizeHints()");
        }
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { AnswerNext(); });
        m_timer.start();
    }

    /** Runs while each prompt is on the screen, before it is answered. */
    std::function<void(QMessageBox&)> m_onPrompt;

    QStringList m_texts;

private:
    void AnswerNext()
    {
        const QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isActiveWindow() || box == m_pLast)
            return;
        m_pLast = box;
        m_texts.append(box->text());
        if (m_onPrompt)
            m_onPrompt(*box);
        if (!box || !box->isVisible())
            return;
        if (m_texts.size() > m_answers.size())
            qFatal("a prompt that the test did not expect: %s", qPrintable(box->text()));
        QTest::mouseClick(box->button(m_answers.at(m_texts.size() - 1)), Qt::LeftButton);
    }

    QList<QMessageBox::StandardButton> m_answers;
    QPointer<QMessageBox> m_pLast;
    QTimer m_timer;
};

#endif
