#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SliderInputWidget.h>

#include <examples/titlecard/Canvas.h>
#include <examples/titlecard/Editor.h>
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
    void init()
    {
        Q_INIT_RESOURCE(titlecard);
        m_editor = std::make_unique<Editor>(QString());
        m_editor->move(20, 40);
        m_editor->resize(1000, 640);
        QVERIFY(RealInput::showAndActivate(m_editor.get()));
    }

    void cleanup() { m_editor.reset(); }

    void cardsByMouseAndKeyboard()
    {
        // Two cards, of which the second is selected.
        for (const QString& text : {QStringLiteral("one"), QStringLiteral("two")}) {
            QVERIFY(makeCard(text));
        }
        QCOMPARE(values(Text), QVariantList({"one", "two"}));
        QCOMPARE(steps(), 2);

        // Each property by keyboard, and by mouse where there is a way.
        auto* text = field<QLineEdit>("Text");
        QVERIFY(RealInput::click(text));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QVERIFY(RealInput::type(QStringLiteral("second")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(values(Text), QVariantList({"one", "second"}));
        QTRY_COMPARE(steps(), 3);
        QVERIFY(chooseColor("Colour", "ffc000", "Return"));
        QVERIFY(chooseColor("Outline", "ff0000", "Return"));
        QVERIFY(chooseColor("Background", "123456", "Return"));
        QCOMPARE(steps(), 6);
        QVERIFY(typeNumber("Size", "60"));
        QVERIFY(dragSlider("Size"));
        QVERIFY(typeNumber("Rotation", "20"));
        QVERIFY(dragSlider("Rotation"));
        QVERIFY(typeNumber("Opacity", "0.8"));
        QVERIFY(dragSlider("Opacity"));
        auto* plane = part<PointSelectionPlane>("Position");
        const int beforePlane = steps();
        QVERIFY(RealInput::drag(plane, plane->rect().center(), plane->rect().center() + QPoint(30, 20)));
        QTRY_COMPARE(steps(), beforePlane + 1);
        QVERIFY(typeNumber("Position", "0.25"));
        auto* blending = field<ColorBlendingComboBox>("Blending");
        blending->setFocus();
        QVERIFY(RealInput::key(QStringLiteral("Down")));
        QTRY_COMPARE(steps(), beforePlane + 3);

        // All of it undone, and done again.
        const QVector<Card> made = cards();
        const int all = steps();
        m_editor->canvas()->setFocus();
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

        // Both: a pick that is cancelled, and one that is not.
        QVERIFY(RealInput::click(m_editor->canvas(), QPoint(5, 5)));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+a")));
        QTRY_COMPARE(m_editor->canvas()->selection().size(), 2);
        auto* color = field<ColorInputWidget>("Colour");
        QTRY_VERIFY(!color->color());
        QVERIFY(chooseColor("Colour", "00ff00", "Escape"));
        QVERIFY(isSame(cards(), made));
        QVERIFY(!color->color());
        QCOMPARE(steps(), all);
        QVERIFY(chooseColor("Colour", "00ff00", "Return"));
        QCOMPARE(steps(), all + 1);
        QVERIFY(EditSession::isSame(values(Color).at(0), values(Color).at(1)));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("title-cards")));

        // What is exported is what is seen.
        const QTemporaryDir folder;
        auto* path = m_editor->findChild<PathSelectionWidget*>();
        QVERIFY(RealInput::click(path->findChild<QLineEdit*>()));
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

private:
    template <typename Field>
    Field* field(const char* name) const
    {
        return m_editor->findChild<Field*>(QLatin1String(name));
    }

    template <typename Part>
    Part* part(const char* name) const
    {
        return field<QWidget>(name)->findChild<Part*>();
    }

    bool makeCard(const QString& text)
    {
        const int count = cards().size();
        // The dialog runs an event loop of its own.
        QTimer typing;
        connect(&typing, &QTimer::timeout, this, [&typing, text] {
            const QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog && dialog->isActiveWindow()) {
                typing.stop();
                RealInput::type(text);
                RealInput::key(QStringLiteral("Return"));
            }
        });
        typing.start(20);
        return RealInput::key(QStringLiteral("ctrl+n")) &&
               QTest::qWaitFor([&] { return cards().size() > count; }) &&
               QTest::qWaitFor([this] { return m_editor->isActiveWindow(); });
    }

    bool chooseColor(const char* name, const QString& hex, const QString& end)
    {
        auto* button = qobject_cast<QToolButton*>(field<ColorInputWidget>(name)->anchorWidget());
        if (!RealInput::click(button) || !QTest::qWaitFor([] { return QApplication::activePopupWidget(); })) {
            return false;
        }
        auto* edit =
            QApplication::activePopupWidget()->findChild<QLineEdit*>(QStringLiteral("currentColorValueEdit"));
        return QTest::qWaitForWindowExposed(edit->window()) && RealInput::click(edit) &&
               RealInput::key(QStringLiteral("ctrl+a")) && RealInput::type(hex) &&
               QTest::qWaitFor([&] { return edit->text() == QLatin1Char('#') + hex; }) &&
               RealInput::key(end) && QTest::qWaitFor([button] { return !button->isDown(); });
    }

    bool typeNumber(const char* name, const QString& number)
    {
        auto* box = part<QAbstractSpinBox>(name);
        const int before = steps();
        return RealInput::click(box->findChild<QLineEdit*>()) && RealInput::key(QStringLiteral("ctrl+a")) &&
               RealInput::type(number) && RealInput::key(QStringLiteral("Return")) &&
               QTest::qWaitFor([&] { return steps() == before + 1; });
    }

    bool dragSlider(const char* name)
    {
        auto* slider = part<QSlider>(name);
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

    bool isSame(const QVector<Card>& one, const QVector<Card>& other) const
    {
        bool isSame = one.size() == other.size();
        for (int i = 0; isSame && i < one.size(); ++i) {
            for (auto value = one.at(i).values.cbegin(); value != one.at(i).values.cend(); ++value) {
                isSame = isSame && EditSession::isSame(*value, other.at(i).values.value(value.key()));
            }
        }
        return isSame;
    }

    std::unique_ptr<Editor> m_editor;
};

UIC_TEST_MAIN(tst_TitleCard)
#include "tst_TitleCard.moc"
