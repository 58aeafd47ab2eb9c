#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QAbstractButton>
#include <QToolButton>
#include <QTreeWidget>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/SheetEditor.h>
#include <gallery/Workbench.h>

/**
 * What a user does with the workbench: points at a widget, reads which rule colours it, changes the colour in
 * the sheet, and sees it on the screen.
 */
class tst_GalleryWorkbench : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void init()
    {
        CommandLine start;
        start.page = QStringLiteral("slider-input");
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 20, 1100, 760);
        QVERIFY(RealInput::showAndActivate(m_window.get()));
        m_box = m_window->page()->findChild<SliderInputWidget*>()->findChild<OvSpinBox*>();
        QVERIFY(m_box);
        QVERIFY(RealInput::click(child<QAbstractButton>("workbenchToggle")));
        QTRY_VERIFY(child<Workbench>("workbench")->isVisible());
        m_point = child<QAbstractButton>("workbenchPoint");
        m_facts = child<QTreeWidget>("widgetFacts");
        m_editor = child<SheetEditor>("sheetEditor");
    }

    void cleanup() { m_window.reset(); }

    void pointReadEditSee()
    {
        // The text of the number, where the sheet's field shows beside it.
        const QPoint spot(4, m_box->height() / 2);
        const QColor before = RealInput::pixel(m_box, spot);
        QVERIFY(RealInput::click(m_point));
        QTRY_VERIFY(m_point->isChecked());
        QVERIFY(RealInput::moveTo(m_box, spot));
        QTRY_VERIFY(outlined() != nullptr);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("workbench-pointing")));
        QVERIFY(RealInput::click(m_box, spot));
        QTRY_VERIFY(!m_point->isChecked());
        QVERIFY(!outlined());
        QCOMPARE(shown(), QStringLiteral("OvSpinBox#spinbox"));
        QVERIFY(!row(QStringLiteral("Class"))->text(1).isEmpty());

        QVERIFY(RealInput::clickInto(m_editor->viewport()));
        QVERIFY(RealInput::key(QStringLiteral("ctrl+End")));
        QVERIFY(RealInput::type(QStringLiteral("OvSpinBox { background: #123456")));
        QTRY_VERIFY(message().contains(QString::number(m_editor->blockCount())));
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        QCOMPARE(RealInput::pixel(m_box, spot), before);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("workbench-error")));
        QVERIFY(RealInput::type(QStringLiteral(" }")));
        QTRY_COMPARE(message(), QString());
        QTRY_COMPARE(RealInput::pixel(m_box, spot), QColor(0x12, 0x34, 0x56));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("workbench-edited")));
    }

    void escapeEnds()
    {
        QVERIFY(RealInput::key(QStringLiteral("F12")));
        QTRY_VERIFY(m_point->isChecked());
        QVERIFY(RealInput::moveTo(m_box, m_box->rect().center()));
        QTRY_VERIFY(outlined() != nullptr);
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QTRY_VERIFY(!m_point->isChecked());
        QVERIFY(!outlined());
        // The mouse is the widgets' again.
        QVERIFY(RealInput::clickInto(m_box));
    }

    void popupIsPointedAt()
    {
        m_window->showPage(QStringLiteral("color-input"));
        const auto fields = m_window->page()->findChildren<ColorInputWidget*>();
        const auto field =
            std::find_if(fields.cbegin(), fields.cend(), [](const ColorInputWidget* candidate) {
                return candidate->isEnabled() &&
                       candidate->parentWidget()->objectName() == QLatin1String("specimenCard");
            });
        QVERIFY(field != fields.cend());
        const auto* const anchor = (*field)->anchorWidget();
        QTRY_COMPARE(RealInput::pixel(anchor, anchor->rect().center()), *(*field)->color());
        QVERIFY(RealInput::click(anchor));
        QTRY_VERIFY(QApplication::activePopupWidget());
        QWidget* const popup = QApplication::activePopupWidget();
        QVERIFY(QTest::qWaitForWindowExposed(popup));
        QVERIFY(RealInput::key(QStringLiteral("F12")));
        QTRY_VERIFY(m_point->isChecked());
        const auto* const palette = popup->findChild<QWidget*>(QStringLiteral("colorMatrixPanel"));
        QToolButton* const button = palette->findChildren<QToolButton*>().at(20);
        QVERIFY(RealInput::moveTo(button, button->rect().center()));
        QTRY_VERIFY(button->findChild<QWidget*>(QStringLiteral("highlightFrame")));
        QVERIFY(RealInput::click(button));
        QTRY_COMPARE(shown(), QStringLiteral("QToolButton"));
        QTRY_VERIFY(!m_point->isChecked());
        QCOMPARE(QApplication::activePopupWidget(), popup);
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("workbench-pop-up")));
    }

private:
    template <typename Child>
    Child* child(const char* name) const
    {
        return m_window->findChild<Child*>(QLatin1String(name));
    }

    QWidget* outlined() const { return child<QWidget>("highlightFrame"); }

    /// The selector of the widget whose facts are shown.
    QString shown() const { return m_facts->topLevelItem(0)->text(0); }
    QString message() const { return child<QLabel>("workbenchMessage")->text(); }

    QTreeWidgetItem* row(const QString& name) const
    {
        return m_facts->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    std::unique_ptr<MainWindow> m_window;
    OvSpinBox* m_box = nullptr;
    QAbstractButton* m_point = nullptr;
    QTreeWidget* m_facts = nullptr;
    SheetEditor* m_editor = nullptr;
};

UIC_TEST_MAIN(tst_GalleryWorkbench)
#include "tst_GalleryWorkbench.moc"
