#include "views/WrappedText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

WrappedText::WrappedText(const QString& text, const QFont& font, int width, Qt::LayoutDirection direction)
    : m_layout(text, font)
{
    QTextOption option;
    option.setTextDirection(direction);
    option.setWrapMode(QTextOption::WordWrap);
    m_layout.setTextOption(option);
    m_layout.setCacheEnabled(true);
    const qreal leading = QFontMetricsF(font).leading();
    m_layout.beginLayout();
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(qMax(0, width));
        // Every line starts on a whole pixel, so that all of them are equally sharp.
        const int top = line.lineNumber() == 0 ? 0 : qCeil(m_height + leading);
        line.setPosition(QPointF(0, top));
        m_width = qMax(m_width, line.naturalTextWidth());
        m_height = top + line.height();
    }
    m_layout.endLayout();
}

int WrappedText::LineCount() const
{
    return m_layout.lineCount();
}

qreal WrappedText::Width() const
{
    return m_width;
}

qreal WrappedText::Height() const
{
    return m_height;
}

void WrappedText::Draw(QPainter* painter, const QRect& area) const
{
    const bool isLarger = m_width > area.width() || m_height > area.height();
    if (isLarger) {
        painter->save();
        painter->setClipRect(area, Qt::IntersectClip);
    }
    const qreal top = area.top() + (area.height() - m_height) / 2;
    for (int i = 0; i < m_layout.lineCount(); ++i) {
        const QTextLine line = m_layout.lineAt(i);
        const qreal left = area.left() + (area.width() - line.horizontalAdvance()) / 2;
        line.draw(painter, QPointF(left, top));
    }
    if (isLarger)
        painter->restore();
}
