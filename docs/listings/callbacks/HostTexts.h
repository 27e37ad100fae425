#ifndef HOSTTEXTS_H
#define HOSTTEXTS_H

#include <KTFileManager2QU/KTFMInterfaces.h>

#include <QHash>

class CKTFMListModel;

/** Images, names and tips for the file list: those of known files, all others are left to the pane. */
class HostTexts final : public CKTFMListModelInterface
{
public:
    explicit HostTexts(const CKTFMListModel& model) : m_model(model) {}

    void SetImage(const QString& path, const QImage& image) { m_images.insert(path, image); }
    void SetTitle(const QString& path, const QString& title) { m_titles.insert(path, title); }

    QImage HandleListviewDecorationRole(const QModelIndex& index) override;
    QString HandleListviewDisplayRole(const QModelIndex& index) override;
    QString HandleListviewToolTipRole(const QModelIndex& index) override;

private:
    const CKTFMListModel& m_model;
    QHash<QString, QImage> m_images;
    QHash<QString, QString> m_titles;
};

#endif
