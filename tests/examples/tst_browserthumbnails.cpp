#include "examples/browser/Picture.h"
#include "examples/browser/ThumbnailQueue.h"
#include "examples/browser/Thumbnails.h"

#include <KTFileManager2QU/CKTFMListModel.h>

#include "tests/support/TestFolder.h"
#include "tests/support/TestMain.h"

#include <QImageReader>
#include <QSignalSpy>

class tst_BrowserThumbnails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsScaledDownIntoASquare();
    void smallPictureKeepsItsSize();
    void thinPictureStaysVisible();
    void fileThatIsNoPictureHasNoThumbnail();
    void suffixTellsPictures();

    void seenItemsComeInTheOrderOfAsking();
    void itemsOutOfSightAreDropped();
    void droppedItemIsMadeWhenItIsAskedForAgain();
    void itemIsMadeOnceHoweverOftenItIsAskedFor();
    void progressEndsAtItsTotal();
    void queueThatDiesAtWorkWaits();

    void thumbnailIsThereWhenItIsReady();
    void thumbnailIsKept();
    void changedFileIsReadAgain();
    void largerSideIsReadAgainWhileTheOldIsShown();
    void foldersAndOtherFilesAreNotAskedFor();
    void onlyTheNameHasAThumbnail();
};

namespace {

QString Name(int number)
{
    return QStringLiteral("%1.png").arg(number, 3, 10, QLatin1Char('0'));
}

void Draw(const QString& path, const QSize& size, const QColor& color)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QVERIFY(image.save(path));
}

/** A model over a folder of pictures, a queue, and which of the pictures count as seen. */
struct Pictures
{
    explicit Pictures(int count)
        : queue([this](const QModelIndex& item) {
              return unseen.isEmpty() || !unseen.contains(item.data().toString());
          }),
          thumbnails(model, queue)
    {
        thumbnails.SetSide(64);
        for (int i = 0; i < count; ++i)
            Draw(folder.Path(Name(i)), QSize(160, 80), Qt::red);
        model.SetShowStringMode(FM_SHOW_STRING_FULL_NAME);
        QSignalSpy loaded(&model, &QFileSystemModel::directoryLoaded);
        model.setRootPath(folder.Path());
        if (loaded.isEmpty() && !loaded.wait())
            qFatal("the folder is not listed");
    }

    QModelIndex Index(int number) const { return model.index(folder.Path(Name(number))); }

    ThumbnailSource Source(int number) const { return {folder.Path(Name(number)), QDateTime(), 64}; }

    QImage Ask(int number) { return thumbnails.HandleListviewDecorationRole(Index(number)); }

    TestFolder folder;
    QSet<QString> unseen; ///< the names of pictures that are out of sight
    CKTFMListModel model;
    ThumbnailQueue queue;
    Thumbnails thumbnails;
};

/** Notes the names of the pictures that a queue makes, in order. */
struct MadeNames
{
    explicit MadeNames(const ThumbnailQueue& queue)
    {
        QObject::connect(&queue, &ThumbnailQueue::Made, &context,
                         [this](const ThumbnailSource& source, const QImage& image) {
                             names.append(QFileInfo(source.path).fileName());
                             images.append(image);
                         });
    }

    QObject context;
    QStringList names;
    QList<QImage> images;
};

} // namespace

void tst_BrowserThumbnails::pictureIsScaledDownIntoASquare()
{
    const TestFolder folder;
    Draw(folder.Path(Name(1)), QSize(400, 200), Qt::blue);
    const QImage image = Picture::Thumbnail(folder.Path(Name(1)), 100);
    QCOMPARE(image.size(), QSize(100, 100));
    QCOMPARE(image.pixelColor(50, 50), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(50, 10).alpha(), 0);
    QCOMPARE(image.pixelColor(50, 90).alpha(), 0);
}

void tst_BrowserThumbnails::smallPictureKeepsItsSize()
{
    const TestFolder folder;
    Draw(folder.Path(Name(1)), QSize(20, 20), Qt::blue);
    QCOMPARE(Picture::Thumbnail(folder.Path(Name(1)), 100).size(), QSize(20, 20));
}

void tst_BrowserThumbnails::thinPictureStaysVisible()
{
    const TestFolder folder;
    Draw(folder.Path(Name(1)), QSize(5000, 2), Qt::blue);
    const QImage image = Picture::Thumbnail(folder.Path(Name(1)), 50);
    QCOMPARE(image.size(), QSize(50, 50));
    QCOMPARE(image.pixelColor(25, 24), QColor(Qt::blue));
}

