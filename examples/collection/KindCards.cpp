#include "KindCards.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace {

/** The sheet of paper on a card, in pixels. */
constexpr QRectF Sheet(40, 16, 112, 160);

/** The corners of what is drawn, in pixels. */
constexpr int Radius = 10;

/** The height of a suffix, in pixels, and the width that it may have. */
constexpr int TextHeight = 36;
constexpr int TextWidth = 100;

/** The longest suffix that is written in full; the rest of a longer one would be too small to read. */
constexpr int LongestSuffix = 6;

/** How strong and how bright a suffix's colour is, as QColor::fromHsv takes them: white text stands out. */
constexpr int Saturation = 120;
constexpr int Brightness = 150;

const QColor FolderBack(176, 132, 58);
const QColor FolderFront(222, 178, 96);
const QColor MissingFrame(150, 150, 150);

QImage EmptyImage()
{
    QImage image(KindCards::Side, KindCards::Side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/** The same suffix has the same colour, here and whenever the program runs. */
QColor ColourOf(const QString& suffix)
{
    constexpr int degrees = 360;
    constexpr int step = 67; // neighbours in the alphabet lie far apart
    int sum = 0;
    for (const QChar letter : suffix)
        sum = (sum * 31 + letter.unicode()) % degrees;
    return QColor::fromHsv(sum * step % degrees, Saturation, Brightness);
}

void DrawText(QPainter& painter, const QString& text)
{
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(TextHeight);
    const int width = QFontMetrics(font).horizontalAdvance(text);
    if (width > TextWidth)
        font.setPixelSize(TextHeight * TextWidth / width);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(Sheet, Qt::AlignCenter, text);
}

QImage DrawnCard(const QString& suffix)
{
    QImage image = EmptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ColourOf(suffix));
    painter.drawRoundedRect(Sheet, Radius, Radius);
    DrawText(painter, suffix.left(LongestSuffix).toUpper());
    return image;
}

QImage DrawnFolder()
{
    QImage image = EmptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(FolderBack);
    painter.drawRoundedRect(QRectF(16, 36, 72, 60), Radius, Radius);
    painter.drawRoundedRect(QRectF(16, 52, 160, 100), Radius, Radius);
    painter.setBrush(FolderFront);
    painter.drawRoundedRect(QRectF(16, 68, 160, 92), Radius, Radius);
    return image;
}

QImage DrawnGap()
{
    constexpr int lineWidth = 5;
    QImage image = EmptyImage();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(MissingFrame, lineWidth, Qt::DashLine));
    painter.drawRoundedRect(Sheet, Radius, Radius);
    return image;
}

} // namespace

KindCards::KindCards() : m_folder(DrawnFolder()), m_missing(DrawnGap()) {}

QImage KindCards::Folder() const
{
    return m_folder;
}

QImage KindCards::Of(const QString& suffix)
{
    QImage& card = m_cards[suffix.toLower()];
    if (card.isNull())
        card = DrawnCard(suffix);
    return card;
}

QImage KindCards::Missing() const
{
    return m_missing;
}
