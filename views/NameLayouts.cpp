#include "views/NameLayouts.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>

#include <memory>

namespace {

/** How many layouts are kept: some screens full of the smallest thumbnails. */
constexpr int LayoutLimit = 4096;

/** The most lines that a name is given. */
constexpr int LineLimit = 2;

/** @return @p name with the line breaks that QPainter::drawText would make, and no other control of a line */
QString WithLineBreaks(QString name)
{
    name.replace(QLatin1Char('\t'), QLatin1Char(' '));
    name.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return name.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

QString WithoutLineBreaks(QString name)
{
    name.replace(QChar::LineSeparator, QLatin1Char(' '));
    return name.replace(QChar::ParagraphSeparator, QLatin1Char(' '));
}

/** @return the height of two lines of @p font; more than twice its height if it has a leading or fractions */
qreal TwoLineHeight(const QFont& font)
{
    const QFontMetricsF metrics(font);
    return qMax<qreal>(LineLimit * QFontMetrics(font).height(),
                       qCeil(metrics.height() + metrics.leading()) + metrics.height());
}

} // namespace

NameLayouts::NameLayouts() : m_layouts(LayoutLimit) {}

void NameLayouts::Draw(QPainter* painter, const QRect& area, const QString& name)
{
    if (area.isEmpty())
        return;
    const QPaintDevice* device = painter->device();
    const Key key = {name,
                     painter->font(),
                     area.width(),
                     device->logicalDpiY(),
                     device->devicePixelRatioF(),
                     painter->layoutDirection()};
    if (const WrappedText* known = m_layouts.object(key)) {
        known->Draw(painter, area);
        return;
    }
    const QString fitted = Fitted(name, key.font, key.width, key.direction);
    auto layout = std::make_unique<WrappedText>(fitted, key.font, key.width, key.direction);
    layout->Draw(painter, area);
    m_layouts.insert(key, layout.release());
}

QString NameLayouts::Fitted(const QString& name, const QFont& font, int width, Qt::LayoutDirection direction)
{
    const QString whole = WithLineBreaks(name);
    const WrappedText wrapped(whole, font, width, direction);
    if (wrapped.Width() <= width && wrapped.Height() <= TwoLineHeight(font))
        return whole;
    const QFontMetrics metrics(font);
    const int twoLines = LineLimit * width - metrics.horizontalAdvance(QStringLiteral("..."));
    const QString shortened = metrics.elidedText(whole, Qt::ElideMiddle, twoLines);
    const WrappedText rewrapped(shortened, font, width, direction);
    const bool wrapsNoBetter =
        metrics.horizontalAdvance(shortened) > width && qFuzzyCompare(rewrapped.Height(), wrapped.Height());
    if (wrapsNoBetter || rewrapped.LineCount() > LineLimit || rewrapped.Width() > width)
        return metrics.elidedText(WithoutLineBreaks(whole), Qt::ElideMiddle, width);
    return shortened;
}
