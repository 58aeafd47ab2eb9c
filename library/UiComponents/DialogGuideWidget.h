#pragma once

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/DialogGuideInfo.h>
#include <UiComponents/UiComponentsExport.h>

#include <memory>

/**
 * A bubble that walks the user through a step: a heading with a close button, an animated picture, a
 * description, and two buttons.
 *
 *     auto* guide = new DialogGuideWidget(timeline);
 *     guide->setInfo({tr("The timeline"), tr("Clips lie here."), tr("Next"), tr("Back"), QString()});
 *     guide->pointTo(timeline->mapToGlobal(timeline->rect().center()));
 *     connect(guide, &DialogGuideWidget::mainClicked, this, &Walk::next);
 *     connect(guide, &DialogGuideWidget::closeClicked, guide, &QObject::deleteLater);
 *     guide->show();
 *
 * It never hides or deletes itself on a click: the host decides. Window, place, following the parent, and
 * the limits of the size are PointingWidget's.
 *
 * # Aim
 * The arrow is aimed again, by adjustPositions(), whenever the parent moves, is resized or is shown, and
 * whenever the bubble is resized or painted; that costs little where nothing changed and causes no further
 * paint. Until the first pointTo() the target is the parent's upper left corner. A bubble that gets another
 * parent follows that one.
 *
 * # Size
 * The texts get room for all their lines one turn of the event loop after setInfo(), when layouts and
 * style sheet have settled, and when the bubble is shown; the size is the old one until then. Give the bubble
 * a width in the style sheet, or long texts make it wide. It is never larger than its screen: a word or a
 * picture in a text takes half of its width at most, a button, whose text ends in an ellipsis then, a
 * quarter.
 *
 * # Picture
 * It plays while the bubble is shown and rests while it is hidden (see OvPixmapWidget).
 *
 * # Style sheet
 * In the bubble's "contentFrame" are, from top to bottom, the frames "headerFrame" with "headerLabel" and
 * "closeButton", "descriptionFrame" with "gifPixmapWidget" and "descriptionLabel", and "buttonsFrame" with
 * "secondaryButton" and "mainButton" at its end. The two have the style hints "guideButton" and
 * "guideMainButton". The frames are OvFrames, without margins and spacing until a sheet sets them:
 *
 *     DialogGuideWidget { min-width: 300px; max-width: 300px; }
 *     DialogGuideWidget #buttonsFrame { qproperty-layoutSpacing: 6; }
 *     DialogGuideWidget #closeButton { qproperty-icon: url(images/close.png); }
 *
 * # Lifetime
 * A slot of any of the signals may delete the bubble and everything around it.
 */
class UICOMPONENTS_EXPORT DialogGuideWidget : public PointingWidget
{
    Q_OBJECT

public:
    /// @p parent, the widget that the bubble annotates, owns it. Null makes it a bubble of the desktop.
    explicit DialogGuideWidget(QWidget* parent);
    ~DialogGuideWidget() override;

    /// Shows @p info. The heading is shown as text, in a weight that suits the language (see
    /// Customization::localeDependedBoldText()), and hidden when empty; the picture is hidden when its file
    /// does not exist.
    void setInfo(const DialogGuideInfo& info);

    /// Both buttons are visible at first.
    void setCloseButtonVisible(bool visible);
    void setSecondaryButtonVisible(bool visible);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user, or click(), pressed the button of the name.
    void secondaryClicked();
    void mainClicked();
    void closeClicked();

protected:
    /// Gives heading and description room for all their lines at their present width. setInfo() does so one
    /// turn later.
    void updateContent();

    /// Aims at the present target again. Override it to aim at a spot that moves within the parent, with
    /// pointTo(). It is called often, from paint events too: what else it changes must settle, as an arrow's
    /// side does, or paints would follow each other for ever.
    virtual void adjustPositions();

    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
