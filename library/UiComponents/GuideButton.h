#pragma once

#include <UiComponents/ClickButton.h>
#include <UiComponents/GuideInfo.h>
#include <UiComponents/UiComponentsExport.h>

#include <memory>

// Style sheets and hosts write the property; no notification is needed.
// clazy:excludeall=qproperty-without-notify

/**
 * A tool button that opens a guide in a bubble below itself.
 *
 *     auto* button = new GuideButton(panel);
 *     button->setText(QStringLiteral("?"));
 *     button->setGuideInfo(std::make_unique<GuideInfo>(title, description, link, movie));
 *
 * Without an info a click does nothing.
 *
 * **Pop-up.** Each click creates a new PointingWidget, a pop-up with a GuideWidget, whose arrow touches the
 * middle of the button's lower edge, and deletes the one of an earlier click. Near an edge of the screen the
 * pop-up stays on the screen and may lie above the button. It moves with the button, and closes on Escape, on
 * a click elsewhere and when the button hides; the focus is then where it was before. A closed pop-up lives
 * on until the next click or the end of the button.
 *
 * **Readers.** They find a button with its accessible name or tool tip, and below it, while that is open, the
 * pop-up: a dialog with the guide's title as its name and the text as its description. Space opens it.
 *
 * On X11 a click on the button while its pop-up is open only closes it, since the press belongs to the
 * pop-up. Platforms that pass such a press on open a new one, and so does click() by code.
 *
 * **Style sheet.** The pop-up is named "pointingWidget" and its guide "guideWidget"; both are below the
 * button:
 *
 *     GuideButton > PointingWidget { qproperty-radius: 8; }
 *     #guideWidget { min-width: 280px; max-width: 280px; }
 * @see GuideInfo, GuideWidget, PointingWidget
 */
class UICOMPONENTS_EXPORT GuideButton : public ClickButton
{
    Q_OBJECT
    /// Shifts the pop-up's arrow along its side, in pixels (see PointingWidget::setArrowOffset()): 0 by
    /// default, any value. Takes effect on the next click.
    Q_PROPERTY(int popupOffset MEMBER m_popupOffset)

public:
    /// @p parent owns the button.
    explicit GuideButton(QWidget* parent = nullptr);
    ~GuideButton() override;

    /// Takes @p info; null removes the current one. An open pop-up stays as it is: the next click shows the
    /// new info.
    void setGuideInfo(std::unique_ptr<GuideInfo> info);

    bool hasGuideInfo() const;

Q_SIGNALS:
    /// The user followed the link in the pop-up (see GuideWidget::learnMoreClicked()).
    void learnMoreClicked();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void showHelp();

    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
    int m_popupOffset = 0;
};
