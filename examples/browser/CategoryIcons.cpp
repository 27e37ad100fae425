#include "CategoryIcons.h"

#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QStyle>

namespace {

/** The side of the icon in pixels of the screen: sharp in a tree on a screen of twice the density. */
constexpr int Side = 32;

} // namespace

QImage CategoryIcons::HandleAliasTreeViewDecorationRole(const QModelIndex& index)
{
    Q_UNUSED(index)
    if (m_folder.isNull()) {
        const QIcon icon = QApplication::style()->standardIcon(QStyle::SP_DirIcon);
        m_folder = icon.pixmap(Side, Side).toImage();
        m_folder.setDevicePixelRatio(1);
    }
    return m_folder;
}
