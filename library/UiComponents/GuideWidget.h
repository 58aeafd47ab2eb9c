#pragma once

#include <UiComponents/GuideInfo.h>
#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <memory>

/**
 * A short piece of help: a heading, an animated picture, a description and a link, from top to bottom.
 *
 *     auto* guide = new GuideWidget(info, panel);
 *     connect(guide, &GuideWidget::learnMoreClicked, this, &Panel::countReaders);
 *
 * **Texts.** The heading is plain text, in a weight that suits the language (see
 * Customization::localeDependedBoldText()). Description and link are plain or rich text, as in QLabel.
 *
 * **Picture.** It plays from its first frame whenever the guide is shown, and costs nothing while it is
 * hidden. A click on it, or Space while it has the focus, pauses and resumes it. Where the dynamic property
 * "firstPictureOnly" of the guide, of a widget around it in its window or of the application is true, it
 * shows its first frame until the user plays it:
 *
 *     qApp->setProperty("firstPictureOnly", true);           // takes effect when a guide is next shown
 *
 * **Readers.** They find a group of the guide's texts and of the picture, which says whether it plays and
 * what Space does.
 *
 * **Size.** Heading and description get room for all their lines at the polished guide's width when its info
 * is set. Set the width first, in the style sheet or by code; a guide that becomes wider later keeps the
 * height. The picture follows the width and shrinks where there is no room.
 *
 * **Style sheet.** The labels are "headerLabel", "descriptionLabel" and "learnMoreLabel", the OvPixmapWidget
 * is "gifPixmapWidget". The frame's metrics are OvFrame's properties, 0 by default:
 *
 *     GuideWidget { min-width: 280px; max-width: 280px; qproperty-layoutSpacing: 8; }
 *     GuideWidget > #descriptionLabel { color: gray; }
 *     GuideWidget > #learnMoreLabel { color: #6ea8f7; }  // the link too; without it, that of the palette
 * @see GuideInfo; GuideButton, which shows a guide in a pop-up; DialogGuideWidget
 */
class UICOMPONENTS_EXPORT GuideWidget : public OvFrame
{
    Q_OBJECT

public:
    /// Shows a copy of @p info: a part whose text is empty is hidden, and so is the picture when its file
    /// does not exist; a file that is no picture leaves an empty one. Nothing is reported. @p parent owns the
    /// guide; null makes it a window.
    GuideWidget(const GuideInfo& info, QWidget* parent);
    /// Of no texts yet, for forms.
    explicit GuideWidget(QWidget* parent);
    ~GuideWidget() override;

    /// Shows @p info instead, and resizes the guide to its size hint, which a layout around it overrules.
    /// Equal info does nothing. In a shown guide a new picture plays at once; one that stays the same plays
    /// on. A word that takes more than half of the screen's width is broken, and an image in a text is scaled
    /// down to that.
    void setInfo(const GuideInfo& info);

Q_SIGNALS:
    /// The user followed the link, by a click or with Tab and Enter; links in the description are not
    /// followed. Emitted after QDesktopServices::openUrl(), whether that succeeded or not.
    void learnMoreClicked();

protected:
    /// Plays the picture, or shows its first frame. Qt 5 does not know whether the desktop wants less motion:
    /// the host asks its platform, or its user, and sets "firstPictureOnly".
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class GuideButton;
    /// Sets the object name @p name before the texts are measured, so that a sheet's rule for it counts.
    GuideWidget(const GuideInfo& info, QWidget* parent, const QString& name);

    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
