#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>

#include <functional>
#include <gallery/DialogColorPicker.h>
#include <gallery/MessageWatch.h>
#include <memory>

using Act = std::function<void(QColorDialog*, ColorPickerButton*)>;
Q_DECLARE_METATYPE(Act)

class tst_DialogColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_messages = std::make_unique<MessageWatch>(); }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(300, 200);
        m_button = new ColorPickerButton(m_window.get());
        m_picker = new DialogColorPicker(m_button);
        m_button->setPicker(m_picker);
        m_button->setColor(QColor(Qt::red));
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(m_messages->takeWarnings(), QStringList());
    }

    void opensOnTheFieldsColor()
    {
        m_button->setColor(QColor(10, 20, 30, 40));
        m_button->click();
        QVERIFY(dialog()->isVisible());
        QCOMPARE(dialog()->currentColor(), QColor(10, 20, 30, 40));
        QVERIFY(m_button->isDown());
        QVERIFY(m_button->isPickingInProgress());
    }

    void opensOnceAndBlocksNothing()
    {
        m_button->startPicking();
        QVERIFY(!dialog()->isModal());
        m_button->startPicking();
        QCOMPARE(m_window->findChildren<QColorDialog*>().size(), 1);
    }

    void previewIsLive()
    {
        m_button->startPicking();
        QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
        dialog()->setCurrentColor(Qt::blue);
        QCOMPARE(m_button->color(), std::optional<QColor>(QColor(Qt::blue)));
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_button->isPickingInProgress());
    }

    void ends_data()
    {
        QTest::addColumn<Act>("act");
        QTest::addColumn<QColor>("color");
        const auto row = [](const char* name, const QColor& color, const Act& act) {
            QTest::newRow(name) << act << color;
        };
        row("OK", Qt::blue, [](QColorDialog* dialog, auto*) { dialog->accept(); });
        row("Cancel", Qt::red, [](QColorDialog* dialog, auto*) { dialog->reject(); });
        row("the window's close button", Qt::red, [](QColorDialog* dialog, auto*) { dialog->close(); });
        row("deleted by others", Qt::red, [](QColorDialog* dialog, auto*) { delete dialog; });
        row("the field is hidden", Qt::red, [](auto*, QWidget* field) { field->hide(); });
        row("stopped, twice", Qt::red, [](auto*, ColorPickerButton* field) {
            auto* const picker = field->picker();
            picker->stop();
            picker->stop();
        });
        row("stopped in a slot", Qt::red, [](QColorDialog* dialog, ColorPickerButton* field) {
            auto* const picker = field->picker();
            connect(picker, &AbstractColorPicker::colorChanged, picker, [picker] { picker->stop(); });
            dialog->reject();
        });
    }

    void ends()
    {
        QFETCH(Act, act);
        QFETCH(QColor, color);
        m_button->startPicking();
        const QPointer<QColorDialog> open = dialog();
        open->setCurrentColor(Qt::blue);
        QStringList order;
        connect(m_picker, &AbstractColorPicker::colorChanged, this, [&order] { order += "color"; });
        connect(m_picker, &AbstractColorPicker::pickingStopped, this, [&order] { order += "stopped"; });
        act(open, m_button);
        QCOMPARE(order, color == Qt::red ? QStringList({"color", "stopped"}) : QStringList({"stopped"}));
        QCOMPARE(m_button->color(), std::optional<QColor>(color));
        QVERIFY(!m_button->isDown());
        QVERIFY(!m_button->isPickingInProgress());
        QVERIFY(!open || !open->isVisible());
        m_picker->disconnect(this);
    }

    void cancelKeepsAMixedFieldMixed()
    {
        // The picker still knows red: a field tells it of definite colours only.
        m_button->setColor(std::nullopt);
        m_button->startPicking();
        dialog()->setCurrentColor(Qt::blue);
        dialog()->reject();
        QCOMPARE(m_button->color(), std::optional<QColor>());
    }

    void stopWithoutAPick()
    {
        QSignalSpy stopped(m_picker, &AbstractColorPicker::pickingStopped);
        m_picker->stop();
        QCOMPARE(stopped.count(), 0);
    }

    void picksAgain()
    {
        m_button->startPicking();
        dialog()->setCurrentColor(Qt::blue);
        dialog()->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog());
        m_button->startPicking();
        QCOMPARE(dialog()->currentColor(), QColor(Qt::blue));
        dialog()->setCurrentColor(Qt::green);
        dialog()->reject();
        QCOMPARE(m_button->color(), std::optional<QColor>(QColor(Qt::blue)));
    }

    void aColorSetMeanwhileIsShown()
    {
        m_button->startPicking();
        QSignalSpy changed(m_picker, &AbstractColorPicker::colorChanged);
        m_button->setColor(QColor(Qt::green));
        QCOMPARE(dialog()->currentColor(), QColor(Qt::green));
        QCOMPARE(changed.count(), 0);
        m_button->setColor(QColor());
        QCOMPARE(m_button->color(), std::optional<QColor>(QColor()));
    }

    void fieldDeletedWhilePicking()
    {
        m_button->startPicking();
        const QPointer<QColorDialog> open = dialog();
        delete m_button;
        QVERIFY(!open->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!open);
    }

    void fieldDeletedInTheLastPreview()
    {
        m_button->startPicking();
        dialog()->setCurrentColor(Qt::blue);
        connect(m_picker, &AbstractColorPicker::colorChanged, m_window.get(), [this] { delete m_button; });
        dialog()->reject();
        QVERIFY(!m_button);
    }

    void fieldDeletedInAPreview()
    {
        m_button->startPicking();
        connect(m_picker, &AbstractColorPicker::colorChanged, m_window.get(), [this] { delete m_button; });
        const QPointer<QColorDialog> open = dialog();
        open->setCurrentColor(Qt::blue);
        QVERIFY(!m_button);
        QVERIFY(open && !open->isVisible());
    }

    void withoutAField()
    {
        DialogColorPicker picker(nullptr);
        picker.pick();
        QVERIFY(!picker.isInProgress());
        picker.setColor(QColor(Qt::red));
        QCOMPARE(picker.color(), std::optional<QColor>(QColor(Qt::red)));
    }

private:
    QColorDialog* dialog() const { return m_window->findChild<QColorDialog*>("colorPickerDialog"); }

    std::unique_ptr<MessageWatch> m_messages;
    std::unique_ptr<QWidget> m_window;
    QPointer<ColorPickerButton> m_button;
    DialogColorPicker* m_picker = nullptr;
};

UIC_TEST_MAIN(tst_DialogColorPicker)
#include "tst_DialogColorPicker.moc"
