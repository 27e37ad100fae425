#include "HostTexts.h"

#include <KTFileManager2QU/CKTFMListModel.h>

QImage HostTexts::HandleListviewDecorationRole(const QModelIndex& index)
{
    // The table of details asks for each of its columns.
    if (index.column() != 0)
        return QImage();
    return m_images.value(m_model.filePath(index)); // a null image: the platform's icon
}

QString HostTexts::HandleListviewDisplayRole(const QModelIndex& index)
{
    return m_titles.value(m_model.filePath(index)); // an empty text: the model's own name
}

QString HostTexts::HandleListviewToolTipRole(const QModelIndex& index)
{
    const QString title = m_titles.value(m_model.filePath(index));
    return title.isNull() ? QString() : title + QLatin1String(": ") + m_model.filePath(index);
}
