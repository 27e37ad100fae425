#include "docs/listings/file-commands/Commands.h"
#include "tests/support/TestMain.h"
#include "tests/widget/CommandPane.h"

#include <QAction>
#include <QToolBar>

namespace {

/** The tool bar of the guide beside a pane over two files. */
class Commanded : public CommandPane
{
public:
    Commanded()
    {
        m_folder.File(QStringLiteral("shown/a.txt"), "a");
        m_folder.File(QStringLiteral("shown/b.txt"), "b");
        AddCommands(m_toolBar, *m_pPane);
    }

    void Trigger(const QString& text) const
    {
        const QList<QAction*> actions = m_toolBar.actions();
        for (QAction* action : actions) {
            if (action->text() == text)
                return action->trigger();
        }
        qFatal("there is no button %s", qPrintable(text));
    }

    QToolBar m_toolBar;
};

} // namespace

class tst_GuideFileCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyThenPasteMakesACopyBesideTheFile();
    void cutThenPasteMoves();
    void newFolderIsMade();
    void deleteAsksFirst_data();
    void deleteAsksFirst();
};

void tst_GuideFileCommands::copyThenPasteMakesACopyBesideTheFile()
{
    Commanded p;
    QVERIFY(p.Open(2));
    p.Select({QStringLiteral("a.txt")});
    p.Trigger(QStringLiteral("Copy"));
    p.Trigger(QStringLiteral("Paste"));
    QCOMPARE(p.Names(), Words(QStringLiteral("a-Copy(1).txt a.txt b.txt")));
}

void tst_GuideFileCommands::cutThenPasteMoves()
{
    Commanded p;
    p.m_folder.Folder(QStringLiteral("elsewhere"));
    QVERIFY(p.Open(2));
    p.Select({QStringLiteral("a.txt")});
    p.Trigger(QStringLiteral("Cut"));
    p.m_pPane->SetDirectory(p.m_folder.Path(QStringLiteral("elsewhere")));
    p.Trigger(QStringLiteral("Paste"));
    QCOMPARE(p.Names(), Words(QStringLiteral("b.txt")));
    QCOMPARE(p.Names(QStringLiteral("elsewhere")), Words(QStringLiteral("a.txt")));
}

void tst_GuideFileCommands::newFolderIsMade()
{
    Commanded p;
    QVERIFY(p.Open(2));
    p.Trigger(QStringLiteral("New folder"));
    QVERIFY(p.Names().contains(QStringLiteral("New Folder1")));
}

void tst_GuideFileCommands::deleteAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("left");
    QTest::newRow("yes") << int(QMessageBox::Yes) << QStringLiteral("b.txt");
    QTest::newRow("no") << int(QMessageBox::No) << QStringLiteral("a.txt b.txt");
}

void tst_GuideFileCommands::deleteAsksFirst()
{
    QFETCH(int, answer);
    QFETCH(QString, left);
    Commanded p;
    QVERIFY(p.Open(2));
    p.Select({QStringLiteral("a.txt")});
    PromptAnswers answers({QMessageBox::StandardButton(answer)});
    p.Trigger(QStringLiteral("Delete"));
    QCOMPARE(answers.m_texts, QStringList(QStringLiteral("Delete 1 items? This cannot be undone.")));
    QCOMPARE(p.Names(), Words(left));
}

KTFM_TEST_MAIN(tst_GuideFileCommands)
#include "tst_guide_filecommands.moc"