void tst_BrowserThumbnails::fileThatIsNoPictureHasNoThumbnail()
{
    const TestFolder folder;
    QVERIFY(Picture::Thumbnail(folder.File(Name(1), "no picture"), 50).isNull());
    QVERIFY(Picture::Thumbnail(folder.Path(Name(2)), 50).isNull());
}

void tst_BrowserThumbnails::suffixTellsPictures()
{
    QVERIFY(Picture::IsSuffix(QStringLiteral("png")));
    QVERIFY(Picture::IsSuffix(QStringLiteral("PNG")));
    QVERIFY(!Picture::IsSuffix(QStringLiteral("txt")));
    QVERIFY(!Picture::IsSuffix(QString()));
}

void tst_BrowserThumbnails::seenItemsComeInTheOrderOfAsking()
{
    Pictures pictures(5);
    const MadeNames made(pictures.queue);
    const QList<int> order = {3, 0, 4, 1, 2};
    QStringList expected;
    for (const int number : order) {
        pictures.queue.Add(pictures.Index(number), pictures.Source(number));
        expected.append(Name(number));
    }
    QVERIFY(!pictures.queue.IsEmpty());
    QTRY_COMPARE(made.names.size(), 5);
    // Threads that run side by side may end in another order, but one never overtakes more than they are
    // many.
    const int threads = qMax(1, QThread::idealThreadCount() - 1);
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY(qAbs(made.names.indexOf(expected.at(i)) - i) < threads);
    QVERIFY(pictures.queue.IsEmpty());
}

void tst_BrowserThumbnails::itemsOutOfSightAreDropped()
{
    Pictures pictures(40);
    const MadeNames made(pictures.queue);
    for (int i = 0; i < 40; ++i)
        pictures.queue.Add(pictures.Index(i), pictures.Source(i));
    // The user scrolls to the end before the first one is begun.
    for (int i = 0; i < 36; ++i)
        pictures.unseen.insert(Name(i));
    QTRY_VERIFY(pictures.queue.IsEmpty());
    QStringList names = made.names;
    names.sort();
    QCOMPARE(names, (QStringList{Name(36), Name(37), Name(38), Name(39)}));
}

void tst_BrowserThumbnails::droppedItemIsMadeWhenItIsAskedForAgain()
{
    Pictures pictures(1);
    const MadeNames made(pictures.queue);
    pictures.unseen.insert(Name(0));
    pictures.queue.Add(pictures.Index(0), pictures.Source(0));
    QTRY_VERIFY(pictures.queue.IsEmpty());
    QCOMPARE(made.names, QStringList());
    pictures.unseen.clear();
    pictures.queue.Add(pictures.Index(0), pictures.Source(0));
    QTRY_COMPARE(made.names, QStringList(Name(0)));
}

void tst_BrowserThumbnails::itemIsMadeOnceHoweverOftenItIsAskedFor()
{
    Pictures pictures(1);
    const MadeNames made(pictures.queue);
    for (int i = 0; i < 3; ++i)
        pictures.queue.Add(pictures.Index(0), pictures.Source(0));
    QTRY_VERIFY(pictures.queue.IsEmpty());
    QCOMPARE(made.names, QStringList(Name(0)));
}

void tst_BrowserThumbnails::progressEndsAtItsTotal()
{
    Pictures pictures(6);
    pictures.unseen.insert(Name(2));
    QSignalSpy progress(&pictures.queue, &ThumbnailQueue::Progressed);
    for (int i = 0; i < 6; ++i)
        pictures.queue.Add(pictures.Index(i), pictures.Source(i));
    QTRY_VERIFY(pictures.queue.IsEmpty() && !progress.isEmpty());
    int done = 0;
    bool ended = false;
    for (const QList<QVariant>& step : qAsConst(progress)) {
        QVERIFY(ended || step.at(0).toInt() >= done);
        done = step.at(0).toInt();
        ended = ended || (done == 6 && step.at(1).toInt() == 6);
    }
    QVERIFY(ended);
    QCOMPARE(progress.constLast().at(0), progress.constLast().at(1));
}

