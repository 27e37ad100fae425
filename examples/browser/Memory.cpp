#include "Memory.h"

#include "BrowserWindow.h"
#include "ColorScheme.h"
#include "ViewActions.h"

#include <QSettings>

namespace {

const QLatin1String GeometryKey("window/geometry");
const QLatin1String DarkKey("window/dark");
const QLatin1String DetailsKey("view/details");
const QLatin1String SizeKey("view/iconSize");

/** @return the size that was kept; the settings may hold anything */
EKTFMIconSize SizeIn(const QSettings& settings)
{
    const int size = settings.value(SizeKey, int(FM_ICON_MEDIUM)).toInt();
    const QList<int> offered = {FM_ICON_SMALL, FM_ICON_MEDIUM, FM_ICON_LARGE, FM_ICON_HUGE};
    return offered.contains(size) ? static_cast<EKTFMIconSize>(size) : FM_ICON_MEDIUM;
}

} // namespace

Options Memory::Complete(Options options, const QSettings& settings)
{
    if (!options.view)
        options.view = settings.value(DetailsKey).toBool() ? FM_VIEW_DETAIL : FM_VIEW_ICON;
    if (!options.iconSize)
        options.iconSize = SizeIn(settings);
    if (!options.size.isValid())
        options.geometry = settings.value(GeometryKey).toByteArray();
    options.dark = options.dark || settings.value(DarkKey).toBool();
    return options;
}

void Memory::Keep(const BrowserWindow& window, QSettings* settings)
{
    settings->setValue(GeometryKey, window.saveGeometry());
    settings->setValue(DarkKey, ColorScheme::IsDark());
    settings->setValue(DetailsKey, window.Views().Mode() == FM_VIEW_DETAIL);
    settings->setValue(SizeKey, int(window.Views().Size()));
}
