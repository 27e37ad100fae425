#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <KTFileManager2QU/CProfile.h>

#include <QFile>

using KT::CProfile;
using KT::ResultDone;
using KT::ResultFailed;
using KT::ResultFileMissing;

namespace {

const QString Fallback = QStringLiteral("fallback");

qint32 Load(CProfile& profile, const QString& path)
{
    return profile.Load(path.toStdWString(), true).code;
}

/** The value of a key; the fallback when it is not found. Fails when code and value disagree. */
QString Value(const CProfile& profile, const QString& section, const QString& key)
{
    std::wstring value = Fallback.toStdWString();
    const qint32 code = profile.GetValue(value, section.toStdWString(), key.toStdWString()).code;
    const QString text = QString::fromStdWString(value);
    if (code != ResultDone && (code != ResultFailed || text != Fallback))
        qFatal("a failed lookup answered %d and %s", code, qPrintable(text));
    return text;
}

bool Exists(const QString& path)
{
    return CProfile().FileExists(path.toStdWString());
}

QByteArray Bytes(std::initializer_list<int> values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes.append(static_cast<char>(value));
    return bytes;
}

QByteArray Utf16(const QString& text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar c : text) {
        bytes.append(static_cast<char>(bigEndian ? c.row() : c.cell()));
        bytes.append(static_cast<char>(bigEndian ? c.cell() : c.row()));
    }
    return bytes;
}

const QByteArray Mark = QByteArrayLiteral("\xEF\xBB\xBF");

/** A row of findsValue: what @p file answers for a key. */
void FoundRow(const char* name, const QByteArray& file, const char* section, const char* key,
              const char* value)
{
    QTest::newRow(name) << file << QString::fromUtf8(section) << QString::fromUtf8(key)
                        << QString::fromUtf8(value);
}

void AddPlainRows()
{
    FoundRow("plain", "[S]\nk=v\n", "S", "k", "v");
    FoundRow("no line end at the end", "[S]\nk=v", "S", "k", "v");
    FoundRow("before the first section", "k=v\n[S]\nk=w\n", "", "k", "v");
    FoundRow("section of the empty name", "[S]\nk=w\n[]\nk=v\n", "", "k", "v");
    FoundRow("section of blanks", "[S]\nk=w\n[ \t]\nk=v\n", "", "k", "v");
    FoundRow("same key in two sections", "[A]\nk=1\n[B]\nk=2\n", "A", "k", "1");
}

void AddMarkAndLineEndRows()
{
    FoundRow("byte-order mark", Mark + "[S]\nk=v\n", "S", "k", "v");
    FoundRow("byte-order mark before a key", Mark + "k=v\n", "", "k", "v");
    FoundRow("line behind a second mark is no section", Mark + Mark + "[S]\nk=v\n", "", "k", "v");
    FoundRow("LF", "[S]\nj=1\nk=v\n", "S", "k", "v");
    FoundRow("CR", "[S]\rj=1\rk=v\r", "S", "k", "v");
    FoundRow("CR LF", "[S]\r\nj=1\r\nk=v\r\n", "S", "k", "v");
    FoundRow("LF CR", "[S]\n\rj=1\n\rk=v\n\r", "S", "k", "v");
    FoundRow("CR in a value ends the line", "[S]\nk=v\rrest\n", "S", "k", "v");
    FoundRow("empty lines", "\n\n[S]\n\n \t\nk=v\n\n", "S", "k", "v");
    FoundRow("other line separators are text", "[S]\nk=a\v\f\u0085\u2028b\n", "S", "k", "a\v\f\u0085\u2028b");
}

void AddCommentRows()
{
    FoundRow("comment with ;", "[S]\n;j=1\nk=v\n", "S", "k", "v");
    FoundRow("comment with #", "[S]\n#j=1\nk=v\n", "S", "k", "v");
    FoundRow("comments at the top", "; one\n# two\n[S]\nk=v\n", "S", "k", "v");
    FoundRow("comments with empty lines between", "[S]\n;1\n\n  ;2\r\n\r\n\t#3\nk=v\n", "S", "k", "v");
    FoundRow("comment as the last line", "[S]\nk=v\n;end", "S", "k", "v");
    FoundRow("key with comment letters inside", "a;b#c=v\n", "", "a;b#c", "v");
}

