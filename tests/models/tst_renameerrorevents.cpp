#include "models/RenameErrorEvents.h"
#include "tests/support/TestMain.h"

#include <QEvent>

class Receiver : public QObject
{
public:
    explicit Receiver(const RenameErrorEvents& events) : m_events(events) {}

    bool event(QEvent* event) override
    {
        const int code = m_events.CodeOf(*event);
        if (code < 0)
            return QObject::event(event);
        m_codes.append(code);
        return true;
    }

    QList<int> m_codes;

private:
    const RenameErrorEvents& m_events;
};

class tst_RenameErrorEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void codesArriveWithTheEventLoop();
    void pairsDoNotAnswerForEachOther();
};

void tst_RenameErrorEvents::codesArriveWithTheEventLoop()
{
    const RenameErrorEvents events;
    Receiver receiver(events);
    events.Post(&receiver, RenameError::RenameFailed);
    events.Post(&receiver, RenameError::NameExists);
    QVERIFY(receiver.m_codes.isEmpty());
    QCoreApplication::sendPostedEvents(&receiver);
    QCOMPARE(receiver.m_codes, (QList<int>{1, 0}));
}

void tst_RenameErrorEvents::pairsDoNotAnswerForEachOther()
{
    const RenameErrorEvents ours;
    const RenameErrorEvents others;
    Receiver receiver(ours);
    others.Post(&receiver, RenameError::NameExists);
    QCoreApplication::sendPostedEvents(&receiver);
    QVERIFY(receiver.m_codes.isEmpty());
    QCOMPARE(ours.CodeOf(QEvent(QEvent::User)), -1);
}

KTFM_TEST_MAIN(tst_RenameErrorEvents)
#include "tst_renameerrorevents.moc"
