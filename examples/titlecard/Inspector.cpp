#include "Inspector.h"

#include "Canvas.h"

#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideInfo.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SliderInputWidget.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QUndoStack>

namespace TitleCard {

Inspector::Inspector(Document* document, Canvas* canvas, QUndoStack* stack, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
    , m_canvas(canvas)
    , m_stack(stack)
    , m_form(new QFormLayout(this))
{
    const auto colorField = [this](const PopupColorPicker::Options& options) {
        auto* field = new ColorInputWidget(this, QColor());
        field->setPicker(new PopupColorPicker(options));
        return field;
    };
    addField(Text, tr("Text"), new QLineEdit(this), tr("What the card says. Escape brings it back."));
    addField(Color, tr("Colour"), colorField({}), tr("Of the letters."));
    addField(Outline, tr("Outline"), colorField({true}), tr("Around the letters, or none."));
    addField(Background, tr("Background"), colorField({true}), tr("Behind the letters, or none."));
    addField(Size, tr("Size"), new SliderInputWidget(this, {8, 200}), tr("Of the letters in pixels."));
    addField(Rotation, tr("Rotation"), new SliderInputWidget(this, {-180, 180}), tr("Degrees, clockwise."));
    addField(Opacity, tr("Opacity"), new DoubleSliderInputWidget(this, {0.0, 1.0, 2}),
             tr("0 cannot be seen, and 1 hides what is below."));
    addField(Position, tr("Position"), new PointSelectorWidget(this, {{-1.0, -1.0}, {1.0, 1.0}, 2, 2}),
             tr("Of the middle of the card: -1 is left and top, 1 right and bottom."));
    addField(Blending, tr("Blending"), new ColorBlendingComboBox(this),
             tr("How the card is mixed with what lies below it."));

    connect(canvas, &Canvas::selectionChanged, this, &Inspector::refresh);
    // Undo and redo too.
    connect(document, &Document::changed, this, &Inspector::refresh);
    refresh();
}

void Inspector::addField(Property property, const QString& caption, QWidget* field, const QString& help)
{
    auto* guide = new GuideButton(this);
    guide->setText(QStringLiteral("?"));
    guide->setGuideInfo(std::make_unique<GuideInfo>(caption, help, QString(), QString()));
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    row->addWidget(guide, 0, Qt::AlignTop);
    m_form->addRow(caption, row);
    field->setAccessibleName(caption);

    auto* session = new EditSession(field);
    EditCommand::record(
        session, m_stack, [caption] { return caption; },
        [this, property] {
            EditCommand::Targets targets;
            for (const int id : m_canvas->selection()) {
                targets.append(m_document->target(id, property));
            }
            return targets;
        });
    m_sessions.insert(property, session);
}

void Inspector::refresh()
{
    const EditSession::Refresh guard(this);
    const QVector<int>& selected = m_canvas->selection();
    for (auto session = m_sessions.cbegin(); session != m_sessions.cend(); ++session) {
        (*session)->field()->setEnabled(!selected.isEmpty());
        // One that is edited shows what the user is trying.
        if (selected.isEmpty() || (*session)->isActive()) {
            continue;
        }
        bool isSame = true;
        const QVariant first = m_document->value(selected.first(), session.key());
        for (const int id : selected) {
            isSame = isSame && EditSession::isSame(m_document->value(id, session.key()), first);
        }
        if (isSame) {
            (*session)->setValue(first);
        } else {
            (*session)->setMultiValue(true);
        }
    }
}

} // namespace TitleCard
