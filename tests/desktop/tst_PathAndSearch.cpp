#include "RealInput.h"
#include "TestMain.h"

#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/SearchWidget.h>

#include <gallery/CommandLine.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>

/**
 * What a user does with the fields for folders and searches, in the gallery's window.
 */
class tst_PathAndSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void cleanup()
    {
        QToolTip::hideText();
        m_window.reset();
    }

    void typedPathIsReported()
    {
        QVERIFY(open(QStringLiteral("path-selection")));
        QTRY_VERIFY(!m_field->findChild<QLabel*>(QStringLiteral("availableLabel"))
                         ->text()
                         .endsWith(QLatin1String("...")));
        QSignalSpy changed(m_field, &PathSelectionWidget::pathChanged);
        // The home folder is shown by its name, which goes when the user comes.
        QCOMPARE(m_edit->text(), QStringLiteral("Home folder"));
        QVERIFY(RealInput::click(m_edit));
        QTRY_COMPARE(m_edit->text(), QString());
        QVERIFY(RealInput::type(QStringLiteral("/tmp/new clips")));
        QTRY_COMPARE(m_field->path(), QStringLiteral("/tmp/new clips"));
        QTRY_VERIFY(!changed.isEmpty() &&
                    changed.last().first().toString() == QLatin1String("/tmp/new clips"));
        QVERIFY(changed.count() < 14);
    }

    void browsedFolderIsTaken()
    {
        const QTemporaryDir folder;
        QVERIFY(open(QStringLiteral("path-selection")));
        QVERIFY(RealInput::click(m_field->findChild<QToolButton*>(QStringLiteral("pathBrowseButton"))));
        QFileDialog* dialog = nullptr;
        QTRY_VERIFY((dialog = qobject_cast<QFileDialog*>(QApplication::activeWindow())) != nullptr);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        // Nothing was chosen yet, so it starts from the computer.
        QCOMPARE(dialog->directory().absolutePath(), QDir::rootPath());
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        QVERIFY(name);
        QVERIFY(RealInput::click(name));
        QTRY_VERIFY(name->hasFocus());
        name->selectAll();
        QVERIFY(RealInput::type(folder.path()));
        QTRY_COMPARE(name->text(), folder.path());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("path-browsing")));
        // The list of completions takes the first.
        QVERIFY(RealInput::key(QStringLiteral("Escape")));
        QVERIFY(RealInput::key(QStringLiteral("Return")));
        QTRY_COMPARE(m_field->path(), folder.path());
        QTRY_VERIFY(m_window->isActiveWindow());
        QCOMPARE(m_edit->text(), folder.path());
    }

    void toolTipIsAtTheLineEdit()
    {
        QVERIFY(open(QStringLiteral("path-selection")));
        QVERIFY(RealInput::clickInto(m_edit));
        QVERIFY(RealInput::type(QStringLiteral("relative")));
        QTRY_COMPARE(m_field->path(), QStringLiteral("relative"));
        QVERIFY(!m_field->checkPath());
        QTRY_VERIFY(QToolTip::isVisible());
        QWidget* tip = nullptr;
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            tip = window->inherits("QTipLabel") && window->isVisible() ? window : tip;
        }
        QVERIFY(tip);
        QVERIFY(QTest::qWaitForWindowExposed(tip));
        const QPoint spot = m_edit->mapToGlobal(m_edit->pos() + QPoint(0, m_edit->height() / 2));
        // Qt keeps a tip clear of the mouse's arrow.
        const QPoint offset = tip->pos() - spot;
        QVERIFY2(offset.x() >= 0 && offset.x() <= 4 && offset.y() >= 0 && offset.y() <= 24,
                 qPrintable(QStringLiteral("%1, %2").arg(offset.x()).arg(offset.y())));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("path-tool-tip")));
        QVERIFY(RealInput::type(QStringLiteral("x")));
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(m_edit->toolTip(), QString());
    }

    void errorIsMarkedUntilTheNextReport()
    {
        QVERIFY(open(QStringLiteral("path-selection")));
        const auto* frame = m_field->findChild<QWidget*>(QStringLiteral("pathSelectionFrame"));
        const QPoint border(frame->width() / 2, 0);
        const QColor usual = RealInput::pixel(frame, border);
        m_field->setErrorDisplayType(PathSelectionWidget::Label);
        QVERIFY(RealInput::clickInto(m_edit));
        QVERIFY(RealInput::type(QStringLiteral("relative")));
        QSignalSpy changed(m_field, &PathSelectionWidget::pathChanged);
        QTRY_VERIFY(!changed.isEmpty() && changed.last().first().toString() == QLatin1String("relative"));
        QVERIFY(!m_field->checkPath());
        const auto* label = m_field->findChild<QWidget*>(QStringLiteral("errorLabel"));
        QTRY_VERIFY(label->isVisible());
        const auto isRed = [frame, border] {
            const QColor color = RealInput::pixel(frame, border);
            return color.red() > color.green() + 60;
        };
        QVERIFY(usual.red() <= usual.green() + 60);
        QTRY_VERIFY(isRed());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("path-error")));
        QVERIFY(RealInput::type(QStringLiteral("/x")));
        QTRY_VERIFY(!label->isVisible());
        QTRY_VERIFY(!isRed());
    }

    void wheelOverThePathScrollsThePanel()
    {
        QVERIFY(open(QStringLiteral("path-selection")));
        m_window->resize(1100, 420);
        auto* area = m_window->page()->findChild<QScrollArea*>(QStringLiteral("specimenArea"));
        QVERIFY(area);
        QTRY_VERIFY(area->verticalScrollBar()->maximum() > 0);
        const QString before = m_field->path();
        QVERIFY(RealInput::wheel(m_edit, m_edit->rect().center(), -1));
        QTRY_VERIFY(area->verticalScrollBar()->value() > 0);
        QCOMPARE(m_field->path(), before);
        QVERIFY(!m_edit->hasFocus());
    }

    void searchIsClearedByMouse()
    {
        QVERIFY(open(QStringLiteral("search")));
        auto* button = m_search->findChild<QToolButton*>();
        QVERIFY(!button->isVisible());
        QVERIFY(RealInput::clickInto(m_edit));
        QVERIFY(RealInput::type(QStringLiteral("beach")));
        QTRY_VERIFY(button->isVisible());
        QVERIFY(RealInput::moveTo(m_edit, m_edit->rect().center()));
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("search")));
        QVERIFY(RealInput::click(button));
        QTRY_COMPARE(m_search->text(), QString());
        QVERIFY(!button->isVisible());
        QVERIFY(m_edit->hasFocus());
    }

    void placeholderFollowsTheMouse()
    {
        QVERIFY(open(QStringLiteral("search")));
        const auto placeholder = [this] { return m_edit->palette().color(QPalette::PlaceholderText); };
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        QTRY_COMPARE(placeholder(), m_search->GetPlaceholderColor());
        QVERIFY(RealInput::moveTo(m_edit, m_edit->rect().center()));
        QTRY_COMPARE(placeholder(), m_search->GetPlaceholderHoverColor());
        QVERIFY(RealInput::saveScreenshot(QStringLiteral("search-hovered")));
        QVERIFY(RealInput::moveTo(m_window.get(), QPoint(5, 5)));
        QTRY_COMPARE(placeholder(), m_search->GetPlaceholderColor());
        // The keyboard polishes it again.
        QVERIFY(RealInput::key(QStringLiteral("Tab")));
        m_edit->setFocus();
        QTRY_VERIFY(m_edit->hasFocus());
        QCOMPARE(placeholder(), m_search->GetPlaceholderColor());
    }

private:
    bool open(const QString& page)
    {
        CommandLine start;
        start.page = page;
        m_window = std::make_unique<MainWindow>(start);
        m_window->setGeometry(40, 40, 1100, 700);
        const bool isActive = RealInput::showAndActivate(m_window.get());
        m_field = find<PathSelectionWidget>();
        m_search = find<SearchWidget>();
        m_edit = m_field ? m_field->findChild<QLineEdit*>()
                         : (m_search ? m_search->findChild<QLineEdit*>() : nullptr);
        return isActive && m_edit;
    }

    /// The first part of that kind and name that can be used.
    template <typename Widget>
    Widget* find(const char* name = nullptr) const
    {
        const auto all = m_window->page()->findChildren<Widget*>(QLatin1String(name));
        for (Widget* widget : all) {
            if (widget->isEnabled() && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    std::unique_ptr<MainWindow> m_window;
    PathSelectionWidget* m_field = nullptr;
    SearchWidget* m_search = nullptr;
    QLineEdit* m_edit = nullptr;
};

UIC_TEST_MAIN(tst_PathAndSearch)
#include "tst_PathAndSearch.moc"
