#ifndef KINDCARDS_H
#define KINDCARDS_H

#include <QHash>
#include <QImage>
#include <QString>

/**
 * Drawn images for what has no picture of its own: a folder, and a card a suffix.
 *
 * All are squares of one size, so that names below them stand in line. Each is drawn once: a view that asks
 * for it again gets the same image, which the models then show without converting it anew.
 */
class KindCards
{
public:
    /** The side of every image, in pixels: the largest thumbnail on a screen of twice the density. */
    static constexpr int Side = 192;

    KindCards();

    QImage Folder() const;

    /** @return the image of files with a suffix, which is written on it */
    QImage Of(const QString& suffix);

    /** @return the image of a file that is not there */
    QImage Missing() const;

private:
    QHash<QString, QImage> m_cards;
    QImage m_folder;
    QImage m_missing;
};

#endif
