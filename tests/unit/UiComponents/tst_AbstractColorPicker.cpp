#include "FakeColorPicker.h"
#include "OptionalColor.h"
#include "TestMain.h"

#include <UiComponents/AbstractColorPicker.h>

#include <QtCore/private/qobject_p.h>

namespace {

class PickerWithPrivate : public FakeColorPicker
{
public:
    PickerWithPrivate(QObjectPrivate& dd, QObject* parent)
        : FakeColorPicker(dd, parent)
    {
    }
};

} // namespace

class tst_AbstractColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorIsAMetaType(); // first, for a connection elsewhere would register the type as well
    void slotCallsTheVirtual();
    void takesAPrivateClass();
    void queuedConnectionCarriesTheColor();
};

void tst_AbstractColorPicker::colorIsAMetaType()
{
    const FakeColorPicker picker;
    const int byName = QMetaType::type("std::optional<QColor>");
    QVERIFY(byName != QMetaType::UnknownType);
    QCOMPARE(byName, qMetaTypeId<OptionalColor>());
}

void tst_AbstractColorPicker::slotCallsTheVirtual()
{
    FakeColorPicker picker;
    const OptionalColor green = QColor(Qt::green);
    QVERIFY(QMetaObject::invokeMethod(&picker, "setColor", Q_ARG(std::optional<QColor>, green)));
    QCOMPARE(picker.received.size(), std::size_t(1));
    QVERIFY(picker.received.front() == green);
}

void tst_AbstractColorPicker::takesAPrivateClass()
{
    QObject parent;
    auto* const dd = new QObjectPrivate; // the picker's
    const PickerWithPrivate picker(*dd, &parent);
    QCOMPARE(QObjectPrivate::get(&picker), dd);
    QCOMPARE(picker.parent(), &parent);
    QCOMPARE(FakeColorPicker(&parent).parent(), &parent);
    QVERIFY(!FakeColorPicker().parent());
}

void tst_AbstractColorPicker::queuedConnectionCarriesTheColor()
{
    FakeColorPicker picker;
    std::vector<OptionalColor> seen;
    connect(
        &picker, &AbstractColorPicker::colorChanged, this,
        [&seen](const OptionalColor& color) { seen.push_back(color); }, Qt::QueuedConnection);
    picker.preview(QColor(Qt::blue));
    picker.preview(std::nullopt);
    QVERIFY(seen.empty());
    QCoreApplication::processEvents();
    QCOMPARE(seen.size(), std::size_t(2));
    QVERIFY(seen.at(0) == OptionalColor(QColor(Qt::blue)));
    QVERIFY(!seen.at(1).has_value());
}

UIC_TEST_MAIN(tst_AbstractColorPicker)
#include "tst_AbstractColorPicker.moc"
