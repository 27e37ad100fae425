#ifndef GUISTALL_H
#define GUISTALL_H

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <algorithm>

/** The longest time for which the GUI thread did not get round to a timer, since this object was made. */
class GuiStall
{
public:
    GuiStall()
    {
        m_sinceBeat.start();
        QObject::connect(&m_heart, &QTimer::timeout, &m_heart, [this] { Beat(); });
        m_heart.start(1);
    }

    double LongestMs()
    {
        Beat();
        return static_cast<double>(m_longestNs) / 1e6;
    }

private:
    void Beat() { m_longestNs = std::max(m_longestNs, m_sinceBeat.nsecsElapsed()), m_sinceBeat.start(); }

    QTimer m_heart;
    QElapsedTimer m_sinceBeat;
    qint64 m_longestNs = 0;
};

#endif
