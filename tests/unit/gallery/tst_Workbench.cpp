#include "TestMain.h"

#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>

#include <gallery/CodeText.h>
#include <gallery/GalleryApplication.h>
#include <gallery/MainWindow.h>
#include <gallery/MessageWatch.h>
#include <gallery/Page.h>
#include <gallery/SheetEditor.h>
#include <gallery/WidgetFacts.h>
#include <gallery/Workbench.h>
#include <memory>

class tst_Workbench : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GalleryApplication::prepare();
        m_messages = std::make_unique<MessageWatch>();
    }

    void init()
    {
        CommandLine start;
        start.page = "color-input";
        m_window = std::make_unique<MainWindow>(start);
        m_window->resize(1100, 760);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        workbench()->show();
        m_messages->takeWarnings();
    }

    void cleanup()
    {
        m_window.reset();
        qApp->setStyleSheet(QString());
        QCOMPARE(m_messages->takeWarnings(), QStringList());
        QVERIFY(!QApplication::overrideCursor());
    }

    void factsOfAWidget()
    {
        workbench()->inspect(button());
        QCOMPARE(value("Class"), QString("ColorPickerButton"));
        QCOMPARE(value("Base classes"), QString("QToolButton, QAbstractButton, QWidget, QObject"));
        QCOMPARE(value("Object name"), QString("colorPicker"));
        QCOMPARE(value("multiColor"), QString("false"));
        QCOMPARE(value("qproperty-checkable"), button()->isCheckable() ? "true" : "false");
        const QString place = QString("line %1  (0, 1, 1)").arg(lineOf("ColorPickerButton:hover {"));
        QCOMPARE(value("ColorPickerButton:hover"), place);
        QVERIFY(row("ColorPickerButton:hover")->font(0).italic());
        QVERIFY(row("ColorInputWidget"));
        QVERIFY(row("QWidget#color"));
    }

    void factsFollowTheWidget()
    {
        workbench()->inspect(button());
        QVERIFY(row("ColorPickerButton:disabled")->font(0).italic());
        button()->setEnabled(false);
        QVERIFY(!row("ColorPickerButton:disabled")->font(0).italic());
        field()->setColor(QColor());
        QCOMPARE(value("nullColor"), QString("true"));
        m_window->showPage("frame");
        QCOMPARE(shown(), QString());
    }

    void rulesLeadToTheirLines()
    {
        workbench()->inspect(button());
        facts()->setFocus();
        facts()->setCurrentItem(row("ColorPickerButton:hover"));
        QCOMPARE(editor()->textCursor().blockNumber() + 1, lineOf("ColorPickerButton:hover {"));
        QTest::keyClick(facts(), Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), editor());
    }

    void widgetsAroundAreReachedByKeys()
    {
        workbench()->inspect(button());
        facts()->setFocus();
        facts()->setCurrentItem(row("ColorInputWidget"));
        QVERIFY(field()->findChild<QWidget*>("highlightFrame"));
        QTest::keyClick(facts(), Qt::Key_Return);
        QCOMPARE(shown(), QString("ColorInputWidget"));
        QVERIFY(!field()->findChild<QWidget*>("highlightFrame"));
        // The outline of a widget is not one of its children.
        facts()->setCurrentItem(row("ColorPickerButton#colorPicker"));
        workbench()->inspect(button());
        QVERIFY(!row("HighlightFrameOverlay#highlightFrame"));
    }

    void outlineOfThePageIsOneOfTheChildren()
    {
        m_window->showPage("highlight-frame");
        auto* target = m_window->page()->findChild<QFrame*>("highlightTarget");
        pointButton()->click();
        // The layout of a new page takes a few turns.
        QTRY_COMPARE((move(target), shown()), QString("QFrame#highlightTarget"));
        QCOMPARE(
            facts()
                ->findItems("HighlightFrameOverlay#highlightFrame", Qt::MatchExactly | Qt::MatchRecursive)
                .size(),
            1);
        pointButton()->click();
    }

    void pointing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("click") << 0 << true;
        QTest::newRow("Enter") << int(Qt::Key_Return) << true;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
    }

    void pointing()
    {
        QFETCH(int, key);
        QFETCH(bool, isTaken);
        QSignalSpy started(button(), &ColorPickerButton::pickingStarted);
        pointButton()->click();
        // The face lies over the button and is transparent for the mouse.
        auto* face = button()->findChild<QWidget*>("color");
        move(face);
        QCOMPARE(shown(), QString("QWidget#color"));
        QVERIFY(face->findChild<QWidget*>("highlightFrame"));
        move(field()->parentWidget());
        QVERIFY(!face->findChild<QWidget*>("highlightFrame"));
        QCOMPARE(shown(), QString("QWidget#propertyRows"));
        move(face);
        if (key) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key(key));
        } else {
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, inWindow(face));
        }
        QVERIFY(!pointButton()->isChecked());
        QCOMPARE(facts()->hasFocus(), isTaken);
        QCOMPARE(shown(), QString("QWidget#color"));
        QVERIFY(!face->findChild<QWidget*>("highlightFrame"));
        QCOMPARE(started.count(), 0);
        move(field()->parentWidget());
        QCOMPARE(shown(), QString("QWidget#color"));
    }

    void disabledWidgetsAreSeenToo()
    {
        field()->setEnabled(false);
        pointButton()->click();
        move(button());
        QCOMPARE(shown(), QString("QWidget#color"));
        pointButton()->click();
    }

    void buttonEndsIt()
    {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, inWindow(pointButton()));
        QVERIFY(pointButton()->isChecked());
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, inWindow(pointButton()));
        QVERIFY(!pointButton()->isChecked());
        QCOMPARE(shown(), QString());
    }

    void endsWithTheWorkbench()
    {
        pointButton()->click();
        move(button());
        workbench()->hide();
        QVERIFY(!QApplication::overrideCursor());
        workbench()->show();
        pointButton()->click();
        move(button());
        m_window.reset();
    }

    void key()
    {
        workbench()->hide();
        button()->setFocus();
        QTest::keyClick(m_window.get(), Qt::Key_F12);
        QVERIFY(workbench()->isVisible());
        QVERIFY(pointButton()->isChecked());
        QCOMPARE(shown(), QString("ColorPickerButton#colorPicker"));
        QTest::keyClick(m_window.get(), Qt::Key_F12);
        QVERIFY(!pointButton()->isChecked());
    }

    void editsAreSeenAtOnce()
    {
        workbench()->inspect(button());
        editor()->appendPlainText("#colorPicker { min-width: 222px; }");
        QVERIFY(qApp->styleSheet().contains("222px"));
        QVERIFY(button()->minimumSizeHint().width() >= 222);
        QCOMPARE(value("min-width"), QString("222px"));
        // The rules of the gallery's own window stay behind them.
        QVERIFY(qApp->styleSheet().indexOf("#specimenCard") > qApp->styleSheet().indexOf("222px"));
    }

    void pointingAtTheWorkbenchItself()
    {
        for (QWidget* part : {static_cast<QWidget*>(editor()), static_cast<QWidget*>(facts()),
                              static_cast<QWidget*>(m_window->findChild<QLabel*>("workbenchMessage"))}) {
            workbench()->inspect(part);
            part->setFocus();
            editor()->appendPlainText("{");
            editor()->undo();
        }
        workbench()->inspect(button());
        editor()->appendPlainText("#colorPicker { min-width: 222px; }");
        QVERIFY(qApp->styleSheet().contains("222px"));
        workbench()->inspect(editor());
    }

    void aBrokenSheetKeepsTheLastGoodOne()
    {
        const QString good = qApp->styleSheet();
        editor()->appendPlainText("#colorPicker { min-width: 222px;");
        QCOMPARE(qApp->styleSheet(), good);
        editor()->moveCursor(QTextCursor::End);
        const QImage marked = editor()->grab().toImage();
        editor()->setErrorLine(0);
        QVERIFY(editor()->grab().toImage() != marked);
        editor()->setErrorLine(editor()->blockCount());
        QCOMPARE(editor()->grab().toImage(), marked);
        QVERIFY(message().startsWith(QString("Line %1: ").arg(editor()->blockCount())));
        // Typed text is not lost on the way.
        const QString typed = editor()->toPlainText();
        workbench()->hide();
        workbench()->show();
        QCOMPARE(editor()->toPlainText(), typed);
        QTest::keyClicks(editor(), "}");
        QCOMPARE(message(), QString());
        QVERIFY(editor()->extraSelections().isEmpty());
        QVERIFY(qApp->styleSheet().contains("222px"));
    }

    void eachKeyOfARule()
    {
        const QString good = qApp->styleSheet();
        editor()->moveCursor(QTextCursor::End);
        QTest::keyClicks(editor(), "QLabel { qproperty-indent: 3; color: #123456; /* b */ }");
        QCOMPARE(message(), QString());
        QVERIFY(qApp->styleSheet() != good);
    }

    void anotherStyleIsAnotherText()
    {
        editor()->appendPlainText("{");
        QVERIFY(m_window->setStyleName("light"));
        QVERIFY(editor()->toPlainText().contains("style: light"));
        QCOMPARE(message(), QString());
        QVERIFY(m_window->setStyleName("none"));
        QCOMPARE(editor()->toPlainText(), QString());
        editor()->setPlainText("QLabel { color: red; }");
        QCOMPARE(qApp->styleSheet(), QString("QLabel { color: red; }"));
    }

    void codeIsCopied()
    {
        m_window->findChild<QAbstractButton*>("workbenchCopy")->click();
        QCOMPARE(QApplication::clipboard()->text(), codeText(m_window->page()));
        QCOMPARE(message(), QString("Copied."));
        m_window->showPage("frame");
        m_window->findChild<QAbstractButton*>("workbenchCopy")->click();
        QVERIFY(QApplication::clipboard()->text().contains("void buildFrame("));
    }

    void saving()
    {
        auto* save = workbench()->findChild<QToolButton*>("workbenchSave");
        QVERIFY(!save->isEnabled());
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write("QLabel { color: red; }\n");
        file.flush();
        QVERIFY(m_window->setStyleName(file.fileName()));
        QVERIFY(save->isEnabled());
        editor()->appendPlainText("QLabel {");
        QVERIFY(!save->isEnabled());
        editor()->moveCursor(QTextCursor::End);
        QTest::keyClicks(editor(), "}");
        save->click();
        QFile saved(file.fileName());
        QVERIFY(saved.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(saved.readAll()), editor()->toPlainText());
    }

    void languageAndDirection()
    {
        workbench()->inspect(pointButton());
        m_window->setLanguage("ja");
        m_window->setDirection(Qt::RightToLeft);
        QCOMPARE(shown(), QString("QToolButton#workbenchPoint"));
        m_window->setLanguage("en");
        m_window->setDirection(Qt::LeftToRight);
    }

