#include "ColorScheme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace {

bool isDark = false;

QPalette DarkPalette()
{
    constexpr QRgb window = 0xff2a2c30;
    constexpr QRgb base = 0xff1e2023;
    constexpr QRgb raised = 0xff383b40;
    constexpr QRgb text = 0xffe4e6e8;
    constexpr QRgb faded = 0xff7e838a;
    QPalette palette{QColor(text),       QColor(raised),     QColor(0xff4a4e54),
                     QColor(0xff17181a), QColor(0xff2f3236), QColor(text),
                     QColor(Qt::white),  QColor(base),       QColor(window)};
    palette.setColor(QPalette::AlternateBase, QColor(0xff24262a));
    palette.setColor(QPalette::Midlight, QColor(0xff42464b));
    palette.setColor(QPalette::Shadow, QColor(0xff0c0d0e));
    palette.setColor(QPalette::Highlight, QColor(0xff3b78c4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0xff6fb2f5));
    palette.setColor(QPalette::ToolTipBase, QColor(raised));
    palette.setColor(QPalette::ToolTipText, QColor(text));
    palette.setColor(QPalette::PlaceholderText, QColor(faded));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(faded));
    return palette;
}

} // namespace

void ColorScheme::SetDark(bool dark)
{
    static const QString ownStyle = QApplication::style()->objectName();
    static const QPalette ownPalette = QApplication::palette();
    if (dark == isDark)
        return;
    isDark = dark;
    // The styles that draw with the system's means keep its light colours; this one takes what it is given.
    QApplication::setStyle(dark ? QStringLiteral("fusion") : ownStyle);
    QApplication::setPalette(dark ? DarkPalette() : ownPalette);
}

bool ColorScheme::IsDark()
{
    return isDark;
}
