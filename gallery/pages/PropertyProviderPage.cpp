#include "PropertyProviderPage.h"

#include "../PropertyPanel.h"
#include "SampleDial.h"

PageInfo PropertyProviderPage::info()
{
    return {QStringLiteral("property-provider"),
            tr("Property provider"),
            PageGroup::Layout,
            {QStringLiteral("qproperty")},
            {QStringLiteral("PropertyProviderBase")},
            &createPage<PropertyProviderPage>};
}

PropertyProviderPage::PropertyProviderPage(QWidget* parent)
    : Page(info(),
           tr("A widget that paints itself takes its colours and sizes from a hidden child, which a style "
              "sheet selects by class name and writes with qproperty-."),
           parent)
{
    const auto dials = addTwins<SampleDial>(tr("A dial whose hand is styled"));
    properties()->addHeading(QStringLiteral("SampleDialStyle"));
    properties()->addProperties({dials.enabled->dialStyle(), dials.disabled->dialStyle()});
    describeStyling({dials.enabled.data(),
                     tr("An example: the provider is selected by its class name below the widget that it "
                        "serves."),
                     {},
                     QStringLiteral("PropertyProviderBase")});
}
