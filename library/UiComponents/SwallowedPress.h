// Internal: what WidgetColorPicker leaves behind when it keeps a press from its receiver.

#pragma once

#include <QObject>

/// Keeps from all widgets the double click that Qt makes of a press which was kept from them: a button takes
/// it for a press and stays down, as it is not told of the release. Lives until the next press or release,
/// and deletes itself.
class SwallowedPress : public QObject
{
    Q_OBJECT

public:
    /// The application owns it meanwhile.
    SwallowedPress();
    ~SwallowedPress() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
};
