#include "TestMain.h"

#include <UiComponents/WidgetColorPickerStylingObject.h>

#include <memory>
#include <type_traits>

namespace {

class Look : public WidgetColorPickerStylingObject
{
public:
    explicit Look(Qt::CursorShape shape, bool* isDead = nullptr)
        : m_shape(shape)
        , m_isDead(isDead)
    {
    }
    Look(const Look&) = default;
    Look& operator=(const Look&) = default;
    ~Look() override
    {
        if (m_isDead) {
            *m_isDead = true;
        }
    }
    QCursor pickingCursor() const override { return m_shape; }

private:
    Qt::CursorShape m_shape;
    bool* m_isDead;
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
        // Nothing but the table of its virtual functions.
        QCOMPARE(sizeof(Base), sizeof(void*));
    }

    void cursorIsTheHosts()
    {
        const Look look(Qt::PointingHandCursor);
        const WidgetColorPickerStylingObject& base = look;
        QCOMPARE(base.pickingCursor().shape(), Qt::PointingHandCursor);
    }

    void copies()
    {
        const Look look(Qt::PointingHandCursor);
        Look copy(look);
        QCOMPARE(copy.pickingCursor().shape(), Qt::PointingHandCursor);
        copy = Look(Qt::WaitCursor);
        QCOMPARE(copy.pickingCursor().shape(), Qt::WaitCursor);
    }

    void deletedThroughTheBase()
    {
        bool isDead = false;
        std::unique_ptr<WidgetColorPickerStylingObject> base =
            std::make_unique<Look>(Qt::CrossCursor, &isDead);
        base.reset();
        QVERIFY(isDead);
    }
};

UIC_TEST_MAIN(tst_WidgetColorPickerStylingObject)
#include "tst_WidgetColorPickerStylingObject.moc"
