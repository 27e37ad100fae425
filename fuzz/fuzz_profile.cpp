// Any bytes are loaded as a mapping file, and every key in them is looked up. What the reader answers must be
// what a second, naive reading of the format says.

#include <KTFileManager2QU/CProfile.h>

#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <utility>

namespace {

using Names = std::pair<QString, QString>;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

QString WithoutAsciiCase(QString name)
{
    for (QChar& c : name)
        c = c >= QLatin1Char('A') && c <= QLatin1Char('Z') ? QChar(c.unicode() + 0x20) : c;
    return name;
}

QString Trimmed(const QString& text)
{
    int first = 0;
    int last = text.size();
    const auto isBlank = [&](int i) { return text[i] == QLatin1Char(' ') || text[i] == QLatin1Char('\t'); };
    while (first < last && isBlank(first))
        ++first;
    while (last > first && isBlank(last - 1))
        --last;
    return text.mid(first, last - first);
}

QString Unquoted(const QString& value)
{
    const QLatin1Char quote('"');
    const bool quoted = value.size() >= 2 && value.startsWith(quote) && value.endsWith(quote);
    return quoted ? value.mid(1, value.size() - 2) : value;
}

/** The text of a file up to its first NUL. Of the marks at its front only one is none of the text. */
QString TextOf(QByteArray bytes)
{
    const QByteArray mark("\xEF\xBB\xBF");
    if (bytes.startsWith(mark))
        bytes.remove(0, mark.size());
    // Behind a letter, a mark is never skipped.
    const QString text = QString::fromUtf8('x' + bytes).mid(1);
    return text.left(text.indexOf(QChar(u'\0')));
}

class NaiveReading
{
public:
    explicit NaiveReading(QString text)
    {
        text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (const QString& line : lines)
            Take(Trimmed(line));
    }

    const std::map<Names, QString>& Values() const { return m_values; }

private:
    void Take(const QString& line)
    {
        const int equals = line.indexOf(QLatin1Char('='));
        if (line.startsWith(QLatin1Char('[')))
            Open(line);
        else if (equals > 0 && line[0] != QLatin1Char(';') && line[0] != QLatin1Char('#'))
            m_values[Names(m_section, WithoutAsciiCase(Trimmed(line.left(equals))))] =
                Unquoted(Trimmed(line.mid(equals + 1)));
    }

    void Open(const QString& line)
    {
        const int end = line.indexOf(QLatin1Char(']'));
        if (end > 0)
            m_section = WithoutAsciiCase(Trimmed(line.mid(1, end - 1)));
    }

    QString m_section = QLatin1String("");
    std::map<Names, QString> m_values;
};

void RequireValue(const KT::CProfile& profile, const Names& names, const QString& expected)
{
    std::wstring value;
    const KT::Result result =
        profile.GetValue(value, names.first.toStdWString(), names.second.toStdWString());
    Require(result.code == KT::ResultDone);
    Require(value == expected.toStdWString());
}

/** Every line of the file is asked for as a key as well: what the naive reading has not, must be missed. */
void RequireMisses(const KT::CProfile& profile, const QString& text, const std::map<Names, QString>& values)
{
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        std::wstring value = L"fallback";
        const qint32 code = profile.GetValue(value, L"", line.toStdWString()).code;
        const bool known = values.count(Names(QLatin1String(""), WithoutAsciiCase(line))) > 0;
        Require(code == (known ? KT::ResultDone : KT::ResultFailed));
        Require(known || value == L"fallback");
    }
}

void Write(QTemporaryFile& file, const QByteArray& bytes)
{
    Require(file.resize(0) && file.seek(0) && file.write(bytes) == bytes.size() && file.flush());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static QTemporaryFile file;
    Require(file.isOpen() || file.open());
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Write(file, bytes);

    KT::CProfile profile;
    Require(profile.Load(file.fileName().toStdWString(), true).code == KT::ResultDone);
    const QString text = TextOf(bytes);
    const NaiveReading reading(text);
    for (const auto& [names, value] : reading.Values())
        RequireValue(profile, names, value);
    RequireMisses(profile, text, reading.Values());
    return 0;
}
