#include "Deletion.h"
#include "FreedMemory.h"
#include "MarkingTranslator.h"
#include "MouseEvents.h"
#include "OnEvent.h"
#include "OptionalColor.h"
#include "RecordingStore.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>
#include <Settings/Settings.h>
#include <UiComponents/ColorPickerWidget.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <functional>
#include <utility>

using Orvane::Tessel::TesselLineEdit;

Q_DECLARE_METATYPE(OptionalColor)

namespace {

// By rows; the library's own table is not used, so that a slip there is seen.
const char* const palette[8][9] = {
    {"#ffffff", "#e3e3e3", "#bfbfbf", "#9a9a9a", "#7d7d7d", "#6a6a6a", "#444444", "#2d2d2d", "#000000"},
    {"#ff0000", "#ff5d00", "#ffc000", "#f3ff00", "#00ff00", "#00ceff", "#0027ff", "#7400ff", "#ff009e"},
    {"#ffb4b4", "#ffccae", "#ffe9a5", "#fbffa6", "#afffb0", "#9cecff", "#93a4ff", "#d5b2ff", "#ffb4e2"},
    {"#ff8484", "#ffa774", "#ffd85f", "#f8ff6d", "#6cff6e", "#7ae5ff", "#7388ff", "#bc84ff", "#ff8cd3"},
    {"#ff5454", "#ff8a47", "#ffce38", "#f6ff3d", "#46ff49", "#42dbff", "#5771ff", "#9842ff", "#e34ba9"},
    {"#c70000", "#ca4a00", "#cf9c00", "#b7c000", "#03c705", "#0191b4", "#001cb7", "#5a00c5", "#a10064"},
    {"#760000", "#833000", "#8b6900", "#6f7400", "#007601", "#025b71", "#00106a", "#3c0085", "#62003d"},
    {"#380000", "#421800", "#493700", "#3e4100", "#003801", "#00303b", "#00093c", "#1e0043", "#390023"},
};

const QString orange = QStringLiteral("#ff5d00");

QString sheetOf(const QString& color)
{
    return QStringLiteral("background-color: %1;").arg(color);
}

/// A panel that writes down what it says, with its parts at hand.
class Panel : public ColorPickerWidget
{
public:
    explicit Panel(bool nullColorAllowed = false, QWidget* parent = nullptr)
        : ColorPickerWidget(parent, nullColorAllowed)
        , edit(part<TesselLineEdit>("currentColorValueEdit"))
        , face(part<QLabel>("currentColorDisplayLabel"))
        , pipette(part<QToolButton>("pipetteButton"))
        , addButton(part<QToolButton>("addCustomColorButton"))
        , slider(part<OvDoubleSlider>("opacitySlider"))
        , spinBox(part<OvSpinBox>("opacitySpinbox"))
        , group(findChild<QButtonGroup*>())
    {
        connect(this, &ColorPickerWidget::colorChanged, this, [this](const QColor& color) {
            m_log += text(color);
            // The getter is up to date when the signal comes.
            if (currentColor() != OptionalColor(color)) {
                m_log += QStringLiteral("but is ") + text(currentColor());
            }
        });
        connect(this, &ColorPickerWidget::pipetteRequested, this,
                [this] { m_log += QStringLiteral("pipette"); });
        connect(this, &ColorPickerWidget::closeRequested, this, [this] { m_log += QStringLiteral("close"); });
    }

    template <typename Part>
    Part* part(const char* name) const
    {
        return findChild<Part*>(QLatin1String(name));
    }

    /// What was said since the last call.
    QStringList log() { return std::exchange(m_log, {}); }

    QToolButton* paletteButton(int row, int column) const
    {
        const auto* grid = qobject_cast<QGridLayout*>(part<OvFrame>("colorMatrixPanel")->layout());
        return qobject_cast<QToolButton*>(grid->itemAtPosition(row, column)->widget());
    }

    QToolButton* paletteButton(const QString& color) const
    {
        const auto all = part<OvFrame>("colorMatrixPanel")->findChildren<QToolButton*>();
        for (QToolButton* button : all) {
            if (button->styleSheet() == sheetOf(color)) {
                return button;
            }
        }
        return nullptr;
    }

    /// From left to right.
    QToolButton* queueButton(int index) const
    {
        QLayout* const layout = part<OvFrame>("otherColorsQueuePanel")->layout();
        return qobject_cast<QToolButton*>(layout->itemAt(index)->widget());
    }

    /// The colours that the queue offers, "-" where it offers none.
    QStringList queue() const
    {
        QStringList colors;
        for (int i = 0; i < 8; ++i) {
            const QToolButton* button = queueButton(i);
            colors += button->isEnabled() ? button->styleSheet().mid(18).chopped(1) : QStringLiteral("-");
        }
        return colors;
    }

    QString checked() const
    {
        const QAbstractButton* button = group->checkedButton();
        return button ? button->styleSheet().mid(18).chopped(1) : QString();
    }

    void show()
    {
        ColorPickerWidget::show();
        QVERIFY(QTest::qWaitForWindowExposed(window()));
        QCoreApplication::processEvents();
    }

    QDialog* selector() const { return findChild<QDialog*>(); }
    QWidget* plane() const { return selector()->findChild<QWidget*>(QStringLiteral("colorPlane")); }
    QSlider* hueSlider() const { return selector()->findChild<QSlider*>(QStringLiteral("hueSlider")); }

    /// Opens the selector as the user does.
    void openSelector()
    {
        QTest::mouseClick(addButton, Qt::LeftButton);
        QVERIFY(selector());
        QVERIFY(QTest::qWaitForWindowExposed(selector()));
        QCoreApplication::processEvents();
    }

    QColor planeColor(int hue, const QPoint& point) const
    {
        const QSize size = plane()->size();
        return QColor::fromHsvF(hue / 360.0, point.x() / double(size.width() - 1),
                                1.0 - point.y() / double(size.height() - 1), 1.0)
            .rgb();
    }

    void pressPlane(const QPoint& point) const { press(*plane(), point); }
    void dragOverPlane(const QPoint& point) const { drag(*plane(), point); }
    void releasePlane(const QPoint& point) const { release(*plane(), point); }
    void clickPlane(const QPoint& point) const
    {
        pressPlane(point);
        releasePlane(point);
    }

