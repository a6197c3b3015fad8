#pragma once

#include <tests/support/TestEnvironment.h>

#include <QApplication>
#include <QtTest>

/**
 * The main function of a test executable: the same surroundings on every machine, then the tests of one class.
 *
 * Put it at the end of the source, before the include of its .moc file.
 */
#define CUSTOMCONTROLS_TEST_MAIN(TestClass)                                                                            \
    int main(int argc, char* argv[])                                                                                   \
    {                                                                                                                  \
        TestEnvironment::PrepareProcess();                                                                             \
        QApplication app(argc, argv);                                                                                  \
        const TestEnvironment environment;                                                                             \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }
