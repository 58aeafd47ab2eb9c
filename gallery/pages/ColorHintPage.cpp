#include "ColorHintPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <EditorWidgets/ColorHint.h>
#include <WidgetToolkit/StyleHints.h>

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

QStringList hints()
{
    return {LIGHT_GREY_ONE, LIGHT_GREY_TWO, WITHOUT_BG1, WITHOUT_BG2,
            WITHOUT_BG3,    SELECT_LIGHT,   INPUT_LIGHT, SLIDER_LIGHT};
}

QPushButton* makeButton(QWidget* parent, const QString& hint)
{
    auto* button = new QPushButton(hint, parent);
    ColorHint::applyColorHint(button, hint);
    return button;
}

} // namespace

PageInfo ColorHintPage::info()
{
    return {QStringLiteral("color-hint"),
            tr("Colour variants"),
            PageGroup::Layout,
            {tr("variant"), tr("hint"), QStringLiteral("styleHint")},
            {QStringLiteral("ColorHint")},
            &createPage<ColorHintPage>};
}

ColorHintPage::ColorHintPage(QWidget* parent)
    : Page(info(),
           tr("The editor's eight colour variants of plain controls, by name. Anything but one of the "
              "names is ignored; the empty text drops the variant."),
           parent)
{
    const auto grids = addTwins<QWidget>(QString(), [](QWidget* twinParent) {
        auto* grid = new QWidget(twinParent);
        grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        auto* layout = new QGridLayout(grid);
        layout->setContentsMargins(0, 0, 0, 0);
        int cell = 0;
        const QStringList all = hints();
        for (const QString& hint : all) {
            layout->addWidget(makeButton(grid, hint), cell / 2, cell % 2);
            ++cell;
        }
        return grid;
    });
    const auto edits = addTwins<QLineEdit>(tr("An edit"), [](QWidget* twinParent) {
        return new QLineEdit(tr("Choose a variant below"), twinParent);
    });

    QStringList choices = hints();
    choices.prepend(tr("(none)"));
    properties()->addHeading(QStringLiteral("ColorHint::applyColorHint()"));
    properties()->addChoice(tr("Variant of the edit"), choices, 0, [edits](int index) {
        edits.each([index](QLineEdit* edit) {
            ColorHint::applyColorHint(edit, index == 0 ? QString() : hints().at(index - 1));
        });
    });
    properties()->addText(tr("Any text"), QString(), [edits, this](const QString& text) {
        edits.each([&text](QLineEdit* edit) { ColorHint::applyColorHint(edit, text); });
        signalLog()->addLine(
            QStringLiteral("styleHint: \"%1\"")
                .arg(edits.enabled ? edits.enabled->property("styleHint").toString() : QString()));
    });
    signalLog()->watch(edits.enabled, QStringLiteral("edit"));
    describeStyling({edits.enabled.data(),
                     tr("Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared "
                        "variants."),
                     hints(), QStringLiteral("ColorHint")});
}
