#include <KTFileManager2QU/CKTFMDummyIconProvider.h>

#include "tests/support/TestMain.h"

class tst_DummyIconProvider : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileHasAnEmptyIcon();
    void otherOperationsAreThePlatforms();
};

void tst_DummyIconProvider::everyFileHasAnEmptyIcon()
{
    const CKTFMDummyIconProvider provider;
    QVERIFY(provider.icon(QFileInfo(QDir::rootPath())).isNull());
    QVERIFY(provider.icon(QFileInfo(QCoreApplication::applicationFilePath())).isNull());
    QVERIFY(provider.icon(QFileInfo(QStringLiteral("no such file"))).isNull());
}

void tst_DummyIconProvider::otherOperationsAreThePlatforms()
{
    const CKTFMDummyIconProvider provider;
    const QFileIconProvider platform;
    const QFileInfo info(QCoreApplication::applicationFilePath());
    QCOMPARE(provider.type(info), platform.type(info));
    QCOMPARE(provider.icon(QFileIconProvider::Folder).isNull(),
             platform.icon(QFileIconProvider::Folder).isNull());
}

KTFM_TEST_MAIN(tst_DummyIconProvider)
#include "tst_dummyiconprovider.moc"
