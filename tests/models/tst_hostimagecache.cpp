#include "models/HostImageCache.h"
#include "tests/support/TestMain.h"

class tst_HostImageCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nullImageGivesNullIcon();
    void sameImageGivesSameIcon();
    void changedImageGivesAnotherIcon();
    void hugeImageIsScaledDown();
};

static QImage Filled(int width, int height, const QColor& color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

void tst_HostImageCache::nullImageGivesNullIcon()
{
    const HostImageCache cache;
    QVERIFY(cache.IconFor(QImage()).isNull());
}

void tst_HostImageCache::sameImageGivesSameIcon()
{
    const HostImageCache cache;
    const QImage image = Filled(60, 60, Qt::red);
    const QIcon first = cache.IconFor(image);
    QCOMPARE(cache.IconFor(image).cacheKey(), first.cacheKey());
    QCOMPARE(first.availableSizes(), QList<QSize>{QSize(60, 60)});
}

void tst_HostImageCache::changedImageGivesAnotherIcon()
{
    const HostImageCache cache;
    QImage image = Filled(8, 8, Qt::red);
    const QIcon red = cache.IconFor(image);
    image.fill(Qt::blue);
    const QIcon blue = cache.IconFor(image);
    QVERIFY(red.cacheKey() != blue.cacheKey());
    QCOMPARE(blue.pixmap(8, 8).toImage().pixelColor(4, 4), QColor(Qt::blue));
}

void tst_HostImageCache::hugeImageIsScaledDown()
{
    const HostImageCache cache;
    QImage image(20000, 10000, QImage::Format_Mono);
    image.fill(1);
    const QIcon icon = cache.IconFor(image);
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(4096, 2048)});
    QCOMPARE(cache.IconFor(image).cacheKey(), icon.cacheKey());
}

KTFM_TEST_MAIN(tst_HostImageCache)
#include "tst_hostimagecache.moc"
