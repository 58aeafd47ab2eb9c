#pragma once

#include <QTemporaryDir>

class QObject;

/**
 * The surroundings that every test program runs in: a home of its own, so that nothing of the user's is
 * read or written, and one style for comparable pictures.
 */
class TestEnvironment
{
public:
    TestEnvironment();

    /// After construction of the application.
    static void prepareApplication();

    /// Runs the tests of @p test. What the off-screen platform says that it cannot do (raising a window,
    /// grabbing keys for a menu) counts as no warning: no test off screen is about that.
    static int run(QObject* test, int argc, char** argv);

    /// Fails the run when top-level widgets that did not exist before the tests are still alive: the
    /// leak checker does not see them, because Qt's own list of widgets refers to them.
    static int reportLeftovers(int result);

private:
    QTemporaryDir m_home;
};
