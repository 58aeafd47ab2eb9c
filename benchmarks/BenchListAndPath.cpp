// What a list costs that is held at the height of its rows, and what typing costs in fields.

#include "Compare.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/SearchWidget.h>

#include <QHBoxLayout>
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

/// A list inside a panel that scrolls.
template <typename View>
class Panel : public QScrollArea
{
public:
    Panel()
    {
        list->setModel(makeRows(list));
        setWidget(list);
        list->resize(m_size);
    }

    void resizeList()
    {
        m_size.rwidth() ^= 1;
        list->resize(m_size);
    }

    void setListHeight(int height)
    {
        m_size.setHeight(height);
        list->resize(m_size);
    }

    View* const list = new View(nullptr);

private:
    QSize m_size{200, 300};
};

/// The panels of both sides. Of two windows only the one shown last would be active, and a resize in the
/// other one takes 4 % longer, whatever is in it: Qt asks there at length, some forty times, whether it is
/// active.
class Window : public QWidget
{
public:
    Window()
    {
        auto* layout = new QHBoxLayout(this);
        layout->addWidget(ours);
        layout->addWidget(reference);
        resize(800, 300);
        show();
    }

    Panel<AdjustingListView>* const ours = new Panel<AdjustingListView>;
    Panel<QListView>* const reference = new Panel<QListView>;
};

Pair resizeWhileLoading()
{
    const auto window = std::make_shared<Window>();
    const QListView* const probe = window->reference->list;
    window->ours->setListHeight(rows * probe->sizeHintForRow(0));
    window->ours->list->setLoadingFinished(false);
    const auto sum = std::make_shared<qint64>(0);
    return {{[window] { window->ours->resizeList(); }}, {[window, probe, sum] {
                for (int row = 0; row < rows; ++row) {
                    *sum += probe->sizeHintForRow(row);
                }
            }}};
}

Pair resizeWhenFinished(QAbstractScrollArea::SizeAdjustPolicy policyOfReference)
{
    const auto window = std::make_shared<Window>();
    window->reference->list->setSizeAdjustPolicy(policyOfReference);
    return {{[window] { window->ours->resizeList(); }}, {[window] { window->reference->resizeList(); }}};
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
