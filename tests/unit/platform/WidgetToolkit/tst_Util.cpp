#include "TestMain.h"

#include <WidgetToolkit/LayoutController.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/Util.h>

namespace {

/// Counts what it is asked to do with one widget.
class CountingStyle : public QProxyStyle
{
public:
    CountingStyle()
        : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
    {
    }

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget* widget) override
    {
        calls += QLatin1Char('p');
        widgets += widget;
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget* widget) override
    {
        calls += QLatin1Char('u');
        QProxyStyle::unpolish(widget);
    }

    QString calls;
    QList<QWidget*> widgets;
};

/// Counts how often a sheet polishes it: the sheet writes its property each time.
class PolishCounter : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int polished READ polished WRITE setPolished)
    Q_PROPERTY(int level READ level WRITE setLevel)

public:
    explicit PolishCounter(QWidget* parent = nullptr)
        : QWidget(parent)
    {
        setStyleSheet(QStringLiteral("PolishCounter { qproperty-polished: 1; }"));
    }

    int polished() const { return m_polished; }
    void setPolished(int) { ++m_polished; }
    int level() const { return m_level; }
    void setLevel(int level) { m_level = qMin(level, 10); }

private:
    int m_polished = 0;
    int m_level = 0;
};

/// Runs something when one of its events comes in.
class Trigger : public QLabel
{
public:
    using QLabel::QLabel;
    QEvent::Type type = QEvent::None;
    std::function<void()> run;
    QList<QEvent::Type> seen;

protected:
    bool event(QEvent* event) override
    {
        seen += event->type();
        const bool handled = QLabel::event(event);
        if (event->type() == type && run) {
            std::exchange(run, nullptr)();
        }
        return handled;
    }
};

/// Deletes what it watches at its first event of one type, as a filter may that keeps the event for itself.
class DeletingFilter : public QObject
{
public:
    explicit DeletingFilter(QEvent::Type type)
        : m_type(type)
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != m_type) {
            return false;
        }
        delete watched;
        return true;
    }

private:
    QEvent::Type m_type;
};

QColor textColor(const QWidget& widget)
{
    return widget.palette().color(widget.foregroundRole());
}

} // namespace