void AddSectionRows()
{
    FoundRow("blanks and text around a section", "  [ Names ]  ; x\nk=v\n", "NAMES", "k", "v");
    FoundRow("tabs around a section", "\t[\tNames\t]\nk=v\n", "Names", "k", "v");
    FoundRow("blanks inside a section name", "[ My  Names ]\nk=v\n", "My  Names", "k", "v");
    FoundRow("text behind a section", "[S] k=w\nk=v\n", "S", "k", "v");
    FoundRow("section ends at the first bracket", "[a]b]\nk=v\n", "a", "k", "v");
    FoundRow("bracket in a section name", "[a[b]\nk=v\n", "a[b", "k", "v");
    FoundRow("equals sign in a section name", "[a=b]\nk=v\n", "a=b", "k", "v");
    FoundRow("section without a closing bracket", "[A]\n[B\nk=v\n", "A", "k", "v");
    FoundRow("unclosed section at the top", "[B\nk=v\n", "", "k", "v");
    FoundRow("unclosed section with an equals sign", "[A]\n[B=1\nk=v\n", "A", "k", "v");
    FoundRow("unclosed section before a closing line", "[A]\n[\nB]\nk=v\n", "A", "k", "v");
    FoundRow("unclosed section before a closing CR line", "[A]\r  [ \rB]\rk=v\r", "A", "k", "v");
    FoundRow("unclosed section before a section", "[A\n[B]\nk=v\n", "B", "k", "v");
    FoundRow("unclosed sections before comments", "[A]\n[B\n;c\n\n[C\n#d\nk=v\n", "A", "k", "v");
    FoundRow("bracket behind the start is a key", "[A]\nx[B=v\n", "A", "x[B", "v");
    FoundRow("section in two places", "[A]\nj=1\n[B]\nj=2\n[a]\nk=v\n", "A", "k", "v");
    FoundRow("section in two places keeps its first keys", "[A]\nk=v\n[B]\n[a]\nj=1\n", "A", "k", "v");
}

void AddLetterCaseRows()
{
    FoundRow("letter case of a section", "[sEcTiOn]\nk=v\n", "SeCtIoN", "k", "v");
    FoundRow("letter case of a key", "[S]\nChair.FBX=v\n", "S", "cHAIR.fbx", "v");
    FoundRow("key beyond ASCII", "[Stühle]\nß=v\n", "STüHLE", "ß", "v");
    FoundRow("characters next to the letters differ", "[S]\n@`[{=v\n@`{{=w\n", "S", "@`[{", "v");
}

void AddValueRows()
{
    FoundRow("blanks around everything", "[S]\n \tk \t= \tv \t\n", "S", "k", "v");
    FoundRow("blanks inside key and value", "[S]\nmy  key = my \t value\n", "S", "my  key", "my \t value");
    FoundRow("empty value", "[S]\nk=\nj=1\n", "S", "k", "");
    FoundRow("value of blanks", "[S]\nk= \t \nj=1\n", "S", "k", "");
    FoundRow("empty value at the end", "[S]\nk=", "S", "k", "");
    FoundRow("equals sign in a value", "[S]\nk=a=b\n", "S", "k", "a=b");
    FoundRow("; in a value", "[S]\nkey = value ; note\n", "S", "key", "value ; note");
    FoundRow("# in a value", "[S]\nkey = #1 # note\n", "S", "key", "#1 # note");
    FoundRow("value that looks like a section", "[S]\nk=[T]\nj=1\n", "S", "k", "[T]");
    FoundRow("key that occurs twice", "[S]\nk=1\nk=2\n", "S", "k", "2");
    FoundRow("key twice in other letters", "[S]\nk=1\nK=2\n", "S", "k", "2");
    FoundRow("key twice with a section between", "[S]\nk=1\n[T]\nk=3\n[s]\nk=2\n", "S", "k", "2");
    FoundRow("line behind an empty key", "[S]\n=x\nk=v\n", "S", "k", "v");
    FoundRow("line behind one without a value", "[S]\nx\nk=v\n", "S", "k", "v");
    FoundRow("no values of several lines", "[S]\nk=<<<END\nj=1\nEND\n", "S", "k", "<<<END");
    FoundRow("keys inside an open <<<", "[S]\nk=<<<END\nj=1\nEND\n", "S", "j", "1");
    FoundRow("no escapes", "[S]\nk=a\\nb%20\\\\\n", "S", "k", "a\\nb%20\\\\");
    FoundRow("backslash at the end does not join lines", "[S]\nk=a\\\nj=1\n", "S", "k", "a\\");
}

