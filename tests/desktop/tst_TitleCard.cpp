#include "RealInput.h"
#include "SameCards.h"
#include "TestMain.h"

#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvFrame.h>

#include <examples/titlecard/Canvas.h>
#include <examples/titlecard/Editor.h>
#include <examples/titlecard/Inspector.h>
#include <gallery/GalleryApplication.h>
#include <memory>

using namespace TitleCard;

/**
 * A user of the example application: makes cards, edits each property by mouse and by keyboard, undoes and
 * redoes all, edits both cards at once, and exports the picture.
 */
class tst_TitleCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        m_editor = std::make_unique<Editor>(QStringLiteral(":"));
        m_editor->setStyle(QStringLiteral("dark"));
        m_editor->move(20, 40);
        m_editor->resize(1180, 700);
        QVERIFY(RealInput::showAndActivate(m_editor.get()));
    }

    void cleanup()
    {
        m_editor.reset();
        qApp->setStyleSheet(QString());
    }

    void cardsByMouseAndKeyboard()
    {
        // Two cards, of which the second is selected.
        for (const QString& text : {QStringLiteral("one"), QStringLiteral("two")}) {
            QVERIFY(makeCard(text));
        }
        QCOMPARE(values(Text), QVariantList({"one", "two"}));
        QCOMPARE(steps(), 2);

        // Each property by keyboard, and by mouse where there is a way.
        auto* text = field<QLineEdit>(Text);
        QVERIFY(RealInput::clickInto(text));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("second")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(values(Text), QVariantList({"one", "second"}));
        QTRY_COMPARE(steps(), 3);
        int colorSteps = steps();
        for (const Property property : {Color, Outline, Background}) {
            QVERIFY(chooseColor(property, "ffc000", "Return"));
            QCOMPARE(steps(), ++colorSteps);
            QVERIFY(clickColor(property));
            QCOMPARE(steps(), ++colorSteps);
            QVERIFY(typeOpacity(property, "40"));
            QCOMPARE(steps(), ++colorSteps);
            QCOMPARE(colorOf(property).alpha(), 102);
            QVERIFY(dragOpacity(property));
            QCOMPARE(steps(), ++colorSteps);
            QVERIFY(colorOf(property).alpha() < 102);
        }
        QVERIFY(typeNumber(Size, "60"));
        QVERIFY(dragSlider(Size));
        QVERIFY(typeNumber(Rotation, "20"));
        QVERIFY(dragSlider(Rotation));
        QVERIFY(typeNumber(Opacity, "0.8"));
        QVERIFY(dragSlider(Opacity));
        auto* plane = part<PointSelectionPlane>(Position);
        const int beforePlane = steps();
        QVERIFY(RealInput::drag(plane, plane->rect().center(), plane->rect().center() + QPoint(30, 20)));
        QTRY_COMPARE(steps(), beforePlane + 1);
        auto* blending = field<ColorBlendingComboBox>(Blending);
        blending->setFocus();
        QVERIFY(RealInput::key(QStringLiteral("Down")));
        QTRY_COMPARE(steps(), beforePlane + 2);
        QVERIFY(RealInput::click(blending));
        QTRY_VERIFY(QApplication::activePopupWidget());
        QVERIFY(QTest::qWaitForWindowExposed(QApplication::activePopupWidget()));
        const auto* const modes = QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
        const QModelIndex third = modes->model()->index(2, 0);
        QVERIFY(modes->currentIndex() != third);
        QVERIFY(RealInput::click(modes->viewport(), modes->visualRect(third).center()));
        QTRY_COMPARE(steps(), beforePlane + 3);
        QVERIFY(typeNumber(Position, "0.25"));

        // All of it undone, and done again, from the box that has just been typed into.
        const QVector<Card> made = cards();
        const int all = steps();
        QVERIFY(QApplication::focusWidget()->inherits("QAbstractSpinBox"));
        for (int i = 0; i < all; ++i) {
            QVERIFY(RealInput::key(QStringLiteral("ctrl+z")));
        }
        QTRY_COMPARE(steps(), 0);
        QVERIFY(cards().isEmpty());
        for (int i = 0; i < all; ++i) {
            QVERIFY(RealInput::key(QStringLiteral("ctrl+shift+z")));
        }
        QTRY_COMPARE(steps(), all);
        QVERIFY(isSame(cards(), made));

        // Both, by clicks on each: a pick that is cancelled, and one that is not.
        QVERIFY(RealInput::click(m_editor->canvas(), QPoint(5, 5)));
        QTRY_VERIFY(m_editor->canvas()->selection().isEmpty());
        QVERIFY(RealInput::click(m_editor->canvas(), placeOf(made.at(0).id)));
        QTRY_COMPARE(m_editor->canvas()->selection(), QVector<int>{made.at(0).id});
        QVERIFY(clickWithControl(m_editor->canvas(), placeOf(made.at(1).id)));
        QTRY_COMPARE(m_editor->canvas()->selection(), (QVector<int>{made.at(0).id, made.at(1).id}));
        auto* color = field<ColorInputWidget>(Color);
        QTRY_VERIFY(!color->color());
        QVERIFY(chooseColor(Color, "00ff00", "Escape"));
        QVERIFY(isSame(cards(), made));
        QVERIFY(!color->color());
        QCOMPARE(steps(), all);
        QVERIFY(chooseColor(Color, "00ff00", "Return"));
        QCOMPARE(steps(), all + 1);
        QVERIFY(EditSession::isSame(values(Color).at(0), values(Color).at(1)));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("title-cards")));

        // What is exported is what is seen.
        const QTemporaryDir folder;
        auto* path = m_editor->findChild<PathSelectionWidget*>();
        QVERIFY(RealInput::clickInto(path->findChild<QLineEdit*>()));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(folder.path()));
        QTRY_COMPARE(path->path(), folder.path());
        m_editor->canvas()->select({});
        QVERIFY(RealInput::key(QStringLiteral("ctrl+shift+e")));
        QTRY_VERIFY(QFile::exists(folder.filePath(QStringLiteral("titles.png"))));
        const QImage exported(folder.filePath(QStringLiteral("titles.png")));
        QCOMPARE(exported.convertToFormat(QImage::Format_RGB32),
                 m_editor->canvas()->grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

    void failedExportIsTold()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("titles.png")));
        m_editor->findChild<PathSelectionWidget*>()->setPath(folder.path());
        QString told;
        // The message runs an event loop of its own.
        QTimer reading;
        connect(&reading, &QTimer::timeout, this, [&] {
            const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box && box->isActiveWindow()) {
                reading.stop();
                told = box->text();
                RealInput::key(QStringLiteral("Return"));
            }
        });
        reading.start(20);
        QVERIFY(RealInput::key(QStringLiteral("ctrl+shift+e")));
        QTRY_VERIFY(!told.isEmpty() && !QApplication::activeModalWidget());
        QVERIFY2(told.contains(folder.filePath(QStringLiteral("titles.png"))), qPrintable(told));
    }

    void givenUpCardIsNotMade()
    {
        QVERIFY(makeCard(QStringLiteral("one"), QStringLiteral("Escape")));
        QVERIFY(cards().isEmpty());
        QCOMPARE(steps(), 0);
    }

    void presetIsFoundAndApplied()
    {
        QVERIFY(makeCard(QStringLiteral("bright")));
        QVERIFY(typeNumber(Size, "60"));
        QVERIFY(typeNumber(Position, "0.25"));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+s")));
        QVERIFY(makeCard(QStringLiteral("dark")));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+s")));
        auto* list = m_editor->findChild<AdjustingListView*>();
        QTRY_COMPARE(list->model()->rowCount(), 2);
        QVERIFY(RealInput::clickInto(m_editor->findChild<SearchWidget*>()->findChild<QLineEdit*>()));
        QVERIFY(RealInput::type(QStringLiteral("BRI")));
        QTRY_COMPARE(list->model()->rowCount(), 1);
        const int before = steps();
        const QPoint first = list->visualRect(list->model()->index(0, 0)).center();
        QVERIFY(RealInput::click(list->viewport(), first));
        QTRY_VERIFY(list->hasFocus());
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(steps(), before + 1);
        QCOMPARE(values(Size), QVariantList({60, 60}));
        QCOMPARE(values(Text), QVariantList({"bright", "dark"}));
        QVERIFY(values(Position).at(0) != values(Position).at(1));

        // The presets are steps too.
        m_editor->findChild<SearchWidget*>()->findChild<QLineEdit*>()->clear();
        QTRY_COMPARE(list->model()->rowCount(), 2);
        for (const int rows : {2, 1, 1, 0}) {
            QVERIFY(RealInput::key(QStringLiteral("ctrl+z")));
            QTRY_COMPARE(list->model()->rowCount(), rows);
        }
        m_editor->undoStack()->setIndex(before);
        QCOMPARE(list->model()->rowCount(), 2);
    }

    void tourRunsOnce()
    {
        const auto bubble = [this] { return m_editor->findChild<DialogGuideWidget*>(); };
        for (const bool isClosed : {false, true}) {
            QSettings().remove(QStringLiteral("tourIsOver"));
            m_editor->startFirstTour();
            QVERIFY(QTest::qWaitForWindowExposed(bubble()));
            const QString button = isClosed ? QStringLiteral("closeButton") : QStringLiteral("mainButton");
            for (int step = 0; step < (isClosed ? 1 : 3); ++step) {
                const QString title = bubble()->windowTitle();
                // A tool tip of what lies below the mouse could cover the bubble.
                constexpr int maxTipTime = 20000;
                QVERIFY(RealInput::moveTo(m_editor->window(), QPoint(2, 2)));
                QTRY_VERIFY_WITH_TIMEOUT(isInPlace(bubble()), maxTipTime);
                QVERIFY(RealInput::click(bubble()->findChild<QAbstractButton*>(button)));
                QTRY_VERIFY(!bubble() || bubble()->windowTitle() != title);
            }
            QTRY_VERIFY(!bubble());
            m_editor->startFirstTour();
            QVERIFY(!bubble());
        }
    }

    void switchesAreLive()
    {
        QVERIFY(makeCard(QStringLiteral("one")));
        const auto switches =
            m_editor->findChild<QToolBar*>(QStringLiteral("switches"))->findChildren<QComboBox*>();
        QCOMPARE(switches.size(), 2);
        const auto choose = [&switches](int index, const char* key) {
            // Without its pop-up, where the resting mouse would choose too.
            switches.at(index)->setFocus();
            return RealInput::key(QLatin1String(key));
        };
        const auto ground = [this] { return RealInput::pixel(m_editor->centralWidget(), QPoint(2, 2)); };
        const QColor dark = ground();
        QVERIFY(choose(0, "Down"));
        QTRY_VERIFY(ground().lightness() > dark.lightness() + 100);

        const auto* const undo = m_editor->findChild<QAction*>(QStringLiteral("Undo"));
        const QString english = field<QWidget>(Size)->accessibleName();
        for (const auto& text :
             {QStringLiteral("Deshacer"), QStringLiteral("Annuler"), QStringLiteral("元に戻す")}) {
            QVERIFY(choose(1, "Down"));
            QTRY_COMPARE(undo->text(), text);
            QVERIFY(field<QWidget>(Size)->accessibleName() != english);
        }
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("title-cards-ja")));

        const auto isLeading = [this] {
            return m_editor->canvas()->mapToGlobal(QPoint()).x() <
                   m_editor->inspector()->mapToGlobal(QPoint()).x();
        };
        QTRY_VERIFY(isLeading());
        QVERIFY(choose(1, "Home"));
        QTRY_VERIFY(!isLeading());
        QCOMPARE(undo->text(), QStringLiteral("تراجع"));
        // The new inspector gets its place.
        QCoreApplication::processEvents();
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("title-cards-ar")));
        // What was done is still there.
        QCOMPARE(steps(), 1);
        QVERIFY(typeNumber(Size, "60"));
    }