    TesselLineEdit* const edit;
    QLabel* const face;
    QToolButton* const pipette;
    QToolButton* const addButton;
    OvDoubleSlider* const slider;
    OvSpinBox* const spinBox;
    QButtonGroup* const group;

private:
    QStringList m_log;
};

/// What Util::applyProperty() has written for style sheets.
QString faceState(const Panel& panel)
{
    const bool multi = panel.face->property("multiColor").toBool();
    const bool none = panel.face->property("nullColor").toBool();
    return QStringLiteral("%1%2%3").arg(multi ? QStringLiteral("multi ") : QString(),
                                        none ? QStringLiteral("null ") : QString(),
                                        panel.face->styleSheet().mid(18).chopped(1));
}

/// Replaces the text in one go, as pasting does.
void paste(QLineEdit* edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    edit->selectAll();
    edit->paste();
}

void typeAnew(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

/// As the user does, who is about to type another number.
void emptySpinBox(Panel* panel)
{
    QApplication::setActiveWindow(panel->window());
    panel->spinBox->setFocus();
    panel->spinBox->selectAll();
    QTest::keyClick(panel->spinBox, Qt::Key_Backspace);
}

QStringList padded(QStringList colors)
{
    while (colors.size() < 8) {
        colors += QStringLiteral("-");
    }
    return colors;
}

QString opaque(const QString& color)
{
    return QStringLiteral("#ff") + color.mid(1);
}

QString half(const QString& color)
{
    return QStringLiteral("#80") + color.mid(1);
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Panel*)>)

class tst_ColorPickerWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_record = std::make_shared<Record>();
        Settings::setStore(std::make_unique<RecordingStore>(m_record));
    }

    void cleanup()
    {
        QVERIFY(!QWidget::mouseGrabber());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void cleanupTestCase() { Settings::setStore(nullptr); }

    void inputs()
    {
        const Panel panel;
        const auto* validator = qobject_cast<const QRegExpValidator*>(panel.edit->validator());
        QVERIFY(validator);
        QCOMPARE(validator->regExp(), QRegExp(QStringLiteral("^(#?)[a-fA-F0-9]{6}$")));
        QCOMPARE(validator->regExp().caseSensitivity(), Qt::CaseSensitive);

        QCOMPARE(panel.slider->orientation(), Qt::Horizontal);
        QCOMPARE(panel.slider->minimum(), 0);
        QCOMPARE(panel.slider->maximum(), 100);
        QCOMPARE(panel.slider->multiplier(), 0.01);
        QCOMPARE(panel.slider->value(), 100);
        QCOMPARE(panel.slider->doubleValue(), 1.0);

        QCOMPARE(panel.spinBox->minimum(), 0);
        QCOMPARE(panel.spinBox->maximum(), 100);
        QCOMPARE(panel.spinBox->suffix(), QStringLiteral("%"));
        QCOMPARE(panel.spinBox->buttonSymbols(), QAbstractSpinBox::NoButtons);
        QCOMPARE(panel.spinBox->correctionMode(), QAbstractSpinBox::CorrectToNearestValue);
        QCOMPARE(panel.spinBox->value(), 100);
        panel.spinBox->setValue(30);
        QCOMPARE(panel.slider->doubleValue(), 0.3);
        panel.slider->setValue(70);
        QCOMPARE(panel.spinBox->text(), QStringLiteral("70%"));
    }

    void styleHints()
    {
        const Panel panel;
        const auto hint = [](const QWidget* widget) { return widget->property("styleHint").toString(); };
        QCOMPARE(hint(panel.pipette), QStringLiteral("LIGHT_GREY_TWO"));
        QCOMPARE(hint(panel.spinBox), QStringLiteral("INPUT_LIGHT"));
        QCOMPARE(hint(panel.edit), QStringLiteral("INPUT_LIGHT"));
        QCOMPARE(hint(panel.slider), QStringLiteral("SLIDER_LIGHT"));
        QCOMPARE(hint(panel.addButton), QString());
    }

    void startsWithSeveralColors()
    {
        Panel panel;
        const auto check = [&panel] {
            QCOMPARE(panel.currentColor(), OptionalColor());
            QCOMPARE(panel.edit->text(), QStringLiteral("#multiple"));
            QCOMPARE(faceState(panel), QStringLiteral("multi transparent"));
            QCOMPARE(panel.checked(), QString());
            QVERIFY(panel.opacityAdjustmentAvailable());
            QCOMPARE(panel.log(), QStringList());
        };
        static_assert(std::is_same_v<decltype(panel.currentColor()), const OptionalColor&>);
        QCOMPARE(panel.property("colorDialogOffset").toInt(), 0);
        QCOMPARE(panel.GetcolorDialogOffset(), 0);
        QVERIFY(!panel.selector());
        check();
        panel.show();
        QVERIFY(panel.part<OvFrame>("opacityPanel")->isVisible());
        check();
    }

    void textsFollowTheLanguage()
    {
        const Panel panel;
        const auto texts = [&panel] {
            return QStringList{panel.part<QLabel>("otherColorsTitleLabel")->text(),
                               panel.part<QLabel>("opacityTitleLabel")->text()};
        };
        const QStringList english{QStringLiteral("Other:"), QStringLiteral("Opacity:")};
        QCOMPARE(texts(), english);
        {
            const MarkingTranslator translator("ColorPickerWidget");
            QCOMPARE(texts(), QStringList({QStringLiteral("<Other:>"), QStringLiteral("<Opacity:>")}));
        }
        QCOMPARE(texts(), english);
    }

    void labelsLeadToControls()
    {
        const Panel panel;
        QCOMPARE(panel.part<QLabel>("opacityTitleLabel")->buddy(), panel.slider);
        QCOMPARE(panel.part<QLabel>("otherColorsTitleLabel")->buddy(), panel.addButton);
    }

    void tabOrder()
    {
        m_record->value = ownColors(3);
        Panel panel;
        panel.show();
        QApplication::setActiveWindow(&panel);
        panel.edit->setFocus();
        QStringList stops;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            const QWidget* const widget = QApplication::focusWidget();
            stops += widget->objectName().isEmpty() ? widget->styleSheet() : widget->objectName();
        }
        QCOMPARE(stops.mid(0, 3),
                 QStringList({QStringLiteral("pipetteButton"), sheetOf(QStringLiteral("#ffffff")),
                              QStringLiteral("addCustomColorButton")}));
        // The group of the buttons is one stop; arrow keys lead to the others.
        QCOMPARE(stops.mid(3), QStringList({QStringLiteral("opacitySlider"), QStringLiteral("opacitySpinbox"),
                                            QStringLiteral("currentColorValueEdit")}));
    }

    void paletteOf72Colors_data()
    {
        QTest::addColumn<bool>("nullColorAllowed");
        QTest::newRow("colours only") << false;
        QTest::newRow("with no colour") << true;
    }

    // "No colour" comes first, and the second grey goes.
    void paletteOf72Colors()
    {
        QFETCH(bool, nullColorAllowed);
        const Panel panel(nullColorAllowed);
        const auto buttons = panel.part<OvFrame>("colorMatrixPanel")->findChildren<QToolButton*>();
        QCOMPARE(buttons.size(), 72);
        for (int i = 0; i < 72; ++i) {
            const QToolButton* const button = panel.paletteButton(i / 9, i % 9);
            QString color = QString::fromLatin1(palette[i / 9][i % 9]);
            if (nullColorAllowed && i < 2) {
                color = i == 0 ? QStringLiteral("transparent") : QStringLiteral("#ffffff");
            }
            QCOMPARE(button, buttons.at(i));
            QCOMPARE(button->styleSheet(), sheetOf(color));
            QVERIFY(button->isCheckable());
            QVERIFY(button->isEnabled());
            QCOMPARE(button->property("nullColor"), nullColorAllowed && i == 0 ? QVariant(true) : QVariant());
            QCOMPARE(button->metaObject(), &QToolButton::staticMetaObject);
        }
    }

    void formsOfferColorsOnly()
    {
        QWidget form;
        const ColorPickerWidget panel(&form);
        QCOMPARE(panel.parentWidget(), &form);
        const auto* const matrix = panel.findChild<OvFrame*>(QStringLiteral("colorMatrixPanel"));
        QVERIFY(!matrix->findChildren<QToolButton*>().constFirst()->property("nullColor").isValid());
    }

    void colorButtonsAreOfOneGroup()
    {
        const Panel panel;
        QCOMPARE(panel.findChildren<QButtonGroup*>().size(), 1);
        QVERIFY(panel.group->exclusive());
        QCOMPARE(panel.group->buttons().size(), 80);
        QCOMPARE(panel.group->buttons().mid(72, 8).front(), panel.queueButton(0));
        for (int i = 0; i < 8; ++i) {
            QVERIFY(panel.queueButton(i)->isCheckable());
            QVERIFY(!panel.queueButton(i)->isEnabled());
            QCOMPARE(panel.queueButton(i)->styleSheet(), QString());
            QCOMPARE(panel.queueButton(i)->metaObject(), &QToolButton::staticMetaObject);
        }
    }

    void facesAreSeen()
    {
        m_record->value = ownColors(1);
        Panel panel;
        panel.setStyleSheet(QStringLiteral("QToolButton { border: none; width: 16px; height: 16px; }"));
        panel.setCurrentColor(QColor(0, 0, 255, 100));
        panel.show();
        const auto middle = [](QWidget* widget) {
            return widget->grab().toImage().pixelColor(widget->rect().center()).name();
        };
        QCOMPARE(middle(panel.paletteButton(1, 1)), orange);
        QCOMPARE(middle(panel.paletteButton(7, 8)), QStringLiteral("#390023"));
        QCOMPARE(middle(panel.queueButton(0)), ownColors(1).constFirst());
        QCOMPARE(middle(panel.face), QStringLiteral("#0000ff"));
        QTest::mouseClick(panel.paletteButton(1, 1), Qt::LeftButton);
        QCOMPARE(middle(panel.face), orange);
    }

    void clickInThePalette_data()
    {
        QTest::addColumn<bool>("nullColorAllowed");
        QTest::addColumn<bool>("adjustable");
        QTest::addColumn<QString>("reported");
        for (const bool allowed : {false, true}) {
            const char* const first = allowed ? "with no colour, " : "";
            QTest::addRow("%sopacity adjustable", first) << allowed << true << half(orange);
            QTest::addRow("%sopacity fixed", first) << allowed << false << opaque(orange);
        }
    }

    void clickInThePalette()
    {
        QFETCH(bool, nullColorAllowed);
        QFETCH(bool, adjustable);
        QFETCH(QString, reported);
        Panel panel(nullColorAllowed);
        panel.setOpacityAdjustmentAvailable(adjustable);
        panel.slider->setValue(50);
        panel.show();
        QCOMPARE(panel.log(), QStringList());
        QTest::mouseClick(panel.paletteButton(1, 1), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{reported});
        QCOMPARE(panel.edit->text(), orange);
        QCOMPARE(faceState(panel), orange);
        QCOMPARE(panel.checked(), orange);
        QTest::mouseClick(panel.paletteButton(1, 1), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.checked(), orange);
        QTest::keyClick(panel.paletteButton(1, 0), Qt::Key_Space);
        QCOMPARE(panel.log(), QStringList{reported.left(3) + QStringLiteral("ff0000")});
        QVERIFY(!panel.paletteButton(1, 1)->isChecked());
    }

    void noColorIsChosen()
    {
        Panel panel(true);
        panel.setCurrentColor(QColor(Qt::red));
        panel.log();
        panel.show();
        QTest::mouseClick(panel.paletteButton(0, 0), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("none")});
        QCOMPARE(panel.currentColor(), OptionalColor(QColor()));
        QCOMPARE(panel.edit->text(), QStringLiteral("#null"));
        QCOMPARE(faceState(panel), QStringLiteral("null transparent"));
    }

    void arrowKeysChoose()
    {
        m_record->value = ownColors(8);
        Panel panel;
        panel.show();
        QApplication::setActiveWindow(&panel);
        panel.paletteButton(1, 1)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QCOMPARE(QApplication::focusWidget(), panel.paletteButton(1, 2));
        QCOMPARE(panel.log(), QStringList());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(panel.log(),
                 QStringList({opaque(QStringLiteral("#ffc000")), opaque(QStringLiteral("#ffe9a5")),
                              opaque(QStringLiteral("#ffccae"))}));
        QCOMPARE(QApplication::focusWidget(), panel.paletteButton(2, 1));
        // On to the user's own colours.
        panel.paletteButton(7, 0)->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QVERIFY(panel.part<OvFrame>("otherColorsQueuePanel")->isAncestorOf(QApplication::focusWidget()));
    }

    void pastedDigitsGetTheirSign()
    {
        Panel panel;
        paste(panel.edit, QStringLiteral("ff0000"));
        QCOMPARE(panel.edit->text(), QStringLiteral("#ff0000"));
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.currentColor(), OptionalColor());
        // One more edit, as any that ends in a colour: the button reports it, and so does the edit.
        QTest::keyClick(panel.edit, Qt::Key_Backspace);
        QCOMPARE(panel.log(), QStringList());
        QTest::keyClick(panel.edit, Qt::Key_0);
        QCOMPARE(panel.log(), QStringList({QStringLiteral("#ffff0000"), QStringLiteral("#ffff0000")}));
        QCOMPARE(panel.checked(), QStringLiteral("#ff0000"));
        QCOMPARE(panel.edit->text(), QStringLiteral("#ff0000"));
    }

    void typedDigits()
    {
        Panel panel;
        typeAnew(panel.edit, QStringLiteral("f"));
        QCOMPARE(panel.edit->text(), QStringLiteral("#f"));
        QTest::keyClicks(panel.edit, QStringLiteral("f5d0"));
        QCOMPARE(panel.edit->text(), QStringLiteral("#ff5d0"));
        QCOMPARE(panel.log(), QStringList());
        QTest::keyClicks(panel.edit, QStringLiteral("0"));
        QCOMPARE(panel.log(), QStringList({opaque(orange), opaque(orange)}));
        // Nothing goes behind the sixth digit.
        QTest::keyClicks(panel.edit, QStringLiteral("1"));
        QCOMPARE(panel.edit->text(), orange);
        QCOMPARE(panel.log(), QStringList());
        // An edit that is emptied stays so.
        panel.edit->setText(QStringLiteral("#"));
        QTest::keyClick(panel.edit, Qt::Key_Backspace);
        QCOMPARE(panel.edit->text(), QString());
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.currentColor(), OptionalColor(QColor(orange)));
    }

    void cursorStaysWhileTyping()
    {
        Panel panel;
        panel.edit->setText(QStringLiteral("ff500"));
        panel.edit->setCursorPosition(3);
        QTest::keyClicks(panel.edit, QStringLiteral("D"));
        QCOMPARE(panel.edit->text(), QStringLiteral("#ff5D00"));
        QCOMPARE(panel.edit->cursorPosition(), 5);
        QTest::keyClick(panel.edit, Qt::Key_Backspace);
        // The button's colour is written back in its own way.
        QTest::keyClicks(panel.edit, QStringLiteral("D"));
        QCOMPARE(panel.edit->text(), orange);
        QCOMPARE(panel.edit->cursorPosition(), 5);
    }

    void colorsThatAreTyped_data()
    {
        QTest::addColumn<bool>("adjustable");
        QTest::addColumn<OptionalColor>("before");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("reported");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("checked");

        const OptionalColor several;
        const OptionalColor red = QColor(255, 0, 0, 128);
        const QString own = QStringLiteral("#123456");
        QTest::newRow("of the palette")
            << true << several << orange << QStringList({half(orange), half(orange)}) << orange << orange;
        QTest::newRow("of the palette, opacity fixed")
            << false << several << orange << QStringList({opaque(orange), opaque(orange)}) << orange
            << orange;
        QTest::newRow("of the palette, in upper case")
            << true << several << orange.toUpper() << QStringList({half(orange), half(orange)}) << orange
            << orange;
        QTest::newRow("of the palette, checked already")
            << true << red << QStringLiteral("#FF0000") << QStringList{QStringLiteral("#80ff0000")}
            << QStringLiteral("#FF0000") << QStringLiteral("#ff0000");
        QTest::newRow("another") << true << several << own << QStringList{half(own)} << own << QString();
        QTest::newRow("another, opacity fixed")
            << false << several << own << QStringList{opaque(own)} << own << QString();
        QTest::newRow("another, with a button checked")
            << true << red << own << QStringList{half(own)} << own << QString();
        QTest::newRow("another, in upper case")
            << true << several << QStringLiteral("#ABCDEF") << QStringList{QStringLiteral("#80abcdef")}
            << QStringLiteral("#ABCDEF") << QString();
        QTest::newRow("another, over no colour")
            << true << OptionalColor(QColor()) << own << QStringList{half(own)} << own << QString();
        QTest::newRow("one of the user's own")
            << true << several << ownColors(1).constFirst()
            << QStringList({half(ownColors(1).constFirst()), half(ownColors(1).constFirst())})
            << ownColors(1).constFirst() << ownColors(1).constFirst();
    }

    void colorsThatAreTyped()
    {
        QFETCH(bool, adjustable);
        QFETCH(OptionalColor, before);
        QFETCH(QString, typed);
        QFETCH(QStringList, reported);
        QFETCH(QString, shown);
        QFETCH(QString, checked);
        m_record->value = ownColors(1);
        Panel panel(before == OptionalColor(QColor()));
        panel.slider->setDoubleValue(QColor(0, 0, 0, 128).alphaF());
        panel.setOpacityAdjustmentAvailable(adjustable);
        panel.setCurrentColor(before);
        panel.log();
        paste(panel.edit, typed);
        QCOMPARE(panel.log(), reported);
        QCOMPARE(panel.edit->text(), shown);
        QCOMPARE(panel.checked(), checked);
        QCOMPARE(faceState(panel), typed.toLower());
        QVERIFY(panel.group->exclusive());
        QCOMPARE(panel.slider->value(), 50);
    }

    void textThatIsNoColor_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* text : {"#", "#f", "#fff", "#ff000", "#gggggg", "#ff00000", "red", "#null",
                                 "#multiple", "ff00", "  ", "#ff 000", "#80ff0000"}) {
            QTest::newRow(text) << QString::fromLatin1(text);
        }
        QTest::newRow("empty") << QString();
        QTest::newRow("not of this alphabet") << QStringLiteral("#\u0661\u0661\u0661\u0661\u0661\u0661");
    }

    void textThatIsNoColor()
    {
        QFETCH(QString, text);
        Panel panel;
        panel.setCurrentColor(QColor(Qt::red));
        panel.log();
        // Past the validator, as a host's code may do.
        panel.edit->setText(text);
        Q_EMIT panel.edit->textEdited(text);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.currentColor(), OptionalColor(QColor(Qt::red)));
        QCOMPARE(panel.checked(), QStringLiteral("#ff0000"));
        const bool isMarked = text.isEmpty() || text.startsWith(QLatin1Char('#'));
        QCOMPARE(panel.edit->text(), isMarked ? text : QLatin1Char('#') + text);
    }

    void setCurrentColor_data()
    {
        QTest::addColumn<bool>("nullColorAllowed");
        QTest::addColumn<bool>("adjustable");
        QTest::addColumn<OptionalColor>("before");
        QTest::addColumn<OptionalColor>("color");
        QTest::addColumn<QStringList>("reported");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("checked");
        QTest::addColumn<int>("opacity");
        QTest::addColumn<QString>("current");

        const OptionalColor several;
        const OptionalColor none = QColor();
        const OptionalColor red = QColor(255, 0, 0);
        const OptionalColor halfRed = QColor(255, 0, 0, 128);
        const OptionalColor own = QColor(0x12, 0x34, 0x56);
        const OptionalColor halfOwn = QColor(0x12, 0x34, 0x56, 128);
        const QString r = QStringLiteral("#ff0000");
        const QString o = QStringLiteral("#123456");
        const QStringList nothing;

        QTest::newRow("palette colour")
            << false << true << several << red << QStringList{opaque(r)} << r << r << 100 << opaque(r);
        QTest::newRow("palette colour, opacity fixed")
            << false << false << several << red << QStringList{opaque(r)} << r << r << 100 << opaque(r);
        // First the slider, then the button.
        QTest::newRow("translucent palette colour")
            << false << true << several << halfRed << QStringList({half(r), half(r)}) << r << r << 50
            << half(r);
        QTest::newRow("translucent palette colour, opacity fixed")
            << false << false << several << halfRed << QStringList{opaque(r)} << r << r << 100 << opaque(r);
        QTest::newRow("checked palette colour with another alpha")
            << false << true << red << halfRed << QStringList{half(r)} << r << r << 50 << half(r);
        QTest::newRow("checked palette colour with another alpha, opacity fixed")
            << false << false << red << halfRed << nothing << r << r << 100 << half(r);
        QTest::newRow("from one palette colour to another")
            << false << true << halfRed << OptionalColor(QColor(orange))
            << QStringList({opaque(orange), opaque(orange)}) << orange << orange << 100 << opaque(orange);
        QTest::newRow("palette colour of another model")
            << false << true << several << OptionalColor(QColor::fromHsv(0, 255, 255))
            << QStringList{opaque(r)} << r << r << 100 << opaque(r);
        QTest::newRow("another colour")
            << false << true << several << own << nothing << o << QString() << 100 << opaque(o);
        QTest::newRow("another colour, translucent")
            << false << true << several << halfOwn << QStringList{half(o)} << o << QString() << 50 << half(o);
        QTest::newRow("another colour, translucent, opacity fixed")
            << false << false << several << halfOwn << nothing << o << QString() << 100 << half(o);
        QTest::newRow("another colour after a palette colour")
            << false << true << red << own << nothing << o << QString() << 100 << opaque(o);
        QTest::newRow("transparent black")
            << false << true << several << OptionalColor(QColor(0, 0, 0, 0))
            << QStringList({QStringLiteral("#00000000"), QStringLiteral("#00000000")})
            << QStringLiteral("#000000") << QStringLiteral("#000000") << 0 << QStringLiteral("#00000000");
        QTest::newRow("one of the user's own")
            << false << true << several << OptionalColor(QColor(ownColors(1).constFirst()))
            << QStringList{opaque(ownColors(1).constFirst())} << ownColors(1).constFirst()
            << ownColors(1).constFirst() << 100 << opaque(ownColors(1).constFirst());
        QTest::newRow("no colour, with its button")
            << true << true << halfRed << none << QStringList{QStringLiteral("none")}
            << QStringLiteral("#null") << QStringLiteral("transparent") << 50 << QStringLiteral("none");
        QTest::newRow("no colour, with its button, opacity fixed")
            << true << false << red << none << QStringList{QStringLiteral("none")} << QStringLiteral("#null")
            << QStringLiteral("transparent") << 100 << QStringLiteral("none");
        QTest::newRow("no colour, without a button")
            << false << true << halfRed << none << nothing << QStringLiteral("#null") << QString() << 50
            << QStringLiteral("none");
        QTest::newRow("several colours")
            << true << true << halfRed << several << nothing << QStringLiteral("#multiple") << QString() << 50
            << QStringLiteral("several");
        QTest::newRow("several colours after no colour")
            << true << false << none << several << nothing << QStringLiteral("#multiple") << QString() << 100
            << QStringLiteral("several");
    }

    void setCurrentColor()
    {
        QFETCH(bool, nullColorAllowed);
        QFETCH(bool, adjustable);
        QFETCH(OptionalColor, before);
        QFETCH(OptionalColor, color);
        QFETCH(QStringList, reported);
        QFETCH(QString, shown);
        QFETCH(QString, checked);
        QFETCH(int, opacity);
        QFETCH(QString, current);
        m_record->value = ownColors(1);
        Panel panel(nullColorAllowed);
        panel.setOpacityAdjustmentAvailable(adjustable);
        panel.setCurrentColor(before);
        panel.log();
        panel.setCurrentColor(color);
        QCOMPARE(panel.log(), reported);
        QCOMPARE(text(panel.currentColor()), current);
        QCOMPARE(panel.edit->text(), shown);
        QCOMPARE(panel.checked(), checked);
        QCOMPARE(panel.slider->value(), opacity);
        QCOMPARE(panel.spinBox->value(), opacity);
        QVERIFY(panel.group->exclusive());
        QString face = shown;
        if (!color || !color->isValid()) {
            face = color ? QStringLiteral("null transparent") : QStringLiteral("multi transparent");
        }
        QCOMPARE(faceState(panel), face);
    }

    void sameColorDoesNothing()
    {
        Panel panel(true);
        for (const OptionalColor& color :
             {OptionalColor(QColor(1, 2, 3, 4)), OptionalColor(QColor()), OptionalColor()}) {
            panel.setCurrentColor(color);
            panel.log();
            panel.edit->setText(QStringLiteral("#12"));
            panel.setCurrentColor(color);
            QCOMPARE(panel.log(), QStringList());
            QCOMPARE(panel.edit->text(), QStringLiteral("#12"));
        }
    }

    // The value that was set last wins, also when the slot comes between slider and button.
    void setCurrentColorFromASlot()
    {
        Panel panel;
        bool isFirst = true;
        connect(&panel, &ColorPickerWidget::colorChanged, this, [&panel, &isFirst] {
            if (isFirst) {
                isFirst = false;
                panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
            }
        });
        panel.setCurrentColor(QColor(255, 0, 0, 128));
        QCOMPARE(panel.log(), QStringList({QStringLiteral("#80ff0000"), QStringLiteral("#ff123456")}));
        QCOMPARE(panel.edit->text(), QStringLiteral("#123456"));
        QCOMPARE(panel.checked(), QString());
        QCOMPARE(panel.slider->value(), 100);
    }

    void severalColorsFromASlot()
    {
        Panel panel;
        bool isFirst = true;
        connect(&panel, &ColorPickerWidget::colorChanged, this, [&panel, &isFirst] {
            if (isFirst) {
                isFirst = false;
                panel.setCurrentColor(std::nullopt);
            }
        });
        panel.edit->setText(QStringLiteral("#ff5d0"));
        QTest::keyClick(panel.edit, Qt::Key_0);
        // The button's report, and none of the edit after it.
        QCOMPARE(panel.log(), QStringList{opaque(orange)});
        QCOMPARE(panel.currentColor(), OptionalColor());
        QCOMPARE(panel.edit->text(), QStringLiteral("#multiple"));
        QCOMPARE(panel.checked(), QString());
    }

    void opacityByTheUser_data()
    {
        QTest::addColumn<QString>("color");
        QTest::newRow("palette colour") << orange;
        QTest::newRow("another colour") << QStringLiteral("#123456");
    }

    void opacityByTheUser()
    {
        QFETCH(QString, color);
        Panel panel;
        panel.show();
        QApplication::setActiveWindow(&panel);
        panel.setCurrentColor(QColor(color));
        panel.log();
        panel.slider->setFocus();
        QTest::keyClick(panel.slider, Qt::Key_Left);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#fc") + color.mid(1)});
        QCOMPARE(panel.spinBox->value(), 99);
        QCOMPARE(panel.currentColor()->alphaF(), QColor::fromRgbF(0, 0, 0, 0.99).alphaF());
        QTest::keyClick(panel.slider, Qt::Key_Home);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#00") + color.mid(1)});
        panel.spinBox->setFocus();
        panel.spinBox->selectAll();
        QTest::keyClicks(panel.spinBox, QStringLiteral("50"));
        QCOMPARE(panel.log(), QStringList({QStringLiteral("#0d") + color.mid(1), half(color)}));
        QCOMPARE(panel.slider->doubleValue(), 0.5);
        // The face and the text are of the opaque colour.
        QCOMPARE(faceState(panel), color);
        QCOMPARE(panel.edit->text(), color);
        QTest::mousePress(panel.slider, Qt::LeftButton, {}, QPoint(0, panel.slider->height() / 2));
        QTest::mouseRelease(panel.slider, Qt::LeftButton, {}, QPoint(0, panel.slider->height() / 2));
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#00") + color.mid(1)});
    }

    void opacityOfNoColor()
    {
        Panel panel(true);
        panel.setCurrentColor(QColor());
        panel.log();
        panel.slider->setValue(30);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("none")});
        // It is no colour as any other, without an alpha of its own.
        QCOMPARE(panel.currentColor(), OptionalColor(QColor()));
        QCOMPARE(panel.edit->text(), QStringLiteral("#null"));
    }

    void opacityOfSeveralColors()
    {
        Panel panel;
        panel.slider->setValue(30);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.currentColor(), OptionalColor());
    }

    void emptiedOpacity_data()
    {
        QTest::addColumn<std::function<void(Panel*)>>("act");
        const auto row = [](const char* name, const std::function<void(Panel*)>& act) {
            QTest::newRow(name) << act;
        };
        row("loses the focus", [](Panel* panel) { panel->slider->setFocus(); });
        row("is hidden", [](Panel* panel) { panel->hide(); });
        row("the selector opens", [](Panel* panel) { panel->openSelector(); });
    }

    void emptiedOpacity()
    {
        QFETCH(std::function<void(Panel*)>, act);
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
        emptySpinBox(&panel);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.slider->value(), 100);
        act(&panel);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#00123456")});
        QCOMPARE(panel.slider->value(), 0);
        panel.hide();
    }

    void switchedOffOpacity()
    {
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56, 128));
        panel.log();
        panel.setOpacityAdjustmentAvailable(false);
        QVERIFY(!panel.opacityAdjustmentAvailable());
        QVERIFY(panel.part<OvFrame>("opacityPanel")->isHidden());
        panel.slider->setValue(10);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(text(panel.currentColor()), QStringLiteral("#80123456"));
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56, 200));
        QCOMPARE(panel.slider->value(), 10);
        QCOMPARE(panel.log(), QStringList());
    }

    void switchedOnOpacity()
    {
        Panel panel;
        panel.setOpacityAdjustmentAvailable(false);
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56, 128));
        QCOMPARE(panel.slider->value(), 100);
        panel.setOpacityAdjustmentAvailable(true);
        QVERIFY(!panel.part<OvFrame>("opacityPanel")->isHidden());
        QCOMPARE(panel.slider->value(), 50);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#80123456")});
        panel.setOpacityAdjustmentAvailable(true);
        QCOMPARE(panel.log(), QStringList());
        // Without a valid colour the slider stays.
        for (const OptionalColor& color : {OptionalColor(QColor()), OptionalColor()}) {
            panel.setOpacityAdjustmentAvailable(false);
            panel.setCurrentColor(color);
            panel.setOpacityAdjustmentAvailable(true);
            QCOMPARE(panel.slider->value(), 50);
            QCOMPARE(panel.log(), QStringList());
        }
    }

    void pipetteButton()
    {
        Panel panel;
        panel.show();
        const QStringList expected{QStringLiteral("pipette"), QStringLiteral("close")};
        QTest::mouseClick(panel.pipette, Qt::LeftButton);
        QCOMPARE(panel.log(), expected);
        QTest::keyClick(panel.pipette, Qt::Key_Space);
        QCOMPARE(panel.log(), expected);
        QVERIFY(panel.isVisible());
        // The host feeds the result back.
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
        QCOMPARE(panel.log(), QStringList());
    }

    void queueIsReadFromTheSettings_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<QStringList>("offered");
        const QString none = QStringLiteral("-");
        QTest::newRow("nothing") << QStringList() << padded({});
        QTest::newRow("one") << ownColors(1) << padded(ownColors(1));
        QTest::newRow("eight") << ownColors(8) << ownColors(8);
        QTest::newRow("nine") << ownColors(9) << ownColors(8);
        QTest::newRow("a thousand") << ownColors(1000) << ownColors(8);
        QTest::newRow("no colours") << QStringList{QStringLiteral("junk"), QString(), QStringLiteral("#12"),
                                                   QStringLiteral("rgb(1,2,3)")}
                                    << padded({});
        QTest::newRow("gaps keep their place")
            << QStringList{QStringLiteral("junk"), ownColors(1).constFirst(), QStringLiteral("junk")}
            << padded({none, ownColors(1).constFirst()});
        QTest::newRow("colours after the eighth entry stay out")
            << QStringList{none, none, none, none, none, none, none, none, ownColors(1).constFirst()}
            << padded({});
        QTest::newRow("in other words")
            << QStringList{QStringLiteral("steelblue"), QStringLiteral("#FA0"), QStringLiteral("#ABCDEF")}
            << padded({QStringLiteral("#4682b4"), QStringLiteral("#ffaa00"), QStringLiteral("#abcdef")});
        QTest::newRow("with alpha") << QStringList{QStringLiteral("#80123456"), QStringLiteral("transparent")}
                                    << padded({QStringLiteral("#123456"), QStringLiteral("#000000")});
    }

    void queueIsReadFromTheSettings()
    {
        QFETCH(QStringList, stored);
        QFETCH(QStringList, offered);
        m_record->value = stored;
        Panel panel;
        QCOMPARE(panel.queue(), offered);
        panel.show();
        QCOMPARE(panel.queue(), offered);
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(m_record->writes, 0);
    }

    void settingsThatAreNoList()
    {
        for (const QVariant& value :
             {QVariant(5), QVariant(QRect(1, 2, 3, 4)), QVariant(QByteArray(1000, '\0'))}) {
            m_record->value = value;
            const Panel panel;
            QCOMPARE(panel.queue(), padded({}));
        }
        m_record->value = QStringLiteral("#123456");
        const Panel panel;
        QCOMPARE(panel.queue(), padded({QStringLiteral("#123456")}));
        QCOMPARE(m_record->writes, 0);
    }

    void queueFollowsTheSettingsWhenShown()
    {
        m_record->value = ownColors(2);
        Panel panel;
        panel.show();
        QTest::mouseClick(panel.queueButton(0), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{opaque(ownColors(1).constFirst())});
        panel.hide();
        m_record->value = QStringList{QStringLiteral("#123456")} + ownColors(2);
        QCOMPARE(panel.queue(), padded(ownColors(2)));
        panel.show();
        QCOMPARE(panel.queue(), padded(QStringList{QStringLiteral("#123456")} + ownColors(2)));
        // The colour is at another button now.
        QCOMPARE(panel.checked(), ownColors(1).constFirst());
        QVERIFY(panel.queueButton(1)->isChecked());
        QCOMPARE(panel.log(), QStringList{opaque(ownColors(1).constFirst())});
        panel.hide();
        panel.show();
        QCOMPARE(panel.log(), QStringList());
    }

    void shorterListLeavesButtons()
    {
        m_record->value = ownColors(3);
        Panel panel;
        m_record->value = ownColors(1);
        panel.show();
        QCOMPARE(panel.queue(), padded(ownColors(3)));
        // They are not found by their colour any more, but give what they show.
        panel.setCurrentColor(QColor(ownColors(3).constLast()));
        QCOMPARE(panel.checked(), QString());
        QCOMPARE(panel.log(), QStringList());
        QTest::mouseClick(panel.queueButton(1), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{opaque(ownColors(2).constLast())});
    }

    void ownColorIsChosen()
    {
        m_record->value = QStringList{QStringLiteral("#80123456")};
        Panel panel;
        panel.slider->setValue(0);
        panel.show();
        QTest::mouseClick(panel.queueButton(0), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#00123456")});
        QCOMPARE(panel.edit->text(), QStringLiteral("#123456"));
        QTest::mouseClick(panel.queueButton(1), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList());
    }

    void ownColorThatIsInThePalette()
    {
        m_record->value = QStringList{QStringLiteral("#ff0000")};
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(Qt::red));
        QVERIFY(panel.queueButton(0)->isChecked());
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#ffff0000")});
        // The button of the palette goes on working.
        QTest::mouseClick(panel.paletteButton(1, 0), Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#ffff0000")});
        QVERIFY(panel.paletteButton(1, 0)->isChecked());
        panel.hide();
        panel.show();
        QVERIFY(panel.paletteButton(1, 0)->isChecked());
        QCOMPARE(panel.log(), QStringList());
        // And is found again when the own colour is gone.
        m_record->value = QStringList{QStringLiteral("#123456")};
        panel.hide();
        panel.show();
        panel.setCurrentColor(std::nullopt);
        panel.setCurrentColor(QColor(Qt::red));
        QVERIFY(panel.paletteButton(1, 0)->isChecked());
    }

    void ownColorTwice()
    {
        m_record->value = QStringList{QStringLiteral("#ABCDEF"), QStringLiteral("#abcdef")};
        Panel panel;
        panel.show();
        for (const int index : {0, 1, 0}) {
            QTest::mouseClick(panel.queueButton(index), Qt::LeftButton);
            QCOMPARE(panel.log(), QStringList{QStringLiteral("#ffabcdef")});
            QVERIFY(panel.queueButton(index)->isChecked());
        }
        panel.hide();
        panel.show();
        QVERIFY(panel.queueButton(0)->isChecked());
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(m_record->writes, 0);
    }

    void selector()
    {
        Panel panel;
        panel.show();
        panel.openSelector();
        QDialog* const selector = panel.selector();
        QCOMPARE(QByteArray(selector->metaObject()->className()), QByteArray("QDialog"));
        QCOMPARE(selector->parentWidget(), &panel);
        QCOMPARE(selector->windowType(), Qt::Popup);
        QCOMPARE(selector->property("roundedEdges"), QVariant(true));
        QVERIFY(selector->testAttribute(Qt::WA_TranslucentBackground));
        QCOMPARE(selector->layout()->contentsMargins(), QMargins());
        QCOMPARE(selector->layout()->spacing(), 0);
        const auto children = selector->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(children.size(), 1);
        QCOMPARE(QByteArray(children.front()->metaObject()->className()),
                 QByteArray("CustomColorSelectWidget"));
        QCOMPARE(selector->size(), children.front()->size());
        // There is something to see without any sheet.
        QCOMPARE(panel.plane()->size(), QSize(200, 160));
        QCOMPARE(panel.log(), QStringList());
        // It is made once.
        QTest::keyClick(selector, Qt::Key_Escape);
        panel.openSelector();
        QCOMPARE(panel.findChildren<QDialog*>(), QList<QDialog*>{selector});
        selector->close();
    }

    void selectorPlace()
    {
        Panel panel;
        const QPoint middle = panel.screen()->availableGeometry().center();
        panel.move(middle);
        panel.show();
        panel.openSelector();
        const QRect button(panel.addButton->mapToGlobal(QPoint()), panel.addButton->size());
        const QDialog* const selector = panel.selector();
        QCOMPARE(selector->x(), button.x() + button.width());
        QCOMPARE(selector->y() + selector->height(), button.y() + button.height());
        panel.selector()->close();
        // Each time anew, with the size that it needs then.
        panel.move(middle - QPoint(50, 30));
        panel.hueSlider()->setMinimumHeight(60);
        panel.openSelector();
        QCOMPARE(selector->x(), button.x() + button.width() - 50);
        QCOMPARE(selector->y() + selector->height(), button.y() + button.height() - 30);
        QCOMPARE(selector->size(), selector->sizeHint());
        panel.selector()->close();
    }

    void selectorStaysOnTheScreen()
    {
        Panel panel;
        const QRect area = panel.screen()->availableGeometry();
        panel.show();
        for (const QPoint& corner : {area.topLeft(), area.bottomRight()}) {
            panel.move(corner - panel.addButton->mapTo(&panel, panel.addButton->rect().center()));
            panel.openSelector();
            QVERIFY(area.contains(panel.selector()->geometry()));
            // It leaves the button to be seen, and clicked again.
            const QRect button(panel.addButton->mapToGlobal(QPoint()), panel.addButton->size());
            QVERIFY(!button.intersects(panel.selector()->geometry()));
            panel.selector()->close();
        }
    }

    void selectorBeginsAtTheColor_data()
    {
        QTest::addColumn<bool>("isAgain");
        QTest::addColumn<OptionalColor>("color");
        QTest::addColumn<int>("hue");
        QTest::addColumn<bool>("atTheRight");
        QTest::newRow("several") << false << OptionalColor() << 0 << false;
        QTest::newRow("none") << false << OptionalColor(QColor()) << 0 << false;
        QTest::newRow("blue") << false << OptionalColor(QColor(Qt::blue)) << 240 << true;
        QTest::newRow("blue, opened before") << true << OptionalColor(QColor(Qt::blue)) << 240 << true;
        QTest::newRow("translucent") << false << OptionalColor(QColor(0, 255, 0, 10)) << 120 << true;
    }

    void selectorBeginsAtTheColor()
    {
        QFETCH(bool, isAgain);
        QFETCH(OptionalColor, color);
        QFETCH(int, hue);
        QFETCH(bool, atTheRight);
        Panel panel;
        panel.show();
        if (isAgain) {
            panel.setCurrentColor(QColor(0, 255, 255));
            panel.openSelector();
            panel.selector()->close();
        }
        panel.setCurrentColor(color);
        panel.log();
        panel.openSelector();
        QTRY_COMPARE(panel.hueSlider()->value(), hue);
        QCoreApplication::processEvents();
        QCOMPARE(panel.log(), QStringList());
        QCOMPARE(panel.currentColor(), color);
        // A step to the inside shows where the marker is.

        QTest::keyClick(panel.plane(), atTheRight ? Qt::Key_Left : Qt::Key_Right);
        const QSize size = panel.plane()->size();
        const QPoint place = atTheRight ? QPoint(size.width() - 2, 0) : QPoint(1, size.height() - 1);
        QColor expected = panel.planeColor(hue, place);
        expected.setAlphaF(panel.slider->doubleValue());
        QCOMPARE(panel.log(), QStringList{text(expected)});
        panel.selector()->close();
    }

    void selectorKeepsTheHueOfAGrey()
    {
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(Qt::blue));
        panel.openSelector();
        const QPoint left(0, panel.plane()->height() / 2);
        panel.clickPlane(left);
        QCOMPARE(panel.currentColor()->hue(), -1);
        panel.selector()->close();
        panel.openSelector();
        QCoreApplication::processEvents();
        QCOMPARE(panel.hueSlider()->value(), 240);
        panel.selector()->close();
    }

    void colorFollowsTheSelector_data()
    {
        QTest::addColumn<bool>("adjustable");
        QTest::addColumn<bool>("fedBack");
        QTest::newRow("opacity adjustable") << true << false;
        QTest::newRow("opacity fixed") << false << false;
        QTest::newRow("fed back by the host") << true << true;
        QTest::newRow("opacity fixed, fed back by the host") << false << true;
    }

    void colorFollowsTheSelector()
    {
        QFETCH(bool, adjustable);
        QFETCH(bool, fedBack);
        Panel panel;
        panel.show();
        panel.setOpacityAdjustmentAvailable(adjustable);
        panel.slider->setValue(30);
        panel.setCurrentColor(QColor(0, 0, 255, 128));
        QCOMPARE(panel.slider->value(), adjustable ? 50 : 30);
        if (fedBack) {
            connect(&panel, &ColorPickerWidget::colorChanged, &panel, &ColorPickerWidget::setCurrentColor);
        }
        panel.openSelector();
        panel.log();
        const auto chosen = [&panel, adjustable](int hue, const QPoint& point) {
            QColor color = panel.planeColor(hue, point);
            color.setAlphaF(adjustable ? 0.5 : 1.0);
            return text(color);
        };
        const QString first = chosen(240, {50, 20});
        const QString second = chosen(240, {60, 30});
        const int slider = adjustable ? 50 : 30;

        panel.pressPlane({50, 20});
        QCOMPARE(panel.log(), QStringList{first});
        QCOMPARE(panel.edit->text(), QLatin1Char('#') + first.mid(3));
        QCOMPARE(faceState(panel), QLatin1Char('#') + first.mid(3));
        QCOMPARE(panel.checked(), QString());
        QCOMPARE(panel.slider->value(), slider);
        panel.dragOverPlane({60, 30});
        QCOMPARE(panel.log(), QStringList{second});
        panel.releasePlane({60, 30});
        QCOMPARE(panel.log(), QStringList{second});
        QCOMPARE(text(panel.currentColor()), second);

        panel.hueSlider()->setValue(0);
        const QString third = chosen(0, {60, 30});
        QCOMPARE(panel.log(), QStringList{third});
        panel.selector()->close();
        const QString added = QLatin1Char('#') + third.mid(3);
        QCOMPARE(Settings::userCustomColors(), QStringList{added});
        QCOMPARE(panel.queue(), padded({added}));
        QCOMPARE(panel.log(), QStringList{third});
    }

    void selectorMeetsAPaletteColor()
    {
        Panel panel(true);
        panel.show();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56, 128));
        panel.openSelector();
        panel.log();
        panel.hueSlider()->setValue(0);
        panel.log();
        // Pure red is in the corner, white in the other.
        panel.pressPlane({panel.plane()->width() - 1, 0});
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#80ff0000")});
        QCOMPARE(panel.checked(), QStringLiteral("#ff0000"));
        panel.releasePlane({panel.plane()->width() - 1, 0});
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#80ff0000")});
        panel.clickPlane({0, 0});
        QCOMPARE(panel.log(), QStringList({QStringLiteral("#80ffffff"), QStringLiteral("#80ffffff")}));
        QCOMPARE(panel.checked(), QStringLiteral("#ffffff"));
        panel.clickPlane({40, 40});
        QCOMPARE(panel.checked(), QString());
        QVERIFY(panel.group->exclusive());
        panel.selector()->close();
    }

    void selectorByKeyboard()
    {
        Panel panel;
        panel.show();
        QApplication::setActiveWindow(&panel);
        panel.setCurrentColor(QColor(Qt::blue));
        panel.log();
        panel.addButton->setFocus();
        QTest::keyClick(panel.addButton, Qt::Key_Space);
        QDialog* const selector = panel.selector();
        QVERIFY(selector && selector->isVisible());
        QVERIFY(QTest::qWaitForWindowExposed(selector));
        QCoreApplication::processEvents();
        QCOMPARE(selector->focusWidget(), panel.plane());
        QTest::keyClick(selector->windowHandle(), Qt::Key_Left);
        QCOMPARE(panel.log(), QStringList{text(panel.planeColor(240, {panel.plane()->width() - 2, 0}))});
        QTest::keyClick(selector->windowHandle(), Qt::Key_Tab);
        QCOMPARE(selector->focusWidget(), panel.hueSlider());
        QTest::keyClick(selector->windowHandle(), Qt::Key_Home);
        QCOMPARE(panel.log(), QStringList{text(panel.planeColor(0, {panel.plane()->width() - 2, 0}))});
        QTest::keyClick(selector->windowHandle(), Qt::Key_Escape);
        QVERIFY(!selector->isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), panel.addButton);
    }

    void closingAdds_data()
    {
        QTest::addColumn<QString>("way");
        for (const char* way : {"Escape", "Return", "Enter", "click elsewhere", "hiding the panel"}) {
            QTest::newRow(way) << QString::fromLatin1(way);
        }
    }

    void closingAdds()
    {
        QFETCH(QString, way);
        Panel panel;
        panel.show();
        QApplication::setActiveWindow(&panel);
        panel.edit->setFocus();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
        panel.openSelector();
        QWindow* const window = panel.selector()->windowHandle();
        QCOMPARE(panel.log(), QStringList());
        if (way == QStringLiteral("Escape")) {
            QTest::keyClick(window, Qt::Key_Escape);
        } else if (way == QStringLiteral("Return")) {
            QTest::keyClick(window, Qt::Key_Return);
        } else if (way == QStringLiteral("Enter")) {
            QTest::keyClick(window, Qt::Key_Enter, Qt::KeypadModifier);
        } else if (way == QStringLiteral("click elsewhere")) {
            QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(-3, -3));
        } else {
            panel.hide();
        }
        QVERIFY(!panel.selector()->isVisible());
        QCOMPARE(panel.isVisible(), way != QStringLiteral("hiding the panel"));
        QCOMPARE(panel.currentColor(), OptionalColor(QColor(0x12, 0x34, 0x56)));
        QCOMPARE(Settings::userCustomColors(), QStringList{QStringLiteral("#123456")});
        if (panel.isVisible()) {
            QCOMPARE(QApplication::focusWidget(), panel.addButton);
        } else {
            // A panel that is hidden may be about to go: it has nothing to say before it is seen again.
            QCOMPARE(panel.log(), QStringList());
            panel.show();
        }
        QCOMPARE(panel.queue(), padded({QStringLiteral("#123456")}));
        QVERIFY(panel.queueButton(0)->isChecked());
        QCOMPARE(panel.log(), QStringList{QStringLiteral("#ff123456")});
    }

    void closingWith_data()
    {
        QTest::addColumn<QStringList>("stored");
        QTest::addColumn<bool>("adjustable");
        QTest::addColumn<OptionalColor>("color");
        QTest::addColumn<QStringList>("reported");
        QTest::addColumn<QStringList>("queue");
        const QStringList stored = ownColors(3);
        const auto addsNothing = [&stored](const char* name, const OptionalColor& color) {
            QTest::newRow(name) << stored << true << color << QStringList() << stored;
        };
        addsNothing("several colours", {});
        addsNothing("no colour", QColor());
        addsNothing("a palette colour", QColor(Qt::red));
        addsNothing("a translucent palette colour", QColor(255, 0, 0, 5));
        addsNothing("a colour that is there", QColor(stored.first()));
        const QString own = QStringLiteral("#123456");
        const QStringList added = QStringList{own} + stored;
        QTest::newRow("a translucent colour")
            << stored << true << OptionalColor(QColor(0x12, 0x34, 0x56, 128)) << QStringList{half(own)}
            << added;
        QTest::newRow("a translucent colour, opacity fixed")
            << stored << false << OptionalColor(QColor(0x12, 0x34, 0x56, 128)) << QStringList{opaque(own)}
            << added;
        // Stored by somebody else, which makes two entries of one colour.
        const QString upperCase = QStringLiteral("#ABCDEF");
        QTest::newRow("a colour that is there in upper case")
            << ownColors(7) + QStringList{upperCase} << true << OptionalColor(QColor(upperCase))
            << QStringList() << QStringList{upperCase.toLower()} + ownColors(7);
    }

    void closingWith()
    {
        QFETCH(QStringList, stored);
        QFETCH(bool, adjustable);
        QFETCH(OptionalColor, color);
        QFETCH(QStringList, reported);
        QFETCH(QStringList, queue);
        m_record->value = stored;
        Panel panel;
        panel.setOpacityAdjustmentAvailable(adjustable);
        panel.show();
        panel.setCurrentColor(color);
        panel.openSelector();
        panel.log();
        panel.selector()->close();
        QCOMPARE(panel.log(), reported);
        QCOMPARE(m_record->writes, queue == stored ? 0 : 1);
        QCOMPARE(Settings::userCustomColors(), queue);
        QCOMPARE(panel.queue(), padded(queue));
        QVERIFY(queue == stored || panel.queueButton(0)->isChecked());
    }

    void escapeLeavesTheHostOpen()
    {
        for (const Qt::WindowType type : {Qt::Popup, Qt::Dialog}) {
            QDialog host(nullptr, type);
            QSignalSpy finished(&host, &QDialog::finished);
            auto* layout = new QVBoxLayout(&host);
            auto* panel = new Panel;
            layout->addWidget(panel);
            host.show();
            QVERIFY(QTest::qWaitForWindowExposed(&host));
            panel->openSelector();
            QTest::keyClick(panel->selector()->windowHandle(), Qt::Key_Escape);
            QVERIFY(!panel->selector()->isVisible());
            QVERIFY(host.isVisible());
            QCOMPARE(finished.count(), 0);
            QTRY_COMPARE(host.focusWidget(), panel->addButton);
            QTest::keyClick(host.windowHandle(), Qt::Key_Escape);
            QVERIFY(!host.isVisible());
        }
    }

    void ninthColor()
    {
        m_record->value = ownColors(8);
        Panel panel;
        panel.show();
        QToolButton* const last = panel.queueButton(7);
        const QStringList added = {QStringLiteral("#123456"), QStringLiteral("#654321")};
        QStringList expected = ownColors(8);
        for (const QString& color : added) {
            QToolButton* const reused = panel.queueButton(7);
            const QString dropped = expected.takeLast();
            expected.prepend(color);
            panel.setCurrentColor(QColor(color));
            panel.log();
            panel.openSelector();
            panel.selector()->close();
            QCOMPARE(panel.queue(), expected);
            QCOMPARE(Settings::userCustomColors(), expected);
            QCOMPARE(panel.queueButton(0), reused);
            QCOMPARE(panel.log(), QStringList{opaque(color)});
            QCOMPARE(panel.checked(), color);
            // Its old colour is gone.
            panel.setCurrentColor(QColor(dropped));
            QCOMPARE(panel.checked(), QString());
            QCOMPARE(panel.log(), QStringList());
        }
        QCOMPARE(panel.queueButton(1), last);
        panel.hide();
        panel.show();
        QCOMPARE(panel.queue(), expected);
        // Tab and arrow keys go by what is seen.
        QWidget* next = panel.addButton;
        for (int i = 0; i < 8; ++i) {
            next = next->nextInFocusChain();
            QCOMPARE(next, panel.queueButton(i));
        }
    }

    void unwritableSettings()
    {
        m_record->value = ownColors(8);
        m_record->isWritable = false;
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
        panel.openSelector();
        panel.selector()->close();
        const QStringList expected = QStringList{QStringLiteral("#123456")} + ownColors(7);
        QCOMPARE(panel.queue(), expected);
        QCOMPARE(m_record->value.toStringList(), ownColors(8));
        // Kept until the end of the program, for the next panel too.
        QCOMPARE(Panel().queue(), expected);
    }

    void twoPanels()
    {
        Panel one;
        Panel other;
        one.show();
        other.show();
        const auto add = [](Panel& panel, const QColor& color) {
            panel.setCurrentColor(color);
            panel.openSelector();
            panel.selector()->close();
        };
        const QString first = QStringLiteral("#111213");
        const QString second = QStringLiteral("#212223");
        add(one, QColor(first));
        QCOMPARE(other.queue(), padded({}));
        add(other, QColor(second));
        QCOMPARE(Settings::userCustomColors(), QStringList({second, first}));
        QCOMPARE(one.queue(), padded({first}));
        QCOMPARE(other.queue(), padded({second}));
        // The same colour at the other one is no second entry.
        add(other, QColor(first));
        QCOMPARE(Settings::userCustomColors(), QStringList({second, first}));
        one.log();
        other.log();
        one.hide();
        one.show();
        other.hide();
        other.show();
        QCOMPARE(one.queue(), padded({second, first}));
        QCOMPARE(other.queue(), padded({second, first}));
        QCOMPARE(one.checked(), first);
        QCOMPARE(one.log(), QStringList{opaque(first)});
        QCOMPARE(other.log(), QStringList{opaque(first)});
    }

    void deletedByASlot_data()
    {
        using Action = std::function<void(Panel*)>;
        QTest::addColumn<Action>("prepare");
        QTest::addColumn<Action>("act");
        QTest::addColumn<int>("signal"); // which of those that come
        // A parent hides the panel before it deletes it, and the panel reports what the user has left
        // unfinished.
        QTest::addColumn<int>("moreFromTheParent");
        const auto row = [](const char* name, const Action& prepare, const Action& act, int signal = 1,
                            int moreFromTheParent = 0) {
            QTest::newRow(name) << prepare << act << signal << moreFromTheParent;
        };
        const Action nothing = [](Panel*) {};
        const Action setOwn = [](Panel* panel) { panel->setCurrentColor(QColor(0x12, 0x34, 0x56)); };
        const Action open = [](Panel* panel) {
            panel->setCurrentColor(QColor(0x12, 0x34, 0x56));
            panel->openSelector();
        };
        const auto click = [](auto part) -> Action {
            return [part](Panel* panel) { QTest::mouseClick(part(panel), Qt::LeftButton); };
        };
        const auto clickAtTheLeft = [](auto part) -> Action {
            return [part](Panel* panel) {
                QWidget* const widget = part(panel);
                QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(1, widget->height() / 2));
            };
        };
        const auto key = [](auto part, Qt::Key code) -> Action {
            return [part, code](Panel* panel) { QTest::keyClick(part(panel), code); };
        };
        const auto closeBy = [](Qt::Key code) -> Action {
            return [code](Panel* panel) { QTest::keyPress(panel->selector()->windowHandle(), code); };
        };
        const auto textOf = [](const char* text) -> Action {
            return [text](Panel* panel) { panel->edit->setText(QString::fromLatin1(text)); };
        };
        const auto paletteButton = [](Panel* panel) { return panel->paletteButton(1, 1); };
        const auto edit = [](Panel* panel) { return panel->edit; };
        const auto slider = [](Panel* panel) { return panel->slider; };
        const auto spinBox = [](Panel* panel) { return panel->spinBox; };
        const auto pipette = [](Panel* panel) { return panel->pipette; };
        const auto hueSlider = [](Panel* panel) { return panel->hueSlider(); };
        const Action setRed = [](Panel* panel) { panel->setCurrentColor(QColor(Qt::red)); };
        const Action setHalfRed = [](Panel* panel) { panel->setCurrentColor(QColor(255, 0, 0, 128)); };
        const Action emptyBox = [setOwn](Panel* panel) {
            setOwn(panel);
            emptySpinBox(panel);
        };
        const Action pressed = [open](Panel* panel) {
            open(panel);
            panel->pressPlane({40, 40});
        };
        row("click in the palette", nothing, click(paletteButton));
        row("click in the palette, another was checked", setRed, click(paletteButton));
        row("click in the palette, the opacity box is empty", emptyBox, click(paletteButton), 1, 1);
        row("add button, the opacity box is empty", emptyBox,
            click([](Panel* panel) { return panel->addButton; }));
        row("empty opacity box left by Tab", emptyBox, key(spinBox, Qt::Key_Tab));
        row("palette by space", nothing, key(paletteButton, Qt::Key_Space));
        const Action focusRed = [setRed](Panel* panel) {
            QApplication::setActiveWindow(panel->window());
            setRed(panel);
            panel->paletteButton(1, 0)->setFocus();
        };
        row("palette by arrow key", focusRed,
            key([](Panel* panel) { return panel->paletteButton(1, 0); }, Qt::Key_Right));
        row("typed, reported by the button", textOf("#ff5d0"), key(edit, Qt::Key_0));
        row("typed, reported by the edit", textOf("#ff5d0"), key(edit, Qt::Key_0), 2);
        row("typed, of no button", textOf("#12345"), key(edit, Qt::Key_6));
        row("pasted", nothing, [](Panel* panel) { paste(panel->edit, QStringLiteral("#123456")); });
        row("opacity slider by key", setOwn, key(slider, Qt::Key_Left));
        row("opacity slider by mouse", setOwn, clickAtTheLeft(slider));
        const Action selectBox = [setOwn](Panel* panel) {
            setOwn(panel);
            panel->spinBox->selectAll();
        };
        row("opacity spin box", selectBox, key(spinBox, Qt::Key_5));
        row("opacity spin box by arrow key", setOwn, key(spinBox, Qt::Key_Down));
        row("setCurrentColor, reported by the slider", nothing, setHalfRed);
        row("setCurrentColor, reported by the button", nothing, setHalfRed, 2);
        const Action fixOpacity = [](Panel* panel) {
            panel->setOpacityAdjustmentAvailable(false);
            panel->setCurrentColor(QColor(0x12, 0x34, 0x56, 128));
        };
        row("setOpacityAdjustmentAvailable", fixOpacity,
            [](Panel* panel) { panel->setOpacityAdjustmentAvailable(true); });
        row("pipette", nothing, click(pipette));
        row("pipette by space", nothing, key(pipette, Qt::Key_Space));
        row("close", nothing, click(pipette), 2);
        row("pressed in the selector", open, [](Panel* panel) { panel->pressPlane({40, 40}); });
        row("dragged in the selector", pressed, [](Panel* panel) { panel->dragOverPlane({60, 30}); });
        row("released in the selector", pressed, [](Panel* panel) { panel->releasePlane({40, 40}); });
        row("hue by key", open, key(hueSlider, Qt::Key_Home));
        row("hue by mouse", open, clickAtTheLeft(hueSlider));
        row("added by Escape", open, closeBy(Qt::Key_Escape));
        row("added by Return", open, closeBy(Qt::Key_Return));
        row("added by a click elsewhere", open, [](Panel* panel) {
            QTest::mouseClick(panel->selector()->windowHandle(), Qt::LeftButton, {}, QPoint(-3, -3));
        });
    }

    void deletedByASlot()
    {
        using Action = std::function<void(Panel*)>;
        QFETCH(Action, prepare);
        QFETCH(Action, act);
        QFETCH(int, signal);
        QFETCH(int, moreFromTheParent);
        for (const Deletion deletion : allDeletions) {
            for (const bool isParentDeleted : {false, true}) {
                m_record->value.clear();
                const int before = QApplication::allWidgets().size();
                QPointer<QWidget> host = new QWidget;
                auto* layout = new QVBoxLayout(host);
                QPointer<Panel> panel = new Panel(false, host);
                layout->addWidget(panel);
                host->show();
                QVERIFY(QTest::qWaitForWindowExposed(host));
                prepare(panel);
                int signals = 0;
                const auto slot = [&] {
                    if (++signals == signal) {
                        destroy(isParentDeleted ? host.data() : panel.data(), deletion);
                    }
                };
                connect(panel.data(), &ColorPickerWidget::colorChanged, this, slot);
                connect(panel.data(), &ColorPickerWidget::pipetteRequested, this, slot);
                connect(panel.data(), &ColorPickerWidget::closeRequested, this, slot);
                {
                    // Qt is not compiled for the sanitizer: what it goes on to read is a pattern that leads
                    // nowhere.
                    const FreedMemoryWatch memory;
                    act(panel);
                    QVERIFY(!panel);
                    QCOMPARE(signals, signal + (isParentDeleted ? moreFromTheParent : 0));
                    QTRY_COMPARE(QApplication::allWidgets().size(), before + (host ? 1 : 0));
                    QVERIFY(memory.deleted() > 0);
                    QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
                }
                delete host;
            }
        }
    }

    void selectorDeletedByASlot()
    {
        Panel panel;
        panel.show();
        panel.setCurrentColor(QColor(0x12, 0x34, 0x56));
        connect(&panel, &ColorPickerWidget::colorChanged, this, [&panel] { delete panel.selector(); });
        panel.openSelector();
        panel.pressPlane({40, 40});
        QVERIFY(!panel.selector());
        // The next one begins at the colour.
        panel.openSelector();
        panel.pressPlane({50, 40});
        QVERIFY(!panel.selector());
        QVERIFY(panel.currentColor().has_value());
    }

    void deletedAsTheFocusLeaves_data()
    {
        QTest::addColumn<bool>("isOpen");
        QTest::newRow("for the selector") << false;
        QTest::newRow("from the selector") << true;
    }

    void deletedAsTheFocusLeaves()
    {
        QFETCH(bool, isOpen);
        const int before = QApplication::allWidgets().size();
        QPointer<Panel> panel = new Panel;
        panel->show();
        QVERIFY(QTest::qWaitForWindowActive(panel));
        panel->setCurrentColor(QColor(0x12, 0x34, 0x56));
        panel->edit->setFocus();
        if (isOpen) {
            panel->openSelector();
        }
        bool isFirst = true;
        const OnEvent watch(QEvent::FocusOut, panel->edit, [&] {
            if (!std::exchange(isFirst, false)) {
                return;
            }
            QEventLoop loop;
            QTimer::singleShot(0, &loop, [&] {
                delete panel;
                loop.quit();
            });
            loop.exec();
        });
        {
            const FreedMemoryWatch memory;
            if (isOpen) {
                QTest::keyClick(panel->selector(), Qt::Key_Return);
            } else {
                panel->addButton->click();
            }
            QVERIFY(!panel);
            QTRY_COMPARE(QApplication::allWidgets().size(), before);
            QVERIFY(memory.deleted() > 0);
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QVERIFY(!QApplication::activePopupWidget());
    }

    void deletedWithAnEmptySpinBox()
    {
        auto panel = std::make_unique<Panel>();
        panel->show();
        panel->setCurrentColor(QColor(0x12, 0x34, 0x56));
        emptySpinBox(panel.get());
        QSignalSpy spy(panel.get(), &ColorPickerWidget::colorChanged);
        const FreedMemoryWatch memory;
        panel.reset();
        QCOMPARE(spy.count(), 0);
        QVERIFY(memory.deleted() > 0);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
    }

    void deletedWhileTheSelectorIsOpen_data()
    {
        QTest::addColumn<bool>("turn");
        QTest::newRow("at once") << false;
        QTest::newRow("after a turn of the event loop") << true;
    }

    void deletedWhileTheSelectorIsOpen()
    {
        QFETCH(bool, turn);
        const int before = QApplication::allWidgets().size();
        auto panel = std::make_unique<Panel>();
        panel->show();
        panel->setCurrentColor(QColor(0x12, 0x34, 0x56));
        QTest::mouseClick(panel->addButton, Qt::LeftButton);
        if (turn) {
            QCoreApplication::processEvents();
        }
        QSignalSpy spy(panel.get(), &ColorPickerWidget::colorChanged);
        panel.reset();
        QCOMPARE(spy.count(), 0);
        QCOMPARE(m_record->writes, 0);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::allWidgets().size(), before);
    }

    void deletedDuringADrag()
    {
        auto panel = std::make_unique<Panel>();
        panel->show();
        panel->setCurrentColor(QColor(0x12, 0x34, 0x56));
        panel->openSelector();
        panel->pressPlane({40, 40});
        QCOMPARE(QWidget::mouseGrabber(), panel->plane());
        panel.reset();
        QVERIFY(!QWidget::mouseGrabber());
        QCOMPARE(m_record->writes, 0);
    }

    void disabledPanel()
    {
        Panel panel;
        panel.setCurrentColor(QColor(Qt::red));
        panel.setEnabled(false);
        panel.show();
        panel.log();
        QTest::mouseClick(panel.paletteButton(1, 1), Qt::LeftButton);
        QTest::mouseClick(panel.pipette, Qt::LeftButton);
        QTest::mouseClick(panel.addButton, Qt::LeftButton);
        QCOMPARE(panel.log(), QStringList());
        QVERIFY(!panel.selector());
        // The host may go on setting colours.
        panel.setCurrentColor(QColor(orange));
        QCOMPARE(panel.log(), QStringList{opaque(orange)});
        QCOMPARE(panel.edit->text(), orange);
        // Own colours that are missing stay disabled when the panel is enabled.
        panel.setEnabled(true);
        QCOMPARE(panel.queue(), padded({}));
    }

    void rightToLeft()
    {
        m_record->value = ownColors(2);
        Panel panel;
        panel.setLayoutDirection(Qt::RightToLeft);
        panel.move(panel.screen()->availableGeometry().center() - QPoint(300, 0));
        panel.show();
        QVERIFY(panel.paletteButton(0, 0)->x() > panel.paletteButton(0, 8)->x());
        QVERIFY(panel.queueButton(0)->x() > panel.queueButton(1)->x());
        panel.openSelector();
        const QPoint corner = panel.addButton->mapToGlobal(QPoint(panel.addButton->width(), 0));
        QCOMPARE(panel.selector()->x(), corner.x());
        panel.selector()->close();
    }

private:
    std::shared_ptr<Record> m_record;
};

UIC_TEST_MAIN(tst_ColorPickerWidget)
#include "tst_ColorPickerWidget.moc"
