#pragma once

#include <QCoreApplication>

/// Lets what is due happen, until nothing is.
inline void settle()
{
    for (int turn = 0; turn < 20; ++turn) {
        QCoreApplication::processEvents();
    }
}
