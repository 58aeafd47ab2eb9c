// The widgets that style sheets are about, one maker each.

#pragma once

#include "Part.h"
#include "TestMain.h"

#include <DesignElements/TesselComboBox.h>
#include <DesignElements/TesselElegantSlider.h>
#include <DesignElements/TesselLineEdit.h>
#include <EditorWidgets/PointingWidget.h>
#include <EditorWidgets/Workaround.h>
#include <GuiHelper/HighlightFrame.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/LoupeWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <functional>
#include <memory>

using Change = std::function<void(QWidget*)>;
using Maker = std::function<QWidget*(QWidget*)>;
Q_DECLARE_METATYPE(Maker)
Q_DECLARE_METATYPE(Change)

inline const QStringList& styles()
{
    static const QStringList names = {QStringLiteral("dark"), QStringLiteral("light"),
                                      QStringLiteral("high-contrast")};
    return names;
}

inline QString resourceSheet(const QString& style)
{
    return QStringLiteral("file:///:/styles/%1.qss").arg(style);
}

inline QString textOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

inline QHash<QString, QColor> paletteOf(const QString& style)
{
    QHash<QString, QColor> colors;
    const QStringList lines =
        textOf(QStringLiteral(UIC_STYLES_DIR "/%1.palette").arg(style)).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const QStringList words = line.simplified().split(QLatin1Char(' '));
        if (words.size() == 2) {
            colors.insert(words.at(0), QColor(words.at(1)));
        }
    }
    return colors;
}

template <typename... Widgets>
QVector<QWidget*> listOf(Widgets*... widgets)
{
    return {widgets...};
}

template <typename Widget>
Widget* make(QWidget* parent)
{
    return new Widget(parent);
}

template <typename Button>
Button* makeButton(QWidget* parent)
{
    auto* button = new Button(parent);
    button->setText(QStringLiteral("Text"));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

inline QLineEdit* makeEdit(QWidget* parent)
{
    return new QLineEdit(QStringLiteral("Text"), parent);
}

template <typename Slider>
Slider* makeSlider(QWidget* parent)
{
    auto* slider = new Slider(parent);
    slider->setOrientation(Qt::Horizontal);
    slider->setValue(40);
    return slider;
}

template <typename ComboBox>
ComboBox* makeCombo(QWidget* parent)
{
    auto* box = new ComboBox(parent);
    box->addItem(QStringLiteral("Text"));
    box->view(); // Made when it is first asked for, with the pop-up around it.
    return box;
}

inline void convertToTessel(QWidget* widget)
{
    Orvane::Tessel::convertComboBoxToTessel(static_cast<OvComboBox*>(widget));
}

inline OvComboBox* makeTesselCombo(QWidget* parent)
{
    auto* box = makeCombo<OvComboBox>(parent);
    convertToTessel(box);
    return box;
}

inline OvFrame* makeFieldFrame(QWidget* parent)
{
    auto* frame = new OvFrame(parent);
    auto* edit = makeEdit(frame);
    Util::applyProperty(edit, "kitVersion", QStringLiteral("1.0"));
    (new OvHBoxLayout(frame))->autoFill();
    return frame;
}

inline ColorPickerButton* makeColorButton(QWidget* parent)
{
    auto* button = new ColorPickerButton(parent);
    button->setColor(QColor(Qt::darkCyan));
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

inline WidgetColorPickerButton* makePickingButton(QWidget* parent)
{
    auto* button = new WidgetColorPickerButton(parent);
    button->setColor(QColor(Qt::darkCyan));
    button->setTargetWidget(parent);
    return button;
}

inline PathSelectionWidget* makePath(QWidget* parent)
{
    auto* field = new PathSelectionWidget(parent);
    field->setPath(QStringLiteral("/path"));
    field->setDefaultPath(QStringLiteral("/default"), QString());
    return field;
}

/// Changes a part of the widget, by its object name.
inline Change inPart(const char* name, const Change& change)
{
    return [name, change](QWidget* widget) { change(partOf(widget, name)); };
}

inline SearchWidget* makeSearch(QWidget* parent)
{
    auto* search = new SearchWidget(parent);
    search->setTranslations(QString(), QString(), QString(), QStringLiteral("Search"));
    return search;
}

/// With the selector that its add button opens.
inline ColorPickerWidget* makeColorPanel(QWidget* parent)
{
    auto* panel = new ColorPickerWidget(parent, true);
    panel->findChild<QToolButton*>(QStringLiteral("addCustomColorButton"))->click();
    panel->findChild<QDialog*>()->reject();
    return panel;
}

inline QLabel* makeColorPreview(QWidget* parent)
{
    auto* preview = new QLabel(parent);
    preview->setObjectName(QStringLiteral("currentColorDisplayLabel"));
    preview->setStyleSheet(QStringLiteral("background-color: transparent;"));
    return preview;
}

inline QLabel* makeFilledColorPreview(QWidget* parent)
{
    QLabel* const preview = makeColorPreview(parent);
    preview->setStyleSheet(QStringLiteral("background-color: #ffc000;"));
    return preview;
}

inline Maker makeNamedButton(const char* name)
{
    return [name](QWidget* parent) {
        auto* button = new QToolButton(parent);
        button->setObjectName(QString::fromLatin1(name));
        button->setFocusPolicy(Qt::StrongFocus);
        return button;
    };
}

inline Orvane::Tessel::TesselElegantSlider* makeHueSlider(QWidget* parent)
{
    auto* slider = makeSlider<Orvane::Tessel::TesselElegantSlider>(parent);
    slider->setObjectName(QStringLiteral("hueSlider"));
    return slider;
}

inline LoupeWidget* makeLoupe(QWidget* parent)
{
    auto* loupe = new LoupeWidget(parent);
    loupe->setWindowFlags(Qt::Widget);
    QPixmap picture(13, 13);
    picture.fill(Qt::darkCyan);
    loupe->setPixmap(picture);
    loupe->setColorName(Qt::darkCyan);
    return loupe;
}

inline QDialog* makeDialog(QWidget* parent)
{
    auto* dialog = new QDialog(parent);
    // Into its parent's picture.
    dialog->setWindowFlags(Qt::Widget);
    return dialog;
}

inline PointingWidget* makeBubble(QWidget* parent)
{
    auto* bubble = new PointingWidget(parent);
    bubble->setWindowFlags(Qt::Widget);
    (new OvVBoxLayout(bubble->contentFrame()))->addWidget(new QLabel(QStringLiteral("Text")));
    return bubble;
}

inline GuideInfo guideInfo()
{
    return {QStringLiteral("Title"), QStringLiteral("Description"),
            QStringLiteral("<a href=\"x:y\">Link</a>"), QString()};
}

inline DialogGuideWidget* makeDialogGuide(QWidget* parent)
{
    auto* guide = new DialogGuideWidget(parent);
    guide->setWindowFlags(Qt::Widget);
    guide->setInfo({QStringLiteral("Title"), QStringLiteral("Description"), QStringLiteral("Next"),
                    QStringLiteral("Back"), QString()});
    return guide;
}

/// A window for one child, without a layout and so without the size hints that the platform cannot take.
class Host : public QWidget
{
public:
    /// Shows @p child at its own size.
    bool present(QWidget* child)
    {
        child->setParent(this, Qt::Widget);
        child->ensurePolished();
        child->resize(child->sizeHint().expandedTo(child->minimumSize()));
        child->show();
        resize(child->size());
        show();
        return QTest::qWaitForWindowExposed(this);
    }
};
