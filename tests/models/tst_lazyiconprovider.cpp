#include "models/LazyIconProvider.h"

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QPainter>

namespace {

const QVector<int> sizes = {1, 16, 24, 32, 48, 125, 256};
const QVector<QIcon::Mode> modes = {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected};

/** @return the icon as it is painted on a surface with @p ratio device pixels a pixel */
QImage Painted(const QIcon& icon, int size, qreal ratio, QIcon::Mode mode)
{
    QImage image(QSize(size, size) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, QRect(0, 0, size, size), Qt::AlignCenter, mode);
    return image;
}

/** Switches sharp pixmaps on or off for one test. */
class SharpPixmaps
{
public:
    explicit SharpPixmaps(bool on) : m_before(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps))
    {
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, on);
    }
    ~SharpPixmaps() { QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, m_before); }
    SharpPixmaps(const SharpPixmaps&) = delete;
    SharpPixmaps& operator=(const SharpPixmaps&) = delete;

private:
    bool m_before;
};

} // namespace

class tst_LazyIconProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksLikeThePlatformsIcon_data();
    void looksLikeThePlatformsIcon();
    void otherOperationsAreThePlatforms();
    void platformIsAskedOnlyWhenPainted();
    void iconStaysAsItWasFirstPainted();
    void iconOutlivesTheProvider();
    void copiesAndClonesLookAlike();
};

void tst_LazyIconProvider::looksLikeThePlatformsIcon_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("sharp");
    for (const bool sharp : {false, true}) {
        for (const char* name : {"a.txt", "plain", "run.sh", "folder", "link", "nothing", "missing.png"})
            QTest::addRow("%s%s", name, sharp ? " sharp" : "") << QString::fromLatin1(name) << sharp;
    }
}

void tst_LazyIconProvider::looksLikeThePlatformsIcon()
{
    QFETCH(QString, name);
    QFETCH(bool, sharp);
    const SharpPixmaps attribute(sharp);
    TestFolder folder;
    folder.File(QStringLiteral("a.txt"), "text");
    folder.File(QStringLiteral("plain"), "%PDF-1.4");
    folder.File(QStringLiteral("run.sh"), "#!/bin/sh\n");
    folder.Folder(QStringLiteral("folder"));
    folder.Link(folder.Path(QStringLiteral("folder")), QStringLiteral("link"));
    folder.Link(folder.Path(QStringLiteral("gone")), QStringLiteral("nothing"));
    const QFileInfo info(folder.Path(name));
    const QIcon expected = QFileIconProvider().icon(info);
    const QIcon icon = LazyIconProvider().icon(info);
    QCOMPARE(icon.availableSizes(), expected.availableSizes());
    for (const int size : sizes) {
        QCOMPARE(icon.actualSize(QSize(size, size)), expected.actualSize(QSize(size, size)));
        for (const QIcon::Mode mode : modes) {
            const QPixmap pixmap = icon.pixmap(QSize(size, size), mode);
            const QPixmap expectedPixmap = expected.pixmap(QSize(size, size), mode);
            QCOMPARE(pixmap.devicePixelRatio(), expectedPixmap.devicePixelRatio());
            QCOMPARE(pixmap.toImage(), expectedPixmap.toImage());
            for (const qreal ratio : {1.0, 1.5, 2.0})
                QCOMPARE(Painted(icon, size, ratio, mode), Painted(expected, size, ratio, mode));
        }
    }
}

void tst_LazyIconProvider::otherOperationsAreThePlatforms()
{
    TestFolder folder;
    const LazyIconProvider provider;
    const QFileIconProvider platform;
    for (const auto type : {QFileIconProvider::Computer, QFileIconProvider::Folder, QFileIconProvider::File})
        QCOMPARE(provider.icon(type).pixmap(32).toImage(), platform.icon(type).pixmap(32).toImage());
    const QFileInfo info(folder.File(QStringLiteral("a.txt")));
    QCOMPARE(provider.type(info), platform.type(info));
}

void tst_LazyIconProvider::platformIsAskedOnlyWhenPainted()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("a"));
    const QImage ofFile = QFileIconProvider().icon(QFileInfo(path)).pixmap(32).toImage();
    const QIcon icon = LazyIconProvider().icon(QFileInfo(path));
    QVERIFY(QFile::remove(path));
    folder.Folder(QStringLiteral("a"));
    // Had the platform been asked at once, it would have found a file.
    const QImage ofFolder = QFileIconProvider().icon(QFileInfo(path)).pixmap(32).toImage();
    QVERIFY(ofFile != ofFolder);
    QCOMPARE(icon.pixmap(32).toImage(), ofFolder);
}

void tst_LazyIconProvider::iconStaysAsItWasFirstPainted()
{
    TestFolder folder;
    const QString path = folder.File(QStringLiteral("a"));
    const QIcon icon = LazyIconProvider().icon(QFileInfo(path));
    const QImage before = icon.pixmap(32).toImage();
    QVERIFY(QFile::remove(path));
    folder.Folder(QStringLiteral("a"));
    QCOMPARE(icon.pixmap(32).toImage(), before);
    QCOMPARE(icon.pixmap(48).toImage(),
             QFileIconProvider().icon(QFileIconProvider::File).pixmap(48).toImage());
}

void tst_LazyIconProvider::iconOutlivesTheProvider()
{
    TestFolder folder;
    const QFileInfo info(folder.File(QStringLiteral("a.txt")));
    auto provider = std::make_unique<LazyIconProvider>();
    const QIcon icon = provider->icon(info);
    provider.reset();
    QCOMPARE(icon.pixmap(32).toImage(), QFileIconProvider().icon(info).pixmap(32).toImage());
    QVERIFY(!icon.pixmap(32).isNull());
}

void tst_LazyIconProvider::copiesAndClonesLookAlike()
{
    TestFolder folder;
    const QFileInfo info(folder.File(QStringLiteral("a.txt")));
    const QImage expected = QFileIconProvider().icon(info).pixmap(32).toImage();
    auto original = std::make_unique<QIcon>(LazyIconProvider().icon(info));
    const QIcon copy = *original;
    // A shared icon that is changed clones its engine.
    QIcon unpainted = *original;
    unpainted.detach();
    QCOMPARE(original->pixmap(32).toImage(), expected);
    QIcon painted = *original;
    painted.detach();
    original.reset();
    QCOMPARE(copy.pixmap(32).toImage(), expected);
    QCOMPARE(unpainted.pixmap(32).toImage(), expected);
    QCOMPARE(painted.pixmap(32).toImage(), expected);
    QVERIFY(!QIcon(copy).isNull());
}

KTFM_TEST_MAIN(tst_LazyIconProvider)
#include "tst_lazyiconprovider.moc"
