#include "MarkingTranslator.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>

using Orvane::Tessel::TesselLineEdit;

namespace {

/// Opens the context menu as a click at @p pos or, with reason Keyboard, the Menu key does.
QMenu* openMenu(TesselLineEdit& edit, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse,
                const QPoint& pos = QPoint(3, 4))
{
    QContextMenuEvent event(reason, pos, edit.mapToGlobal(pos));
    QCoreApplication::sendEvent(&edit, &event);
    const auto menus = edit.findChildren<QMenu*>(QStringLiteral("tesselContextMenu"));
    return menus.isEmpty() ? nullptr : menus.last();
}

/// The texts of the entries, "|" for a separator.
QStringList textsOf(const QMenu& menu)
{
    QStringList texts;
    const auto actions = menu.actions();
    for (const QAction* action : actions) {
        texts += action->isSeparator() ? QStringLiteral("|") : action->text().remove(QLatin1Char('&'));
    }
    return texts;
}

QStringList enabledTextsOf(const QMenu& menu)
{
    QStringList texts;
    const auto actions = menu.actions();
    for (const QAction* action : actions) {
        if (!action->isSeparator() && action->isEnabled()) {
            texts += action->text().remove(QLatin1Char('&'));
        }
    }
    return texts;
}

QAction* entry(const QMenu& menu, const char* text)
{
    const auto actions = menu.actions();
    for (QAction* action : actions) {
        if (action->text().remove(QLatin1Char('&')) == QLatin1String(text)) {
            return action;
        }
    }
    return nullptr;
}

} // namespace

