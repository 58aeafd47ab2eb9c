#include "AdjustingListPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/AdjustingListView.h>

#include <QStandardItemModel>

namespace {

constexpr int FirstClips = 8;
constexpr int MostClips = 10000;
constexpr int TallRowHeight = 44;

// Every third clip has a second line.
void addClips(QStandardItemModel* model, int count)
{
    for (int i = 0; i < count; ++i) {
        const int number = model->rowCount() + 1;
        auto* item = new QStandardItem(AdjustingListPage::tr("Clip %1").arg(number));
        item->setEditable(false);
        if (number % 3 == 0) {
            item->setText(item->text() + QLatin1Char('\n') + AdjustingListPage::tr("with sound"));
            item->setSizeHint(QSize(0, TallRowHeight));
        }
        model->appendRow(item);
    }
}

AdjustingListView* makeList(QWidget* parent, QAbstractItemModel* model)
{
    auto* list = new AdjustingListView(parent);
    list->setModel(model);
    return list;
}

} // namespace

PageInfo AdjustingListPage::info()
{
    return {QStringLiteral("adjusting-list"),
            tr("Growing list"),
            PageGroup::Inputs,
            {tr("list view"), tr("rows"), tr("loading"), tr("height")},
            {QStringLiteral("AdjustingListView")},
            &createPage<AdjustingListPage>};
}

AdjustingListPage::AdjustingListPage(QWidget* parent)
    : Page(
          info(),
          tr("A list that is as high as all its rows for as long as it is being loaded, and scrolls like "
             "any other once it is complete. It looks at its rows when it is told to and when it is resized, "
             "and does not watch its model."),
          parent)
{
    auto* model = new QStandardItemModel(this);
    addClips(model, FirstClips);
    const auto lists = addTwins<AdjustingListView>(
        tr("A bin of clips"), [model](QWidget* twinParent) { return makeList(twinParent, model); });
    const auto logHeight = [this, lists] {
        if (lists.enabled) {
            signalLog()->addLine(QStringLiteral("minimumHeight() = %1").arg(lists.enabled->minimumHeight()));
        }
    };

    properties()->addHeading(QStringLiteral("setLoadingFinished()"));
    properties()->addSwitch(tr("Loading is finished"), true, [lists, logHeight](bool finished) {
        lists.each([finished](AdjustingListView* list) { list->setLoadingFinished(finished); });
        logHeight();
    });
    properties()->addHeading(tr("The model"));
    for (const int count : {1, 100, MostClips}) {
        properties()->addAction(tr("Add clips: %1").arg(count), [model, count, logHeight] {
            addClips(model, count);
            logHeight();
        });
    }
    properties()->addAction(tr("Remove all clips"), [model, logHeight] {
        model->clear();
        logHeight();
    });
    describeStyling({lists.enabled.data(),
                     tr("As QListView: it has no class of its own for a sheet. Its minimum "
                        "height is its own, whatever the sheet says."),
                     {},
                     QStringLiteral("AdjustingListView")});
}
