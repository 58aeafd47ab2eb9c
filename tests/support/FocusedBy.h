#pragma once

#include <QtTest>

/// The widgets of the active @p window that have the focus, one after the other, when @p key is pressed some
/// @p times.
inline QList<QWidget*> focusedBy(Qt::Key key, int times, const QWidget& window)
{
    QList<QWidget*> focused;
    for (int i = 0; i < times; ++i) {
        QTest::keyClick(window.focusWidget(), key);
        focused += window.focusWidget();
    }
    return focused;
}
