#include "TitleInspector.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SliderInputWidget.h>

#include <QFormLayout>
#include <QUndoStack>

#include <algorithm>

TitleInspector::TitleInspector(Titles* titles, QUndoStack* stack, QWidget* parent)
    : QWidget(parent)
    , m_titles(titles)
    , m_stack(stack)
    , m_form(new QFormLayout(this))
{
    //! [fields]
    auto* color = new ColorInputWidget(this);
    color->setPicker(new PopupColorPicker); // the field owns it
    auto* size = new SliderInputWidget(this, {8, 200});
    auto* opacity = new DoubleSliderInputWidget(this, {0.0, 1.0, 2}); // with two decimals

    addRow(tr("&Colour"), color, &Title::color);
    addRow(tr("&Size"), size, &Title::size);
    addRow(tr("&Opacity"), opacity, &Title::opacity);
    //! [fields]

    //! [follow]
    connect(titles, &Titles::changed, this, &TitleInspector::showValues);
    //! [follow]
    showValues();
}

//! [row]
template <typename T>
void TitleInspector::addRow(const QString& label, QWidget* field, T Title::*member)
{
    m_form->addRow(label, field); // the label names the field, and Alt with its letter leads there

    auto* session = new EditSession(field);
    EditCommand::record(
        session, m_stack, [label] { return QString(label).remove(QLatin1Char('&')); },
        [this, member] {
            EditCommand::Targets targets;
            for (const int number : qAsConst(m_selection)) {
                targets.append({[titles = m_titles, number, member] {
                                    return QVariant::fromValue(titles->list[number].*member);
                                },
                                [titles = m_titles, number, member](const QVariant& value) {
                                    titles->list[number].*member = value.value<T>();
                                    Q_EMIT titles->changed();
                                }});
            }
            return targets;
        });
    m_rows.append({session, [this, member](int number) {
                       return QVariant::fromValue(m_titles->list[number].*member);
                   }});
}
//! [row]

void TitleInspector::select(const QVector<int>& numbers)
{
    m_selection = numbers;
    showValues();
}

//! [show]
void TitleInspector::showValues()
{
    const EditSession::Refresh refresh(this); // what the program sets is no edit
    for (const Row& row : qAsConst(m_rows)) {
        row.session->field()->setEnabled(!m_selection.isEmpty());
        if (m_selection.isEmpty() || row.session->isActive()) {
            continue; // a field that is being edited shows what the user is trying
        }
        const QVariant first = row.read(m_selection.first());
        const auto isFirst = [&](int number) { return EditSession::isSame(row.read(number), first); };
        if (std::all_of(m_selection.cbegin(), m_selection.cend(), isFirst)) {
            row.session->setValue(first);
        } else {
            row.session->setMultiValue(true); // a dash, until the user enters one value for all
        }
    }
}
//! [show]
