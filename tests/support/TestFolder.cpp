#include "tests/support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

TestFolder::TestFolder()
{
    if (!m_dir.isValid())
        qFatal("cannot make a temporary folder");
}

QString TestFolder::Path() const
{
    return QFileInfo(m_dir.path()).canonicalFilePath();
}

QString TestFolder::Path(const QString& relative) const
{
    return Path() + QLatin1Char('/') + relative;
}

QString TestFolder::File(const QString& relative, const QByteArray& data, const QDateTime& modified) const
{
    const QString path = Path(relative);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size())
        qFatal("cannot write %s", qPrintable(path));
    file.flush();
    if (modified.isValid() && !file.setFileTime(modified, QFileDevice::FileModificationTime))
        qFatal("cannot set the time of %s", qPrintable(path));
    return path;
}

QString TestFolder::Folder(const QString& relative) const
{
    const QString path = Path(relative);
    if (!QDir().mkpath(path))
        qFatal("cannot make %s", qPrintable(path));
    return path;
}

QString TestFolder::Link(const QString& target, const QString& relative) const
{
    const QString path = Path(relative);
    if (!QFile::link(target, path))
        qFatal("cannot link %s", qPrintable(path));
    return path;
}

QByteArray TestFolder::Read(const QString& relative) const
{
    QFile file(Path(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
