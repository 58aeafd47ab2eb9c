#include "MetaObject.h"
#include "TestMain.h"

#include <UiComponents/ClickButton.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/ColorPlaneWidget.h>
#include <UiComponents/CustomColorSelectWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/LoupeWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PipetteScreenView.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectionPlanePropertyHelper.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/QuickContent.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>

using MetaObject = const QMetaObject*;
Q_DECLARE_METATYPE(MetaObject)

/// What hosts, style sheets and QML reach by name: of each class, what it adds to its base class, in order.
class tst_MetaObjects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void members_data()
    {
        QTest::addColumn<MetaObject>("meta");
        QTest::addColumn<MetaObject>("base");
        QTest::addColumn<QStringList>("members");
        const auto add = [](const char* name, const QMetaObject& meta, const QMetaObject& base,
                            const QStringList& members = {}) {
            QTest::newRow(name) << &meta << &base << members;
        };
        const QMetaObject& object = QObject::staticMetaObject;
        const QMetaObject& widget = QWidget::staticMetaObject;
        const QMetaObject& frame = OvFrame::staticMetaObject;
        const QMetaObject& toolButton = QToolButton::staticMetaObject;
        add("AbstractColorPicker", AbstractColorPicker::staticMetaObject, object,
            {"signal colorChanged(std::optional<QColor> color)", "signal pickingStopped()",
             "slot setColor(std::optional<QColor> color)"});
        add("ColorBlendingComboBox", ColorBlendingComboBox::staticMetaObject, OvComboBox::staticMetaObject,
            {"signal blendingModeChanged(BlendingMode mode)"});
        add("ColorInputWidget", ColorInputWidget::staticMetaObject, frame,
            {"signal colorChanged(QColor value)"});
        add("ColorPickerButton", ColorPickerButton::staticMetaObject, toolButton,
            {"signal pickingStarted()", "signal pickingStopped()", "signal colorChanged(QColor color)",
             "slot startPicking()", "slot stopPicking()"});
        add("ColorPickerWidget", ColorPickerWidget::staticMetaObject, frame,
            {"signal colorChanged(QColor color)", "signal pipetteRequested()", "signal closeRequested()",
             "int colorDialogOffset r"});
        add("ColorPlaneWidget", ColorPlaneWidget::staticMetaObject, widget,
            {"signal hsvColorChanged(QColor hsvColor)", "int markerRadius rw", "int markerBorderWidth rw"});
        add("CustomColorSelectWidget", CustomColorSelectWidget::staticMetaObject, frame,
            {"signal colorChanged(QColor color)"});
        add("DialogGuideWidget", DialogGuideWidget::staticMetaObject, PointingWidget::staticMetaObject,
            {"signal secondaryClicked()", "signal mainClicked()", "signal closeClicked()"});
        add("DoubleSliderInputWidget", DoubleSliderInputWidget::staticMetaObject, frame,
            {"signal valueChanged(double value)"});
        add("GuideButton", GuideButton::staticMetaObject, toolButton,
            {"signal learnMoreClicked()", "int popupOffset rw"});
        add("GuideWidget", GuideWidget::staticMetaObject, frame, {"signal learnMoreClicked()"});
        add("LoupeWidget", LoupeWidget::staticMetaObject, widget, {"QColor emptyPixelsColor rw"});
        add("PathSelectionWidget", PathSelectionWidget::staticMetaObject, frame,
            {"signal pathChanged(QString path)", "signal browseDirectoryRequested(QUrl url)"});
        add("Pipette", Pipette::staticMetaObject, object,
            {"signal pickingStarted()", "signal pickingStopped()", "signal colorSelected(QColor color)"});
        add("PipetteScreenView", PipetteScreenView::staticMetaObject, QGraphicsView::staticMetaObject,
            {"signal pickingFinished(QPoint cursorPos,bool isSucceeded)",
             "signal loupePosChanged(QPoint cursorPos)", "slot setCursorPixmap(QPixmap pixmap)",
             "slot setCursorSize(QSize size)", "slot setCursorHotSpot(QSize hotSpot)",
             "QPixmap cursorPixmap rw", "QSize cursorSize rw", "QSize cursorHotSpot rw"});
        add("PointSelectionPlane", PointSelectionPlane::staticMetaObject, frame,
            {"signal pointChanged(QPointF point)"});
        add("PointSelectionPlanePropertyHelper", PointSelectionPlanePropertyHelper::staticMetaObject,
            PropertyProviderBase::staticMetaObject,
            {"double MarkerRadius rw", "QColor MarkerColor rw", "QColor FillColor rw",
             "int CoordLinesWidth rw", "QColor CoordLinesColor rw"});
        add("PointSelectorWidget", PointSelectorWidget::staticMetaObject, frame,
            {"signal valueChanged(QPointF value)"});
        add("Qml::QuickContent", Qml::QuickContent::staticMetaObject, object);
        add("Qml::QuickDialog", Qml::QuickDialog::staticMetaObject, QDialog::staticMetaObject,
            {"protected method QPoint cursorPos()"});
        add("SearchWidget", SearchWidget::staticMetaObject, frame,
            {"signal editingFinished(QString text)", "signal textChanged(QString text)",
             "QColor PlaceholderColor rw", "QColor PlaceholderHoverColor rw",
             "QColor PlaceholderDisabledColor rw"});
        add("SliderInputWidget", SliderInputWidget::staticMetaObject, frame,
            {"signal valueChanged(int value)"});
        add("WidgetColorPicker", WidgetColorPicker::staticMetaObject, AbstractColorPicker::staticMetaObject);
        add("WidgetColorPickerButton", WidgetColorPickerButton::staticMetaObject, toolButton,
            {"signal pickingStarted()", "signal pickingFinished()", "signal colorChanged(QColor color)",
             "slot startPicking()", "slot stopPicking()", "bool changeSelfColor rw"});
    }

    void members()
    {
        QFETCH(MetaObject, meta);
        QFETCH(MetaObject, base);
        QFETCH(QStringList, members);
        QCOMPARE(meta->className(), QTest::currentDataTag());
        QCOMPARE(meta->superClass(), base);
        QCOMPARE(ownMethods(*meta) + ownProperties(*meta), members);
        QCOMPARE(meta->enumeratorOffset(), meta->enumeratorCount());
    }
};

UIC_TEST_MAIN(tst_MetaObjects)
#include "tst_MetaObjects.moc"
