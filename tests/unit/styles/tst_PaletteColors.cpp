#include "Legibility.h"
#include "TestMain.h"

#include <DesignElements/TesselElegantSlider.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <functional>

using Make = std::function<QWidget*()>;
Q_DECLARE_METATYPE(Make)

/**
 * Without a sheet, what components paint themselves follows the palette, also a black one.
 */
class tst_PaletteColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutASheet_data()
    {
        QTest::addColumn<QColor>("surface");
        QTest::addColumn<Make>("make");
        const auto row = [](const char* name, const Make& make) {
            QTest::addRow("%s, black on white", name) << QColor(Qt::white) << make;
            QTest::addRow("%s, white on black", name) << QColor(Qt::black) << make;
        };
        row("point plane", [] {
            auto* plane = new PointSelectionPlane(nullptr);
            plane->setMinimumSize(100, 100);
            return plane;
        });
        row("slider", [] {
            auto* slider = new Orvane::Tessel::TesselElegantSlider;
            slider->setOrientation(Qt::Horizontal);
            return slider;
        });
        row("combo box", [] { return new ColorBlendingComboBox(nullptr); });
        row("guide", [] {
            return new GuideWidget({QStringLiteral("Trim"), QStringLiteral("Drag the end of a clip."),
                                    QStringLiteral("<a href='x:y'>More</a>"), QString()},
                                   nullptr);
        });
        row("bubble", [] {
            auto* bubble = new DialogGuideWidget(nullptr);
            bubble->setInfo({QStringLiteral("Tour"), QStringLiteral("Drag the edge."), QStringLiteral("Next"),
                             QStringLiteral("Back"), QString()});
            return bubble;
        });
        row("colour panel", [] { return new ColorPickerWidget(nullptr, false); });
        row("folder field", [] {
            auto* field = new PathSelectionWidget(nullptr);
            field->setPath(QStringLiteral("/tmp"));
            return field;
        });
        row("slider field", [] { return new SliderInputWidget(nullptr); });
        row("several values", [] {
            auto* box = new OvSpinBox;
            (new EditSession(box))->setMultiValue(true);
            return box;
        });
    }

    void withoutASheet()
    {
        QFETCH(QColor, surface);
        QFETCH(Make, make);
        const QPalette before = QApplication::palette();
        const auto restore = qScopeGuard([&before] { QApplication::setPalette(before); });
        const QColor ink = surface == QColor(Qt::white) ? Qt::black : Qt::white;
        QPalette palette(surface, surface);
        palette.setColor(QPalette::Link, ink);
        QApplication::setPalette(palette);
        QWidget window;
        QWidget* const widget = make();
        (new QVBoxLayout(&window))->addWidget(widget);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QVERIFY(widget->isVisible());
        // The focus has marks of its own.
        window.setFocus();
        const QStringList all = Legibility::failures(&window, false);
        QVERIFY2(all.isEmpty(), qPrintable(QLatin1Char('\n') + all.join(QLatin1Char('\n'))));
    }
};

UIC_TEST_MAIN(tst_PaletteColors)
#include "tst_PaletteColors.moc"
