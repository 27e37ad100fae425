#ifndef TESTFOLDER_H
#define TESTFOLDER_H

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QTemporaryDir>

/** A real folder for one test, removed with everything in it when the test ends. */
class TestFolder
{
public:
    TestFolder();

    /** @return the folder's canonical path, without a trailing separator */
    QString Path() const;

    /** @return the absolute path of an entry */
    QString Path(const QString& relative) const;

    /** Writes a file, making its parent folders; @p modified sets its time when it is valid. */
    QString File(const QString& relative, const QByteArray& data = QByteArray(),
                 const QDateTime& modified = QDateTime()) const;

    /** Makes a folder and its parents. */
    QString Folder(const QString& relative) const;

    /** Makes a symbolic link (on Windows a shell link) to @p target. */
    QString Link(const QString& target, const QString& relative) const;

    /** @return the bytes of a file */
    QByteArray Read(const QString& relative) const;

private:
    QTemporaryDir m_dir;
};

#endif
