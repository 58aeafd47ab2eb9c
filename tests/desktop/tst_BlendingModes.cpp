#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorBlendingComboBox.h>

#include <QAbstractItemView>
#include <QScreen>

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
        m_style = std::make_unique<StyleController>();
        QVERIFY(m_style->setStyle(QStringLiteral("dark")));
    }

    void init()
    {
        m_language = std::make_unique<LanguageController>();
        m_window = std::make_unique<BlendStage>();
        m_box = m_window->comboBox();
        m_window->setGeometry(200, 100, 400, 300);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        QTRY_VERIFY(isAsOnScreen(m_window->canvas()));
    }

    void cleanup()
    {
        m_window.reset();
        m_language.reset();
    }

    void chosenModeIsOnTheScreen()
    {
        const QPoint lit = m_window->canvas()->rect().center();
        const QColor before = RealInput::pixel(m_window->canvas(), lit);
        QSignalSpy changed(m_box, &ColorBlendingComboBox::blendingModeChanged);
        QVERIFY(open());
        QVERIFY(clickOn(BlendingMode::Multiply));
        QTRY_COMPARE(m_window->canvas()->mode(), BlendingMode::Multiply);
        // Not by the pixel: what was below the list is on the screen for a moment when it closes.
        QTRY_VERIFY(isAsOnScreen(m_window->canvas()));
        QVERIFY(RealInput::pixel(m_window->canvas(), lit) != before);
        QCOMPARE(changed.count(), 1);

        // The present mode again is a choice as well.
        QVERIFY(open());
        QVERIFY(clickOn(BlendingMode::Multiply));
        QTRY_COMPARE(changed.count(), 2);
    }

    void keyboardChooses()
    {
        QSignalSpy changed(m_box, &ColorBlendingComboBox::blendingModeChanged);
        QVERIFY(open());
        QVERIFY(RealInput::key(QStringLiteral("Down")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(m_box->currentIndex(), 1);
        QCOMPARE(m_box->currentText(), QStringLiteral("Color"));
        QCOMPARE(m_window->canvas()->mode(), BlendingMode::Color);

        QVERIFY(open());
        QVERIFY(RealInput::key(QStringLiteral("Down")));
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!m_box->view()->isVisible());
        QCOMPARE(m_box->currentText(), QStringLiteral("Color"));
        QCOMPARE(changed.count(), 1);
    }

    void openListIsSortedAnew_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("German") << QStringLiteral("de");
        QTest::newRow("Japanese") << QStringLiteral("ja");
    }

    void openListIsSortedAnew()
    {
        QFETCH(QString, language);
        QVERIFY(open());
        QVERIFY(clickOn(BlendingMode::Overlay));
        QTRY_COMPARE(m_window->canvas()->mode(), BlendingMode::Overlay);
        QTRY_VERIFY(!m_box->view()->isVisible());
        const QStringList before = sortedNames();
        const int placeBefore = m_box->currentIndex();
        QSignalSpy changed(m_box, &ColorBlendingComboBox::blendingModeChanged);

        QVERIFY(open());
        m_language->setLanguage(language);
        QTRY_VERIFY(sortedNames() != before);

        // Sorted in the new language, behind the first, with the same mode chosen and marked.
        QVERIFY(m_box->view()->isVisible());
        QStringList expected = sortedNames();
        std::sort(expected.begin(), expected.end());
        QCOMPARE(sortedNames(), expected);
        QCOMPARE(m_box->blendingModeAt(0), static_cast<int>(BlendingMode::SourceOver));
        QCOMPARE(m_box->currentBlendingMode(), static_cast<int>(BlendingMode::Overlay));
        QVERIFY(m_box->currentIndex() != placeBefore);
        QCOMPARE(m_box->view()->currentIndex(), itemOf(BlendingMode::Overlay));
        // The list has room for the new names, and the screen shows them.
        QTRY_VERIFY(m_box->view()->sizeHintForColumn(0) <= m_box->view()->viewport()->width());
        QTRY_VERIFY(isAsOnScreen(m_box->view()->viewport()));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("blending-modes-") + language));
        QCOMPARE(changed.count(), 0);

        // What is clicked is what is chosen.
        QVERIFY(clickOn(BlendingMode::Difference));
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.constFirst().constFirst().value<BlendingMode>(), BlendingMode::Difference);
        QCOMPARE(m_window->canvas()->mode(), BlendingMode::Difference);
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

    /// Of all modes but the first.
    QStringList sortedNames() const
    {
        QStringList names;
        for (int i = 1; i < m_box->count(); ++i) {
            names.append(m_box->itemText(i));
        }
        return names;
    }

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

    std::unique_ptr<StyleController> m_style;
    std::unique_ptr<LanguageController> m_language;
    std::unique_ptr<BlendStage> m_window;
    ColorBlendingComboBox* m_box = nullptr;
};

UIC_TEST_MAIN(tst_BlendingModes)
#include "tst_BlendingModes.moc"
