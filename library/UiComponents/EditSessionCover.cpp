#include "EditSessionCover.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <QVariant>

namespace {

bool showsText(const QWidget* part)
{
    const auto* box = qobject_cast<const QComboBox*>(part);
    return qobject_cast<const QLineEdit*>(part) || (box && !box->isEditable());
}

/// Inside of the frame.
QRect textRect(const QWidget* part)
{
    if (const auto* box = qobject_cast<const QComboBox*>(part)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.frame = box->hasFrame();
        return box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    }
    const auto* edit = static_cast<const QLineEdit*>(part);
    QStyleOptionFrame option;
    option.initFrom(edit);
    option.rect = edit->contentsRect();
    option.lineWidth =
        edit->hasFrame() ? edit->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit) : 0;
    return edit->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit);
}

} // namespace

EditSessionCover::EditSessionCover(QWidget* field, QObject* parent)
    : QObject(parent)
    , m_field(field)
{
}

EditSessionCover::~EditSessionCover() = default;

void EditSessionCover::setShown(bool shown)
{
    if (m_isShown == shown) {
        return;
    }
    m_isShown = shown;
    if (shown) {
        m_field->installEventFilter(this);
    } else {
        m_field->removeEventFilter(this);
    }
    Util::applyProperty(m_field, "multiValue", shown);
    const auto parts = m_field->findChildren<QWidget*>() << m_field;
    for (QWidget* part : parts) {
        if (showsText(part)) {
            cover(part);
        }
        if (shown && part->focusPolicy() != Qt::NoFocus) {
            m_descriptions.append({part, part->accessibleDescription()});
        }
        // A sheet selects parts by the property of the field.
        Util::repolishWidget(part);
        part->update();
    }
    setTexts();
    if (!shown) {
        for (const QPointer<QWidget>& cover : qAsConst(m_covers)) {
            delete cover.data();
        }
        m_covers.clear();
        for (const Description& description : qAsConst(m_descriptions)) {
            if (description.part) {
                description.part->setAccessibleDescription(description.before);
            }
        }
        m_descriptions.clear();
    }
}

void EditSessionCover::coverTexts() const
{
    for (const QPointer<QWidget>& cover : m_covers) {
        if (cover) {
            cover->show();
        }
    }
}

bool EditSessionCover::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == m_field) {
        setTexts();
    } else if (event->type() == QEvent::Resize) {
        for (const QPointer<QWidget>& cover : qAsConst(m_covers)) {
            if (cover && cover->parent() == watched) {
                cover->setGeometry(textRect(static_cast<QWidget*>(watched)));
            }
        }
    }
    return QObject::eventFilter(watched, event);
}

void EditSessionCover::cover(QWidget* part)
{
    if (!m_isShown) {
        part->removeEventFilter(this);
        return;
    }
    part->installEventFilter(this);
    const auto* const edit = qobject_cast<QLineEdit*>(part);
    auto* label = new QLabel(QString::fromUtf8("\u2013"), part);
    label->setObjectName(QString::fromLatin1("multiValueCover"));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(edit ? QPalette::Base : QPalette::Button);
    label->setForegroundRole(edit ? QPalette::Text : QPalette::ButtonText);
    label->setAlignment((edit ? edit->alignment() : Qt::AlignLeading) | Qt::AlignVCenter);
    QWidget* cover = label;
    if (edit) {
        connect(edit, &QLineEdit::textEdited, label, &QWidget::hide);
    } else {
        // Qt applies no style sheet to a QFrame that is a child of a combo box.
        cover = new QWidget(part);
        cover->setAttribute(Qt::WA_TransparentForMouseEvents);
        (new OvHBoxLayout(cover))->addWidget(label);
    }
    cover->setGeometry(textRect(part));
    cover->show();
    m_covers.append(cover);
}

void EditSessionCover::setTexts() const
{
    for (const Description& description : m_descriptions) {
        if (description.part) {
            description.part->setAccessibleDescription(tr("Several values"));
        }
    }
}
