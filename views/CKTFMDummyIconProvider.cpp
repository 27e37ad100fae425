#include <KTFileManager2QU/CKTFMDummyIconProvider.h>

CKTFMDummyIconProvider::CKTFMDummyIconProvider() = default;

CKTFMDummyIconProvider::~CKTFMDummyIconProvider() = default;

QIcon CKTFMDummyIconProvider::icon(const QFileInfo& info) const
{
    Q_UNUSED(info)
    return m_icon;
}
