#pragma once

#include <QList>
#include <QRect>
#include <QTemporaryDir>

/**
 * What a test may rely on wherever it runs: fixed locale, time zone, scale, style and fonts; log and settings in a
 * folder of its own; and no way for the code under test to reach an adapter or a machine.
 */
class TestEnvironment
{
public:
    /** To be called before the application object is made: sets what is read from the process's environment. */
    static void PrepareProcess();

    /**
     * To be called before the application object is made, after PrepareProcess: the offscreen platform then has these
     * screens, the first one being the primary.
     */
    struct Screen
    {
        QRect rectGeometry;  ///< in the desktop's coordinates
        double dRatio = 1.0; ///< its device pixel ratio
    };
    static void PrepareScreens(const QList<Screen>& screens);

    /** Puts the cursor into a corner of the screen: a window that shows below it is hovered from the start. */
    static void MoveCursorAway();

    /** To be made after the application object. Chinese is the language until a test sets another. */
    TestEnvironment();
    ~TestEnvironment();

private:
    QTemporaryDir m_folder;
};