void AddQuoteRows()
{
    FoundRow("quotes keep blanks", "[S]\na.txt = \"  Hello \"\n", "S", "a.txt", "  Hello ");
    FoundRow("quotes around nothing", "[S]\nk=\"\"\n", "S", "k", "");
    FoundRow("a single quote", "[S]\nk=\"\n", "S", "k", "\"");
    FoundRow("one pair of quotes is removed", "[S]\nk=\"\"a\"\"\n", "S", "k", "\"a\"");
    FoundRow("three quotes", "[S]\nk=\"\"\"\n", "S", "k", "\"");
    FoundRow("quotes inside stay", "[S]\nk=\"a \"b\" c\"\n", "S", "k", "a \"b\" c");
    FoundRow("two quoted words", "[S]\nk=\"a\" and \"b\"\n", "S", "k", "a\" and \"b");
    FoundRow("quote in front only", "[S]\nk=\"a\n", "S", "k", "\"a");
    FoundRow("quote behind only", "[S]\nk=a\"\n", "S", "k", "a\"");
    FoundRow("quote before a note", "[S]\nk=\"a\" ; b\n", "S", "k", "\"a\" ; b");
    FoundRow("apostrophes stay", "[S]\nk='a'\n", "S", "k", "'a'");
    FoundRow("quotes around a key stay", "[S]\n\"k\"=v\n", "S", "\"k\"", "v");
    FoundRow("comment letters in quotes", "[S]\nk=\"; a # b\"\n", "S", "k", "; a # b");
}

void AddTextRows()
{
    FoundRow("text beyond the basic plane", "[S]\n\U0001F600=\U0001D11E x\n", "S", "\U0001F600",
             "\U0001D11E x");
    FoundRow("combining marks", "[S]\ne\u0301=n\u0303\n", "S", "e\u0301", "n\u0303");
    FoundRow("non-breaking space is no blank", "[S]\nk=\u00A0v\u00A0\n", "S", "k", "\u00A0v\u00A0");
    FoundRow("before a NUL", QByteArray("[S]\nk=v\n\0\nj=w\n", 14), "S", "k", "v");
    FoundRow("value cut by a NUL", QByteArray("[S]\nk=v\0w\n", 10), "S", "k", "v");
}

} // namespace

class tst_Profile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resultCodesAreFixed();
    void newReaderFindsNothing();
    void findsValue_data();
    void findsValue();
    void missesValue_data();
    void missesValue();
    void loadsAnyBytesAsText_data();
    void loadsAnyBytesAsText();
    void secondByteOrderMarkIsText();
    void lookupLeavesValueAloneOnMiss();
    void namesWithNulAreNotFound();
    void foundEmptyValueReplacesFallback();

    void missingFileKeepsOldValues();
    void unreadableFileDropsOldValues();
    void emptyFileLoadsAndDropsOldValues();
    void nextLoadReplacesValues();
    void failedReaderLoadsAgain();
    void laterChangesAreSeenByTheNextLoadOnly();
    void loadWithoutReadingEmptiesTheReader();
    void pathsThatCannotBeLoaded_data();
    void pathsThatCannotBeLoaded();
    void loadsFromPathWithOtherLetters();

    void hundredMegabytesOfOneLine();
    void fileTooLongForMemoryFails();
    void veryLongNames();
    void longSectionNameDoesNotSlowItsKeys();
    void manySectionsAndKeys();

    void fileExists_data();
    void fileExists();
};

void tst_Profile::resultCodesAreFixed()
{
    QCOMPARE(ResultDone, 0);
    QCOMPARE(static_cast<quint32>(ResultFailed), 0x80000000U);
    QCOMPARE(static_cast<quint32>(ResultFileMissing), 0x80000007U);
}

void tst_Profile::newReaderFindsNothing()
{
    QCOMPARE(Value(CProfile(), QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::findsValue_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    AddPlainRows();
    AddMarkAndLineEndRows();
    AddCommentRows();
    AddSectionRows();
    AddLetterCaseRows();
    AddValueRows();
    AddQuoteRows();
    AddTextRows();
}

void tst_Profile::findsValue()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, section);
    QFETCH(QString, key);
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    QTEST(Value(profile, section, key), "value");
}

void tst_Profile::missesValue_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("key");
    const auto row = [](const char* name, const QByteArray& file, const char* section, const char* key) {
        QTest::newRow(name) << file << QString::fromUtf8(section) << QString::fromUtf8(key);
    };

    row("other key", "[S]\nk=v\n", "S", "j");
    row("part of a key", "[S]\nkey=v\n", "S", "ke");
    row("more than a key", "[S]\nkey=v\n", "S", "keys");
    row("other section", "[S]\nk=v\n", "T", "k");
    row("key of another section", "[S]\nk=v\n[T]\nj=w\n", "T", "k");
    row("key below the section", "[S]\nk=v\n", "", "k");
    row("blanks around the key asked for", "[S]\nk=v\n", "S", " k ");
    row("blanks around the section asked for", "[S]\nk=v\n", " S ", "k");
    row("empty key", "[S]\n=v\n \t= w\n", "S", "");
    row("no equals sign", "[S]\nk\nv\n", "S", "k");
    row("commented with ;", "[S]\n  ;k=v\n", "S", "k");
    row("commented with #", "[S]\n\t#k=v\n", "S", "k");
    row("commented in the first line", ";k=v\n", "", "k");
    row("comment letter is part of no key", "[S]\n;k=v\n", "S", ";k");
    row("behind a section on its line", "[S] k=v\n", "S", "k");
    row("in an unclosed section", "[S\nk=v\n", "S", "k");
    row("in an unclosed section with its first key", "[S\nk=v\nj=w\n", "S\nk", "j");
    row("unclosed section as a key", "[S=v\n", "", "[S");
    row("section over two lines", "[\nS]\nk=v\n", "S", "k");
    row("letter case beyond ASCII", "[S]\n\u00E4=v\n", "S", "\u00C4");
    row("letter case of dotless i", "[S]\ni=v\n", "S", "\u0130");
    row("Kelvin sign is no K", "[S]\nk=v\n", "S", "\u212A");
    row("composed and decomposed differ", "[S]\n\u00E9=v\n", "S", "e\u0301");
    row("behind a NUL", QByteArray("[S]\nk=v\n\0\nj=w\n", 14), "S", "j");
    row("section cut by a NUL", QByteArray("[S\0]\nk=v\n", 9), "S", "k");
    row("section made of slashes and backslashes", "[a/b]\nk=v\n", "a\\b", "k");
}

void tst_Profile::missesValue()
{
    QFETCH(QByteArray, file);
    QFETCH(QString, section);
    QFETCH(QString, key);
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    QCOMPARE(Value(profile, section, key), Fallback);
}

