#pragma once

#include <QObject>
#include <QPointer>

#include <memory>

class QAbstractButton;
class QWidget;

namespace Orvane::Gui {
class HighlightFrame;
}

/**
 * Has the user point at a widget of the application with the mouse.
 *
 * It points for as long as its button is checked. Then it outlines the innermost widget under the mouse,
 * whether that takes mouse events or not, and keeps mouse and keyboard from all widgets but the button.
 * A click or Enter takes what is outlined; Escape, and a click on the button, end it too.
 */
class WidgetPointer : public QObject
{
    Q_OBJECT

public:
    /// @p button, which is checkable and lives longer, starts and ends it.
    explicit WidgetPointer(QAbstractButton* button, QObject* parent = nullptr);
    ~WidgetPointer() override;

Q_SIGNALS:
    /// The mouse came to @p widget.
    void pointedAt(QWidget* widget);

    /// The user took the widget that pointedAt() reported last.
    void taken();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setPointing(bool on);
    void pointAt(QWidget* widget);
    bool mouseEvent(QWidget* window, QEvent* event);
    bool keyEvent(QEvent* event);
    void take();

    QAbstractButton* const m_button;
    std::unique_ptr<Orvane::Gui::HighlightFrame> m_frame;
    QPointer<QWidget> m_widget;
};
