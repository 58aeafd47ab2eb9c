#include "PageRegistry.h"

#include "pages/AdjustingListPage.h"
#include "pages/BindWidgetsPage.h"
#include "pages/BlendingModesPage.h"
#include "pages/BoxLayoutPage.h"
#include "pages/ColorHintPage.h"
#include "pages/ColorInputPage.h"
#include "pages/ColorPanelPage.h"
#include "pages/ColorPickerButtonPage.h"
#include "pages/ColorPlanePage.h"
#include "pages/ColorSelectorPage.h"
#include "pages/ComboBoxPage.h"
#include "pages/CustomSliderPage.h"
#include "pages/CustomizationPage.h"
#include "pages/DialogGuidePage.h"
#include "pages/DoubleSliderInputPage.h"
#include "pages/DoubleSliderPage.h"
#include "pages/DoubleSpinBoxPage.h"
#include "pages/FormatFileSizePage.h"
#include "pages/FramePage.h"
#include "pages/GuideButtonPage.h"
#include "pages/GuidePage.h"
#include "pages/HighlightFramePage.h"
#include "pages/PathPage.h"
#include "pages/PathSelectionPage.h"
#include "pages/PipettePage.h"
#include "pages/PixmapWidgetPage.h"
#include "pages/PointPlanePage.h"
#include "pages/PointSelectorPage.h"
#include "pages/PointingPage.h"
#include "pages/PrivacyAccessPage.h"
#include "pages/PropertiesPage.h"
#include "pages/PropertyProviderPage.h"
#include "pages/QmlDialogPage.h"
#include "pages/QmlFocusPage.h"
#include "pages/SchedulerPage.h"
#include "pages/SearchPage.h"
#include "pages/SettingsPage.h"
#include "pages/SliderInputPage.h"
#include "pages/SpinBoxPage.h"
#include "pages/StyleHintsPage.h"
#include "pages/TesselComboBoxPage.h"
#include "pages/TesselElegantSliderPage.h"
#include "pages/TesselLineEditPage.h"
#include "pages/WidgetColorPickerPage.h"
#include "pages/WorkaroundPage.h"

#include <QCoreApplication>

#include <algorithm>

QVector<PageInfo> PageRegistry::pages()
{
    QVector<PageInfo> all = {
        // colour
        ColorPickerButtonPage::info(),
        ColorInputPage::info(),
        ColorPanelPage::info(),
        ColorSelectorPage::info(),
        ColorPlanePage::info(),
        BlendingModesPage::info(),
        PipettePage::info(),
        WidgetColorPickerPage::info(),
        // inputs
        SliderInputPage::info(),
        DoubleSliderInputPage::info(),
        PointPlanePage::info(),
        PointSelectorPage::info(),
        SpinBoxPage::info(),
        DoubleSpinBoxPage::info(),
        CustomSliderPage::info(),
        DoubleSliderPage::info(),
        BindWidgetsPage::info(),
        ComboBoxPage::info(),
        TesselLineEditPage::info(),
        TesselElegantSliderPage::info(),
        TesselComboBoxPage::info(),
        PathSelectionPage::info(),
        SearchPage::info(),
        AdjustingListPage::info(),
        PropertiesPage::info(),
        // layout and styling
        FramePage::info(),
        BoxLayoutPage::info(),
        StyleHintsPage::info(),
        ColorHintPage::info(),
        PropertyProviderPage::info(),
        // bubbles and frames
        PointingPage::info(),
        WorkaroundPage::info(),
        HighlightFramePage::info(),
        PixmapWidgetPage::info(),
        // guides and dialogs
        GuidePage::info(),
        GuideButtonPage::info(),
        DialogGuidePage::info(),
        QmlDialogPage::info(),
        // services
        FormatFileSizePage::info(),
        PathPage::info(),
        SettingsPage::info(),
        SchedulerPage::info(),
        CustomizationPage::info(),
        PrivacyAccessPage::info(),
        QmlFocusPage::info(),
    };
    std::stable_sort(all.begin(), all.end(),
                     [](const PageInfo& one, const PageInfo& other) { return one.group < other.group; });
    return all;
}

std::optional<PageInfo> PageRegistry::find(const QString& id)
{
    const QVector<PageInfo> all = pages();
    const auto found =
        std::find_if(all.cbegin(), all.cend(), [&id](const PageInfo& page) { return page.id == id; });
    return found == all.cend() ? std::nullopt : std::optional<PageInfo>(*found);
}

QString PageRegistry::groupTitle(PageGroup group)
{
    switch (group) {
    case PageGroup::Colour:
        return QCoreApplication::translate("PageRegistry", "Colour");
    case PageGroup::Inputs:
        return QCoreApplication::translate("PageRegistry", "Inputs");
    case PageGroup::Layout:
        return QCoreApplication::translate("PageRegistry", "Layout and styling");
    case PageGroup::Bubbles:
        return QCoreApplication::translate("PageRegistry", "Bubbles and frames");
    case PageGroup::Guides:
        return QCoreApplication::translate("PageRegistry", "Guides and dialogs");
    case PageGroup::Services:
        return QCoreApplication::translate("PageRegistry", "Services");
    }
    return {};
}

bool PageRegistry::matches(const PageInfo& page, const QString& filter)
{
    const QStringList texts = QStringList{page.title, page.id} + page.covers + page.keywords;
    const QStringList words = filter.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return std::all_of(words.cbegin(), words.cend(), [&texts](const QString& word) {
        return std::any_of(texts.cbegin(), texts.cend(),
                           [&word](const QString& text) { return text.contains(word, Qt::CaseInsensitive); });
    });
}
