#ifndef TESTMAIN_H
#define TESTMAIN_H

#include <QApplication>
#include <QLocale>
#include <QtTest>

/**
 * The main function of a test program: a widget application in a fixed locale (in the C locale a collator
 * knows no language). CTest counts any warning that no test expected as a failure.
 */
#define KTFM_TEST_MAIN(TestClass)                                                                            \
    int main(int argc, char* argv[])                                                                         \
    {                                                                                                        \
        qputenv("LC_ALL", "en_US.UTF-8");                                                                    \
        QApplication app(argc, argv);                                                                        \
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));                               \
        TestClass test;                                                                                      \
        return QTest::qExec(&test, argc, argv);                                                              \
    }

#endif
