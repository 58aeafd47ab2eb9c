#include "Settle.h"
#include "TestMain.h"

#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/DialogGuideWidget.h>

#include <gallery/GalleryApplication.h>
#include <gallery/LanguageController.h>
#include <gallery/MainWindow.h>
#include <gallery/MessageWatch.h>
#include <gallery/Page.h>
#include <gallery/PageList.h>
#include <gallery/PageRegistry.h>
#include <gallery/StyleController.h>
#include <gallery/ValueText.h>
#include <memory>

class tst_MainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GalleryApplication::prepare();
        m_messages = std::make_unique<MessageWatch>();
    }

    void init() { m_messages->takeWarnings(); }

    void cleanup()
    {
        m_window.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
        qApp->setStyleSheet(QString());
        QCOMPARE(m_messages->takeWarnings(), QStringList());
    }

    void startsOnTheFirstPage()
    {
        open();
        const PageInfo first = PageRegistry::pages().constFirst();
        QCOMPARE(m_window->state().page, first.id);
        QCOMPARE(m_window->state().style, QStringLiteral("dark"));
        QCOMPARE(shownTitle(), first.title);
        QCOMPARE(pageList()->currentPage(), first.id);
        QVERIFY(m_window->windowTitle().contains(first.title));
    }

    void startsWhereItIsAsked()
    {
        CommandLine start;
        start.page = "layouts";
        start.style = "light";
        start.language = "de";
        start.direction = Qt::RightToLeft;
        open(start);
        QCOMPARE(m_window->state().arguments(), start.arguments());
        QCOMPARE(m_window->page()->layoutDirection(), Qt::RightToLeft);
        QVERIFY(button("styleSwitch", "Hell")->isChecked());
        QVERIFY(button("directionSwitch", "RTL")->isChecked());
    }

    void choosingAPage()
    {
        open();
        const QPointer<Page> before = m_window->page();
        pageList()->step(1);
        QCOMPARE(m_window->state().page, PageRegistry::pages().at(1).id);
        QVERIFY(!before);
        QCOMPARE(m_window->findChildren<Page*>().size(), 1);

        const QPointer<Page> after = m_window->page();
        m_window->showPage(m_window->state().page);
        QVERIFY(after);
    }

    void unknownPage()
    {
        open();
        const QString before = m_window->state().page;
        m_window->showPage("no-such");
        m_window->showPage(QString());
        QCOMPARE(m_window->state().page, before);
    }

    void keysMoveThroughTheList()
    {
        open();
        const QVector<PageInfo> pages = PageRegistry::pages();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(m_window->state().page, pages.at(1).id);
        // Over a heading, which is no page.
        for (int i = 2; i < pages.size(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            QCOMPARE(m_window->state().page, pages.at(i).id);
        }
        QTest::keyClick(m_window.get(), Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(m_window->state().page, pages.at(pages.size() - 2).id);
        QTest::keyClick(m_window.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QTest::keyClick(m_window.get(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(m_window->state().page, pages.last().id);
    }

    void keyEntersTheBubble()
    {
        open();
        DialogGuideWidget bubble(m_window.get());
        bubble.setInfo({"Here", QString(), "Next", QString(), QString()});
        bubble.show();
        QTest::keyClick(m_window.get(), Qt::Key_F6);
        QTRY_VERIFY(bubble.isAncestorOf(QApplication::focusWidget()));
    }

    void searching()
    {
        open();
        QTest::keyClick(m_window.get(), Qt::Key_F, Qt::ControlModifier);
        QLineEdit* const search = pageList()->searchField();
        QCOMPARE(QApplication::focusWidget(), search);
        QTest::keyClicks(search, "ovframe");
        QCOMPARE(pageList()->listedPages(), QStringList{"frame"});
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(m_window->state().page, QStringLiteral("frame"));
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(pageList()->listedPages().size(), PageRegistry::pages().size());
        QCOMPARE(pageList()->currentPage(), QStringLiteral("frame"));
        QTest::keyClick(search, Qt::Key_Down);
        QVERIFY(m_window->state().page != "frame");
    }

    void searchThatHidesTheCurrentPage()
    {
        open();
        const QPointer<Page> page = m_window->page();
        const QString before = m_window->state().page;
        pageList()->searchField()->setText("zebra");
        QCOMPARE(pageList()->listedPages(), QStringList());
        QCOMPARE(pageList()->currentPage(), QString());
        QTest::keyClick(pageList()->searchField(), Qt::Key_Down);
        QCOMPARE(m_window->state().page, before);
        pageList()->searchField()->clear();
        QCOMPARE(pageList()->currentPage(), before);
        QVERIFY(page);
    }

    void languageRebuildsThePage()
    {
        open();
        QVERIFY(button("styleSwitch", "Dark"));
        auto* languages = m_window->findChild<QWidget*>("languageSwitch")->findChild<QComboBox*>();
        languages->setFocus();
        QTest::keyClick(languages, Qt::Key_Down);
        QCOMPARE(m_window->state().language, QStringLiteral("es"));
        QCOMPARE(shownTitle(), PageRegistry::find(m_window->state().page)->title);
        QVERIFY(shownTitle() != QStringLiteral("Colour button"));
        QVERIFY(button("styleSwitch", "Oscuro"));
        m_window->setLanguage("en");
        QCOMPARE(shownTitle(), QStringLiteral("Colour button"));
        QCOMPARE(languages->currentText(), QStringLiteral("English"));
    }

    void directionRebuildsThePage()
    {
        open();
        button("directionSwitch", "RTL")->click();
        QCOMPARE(m_window->state().direction, Qt::RightToLeft);
        QCOMPARE(m_window->page()->layoutDirection(), Qt::RightToLeft);
        const QPointer<Page> page = m_window->page();
        m_window->setDirection(Qt::RightToLeft);
        QVERIFY(page);
        button("directionSwitch", "LTR")->click();
        QCOMPARE(m_window->state().direction, Qt::LeftToRight);
    }

    void styleSwitch()
    {
        open();
        button("styleSwitch", "None")->click();
        QCOMPARE(m_window->state().style, QStringLiteral("none"));
        QCOMPARE(qApp->styleSheet(), QString());
        QTemporaryFile sheet;
        QVERIFY(sheet.open());
        QVERIFY(m_window->setStyleName(sheet.fileName()));
        QCOMPARE(m_window->state().style, sheet.fileName());
        QVERIFY(button("styleSwitch", QString::fromUtf8("File…"))->isChecked());
    }

    // The sheets set properties, which a page reads after it is laid out: after a switch the rows are those
    // of a page that was built in that style.
    void propertyRowsFollowTheStyle()
    {
        open();
        const QVector<PageInfo> pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            m_window->showPage(page.id);
            settle();
            QVERIFY(m_window->setStyleName(m_window->state().style == "dark" ? "light" : "dark"));
            settle();
            const QStringList switched = rows();
            m_window->showPage(page.id == "frame" ? "layouts" : "frame");
            m_window->showPage(page.id);
            settle();
            QVERIFY2(rows() == switched, qPrintable(page.id));
        }
    }

    // A plane places its marker in the size that it has: a page that sets the colour too early shows another.
    void markersAreInPlace()
    {
        open();
        for (const char* page : {"color-plane", "color-selector"}) {
            m_window->showPage(page);
            settle();
            const QImage shown = m_window->page()->grab().toImage();
            m_window->page()->prepareForPicture();
            settle();
            QVERIFY2(m_window->page()->grab().toImage() == shown, page);
        }
    }

    void titlesAreNotElided_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("language");
        const auto builtIn = StyleController::builtInStyles();
        for (const QString& style : builtIn) {
            const auto languages = LanguageController::languages();
            for (const QString& language : languages) {
                QTest::addRow("%s, %s", qPrintable(style), qPrintable(language)) << style << language;
            }
        }
    }

    void titlesAreNotElided()
    {
        QFETCH(QString, style);
        QFETCH(QString, language);
        open();
        QVERIFY(m_window->setStyleName(style));
        m_window->setLanguage(language);
        QCoreApplication::processEvents();
        const auto* list = m_window->findChild<QListWidget*>("pageList");
        QVERIFY(list->sizeHintForColumn(0) <= list->viewport()->width());
        pageList()->searchField()->setText("slider");
        const int width = list->width();
        pageList()->searchField()->clear();
        QCOMPARE(list->width(), width);
    }

    // A rule about a name that no widget has is dead.
    void styleSheetNamesExist()
    {
        QFile sheet(":/gallery/dark.qss");
        QVERIFY(sheet.open(QIODevice::ReadOnly));
        QSet<QString> unseen;
        static const QRegularExpression name("^#([A-Za-z]+)", QRegularExpression::MultilineOption);
        auto names = name.globalMatch(QString::fromUtf8(sheet.readAll()));
        while (names.hasNext()) {
            unseen.insert(names.next().captured(1));
        }
        QVERIFY(unseen.size() > 10);

        open();
        const QVector<PageInfo> pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            m_window->showPage(page.id);
            const auto widgets = m_window->findChildren<QWidget*>();
            for (const QWidget* widget : widgets) {
                unseen.remove(widget->objectName());
            }
        }
        QVERIFY2(unseen.isEmpty(), qPrintable(QStringList(unseen.cbegin(), unseen.cend()).join(", ")));
    }

    void unreadableStyleFile()
    {
        open();
        QVERIFY(!m_window->setStyleName("/no/such/file.qss"));
        QCOMPARE(m_window->state().style, QStringLiteral("dark"));
        QVERIFY(button("styleSwitch", "Dark")->isChecked());
    }

    void cancelledStyleFile()
    {
        open();
        button("styleSwitch", QString::fromUtf8("File…"))->click();
        auto* dialog = m_window->findChild<QFileDialog*>();
        QVERIFY(dialog);
        dialog->reject();
        QVERIFY(button("styleSwitch", "Dark")->isChecked());
        QCOMPARE(m_window->state().style, QStringLiteral("dark"));
    }

    void scaleAsksForARestart()
    {
        open();
        QSignalSpy restart(m_window.get(), &MainWindow::restartRequested);
        auto* scales = m_window->findChild<QWidget*>("scaleSwitch")->findChild<QComboBox*>();
        QCOMPARE(scales->currentData().toDouble(), 1.0);
        scales->setFocus();
        QTest::keyClick(scales, Qt::Key_End);
        QCOMPARE(restart.count(), 1);
        QCOMPARE(restart.first().first().toDouble(), 2.0);
    }

    // The bubble of the tour is a child of the search field.
    void closedDuringTheTour()
    {
        CommandLine start;
        start.page = "dialog-guide";
        open(start);
        m_window->page()->properties()->findChild<QPushButton*>()->click();
        QVERIFY(pageList()->searchField()->findChild<DialogGuideWidget*>());
        m_window.reset();
    }

private:
    void open(const CommandLine& start = CommandLine())
    {
        m_window = std::make_unique<MainWindow>(start);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    PageList* pageList() const { return m_window->findChild<PageList*>(); }

    QAbstractButton* button(const QString& group, const QString& text) const
    {
        const auto buttons = m_window->findChild<QWidget*>(group)->findChildren<QAbstractButton*>();
        for (QAbstractButton* candidate : buttons) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    QString shownTitle() const { return m_window->page()->findChild<QLabel*>("pageTitle")->text(); }

    /// The values of the controls of the page, each with its name.
    QStringList rows() const
    {
        QStringList values;
        const auto* form = m_window->page()->properties()->findChild<QFormLayout*>();
        for (int row = 0; row < form->rowCount(); ++row) {
            QLayoutItem* const item = form->itemAt(row, QFormLayout::FieldRole);
            const QWidget* const control = item ? item->widget() : nullptr;
            if (!control) {
                continue;
            }
            const auto* button = control->findChild<ColorPickerButton*>();
            const QVariant value = button ? QVariant(button->color().value_or(QColor()))
                                          : control->property(control->metaObject()->userProperty().name());
            values.append(control->accessibleName() + " = " + valueText(value));
        }
        return values;
    }

    std::unique_ptr<MessageWatch> m_messages;
    std::unique_ptr<MainWindow> m_window;
};

UIC_TEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
