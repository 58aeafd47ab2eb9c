#include "SearchPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/SearchWidget.h>

#include <QListView>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

SearchWidget* makeSearch(QWidget* parent)
{
    auto* search = new SearchWidget(parent);
    search->setTranslations(SearchPage::tr("Search"), SearchPage::tr("Part of a clip's name"),
                            SearchPage::tr("Clear the search"), SearchPage::tr("Search clips"));
    return search;
}

/// A list of clips, and a search above it that filters it while the user types.
QWidget* makeBin(QWidget* parent)
{
    auto* bin = new QWidget(parent);
    auto* search = makeSearch(bin);
    auto* list = new QListView(bin);
    auto* clips = new QStringListModel({SearchPage::tr("Beach, morning"), SearchPage::tr("Beach, evening"),
                                        SearchPage::tr("Harbour"), SearchPage::tr("Interview"),
                                        SearchPage::tr("Interview, second camera")},
                                       bin);
    auto* filter = new QSortFilterProxyModel(bin);
    filter->setSourceModel(clips);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    list->setModel(filter);
    list->setMaximumHeight(130);
    auto* layout = new QVBoxLayout(bin);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(search);
    layout->addWidget(list);
    QObject::connect(search, &SearchWidget::textChanged, filter,
                     &QSortFilterProxyModel::setFilterFixedString);
    return bin;
}

} // namespace

PageInfo SearchPage::info()
{
    return {QStringLiteral("search"),
            tr("Search field"),
            PageGroup::Inputs,
            {tr("filter"), tr("find"), tr("text"), tr("clear"), tr("placeholder")},
            {QStringLiteral("SearchWidget")},
            &createPage<SearchPage>};
}

SearchPage::SearchPage(QWidget* parent)
    : Page(info(),
           tr("A field for a search: it reports each change at once, and the end of an edit by Enter or by "
              "leaving it. A text never starts with a blank. Its placeholder has three colours, which change "
              "when the mouse comes or goes."),
           parent)
{
    const auto searches = addTwins<SearchWidget>(tr("By itself"), &makeSearch);
    const auto bins = addTwins<QWidget>(tr("Above a list that it filters"), &makeBin);

    properties()->addHeading(tr("By itself"));
    properties()->addProperties(searches.objects(),
                                {QStringLiteral("PlaceholderColor"), QStringLiteral("PlaceholderHoverColor"),
                                 QStringLiteral("PlaceholderDisabledColor")});
    properties()->addText(tr("Placeholder"), tr("Search clips"), [searches](const QString& text) {
        searches.each([&text](SearchWidget* search) {
            search->setTranslations(tr("Search"), tr("Part of a clip's name"), tr("Clear the search"), text);
        });
    });
    properties()->addAction(QStringLiteral("clear()"),
                            [searches] { searches.each([](SearchWidget* search) { search->clear(); }); });
    signalLog()->watch(searches.enabled, QStringLiteral("search"));
    signalLog()->watch(bins.enabled->findChild<SearchWidget*>(), QStringLiteral("binSearch"));
    describeStyling(
        searches.enabled,
        tr("A frame around an icon, a line edit and a button that clears it. \"focusHint\" is set "
           "from the first time that the line edit gets the keyboard."));
}
