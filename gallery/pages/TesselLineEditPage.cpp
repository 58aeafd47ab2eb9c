#include "TesselLineEditPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <DesignElements/TesselLineEdit.h>

using Orvane::Tessel::TesselLineEdit;

namespace {

TesselLineEdit* makeEdit(QWidget* parent, const QString& text)
{
    auto* edit = new TesselLineEdit(parent);
    edit->setText(text);
    return edit;
}

} // namespace

PageInfo TesselLineEditPage::info()
{
    return {QStringLiteral("tessel-line-edit"),
            tr("Line edit"),
            PageGroup::Inputs,
            {tr("text"), tr("context menu"), tr("field")},
            {QStringLiteral("TesselLineEdit")},
            &createPage<TesselLineEditPage>};
}

TesselLineEditPage::TesselLineEditPage(QWidget* parent)
    : Page(info(),
           tr("The design system's line edit. Its context menu always has the same shape: what can do "
              "nothing at the moment is disabled, not missing."),
           parent)
{
    const auto edits = addTwins<TesselLineEdit>(
        tr("A text"), [](QWidget* twinParent) { return makeEdit(twinParent, tr("Text to edit")); });
    const auto hints = addTwins<TesselLineEdit>(
        tr("A placeholder"), [](QWidget* twinParent) { return makeEdit(twinParent, QString()); });
    hints.each([](TesselLineEdit* edit) { edit->setPlaceholderText(tr("Name of the clip")); });
    const auto readOnly = addTwins<TesselLineEdit>(
        tr("Read only"), [](QWidget* twinParent) { return makeEdit(twinParent, tr("Text to copy")); });
    readOnly.each([](TesselLineEdit* edit) { edit->setReadOnly(true); });

    properties()->addHeading(tr("A text"));
    properties()->addProperties(edits.objects(), {QStringLiteral("text"), QStringLiteral("placeholderText"),
                                                  QStringLiteral("readOnly"), QStringLiteral("echoMode"),
                                                  QStringLiteral("clearButtonEnabled"),
                                                  QStringLiteral("maxLength"), QStringLiteral("frame")});
    signalLog()->watch(edits.enabled, QStringLiteral("lineEdit"));
    describeStyling(edits.enabled, tr("Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; "
                                      "its menu as QMenu#tesselContextMenu."));
}
