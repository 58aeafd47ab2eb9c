#include "FakeColorPicker.h"
#include "OptionalColor.h"
#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>

namespace {

ColorPickerButton* buttonOf(const ColorInputWidget& field)
{
    return field.findChild<ColorPickerButton*>(QStringLiteral("colorPicker"), Qt::FindDirectChildrenOnly);
}

/// Hears each field from when it gets its first part, in its constructor.
class EarlyListener : public QObject // clazy:exclude=missing-qobject-macro
{
public:
    EarlyListener() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* const field = qobject_cast<ColorInputWidget*>(watched);
        if (field && event->type() == QEvent::ChildAdded && fields++ == 0) {
            connect(field, &ColorInputWidget::colorChanged, this, [this] { ++reports; });
        }
        return false;
    }

    int fields = 0;
    int reports = 0;
};

} // namespace

class tst_ColorInputWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsMultipleWithoutAColor()
    {
        const ColorInputWidget field(nullptr, QColor());
        QVERIFY(!buttonOf(field)->color().has_value());
        QVERIFY(!field.color().has_value());
        QCOMPARE(buttonOf(field)->property("multiColor"), QVariant(true));
        QCOMPARE(buttonOf(field)->property("nullColor"), QVariant(false));
    }

    void startsBlackInAForm()
    {
        QWidget form;
        const ColorInputWidget field(&form);
        QCOMPARE(field.parentWidget(), &form);
        QVERIFY(field.color() == OptionalColor(QColor(Qt::black)));
    }

    void startsWithAColorInSilence()
    {
        EarlyListener listener;
        ColorInputWidget field(nullptr, Qt::red);
        QVERIFY(listener.fields > 0);
        QCoreApplication::processEvents();
        QCOMPARE(listener.reports, 0);
        QVERIFY(buttonOf(field)->color() == OptionalColor(QColor(Qt::red)));
        field.setColor(QColor(Qt::red));
        QCOMPARE(listener.reports, 0);
        field.setColor(QColor(Qt::blue));
        QCOMPARE(listener.reports, 1);
    }

    void setColorIsRelayedOnce()
    {
        ColorInputWidget field(nullptr, QColor());
        QSignalSpy changed(&field, &ColorInputWidget::colorChanged);
        field.setColor(QColor(1, 2, 3, 4));
        field.setColor(QColor(1, 2, 3, 4));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().front().value<QColor>(), QColor(1, 2, 3, 4));
        QVERIFY(field.color() == OptionalColor(QColor(1, 2, 3, 4)));
    }

    void setColorOfNoColor()
    {
        ColorInputWidget field(nullptr, Qt::red);
        QSignalSpy changed(&field, &ColorInputWidget::colorChanged);
        field.setColor(QColor());
        QCOMPARE(changed.size(), 1);
        QVERIFY(!changed.front().front().value<QColor>().isValid());
        QCOMPARE(buttonOf(field)->property("nullColor"), QVariant(true));
    }

    void pickIsRelayed()
    {
        ColorInputWidget field(nullptr, Qt::red);
        auto* picker = new FakeColorPicker;
        field.setPicker(picker);
        QSignalSpy changed(&field, &ColorInputWidget::colorChanged);
        buttonOf(field)->click();
        picker->preview(QColor(Qt::green));
        picker->finish(QColor(Qt::green));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().front().value<QColor>(), QColor(Qt::green));
    }

    void pickerIsTheButtons()
    {
        const QPointer<FakeColorPicker> first = new FakeColorPicker;
        const QPointer<FakeColorPicker> second = new FakeColorPicker;
        {
            ColorInputWidget field(nullptr, QColor());
            QVERIFY(!buttonOf(field)->picker());
            field.setPicker(first);
            QCOMPARE(buttonOf(field)->picker(), first.data());
            QCOMPARE(first->parent(), field.anchorWidget());
            field.setPicker(second);
            QVERIFY(!first);
            QVERIFY(second);
        }
        QVERIFY(!second);
    }

    // As a window, the field is hidden by the destructor of QWidget, which stops the picker.
    void deletedWhileItsPickerRuns()
    {
        auto* field = new ColorInputWidget(nullptr, Qt::red);
        auto* picker = new FakeColorPicker;
        field->setPicker(picker);
        field->show();
        buttonOf(*field)->click();
        picker->preview(QColor(Qt::green));
        field->setColor(Qt::red);
        int reports = 0;
        connect(field, &ColorInputWidget::colorChanged, this, [&reports] { ++reports; });
        QPointer<FakeColorPicker> alive = picker;
        delete field;
        QVERIFY(!alive);
        QCOMPARE(reports, 0);
    }
};

UIC_TEST_MAIN(tst_ColorInputWidget)
#include "tst_ColorInputWidget.moc"
