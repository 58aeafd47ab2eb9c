#include "WorkaroundPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <EditorWidgets/Workaround.h>
#include <WidgetToolkit/Util.h>

#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int Padding = 16;

QWidget* makePanel(QWidget* parent, Qt::WindowFlags flags)
{
    auto* panel = new QWidget(parent, flags);
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    panel->setObjectName(QStringLiteral("roundedPanel"));
    panel->setProperty("roundedEdges", true);
    Workaround::Ui::apply(panel);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(Padding, Padding, Padding, Padding);
    auto* label = new QLabel(WorkaroundPage::tr("What lies behind shows through the corners."), panel);
    label->setWordWrap(true);
    layout->addWidget(label);
    return panel;
}

} // namespace

PageInfo WorkaroundPage::info()
{
    return {QStringLiteral("workaround"),
            tr("Rounded pop-ups"),
            PageGroup::Bubbles,
            {tr("corner"), tr("translucent"), QStringLiteral("roundedEdges")},
            {QStringLiteral("Workaround")},
            &createPage<WorkaroundPage>};
}

WorkaroundPage::WorkaroundPage(QWidget* parent)
    : Page(info(),
           tr("Real rounded corners where desktops disagree about them: a widget with the property "
              "roundedEdges is translucent, and painted all the same."),
           parent)
{
    const auto panels = addTwins<QWidget>(
        tr("As a part of a window"), [](QWidget* twinParent) { return makePanel(twinParent, Qt::Widget); });
    properties()->addSwitch(QStringLiteral("roundedEdges"), true, [panels](bool on) {
        panels.each([on](QWidget* panel) { Util::applyProperty(panel, "roundedEdges", on); });
    });
    properties()->addAction(tr("Open a pop-up"), [this] {
        QWidget* const popup = makePanel(this, Qt::Popup);
        popup->setAttribute(Qt::WA_DeleteOnClose);
        signalLog()->watch(popup, QStringLiteral("popup"));
        popup->adjustSize();
        popup->move(properties()->mapToGlobal(properties()->rect().center() - popup->rect().center()));
        popup->show();
    });
    signalLog()->watch(panels.enabled, QStringLiteral("panel"));
    describeStyling({panels.enabled.data(),
                     tr("Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it "
                        "background, border and border-radius."),
                     {},
                     QStringLiteral("Workaround::Ui")});
}