void tst_Profile::loadsAnyBytesAsText_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QString>("value");
    const QString text = QStringLiteral("[S]\nk=v\n");
    const QChar bad = QChar::ReplacementCharacter;

    QTest::newRow("empty") << QByteArray() << Fallback;
    QTest::newRow("byte-order mark alone") << Mark << Fallback;
    QTest::newRow("byte-order mark cut short") << Mark.left(2) << Fallback;
    QTest::newRow("UTF-16 LE") << Utf16(text, false) << Fallback;
    QTest::newRow("UTF-16 BE") << Utf16(text, true) << Fallback;
    QTest::newRow("UTF-16 LE with mark") << Utf16(QChar(0xFEFF) + text, false) << Fallback;
    QTest::newRow("UTF-16 BE with mark") << Utf16(QChar(0xFEFF) + text, true) << Fallback;
    QTest::newRow("one NUL") << QByteArray(1, '\0') << Fallback;
    QTest::newRow("NUL bytes") << QByteArray(100000, '\0') << Fallback;
    QTest::newRow("one bracket") << QByteArray("[") << Fallback;
    QTest::newRow("one equals sign") << QByteArray("=") << Fallback;
    QTest::newRow("one comment letter") << QByteArray("#") << Fallback;
    QTest::newRow("one line end") << QByteArray("\r") << Fallback;
    QTest::newRow("byte of another encoding") << QByteArray("[S]\nk=\xFCx\n") << bad + QStringLiteral("x");
    QTest::newRow("lone continuation byte") << QByteArray("[S]\nk=a\x80z") << QStringLiteral("a\uFFFDz");
    QTest::newRow("bytes never used") << QByteArray("[S]\nk=\xFE\xFF") << QString(2, bad);
    QTest::newRow("overlong slash") << QByteArray("[S]\nk=\xC0\xAF") << QString(2, bad);
    QTest::newRow("encoded surrogate") << QByteArray("[S]\nk=\xED\xA0\x80") << QString(3, bad);
    QTest::newRow("cut after 1 of 2") << QByteArray("[S]\nk=v\xC3") << QStringLiteral("v\uFFFD");
    QTest::newRow("cut after 1 of 3") << QByteArray("[S]\nk=v\xE2") << QStringLiteral("v\uFFFD");
    QTest::newRow("cut inside quotes") << QByteArray("[S]\nk=\"v\"\xE2") << QStringLiteral("\"v\"\uFFFD");
    QTest::newRow("bad byte in another line") << QByteArray("\xFF\n[S]\n\xFF=1\nk=v") << QStringLiteral("v");
    QTest::newRow("bad byte takes no line end")
        << Bytes({'[', 'S', ']', 0xE2, '\n', 'k', '=', 'v'}) << QStringLiteral("v");
}

void tst_Profile::loadsAnyBytesAsText()
{
    QFETCH(QByteArray, file);
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    QTEST(Value(profile, QStringLiteral("S"), QStringLiteral("k")), "value");
    QCOMPARE(Value(profile, QString(), QString()), Fallback);
}

void tst_Profile::secondByteOrderMarkIsText()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), Mark + Mark + "k=v\n")), ResultDone);
    const QString key = QChar(QChar::ByteOrderMark) + QStringLiteral("k");
    QCOMPARE(Value(profile, QString(), key), QStringLiteral("v"));
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::lookupLeavesValueAloneOnMiss()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "[S]\nk=v\n")), ResultDone);
    std::wstring value = L"before";
    QCOMPARE(profile.GetValue(value, L"S", L"x").code, ResultFailed);
    QVERIFY(value == L"before");
    QCOMPARE(profile.GetValue(value, L"x", L"k").code, ResultFailed);
    QVERIFY(value == L"before");
    QCOMPARE(profile.GetValue(value, L"S", L"k").code, ResultDone);
    QVERIFY(value == L"v");
}

void tst_Profile::namesWithNulAreNotFound()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "[S]\nk=v\n")), ResultDone);
    const QString tail = QChar(u'\0') + QStringLiteral("x");
    QCOMPARE(Value(profile, QStringLiteral("S"), QStringLiteral("k") + tail), Fallback);
    QCOMPARE(Value(profile, QStringLiteral("S") + tail, QStringLiteral("k")), Fallback);
}

void tst_Profile::foundEmptyValueReplacesFallback()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "k=\"\"\n")), ResultDone);
    std::wstring value = L"fallback";
    QCOMPARE(profile.GetValue(value, L"", L"k").code, ResultDone);
    QVERIFY(value.empty());
}

void tst_Profile::missingFileKeepsOldValues()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.Path(QStringLiteral("none.ini"))), ResultFileMissing);
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "k=v\n")), ResultDone);
    QCOMPARE(Load(profile, folder.Path(QStringLiteral("none.ini"))), ResultFileMissing);
    QCOMPARE(Load(profile, QString()), ResultFileMissing);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("v"));
}

