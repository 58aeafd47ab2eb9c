#include "TestMain.h"

#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <gallery/CodeText.h>
#include <gallery/GalleryApplication.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>

class tst_CodeText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }
    void cleanup() { qApp->setStyleSheet(QString()); }

    // That all of it compiles is the test gallery.code.
    void pages_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("component") << "slider-input"
                                   << QStringList{"#include <UiComponents/SliderInputWidget.h>",
                                                  "void buildSliderInput(QWidget* parent)",
                                                  "auto* sliderInputWidget = new SliderInputWidget(parent, "
                                                  "SliderInputWidget::Initializer{-100, 100});",
                                                  "sliderInputWidget->setValue(25);"};
        QTest::newRow("several") << "color-picker-button"
                                 << QStringList{"colorPickerButton->setColor(QColor(47, 111, 222));",
                                                "colorPickerButton2->setColor(QColor());",
                                                "colorPickerButton3->setPicker(new PopupColorPicker);"};
        QTest::newRow("properties") << "double-spin-box"
                                    << QStringList{"ovDoubleSpinBox2->setDecimals(3);",
                                                   "ovDoubleSpinBox2->setValue(23.976);",
                                                   "ovDoubleSpinBox2->setBothDecimalMarksAccepted(true);"};
        QTest::newRow("items") << "tessel-combo-box"
                               << QStringList{"ovComboBox->addItems({QStringLiteral(\"Normal\"), "
                                              "QStringLiteral(\"Multiply\"), QStringLiteral(\"Screen\")});",
                                              "Orvane::Tessel::convertComboBoxToTessel(ovComboBox2);"};
        QTest::newRow("layout") << "layouts"
                                << QStringList{"auto* ovHBoxLayout = new OvHBoxLayout(ovFrame);",
                                               "ovHBoxLayout->addStretch(1);",
                                               "ovHBoxLayout2->addSpacing(40);",
                                               "ovHBoxLayout2->addWidget(label6, 3);",
                                               "ovGridLayout->addWidget(label7, 0, 0, 1, 2);"};
        QTest::newRow("style hint") << "color-hint"
                                    << QStringList{"Util::applyStyleHint(pushButton, "
                                                   "QStringLiteral(\"LIGHT_GREY_ONE\"));",
                                                   "gridLayout->addWidget(pushButton, 0, 0, 1, 1);"};
        QTest::newRow("installed controller")
            << "frame" << QStringList{"Util::installLayoutController(groupBox);"};
        QTest::newRow("class of the gallery")
            << "blending-modes"
            << QStringList{"// In the gallery this is BlendStage, a class of its own.",
                           "auto* widget = new QWidget(parent);"};
        QTest::newRow("bubble") << "pointing-widget"
                                << QStringList{
                                       "auto* label = new QLabel(pointingWidget->contentFrame());",
                                       "pointingWidget3->setArrowSide(PointingWidget::ArrowSide::Left, "
                                       "PointingWidget::ArrowPosition::Center);"};
        QTest::newRow("what the page knows")
            << "bind-widgets"
            << QStringList{"Util::bindWidgets(ovFrame->findChild<OvCustomSlider*>(), "
                           "ovFrame->findChild<OvSpinBox*>());"};
        QTest::newRow("object that is no widget")
            << "pipette" << QStringList{"auto* pipette = new Pipette(parent);"};
        QTest::newRow("class without a meta-object") << "adjusting-list"
                                                     << QStringList{"auto* adjustingListView = new "
                                                                    "AdjustingListView(parent);"};
        QTest::newRow("dialog") << "qml-dialog"
                                << QStringList{"auto* dialog = new Qml::QuickDialog(parent);",
                                               "dialog->setQmlPath(QStringLiteral(\"Confirmation.qml\"));"};
    }

    void pages()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, lines);
        const Page shown(*PageRegistry::find(page));
        const QStringList code = linesOf(shown);
        for (const QString& line : lines) {
            QVERIFY2(code.contains(line), qPrintable(line + "\n\n" + code.join('\n')));
        }
    }

    void presentValues()
    {
        const Page page(*PageRegistry::find("slider-input"));
        auto* field = page.findChild<SliderInputWidget*>();
        field->setValue(-7);
        field->setToolTip("a \"$b\"\r\n\\");
        Util::applyStyleHint(field, "error");
        const QStringList code = linesOf(page);
        QVERIFY(code.contains("sliderInputWidget->setValue(-7);"));
        QVERIFY(
            code.contains("sliderInputWidget->setToolTip(QStringLiteral(\"a \\\"\\044b\\\"\\r\\n\\\\\"));"));
        QVERIFY(code.contains("Util::applyStyleHint(sliderInputWidget, QStringLiteral(\"error\"));"));
    }

    // What the sheet sets is the sheet's.
    void styleIsLeftOut()
    {
        const Page plain(*PageRegistry::find("edit-session"));
        const QString expected = codeText(&plain);
        StyleController style;
        QVERIFY(style.setStyle("dark"));
        const Page styled(*PageRegistry::find("edit-session"));
        QCOMPARE(codeText(&styled), expected);
        auto* controller = styled.findChild<SliderInputWidget*>();
        controller->setLayoutSpacing(controller->layoutSpacing() + 1);
        QVERIFY(codeText(&styled).contains("->setLayoutSpacing("));
    }

    // It looks at the components and changes nothing.
    void pageStaysAsItIs()
    {
        const QVector<PageInfo> pages = PageRegistry::pages();
        for (const PageInfo& info : pages) {
            const Page page(info);
            // It polishes them first, as showing them does.
            const QString first = codeText(&page);
            const int before = page.findChildren<QObject*>().size();
            QCOMPARE(codeText(&page), first);
            QCOMPARE(page.findChildren<QObject*>().size(), before);
        }
    }

private:
    static QStringList linesOf(const Page& page)
    {
        QStringList lines;
        const QStringList all = codeText(&page).split('\n');
        for (const QString& line : all) {
            lines.append(line.trimmed());
        }
        return lines;
    }
};

UIC_TEST_MAIN(tst_CodeText)
#include "tst_CodeText.moc"