class tst_Util : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void applyPropertySelectsAtOnce()
    {
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[nullColor=\"true\"] { color: red; }"));
        label.ensurePolished();
        Util::applyProperty(&label, "nullColor", true);
        QCOMPARE(label.property("nullColor"), QVariant(true));
        QCOMPARE(textColor(label), QColor(Qt::red));
    }

    void applyPropertyDropsAtOnce_data()
    {
        QTest::addColumn<QString>("rule");
        QTest::addColumn<bool>("shown");
        const char* const rules[] = {
            "color: red;",    "font-weight: bold; font-size: 31px;", "min-width: 300px; max-height: 13px;",
            "padding: 11px;", "border: 3px solid red; margin: 2px;", "background: red;"};
        for (const char* rule : rules) {
            QTest::newRow(qPrintable(QStringLiteral("hidden, %1").arg(QLatin1String(rule))))
                << QString::fromLatin1(rule) << false;
            QTest::newRow(qPrintable(QStringLiteral("shown, %1").arg(QLatin1String(rule))))
                << QString::fromLatin1(rule) << true;
        }
    }

    void applyPropertyDropsAtOnce()
    {
        QFETCH(QString, rule);
        QFETCH(bool, shown);
        qApp->setStyleSheet(QStringLiteral("*[state=\"on\"] { %1 }").arg(rule));
        const auto describe = [](const QWidget& widget) {
            const QSize hint = widget.sizeHint();
            return QStringLiteral("%1 %2 %3 %4 %5x%6 %7")
                .arg(textColor(widget).name(), widget.palette().color(widget.backgroundRole()).name(),
                     widget.font().toString())
                .arg(widget.minimumWidth())
                .arg(hint.width())
                .arg(hint.height())
                .arg(widget.width() - widget.contentsRect().width());
        };
        QWidget window;
        OvHBoxLayout layout(&window);
        QLabel label(QStringLiteral("text"));
        QToolButton button;
        QLineEdit edit;
        QPushButton pushButton(QStringLiteral("text"));
        const QList<QWidget*> widgets{&label, &button, &edit, &pushButton};
        for (QWidget* widget : widgets) {
            layout.addWidget(widget);
            widget->ensurePolished();
        }
        window.setVisible(shown);
        QStringList off;
        for (QWidget* widget : widgets) {
            off += describe(*widget);
        }
        for (int i = 0; i < widgets.size(); ++i) {
            Util::applyProperty(widgets.at(i), "state", QStringLiteral("on"));
            const QString on = describe(*widgets.at(i));
            Util::applyProperty(widgets.at(i), "state", QStringLiteral("off"));
            QVERIFY2(on != off.at(i), widgets.at(i)->metaObject()->className());
            QCOMPARE(describe(*widgets.at(i)), off.at(i));
        }
        for (QWidget* widget : widgets) {
            widget->setParent(nullptr);
        }
    }

    void applyPropertyPolishesOnChangeOnly_data()
    {
        QTest::addColumn<QVariant>("first");
        QTest::addColumn<QVariant>("second");
        QTest::addColumn<int>("polishes");
        const QVariant none;
        QTest::newRow("same bool") << QVariant(true) << QVariant(true) << 1;
        QTest::newRow("other bool") << QVariant(true) << QVariant(false) << 2;
        QTest::newRow("same text") << QVariant(QStringLiteral("a")) << QVariant(QStringLiteral("a")) << 1;
        QTest::newRow("other case") << QVariant(QStringLiteral("a")) << QVariant(QStringLiteral("A")) << 2;
        QTest::newRow("same number") << QVariant(3) << QVariant(3) << 1;
        QTest::newRow("other number") << QVariant(3) << QVariant(4) << 2;
        QTest::newRow("other type") << QVariant(3) << QVariant(QStringLiteral("3")) << 2;
        QTest::newRow("removed") << QVariant(3) << none << 2;
        QTest::newRow("never there") << none << none << 0;
        QTest::newRow("false is a value") << QVariant(false) << QVariant(false) << 1;
        QTest::newRow("text list") << QVariant(QStringList{QStringLiteral("a")})
                                   << QVariant(QStringList{QStringLiteral("a")}) << 1;
    }

    void applyPropertyPolishesOnChangeOnly()
    {
        QFETCH(QVariant, first);
        QFETCH(QVariant, second);
        QFETCH(int, polishes);
        PolishCounter widget;
        widget.ensurePolished();
        const int before = widget.polished();
        Util::applyProperty(&widget, "state", first);
        Util::applyProperty(&widget, "state", second);
        QCOMPARE(widget.polished() - before, polishes);
        QCOMPARE(widget.property("state"), second);
    }

    void applyPropertyTrueIsNotOne()
    {
        // QVariant(true) == QVariant(1), but a sheet compares "true" with "1".
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[state=\"true\"] { color: red; }"
                                           " QLabel[state=\"1\"] { color: blue; }"));
        label.ensurePolished();
        Util::applyProperty(&label, "state", 1);
        QCOMPARE(textColor(label), QColor(Qt::blue));
        Util::applyProperty(&label, "state", true);
        QCOMPARE(textColor(label), QColor(Qt::red));
    }

    void applyPropertyInvalidRemoves()
    {
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[state] { color: red; }"));
        label.ensurePolished();
        Util::applyProperty(&label, "state", 1);
        QCOMPARE(textColor(label), QColor(Qt::red));
        Util::applyProperty(&label, "state", QVariant());
        QVERIFY(textColor(label) != QColor(Qt::red));
        QVERIFY(!label.dynamicPropertyNames().contains("state"));
    }

    void applyPropertyOnDeclaredProperty()
    {
        PolishCounter widget;
        widget.ensurePolished();
        int before = widget.polished();
        Util::applyProperty(&widget, "level", 4);
        QCOMPARE(widget.level(), 4);
        QCOMPARE(widget.polished() - before, 1);
        QVERIFY(!widget.dynamicPropertyNames().contains("level"));

        // The same number as a text, a number that the property makes the present one, and no number at all.
        before = widget.polished();
        Util::applyProperty(&widget, "level", QStringLiteral("4"));
        QCOMPARE(widget.polished() - before, 0);
        Util::applyProperty(&widget, "level", 10);
        Util::applyProperty(&widget, "level", 99);
        QCOMPARE(widget.level(), 10);
        QCOMPARE(widget.polished() - before, 1);
        Util::applyProperty(&widget, "level", QVariant(QSize(1, 1)));
        QCOMPARE(widget.level(), 10);
        QCOMPARE(widget.polished() - before, 1);
    }

    void applyPropertyLeavesChildrenAlone()
    {
        auto* style = new CountingStyle;
        QWidget parent;
        QWidget child(&parent);
        style->setParent(&parent);
        parent.setStyle(style);
        child.setStyle(style);
        parent.ensurePolished();
        child.ensurePolished();
        style->calls.clear();
        style->widgets.clear();
        Util::applyProperty(&parent, "state", 1);
        QCOMPARE(style->widgets, QList<QWidget*>{&parent});

        PolishCounter outer;
        PolishCounter inner(&outer);
        outer.ensurePolished();
        inner.ensurePolished();
        const int before = inner.polished();
        Util::applyProperty(&outer, "state", 1);
        QCOMPARE(inner.polished(), before);
    }

    void applyPropertyBeforeThePolish()
    {
        PolishCounter widget;
        QVERIFY(!widget.testAttribute(Qt::WA_WState_Polished));
        Util::applyProperty(&widget, "state", 1);
        QCOMPARE(widget.polished(), 0);
        QVERIFY(!widget.testAttribute(Qt::WA_WState_Polished));

        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[state=\"1\"] { color: red; }"));
        Util::applyProperty(&label, "state", 1);
        label.ensurePolished();
        QCOMPARE(textColor(label), QColor(Qt::red));
    }

    void applyPropertyWithoutSheet()
    {
        CountingStyle style;
        QWidget widget;
        widget.setStyle(&style);
        widget.ensurePolished();
        style.calls.clear();
        Util::applyProperty(&widget, "state", 1);
        QCOMPARE(style.calls, QStringLiteral("up"));
        Util::applyProperty(&widget, "state", 1);
        QCOMPARE(style.calls, QStringLiteral("up"));
        Util::repolishWidget(&widget);
        QCOMPARE(style.calls, QStringLiteral("upup"));
    }

    void applyPropertyMovesTheLayout()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QLabel { padding: 1px; border: 1px solid red; }"
                                            " QLabel[state=\"1\"] { padding: 20px; }"));
        OvHBoxLayout layout(&window);
        auto* label = new QLabel(QStringLiteral("text"), &window);
        auto* next = new QWidget(&window);
        layout.autoFill();
        window.resize(400, 100);
        window.show();
        QCoreApplication::processEvents();
        const QSize before = label->sizeHint();
        Util::applyProperty(label, "state", 1);
        QCOMPARE(label->sizeHint(), before + QSize(38, 38));
        QTRY_VERIFY(label->width() >= before.width() + 38);
        QVERIFY(next->x() >= label->geometry().right());
    }

    void applyPropertyLaysOutOnlyWhenTheBoxChanges()
    {
        QWidget window;
        window.setStyleSheet(
            QStringLiteral("QLabel[state=\"colour\"] { color: red; }"
                           " QLabel[state=\"box\"] { padding: 20px; border: 1px solid red; }"));
        OvHBoxLayout layout(&window);
        Trigger label(QStringLiteral("text"));
        layout.addWidget(&label);
        window.show();
        QCoreApplication::processEvents();
        label.seen.clear();
        Util::applyProperty(&label, "state", QStringLiteral("colour"));
        QVERIFY(!label.seen.contains(QEvent::StyleChange));
        Util::applyProperty(&label, "state", QStringLiteral("box"));
        QCOMPARE(label.seen.count(QEvent::StyleChange), 1);
        label.setParent(nullptr);
    }

    void applyPropertyRepaints()
    {
        Trigger label(QStringLiteral("text"));
        // Only the border's colour differs: Qt itself repaints when polishing changes the palette or the
        // size.
        label.setStyleSheet(QStringLiteral("QLabel { border: 1px solid blue; }"
                                           "QLabel[state=\"1\"] { border: 1px solid red; }"));
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QCoreApplication::processEvents();
        label.seen.clear();
        Util::applyProperty(&label, "state", 1);
        QTRY_VERIFY(label.seen.contains(QEvent::Paint));
    }

    void applyPropertyDeletedByItsChange()
    {
        QPointer<Trigger> label = new Trigger;
        label->ensurePolished();
        DeletingFilter filter(QEvent::DynamicPropertyChange);
        label->installEventFilter(&filter);
        Util::applyProperty(label, "state", 1);
        QVERIFY(!label);
    }

    void applyPropertyDeletedByItsStyleChange()
    {
        QWidget window;
        window.setStyleSheet(QStringLiteral("QLabel[state=\"1\"] { padding: 20px; border: 1px solid red; }"));
        QPointer<QLabel> label = new QLabel(&window);
        DeletingFilter filter(QEvent::StyleChange);
        window.show();
        label->ensurePolished();
        label->installEventFilter(&filter);
        Util::applyProperty(label, "state", 1);
        QVERIFY(!label);
    }

    void applyPropertyFromInsideAChange()
    {
        // A widget may answer to its new box with another property.
        Trigger label(QStringLiteral("text"));
        label.setStyleSheet(QStringLiteral("QLabel[state=\"1\"] { border: 5px solid blue; }"
                                           " QLabel[more=\"1\"] { color: red; }"));
        label.ensurePolished();
        label.type = QEvent::StyleChange;
        label.run = [&label] { Util::applyProperty(&label, "more", 1); };
        Util::applyProperty(&label, "state", 1);
        QCOMPARE(label.contentsMargins(), QMargins(5, 5, 5, 5));
        QCOMPARE(textColor(label), QColor(Qt::red));
    }

    void applyStyleHint()
    {
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[styleHint=\"error\"] { color: red; }"));
        label.ensurePolished();
        Util::applyStyleHint(&label, QStringLiteral("error"));
        QCOMPARE(label.property("styleHint"), QVariant(QStringLiteral("error")));
        QCOMPARE(textColor(label), QColor(Qt::red));
        Util::applyStyleHint(&label, QStringLiteral("other"));
        QVERIFY(textColor(label) != QColor(Qt::red));
    }

    void applyStyleHintEmptyDrops_data()
    {
        QTest::addColumn<QString>("empty");
        QTest::newRow("empty") << QString(QLatin1String(""));
        QTest::newRow("null") << QString();
    }

    void applyStyleHintEmptyDrops()
    {
        QFETCH(QString, empty);
        QLabel label;
        label.setStyleSheet(QStringLiteral("QLabel[styleHint] { color: red; }"));
        label.ensurePolished();
        const QColor plain = textColor(label);
        Util::applyStyleHint(&label, QStringLiteral("error"));
        QCOMPARE(textColor(label), QColor(Qt::red));
        Util::applyStyleHint(&label, empty);
        QCOMPARE(label.property("styleHint").toString(), QString());
        QCOMPARE(textColor(label), plain);
    }

    void applyStyleHintUnchanged()
    {
        PolishCounter widget;
        widget.ensurePolished();
        const int before = widget.polished();
        Util::applyStyleHint(&widget, QString());
        Util::applyStyleHint(&widget, QLatin1String(""));
        QCOMPARE(widget.polished(), before);
        Util::applyStyleHint(&widget, QStringLiteral("error"));
        Util::applyStyleHint(&widget, QStringLiteral("error"));
        QCOMPARE(widget.polished(), before + 1);
        Util::applyStyleHint(&widget, QLatin1String(""));
        Util::applyStyleHint(&widget, QString());
        QCOMPARE(widget.polished(), before + 2);
    }

    void repolishWidgetReadsTheSheetAnew()
    {
        QLabel label;
        label.setStyleSheet(
            QStringLiteral("QLabel[state=\"1\"] { color: red; padding: 9px; border: none; }"));
        label.ensurePolished();
        label.setProperty("state", 1);
        const QSize before = label.sizeHint();
        QVERIFY(textColor(label) != QColor(Qt::red));
        Util::repolishWidget(&label);
        QCOMPARE(textColor(label), QColor(Qt::red));
        QCOMPARE(label.sizeHint(), before + QSize(18, 18));
    }

    void repolishWidgetBeforeThePolish()
    {
        PolishCounter widget;
        Util::repolishWidget(&widget);
        QCOMPARE(widget.polished(), 0);
        QVERIFY(!widget.testAttribute(Qt::WA_WState_Polished));
    }

    void installLayoutController()
    {
        QToolButton button;
        auto* layout = new OvHBoxLayout(&button);
        LayoutController* const controller = Util::installLayoutController(&button);
        QVERIFY(controller);
        QCOMPARE(controller->getLayout(), layout);
        QCOMPARE(controller->layoutMargin(), 0);
    }

    void installLayoutControllerTwice()
    {
        QToolButton button;
        LayoutController* const controller = Util::installLayoutController(&button);
        QCOMPARE(Util::installLayoutController(&button), controller);
        QCOMPARE(button.children().size(), 1);
        // One of a child is another one.
        QWidget child(&button);
        QVERIFY(Util::installLayoutController(&child) != controller);
    }

    void nullWidgets()
    {
        QWidget widget;
        Util::applyProperty(nullptr, "state", 1);
        Util::applyProperty(&widget, nullptr, 1);
        QVERIFY(widget.dynamicPropertyNames().isEmpty());
        Util::applyStyleHint(nullptr, QStringLiteral("error"));
        Util::repolishWidget(nullptr);
        QVERIFY(!Util::installLayoutController(nullptr));
    }

    void installedControllerProperties()
    {
        QWidget owner;
        auto* layout = new OvHBoxLayout(&owner);
        Util::installLayoutController(&owner);
        QObject* const installed = owner.findChildren<QWidget*>().constFirst();
        QCOMPARE(installed->metaObject()->className(), "InstalledLayoutController");
        const char* const names[] = {
            "layoutMargin",       "layoutMarginLeft", "layoutMarginTop",         "layoutMarginRight",
            "layoutMarginBottom", "layoutSpacing",    "layoutHorizontalSpacing", "layoutVerticalSpacing"};
        for (const char* name : names) {
            QVERIFY2(installed->metaObject()->indexOfProperty(name) >= 0, name);
        }
        QVERIFY(installed->setProperty("layoutMarginTop", 3));
        QCOMPARE(layout->contentsMargins(), QMargins(0, 3, 0, 0));
    }

    void installedControllerWithoutLayout()
    {
        QWidget owner;
        owner.setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutMargin: 3; }"));
        LayoutController* const controller = Util::installLayoutController(&owner);
        QVERIFY(!controller->getLayout());
        owner.show();
        QCOMPARE(controller->layoutMargin(), 3);
        auto* layout = new OvHBoxLayout(&owner);
        QTRY_COMPARE(layout->contentsMargins(), QMargins(3, 3, 3, 3));
    }

    void installedBeforeAndAfter_data()
    {
        QTest::addColumn<bool>("isOvFrame");
        QTest::addColumn<QString>("order");
        // l: the layout, c: its controller, s: the sheet, p: the owner's polish.
        for (const char* order : {"lcs", "lsc", "cls", "csl", "slc", "scl", "lcsp", "lspc", "splc"}) {
            QTest::newRow(order) << false << QString::fromLatin1(order);
        }
        // An OvFrame is its own controller.
        for (const char* order : {"lsp", "slp"}) {
            QTest::addRow("OvFrame: %s", order) << true << QString::fromLatin1(order);
        }
    }

    void installedBeforeAndAfter()
    {
        QFETCH(bool, isOvFrame);
        QFETCH(QString, order);
        QToolButton button;
        OvFrame frame;
        QWidget* const owner = isOvFrame ? static_cast<QWidget*>(&frame) : &button;
        QPointer<OvHBoxLayout> layout;
        auto* child = new QLabel(owner);
        child->setFixedSize(20, 10);
        for (const QChar step : qAsConst(order)) {
            if (step == QLatin1Char('l')) {
                layout = new OvHBoxLayout(owner);
                layout->setContentsMargins(0, 0, 0, 0);
                layout->autoFill();
            } else if (step == QLatin1Char('c')) {
                Util::installLayoutController(owner);
            } else if (step == QLatin1Char('s')) {
                qApp->setStyleSheet(
                    QStringLiteral("InstalledLayoutController, OvFrame { qproperty-layoutMarginLeft: 6;"
                                   " qproperty-layoutSpacing: 7; }"));
            } else {
                owner->ensurePolished();
            }
        }
        owner->show();
        // No event loop has run.
        QCOMPARE(layout->spacing(), 7);
        QCOMPARE(layout->contentsMargins(), QMargins(6, 0, 0, 0));
        QCOMPARE(child->x(), 6);
    }

    void installedFollowsTheSheet()
    {
        QWidget window;
        QToolButton button(&window);
        auto* layout = new OvHBoxLayout(&button);
        Util::installLayoutController(&button);
        window.show();
        window.setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutMargin: 2; }"));
        QCOMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
        qApp->setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutSpacing: 9; }"));
        QCOMPARE(layout->spacing(), 9);
        window.setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutMargin: 4; }"));
        QCOMPARE(layout->contentsMargins(), QMargins(4, 4, 4, 4));
    }

    void installedHoldsAgainstCode()
    {
        QToolButton button;
        button.setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutMargin: 2; }"));
        auto* layout = new QHBoxLayout(&button);
        Util::installLayoutController(&button);
        button.show();
        layout->setContentsMargins(0, 0, 0, 0);
        QTRY_COMPARE(layout->contentsMargins(), QMargins(2, 2, 2, 2));
    }

    void installedHoldsForANewLayout()
    {
        QToolButton button;
        button.setStyleSheet(QStringLiteral("InstalledLayoutController { qproperty-layoutMargin: 2; }"));
        auto* layout = new OvHBoxLayout(&button);
        LayoutController* const controller = Util::installLayoutController(&button);
        button.show();
        delete layout;
        QVERIFY(!controller->getLayout());
        auto* other = new OvVBoxLayout(&button);
        QCOMPARE(controller->getLayout(), other);
        QTRY_COMPARE(other->contentsMargins(), QMargins(2, 2, 2, 2));
    }

    void installedIsSelectedThroughItsOwner()
    {
        QWidget window;
        QToolButton one(&window);
        QToolButton other(&window);
        auto* oneLayout = new OvHBoxLayout(&one);
        auto* otherLayout = new OvHBoxLayout(&other);
        Util::installLayoutController(&one);
        Util::installLayoutController(&other);
        one.setObjectName(QStringLiteral("one"));
        window.setStyleSheet(
            QStringLiteral("#one > InstalledLayoutController { qproperty-layoutMargin: 2; }"));
        window.show();
        QCOMPARE(oneLayout->contentsMargins(), QMargins(2, 2, 2, 2));
        QCOMPARE(otherLayout->contentsMargins(), QMargins());
    }

    void removeClassMemberPrefix_data()
    {
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<QString>("name");
        QTest::newRow("prefixed") << QByteArray("m_guideWidget") << QStringLiteral("guideWidget");
        QTest::newRow("other") << QByteArray("m_pointingWidget") << QStringLiteral("pointingWidget");
        QTest::newRow("not prefixed") << QByteArray("guideWidget") << QStringLiteral("guideWidget");
        QTest::newRow("prefix inside") << QByteArray("guidem_Widget") << QStringLiteral("guidem_Widget");
        QTest::newRow("only once") << QByteArray("m_m_widget") << QStringLiteral("m_widget");
        QTest::newRow("prefix alone") << QByteArray("m_") << QStringLiteral("m_");
        QTest::newRow("one letter") << QByteArray("m") << QStringLiteral("m");
        QTest::newRow("capital") << QByteArray("M_widget") << QStringLiteral("M_widget");
        QTest::newRow("empty") << QByteArray("") << QString();
        QTest::newRow("null") << QByteArray() << QString();
        QTest::newRow("not ASCII") << QByteArray("m_größe") << QStringLiteral("gr\u00f6\u00dfe");
    }

    void removeClassMemberPrefix()
    {
        QFETCH(QByteArray, member);
        QFETCH(QString, name);
        QCOMPARE(Util::Details::removeClassMemberPrefix(member.isNull() ? nullptr : member.constData()),
                 name);
    }
};

UIC_TEST_MAIN(tst_Util)
#include "tst_Util.moc"
