#include "DialogColorPicker.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/PopupPosition.h>

#include <QColorDialog>

DialogColorPicker::DialogColorPicker(QWidget* field)
    : m_field(field)
{
}

DialogColorPicker::~DialogColorPicker()
{
    closeDialog();
}

void DialogColorPicker::pick()
{
    if (m_isPicking || !m_field) {
        return;
    }
    // The field does not pass a mixed colour, which has to be read, or a cancelled pick would turn it into
    // the colour before.
    if (const auto* button = qobject_cast<ColorPickerButton*>(m_field.data())) {
        m_color = button->color();
    }
    m_original = m_color;
    m_isPicking = true;
    m_dialog = makeDialog();
    m_dialog->show();
    m_dialog->activateWindow();
}

void DialogColorPicker::stop()
{
    finish(m_original);
}

void DialogColorPicker::setColor(const std::optional<QColor>& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    if (m_dialog && color && color->isValid()) {
        m_dialog->setCurrentColor(*color);
    }
}

QColorDialog* DialogColorPicker::makeDialog()
{
    auto* dialog = new QColorDialog(m_field->window());
    dialog->setObjectName(QStringLiteral("colorPickerDialog"));
    dialog->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
    dialog->setWindowTitle(tr("Pick a colour"));
    if (m_color && m_color->isValid()) {
        dialog->setCurrentColor(*m_color);
    }
    connect(dialog, &QColorDialog::currentColorChanged, this, &DialogColorPicker::preview);
    connect(dialog, &QDialog::accepted, this, [this] { finish(m_dialog->currentColor()); });
    connect(dialog, &QDialog::rejected, this, [this] { finish(m_original); });
    connect(dialog, &QObject::destroyed, this, [this] {
        // Not cleared yet, and no longer a dialog.
        m_dialog.clear();
        finish(m_original);
    });

    dialog->ensurePolished();
    dialog->adjustSize();
    dialog->move(popupPosition(m_field, dialog->size()));
    return dialog;
}

void DialogColorPicker::preview(const QColor& color)
{
    if (m_color != color) {
        m_color = color;
        Q_EMIT colorChanged(color);
    }
}

void DialogColorPicker::finish(const std::optional<QColor>& color)
{
    if (!m_isPicking || m_isFinishing) {
        return;
    }
    m_isFinishing = true;
    closeDialog();
    const QPointer<DialogColorPicker> self(this);
    if (m_color != color) {
        m_color = color;
        Q_EMIT colorChanged(color);
    }
    if (self) {
        m_isFinishing = false;
        m_isPicking = false;
        Q_EMIT pickingStopped();
    }
}

void DialogColorPicker::closeDialog()
{
    if (m_dialog) {
        // Not deleted at once: this may run in one of the dialog's own signals.
        m_dialog->disconnect(this);
        m_dialog->hide();
        m_dialog->deleteLater();
        m_dialog = nullptr;
    }
}
