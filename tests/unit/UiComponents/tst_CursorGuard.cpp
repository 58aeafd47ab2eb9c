#include "TestMain.h"

#include <UiComponents/CursorGuard.h>

#include <memory>

class tst_CursorGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bringsTheFormerCursorBack();
    void widgetWithoutACursorFollowsItsParentAgain();
    void widgetDiesFirst();
    void withoutAWidgetTheApplicationHasTheCursor();
};

void tst_CursorGuard::bringsTheFormerCursorBack()
{
    QWidget widget;
    widget.setCursor(Qt::IBeamCursor);
    {
        const CursorGuard guard(&widget, Qt::CrossCursor);
        QCOMPARE(widget.cursor().shape(), Qt::CrossCursor);
    }
    QCOMPARE(widget.cursor().shape(), Qt::IBeamCursor);
}

void tst_CursorGuard::widgetWithoutACursorFollowsItsParentAgain()
{
    QWidget parent;
    parent.setCursor(Qt::IBeamCursor);
    QWidget child(&parent);
    {
        const CursorGuard guard(&child, Qt::CrossCursor);
        QCOMPARE(child.cursor().shape(), Qt::CrossCursor);
    }
    QCOMPARE(child.cursor().shape(), Qt::IBeamCursor);
    parent.setCursor(Qt::WaitCursor);
    QCOMPARE(child.cursor().shape(), Qt::WaitCursor);
}

// A guard that took a dead widget for none would take away an override cursor of the application's.
void tst_CursorGuard::widgetDiesFirst()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    {
        auto widget = std::make_unique<QWidget>();
        const CursorGuard guard(widget.get(), Qt::CrossCursor);
        widget.reset();
    }
    QVERIFY(QGuiApplication::overrideCursor());
    QGuiApplication::restoreOverrideCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_CursorGuard::withoutAWidgetTheApplicationHasTheCursor()
{
    {
        const CursorGuard guard(nullptr, Qt::CrossCursor);
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
    }
    QVERIFY(!QGuiApplication::overrideCursor());
}

UIC_TEST_MAIN(tst_CursorGuard)
#include "tst_CursorGuard.moc"
