#include "PipetteWindows.h"
#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/PopupColorPicker.h>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PickerChoice.h>

/**
 * What a user does in the gallery's window: clicks the colour field, picks a colour in the panel or in the
 * dialog, sees the field change on the screen.
 */
class tst_GalleryColorField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        CommandLine start;
        start.page = QStringLiteral("color-input");
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 40, 1100, 700);
        QVERIFY(RealInput::showAndActivate(m_window.get()));

        m_field = nullptr;
        m_disabledField = nullptr;
        const auto fields = m_window->page()->findChildren<ColorInputWidget*>();
        for (ColorInputWidget* field : fields) {
            (field->isEnabled() ? m_field : m_disabledField) = field;
        }
        QVERIFY(m_field && m_disabledField);
        m_button = qobject_cast<ColorPickerButton*>(m_field->anchorWidget());
        QVERIFY(m_button);
        // The window is on the screen, with the field in its first colour.
        QTRY_COMPARE(face(), *m_button->color());
    }

    void cleanup() { m_window.reset(); }

    void panelIsWhatAFieldOpens()
    {
        const QColor before = *m_button->color();
        QSignalSpy changed(m_field, &ColorInputWidget::colorChanged);
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(panel());
        QVERIFY(QTest::qWaitForWindowExposed(panel()->window()));
        const QWidget* const popup = panel()->window();

        const auto* palette = panel()->findChild<QWidget*>(QStringLiteral("colorMatrixPanel"));
        QToolButton* const chosen = palette->findChildren<QToolButton*>().at(50);
        QVERIFY(RealInput::click(chosen));
        QTRY_VERIFY(*m_button->color() != before);
        const QColor picked = *m_button->color();
        QVERIFY(chosen->isChecked());
        QVERIFY2(chosen->styleSheet().contains(picked.name()), qPrintable(picked.name()));
        QTRY_COMPARE(face(), picked);
        QVERIFY(popup->isVisible());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-colour-field-panel")));

        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_VERIFY(!popup->isVisible());
        QTRY_VERIFY(!m_button->isDown());
        QCOMPARE(*m_button->color(), picked);
        QCOMPARE(changed.count(), 1);
    }

    void pickerCanBeExchangedMeanwhile()
    {
        const QColor before = *m_button->color();
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(panel());
        const QPointer<QWidget> popup = panel()->window();
        choice()->setKind(PickerChoice::Kind::Dialog);
        QTRY_VERIFY(!popup->isVisible());
        QVERIFY(!m_button->isDown());
        QCOMPARE(*m_button->color(), before);

        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(dialog());
        const QPointer<QColorDialog> open = dialog();
        QCOMPARE(open->currentColor(), before);
        choice()->setKind(PickerChoice::Kind::Panel);
        QTRY_VERIFY(!open);
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(panel());
        QCOMPARE(panel()->currentColor(), std::optional<QColor>(before));
    }

    void pipettePicksFromTheScreen_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("field") << QStringLiteral("color-input");
        QTest::newRow("button") << QStringLiteral("color-picker-button");
    }

    void pipettePicksFromTheScreen()
    {
        QFETCH(QString, page);
        m_window->showPage(page);
        const auto pickers = m_window->page()->findChildren<PopupColorPicker*>();
        QVERIFY(!pickers.isEmpty());
        m_button = qobject_cast<ColorPickerButton*>(pickers.constFirst()->parent());
        QVERIFY(m_button && m_button->isEnabled());
        QTRY_COMPARE(face(), *m_button->color());
        const QColor target(47, 190, 93);
        QWidget patch(m_window.get());
        patch.setStyleSheet(QStringLiteral("background: %1;").arg(target.name()));
        patch.setAttribute(Qt::WA_StyledBackground);
        patch.setGeometry(m_window->width() - 160, m_window->height() - 160, 120, 120);
        patch.show();
        QTRY_COMPARE(RealInput::pixel(&patch, patch.rect().center()), target);

        QSignalSpy changed(m_button, &ColorPickerButton::colorChanged);
        openPipette();
        if (QTest::currentTestFailed()) {
            return;
        }
        QVERIFY(m_button->isDown());
        QCOMPARE(changed.count(), 0);
        QVERIFY(RealInput::moveTo(&patch, patch.rect().center()));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-colour-field-pipette-") + page));
        QVERIFY(RealInput::click(&patch));
        QTRY_VERIFY(PipetteWindows::views().isEmpty());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_button->color()->name(), target.name());
        QTRY_COMPARE(face(), target);

        // The panel is back, and has heard of it.
        QTRY_VERIFY(panel());
        QVERIFY(panel()->currentColor());
        QCOMPARE(panel()->currentColor()->name(), target.name());
    }

    void pipetteEndsWithThePicker()
    {
        const QColor before = *m_button->color();
        openPipette();
        if (QTest::currentTestFailed()) {
            return;
        }
        choice()->setKind(PickerChoice::Kind::Dialog);
        QVERIFY(PipetteWindows::views().isEmpty());
        QCOMPARE(*m_button->color(), before);
    }

    void pipetteEndsWithTheWindow()
    {
        openPipette();
        if (QTest::currentTestFailed()) {
            return;
        }
        m_window.reset();
        QVERIFY(PipetteWindows::views().isEmpty());
    }

    void pickedColourIsShown()
    {
        choice()->setKind(PickerChoice::Kind::Dialog);
        const QColor before = *m_button->color();
        QSignalSpy changed(m_field, &ColorInputWidget::colorChanged);
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(dialog());
        QVERIFY(m_button->isDown());

        const QColor picked = clickBasicColour(dialog(), 3, 2);
        QVERIFY(picked.isValid());
        QVERIFY(picked != before);
        // The field follows while the dialog is still open.
        QTRY_COMPARE(face(), picked);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-colour-field-picking")));

        QVERIFY(RealInput::click(dialog()->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)));
        QTRY_VERIFY(m_window->isActiveWindow());
        QTRY_VERIFY(!m_button->isDown());
        QCOMPARE(*m_button->color(), picked);
        QTRY_COMPARE(face(), picked);
        QCOMPARE(changed.count(), 1);
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("gallery-colour-field")));
    }

    void escapeBringsTheColourBack()
    {
        choice()->setKind(PickerChoice::Kind::Dialog);
        const QColor before = *m_button->color();
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(dialog());
        const QColor tried = clickBasicColour(dialog(), 4, 5);
        QVERIFY(tried.isValid() && tried != before);
        QTRY_COMPARE(face(), tried);

        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(m_window->isActiveWindow());
        QTRY_COMPARE(face(), before);
        QCOMPARE(*m_button->color(), before);
        QVERIFY(!m_button->isDown());
    }

