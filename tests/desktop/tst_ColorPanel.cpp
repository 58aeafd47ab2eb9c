#include "PipetteWindows.h"
#include "RealInput.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/PopupColorPicker.h>

#include <gallery/GalleryApplication.h>
#include <gallery/StyleController.h>

/**
 * A user in front of the colour panel: by itself in a window, and as the pop-up of a colour field.
 */
class tst_ColorPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GalleryApplication::prepare();
        QVERIFY(StyleController().setStyle(QStringLiteral("dark")));
    }

    void init()
    {
        Settings::setUserCustomColors({});
        m_window = std::make_unique<QWidget>();
        auto* layout = new QHBoxLayout(m_window.get());
        layout->setContentsMargins(20, 20, 20, 20);
        m_panel = new ColorPickerWidget(m_window.get(), true);
        m_field = new ColorPickerButton(m_window.get());
        m_picker = new PopupColorPicker;
        m_field->setPicker(m_picker);
        m_field->setColor(QColor(Qt::red));
        layout->addWidget(m_panel, 0, Qt::AlignTop);
        layout->addStretch();
        layout->addWidget(m_field, 0, Qt::AlignTop);
        m_window->setGeometry(300, 200, 520, 380);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        m_reported = std::make_unique<QSignalSpy>(m_panel, &ColorPickerWidget::colorChanged);
        QTRY_COMPARE(centerOf(m_field), QColor(Qt::red));
        QTRY_VERIFY(isPanelOnScreen());
    }

    void cleanup()
    {
        m_reported.reset();
        m_window.reset();
    }

    void everyPaletteColorIsChosenByAClick()
    {
        const auto* edit = child<QLineEdit>("currentColorValueEdit");
        const auto* preview = child<QLabel>("currentColorDisplayLabel");
        const QList<QToolButton*> faces = facesOf("colorMatrixPanel");
        QCOMPARE(faces.size(), 72);
        for (QToolButton* face : faces) {
            const QColor shown = centerOf(face);
            m_reported->clear();
            QVERIFY(RealInput::click(face));
            QTRY_COMPARE(m_reported->count(), 1);
            QVERIFY(face->isChecked());
            if (face == faces.first()) {
                QVERIFY(!lastReported().isValid());
                QCOMPARE(edit->text(), QStringLiteral("#null"));
                continue;
            }
            QCOMPARE(lastReported().name(), shown.name());
            QCOMPARE(edit->text(), shown.name());
            QTRY_COMPARE(centerOf(preview), shown);
        }
        // The choice is marked by a ring at the outermost pixels, of the colour of strong text or of the
        // focus.
        QToolButton* const chosen = faces.at(40);
        QVERIFY(RealInput::click(chosen));
        QTRY_VERIFY(chosen->isChecked());
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        const QPoint onRing(1, chosen->height() / 2);
        QTRY_COMPARE(RealInput::pixel(chosen, onRing), QColor(0xf4, 0xf4, 0xf4));
        QVERIFY(RealInput::pixel(faces.at(41), onRing) != QColor(0xf4, 0xf4, 0xf4));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("colour-panel")));
    }

    void hexValueIsTyped()
    {
        auto* edit = child<QLineEdit>("currentColorValueEdit");
        QVERIFY(RealInput::clickInto(edit));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("12ab34")));
        QTRY_COMPARE(edit->text(), QStringLiteral("#12ab34"));
        QTRY_COMPARE(m_reported->count(), 1);
        QCOMPARE(lastReported(), QColor(0x12, 0xab, 0x34));
        QTRY_COMPARE(centerOf(child<QLabel>("currentColorDisplayLabel")), QColor(0x12, 0xab, 0x34));

        // A colour of the palette is reported by its button and by the edit; more digits are not taken.
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("#ffc0001")));
        QTRY_COMPARE(m_reported->count(), 3);
        QCOMPARE(edit->text(), QStringLiteral("#ffc000"));
        QCOMPARE(lastReported(), QColor(0xff, 0xc0, 0x00));
        QVERIFY(facesOf("colorMatrixPanel").at(9 + 2)->isChecked());
    }

    void opacityIsDraggedAndTyped()
    {
        QVERIFY(RealInput::click(facesOf("colorMatrixPanel").at(20)));
        QTRY_COMPARE(m_reported->count(), 1);
        auto* slider = child<QSlider>("opacitySlider");
        auto* box = child<QSpinBox>("opacitySpinbox");
        const int y = slider->height() / 2;
        QVERIFY(RealInput::drag(slider, QPoint(slider->width() - 7, y), QPoint(slider->width() * 2 / 5, y)));
        QTRY_VERIFY(!slider->isSliderDown());
        QVERIFY2(qAbs(slider->value() - 40) <= 5, qPrintable(QString::number(slider->value())));
        QCOMPARE(box->value(), slider->value());
        QVERIFY(m_reported->count() > 2);
        QCOMPARE(lastReported().alpha(), qRound(slider->value() * 2.55));

        // All but the suffix is selected, as a user leaves it.
        m_reported->clear();
        auto* edit = box->findChild<QLineEdit*>();
        QVERIFY(RealInput::clickInto(edit));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("25\n")));
        QTRY_COMPARE(slider->value(), 25);
        QCOMPARE(lastReported().alphaF(), QColor::fromRgbF(0, 0, 0, 0.25).alphaF());
        QCOMPARE(lastReported().name(), nameOf(facesOf("colorMatrixPanel").at(20)));
    }

    void ownColorIsAdded()
    {
        QVERIFY(openSelector());
        const auto* add = child<QToolButton>("addCustomColorButton");
        const QPoint corner = add->mapToGlobal(QPoint(add->width(), add->height()));
        QCOMPARE(selector()->geometry().left(), corner.x());
        QCOMPARE(selector()->geometry().bottom() + 1, corner.y());

        // What is under the mouse is reported, shown in the preview and becomes the own colour.
        const auto* plane = selector()->findChild<QWidget*>(QStringLiteral("colorPlane"));
        QVERIFY(RealInput::click(plane, QPoint(plane->width() / 3, plane->height() / 4)));
        QTRY_VERIFY(m_reported->count() >= 2);
        const QColor chosen = lastReported();
        QVERIFY(chosen.isValid());
        QTRY_COMPARE(centerOf(child<QLabel>("currentColorDisplayLabel")), chosen);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("colour-panel-selector")));

        QVERIFY(clickElsewhere());
        QTRY_VERIFY(!selector());
        QCOMPARE(Settings::userCustomColors(), QStringList{chosen.name()});
        QTRY_VERIFY(ownColor(0)->isChecked());
        QTRY_COMPARE(centerOf(ownColor(0)), chosen);
        QVERIFY(add->hasFocus());

        // A click brings it back.
        QVERIFY(RealInput::click(facesOf("colorMatrixPanel").at(1)));
        QTRY_COMPARE(lastReported(), QColor(Qt::white));
        QVERIFY(RealInput::click(ownColor(0)));
        QTRY_COMPARE(lastReported(), chosen);
    }

    void escapeClosesTheSelector()
    {
        m_panel->setCurrentColor(QColor(0x12, 0xab, 0x34));
        QVERIFY(openSelector());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!selector());
        QVERIFY(m_window->isVisible());
        QTRY_VERIFY(child<QToolButton>("addCustomColorButton")->hasFocus());
        // From there it opens again.
        QVERIFY(RealInput::key(QStringLiteral("space")));
        QTRY_VERIFY(selector());
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_VERIFY(!selector());
        QCOMPARE(Settings::userCustomColors(), QStringList{QStringLiteral("#12ab34")});
    }

    void selectorStaysOnItsScreen_data()
    {
        QTest::addColumn<Qt::Alignment>("corner");
        QTest::newRow("top left") << Qt::Alignment(Qt::AlignTop | Qt::AlignLeft);
        QTest::newRow("bottom right") << Qt::Alignment(Qt::AlignBottom | Qt::AlignRight);
    }

    void selectorStaysOnItsScreen()
    {
        QFETCH(Qt::Alignment, corner);
        const QRect screen = m_window->screen()->availableGeometry();
        m_window->resize(300, 380);
        // Partly outside, where a user can drag it.
        const QPoint place = corner.testFlag(Qt::AlignTop)
                                 ? screen.topLeft() - QPoint(0, 200)
                                 : screen.bottomRight() - QPoint(m_window->width(), m_window->height() - 60);
        m_window->move(place);
        // Qt has the new place at once, then perhaps the old one with the new size; the screen has it when
        // the window manager has moved the window.
        QTRY_VERIFY(m_window->pos() == place && isPanelOnScreen());
        QVERIFY(openSelector());
        QVERIFY2(screen.contains(selector()->geometry()),
                 qPrintable(QStringLiteral("%1 %2").arg(selector()->x()).arg(selector()->y())));
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!selector());
    }

    void dragLeavesTheWindow_data()
    {
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<QColor>("expected");
        QTest::newRow("above, to the left") << QPoint(-400, -300) << QColor(Qt::white);
        QTest::newRow("above, to the right") << QPoint(350, -300) << QColor(Qt::red);
        QTest::newRow("below") << QPoint(0, 250) << QColor(Qt::black);
    }

    void dragLeavesTheWindow()
    {
        QFETCH(QPoint, way);
        QFETCH(QColor, expected);
        QVERIFY(openSelector());
        const auto* plane = selector()->findChild<QWidget*>(QStringLiteral("colorPlane"));
        QTRY_COMPARE(RealInput::pixel(plane, QPoint(plane->width() - 1, 0)), QColor(Qt::red));
        const QPoint start = plane->rect().center();
        QVERIFY(RealInput::drag(plane, start, start + way));
        QTRY_VERIFY(!QWidget::mouseGrabber());
        QCOMPARE(lastReported(), expected);
        QVERIFY(selector());
        // The drag is over: the mouse moves nothing any more.
        const int count = m_reported->count();
        QVERIFY(RealInput::moveTo(plane, start));
        QVERIFY(RealInput::moveTo(plane, start + QPoint(10, 10)));
        QCOMPARE(m_reported->count(), count);
    }

    void fieldOpensThePanel()
    {
        QSignalSpy changed(m_field, &ColorPickerButton::colorChanged);
        QVERIFY(openField());
        const QWidget* const popup = m_panel->window();
        QCOMPARE(popup->pos(), m_field->mapToGlobal(QPoint(0, m_field->height() + 6)));
        QVERIFY(m_field->isDown());
        QVERIFY(facesOf("colorMatrixPanel").at(9)->isChecked());

        // The field follows while the pop-up is open, and nothing else in the window.
        const QList<QToolButton*> faces = facesOf("colorMatrixPanel");
        const QColor shown = centerOf(faces.at(30));
        QVERIFY(RealInput::click(faces.at(30)));
        QTRY_COMPARE(centerOf(m_field), shown);
        QCOMPARE(changed.count(), 1);
        QVERIFY(popup->isVisible());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("colour-field-panel")));

        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_VERIFY(!popup->isVisible());
        QTRY_VERIFY(!m_field->isDown());
        QVERIFY(m_window->isActiveWindow());
        QCOMPARE(m_field->color()->name(), shown.name());
        QCOMPARE(changed.count(), 1);

        // And again, with the colour that it has now.
        QVERIFY(openField());
        QVERIFY(facesOf("colorMatrixPanel").at(30)->isChecked());
    }

    void fieldIsClosedByAClick_data()
    {
        QTest::addColumn<bool>("onTheField");
        QTest::newRow("elsewhere") << false;
        // It must not open again at once.
        QTest::newRow("on the field") << true;
    }

    void fieldIsClosedByAClick()
    {
        QFETCH(bool, onTheField);
        QVERIFY(openField());
        const QWidget* const popup = m_panel->window();
        QSignalSpy started(m_field, &ColorPickerButton::pickingStarted);
        QVERIFY(onTheField ? RealInput::click(m_field) : clickElsewhere());
        QTRY_VERIFY(!popup->isVisible());
        QTRY_VERIFY(!m_picker->isInProgress());
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(7, 7)));
        QCOMPARE(started.count(), 0);
        QVERIFY(!m_field->isDown());
        QVERIFY(!popup->isVisible());

        // One more click opens it.
        QVERIFY(openField());
        QCOMPARE(started.count(), 1);
    }

    void fieldKeepsThePanelBelowItsSelector()
    {
        QVERIFY(openField());
        const QWidget* const popup = m_panel->window();
        QVERIFY(openSelector());
        QVERIFY(popup->isVisible());
        const auto* plane = selector()->findChild<QWidget*>(QStringLiteral("colorPlane"));
        QVERIFY(RealInput::click(plane, QPoint(plane->width() / 2, plane->height() / 2)));
        QTRY_VERIFY(m_reported->count() > 0);
        const QColor chosen = lastReported();
        QTRY_COMPARE(centerOf(m_field), chosen);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("colour-field-panel-selector")));

        // A click on the panel, in the column that the selector leaves free, closes it alone; the next one
        // chooses.
        QToolButton* const face = facesOf("colorMatrixPanel").at(3 * 9);
        QVERIFY(RealInput::click(face));
        QTRY_VERIFY(!selector());
        QVERIFY(popup->isVisible());
        QVERIFY(m_picker->isInProgress());
        QCOMPARE(Settings::userCustomColors(), QStringList{chosen.name()});
        QTRY_COMPARE(centerOf(ownColor(0)), chosen);
        QVERIFY(RealInput::click(face));
        QTRY_VERIFY(face->isChecked());
        QTRY_COMPARE(m_field->color()->name(), nameOf(face));

        // Escape closes them one by one.
        QVERIFY(openSelector());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!selector());
        QVERIFY(popup->isVisible());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!popup->isVisible());
        QTRY_VERIFY(!m_field->isDown());
    }

    void escapeBringsTheValueBack_data()
    {
        QTest::addColumn<std::optional<QColor>>("before");
        QTest::newRow("a colour") << std::optional<QColor>(QColor(0x12, 0xab, 0x34, 100));
        QTest::newRow("no colour") << std::optional<QColor>(QColor());
        QTest::newRow("several colours") << std::optional<QColor>();
    }

    void escapeBringsTheValueBack()
    {
        QFETCH(std::optional<QColor>, before);
        m_field->setColor(before);
        // Nothing is chosen.
        QVERIFY(openField());
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!m_picker->isInProgress());
        QCOMPARE(m_field->color(), before);
        // A click and a typed value are taken back together.
        QVERIFY(openField());
        QVERIFY(RealInput::click(facesOf("colorMatrixPanel").at(30)));
        QTRY_COMPARE(m_reported->count(), 1);
        QVERIFY(RealInput::clickInto(child<QLineEdit>("currentColorValueEdit")));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("345678")));
        QTRY_COMPARE(centerOf(m_field), QColor(0x34, 0x56, 0x78));
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_COMPARE(m_field->color(), before);
        QTRY_VERIFY(!m_picker->isInProgress());
        QVERIFY(m_window->isActiveWindow());
    }

    void pipetteComesBackToTheField()
    {
        const QColor target = centerOf(facesOf("colorMatrixPanel").at(40));
        const QWidget* const seen = facesOf("colorMatrixPanel").at(40);
        for (const bool isPicked : {true, false}) {
            QVERIFY(openField());
            const QColor before = *m_field->color();
            const QWidget* const popup = m_panel->window();
            QVERIFY(RealInput::click(child<QToolButton>("pipetteButton")));
            QTRY_COMPARE(PipetteWindows::views().size(), QGuiApplication::screens().size());
            QTRY_VERIFY(PipetteWindows::views().constFirst()->isActiveWindow());
            QVERIFY(!popup->isVisible());
            QVERIFY(m_field->isDown());
            QVERIFY(isPicked ? RealInput::click(seen) : RealInput::key(QStringLiteral("Escape")));
            QTRY_VERIFY(popup->isVisible());
            QVERIFY(PipetteWindows::views().isEmpty());
            QCOMPARE(m_field->color()->name(), isPicked ? target.name() : before.name());
            QVERIFY(QTest::qWaitForWindowExposed(m_panel->window()));
            QCOMPARE(m_panel->currentColor(), m_field->color());
            // The pop-up has mouse and keyboard again.
            QVERIFY(RealInput::click(facesOf("colorMatrixPanel").at(isPicked ? 50 : 51)));
            QTRY_COMPARE(m_field->color()->name(),
                         nameOf(facesOf("colorMatrixPanel").at(isPicked ? 50 : 51)));
            QVERIFY(RealInput::key(QStringLiteral("Return")));
            QTRY_VERIFY(!m_picker->isInProgress());
        }
    }

