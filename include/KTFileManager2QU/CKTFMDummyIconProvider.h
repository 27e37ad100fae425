#ifndef CKTFMDUMMYICONPROVIDER_H
#define CKTFMDUMMYICONPROVIDER_H

#include <KTFileManager2QU/KTFMExport.h>

#include <QFileIconProvider>
#include <QIcon>

/**
 * An icon provider without file icons.
 *
 * A file-system model that uses it shows no platform icon for any file, which leaves the images to the
 * host's decoration callbacks. It must outlive the models that it was set on.
 */
class KTFM_EXPORT CKTFMDummyIconProvider : public QFileIconProvider
{
public:
    CKTFMDummyIconProvider();
    ~CKTFMDummyIconProvider() override;

    using QFileIconProvider::icon;

    /** @return the empty icon, whatever the file */
    QIcon icon(const QFileInfo& info) const override;

private:
    QIcon m_icon;
};

#endif