private:
    QColor face() const { return RealInput::pixel(m_button, m_button->rect().center()); }
    PickerChoice* choice() const { return m_window->page()->findChild<PickerChoice*>(); }

    /// The one in the field's pop-up, while that is open.
    ColorPickerWidget* panel() const
    {
        const QWidget* const popup = QApplication::activePopupWidget();
        return popup ? popup->findChild<ColorPickerWidget*>() : nullptr;
    }

    QColorDialog* dialog() const
    {
        auto* found = qobject_cast<QColorDialog*>(QApplication::activeWindow());
        return found && found->isVisible() ? found : nullptr;
    }

    /// Clicks one of the basic colours of Qt's dialog as soon as the screen shows it, and returns it. Invalid
    /// when it could not be clicked.
    QColor clickBasicColour(QColorDialog* dialog, int row, int column) const
    {
        constexpr QSize cellSize(28, 24);
        const auto children = dialog->findChildren<QWidget*>();
        for (const QWidget* child : children) {
            if (child->inherits("QWellArray")) {
                const QPoint middle(column * cellSize.width() + cellSize.width() / 2,
                                    row * cellSize.height() + cellSize.height() / 2);
                const QColor shown = dialog->grab().toImage().pixelColor(child->mapTo(dialog, middle));
                const bool isClicked =
                    QTest::qWaitFor([=] { return RealInput::pixel(child, middle) == shown; }) &&
                    RealInput::click(child, middle);
                return isClicked ? shown : QColor();
            }
        }
        return {};
    }

    /// Clicks the field, and the pipette in its panel.
    void openPipette()
    {
        QVERIFY(RealInput::click(m_button));
        QTRY_VERIFY(panel());
        QVERIFY(QTest::qWaitForWindowExposed(panel()->window()));
        QVERIFY(RealInput::click(panel()->findChild<QToolButton*>(QStringLiteral("pipetteButton"))));
        QTRY_COMPARE(PipetteWindows::views().size(), QGuiApplication::screens().size());
        QTRY_VERIFY(PipetteWindows::views().constFirst()->windowHandle()->isExposed());
        QTRY_VERIFY(PipetteWindows::views().constFirst()->isActiveWindow());
    }

    std::unique_ptr<MainWindow> m_window;
    ColorInputWidget* m_field = nullptr;
    ColorInputWidget* m_disabledField = nullptr;
    ColorPickerButton* m_button = nullptr;
};

UIC_TEST_MAIN(tst_GalleryColorField)
#include "tst_GalleryColorField.moc"
