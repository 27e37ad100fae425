#ifndef WRAPPEDTEXT_H
#define WRAPPEDTEXT_H

#include <QFont>
#include <QRect>
#include <QString>
#include <QTextLayout>

class QPainter;

/**
 * A text broken into lines between its words for a given width, laid out once and drawn any number of times.
 *
 * It is drawn as QPainter::drawText would with Qt::AlignCenter | Qt::TextWordWrap: centred both ways, clipped
 * to the area when it is larger.
 */
class WrappedText
{
public:
    /**
     * Lays the text out; linear in its length.
     * @param font resolved for the device to be painted on
     * @param width of the lines in pixels; a word that is wider stays whole
     */
    WrappedText(const QString& text, const QFont& font, int width, Qt::LayoutDirection direction);

    int LineCount() const;

    /** @return the width of the widest line, without the blanks at its end */
    qreal Width() const;

    qreal Height() const;

    /** Draws the text in the painter's pen. */
    void Draw(QPainter* painter, const QRect& area) const;

private:
    QTextLayout m_layout;
    qreal m_width = 0;
    qreal m_height = 0;
};

#endif
