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
 * GuideButton shows one in a pop-up. A part whose text is empty is hidden, and so is the picture when its
 * file does not exist; nothing is reported. A file that is no image leaves an empty picture.
 *
 * # Texts
 * The title is text and is shown with just its characters, in a weight that suits the language (see
 * Customization::localeDependedBoldText()). Description and link are plain or rich text, as QLabel tells
 * them apart. The link can be reached with Tab and followed with Enter. Links in the description are not
 * followed.
 *
 * # Picture
 * It plays while the guide is shown, from its first frame at each showing, and costs nothing while the
 * guide is hidden. A picture that setInfo() brings plays at once where the guide is shown; one that stays
 * the same plays on.
 *
 * # Size
 * Heading and description get room for all their lines at the width that the guide has when its info is
 * set, after it was polished. So give the guide its width first, in the style sheet or by hand; a guide
 * that becomes wider afterwards keeps the height. The picture follows the width and shrinks where there is
 * no room for it. A word that would take more than half of the screen's width is broken, and a picture in a
 * text made that small.
 *
 * # Style sheet
 * The labels are named "headerLabel", "descriptionLabel" and "learnMoreLabel", the OvPixmapWidget
 * "gifPixmapWidget". The frame's metrics are OvFrame's properties, 0 without a sheet:
 *
 *     GuideWidget { min-width: 280px; max-width: 280px; qproperty-layoutSpacing: 8; }
 *     GuideWidget > #descriptionLabel { color: gray; }
 *
 * # Lifetime
 * A slot of learnMoreClicked() may delete the guide and everything around it.
 */
class UICOMPONENTS_EXPORT GuideWidget : public OvFrame
{
    Q_OBJECT

public:
    /// Shows a copy of @p info. @p parent owns the guide as usual; null makes it a window.
    GuideWidget(const GuideInfo& info, QWidget* parent);
    ~GuideWidget() override;

    /// Shows @p info instead, and gives the guide the size that it then hints at, which a layout around
    /// it overrules. Equal info does nothing.
    void setInfo(const GuideInfo& info);

Q_SIGNALS:
    /// The user followed the link, which has been handed to the desktop (QDesktopServices::openUrl())
    /// just before, whether that could open it or not.
    void learnMoreClicked();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class GuideButton;
    /// With the object name @p name, which a sheet may dress it by before its texts are measured.
    GuideWidget(const GuideInfo& info, QWidget* parent, const QString& name);

    class Private;
    const std::unique_ptr<Private> d;
};
