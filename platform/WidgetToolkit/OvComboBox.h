#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QComboBox>

/**
 * A QComboBox that is safe to scroll past and gives way in a narrow panel.
 *
 * - The wheel changes the current item only while the box has focus. Without focus the event is ignored,
 *   so that a scroll area around it scrolls, and the wheel does not give it focus: its focus policy is
 *   Qt::StrongFocus.
 * - minimumSizeHint() asks for room for minimumContentsLength() characters, or four while that is 0, and
 *   never for more than the widest item; sizeHint() is QComboBox's. A text that does not fit is painted
 *   with an ellipsis, at its end also when it is written from right to left.
 * - The pop-up is at least as wide as its widest item needs, scroll bar included, unless the screen is
 *   narrower. It lies on the screen as a whole, below or above the box as QComboBox has it, flush with
 *   the box's left edge, or the right one in a right-to-left layout. Where the items are translated while
 *   it is open, on QEvent::LanguageChange, it is widened.
 *
 * The dynamic property "popupVisible" is true from when the pop-up opens until it closes, in whatever
 * way, and false at any other time; a style sheet selects `OvComboBox[popupVisible="true"]`. Apart from
 * that and the class name a sheet selects what it can on a QComboBox.
 *
 * None of this relies on changeEvent(): a subclass may swallow those events.
 */
class WIDGETTOOLKIT_EXPORT OvComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// @p parent owns the box as usual.
    explicit OvComboBox(QWidget* parent = nullptr);
    ~OvComboBox() override;

    void showPopup() override;
    void hidePopup() override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QWidget* popup() const;
    void placePopup();
    void publishPopupVisible(bool visible);
};
