#ifndef LAZYICONPROVIDER_H
#define LAZYICONPROVIDER_H

#include <QFileIconProvider>
#include <QHash>

#include <memory>

/**
 * The platform's file icons, each looked up when it is first painted, and file types.
 *
 * A file-system model asks its provider for the icon of every file that it lists, and again for all of them
 * whenever one changes; the platform's look-up reads the file's type each time. The icons given here look the
 * same and cost nothing until they are painted.
 */
class LazyIconProvider : public QFileIconProvider
{
public:
    LazyIconProvider();
    ~LazyIconProvider() override;

    using QFileIconProvider::icon;
    QIcon icon(const QFileInfo& info) const override;

    /** @return the platform's description; files of one suffix share one text, which is made once */
    QString type(const QFileInfo& info) const override;

private:
    /** Shared with the icons given out, which may outlive this provider. */
    std::shared_ptr<QFileIconProvider> m_pPlatform;
    mutable QHash<QString, QString> m_typeOfSuffix;
};

#endif
