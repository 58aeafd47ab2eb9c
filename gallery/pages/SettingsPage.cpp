#include "SettingsPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "ResultTable.h"

#include <Settings/Settings.h>
#include <Settings/StandardFolderUrls.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/CustomColors.h>

#include <QHBoxLayout>

#include <memory>

namespace {

const QColor StartColor(47, 111, 222);

} // namespace

PageInfo SettingsPage::info()
{
    return {QStringLiteral("settings"),
            tr("Custom colours and folders"),
            PageGroup::Services,
            {tr("colour"), tr("store"), tr("computer")},
            {QStringLiteral("Settings"), QStringLiteral("SettingsStore"),
             QStringLiteral("StandardFolderUrls"), QStringLiteral("CustomColors")},
            &createPage<SettingsPage>};
}

SettingsPage::SettingsPage(QWidget* parent)
    : Page(info(),
           tr("The user's own colours outlive the program, also when it is killed right after the write. "
              "They are kept under the host's organisation and application name, or in a store that the "
              "host hands over. A colour is added at the front, eight are kept, and neither a colour of the "
              "fixed palette nor one that is there already is taken."),
           parent)
{
    auto* colors = new QFrame;
    colors->setObjectName(QStringLiteral("customColors"));
    m_row = new QHBoxLayout(colors);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setAlignment(Qt::AlignLeading);
    addDemonstration(tr("Custom colours"), colors);
    auto* folders = new ResultTable;
    folders->setResult(QStringLiteral("StandardFolderUrls::myComputerUrl()"),
                       StandardFolderUrls::myComputerUrl().toString());
    addDemonstration(tr("Standard folders"), folders);
    showColors(Settings::userCustomColors());

    const auto chosen = std::make_shared<QColor>(StartColor);
    properties()->addColor(tr("Colour"), StartColor, [chosen](const QColor& color) { *chosen = color; });
    properties()->addAction(tr("Add"), [this, chosen] { append(chosen->name()); });
    properties()->addAction(tr("Clear"), [this] { clear(); });
    properties()->addAction(tr("Read again"), [this] { showColors(Settings::userCustomColors()); });
}

void SettingsPage::prepareForPicture()
{
    showColors({QStringLiteral("#e25c3c"), QStringLiteral("#f0b429"), QStringLiteral("#3cb371"),
                QStringLiteral("#2f6fde"), QStringLiteral("#8e5bd0")});
}

void SettingsPage::append(const QString& name)
{
    const bool isNew = Util::appendCustomColor(name);
    signalLog()->addLine(QStringLiteral("appendCustomColor(%1): %2")
                             .arg(name, isNew ? QStringLiteral("true") : QStringLiteral("false")));
    showColors(Settings::userCustomColors());
}

void SettingsPage::clear()
{
    Settings::setUserCustomColors({});
    signalLog()->addLine(QStringLiteral("setUserCustomColors([])"));
    showColors(Settings::userCustomColors());
}

void SettingsPage::showColors(const QStringList& names)
{
    while (QLayoutItem* const item = m_row->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const QString& name : names) {
        auto* swatch = new ColorPickerButton;
        swatch->setColor(QColor(name));
        swatch->setToolTip(name);
        swatch->setAccessibleName(name);
        m_row->addWidget(swatch);
    }
}