void tst_Profile::unreadableFileDropsOldValues()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "k=v\n")), ResultDone);
    QCOMPARE(Load(profile, folder.Path()), ResultFailed);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
    QCOMPARE(Load(profile, folder.Path(QStringLiteral("none.ini"))), ResultFileMissing);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::emptyFileLoadsAndDropsOldValues()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "k=v\n")), ResultDone);
    QCOMPARE(Load(profile, folder.File(QStringLiteral("empty.ini"))), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::nextLoadReplacesValues()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("1.ini"), "k=1\nonly=1\n")), ResultDone);
    QCOMPARE(Load(profile, folder.File(QStringLiteral("2.ini"), "k=2\n")), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("2"));
    QCOMPARE(Value(profile, QString(), QStringLiteral("only")), Fallback);
}

void tst_Profile::failedReaderLoadsAgain()
{
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.Path()), ResultFailed);
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), "k=v\n")), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("v"));
}

void tst_Profile::laterChangesAreSeenByTheNextLoadOnly()
{
    TestFolder folder;
    CProfile profile;
    const QString path = folder.File(QStringLiteral("names.ini"), "k=1\n");
    QCOMPARE(Load(profile, path), ResultDone);
    folder.File(QStringLiteral("names.ini"), "k=2\n");
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("1"));
    QCOMPARE(Load(profile, path), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("2"));
    QVERIFY(QFile::remove(path));
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("2"));
}

void tst_Profile::loadWithoutReadingEmptiesTheReader()
{
    TestFolder folder;
    CProfile profile;
    const QString path = folder.File(QStringLiteral("names.ini"), "k=v\n");
    QCOMPARE(Load(profile, path), ResultDone);
    QCOMPARE(profile.Load(path.toStdWString(), false).code, ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
    QCOMPARE(profile.Load(folder.Path(QStringLiteral("none.ini")).toStdWString(), false).code, ResultDone);
    QCOMPARE(Load(profile, path), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("v"));
}

void tst_Profile::pathsThatCannotBeLoaded_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint32>("code");
    QTest::newRow("folder") << QStringLiteral("folder") << ResultFailed;
    QTest::newRow("folder and slash") << QStringLiteral("folder/") << ResultFailed;
    QTest::newRow("folder and backslash") << QStringLiteral("folder\\") << ResultFailed;
    QTest::newRow("file and slash") << QStringLiteral("names.ini/") << ResultFailed;
    QTest::newRow("file and backslash") << QStringLiteral("names.ini\\") << ResultFailed;
    QTest::newRow("wildcard that matches") << QStringLiteral("names.*") << ResultFailed;
    QTest::newRow("wildcard that does not match") << QStringLiteral("*.cfg") << ResultFileMissing;
    QTest::newRow("missing") << QStringLiteral("none.ini") << ResultFileMissing;
    QTest::newRow("missing and slash") << QStringLiteral("none.ini/") << ResultFileMissing;
    QTest::newRow("below a file") << QStringLiteral("names.ini/x") << ResultFileMissing;
    QTest::newRow("name too long") << QString(100000, QLatin1Char('x')) << ResultFileMissing;
    QTest::newRow("NUL behind a file") << QStringLiteral("names.ini") + QChar(u'\0') << ResultFileMissing;
}

void tst_Profile::pathsThatCannotBeLoaded()
{
    QFETCH(QString, path);
    TestFolder folder;
    folder.Folder(QStringLiteral("folder"));
    folder.File(QStringLiteral("names.ini"), "k=v\n");
    CProfile profile;
    QTEST(Load(profile, folder.Path(path)), "code");
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::loadsFromPathWithOtherLetters()
{
    TestFolder folder;
    CProfile profile;
    const QString path = folder.File(QStringLiteral("Stühle \U0001F600/名前.ini"), "k=v\n");
    QCOMPARE(Load(profile, path), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), QStringLiteral("v"));
}

void tst_Profile::hundredMegabytesOfOneLine()
{
    constexpr int size = 100 * 1024 * 1024;
    TestFolder folder;
    CProfile profile;
    QByteArray line(size, 'x');
    const QString path = folder.File(QStringLiteral("line.ini"), line);
    QCOMPARE(Load(profile, path), ResultDone);
    QCOMPARE(Value(profile, QString(), QStringLiteral("x")), Fallback);

    line.replace(0, 2, "k=");
    folder.File(QStringLiteral("line.ini"), line);
    QCOMPARE(Load(profile, path), ResultDone);
    std::wstring value;
    QCOMPARE(profile.GetValue(value, L"", L"k").code, ResultDone);
    QCOMPARE(value.size(), static_cast<size_t>(size - 2));
}