private:
    template <typename Field>
    Field* field(Property property) const
    {
        return qobject_cast<Field*>(m_editor->inspector()->session(property)->field());
    }

    template <typename Part>
    Part* part(Property property) const
    {
        return field<QWidget>(property)->findChild<Part*>();
    }

    bool makeCard(const QString& text, const QString& end = QStringLiteral("Return"))
    {
        bool isOver = false;
        // The dialog runs an event loop of its own.
        QTimer typing;
        connect(&typing, &QTimer::timeout, this, [&] {
            const QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog && dialog->isActiveWindow()) {
                typing.stop();
                RealInput::type(text);
                RealInput::key(end);
                isOver = true;
            }
        });
        typing.start(20);
        return RealInput::key(QStringLiteral("ctrl+n")) &&
               QTest::qWaitFor([&] { return isOver && !QApplication::activeModalWidget(); }) &&
               QTest::qWaitFor([this] { return m_editor->isActiveWindow(); });
    }

    /// Opens the panel of a colour field by a click.
    QWidget* openPanel(Property property) const
    {
        const bool isOpen = RealInput::click(field<ColorInputWidget>(property)->anchorWidget()) &&
                            QTest::qWaitFor([] { return QApplication::activePopupWidget(); }) &&
                            QTest::qWaitForWindowExposed(QApplication::activePopupWidget());
        return isOpen ? QApplication::activePopupWidget() : nullptr;
    }

    /// Closes it by a click elsewhere, which keeps the colour.
    bool closePanel(Property property) const
    {
        auto* button = qobject_cast<QToolButton*>(field<ColorInputWidget>(property)->anchorWidget());
        return RealInput::click(m_editor.get(), QPoint(3, m_editor->height() - 3)) &&
               QTest::qWaitFor([button] { return !button->isDown(); });
    }

    bool clickColor(Property property) const
    {
        const QWidget* const panel = openPanel(property);
        if (!panel) {
            return false;
        }
        auto* const face = panel->findChild<QWidget*>(QStringLiteral("colorMatrixPanel"))
                               ->findChildren<QToolButton*>()
                               .at(40);
        return RealInput::click(face) && QTest::qWaitFor([face] { return face->isChecked(); }) &&
               closePanel(property);
    }

    bool typeOpacity(Property property, const QString& percent) const
    {
        const QWidget* const panel = openPanel(property);
        auto* const box = panel ? panel->findChild<QSpinBox*>(QStringLiteral("opacitySpinbox")) : nullptr;
        return box && RealInput::clickInto(box->findChild<QLineEdit*>()) &&
               RealInput::key(QStringLiteral("ctrl+a")) && RealInput::type(percent + QLatin1Char('\n')) &&
               QTest::qWaitFor([&] { return box->value() == percent.toInt(); }) && closePanel(property);
    }

    bool dragOpacity(Property property) const
    {
        const QWidget* const panel = openPanel(property);
        auto* const slider = panel ? panel->findChild<QSlider*>(QStringLiteral("opacitySlider")) : nullptr;
        if (!slider) {
            return false;
        }
        const int y = slider->height() / 2;
        return RealInput::drag(slider, QPoint(slider->width() * 2 / 5, y), QPoint(slider->width() / 5, y)) &&
               QTest::qWaitFor([slider] { return !slider->isSliderDown(); }) && closePanel(property);
    }

    QColor colorOf(Property property) const
    {
        return values(property).constLast().value<std::optional<QColor>>().value_or(QColor());
    }

    /// Where nothing lies above a card.
    QPoint placeOf(int id) const
    {
        const QSize size = m_editor->canvas()->size();
        for (int x = 0; x < size.width(); ++x) {
            for (int y = 0; y < size.height(); ++y) {
                if (m_editor->document()->cardAt(QPoint(x, y), size) == id) {
                    return {x, y};
                }
            }
        }
        return {};
    }

    /// Whether a bubble is where it belongs, and the screen shows it there. For each step it moves, and then
    /// takes the size of its text, which moves it again. The window manager is later than Qt, and tells it of
    /// the first when it has done the second: a button was clicked where it had been on the way.
    static bool isInPlace(DialogGuideWidget* bubble)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        const bool hasItsSize = bubble->height() == bubble->layout()->totalHeightForWidth(bubble->width());
        if (!hasItsSize || !bubble->geometry().adjusted(-1, -1, 1, 1).contains(bubble->targetPoint())) {
            return false;
        }
        const QImage picture = bubble->grab().toImage();
        const auto* const button = bubble->findChild<QWidget*>(QStringLiteral("mainButton"));
        const QRect area(button->mapTo(bubble, QPoint()), button->size());
        constexpr int around = 4;
        for (int y = area.top() - around; y <= area.bottom() + around; ++y) {
            const QPoint point(area.left() + around, y);
            if (RealInput::pixel(bubble, point) != picture.pixelColor(point)) {
                return false;
            }
        }
        return true;
    }

    static bool clickWithControl(const QWidget* widget, const QPoint& point)
    {
        return RealInput::moveTo(widget, point) &&
               RealInput::xdotool(QStringLiteral("keydown ctrl click 1 keyup ctrl"));
    }

    /// By the keyboard alone.
    bool chooseColor(Property property, const QString& hex, const QString& end)
    {
        auto* button = qobject_cast<QToolButton*>(field<ColorInputWidget>(property)->anchorWidget());
        button->setFocus(Qt::TabFocusReason);
        if (!RealInput::key(QStringLiteral("space")) ||
            !QTest::qWaitFor([] { return QApplication::activePopupWidget(); })) {
            return false;
        }
        auto* edit =
            QApplication::activePopupWidget()->findChild<QLineEdit*>(QStringLiteral("currentColorValueEdit"));
        bool isThere = QTest::qWaitForWindowExposed(edit->window());
        for (const QWidget* start = nullptr; isThere && !edit->hasFocus();) {
            const QWidget* const from = QApplication::focusWidget();
            start = start ? start : from;
            isThere = RealInput::key(QStringLiteral("Tab")) &&
                      QTest::qWaitFor([from] { return QApplication::focusWidget() != from; }) &&
                      QApplication::focusWidget() != start;
        }
        return isThere && RealInput::key(QStringLiteral("ctrl+a")) && RealInput::type(hex) &&
               QTest::qWaitFor([&] { return edit->text() == QLatin1Char('#') + hex; }) &&
               RealInput::key(end) && QTest::qWaitFor([button] { return !button->isDown(); });
    }

    bool typeNumber(Property property, const QString& number)
    {
        auto* box = part<QAbstractSpinBox>(property);
        const int before = steps();
        return RealInput::clickInto(box->findChild<QLineEdit*>()) &&
               RealInput::key(QStringLiteral("ctrl+a")) && RealInput::type(number) &&
               RealInput::key(QStringLiteral("Return")) &&
               QTest::qWaitFor([&] { return steps() == before + 1; });
    }

    bool dragSlider(Property property)
    {
        auto* slider = part<QSlider>(property);
        const int before = steps();
        const int y = slider->height() / 2;
        return RealInput::drag(slider, QPoint(slider->width() / 2, y), QPoint(slider->width() / 3, y)) &&
               QTest::qWaitFor([&] { return steps() == before + 1; });
    }

    /// What all cards have, in their order.
    QVariantList values(Property property) const
    {
        QVariantList all;
        for (const Card& card : cards()) {
            all.append(card.values.value(property));
        }
        return all;
    }

    QVector<Card> cards() const { return m_editor->document()->cards(); }
    int steps() const { return m_editor->undoStack()->index(); }

    std::unique_ptr<Editor> m_editor;
};

UIC_TEST_MAIN(tst_TitleCard)
#include "tst_TitleCard.moc"
