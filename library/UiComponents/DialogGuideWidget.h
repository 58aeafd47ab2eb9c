#pragma once

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/DialogGuideInfo.h>
#include <UiComponents/UiComponentsExport.h>

#include <memory>

/**
 * A bubble that walks the user through a step: a heading with a close button, an animated picture, a
 * description, and two buttons. The host hides or deletes it; no click does.
 *
 *     auto* guide = new DialogGuideWidget(timeline);
 *     guide->setInfo({tr("The timeline"), tr("Clips lie here."), tr("Next"), tr("Back"), QString()});
 *     guide->pointTo(timeline->mapToGlobal(timeline->rect().center()));
 *     connect(guide, &DialogGuideWidget::mainClicked, this, &Walk::next);
 *     connect(guide, &DialogGuideWidget::closeClicked, guide, &QObject::deleteLater);
 *     guide->show();
 *
 * **Aim.** adjustPositions() aims the arrow again whenever the parent moves, is resized or shown, and
 * whenever the bubble is resized or painted; it causes no further paint where nothing changed. The bubble
 * follows a new parent too.
 *
 * **Size.** Set a width in the style sheet, or long texts make the bubble wide. It is never larger than its
 * screen: a word or image in a text takes at most half of the screen's width, a button a quarter, with an
 * ellipsis in its text.
 *
 * **Readers.** They announce a dialog with title and description when it appears; in it are the buttons and
 * the picture, as in GuideWidget. enter() leads in by keyboard.
 *
 * **Style sheet.** In "contentFrame" are "headerFrame" with "headerLabel" and "closeButton",
 * "descriptionFrame" with "gifPixmapWidget" and "descriptionLabel", and "buttonsFrame" with "secondaryButton"
 * (style hint "guideButton") and, at its end, "mainButton" ("guideMainButton"). The frames are OvFrames,
 * without margins and spacing by default:
 *
 *     DialogGuideWidget { min-width: 300px; max-width: 300px; }
 *     DialogGuideWidget #buttonsFrame { qproperty-layoutSpacing: 6; }
 *     DialogGuideWidget #closeButton { qproperty-icon: url(images/close.png); }
 * @see DialogGuideInfo; PointingWidget for window, place and size; GuideWidget
 */
class UICOMPONENTS_EXPORT DialogGuideWidget : public PointingWidget
{
    Q_OBJECT

public:
    /// @p parent, the widget that the bubble annotates, owns it; null makes it a bubble of the desktop.
    explicit DialogGuideWidget(QWidget* parent);
    ~DialogGuideWidget() override;

    /// Shows @p info. The heading is plain text in a weight that suits the language (see
    /// Customization::localeDependedBoldText()) and hidden when empty; the picture is hidden when its file
    /// does not exist, and plays while the bubble is shown (GuideWidget says how to pause it, or to show its
    /// first frame only). The size follows one turn of the event loop later, when layouts and style sheet
    /// have settled, and when the bubble is shown.
    void setInfo(const DialogGuideInfo& info);

    /// Gives the bubble the keyboard, at the main button: for a shortcut of the host's. Nothing of itself
    /// takes it from the widget that the bubble explains. Tab then goes through the bubble; Enter presses the
    /// button that has the focus; Escape emits closeClicked() while the close button is visible. Does nothing
    /// while the bubble is hidden.
    void enter();

    /// Both buttons are visible by default.
    void setCloseButtonVisible(bool visible);
    void setSecondaryButtonVisible(bool visible);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user, or QAbstractButton::click(), clicked the button of this name; Escape counts as the close
    /// button.
    void secondaryClicked();
    void mainClicked();
    void closeClicked();

protected:
    /// Gives heading and description room for all their lines at their current width.
    void updateContent();

    /// Aims at the current target again. Override it to call pointTo() for a spot that moves within the
    /// parent. It is called often, from paint events too: whatever else it changes must settle, as the
    /// arrow's side does, or each paint causes another.
    virtual void adjustPositions();

    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
