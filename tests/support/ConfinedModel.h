#ifndef CONFINEDMODEL_H
#define CONFINEDMODEL_H

#include <QFileSystemModel>
#include <QSignalSpy>

/**
 * A file-system model for tests that fetches nothing outside one folder: the model tester asks a model to
 * fetch whatever it can, which would read the whole disk.
 */
template <class Model> class ConfinedModel : public Model
{
public:
    explicit ConfinedModel(const QString& fetched) : m_fetched(fetched) {}

    bool canFetchMore(const QModelIndex& parent) const override
    {
        return this->filePath(parent).startsWith(m_fetched) && Model::canFetchMore(parent);
    }

    /** Makes @p path the root and waits until its entries are there. @return its index */
    QModelIndex Load(const QString& path)
    {
        QSignalSpy loaded(this, &QFileSystemModel::directoryLoaded);
        const QModelIndex root = this->setRootPath(path);
        if (!loaded.wait())
            qFatal("the folder was not loaded");
        return root;
    }

private:
    QString m_fetched;
};

#endif
