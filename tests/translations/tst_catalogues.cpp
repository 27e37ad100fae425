#include "models/FileNameRules.h"

#include "tests/support/TestMain.h"

#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString source;
    QString translation;
    bool isFinished;
};

/** Reads the text of one message element. */
Message ReadMessage(QXmlStreamReader& xml)
{
    Message message{QString(), QString(), false};
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

QVector<Message> MessagesOf(const QString& language)
{
    QFile file(QStringLiteral(KTFM_CATALOGUES_DIR "/KTFileManager2QU_%1.ts").arg(language));
    QVector<Message> messages;
    if (!file.open(QIODevice::ReadOnly))
        return messages;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("message"))
            messages.append(ReadMessage(xml));
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

QString TranslationOf(const QVector<Message>& messages, const QString& source)
{
    for (const Message& message : messages) {
        if (message.source == source)
            return message.translation;
    }
    return QString();
}

/** The places of a text for names and numbers, sorted. */
QStringList PlacesOf(const QString& text)
{
    static const QRegularExpression place(QStringLiteral("%[L0-9n]+"));
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();)
        places.append(found.next().captured());
    places.sort();
    return places;
}

} // namespace

class tst_Catalogues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedLanguagesAreThere();
    void everyTextIsTranslated_data() { AddLanguages(); }
    void everyTextIsTranslated();
    void placesAreKept_data() { AddLanguages(); }
    void placesAreKept();
    void diskCanHoldWhatNamesAreMadeOf_data() { AddLanguages(); }
    void diskCanHoldWhatNamesAreMadeOf();
    void headersOfTheAliasTreeDiffer_data() { AddLanguages(); }
    void headersOfTheAliasTreeDiffer();

private:
    static QStringList Languages();
    static void AddLanguages();
};

QStringList tst_Catalogues::Languages()
{
    QStringList languages;
    const QStringList files = QDir(QStringLiteral(KTFM_CATALOGUES_DIR))
                                  .entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        languages.append(QFileInfo(file).completeBaseName().section(QLatin1Char('_'), 1));
    return languages;
}

void tst_Catalogues::AddLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Languages();
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void tst_Catalogues::shippedLanguagesAreThere()
{
    const QStringList languages = Languages();
    for (const char* language : {"de", "es", "fr", "ja", "zh_CN"})
        QVERIFY2(languages.contains(QLatin1String(language)), language);
}

void tst_Catalogues::everyTextIsTranslated()
{
    QFETCH(QString, language);
    const QVector<Message> messages = MessagesOf(language);
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages) {
        QVERIFY2(message.isFinished, qPrintable(message.source));
        QVERIFY2(!message.translation.trimmed().isEmpty(), qPrintable(message.source));
    }
}

void tst_Catalogues::placesAreKept()
{
    QFETCH(QString, language);
    const QVector<Message> messages = MessagesOf(language);
    QVERIFY(!messages.isEmpty());
    for (const Message& message : messages)
        QCOMPARE(PlacesOf(message.translation), PlacesOf(message.source));
}

void tst_Catalogues::diskCanHoldWhatNamesAreMadeOf()
{
    QFETCH(QString, language);
    const QString text = TranslationOf(MessagesOf(language), QStringLiteral("New Folder"));
    QVERIFY(!text.isEmpty());
    QVERIFY2(!FileNameRules::HasForbiddenCharacter(text), qPrintable(text));
    QCOMPARE(text.trimmed(), text);
}

void tst_Catalogues::headersOfTheAliasTreeDiffer()
{
    QFETCH(QString, language);
    const QVector<Message> messages = MessagesOf(language);
    QSet<QString> texts;
    for (const char* source :
         {"Category", "File Path", "System Watch", "Allowed Ops", "INI Section", "Custom Data"})
        texts.insert(TranslationOf(messages, QLatin1String(source)));
    QCOMPARE(texts.size(), 6);
}

KTFM_TEST_MAIN(tst_Catalogues)
#include "tst_catalogues.moc"
