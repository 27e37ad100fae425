#include "ContentImages.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QRunnable>

#include <algorithm>

namespace {

/** How many pictures are kept: some screens full, 144 KiB each. */
constexpr int KeptPictures = 1000;

/** How many requests wait at the most: two screens full. */
constexpr int LongestQueue = 200;

bool IsPictureName(const QString& suffix)
{
    static const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    return formats.contains(suffix.toLower().toLatin1());
}

/** Puts a picture in the middle of a square, as large as the cards. */
QImage Squared(const QImage& picture)
{
    if (picture.isNull())
        return picture;
    QImage square(KindCards::Side, KindCards::Side, QImage::Format_ARGB32_Premultiplied);
    square.fill(Qt::transparent);
    QPainter painter(&square);
    painter.drawImage((square.width() - picture.width()) / 2, (square.height() - picture.height()) / 2,
                      picture);
    return square;
}

/** Runs on a thread of the pool. */
QImage ReadPicture(const QString& path)
{
    const QSize bounds(KindCards::Side, KindCards::Side);
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    // Decoders of large pictures are much faster when they may scale.
    if (size.width() > bounds.width() || size.height() > bounds.height())
        reader.setScaledSize(size.scaled(bounds, Qt::KeepAspectRatio));
    const QImage picture = reader.read();
    const bool isTooLarge = picture.width() > bounds.width() || picture.height() > bounds.height();
    return Squared(isTooLarge ? picture.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              : picture);
}

} // namespace

ContentImages::ContentImages(QObject* parent) : QObject(parent), m_pictures(KeptPictures) {}

ContentImages::~ContentImages()
{
    m_pool.clear();
    m_pool.waitForDone();
}

const KindCards& ContentImages::Cards() const
{
    return m_cards;
}

bool ContentImages::IsBusy() const
{
    return !m_reading.isEmpty();
}

QImage ContentImages::OfFile(const QString& path, const QDateTime& modified)
{
    const QString suffix = QFileInfo(path).suffix();
    if (!IsPictureName(suffix))
        return m_cards.Of(suffix);
    const Picture* known = m_pictures.object(path);
    if (!known || known->modified != modified)
        Ask({path, modified});
    // A picture that has changed is shown as it was until the new one is there.
    return known && !known->image.isNull() ? known->image : m_cards.Of(suffix);
}

void ContentImages::Ask(const Request& request)
{
    if (m_reading.contains(request.path))
        return;
    const auto isSame = [&request](const Request& other) { return other.path == request.path; };
    m_waiting.erase(std::remove_if(m_waiting.begin(), m_waiting.end(), isSame), m_waiting.end());
    m_waiting.append(request);
    if (m_waiting.size() > LongestQueue)
        m_waiting.removeFirst();
    StartReading();
}

void ContentImages::StartReading()
{
    while (!m_waiting.isEmpty() && m_reading.size() < m_pool.maxThreadCount()) {
        const Request request = m_waiting.takeLast();
        m_reading.insert(request.path);
        m_pool.start(QRunnable::create([this, request] {
            const QImage image = ReadPicture(request.path);
            QMetaObject::invokeMethod(
                this, [this, request, image] { Store(request, image); }, Qt::QueuedConnection);
        }));
    }
}

void ContentImages::Store(const Request& request, const QImage& image)
{
    m_reading.remove(request.path);
    m_pictures.insert(request.path, new Picture{request.modified, image});
    StartReading();
    Q_EMIT Ready();
}
