// What a list costs that is held at the height of its rows, and what typing costs in fields.

#include "Compare.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/SearchWidget.h>

#include <QLineEdit>
#include <QScrollArea>
#include <QStringListModel>

#include <memory>

using namespace Bench;

namespace {

constexpr int rows = 10000;
constexpr int edits = 10000;

QAbstractItemModel* makeRows(QObject* parent)
{
    QStringList texts;
    for (int row = 0; row < rows; ++row) {
        texts += QStringLiteral("Clip %1").arg(row);
    }
    return new QStringListModel(texts, parent);
}

/// A list that is shown inside a panel that scrolls, at the height of its rows or at that of the window.
template <typename View>
class Panel
{
public:
    explicit Panel(int height)
        : view(new View(nullptr))
        , m_size(200, height)
    {
        view->setModel(makeRows(view));
        m_area.setWidget(view);
        view->resize(m_size);
        m_area.resize(400, 300);
        m_area.show();
    }

    void resize()
    {
        m_size.rwidth() ^= 1;
        view->resize(m_size);
    }

    View* const view;

private:
    QScrollArea m_area;
    QSize m_size;
};

Pair resizeWhileLoading()
{
    const auto probe = std::make_shared<Panel<QListView>>(300);
    const int height = rows * probe->view->sizeHintForRow(0);
    const auto ours = std::make_shared<Panel<AdjustingListView>>(height);
    ours->view->setLoadingFinished(false);
    const auto sum = std::make_shared<qint64>(0);
    return {{[ours] { ours->resize(); }}, {[probe, sum] {
                for (int row = 0; row < rows; ++row) {
                    *sum += probe->view->sizeHintForRow(row);
                }
            }}};
}

Pair resizeWhenFinished(QAbstractScrollArea::SizeAdjustPolicy policyOfReference)
{
    const auto ours = std::make_shared<Panel<AdjustingListView>>(300);
    const auto reference = std::make_shared<Panel<QListView>>(300);
    reference->view->setSizeAdjustPolicy(policyOfReference);
    return {{[ours] { ours->resize(); }}, {[reference] { reference->resize(); }}};
}

Pair burstOfEdits()
{
    const auto ours = std::make_shared<PathSelectionWidget>(nullptr);
    const auto reference = std::make_shared<QLineEdit>();
    const auto path = [](int edit) { return QStringLiteral("/clips/%1").arg(edit); };
    Pair pair{{[ours, path] {
                  for (int edit = 0; edit < edits; ++edit) {
                      ours->setPath(path(edit));
                  }
              }},
              {[reference, path] {
                  for (int edit = 0; edit < edits; ++edit) {
                      reference->setText(path(edit));
                  }
              }}};
    pair.operations = edits;
    return pair;
}

Pair searchIsTyped()
{
    const auto ours = std::make_shared<SearchWidget>();
    const auto reference = std::make_shared<QLineEdit>();
    auto* edit = ours->findChild<QLineEdit*>();
    const auto type = [](QLineEdit* field) {
        field->insert(QStringLiteral("x"));
        field->backspace();
    };
    return {{[ours, edit, type] { type(edit); }}, {[reference, type] { type(reference.get()); }}};
}

UIC_COMPARE("AdjustingListView/resize 10,000 rows while loading, against adding their heights", atMost(1.2),
            resizeWhileLoading);
UIC_COMPARE("AdjustingListView/resize 10,000 rows when loaded, against QListView", atMost(1.05),
            [] { return resizeWhenFinished(QAbstractScrollArea::AdjustIgnored); });
UIC_COMPARE("AdjustingListView/resize 10,000 rows when loaded, against QListView of its size policy",
            atMost(1.05), [] { return resizeWhenFinished(QAbstractScrollArea::AdjustToContents); });
UIC_COMPARE("PathSelectionWidget/burst of 10,000 paths, against QLineEdit", noGoal(), burstOfEdits);
UIC_COMPARE("SearchWidget/type and erase a character, against QLineEdit", noGoal(), searchIsTyped);

} // namespace
