#pragma once

#include <QAbstractSpinBox>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

inline void typeInto(QAbstractSpinBox* box, const QString& text)
{
    box->selectAll();
    QTest::keyClicks(box, text);
}

/// Destroys a field that is its own window while @p spinBox in it holds "5", which is below its range. The
/// window takes the focus from the spin box then, which commits its text; the field is to report nothing.
template <typename Field, typename SpinBox>
void destroyWhileTyping(std::unique_ptr<Field> field, SpinBox* spinBox)
{
    field->show();
    QVERIFY(QTest::qWaitForWindowActive(field.get()));
    spinBox->setFocus();
    QVERIFY(spinBox->hasFocus());
    QSignalSpy reported(field.get(), &Field::valueChanged);
    QSignalSpy committed(spinBox, qOverload<decltype(spinBox->value())>(&SpinBox::valueChanged));
    typeInto(spinBox, QStringLiteral("5"));
    QCOMPARE(committed.size(), 0);
    field.reset();
    QCOMPARE(committed.size(), 1);
    QCOMPARE(reported.size(), 0);
}
