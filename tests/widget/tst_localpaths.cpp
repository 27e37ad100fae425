#include "widget/LocalPaths.h"

#include "tests/support/TestMain.h"

#include <QDir>
#include <QUrl>

class tst_LocalPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesWhatTheUrlNames_data();
    void namesWhatTheUrlNames();
    void pathsKeepTheOrderOfTheUrls();
    void urlsLeadBackToTheirPaths();
    void emptyPathIsNotTheCurrentFolder();
    void relativePathBecomesAbsolute();
    void rootTakesNoSecondSeparator();
};

void tst_LocalPaths::namesWhatTheUrlNames_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("path");
    QTest::newRow("file") << "file:///data/a.txt"
                          << "/data/a.txt";
    QTest::newRow("separator at the end") << "file:///data/docs/"
                                          << "/data/docs";
    QTest::newRow("dot at the end") << "file:///data/docs/."
                                    << "/data/docs";
    QTest::newRow("dots at the end") << "file:///data/docs/.."
                                     << "/data";
    QTest::newRow("escaped characters") << "file:///data/50%25%20of%23it"
                                        << "/data/50% of#it";
    QTest::newRow("root") << "file:///"
                          << "/";
    QTest::newRow("relative") << "file:docs"
                              << "";
    QTest::newRow("current folder") << "file:."
                                    << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("scheme alone") << "file:"
                                  << "";
    QTest::newRow("other scheme") << "http://example.org/a.txt"
                                  << "";
#ifndef Q_OS_WIN
    QTest::newRow("another host") << "file://server/data/a.txt"
                                  << "";
#endif
}

void tst_LocalPaths::namesWhatTheUrlNames()
{
    QFETCH(QString, url);
    QTEST(LocalPaths::Of(QUrl(url)), "path");
}

void tst_LocalPaths::pathsKeepTheOrderOfTheUrls()
{
    const QList<QUrl> urls = {QUrl(QStringLiteral("file:///b")), QUrl(QStringLiteral("http://example.org/")),
                              QUrl(QStringLiteral("file:///a")), QUrl()};
    QCOMPARE(LocalPaths::Of(urls), QStringList({QStringLiteral("/b"), QStringLiteral("/a")}));
}

void tst_LocalPaths::urlsLeadBackToTheirPaths()
{
    const QStringList paths = {QStringLiteral("/a/b c%20#d?e"), QStringLiteral("/ü")};
    QCOMPARE(LocalPaths::Of(LocalPaths::UrlsOf(paths)), paths);
}

void tst_LocalPaths::emptyPathIsNotTheCurrentFolder()
{
    QCOMPARE(LocalPaths::Cleaned(QString()), QString());
}

void tst_LocalPaths::relativePathBecomesAbsolute()
{
    QCOMPARE(LocalPaths::Cleaned(QStringLiteral("docs/../a/")),
             QDir::current().absoluteFilePath(QStringLiteral("a")));
}

void tst_LocalPaths::rootTakesNoSecondSeparator()
{
    QCOMPARE(LocalPaths::In(QStringLiteral("/"), QStringLiteral("a")), QStringLiteral("/a"));
    QCOMPARE(LocalPaths::In(QStringLiteral("/b"), QStringLiteral("a")), QStringLiteral("/b/a"));
}

KTFM_TEST_MAIN(tst_LocalPaths)
#include "tst_localpaths.moc"
