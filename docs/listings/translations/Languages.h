#ifndef LANGUAGES_H
#define LANGUAGES_H

#include <QTranslator>

class QLocale;

/** Speaks one language at a time: the pane's texts, and Qt's own in buttons and column headers. */
class Languages
{
public:
    /** Changes to a language. English is spoken where there is no catalogue. */
    void Speak(const QLocale& language);

private:
    QTranslator m_pane;
    QTranslator m_qt;
};

#endif
