#include "FocusedBy.h"
#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/CustomColorSelectWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/LoupeWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>

#include <functional>

using Factory = std::function<QWidget*(QWidget*)>;
Q_DECLARE_METATYPE(Factory)

namespace {

/// "Class name" and its place in a grid, as "0,0 1x2", or its stretch in a box, as "*1".
QString itemText(QLayout* layout, int index)
{
    const QWidget* const widget = layout->itemAt(index)->widget();
    QString text = widget ? widget->metaObject()->className() + (' ' + widget->objectName()) : "stretch";
    if (const auto* box = qobject_cast<QBoxLayout*>(layout)) {
        text += box->stretch(index) == 0 ? QString() : QString(" *%1").arg(box->stretch(index));
    } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        text += QString(" %1,%2 %3x%4").arg(row).arg(column).arg(rows).arg(columns);
        text += grid->rowStretch(row) == 0 ? QString() : QString(" *%1").arg(grid->rowStretch(row));
    }
    return text;
}

/// What @p widget, and below it each part of a name, lays out: one line each. Their parts come in the order
/// of their creation, otherwise the line says so.
QStringList structureOf(const QWidget* widget)
{
    QLayout* const layout = widget->layout();
    if (!layout || layout->metaObject()->className()[0] != 'O') {
        return {};
    }
    QStringList items;
    QWidgetList placed;
    for (int i = 0; i < layout->count(); ++i) {
        placed += layout->itemAt(i)->widget();
        const bool isAnonymous = placed.last() && placed.last()->objectName().isEmpty();
        items += isAnonymous ? placed.last()->metaObject()->className() : itemText(layout, i);
    }
    if (items.count(items.first()) > 1) {
        items = QStringList{QString("%1 x %2").arg(items.size()).arg(items.first())};
    }
    placed.removeAll(nullptr);
    const bool isTight = layout->contentsMargins().isNull() && layout->spacing() == 0;
    const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QStringList lines{widget->objectName() + ' ' + layout->metaObject()->className() +
                      (isTight ? "" : ", loose") + (placed == children ? "" : ", reordered") + ": " +
                      items.join(", ")};
    for (const QWidget* child : children) {
        lines += child->objectName().isEmpty() ? QStringList() : structureOf(child);
    }
    return lines;
}

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

} // namespace

