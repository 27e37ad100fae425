#include "tests/widget/CommandPane.h"

#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CKTFMCustomListModel.h>

#include <QListWidgetItem>
#include <QTranslator>

namespace {

/** The texts of one language. */
struct Language
{
    const char* name;
    const char* category;
    const char* newFolder;
    const char* promptTitle;
    const char* questionForA;
    const char* fiveBytes;
};

const Language Languages[] = {
    {"de", "Kategorie", "Neuer Ordner1", "Datei ersetzen",
     "„a.txt“ ist bereits vorhanden.\nMöchten Sie das vorhandene Element ersetzen?", "5 Byte"},
    {"fr", "Catégorie", "Nouveau dossier1", "Remplacer le fichier",
     "L’élément «\u00a0a.txt\u00a0» existe déjà.\nVoulez-vous le remplacer\u00a0?", "5\u00a0o"},
    {"es", "Categoría", "Nueva carpeta1", "Reemplazar archivo",
     "El elemento «a.txt» ya existe.\n¿Desea reemplazarlo?", "5 B"},
    {"zh_CN", "类别", "新建文件夹1", "替换文件", "“a.txt”已存在。\n是否替换？", "5 字节"},
    {"ja", "カテゴリ", "新しいフォルダー1", "ファイルの置き換え",
     "「a.txt」は既に存在します。\n置き換えますか？", "5 バイト"},
};

const Language English = {"en",
                          "Category",
                          "New Folder1",
                          "Replace File",
                          "Item 'a.txt' alreay exists ! \nDo you want to replace it ?",
                          "5 bytes"};

/** While it lives, the application speaks a language of the built catalogues, taken on as a host does. */
class SpokenLanguage
{
public:
    explicit SpokenLanguage(const char* name)
        : m_isLoaded(m_translator.load(QLocale(QLatin1String(name)), QStringLiteral("KTFileManager2QU"),
                                       QStringLiteral("_"), QStringLiteral(KTFM_TRANSLATIONS_DIR)) &&
                     QCoreApplication::installTranslator(&m_translator))
    {
    }
    ~SpokenLanguage() { QCoreApplication::removeTranslator(&m_translator); }
    Q_DISABLE_COPY(SpokenLanguage)

    bool IsLoaded() const { return m_isLoaded; }

private:
    QTranslator m_translator;
    bool m_isLoaded;
};

/** A catalogue of someone else's: it has one text for everything, and goes with the test. */
class OneTextTranslator : public QTranslator
{
public:
    explicit OneTextTranslator(const QString& text) : m_text(text)
    {
        QCoreApplication::installTranslator(this);
    }
    ~OneTextTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override
    {
        Q_UNUSED(source)
        Q_UNUSED(disambiguation)
        Q_UNUSED(n)
        return context == QByteArray("CKTFileManager") ? m_text : QString();
    }

private:
    QString m_text;
};

QString SizeTextOf(const QString& file)
{
    QListWidgetItem item(file);
    CKTFMCustomListModel model;
    model.SetHeaderTextList(Words(QStringLiteral("Name Size")));
    model.AddItem(&item);
    return model.index(0, 1).data().toString();
}

QString CategoryOf(const QAbstractItemModel& model)
{
    return model.headerData(0, Qt::Horizontal).toString();
}

/** Makes a pane meet every text of the language, and compares them. */
void CompareTexts(const Language& language)
{
    CommandPane pane(FM_MODE_ALIAS_TREE_AND_LIST);
    const QString file = pane.m_folder.File(QStringLiteral("out/a.txt"), "five.");
    pane.m_folder.File(QStringLiteral("shown/a.txt"));
    QVERIFY(pane.Open(1));
    QCOMPARE(SizeTextOf(file), QString::fromUtf8(language.fiveBytes));
    pane.m_pPane->PopulateAliasTable(QStringLiteral("Top\n"));
    QCOMPARE(CategoryOf(*pane.m_pAliasModel), QString::fromUtf8(language.category));

    OfferPaths({file});
    QString title;
    PromptAnswers answers({QMessageBox::Cancel});
    answers.m_onPrompt = [&title](const QMessageBox& box) { title = box.windowTitle(); };
    pane.Do(FM_CMD_PASTE);
    QCOMPARE(answers.m_texts, QStringList(QString::fromUtf8(language.questionForA)));
    QCOMPARE(title, QString::fromUtf8(language.promptTitle));

    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QVERIFY(QFileInfo(pane.Path(QString::fromUtf8(language.newFolder))).isDir());
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void paneSpeaksTheLanguageOfItsApplication_data();
    void paneSpeaksTheLanguageOfItsApplication();
    void headersFollowAChangeAndGoBack();
    void headerOfTheHostStays();
    void headersStayWithTheirColumns();
    void textThatNoNameMayHoldIsNotUsed_data();
    void textThatNoNameMayHoldIsNotUsed();
    void namesOfCopiesAreTheSameInAllLanguages();
};

void tst_Translations::paneSpeaksTheLanguageOfItsApplication_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const Language& language : Languages)
        QTest::newRow(language.name) << number++;
}

