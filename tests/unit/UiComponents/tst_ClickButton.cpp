#include "FreedMemory.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/WidgetColorPickerButton.h>

#include <memory>

class tst_ClickButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAToolButtonToStyleSheets()
    {
        const ClickButton button;
        QCOMPARE(button.metaObject(), &QToolButton::staticMetaObject);
    }

    void deletedByAClick_data()
    {
        auto* guideButton = new GuideButton;
        guideButton->setGuideInfo(std::make_unique<GuideInfo>());

        QTest::addColumn<ClickButton*>("made");
        QTest::addColumn<bool>("isReleased");
        QTest::newRow("ClickButton") << new ClickButton << false;
        QTest::newRow("ClickButton, as it is released") << new ClickButton << true;
        auto* splitButton = new ClickButton;
        splitButton->setPopupMode(QToolButton::MenuButtonPopup);
        QTest::newRow("ClickButton of two parts") << splitButton << false;
        QTest::newRow("ColorPickerButton") << static_cast<ClickButton*>(new ColorPickerButton) << false;
        QTest::newRow("GuideButton") << static_cast<ClickButton*>(guideButton) << false;
        QTest::newRow("WidgetColorPickerButton")
            << static_cast<ClickButton*>(new WidgetColorPickerButton) << false;
    }

    void splitButtonForgetsItsPressedPart()
    {
        ClickButton button;
        button.setPopupMode(QToolButton::MenuButtonPopup);
        QMenu menu;
        menu.addAction(QStringLiteral("Any"));
        button.setMenu(&menu);
        button.show();
        const QImage before = button.grab().toImage();
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
        QVERIFY(!button.isDown());
        QCOMPARE(button.grab().toImage(), before);
    }

    // Through the mouse, Qt's own handlers run after the slot, and QToolButton's writes into the button.
    void deletedByAClick()
    {
        QFETCH(ClickButton*, made);
        QFETCH(bool, isReleased);
        const QPointer<ClickButton> button = made;
        button->setEnabled(true);
        const auto destroy = [&button] { delete button; };
        if (isReleased) {
            connect(button.data(), &QAbstractButton::released, this, destroy);
        } else {
            connect(button.data(), &QAbstractButton::clicked, this, destroy);
        }
        button->show();
        const FreedMemoryWatch memory;
        QTest::mouseClick(button.data(), Qt::LeftButton);
        QVERIFY(!button);
        QVERIFY(memory.deleted() > 0);
        QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        QVERIFY(!QApplication::activePopupWidget());
    }
};

UIC_TEST_MAIN(tst_ClickButton)
#include "tst_ClickButton.moc"
