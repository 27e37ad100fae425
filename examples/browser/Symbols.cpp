#include "Symbols.h"

#include "ColorScheme.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <utility>

namespace {

/** The side of the square that the drawings are made in. */
constexpr qreal Side = 24.0;

/** The width of a line in that square. */
constexpr qreal LineWidth = 1.7;

/**
 * Each drawing as strokes: M x,y begins a line, L x,y goes on with it, Z closes it; O x,y,r is a circle,
 * R x,y,w,h a rectangle, A x,y,r,from,sweep an arc in degrees.
 */
const char* DrawingOf(const QString& name)
{
    static const QHash<QString, const char*> drawings = {
        {QStringLiteral("go-previous"), "M20,12 L4,12 M11,5 L4,12 L11,19"},
        {QStringLiteral("go-next"), "M4,12 L20,12 M13,5 L20,12 L13,19"},
        {QStringLiteral("go-up"), "M12,20 L12,4 M5,11 L12,4 L19,11"},
        {QStringLiteral("go-home"),
         "M3,12 L12,4 L21,12 M6,10 L6,20 L18,20 L18,10 M10,20 L10,14 L14,14 L14,20"},
        {QStringLiteral("view-refresh"), "A12,12,8,60,290 M16,8.6 L15.8,4.6 L19.6,5.2"},
        {QStringLiteral("folder-new"),
         "M11,19 L3,19 L3,5 L9,5 L11,8 L21,8 L21,11 M17,13 L17,21 M13,17 L21,17"},
        {QStringLiteral("document-open"), "M4,20 L4,5 L9,5 L11,8 L18,8 L18,11 M4,20 L7,11 L22,11 L19,20 Z"},
        {QStringLiteral("edit-cut"), "O6,18,2.6 O18,18,2.6 M7.6,15.8 L17,3 M16.4,15.8 L7,3"},
        {QStringLiteral("edit-copy"), "R9,9,11,12 M15,9 L15,3 L4,3 L4,15 L9,15"},
        {QStringLiteral("edit-paste"),
         "M8,4 L5,4 L5,21 L19,21 L19,4 L16,4 R8,2.5,8,4 M9,12 L15,12 M9,16 L15,16"},
        {QStringLiteral("edit-delete"),
         "M4,6 L20,6 M9,6 L9,3 L15,3 L15,6 M6,6 L7,21 L17,21 L18,6 M10,10 L10,17 M14,10 L14,17"},
        {QStringLiteral("document-edit"), "M4,20 L5,15 L16,4 L20,8 L9,19 Z M13,7 L17,11"},
        {QStringLiteral("edit-rename"),
         "M13,7 L3,7 L3,17 L13,17 M19,7 L21,7 L21,17 L19,17 M13.5,3.5 L18.5,3.5 M16,3.5 L16,20.5 M13.5,20.5 "
         "L18.5,20.5"},
        {QStringLiteral("edit-select-all"), "R4,4,16,16 M8,12 L11,15 L16,9"},
        {QStringLiteral("view-list-icons"), "R4,4,6,6 R14,4,6,6 R4,14,6,6 R14,14,6,6"},
        {QStringLiteral("view-list-details"),
         "M4,6 L6,6 M10,6 L20,6 M4,12 L6,12 M10,12 L20,12 M4,18 L6,18 M10,18 L20,18"},
        {QStringLiteral("zoom-in"), "O10,10,6 M14.5,14.5 L20,20 M7,10 L13,10 M10,7 L10,13"},
        {QStringLiteral("zoom-out"), "O10,10,6 M14.5,14.5 L20,20 M7,10 L13,10"},
        {QStringLiteral("weather-clear-night"), "A12,12,8,80,260 A16.5,8.5,6.4,115,200"},
        {QStringLiteral("application-exit"), "M14,4 L5,4 L5,20 L14,20 M9,12 L20,12 M16,8 L20,12 L16,16"}};
    return drawings.value(name, "");
}

QList<qreal> NumbersOf(const QString& stroke)
{
    QList<qreal> numbers;
    const QStringList texts = stroke.mid(1).split(QLatin1Char(','));
    for (const QString& text : texts)
        numbers.append(text.toDouble());
    return numbers;
}

void AddArc(QPainterPath* path, const QList<qreal>& n)
{
    const QRectF circle(n.at(0) - n.at(2), n.at(1) - n.at(2), 2 * n.at(2), 2 * n.at(2));
    path->arcMoveTo(circle, n.at(3));
    path->arcTo(circle, n.at(3), n.at(4));
}

void AddStroke(QPainterPath* path, const QString& stroke)
{
    const QList<qreal> n = NumbersOf(stroke);
    switch (stroke.at(0).toLatin1()) {
    case 'M':
        path->moveTo(n.at(0), n.at(1));
        break;
    case 'L':
        path->lineTo(n.at(0), n.at(1));
        break;
    case 'O':
        path->addEllipse(QPointF(n.at(0), n.at(1)), n.at(2), n.at(2));
        break;
    case 'R':
        path->addRect(n.at(0), n.at(1), n.at(2), n.at(3));
        break;
    case 'A':
        AddArc(path, n);
        break;
    default:
        path->closeSubpath();
        break;
    }
}

QPainterPath PathOf(const QString& name)
{
    QPainterPath path;
    const QStringList strokes =
        QString::fromLatin1(DrawingOf(name)).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& stroke : strokes)
        AddStroke(&path, stroke);
    return path;
}

QColor ColorOf(QIcon::Mode mode)
{
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    return QGuiApplication::palette().color(group, role);
}

/** The theme's icon, or the drawing, decided anew at each painting. */
class SymbolEngine : public QIconEngine
{
public:
    explicit SymbolEngine(const QString& name) : m_name(name), m_themed(QIcon::fromTheme(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        if (!m_themed.isNull() && !ColorScheme::IsDark())
            m_themed.paint(painter, rect, Qt::AlignCenter, mode, state);
        else
            Draw(painter, rect, mode);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    void Draw(QPainter* painter, const QRect& rect, QIcon::Mode mode) const
    {
        const qreal scale = qMin(rect.width(), rect.height()) / Side;
        const bool mirrored = QGuiApplication::isRightToLeft() && m_name.startsWith(QLatin1String("go-"));
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center());
        painter->scale(mirrored ? -scale : scale, scale);
        painter->translate(-Side / 2, -Side / 2);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(ColorOf(mode), LineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(PathOf(m_name));
        painter->restore();
    }

    QString m_name;
    QIcon m_themed;
};

} // namespace

QIcon Symbols::Icon(const char* name)
{
    return QIcon(new SymbolEngine(QString::fromLatin1(name)));
}