private:
    template <typename Child>
    Child* child(const char* name) const
    {
        return m_panel->findChild<Child*>(QLatin1String(name));
    }

    QList<QToolButton*> facesOf(const char* panel) const
    {
        return child<QWidget>(panel)->findChildren<QToolButton*>();
    }

    /// The button at that place, counted from the left.
    QToolButton* ownColor(int place) const
    {
        QList<QToolButton*> faces = facesOf("otherColorsQueuePanel");
        std::sort(faces.begin(), faces.end(),
                  [](const QToolButton* one, const QToolButton* other) { return one->x() < other->x(); });
        return faces.at(place);
    }

    QDialog* selector() const
    {
        auto* dialog = m_panel->findChild<QDialog*>();
        return dialog && dialog->isVisible() ? dialog : nullptr;
    }

    bool openSelector() const
    {
        return RealInput::click(child<QToolButton>("addCustomColorButton")) &&
               QTest::qWaitFor([this] { return selector(); }) && QTest::qWaitForWindowExposed(selector());
    }

    /// From now on m_panel is the field's.
    bool openField()
    {
        if (!RealInput::click(m_field) || !QTest::qWaitFor([this] { return m_picker->isInProgress(); })) {
            return false;
        }
        m_panel = m_picker->panel();
        m_reported = std::make_unique<QSignalSpy>(m_panel, &ColorPickerWidget::colorChanged);
        return QTest::qWaitFor([this] { return isPanelOnScreen(); });
    }

    bool clickElsewhere() const { return RealInput::click(m_window.get(), QPoint(5, 5)); }
    static QColor centerOf(const QWidget* widget)
    {
        return RealInput::pixel(widget, widget->rect().center());
    }

    /// Whether the palette's last colour is on the screen: a window is exposed before it is painted.
    bool isPanelOnScreen() const
    {
        return centerOf(facesOf("colorMatrixPanel").constLast()) == QColor(0x39, 0x00, 0x23);
    }

    /// From the sheet that a face has of its own: "background-color: #rrggbb;".
    static QString nameOf(const QToolButton* face) { return face->styleSheet().mid(18, 7); }
    QColor lastReported() const { return m_reported->constLast().constFirst().value<QColor>(); }

    std::unique_ptr<QWidget> m_window;
    QPointer<ColorPickerWidget> m_panel;
    QPointer<ColorPickerButton> m_field;
    PopupColorPicker* m_picker = nullptr;
    std::unique_ptr<QSignalSpy> m_reported;
};

UIC_TEST_MAIN(tst_ColorPanel)
#include "tst_ColorPanel.moc"