/// What sheets, hosts and users find in a component: its parts, their classes, names and places, and how
/// label and Tab lead to them.
class tst_Structure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parts_data()
    {
        QTest::addColumn<Factory>("factory");
        QTest::addColumn<QStringList>("structure");
        const auto add = [](const char* name, const Factory& factory, const QStringList& structure) {
            QTest::newRow(name) << factory << structure;
        };
        const QString button = " OvHBoxLayout, reordered: QWidget color, stretch";
        add("ColorInputWidget", [](QWidget* parent) { return new ColorInputWidget(parent, QColor()); },
            {" OvHBoxLayout: ColorPickerButton colorPicker", "colorPicker" + button});
        add("ColorPickerButton", make<ColorPickerButton>, {button});
        add("ColorPickerWidget", [](QWidget* parent) { return new ColorPickerWidget(parent, false); },
            {" OvVBoxLayout: OvFrame topPanel, OvFrame colorMatrixPanel, OvFrame otherColorsPanel, "
             "OvFrame opacityPanel",
             "topPanel OvHBoxLayout: QLabel currentColorDisplayLabel, "
             "Orvane::Tessel::TesselLineEdit currentColorValueEdit, QToolButton pipetteButton",
             "colorMatrixPanel OvGridLayout: 72 x QToolButton",
             // The title takes the whole row.
             "otherColorsPanel OvGridLayout: QLabel otherColorsTitleLabel 0,0 1x2, "
             "QToolButton addCustomColorButton 1,0 1x1, OvFrame otherColorsQueuePanel 1,1 1x1",
             "otherColorsQueuePanel OvHBoxLayout: 8 x QToolButton",
             "opacityPanel OvGridLayout: QLabel opacityTitleLabel 0,0 1x2, OvDoubleSlider opacitySlider 1,0 "
             "1x1, "
             "OvSpinBox opacitySpinbox 1,1 1x1"});
        add("CustomColorSelectWidget", make<CustomColorSelectWidget>,
            {" OvVBoxLayout: ColorPlaneWidget colorPlane, OvFrame huePanel",
             "huePanel OvVBoxLayout: QLabel hueLabel, Orvane::Tessel::TesselElegantSlider hueSlider"});
        add("DialogGuideWidget", make<DialogGuideWidget>,
            {"contentFrame OvVBoxLayout: OvFrame headerFrame, OvFrame descriptionFrame, OvFrame "
             "buttonsFrame, "
             "stretch",
             "headerFrame OvHBoxLayout: QLabel headerLabel, QToolButton closeButton",
             "descriptionFrame OvVBoxLayout: OvPixmapWidget gifPixmapWidget, QLabel descriptionLabel",
             "buttonsFrame OvHBoxLayout: stretch *1, QPushButton secondaryButton, QPushButton mainButton"});
        add("GuideWidget", [](QWidget* parent) { return new GuideWidget(GuideInfo(), parent); },
            {" OvVBoxLayout: QLabel headerLabel, OvPixmapWidget gifPixmapWidget, QLabel descriptionLabel, "
             "QLabel learnMoreLabel"});
        add("LoupeWidget",
            [](QWidget* parent) {
                auto* const loupe = new LoupeWidget;
                loupe->setParent(parent);
                return loupe;
            },
            {" OvVBoxLayout, reordered: QLabel colorNameLabel"});
        add("PathSelectionWidget", make<PathSelectionWidget>,
            {" OvVBoxLayout: OvFrame spaceInfoFrame, OvFrame pathSelectionFrame, QLabel errorLabel",
             "spaceInfoFrame OvHBoxLayout: QLabel requiredLabel, QLabel availableLabel, stretch",
             "pathSelectionFrame OvHBoxLayout: Orvane::Tessel::TesselLineEdit pathLineEdit *1, "
             "QToolButton pathBrowseButton, QToolButton pathResetButton"});
        add("PointSelectorWidget",
            [](QWidget* parent) {
                return new PointSelectorWidget(parent, {{0, 0}, {1, 1}, 0, 0});
            },
            {" OvHBoxLayout, reordered: OvFrame pointSelectorFrame, OvFrame spinBoxFrame",
             "spinBoxFrame OvVBoxLayout: OvFrame xSpinboxFrame, OvFrame ySpinboxFrame",
             "xSpinboxFrame OvHBoxLayout: QLabel xLabel, OvDoubleSpinBox xSpinbox",
             "ySpinboxFrame OvHBoxLayout: QLabel yLabel, OvDoubleSpinBox ySpinbox",
             "pointSelectorFrame OvVBoxLayout: PointSelectionPlane pointSelector"});
        add("SearchWidget", make<SearchWidget>,
            {" OvHBoxLayout: QLabel searchIcon, Orvane::Tessel::TesselLineEdit searchLineEdit, "
             "QToolButton clearSearchButton"});
        add("SliderInputWidget",
            [](QWidget* parent) {
                return new SliderInputWidget(parent, {0, 1});
            },
            {" OvHBoxLayout: OvCustomSlider slider, OvSpinBox spinbox"});
        add("DoubleSliderInputWidget",
            [](QWidget* parent) {
                return new DoubleSliderInputWidget(parent, {0, 1, 2});
            },
            {" OvHBoxLayout: OvDoubleSlider slider, OvDoubleSpinBox spinbox"});
    }

    void parts()
    {
        QFETCH(Factory, factory);
        QFETCH(QStringList, structure);
        QWidget parent;
        const QWidget* const widget = factory(&parent);
        QVERIFY(widget->isWindow() || widget->parentWidget() == &parent);
        const auto* const bubble = qobject_cast<const PointingWidget*>(widget);
        QCOMPARE(structureOf(bubble ? bubble->contentFrame() : widget), structure);
    }

    void mirrored_data() { parts_data(); }

    void mirrored()
    {
        QFETCH(Factory, factory);
        QWidget parent;
        QWidget* const widget = factory(&parent);
        const auto* const bubble = qobject_cast<const PointingWidget*>(widget);
        const QWidget* const area = bubble ? bubble->contentFrame() : widget;
        const auto parts = area->findChildren<QWidget*>();
        for (QWidget* part : parts) {
            part->setVisible(part->parentWidget()->layout());
        }
        widget->resize(400, 300);
        parent.show();
        widget->show();
        const auto placesIn = [&](Qt::LayoutDirection direction) {
            widget->setLayoutDirection(direction);
            QCoreApplication::processEvents();
            QVector<QRect> places;
            for (QWidget* part : parts) {
                const QLayout* const layout = part->parentWidget()->layout();
                if (layout && layout->indexOf(part) >= 0) {
                    const QRect place(part->mapTo(area, QPoint()), part->size());
                    places += QStyle::visualRect(direction, area->rect(), place);
                }
            }
            return places;
        };
        const QVector<QRect> places = placesIn(Qt::LeftToRight);
        QVERIFY(!places.isEmpty());
        QCOMPARE(placesIn(Qt::RightToLeft), places);
    }

    void inAForm_data()
    {
        QTest::addColumn<Factory>("factory");
        QTest::addColumn<QStringList>("stops");
        const auto row = [](const char* name, const Factory& factory, const QStringList& stops) {
            QTest::newRow(name) << factory << stops;
        };
        row("ColorInputWidget", [](QWidget* form) { return new ColorInputWidget(form, Qt::red); },
            {"colorPicker"});
        row("PathSelectionWidget",
            [](QWidget* form) {
                auto* const field = new PathSelectionWidget(form);
                field->setDefaultPath("/default", "Default");
                return field;
            },
            {"pathLineEdit", "pathBrowseButton", "pathResetButton"});
        row("PointSelectorWidget",
            [](QWidget* form) {
                return new PointSelectorWidget(form, {{0, 0}, {1, 1}, 0, 0});
            },
            {"pointSelector", "xSpinbox", "ySpinbox"});
        row("SearchWidget",
            [](QWidget* form) {
                auto* const field = new SearchWidget(form);
                field->findChild<QLineEdit*>()->setText("a");
                return field;
            },
            {"searchLineEdit", "clearSearchButton"});
        row("SliderInputWidget",
            [](QWidget* form) {
                return new SliderInputWidget(form, {0, 1});
            },
            {"slider", "spinbox"});
        row("DoubleSliderInputWidget",
            [](QWidget* form) {
                return new DoubleSliderInputWidget(form, {0, 1, 2});
            },
            {"slider", "spinbox"});
    }

    // The mnemonic of its label leads to the first part, and Tab to each.
    void inAForm()
    {
        QFETCH(Factory, factory);
        QFETCH(QStringList, stops);
        QWidget form;
        auto* const before = new QLineEdit(&form);
        auto* const label = new QLabel("&Value", &form);
        QWidget* const field = factory(&form);
        label->setBuddy(field);
        auto* const after = new QLineEdit(&form);
        QWidgetList parts;
        for (const QString& name : stops) {
            parts += field->findChild<QWidget*>(name);
        }
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        before->setFocus();
        QTest::keyClick(&form, Qt::Key_V, Qt::AltModifier);
        QCOMPARE(form.focusWidget(), parts.first());
        before->setFocus();
        QCOMPARE(focusedBy(Qt::Key_Tab, parts.size() + 1, form), parts + QWidgetList{after});
        std::reverse(parts.begin(), parts.end());
        QCOMPARE(focusedBy(Qt::Key_Backtab, parts.size() + 1, form), parts + QWidgetList{before});
        field->setEnabled(false);
        QCOMPARE(focusedBy(Qt::Key_Tab, 1, form), QWidgetList{after});
    }
};

UIC_TEST_MAIN(tst_Structure)
#include "tst_Structure.moc"
