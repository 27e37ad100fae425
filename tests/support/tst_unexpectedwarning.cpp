#include "tests/support/TestMain.h"

/** Passes by itself, though with a warning that it did not expect; CTest must count it as failed. */
class tst_UnexpectedWarning : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warns() { qWarning("nobody expected this"); }
};

KTFM_TEST_MAIN(tst_UnexpectedWarning)
#include "tst_unexpectedwarning.moc"
