#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/ColorInputWidget.h>

#include <QApplication>
#include <QColorDialog>
#include <QDebug>
#include <QFormLayout>

#include <optional>

// What a colour field asks for a colour; here it is Qt's own dialog.
class DialogPicker : public AbstractColorPicker
{
public:
    DialogPicker()
    {
        connect(&m_dialog, &QColorDialog::currentColorChanged, this, &AbstractColorPicker::colorChanged);
        connect(&m_dialog, &QDialog::rejected, this, [this] { m_dialog.setCurrentColor(m_before); });
        connect(&m_dialog, &QDialog::finished, this, &AbstractColorPicker::pickingStopped);
    }

    bool isInProgress() const override { return m_dialog.isVisible(); }

    void pick() override
    {
        m_before = m_dialog.currentColor();
        m_dialog.open();
    }

    void stop() override
    {
        if (isInProgress()) {
            m_dialog.reject();
        }
    }

    std::optional<QColor> color() override { return m_dialog.currentColor(); }

    void setColor(const std::optional<QColor>& color) override
    {
        if (color) {
            m_dialog.setCurrentColor(*color);
        }
    }

private:
    QColorDialog m_dialog;
    QColor m_before;
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    window.setWindowTitle("Title card");
    window.setStyleSheet("ColorPickerButton > QWidget { min-width: 48px; min-height: 16px; }");
    QFormLayout form(&window);

    auto* field = new ColorInputWidget(&window, QColor());
    field->setPicker(new DialogPicker);
    field->setColor(Qt::darkCyan); // after the picker, which learns each colour from then on
    form.addRow("Text colour", field);

    QObject::connect(field, &ColorInputWidget::colorChanged,
                     [](const QColor& color) { qInfo() << "the text is now" << color.name(); });

    window.show();
    return QApplication::exec();
}