class tst_TesselLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QGuiApplication::clipboard()->clear(); }

    void isALineEdit()
    {
        QWidget parent;
        const TesselLineEdit edit(&parent);
        QCOMPARE(edit.parentWidget(), &parent);
        QVERIFY(edit.inherits("QLineEdit"));
        QCOMPARE(edit.metaObject()->className(), "Orvane::Tessel::TesselLineEdit");
        const TesselLineEdit window;
        QVERIFY(!window.parentWidget());
    }

    void sheetSelectsByClass()
    {
        TesselLineEdit edit;
        edit.setStyleSheet(QStringLiteral("Orvane--Tessel--TesselLineEdit { qproperty-maxLength: 7; }"));
        edit.ensurePolished();
        QCOMPARE(edit.maxLength(), 7);
    }

    void entriesInOrder()
    {
        TesselLineEdit edit;
        const QStringList expected{
            QStringLiteral("Undo"),   QStringLiteral("Redo"), QStringLiteral("|"),
            QStringLiteral("Cut"),    QStringLiteral("Copy"), QStringLiteral("Paste"),
            QStringLiteral("Delete"), QStringLiteral("|"),    QStringLiteral("Select All")};
        QCOMPARE(textsOf(*openMenu(edit)), expected);
        edit.setReadOnly(true);
        QCOMPARE(textsOf(*openMenu(edit)), expected);
        edit.setEchoMode(QLineEdit::Password);
        QCOMPARE(textsOf(*openMenu(edit)), expected);
    }

    void entriesAreTranslated()
    {
        const MarkingTranslator translator("Orvane::Tessel::TesselLineEdit");
        TesselLineEdit edit;
        const QStringList texts = textsOf(*openMenu(edit));
        for (const QString& text : texts) {
            QVERIFY2(text == QLatin1String("|") || text.startsWith(QLatin1Char('<')), qPrintable(text));
        }
        QCOMPARE(texts.first(), QStringLiteral("<Undo>"));
    }

    void shortcutsAreShown()
    {
        TesselLineEdit edit;
        const QMenu* const menu = openMenu(edit);
        const std::pair<const char*, QKeySequence::StandardKey> expected[] = {
            {"Undo", QKeySequence::Undo},
            {"Redo", QKeySequence::Redo},
            {"Cut", QKeySequence::Cut},
            {"Copy", QKeySequence::Copy},
            {"Paste", QKeySequence::Paste},
            {"Delete", QKeySequence::Delete},
            {"Select All", QKeySequence::SelectAll},
        };
        for (const auto& [text, key] : expected) {
            const QAction* const action = entry(*menu, text);
            QVERIFY2(action, text);
            QCOMPARE(action->shortcut(), QKeySequence(key));
            QVERIFY(action->isShortcutVisibleInContextMenu());
            QCOMPARE(action->shortcutContext(), Qt::WidgetShortcut);
        }
    }

    void enabledEntries_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<bool>("readOnly");
        QTest::addColumn<QLineEdit::EchoMode>("echo");
        QTest::addColumn<QString>("enabled");

        const QString some = QStringLiteral("text");
        const QString none;
        QTest::newRow("empty") << none << 0 << none << false << QLineEdit::Normal << "";
        QTest::newRow("empty, something to paste")
            << none << 0 << some << false << QLineEdit::Normal << "Paste";
        QTest::newRow("text") << some << 0 << none << false << QLineEdit::Normal << "Select All";
        QTest::newRow("part selected")
            << some << 2 << none << false << QLineEdit::Normal << "Cut,Copy,Delete,Select All";
        QTest::newRow("all selected")
            << some << 4 << some << false << QLineEdit::Normal << "Cut,Copy,Paste,Delete";
        QTest::newRow("read-only, part selected")
            << some << 2 << some << true << QLineEdit::Normal << "Copy,Select All";
        QTest::newRow("read-only, all selected") << some << 4 << some << true << QLineEdit::Normal << "Copy";
        QTest::newRow("password") << some << 2 << some << false << QLineEdit::Password
                                  << "Paste,Delete,Select All";
        QTest::newRow("hidden text") << some << 4 << some << false << QLineEdit::NoEcho << "Paste,Delete";
        QTest::newRow("read-only password")
            << some << 2 << some << true << QLineEdit::Password << "Select All";
    }

    void enabledEntries()
    {
        QFETCH(QString, text);
        QFETCH(int, selected);
        QFETCH(QString, clipboard);
        QFETCH(bool, readOnly);
        QFETCH(QLineEdit::EchoMode, echo);
        QFETCH(QString, enabled);
        if (!clipboard.isEmpty()) {
            QGuiApplication::clipboard()->setText(clipboard);
        }
        TesselLineEdit edit;
        edit.setText(text);
        edit.setReadOnly(readOnly);
        edit.setEchoMode(echo);
        edit.setSelection(0, selected);
        QCOMPARE(enabledTextsOf(*openMenu(edit)).join(QLatin1Char(',')), enabled);
    }

    void undoAndRedoFollowTheHistory()
    {
        TesselLineEdit edit;
        edit.insert(QStringLiteral("typed"));
        QVERIFY(entry(*openMenu(edit), "Undo")->isEnabled());
        QVERIFY(!entry(*openMenu(edit), "Redo")->isEnabled());
        entry(*openMenu(edit), "Undo")->trigger();
        QCOMPARE(edit.text(), QString());
        QVERIFY(!entry(*openMenu(edit), "Undo")->isEnabled());
        entry(*openMenu(edit), "Redo")->trigger();
        QCOMPARE(edit.text(), QStringLiteral("typed"));
        edit.setReadOnly(true);
        QVERIFY(!entry(*openMenu(edit), "Undo")->isEnabled());
    }

    void entriesWork()
    {
        TesselLineEdit edit;
        edit.setText(QStringLiteral("one two"));
        edit.setSelection(0, 3);
        entry(*openMenu(edit), "Copy")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one"));
        entry(*openMenu(edit), "Delete")->trigger();
        QCOMPARE(edit.text(), QStringLiteral(" two"));
        entry(*openMenu(edit), "Paste")->trigger();
        QCOMPARE(edit.text(), QStringLiteral("one two"));
        entry(*openMenu(edit), "Select All")->trigger();
        QCOMPARE(edit.selectedText(), QStringLiteral("one two"));
        entry(*openMenu(edit), "Cut")->trigger();
        QCOMPARE(edit.text(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one two"));
    }

    void opensAtTheMouse()
    {
        TesselLineEdit edit;
        edit.move(100, 100);
        edit.show();
        const QMenu* const menu = openMenu(edit, QContextMenuEvent::Mouse, QPoint(20, 5));
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), edit.mapToGlobal(QPoint(20, 5)));
    }

    void keyboardOpensAtTheCursor()
    {
        TesselLineEdit edit;
        edit.setText(QStringLiteral("iiiiii"));
        edit.resize(300, 30);
        edit.move(100, 100);
        edit.show();
        edit.setCursorPosition(6);
        const QRect cursor = edit.inputMethodQuery(Qt::ImCursorRectangle).toRect();
        // The position that Qt hands over is in the middle of the cursor, where the menu would cover it.
        const QMenu* const menu = openMenu(edit, QContextMenuEvent::Keyboard, cursor.center());
        const QPoint local = edit.mapFromGlobal(menu->pos());
        QVERIFY(local.x() >= cursor.left() - 10 && local.x() <= cursor.right() + 10);
        QVERIFY(local.y() >= cursor.center().y());
        QVERIFY(local.y() <= edit.height());
    }

    void keyboardOpensInsideAScrolledEdit()
    {
        TesselLineEdit edit;
        edit.setText(QString(400, QLatin1Char('w')));
        edit.resize(80, 30);
        edit.move(100, 100);
        edit.show();
        edit.setCursorPosition(400);
        const QMenu* const menu = openMenu(edit, QContextMenuEvent::Keyboard, QPoint());
        const QPoint local = edit.mapFromGlobal(menu->pos());
        QVERIFY(local.x() >= 0 && local.x() <= edit.width());
    }

    void secondMenuReplacesTheFirst()
    {
        TesselLineEdit edit;
        edit.show();
        const QPointer<QMenu> first = openMenu(edit);
        const QPointer<QMenu> second = openMenu(edit);
        QVERIFY(second != first);
        QVERIFY(!first || !first->isVisible());
        QTRY_VERIFY(!first);
        QVERIFY(second && second->isVisible());
    }

    void closedMenuIsDeleted()
    {
        TesselLineEdit edit;
        edit.show();
        const QPointer<QMenu> menu = openMenu(edit);
        QTest::keyClick(menu.data(), Qt::Key_Escape);
        QTRY_VERIFY(!menu);
        QVERIFY(!edit.findChild<QMenu*>());
    }

    void deletedWhileTheMenuIsOpen()
    {
        auto edit = std::make_unique<TesselLineEdit>();
        edit->show();
        const QPointer<QMenu> menu = openMenu(*edit);
        QVERIFY(menu->isVisible());
        edit.reset();
        QVERIFY(!menu);
        QVERIFY(!QApplication::activePopupWidget());
    }

    void deletedByItsOwnEntry()
    {
        QPointer<TesselLineEdit> edit = new TesselLineEdit;
        edit->setText(QStringLiteral("text"));
        edit->selectAll();
        edit->show();
        connect(edit.data(), &QLineEdit::textChanged, this, [&edit] { edit->deleteLater(); });
        QMenu* const menu = openMenu(*edit);
        menu->setActiveAction(entry(*menu, "Delete"));
        QTest::keyClick(menu, Qt::Key_Return);
        QTRY_VERIFY(!edit);
    }

    void noContextMenuPolicy()
    {
        TesselLineEdit edit;
        edit.setContextMenuPolicy(Qt::NoContextMenu);
        QVERIFY(!openMenu(edit));
    }

    void customContextMenuPolicy()
    {
        TesselLineEdit edit;
        edit.setContextMenuPolicy(Qt::CustomContextMenu);
        QSignalSpy requests(&edit, &QWidget::customContextMenuRequested);
        QVERIFY(!openMenu(edit));
        QCOMPARE(requests.count(), 1);
    }

    void sheetReachesTheMenu()
    {
        TesselLineEdit edit;
        edit.setStyleSheet(QStringLiteral("QMenu#tesselContextMenu { qproperty-toolTipsVisible: true; }"));
        edit.show();
        QVERIFY(openMenu(edit)->toolTipsVisible());
    }

    void placeholderWithoutASheetIsQts()
    {
        TesselLineEdit edit;
        const QLineEdit plain;
        QCOMPARE(edit.palette(), plain.palette());
        edit.show();
        QCOMPARE(edit.palette(), plain.palette());
        QPalette palette;
        palette.setColor(QPalette::Text, Qt::red);
        palette.setColor(QPalette::PlaceholderText, Qt::red);
        edit.setPalette(palette);
        QCOMPARE(edit.palette().color(QPalette::PlaceholderText), QColor(Qt::red));
    }

    void placeholderIsLessThanTheTextUnderASheet()
    {
        TesselLineEdit edit;
        edit.setStyleSheet(QStringLiteral("QLineEdit { color: #204060; }"
                                          "QLineEdit:disabled { color: rgba(10, 20, 30, 100); }"));
        edit.ensurePolished();
        const auto placeholder = [&edit](QPalette::ColorGroup group) {
            return edit.palette().color(group, QPalette::PlaceholderText);
        };
        QCOMPARE(placeholder(QPalette::Active), QColor(0x20, 0x40, 0x60, 191));
        QCOMPARE(placeholder(QPalette::Inactive), QColor(0x20, 0x40, 0x60, 191));
        QCOMPARE(placeholder(QPalette::Disabled), QColor(10, 20, 30, 75));
        QCOMPARE(edit.palette().color(QPalette::Text), QColor(0x20, 0x40, 0x60));
    }

    void placeholderFollowsTheSheet()
    {
        TesselLineEdit edit;
        const QPalette before = edit.palette();
        edit.show();
        for (const QColor& color : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::red)}) {
            edit.setStyleSheet(QStringLiteral("QLineEdit { color: %1; }").arg(color.name()));
            QColor dimmed = color;
            dimmed.setAlpha(191);
            QCOMPARE(edit.palette().color(QPalette::PlaceholderText), dimmed);
            edit.style()->unpolish(&edit);
            edit.style()->polish(&edit);
            QCOMPARE(edit.palette().color(QPalette::PlaceholderText), dimmed);
        }
        edit.setStyleSheet(QString());
        QCOMPARE(edit.palette().color(QPalette::PlaceholderText), before.color(QPalette::PlaceholderText));
    }

    void placeholderThatIsSetIsLeft_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::newRow("another colour") << QColor(Qt::green);
        // What a sheet gives it, but from somebody who means it.
        QTest::newRow("that of the text") << QColor(Qt::red);
        QTest::newRow("none") << QColor();
    }

    void placeholderThatIsSetIsLeft()
    {
        QFETCH(QColor, color);
        TesselLineEdit edit;
        edit.setStyleSheet(QStringLiteral("QLineEdit { color: red; }"));
        edit.show();
        QPalette palette = edit.palette();
        palette.setBrush(QPalette::All, QPalette::PlaceholderText, QBrush(color));
        edit.setPalette(palette);
        QCOMPARE(edit.palette().brush(QPalette::PlaceholderText), QBrush(color));
        edit.setText(QStringLiteral("text"));
        edit.setEnabled(false);
        QCOMPARE(edit.palette().brush(QPalette::PlaceholderText), QBrush(color));
    }

    void paletteChangesInNoCircle()
    {
        TesselLineEdit edit;
        edit.show();
        int changes = 0;
        class Filter : public QObject
        {
        public:
            explicit Filter(int* count)
                : m_count(count)
            {
            }
            bool eventFilter(QObject*, QEvent* event) override
            {
                *m_count += event->type() == QEvent::PaletteChange ? 1 : 0;
                return false;
            }

        private:
            int* const m_count;
        } filter(&changes);
        edit.installEventFilter(&filter);
        edit.setStyleSheet(QStringLiteral("QLineEdit { color: red; }"));
        // The sheet's and ours.
        QCOMPARE(changes, 2);
    }
};

UIC_TEST_MAIN(tst_TesselLineEdit)
#include "tst_TesselLineEdit.moc"
