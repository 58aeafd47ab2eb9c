#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/PopupColorPicker.h>

#include <QApplication>
#include <QDebug>
#include <QFormLayout>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);

    QWidget window;
    window.setWindowTitle("Title card");
    window.setStyleSheet("ColorPickerButton > QWidget { min-width: 48px; min-height: 16px; }");
    QFormLayout form(&window);

    auto* field = new ColorInputWidget(&window, Qt::darkCyan);
    field->setPicker(new PopupColorPicker); // the colour panel, beside the field
    form.addRow("Text colour", field);

    QObject::connect(field, &ColorInputWidget::colorChanged,
                     [](const QColor& color) { qInfo() << "the text is now" << color.name(); });

    window.show();
    return QApplication::exec();
}