void tst_BrowserThumbnails::queueThatDiesAtWorkWaits()
{
    Pictures pictures(20);
    auto queue = std::make_unique<ThumbnailQueue>([](const QModelIndex&) { return true; });
    QSignalSpy progress(queue.get(), &ThumbnailQueue::Progressed);
    for (int i = 0; i < 20; ++i)
        queue->Add(pictures.Index(i), pictures.Source(i));
    QVERIFY(progress.wait());
    queue.reset();
}

void tst_BrowserThumbnails::thumbnailIsThereWhenItIsReady()
{
    Pictures pictures(1);
    QSignalSpy ready(&pictures.thumbnails, &Thumbnails::Ready);
    QVERIFY(pictures.Ask(0).isNull());
    QVERIFY(ready.wait());
    const QImage image = pictures.Ask(0);
    QCOMPARE(image.size(), QSize(64, 64));
    QCOMPARE(image.pixelColor(32, 32), QColor(Qt::red));
}

void tst_BrowserThumbnails::thumbnailIsKept()
{
    Pictures pictures(1);
    QSignalSpy ready(&pictures.thumbnails, &Thumbnails::Ready);
    pictures.Ask(0);
    QVERIFY(ready.wait());
    // The same image each time, so that the model makes an icon of it once.
    QCOMPARE(pictures.Ask(0).cacheKey(), pictures.Ask(0).cacheKey());
    QVERIFY(pictures.queue.IsEmpty());
}

void tst_BrowserThumbnails::changedFileIsReadAgain()
{
    Pictures pictures(1);
    QSignalSpy ready(&pictures.thumbnails, &Thumbnails::Ready);
    pictures.Ask(0);
    QVERIFY(ready.wait());
    QSignalSpy changed(&pictures.model, &QAbstractItemModel::dataChanged);
    Draw(pictures.folder.Path(Name(0)), QSize(64, 64), Qt::green);
    QFile file(pictures.folder.Path(Name(0)));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(60), QFileDevice::FileModificationTime));
    file.close();
    // The model hears of a changed file when its folder changes too.
    pictures.folder.File(QStringLiteral("another"));
    QTRY_VERIFY(pictures.Ask(0).pixelColor(32, 32) == QColor(Qt::green));
}

void tst_BrowserThumbnails::largerSideIsReadAgainWhileTheOldIsShown()
{
    Pictures pictures(1);
    QSignalSpy ready(&pictures.thumbnails, &Thumbnails::Ready);
    pictures.Ask(0);
    QVERIFY(ready.wait());
    pictures.thumbnails.SetSide(128);
    QCOMPARE(pictures.Ask(0).size(), QSize(64, 64));
    QVERIFY(ready.wait());
    QCOMPARE(pictures.Ask(0).size(), QSize(128, 128));
    pictures.thumbnails.SetSide(32);
    QCOMPARE(pictures.Ask(0).size(), QSize(128, 128));
    QVERIFY(pictures.queue.IsEmpty());
}

void tst_BrowserThumbnails::foldersAndOtherFilesAreNotAskedFor()
{
    Pictures pictures(0);
    pictures.folder.Folder(QStringLiteral("folder.png"));
    pictures.folder.File(QStringLiteral("text.txt"));
    const QModelIndex folder = pictures.model.index(pictures.folder.Path(QStringLiteral("folder.png")));
    const QModelIndex text = pictures.model.index(pictures.folder.Path(QStringLiteral("text.txt")));
    QTRY_VERIFY(pictures.model.isDir(folder));
    QVERIFY(pictures.thumbnails.HandleListviewDecorationRole(folder).isNull());
    QVERIFY(pictures.thumbnails.HandleListviewDecorationRole(text).isNull());
    QVERIFY(pictures.queue.IsEmpty());
}

void tst_BrowserThumbnails::onlyTheNameHasAThumbnail()
{
    Pictures pictures(1);
    QSignalSpy ready(&pictures.thumbnails, &Thumbnails::Ready);
    pictures.Ask(0);
    QVERIFY(ready.wait());
    const QModelIndex name = pictures.Index(0);
    QVERIFY(!pictures.thumbnails.HandleListviewDecorationRole(name).isNull());
    QVERIFY(pictures.thumbnails.HandleListviewDecorationRole(name.sibling(name.row(), 1)).isNull());
}

KTFM_TEST_MAIN(tst_BrowserThumbnails)
#include "tst_browserthumbnails.moc"
