#include "TestMain.h"

#include <UiComponents/AbstractColorPicker.h>

class tst_AbstractColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
};

void tst_AbstractColorPicker::metaObject()
{
    const QMetaObject& meta = AbstractColorPicker::staticMetaObject;
    const int first = meta.methodOffset();
    QCOMPARE(meta.methodCount() - first, 3);
    QCOMPARE(meta.method(first).methodSignature(), QByteArray("colorChanged(std::optional<QColor>)"));
    QCOMPARE(meta.method(first).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(first + 1).methodSignature(), QByteArray("pickingStopped()"));
    QCOMPARE(meta.method(first + 1).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.method(first + 2).methodSignature(), QByteArray("setColor(std::optional<QColor>)"));
    QCOMPARE(meta.method(first + 2).methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.propertyCount(), QObject::staticMetaObject.propertyCount());
}

UIC_TEST_MAIN(tst_AbstractColorPicker)
#include "tst_AbstractColorPicker.moc"
