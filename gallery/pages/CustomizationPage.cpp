#include "CustomizationPage.h"

#include "../PropertyPanel.h"
#include "ResultTable.h"

#include <ApplicationUtility/Customization.h>

namespace {

struct Sample
{
    const char* language;
    const char* title;
};

// The languages' names in themselves are no translatable texts.
constexpr Sample Samples[] = {
    {"Deutsch", "Farbe übernehmen"},  {"Русский", "Выбор цвета"}, {"Ελληνικά", "Επιλογή χρώματος"},
    {"日本語", "色を選択"},           {"العربية", "اختيار لون"},  {"עברית", "בחירת צבע"},
    {"<markup>", "<i>R&B</i> – 4 K"},
};

} // namespace

PageInfo CustomizationPage::info()
{
    return {QStringLiteral("headings"),
            tr("Headings"),
            PageGroup::Services,
            {tr("bold"), tr("language"), tr("script"), QStringLiteral("localeDependedBoldText")},
            {QStringLiteral("Customization")},
            &createPage<CustomizationPage>};
}

CustomizationPage::CustomizationPage(QWidget* parent)
    : Page(info(),
           tr("Headings are bold where both the language and the title are written in a script that has a "
              "tradition of bold type, and plain where bold would hurt legibility. Markup in a title is "
              "shown as text."),
           parent)
{
    auto* results = new ResultTable;
    const auto show = [results](const QString& name, const QString& title) {
        results->setResult(name, Customization::localeDependedBoldText(title), Qt::RichText);
    };
    const QString own = tr("Your title");
    const QString start = tr("A title of your own");
    show(own, start);
    for (const Sample& sample : Samples) {
        show(QString::fromUtf8(sample.language), QString::fromUtf8(sample.title));
    }
    addDemonstration(tr("As the present language shows them"), results);
    properties()->addText(tr("Title"), start, [show, own](const QString& title) { show(own, title); });
}