private:
    ColorInputWidget* field() const { return m_window->page()->findChild<ColorInputWidget*>(); }
    ColorPickerButton* button() const { return field()->findChild<ColorPickerButton*>(); }
    Workbench* workbench() const { return m_window->findChild<Workbench*>(); }
    WidgetFacts* facts() const { return m_window->findChild<WidgetFacts*>(); }
    SheetEditor* editor() const { return m_window->findChild<SheetEditor*>(); }
    QAbstractButton* pointButton() const { return m_window->findChild<QAbstractButton*>("workbenchPoint"); }
    QString message() const { return m_window->findChild<QLabel*>("workbenchMessage")->text(); }

    /// The selector of the widget whose facts are shown.
    QString shown() const
    {
        return facts()->topLevelItemCount() ? facts()->topLevelItem(0)->text(0) : QString();
    }

    QTreeWidgetItem* row(const QString& name) const
    {
        return facts()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }

    QString value(const QString& name) const { return row(name) ? row(name)->text(1) : QString("no row"); }

    int lineOf(const QString& rule) const
    {
        return editor()->toPlainText().section(rule, 0, 0).count('\n') + 1;
    }

    QPoint inWindow(const QWidget* widget) const { return widget->mapTo(m_window.get(), QPoint(3, 3)); }

    void move(const QWidget* widget) const { QTest::mouseMove(m_window->windowHandle(), inWindow(widget)); }

    std::unique_ptr<MessageWatch> m_messages;
    std::unique_ptr<MainWindow> m_window;
};

UIC_TEST_MAIN(tst_Workbench)
#include "tst_Workbench.moc"
