#include "FieldWindow.h"
#include "OnEvent.h"
#include "Part.h"
#include "TestMain.h"

#include <DesignElements/TesselLineEdit.h>
#include <UiComponents/SearchWidget.h>

#include <functional>
#include <memory>

namespace {

const char* const sheet = "QWidget { color: #dddddd; background-color: #222222; }"
                          "QWidget:disabled { color: #777777; }"
                          "SearchWidget { qproperty-PlaceholderColor: #0000ff;"
                          "  qproperty-PlaceholderHoverColor: #00ff00;"
                          "  qproperty-PlaceholderDisabledColor: #ff0000; }";

constexpr Part<QLabel> iconOf("searchIcon");
constexpr Part<QLineEdit> editOf("searchLineEdit");
constexpr Part<QToolButton> buttonOf("clearSearchButton");

bool hasPlaceholderColor(const SearchWidget& search, const QColor& color)
{
    const QPalette palette = editOf(search)->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        if (palette.brush(group, QPalette::PlaceholderText) != QBrush(color)) {
            qWarning() << group << palette.brush(group, QPalette::PlaceholderText).color() << color;
            return false;
        }
    }
    return true;
}

/// What the search reports, in order.
class Protocol
{
public:
    explicit Protocol(SearchWidget* search)
    {
        QObject::connect(search, &SearchWidget::textChanged, &m_context, [this, search](const QString& text) {
            lines += QStringLiteral("changed '%1' %2").arg(text, stateOf(*search));
        });
        QObject::connect(search, &SearchWidget::editingFinished, &m_context,
                         [this](const QString& text) { lines += QStringLiteral("finished '%1'").arg(text); });
    }

    QStringList lines;

private:
    static QString stateOf(const SearchWidget& search)
    {
        return buttonOf(search)->isHidden() ? "hidden" : "shown";
    }

    QObject m_context;
};

using Window = FieldWindow<SearchWidget>;

/// Puts the mouse over the middle of @p widget, or far away from all windows, as far as Qt knows.
void putCursor(const QWidget* widget)
{
    QCursor::setPos(widget ? widget->mapToGlobal(widget->rect().center()) : QPoint(790, 590));
}

void commit(QLineEdit* edit, const QString& text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(edit, &event);
}

} // namespace

