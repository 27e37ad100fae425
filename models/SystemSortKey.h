#ifndef SYSTEMSORTKEY_H
#define SYSTEMSORTKEY_H

#include <QByteArray>
#include <QCollator>
#include <QString>

/**
 * What the system makes of a text for sorting it by the locale: keys compare as their texts do.
 *
 * Away from Windows it is QCollator's key. On Windows that one takes the bytes of the system's key for UTF-16
 * units and compares uninitialised memory behind them, so that the bytes are kept here.
 */
class SystemSortKey
{
public:
    /** @return whether the locale has rules of its own; where it has none there are no keys */
    static bool Exists();

    /** @param text in the normalisation form C, and not empty */
    explicit SystemSortKey(const QString& text);

    /** @return less than, equal to or greater than 0 as this text sorts before, with or after @p other */
    int Compare(const SystemSortKey& other) const;

private:
#ifdef Q_OS_WIN
    QByteArray m_key;
#else
    QCollatorSortKey m_key;
#endif
};

#endif