void tst_Profile::fileTooLongForMemoryFails()
{
    TestFolder folder;
    CProfile profile;
    QFile file(folder.File(QStringLiteral("hole.ini")));
    QVERIFY(file.resize(qint64(8) * 1024 * 1024 * 1024));
    QCOMPARE(Load(profile, file.fileName()), ResultFailed);
    QCOMPARE(Value(profile, QString(), QStringLiteral("k")), Fallback);
}

void tst_Profile::veryLongNames()
{
    const QByteArray section(1000000, 's');
    const QByteArray key(1000000, 'k');
    TestFolder folder;
    CProfile profile;
    const QByteArray file = "[" + section + "]\n" + key + "=v\n";
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    const QString wholeSection = QString::fromLatin1(section);
    const QString wholeKey = QString::fromLatin1(key);
    QCOMPARE(Value(profile, wholeSection.toUpper(), wholeKey), QStringLiteral("v"));
    QCOMPARE(Value(profile, wholeSection, wholeKey.chopped(1)), Fallback);
}

void tst_Profile::longSectionNameDoesNotSlowItsKeys()
{
    // Compared with the whole name for each key, this file would take minutes.
    const QByteArray section(1000000, 's');
    QByteArray file = "[" + section + "]\n";
    for (int i = 0; i < 200000; ++i)
        file += QByteArray::number(i) + "=v\n";
    TestFolder folder;
    CProfile profile;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    QVERIFY2(timer.elapsed() < 20000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(Value(profile, QString::fromLatin1(section), QStringLiteral("199999")), QStringLiteral("v"));
}

void tst_Profile::manySectionsAndKeys()
{
    QByteArray file;
    for (int i = 0; i < 1000; ++i) {
        file += "[section " + QByteArray::number(i) + "]\n";
        for (int j = 0; j < 20; ++j)
            file += "key " + QByteArray::number(j) + " = " + QByteArray::number(i * 20 + j) + "\n";
    }
    TestFolder folder;
    CProfile profile;
    QCOMPARE(Load(profile, folder.File(QStringLiteral("names.ini"), file)), ResultDone);
    for (int i = 0; i < 20000; ++i) {
        const QString section = QStringLiteral("Section %1").arg(i / 20);
        const QString key = QStringLiteral("Key %1").arg(i % 20);
        QCOMPARE(Value(profile, section, key), QString::number(i));
    }
}

void tst_Profile::fileExists_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    const auto row = [](const char* path, bool exists) {
        QTest::newRow(path) << QString::fromUtf8(path) << exists;
    };
    row("names.ini", true);
    row("names.ini/", true);
    row("names.ini\\", true);
    row("names.in", false);
    row("names.ini2", false);
    row("folder", true);
    row("folder/", true);
    row("folder\\", true);
    row("folder/inner.txt", true);
    row("none/names.ini", false);
    row("none", false);

    row("*", true);
    row("n*.ini", true);
    row("*.ini", true);
    row("*.ini/", true);
    row("*.in", false);
    row("?ames.ini", true);
    row("?names.ini", false);
    row("names.???", true);
    row("**n**a**s**", true);
    row("a*a*", false);
    row("n*s.*i?i", true);
    row("n*s.*i?j", false);
    row("f*", true);
    row("folder/*.txt", true);
    row("folder/*.ini", false);
    row("fold*/inner.txt", false);
    row("fold?r/*.txt", false);
    row("none/*", false);
    row("names.ini/*", false);
    row("empty/*", true);
    row("empty/*x*", false);
    row("[n]ames.ini", false);
    row("[n]ames.*", false);
    row("[x]?.ini", true);
}

void tst_Profile::fileExists()
{
    QFETCH(QString, path);
    TestFolder folder;
    folder.File(QStringLiteral("names.ini"));
    folder.File(QStringLiteral("[x]y.ini"));
    folder.File(QStringLiteral("folder/inner.txt"));
    folder.Folder(QStringLiteral("empty"));
    QTEST(Exists(folder.Path(path)), "exists");
}

KTFM_TEST_MAIN(tst_Profile)
#include "tst_profile.moc"
