#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QComboBox>

/**
 * A QComboBox that is safe to scroll past and fits into a narrow panel.
 *
 * - The wheel changes the current item only while the box has focus. Without focus it ignores the event, so
 *   that a scroll area around it scrolls; the wheel does not give focus: the focus policy is Qt::StrongFocus.
 * - minimumSizeHint() asks for room for minimumContentsLength() characters, or four while that is 0, and at
 *   most for the widest item; sizeHint() is QComboBox's. A text that does not fit ends with an ellipsis, from
 *   right to left too.
 * - The pop-up is at least as wide as its widest item needs, scroll bar included, unless the screen is
 *   narrower. It lies wholly on the screen, below or above the box as QComboBox has it, flush with the box's
 *   left edge, or the right one from right to left. It widens when the items are translated while it is open,
 *   on QEvent::LanguageChange.
 *
 * **Style sheet.** The dynamic property "popupVisible" is true while the pop-up is open, and false otherwise:
 * select `OvComboBox[popupVisible="true"]`. All else is as in QComboBox.
 *
 * None of this relies on changeEvent(): a subclass may swallow those events.
 * @see Orvane::Tessel::convertComboBoxToTessel()
 */
class WIDGETTOOLKIT_EXPORT OvComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// @p parent owns the box.
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
