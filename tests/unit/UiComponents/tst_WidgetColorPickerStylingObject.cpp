#include "TestMain.h"

#include <UiComponents/WidgetColorPickerStylingObject.h>

#include <type_traits>

namespace {

class Look : public WidgetColorPickerStylingObject
{
public:
    QCursor pickingCursor() const override { return Qt::PointingHandCursor; }
};

} // namespace

class tst_WidgetColorPickerStylingObject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeIsAsHostsExpect()
    {
        using Base = WidgetColorPickerStylingObject;
        QVERIFY(std::is_abstract_v<Base>);
        QVERIFY(std::has_virtual_destructor_v<Base>);
        QVERIFY(std::is_copy_assignable_v<Base>);
        QVERIFY(std::is_copy_constructible_v<Look>);
        QVERIFY(std::is_copy_assignable_v<Look>);
        // Nothing but the table of its virtual functions.
        QCOMPARE(sizeof(Base), sizeof(void*));
    }
};

UIC_TEST_MAIN(tst_WidgetColorPickerStylingObject)
#include "tst_WidgetColorPickerStylingObject.moc"
