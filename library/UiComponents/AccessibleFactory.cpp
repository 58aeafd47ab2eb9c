#include "AccessibleFactory.h"

#include "AccessibleNames.h"
#include "AccessibleParts.h"
#include "AccessiblePlane.h"
#include "AccessibleScene.h"
#include "ColorPickerWidget.h"
#include "ColorPickerWidgetButton.h"
#include "ColorPlaneWidget.h"
#include "GuidePicture.h"
#include "PlaneDrag.h"
#include "PointSelectionPlane.h"
#include "SceneView.h"

#include <WidgetToolkit/OvDoubleSlider.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QScopeGuard>

namespace {

constexpr std::array<const char*, 2> pointAxes{QT_TRANSLATE_NOOP("PointSelectorWidget", "x"),
                                               QT_TRANSLATE_NOOP("PointSelectorWidget", "y")};
constexpr std::array<const char*, 2> colorAxes{QT_TRANSLATE_NOOP("CustomColorSelectWidget", "Saturation"),
                                               QT_TRANSLATE_NOOP("CustomColorSelectWidget", "Brightness")};

/// Components that are groups of their parts.
bool isGroup(const QString& className)
{
    static const QStringList groups{QString::fromLatin1("ColorInputWidget"),
                                    QString::fromLatin1("ColorPickerWidget"),
                                    QString::fromLatin1("CustomColorSelectWidget"),
                                    QString::fromLatin1("SliderInputWidget"),
                                    QString::fromLatin1("DoubleSliderInputWidget"),
                                    QString::fromLatin1("PointSelectorWidget"),
                                    QString::fromLatin1("PathSelectionWidget"),
                                    QString::fromLatin1("SearchWidget"),
                                    QString::fromLatin1("GuideWidget")};
    return groups.contains(className);
}

QAccessibleInterface* partFor(const QString& className, QWidget* widget)
{
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        const bool isChoice = dynamic_cast<ColorPickerWidgetButton*>(widget) != nullptr;
        return new AccessibleButton(button, isChoice ? QAccessible::RadioButton : QAccessible::Button);
    }
    if (auto* const slider = qobject_cast<QAbstractSlider*>(widget)) {
        return new AccessibleSlider(slider);
    }
    if (auto* const box = qobject_cast<QAbstractSpinBox*>(widget)) {
        return new AccessibleSpinBox(box);
    }
    if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
        return new AccessibleLineEdit(edit);
    }
    if (widget->objectName() == QLatin1String("currentColorDisplayLabel")) {
        return new AccessibleColor(widget, QAccessible::Graphic);
    }
    if (auto* const picture = dynamic_cast<GuidePicture*>(widget)) {
        return new AccessiblePicture(picture);
    }
    if (auto* const message = qobject_cast<QLabel*>(widget)) {
        return new AccessibleMessage(message);
    }
    return className == QLatin1String("OvFrame") ? new AccessiblePart(widget, QAccessible::Grouping)
                                                 : nullptr;
}

} // namespace

void AccessibleFactory::install()
{
    static const auto undo = qScopeGuard([] { QAccessible::removeFactory(interfaceFor); });
    static QPointer<QCoreApplication> application;
    // Qt drops all factories with the application.
    if (application != QCoreApplication::instance()) {
        application = QCoreApplication::instance();
        // The toolkit's, which its first slider installs, has to be there before.
        const OvDoubleSlider slider;
        QAccessible::installFactory(interfaceFor);
    }
}

QAccessibleInterface* AccessibleFactory::interfaceFor(const QString& className, QObject* object)
{
    auto* const widget = qobject_cast<QWidget*>(object);
    if (!widget) {
        return nullptr;
    }
    if (isGroup(className)) {
        return new AccessiblePart(widget, QAccessible::Grouping);
    }
    if (className == QLatin1String("ColorPickerButton") || className == QLatin1String("GuideButton") ||
        className == QLatin1String("WidgetColorPickerButton")) {
        return new AccessibleButton(qobject_cast<QAbstractButton*>(widget), QAccessible::Button);
    }
    if (auto* const plane = qobject_cast<PointSelectionPlane*>(widget)) {
        return new AccessiblePlane(plane, PlaneDrag::of(plane), "PointSelectorWidget", pointAxes);
    }
    if (auto* const plane = qobject_cast<ColorPlaneWidget*>(widget)) {
        return new AccessiblePlane(plane, PlaneDrag::of(plane), "CustomColorSelectWidget", colorAxes);
    }
    if (auto* const view = dynamic_cast<SceneView*>(widget)) {
        return new AccessibleScene(view);
    }
    if (className == QLatin1String("Qml::QuickDialog")) {
        return new AccessibleQuickDialog(widget);
    }
    const bool isSelector = className == QLatin1String("QDialog") && widget->windowType() == Qt::Popup &&
                            qobject_cast<ColorPickerWidget*>(widget->parentWidget());
    const bool isColorPopup = widget->objectName() == QLatin1String("colorPanelPopup");
    if (className == QLatin1String("PointingWidget") || isSelector || isColorPopup) {
        return new AccessiblePopup(widget);
    }
    // Qt calls this for each base class too, even while accessibility is inactive.
    const bool isAsked = className == QLatin1String(widget->metaObject()->className());
    const bool isPart =
        isAsked && (dynamic_cast<ColorPickerWidgetButton*>(widget) || AccessibleNames::hasEntry(widget));
    return isPart ? partFor(className, widget) : nullptr;
}
