#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorBlendingComboBox.h>

#include <algorithm>
#include <gallery/BlendStage.h>
#include <gallery/GalleryApplication.h>
#include <gallery/LanguageController.h>
#include <gallery/StyleController.h>

/**
 * A user chooses a blending mode from the list, also while the language changes under the open list.
 */
class tst_BlendingModes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GalleryApplication::prepare();
        QVERIFY(StyleController().setStyle(QStringLiteral("dark")));
    }

    void init()
    {
        m_language = std::make_unique<LanguageController>();
        m_window = std::make_unique<BlendStage>();
        m_box = m_window->findChild<ColorBlendingComboBox*>();
        m_canvas = m_window->findChild<BlendCanvas*>();
        m_window->setGeometry(200, 100, 400, 300);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        QTRY_VERIFY(isAsOnScreen(m_canvas));
    }

    void cleanup()
    {
        m_window.reset();
        m_language.reset();
    }

    void chosenModeIsOnTheScreen()
    {
        const QPoint lit = m_canvas->rect().center();
        const QColor before = RealInput::pixel(m_canvas, lit);
        QSignalSpy changed(m_box, &ColorBlendingComboBox::blendingModeChanged);
        QVERIFY(open());
        QVERIFY(clickOn(BlendingMode::Multiply));
        QTRY_COMPARE(changed.count(), 1);
        // Not by the pixel: what was below the list is on the screen for a moment when it closes.
        QTRY_VERIFY(isAsOnScreen(m_canvas));
        QVERIFY(RealInput::pixel(m_canvas, lit) != before);

        // The present mode again is a choice as well.
        QVERIFY(open());
        QVERIFY(clickOn(BlendingMode::Multiply));
        QTRY_COMPARE(changed.count(), 2);
    }

private:
    bool open() const
    {
        return RealInput::click(m_box) && QTest::qWaitFor([this] { return m_box->view()->isVisible(); }) &&
               QTest::qWaitForWindowExposed(m_box->view()->window());
    }

    bool clickOn(BlendingMode mode) const
    {
        m_box->view()->scrollTo(itemOf(mode));
        return RealInput::click(m_box->view()->viewport(), m_box->view()->visualRect(itemOf(mode)).center());
    }

    QModelIndex itemOf(BlendingMode mode) const { return m_box->model()->index(m_box->indexOf(mode), 0); }

    /// Whether the screen shows @p widget as it would paint itself now.
    bool isAsOnScreen(QWidget* widget) const
    {
        const QPoint corner = widget->mapToGlobal(QPoint());
        const QImage shown = widget->screen()
                                 ->grabWindow(0, corner.x(), corner.y(), widget->width(), widget->height())
                                 .toImage();
        return shown.convertToFormat(QImage::Format_RGB32) ==
               widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    std::unique_ptr<LanguageController> m_language;
    std::unique_ptr<BlendStage> m_window;
    ColorBlendingComboBox* m_box = nullptr;
    BlendCanvas* m_canvas = nullptr;
};

UIC_TEST_MAIN(tst_BlendingModes)
#include "tst_BlendingModes.moc"
