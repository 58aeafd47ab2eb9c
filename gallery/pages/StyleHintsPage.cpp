#include "StyleHintsPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <QLineEdit>
#include <QSlider>
#include <QToolButton>

namespace {

QStringList hints()
{
    return {QString(),   LIGHT_GREY_ONE, LIGHT_GREY_TWO, WITHOUT_BG1,  WITHOUT_BG2,
            WITHOUT_BG3, SELECT_LIGHT,   INPUT_LIGHT,    SLIDER_LIGHT, QStringLiteral("error")};
}

QToolButton* makeButton(QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setText(QStringLiteral("QToolButton"));
    return button;
}

QLineEdit* makeEdit(QWidget* parent)
{
    return new QLineEdit(QStringLiteral("QLineEdit"), parent);
}

QSlider* makeSlider(QWidget* parent)
{
    constexpr int Half = 50;
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setValue(Half);
    return slider;
}

} // namespace

PageInfo StyleHintsPage::info()
{
    return {QStringLiteral("style-hints"),
            tr("Style hints and properties"),
            PageGroup::Layout,
            {QStringLiteral("styleHint"), QStringLiteral("applyProperty"), QStringLiteral("repolish")},
            {QStringLiteral("StyleHints"), QStringLiteral("Util")},
            &createPage<StyleHintsPage>};
}

StyleHintsPage::StyleHintsPage(QWidget* parent)
    : Page(info(),
           tr("Code names a variant, the style sheet gives it a look: a hint is a dynamic property that "
              "the sheet selects on. Setting it polishes the widget again, and only when it changed."),
           parent)
{
    const auto buttons = addTwins<QToolButton>(tr("A button"), &makeButton);
    const auto edits = addTwins<QLineEdit>(tr("An edit"), &makeEdit);
    const auto sliders = addTwins<QSlider>(tr("A slider"), &makeSlider);
    const auto onAll = [buttons, edits, sliders](const auto& apply) {
        buttons.each(apply);
        edits.each(apply);
        sliders.each(apply);
    };

    QStringList choices = hints();
    choices.first() = tr("(none)");
    properties()->addHeading(QStringLiteral("Util::applyStyleHint"));
    properties()->addChoice(tr("Hint"), choices, 0, [onAll](int index) {
        onAll([index](QWidget* widget) { Util::applyStyleHint(widget, hints().at(index)); });
    });
    properties()->addHeading(QStringLiteral("Util::applyProperty"));
    for (const char* name : {"nullColor", "multiColor", "hovered"}) {
        properties()->addSwitch(QString::fromUtf8(name), false, [onAll, name](bool on) {
            onAll([name, on](QWidget* widget) { Util::applyProperty(widget, name, on); });
        });
    }
    properties()->addHeading(QStringLiteral("Util::Details::removeClassMemberPrefix"));
    properties()->addText(tr("Member name"), QStringLiteral("m_guideWidget"), [this](const QString& name) {
        const QByteArray utf8 = name.toUtf8();
        signalLog()->addLine(QStringLiteral("\"%1\" → \"%2\"")
                                 .arg(name, Util::Details::removeClassMemberPrefix(utf8.constData())));
    });
    signalLog()->watch(buttons.enabled, QStringLiteral("button"));
    signalLog()->watch(edits.enabled, QStringLiteral("edit"));
    signalLog()->watch(sliders.enabled, QStringLiteral("slider"));
}
