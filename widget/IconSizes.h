#ifndef ICONSIZES_H
#define ICONSIZES_H

#include <KTFileManager2QU/KTFMTypes.h>

#include <QSize>

#include <optional>

/**
 * @file IconSizes.h
 * @brief The sizes behind the presets of the file list, in pixels.
 */
namespace IconSizes {

/** The image sizes of one preset. */
struct Preset
{
    QSize list;   ///< in the icon grid
    QSize detail; ///< in the table of details
};

/** The margin that a grid cell has around its image until another is set, and after each switch to a grid. */
constexpr QSize DefaultGridMargin(40, 40);

/** @return the sizes of a preset; nothing for a value that is none */
std::optional<Preset> Of(EKTFMIconSize size);

/** @return the margin of a preset; nothing for a value that is none */
std::optional<QSize> MarginOf(EKTFMGridSize size);

/**
 * Spreads the columns of a grid over a view.
 *
 * @param viewportWidth the width of the view without its frame
 * @param icon the size of the images
 * @param margin what a cell adds to its image
 * @return the size of a cell; nothing when a cell, a column or the width would not be positive
 */
std::optional<QSize> SpreadCell(int viewportWidth, const QSize& icon, const QSize& margin);

} // namespace IconSizes

#endif
