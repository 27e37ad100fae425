#ifndef NAMELAYOUTS_H
#define NAMELAYOUTS_H

#include <QCache>
#include <QFont>
#include <QString>

#include "views/WrappedText.h"

class QPainter;
class QRect;

/**
 * Names fitted into at most two lines, each laid out once.
 *
 * What a name looks like depends on its text, the font, the width of its area and the device alone; the
 * layouts used last are kept, so that painting a view again lays out nothing.
 */
class NameLayouts
{
public:
    NameLayouts();

    /**
     * Draws @p name centred in @p area, in the painter's pen and font, shortened in the middle when it does
     * not fit. An empty area draws nothing.
     */
    void Draw(QPainter* painter, const QRect& area, const QString& name);

    /**
     * @return @p name as it is drawn: itself when it fits @p width in two lines; otherwise shortened in the
     *         middle to what two lines hold, or to one line when that does not wrap into two
     */
    static QString Fitted(const QString& name, const QFont& font, int width, Qt::LayoutDirection direction);

private:
    /** What a layout is a function of. */
    struct Key
    {
        QString name;
        QFont font;
        int width;
        int dotsPerInch;
        qreal pixelRatio;
        Qt::LayoutDirection direction;
    };
    friend bool operator==(const Key& left, const Key& right)
    {
        return left.width == right.width && left.dotsPerInch == right.dotsPerInch &&
               qFuzzyCompare(left.pixelRatio, right.pixelRatio) && left.direction == right.direction &&
               left.name == right.name && left.font == right.font;
    }
    friend uint qHash(const Key& key, uint seed)
    {
        return qHash(key.name, seed) ^ static_cast<uint>(key.width);
    }

    QCache<Key, WrappedText> m_layouts;
};

#endif
