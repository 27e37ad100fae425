#include "widget/IconSizes.h"

#include <array>

namespace {

/** Room for the vertical scroll bar, so that its coming and going does not move the columns. */
constexpr int ScrollBarWidth = 16;

/** The part of a cell that must be left over for the cells to be shrunk until one more column fits. */
constexpr double ShrinkThreshold = 0.5;

} // namespace

namespace IconSizes {

std::optional<Preset> Of(EKTFMIconSize size)
{
    constexpr QSize largeDetail(50, 50);
    static const std::array<Preset, 6> presets = {{{QSize(125, 125), largeDetail},
                                                   {QSize(110, 120), largeDetail},
                                                   {QSize(100, 100), largeDetail},
                                                   {QSize(100, 100), largeDetail},
                                                   {QSize(60, 60), QSize(40, 40)},
                                                   {QSize(40, 40), QSize(30, 30)}}};
    const auto number = static_cast<std::size_t>(size);
    return number < presets.size() ? std::optional<Preset>(presets[number]) : std::nullopt;
}

std::optional<QSize> MarginOf(EKTFMGridSize size)
{
    switch (size) {
    case FM_GRID_WIDE:
        return QSize(40, 40);
    case FM_GRID_NARROW:
        return QSize(20, 20);
    case FM_GRID_COMPACT:
        return QSize(25, 30);
    default:
        return std::nullopt;
    }
}

std::optional<QSize> SpreadCell(int viewportWidth, const QSize& icon, const QSize& margin)
{
    const int available = viewportWidth - ScrollBarWidth;
    int cell = icon.width() + margin.width();
    if (available <= 0 || cell <= 0 || icon.height() + margin.height() <= 0)
        return std::nullopt;
    // One more than the columns that fit, also where the cells are not shrunk: hosts rely on this spacing.
    const int columns = available / cell + 1;
    if (available % cell > cell * ShrinkThreshold)
        cell = available / columns;
    if (cell <= 0)
        return std::nullopt;
    const int extra = available % cell / columns;
    return QSize(cell + extra, icon.height() + margin.height());
}

} // namespace IconSizes
