#include "GuideButtonPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "GuidePage.h"
#include "GuideTexts.h"

#include <EditorWidgets/PointingWidget.h>
#include <UiComponents/GuideButton.h>

namespace {

GuideButton* makeButton(QWidget* parent, const GuideInfo& info)
{
    auto* button = new GuideButton(parent);
    button->setText(QStringLiteral("?"));
    button->setToolTip(info.title);
    button->setGuideInfo(std::make_unique<GuideInfo>(info));
    return button;
}

} // namespace

PageInfo GuideButtonPage::info()
{
    return {QStringLiteral("guide-button"),
            tr("Guide button"),
            PageGroup::Guides,
            {tr("help"), tr("hint"), tr("pop-up"), tr("bubble")},
            {QStringLiteral("GuideButton")},
            &createPage<GuideButtonPage>};
}

GuideButtonPage::GuideButtonPage(QWidget* parent)
    : Page(info(),
           tr("A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the "
              "button close it."),
           parent)
    , m_twins(addTwins<GuideButton>(tr("With an animated picture"), [](QWidget* twinParent) {
        return makeButton(twinParent, GuideTexts::trim(twinParent));
    }))
{
    addTwins<GuideButton>(tr("A title alone"), [](QWidget* twinParent) {
        return makeButton(twinParent, GuideInfo(tr("Nothing more to say"), QString(), QString(), QString()));
    });
    addTwins<GuideButton>(tr("Without an info"), [](QWidget* twinParent) {
        auto* button = new GuideButton(twinParent);
        button->setText(QStringLiteral("?"));
        return button;
    });

    properties()->addProperties(m_twins.objects());
    properties()->addHeading(QStringLiteral("setGuideInfo()"));
    properties()->addChoice(tr("Info"), {tr("Trim"), tr("Ripple delete"), tr("none")}, 0, [this](int choice) {
        m_twins.each([choice](GuideButton* button) {
            if (choice == 2) {
                button->setGuideInfo(nullptr);
            } else {
                button->setGuideInfo(std::make_unique<GuideInfo>(
                    choice == 0 ? GuideTexts::trim(button) : GuideTexts::rippleDelete(button)));
            }
        });
    });
    properties()->addSwitch(tr("Visible"), true, [this](bool on) {
        m_twins.each([on](GuideButton* button) { button->setVisible(on); });
    });
    properties()->addAction(QStringLiteral("click()"), [this] {
        if (m_twins.enabled) {
            m_twins.enabled->click();
        }
    });
    signalLog()->watch(m_twins.enabled, QStringLiteral("button"));
    describeStyling(m_twins.enabled,
                    tr("A tool button. Its pop-up is a PointingWidget named pointingWidget, with a "
                       "GuideWidget named guideWidget in it; both are below the button for a sheet."));
}

void GuideButtonPage::prepareForPicture()
{
    if (m_twins.enabled) {
        m_twins.enabled->click();
    }
    rest(this);
    signalLog()->clear();
}