void tst_Translations::paneSpeaksTheLanguageOfItsApplication()
{
    QFETCH(int, number);
    {
        const SpokenLanguage spoken(Languages[number].name);
        QVERIFY(spoken.IsLoaded());
        CompareTexts(Languages[number]);
        if (QTest::currentTestFailed())
            return;
    }
    CompareTexts(English);
}

void tst_Translations::headersFollowAChangeAndGoBack()
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Top\n"));
    for (const Language& language : Languages) {
        const SpokenLanguage spoken(language.name);
        QCOMPARE(CategoryOf(model), QString::fromUtf8(language.category));
        model.PopulateAliasTree(QStringLiteral("Top\n"));
        QCOMPARE(CategoryOf(model), QString::fromUtf8(language.category));
    }
    QCOMPARE(CategoryOf(model), QStringLiteral("Category"));
}

void tst_Translations::headerOfTheHostStays()
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Top\n"));
    QVERIFY(model.setHeaderData(0, Qt::Horizontal, QStringLiteral("Room")));
    const SpokenLanguage spoken("de");
    QCOMPARE(CategoryOf(model), QStringLiteral("Room"));
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Dateipfad"));
}

void tst_Translations::headersStayWithTheirColumns()
{
    CKTFMAliasTreeModel model;
    model.PopulateAliasTree(QStringLiteral("Top\n"));
    QVERIFY(model.insertColumns(0, 1));
    const SpokenLanguage spoken("de");
    QVERIFY(CategoryOf(model).isEmpty());
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Kategorie"));
    QVERIFY(!model.headerData(1, Qt::Vertical).isValid());
}

void tst_Translations::textThatNoNameMayHoldIsNotUsed_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("leaves the folder") << "../out/x";
    QTest::newRow("a folder further down") << "shown/x";
    QTest::newRow("forbidden on some systems") << "new?";
    QTest::newRow("blank") << " ";
    QTest::newRow("empty") << "";
}

void tst_Translations::textThatNoNameMayHoldIsNotUsed()
{
    QFETCH(QString, text);
    CommandPane pane;
    pane.m_folder.Folder(QStringLiteral("out"));
    QVERIFY(pane.Open(0));
    const OneTextTranslator foreign(text);
    QVERIFY(pane.Do(FM_CMD_NEW_FOLDER));
    QCOMPARE(pane.Names(), QStringList(QStringLiteral("New Folder1")));
    QCOMPARE(pane.Names(QStringLiteral("out")), QStringList());
}

void tst_Translations::namesOfCopiesAreTheSameInAllLanguages()
{
    for (const Language& language : Languages) {
        const SpokenLanguage spoken(language.name);
        CommandPane pane;
        OfferPaths({pane.m_folder.File(QStringLiteral("shown/a.txt"))});
        QVERIFY(pane.Open(1));
        QVERIFY(pane.Do(FM_CMD_PASTE));
        QCOMPARE(pane.Names(), Words(QStringLiteral("a-Copy(1).txt a.txt")));
    }
}

KTFM_TEST_MAIN(tst_Translations)
#include "tst_translations.moc"