class tst_SearchWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        putCursor(nullptr);
        QGuiApplication::clipboard()->clear();
    }

    void startsEmpty()
    {
        const SearchWidget search;
        QVERIFY(!search.parentWidget());
        QCOMPARE(search.text(), QString());
        QVERIFY(buttonOf(search)->isHidden());
        QVERIFY(editOf(search)->testAttribute(Qt::WA_MouseTracking));
        QVERIFY(!search.GetPlaceholderColor().isValid());
        QVERIFY(!search.GetPlaceholderHoverColor().isValid());
        QVERIFY(!search.GetPlaceholderDisabledColor().isValid());
        QVERIFY(!search.property("focusHint").isValid());
        QVERIFY(!iconOf(search)->property("hovered").isValid());
    }

    void validatorRefusesALeadingBlank()
    {
        const SearchWidget search;
        const auto* validator = qobject_cast<const QRegExpValidator*>(editOf(search)->validator());
        QVERIFY(validator);
        QCOMPARE(validator->parent(), editOf(search));
        QCOMPARE(validator->regExp().pattern(), "^\\S.*");
        QCOMPARE(validator->regExp().caseSensitivity(), Qt::CaseSensitive);
        QCOMPARE(validator->regExp().patternSyntax(), QRegExp::RegExp);
        QVERIFY(editOf(search)->hasAcceptableInput());
    }

    void translations()
    {
        SearchWidget search;
        search.setTranslations("icon", "edit", "button", "placeholder");
        QCOMPARE(iconOf(search)->toolTip(), "icon");
        QCOMPARE(editOf(search)->toolTip(), "edit");
        QCOMPARE(buttonOf(search)->toolTip(), "button");
        QCOMPARE(editOf(search)->placeholderText(), "placeholder");
        search.setTranslations(QString(), QString(), QString(), QString());
        QCOMPARE(editOf(search)->placeholderText(), QString());
        QCOMPARE(iconOf(search)->toolTip(), QString());
    }

    // What the user and the host do, and what is reported, with the state of the clear button; last the text.
    void story_data()
    {
        QTest::addColumn<QString>("story");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("typing") << "type ab; Backspace; Backspace"
                                << QStringList{"changed 'a' shown", "changed 'ab' shown", "changed 'a' shown",
                                               "changed '' hidden", "''"};
        QTest::newRow("a blank in an empty field") << "Space" << QStringList{"''"};
        QTest::newRow("blanks inside and behind")
            << "type a; Space; type b; Space"
            << QStringList{"changed 'a' shown", "changed 'a ' shown", "changed 'a b' shown",
                           "changed 'a b ' shown", "'a b '"};
        QTest::newRow("an edit would leave a blank in front")
            << "set a b; select 0; Delete; select 1; Space; select 2; Delete"
            << QStringList{"changed 'a b' shown", "changed 'b' shown", "'b'"};
        QTest::newRow("input method")
            << "commit  ; commit \u3000; commit  word; compose \u306d; commit \u732b; select 0; commit \u3000"
            << QStringList{"changed '\u732b' shown", "'\u732b'"};
        QTest::newRow("cleared twice")
            << "set a; clear; clear" << QStringList{"changed 'a' shown", "changed '' hidden", "''"};
        QTest::newRow("cleared by mouse")
            << "set a; click" << QStringList{"changed 'a' shown", "changed '' hidden", "''"};
        QTest::newRow("cleared by key")
            << "set a; Tab; Space"
            << QStringList{"changed 'a' shown", "finished 'a'", "changed '' hidden", "''"};
        // There and back again is no other text.
        QTest::newRow("Enter") << "set ab; Return; Enter; Backspace; set ab; Return"
                               << QStringList{"changed 'ab' shown", "finished 'ab'", "changed 'a' shown",
                                              "changed 'ab' shown", "'ab'"};
        QTest::newRow("leaving") << "set a; leave; enter; leave; enter; set b; Return; leave"
                                 << QStringList{"changed 'a' shown", "finished 'a'", "changed 'b' shown",
                                                "finished 'b'", "'b' left"};
        // To the regular expression the empty text is unfinished, and Qt then keeps silent.
        QTest::newRow("emptied, Enter")
            << "set a; Return; clear; Return; Return"
            << QStringList{"changed 'a' shown", "finished 'a'", "changed '' hidden", "finished ''", "''"};
        QTest::newRow("emptied, leaving") << "set a; Return; Backspace; leave; enter; leave"
                                          << QStringList{"changed 'a' shown", "finished 'a'",
                                                         "changed '' hidden", "finished ''", "'' left"};
        QTest::newRow("untouched") << "Return; type a; Backspace; leave"
                                   << QStringList{"changed 'a' shown", "changed '' hidden", "'' left"};
    }

    void story()
    {
        QFETCH(QString, story);
        QFETCH(QStringList, lines);
        Window window;
        QVERIFY(window.present());
        QLineEdit* const edit = window.edit();
        edit->setFocus();
        Protocol protocol(window.field);
        const QStringList steps = story.split("; ");
        for (const QString& step : steps) {
            const QString verb = step.section(' ', 0, 0);
            const QString object = step.section(' ', 1);
            const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(("Key_" + verb).toLatin1());
            if (key >= 0) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
            } else if (verb == "type") {
                QTest::keyClicks(edit, object);
            } else if (verb == "set") {
                edit->setText(object);
            } else if (verb == "select") {
                edit->home(false);
                edit->cursorForward(true, object.toInt());
            } else if (verb == "commit") {
                commit(edit, object);
            } else if (verb == "compose") {
                QInputMethodEvent composing(object, {});
                QCoreApplication::sendEvent(edit, &composing);
            } else if (verb == "clear") {
                window.field->clear();
            } else if (verb == "click") {
                QTest::mouseClick(buttonOf(*window.field), Qt::LeftButton);
            } else {
                (verb == "leave" ? window.other : edit)->setFocus();
            }
        }
        protocol.lines += '\'' + window.field->text() + '\'' + (edit->hasFocus() ? "" : " left");
        QCOMPARE(protocol.lines, lines);
    }

    void everyWhiteSpaceIsRefusedInFront_data()
    {
        QTest::addColumn<int>("code");
        for (int code = 0; code <= 0xffff; ++code) {
            if (QChar::isSpace(static_cast<uint>(code))) {
                QTest::addRow("U+%04X", static_cast<unsigned>(code)) << code;
            }
        }
    }

    void everyWhiteSpaceIsRefusedInFront()
    {
        QFETCH(int, code);
        const QChar space(code);
        SearchWidget search;
        Protocol protocol(&search);
        editOf(search)->insert(space);
        editOf(search)->insert(QString(space) + "word");
        QCOMPARE(search.text(), QString());
        QCOMPARE(protocol.lines, QStringList());
        editOf(search)->insert(QString("a") + space + "b");
        QCOMPARE(search.text(), QString("a") + space + "b");
        editOf(search)->home(false);
        editOf(search)->insert(space);
        QCOMPARE(search.text(), QString("a") + space + "b");
    }

    void pastedText_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("text");
        QTest::newRow("word") << "word"
                              << "word";
        QTest::newRow("leading blanks") << "  word" << QString();
        QTest::newRow("leading new line") << "\nword" << QString();
        QTest::newRow("leading no-break space") << QString(QChar(0xa0)) + "word" << QString();
        QTest::newRow("blanks behind") << "word  "
                                       << "word  ";
        QTest::newRow("two lines") << "one\ntwo"
                                   << "one\ntwo";
        QTest::newRow("only blanks") << "   " << QString();
    }

    void pastedText()
    {
        QFETCH(QString, pasted);
        SearchWidget search;
        QGuiApplication::clipboard()->setText(pasted);
        QTest::keySequence(editOf(search), QKeySequence::Paste);
        QTEST(search.text(), "text");
        QCOMPARE(buttonOf(search)->isHidden(), search.text().isEmpty());
    }

    void clearButtonShowsWithTheText()
    {
        SearchWidget search;
        int shows = 0;
        int hides = 0;
        const OnEvent onShow(QEvent::ShowToParent, buttonOf(search), [&shows] { ++shows; });
        const OnEvent onHide(QEvent::HideToParent, buttonOf(search), [&hides] { ++hides; });
        QTest::keyClicks(editOf(search), "abc");
        QVERIFY(!buttonOf(search)->isHidden());
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(editOf(search), Qt::Key_Backspace);
        }
        QVERIFY(buttonOf(search)->isHidden());
        QCOMPARE(shows, 1);
        QCOMPARE(hides, 1);
    }

    void changesThatKeepATextTouchNothing()
    {
        SearchWidget search;
        editOf(search)->setText("a");
        buttonOf(search)->hide();
        editOf(search)->setText("b");
        QVERIFY(buttonOf(search)->isHidden());
        editOf(search)->clear();
        editOf(search)->setText("a");
        QVERIFY(!buttonOf(search)->isHidden());
    }

    void fieldClearedByTheButtonFinishesByLeaving()
    {
        Window window;
        QVERIFY(window.present());
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), "a");
        QTest::keyClick(window.edit(), Qt::Key_Return);
        QTest::mouseClick(buttonOf(*window.field), Qt::LeftButton);
        Protocol protocol(window.field);
        QStringList hints;
        connect(window.field, &SearchWidget::editingFinished, this,
                [&] { hints += window.field->property("focusHint").toString(); });
        window.other->setFocus();
        QCOMPARE(protocol.lines, QStringList({"finished ''"}));
        QCOMPARE(hints, QStringList({"false"}));
    }

    void reportIsMadeBeforeTheSlotFinishesAgain()
    {
        SearchWidget search;
        QTest::keyClicks(editOf(search), "a");
        int reports = 0;
        connect(&search, &SearchWidget::editingFinished, this, [&] {
            ++reports;
            QTest::keyClick(editOf(search), Qt::Key_Return);
        });
        QTest::keyClick(editOf(search), Qt::Key_Return);
        QCOMPARE(reports, 1);
    }

    void deactivatedWindowFinishes()
    {
        Window window;
        QVERIFY(window.present());
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), "a");
        Protocol protocol(window.field);
        QWidget another;
        another.show();
        another.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&another));
        QTRY_COMPARE(protocol.lines, QStringList({"finished 'a'"}));
    }

    void destroyedWhileFocused_data()
    {
        QTest::addColumn<QString>("dies");
        QTest::addColumn<QString>("styleSheet");
        for (const char* dies : {"field", "panel", "window", "field as window"}) {
            QTest::addRow("%s", dies) << QString::fromLatin1(dies) << QString();
            QTest::addRow("%s, styled", dies) << QString::fromLatin1(dies) << QString::fromLatin1(sheet);
        }
    }

    // A window that dies takes the keyboard from its widgets first, and a line edit that loses it reports the
    // end of its edit: to a window of which only QWidget is left.
    void destroyedWhileFocused()
    {
        QFETCH(QString, dies);
        QFETCH(QString, styleSheet);
        QWidget survivor;
        survivor.show();
        auto* window = new QWidget;
        window->setStyleSheet(styleSheet);
        auto* panel = new QWidget(window);
        const bool isWindow = dies == "field as window";
        const QPointer<SearchWidget> search = new SearchWidget(isWindow ? nullptr : panel);
        (new QHBoxLayout(window))->addWidget(panel);
        if (isWindow) {
            search->setStyleSheet(styleSheet);
        } else {
            (new QHBoxLayout(panel))->addWidget(search);
        }
        window->show();
        search->window()->show();
        search->window()->activateWindow();
        editOf(*search)->setFocus();
        QTRY_VERIFY(editOf(*search)->hasFocus());
        QTest::keyClicks(editOf(*search), "unreported");

        Protocol protocol(search);
        if (dies == "window") {
            delete window;
            window = nullptr;
            QVERIFY(!search);
        } else if (dies == "panel") {
            delete panel;
            QVERIFY(!search);
        } else {
            delete search;
        }
        QCOMPARE(protocol.lines, QStringList());
        delete window;
        QCOMPARE(protocol.lines, QStringList());
    }

    void deletedLaterInASlot_data()
    {
        QTest::addColumn<bool>("isFinished");
        QTest::newRow("textChanged") << false;
        QTest::newRow("editingFinished") << true;
    }

    void deletedLaterInASlot()
    {
        QFETCH(bool, isFinished);
        QPointer<SearchWidget> search = new SearchWidget;
        if (isFinished) {
            connect(search.data(), &SearchWidget::editingFinished, search.data(), &QObject::deleteLater);
        } else {
            connect(search.data(), &SearchWidget::textChanged, search.data(), &QObject::deleteLater);
        }
        QTest::keyClicks(editOf(*search), "a");
        QTest::keyClick(editOf(*search), Qt::Key_Return);
        QTRY_VERIFY(!search);
    }

    void propertiesAreStoredOnly()
    {
        SearchWidget search;
        search.show();
        const QPalette before = editOf(search)->palette();
        QVERIFY(search.setProperty("PlaceholderColor", QColor(Qt::red)));
        QVERIFY(search.setProperty("PlaceholderHoverColor", QColor(Qt::green)));
        QVERIFY(search.setProperty("PlaceholderDisabledColor", QColor(Qt::blue)));
        QCOMPARE(search.GetPlaceholderColor(), QColor(Qt::red));
        QCOMPARE(search.GetPlaceholderHoverColor(), QColor(Qt::green));
        QCOMPARE(search.GetPlaceholderDisabledColor(), QColor(Qt::blue));
        QCOMPARE(search.property("PlaceholderColor").value<QColor>(), QColor(Qt::red));
        QCOMPARE(editOf(search)->palette(), before);
    }

    void colorOfEachState()
    {
        SearchWidget search;
        search.show();
        // An invalid colour is written, too.
        QVERIFY(hasPlaceholderColor(search, QColor()));
        search.hide();
        search.setProperty("PlaceholderColor", QColor(Qt::blue));
        search.setProperty("PlaceholderHoverColor", QColor(Qt::green));
        search.setProperty("PlaceholderDisabledColor", QColor(Qt::red));
        search.resize(200, 30);
        search.show();
        QVERIFY(hasPlaceholderColor(search, Qt::blue));

        QEvent enter(QEvent::Enter);
        QEvent leave(QEvent::Leave);
        const auto isHovered = [&search] { return iconOf(search)->property("hovered").toBool(); };
        putCursor(&search);
        QCoreApplication::sendEvent(&search, &enter);
        QVERIFY(hasPlaceholderColor(search, Qt::green));
        QVERIFY(isHovered());
        putCursor(nullptr);
        QCoreApplication::sendEvent(&search, &leave);
        QVERIFY(hasPlaceholderColor(search, Qt::blue));
        QVERIFY(!isHovered());

        search.setEnabled(false);
        QVERIFY(hasPlaceholderColor(search, Qt::red));
        putCursor(&search);
        QCoreApplication::sendEvent(&search, &enter);
        QVERIFY(hasPlaceholderColor(search, Qt::red));
        QVERIFY(isHovered());
        search.setEnabled(true);
        QVERIFY(hasPlaceholderColor(search, Qt::green));
        // The line edit alone counts.
        editOf(search)->setEnabled(false);
        QVERIFY(hasPlaceholderColor(search, Qt::red));
    }

    void colorTakesEffectOnTheNextOccasion_data()
    {
        QTest::addColumn<QString>("occasion");
        for (const char* occasion : {"enter", "leave", "show", "disable"}) {
            QTest::newRow(occasion) << QString::fromLatin1(occasion);
        }
    }

    void colorTakesEffectOnTheNextOccasion()
    {
        QFETCH(QString, occasion);
        Window window;
        QVERIFY(window.present());
        SearchWidget& search = *window.field;
        // Without colours for the properties, which it would write again whenever it is applied.
        search.setStyleSheet("QWidget { color: #dddddd; }"
                             "SearchWidget[focusHint=\"true\"] { border: 1px solid blue; }");
        for (const char* name : {"PlaceholderColor", "PlaceholderHoverColor", "PlaceholderDisabledColor"}) {
            search.setProperty(name, QColor(Qt::cyan));
        }
        const QColor before = editOf(search)->palette().color(QPalette::PlaceholderText);
        QVERIFY(before != QColor(Qt::cyan));
        // None of these is an occasion.
        window.edit()->setFocus();
        QTest::keyClicks(window.edit(), "a");
        search.clear();
        window.other->setFocus();
        window.resize(300, 100);
        QVERIFY(hasPlaceholderColor(search, before));

        if (occasion == "show") {
            search.hide();
            search.show();
        } else if (occasion == "disable") {
            search.setDisabled(true);
        } else {
            QEvent event(occasion == "enter" ? QEvent::Enter : QEvent::Leave);
            QCoreApplication::sendEvent(&search, &event);
        }
        QVERIFY(hasPlaceholderColor(search, Qt::cyan));
    }

    void colorHoldsUnderASheetFromTheFirstPicture()
    {
        qApp->setStyleSheet(QString::fromLatin1(sheet));
        SearchWidget search;
        search.setTranslations(QString(), QString(), QString(), "MMMMM");
        search.resize(200, 30);
        search.show();
        const bool holds = hasPlaceholderColor(search, Qt::blue);
        const QImage picture = search.grab().toImage();
        search.setEnabled(false);
        const bool holdsDisabled = hasPlaceholderColor(search, Qt::red);
        const QImage disabledPicture = search.grab().toImage();
        qApp->setStyleSheet(QString());
        QVERIFY(holds);
        QVERIFY(holdsDisabled);
        const auto shows = [](const QImage& image, const QColor& color) {
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixelColor(x, y) == color) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(shows(picture, Qt::blue));
        QVERIFY(!shows(picture, QColor(0xdd, 0xdd, 0xdd)));
        QVERIFY(shows(disabledPicture, Qt::red));
        QVERIFY(!shows(disabledPicture, QColor(0x77, 0x77, 0x77)));
    }

    void colorHoldsWhenPolishedAgain_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how :
             {"focus", "style", "other sheet", "no sheet", "own sheet", "palette", "disabled"}) {
            QTest::newRow(how) << QString::fromLatin1(how);
        }
    }

    void colorHoldsWhenPolishedAgain()
    {
        QFETCH(QString, how);
        QColor expected = Qt::blue;
        Window window;
        window.setStyleSheet(QString::fromLatin1(sheet));
        QVERIFY(window.present());
        QLineEdit* const edit = window.edit();
        QVERIFY(hasPlaceholderColor(*window.field, expected));
        if (how == "focus") {
            edit->setFocus();
            window.other->setFocus();
        } else if (how == "style") {
            edit->style()->unpolish(edit);
            edit->style()->polish(edit);
        } else if (how == "other sheet") {
            window.setStyleSheet("QLineEdit { color: #123456; } QLineEdit:focus { color: red; }");
            edit->setFocus();
        } else if (how == "no sheet") {
            window.setStyleSheet(QString());
        } else if (how == "own sheet") {
            edit->setStyleSheet("color: #654321;");
        } else if (how == "palette") {
            QPalette palette;
            palette.setColor(QPalette::PlaceholderText, Qt::magenta);
            edit->setPalette(palette);
        } else {
            window.setEnabled(false);
            expected = Qt::red;
        }
        QVERIFY(hasPlaceholderColor(*window.field, expected));
        QCoreApplication::processEvents();
        QVERIFY(hasPlaceholderColor(*window.field, expected));
    }

    // The line edit takes a placeholder of exactly that colour for one that no one chose.
    void colorMayBeThatOfTheText()
    {
        Window window;
        window.setStyleSheet("QWidget { color: #dddddd; }"
                             "SearchWidget { qproperty-PlaceholderColor: #dddddd; }");
        QVERIFY(window.present());
        const QColor text(0xdd, 0xdd, 0xdd);
        QCOMPARE(window.edit()->palette().color(QPalette::Text), text);
        QVERIFY(hasPlaceholderColor(*window.field, text));
        window.edit()->setFocus();
        QVERIFY(hasPlaceholderColor(*window.field, text));
        window.other->setFocus();
        window.setStyleSheet(window.styleSheet() + "QWidget { background-color: black; }");
        QVERIFY(hasPlaceholderColor(*window.field, text));
    }

    void nothingIsSetBeforeTheFirstShow()
    {
        SearchWidget search;
        search.setProperty("PlaceholderColor", QColor(Qt::blue));
        const QBrush before = editOf(search)->palette().brush(QPalette::PlaceholderText);
        search.ensurePolished();
        search.grab();
        QCOMPARE(editOf(search)->palette().brush(QPalette::PlaceholderText), before);
    }

    void edgesCountAsHovered()
    {
        SearchWidget search;
        search.resize(100, 30);
        search.move(100, 100);
        search.show();
        QEvent enter(QEvent::Enter);
        const auto isHoveredAt = [&](const QPoint& point) {
            QCursor::setPos(search.mapToGlobal(point));
            QCoreApplication::sendEvent(&search, &enter);
            return iconOf(search)->property("hovered") == QVariant(true);
        };
        const QRect all = search.rect();
        QVERIFY(isHoveredAt(all.topLeft()));
        QVERIFY(isHoveredAt(all.bottomRight()));
        QVERIFY(!isHoveredAt(all.topLeft() - QPoint(1, 0)));
        QVERIFY(!isHoveredAt(all.bottomRight() + QPoint(0, 1)));
    }

    void focusIsShownByTheFrame()
    {
        Window window;
        QVERIFY(window.present());
        QVERIFY(!window.field->property("focusHint").isValid());
        window.edit()->setFocus();
        QCOMPARE(window.field->property("focusHint"), QVariant(true));
        window.other->setFocus();
        QCOMPARE(window.field->property("focusHint"), QVariant(false));
        // The button is not the field.
        window.edit()->setText("a");
        buttonOf(*window.field)->setFocus();
        QCOMPARE(window.field->property("focusHint"), QVariant(false));
    }

    void focusInPolishesIconAndEdit()
    {
        Window window;
        window.setStyleSheet("SearchWidget[focusHint=\"true\"] > #searchIcon { color: #ff0000; }"
                             "SearchWidget[focusHint=\"true\"] > #searchLineEdit { color: #00ff00; }"
                             "#searchIcon, #searchLineEdit { color: #0000ff; }");
        QVERIFY(window.present());
        const auto color = [](const QWidget* widget) {
            return widget->palette().color(QPalette::WindowText);
        };
        QCOMPARE(color(iconOf(*window.field)), QColor(Qt::blue));
        window.edit()->setFocus();
        QCOMPARE(color(iconOf(*window.field)), QColor(Qt::red));
        QCOMPARE(color(window.edit()), QColor(Qt::green));
        // Polished when the keyboard comes, not when it goes.
        window.other->setFocus();
        QCOMPARE(color(iconOf(*window.field)), QColor(Qt::red));
    }

    void eventsAreNotConsumed()
    {
        SearchWidget search;
        for (const auto type : {QEvent::FocusIn, QEvent::FocusOut}) {
            QFocusEvent event(type);
            QVERIFY(!search.eventFilter(editOf(search), &event));
        }
        QEvent event(QEvent::EnabledChange);
        QVERIFY(!search.eventFilter(editOf(search), &event));
        // Others' events are none of its business.
        QFocusEvent focus(QEvent::FocusOut);
        QVERIFY(!search.eventFilter(buttonOf(search), &focus));
    }
};

UIC_TEST_MAIN(tst_SearchWidget)
#include "tst_SearchWidget.moc"
