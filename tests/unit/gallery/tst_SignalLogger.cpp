#include "TestMain.h"

#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/BlendingMode.h>

#include <gallery/SignalLogView.h>
#include <gallery/SignalLogger.h>
#include <gallery/ValueText.h>
#include <memory>

struct Unregistered
{
};

class Sender : public QObject
{
    Q_OBJECT

public:
    enum class Mode { Idle, Busy };
    Q_ENUM(Mode)

Q_SIGNALS:
    void nothing();
    void numbers(int count, double share);
    void text(const QString& words);
    void colour(const QColor& color);
    void optionalColour(std::optional<QColor> color);
    void point(const QPoint& point);
    void mode(Sender::Mode mode);
    void object(QObject* object);
    void variant(const QVariant& value);
    void defaulted(bool checked = false);
    void unregistered(const Unregistered& value);
    void hiddenTag(int value, QPrivateSignal);

public:
    void emitHiddenTag(int value) { Q_EMIT hiddenTag(value, {}); }
};

class tst_SignalLogger : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qRegisterMetaType<std::optional<QColor>>("std::optional<QColor>"); }

    void init()
    {
        m_lines.clear();
        m_logger = std::make_unique<SignalLogger>([this](const QString& line) { m_lines.append(line); });
    }

    void valueText_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QVariant() << "nothing";
        QTest::newRow("true") << QVariant(true) << "true";
        QTest::newRow("int") << QVariant(-7) << "-7";
        QTest::newRow("double, all digits") << QVariant(0.1) << "0.1";
        QTest::newRow("double, whole") << QVariant(2.0) << "2";
        QTest::newRow("text") << QVariant(QStringLiteral("a b")) << "\"a b\"";
        QTest::newRow("list") << QVariant(QStringList{"a", "b"}) << "[a, b]";
        QTest::newRow("colour") << QVariant(QColor(255, 0, 1)) << "#ff0001";
        QTest::newRow("colour with alpha") << QVariant(QColor(255, 0, 1, 128)) << "#80ff0001";
        QTest::newRow("invalid colour") << QVariant(QColor()) << "no colour";
        QTest::newRow("optional colour")
            << QVariant::fromValue(std::optional<QColor>(QColor(Qt::blue))) << "#0000ff";
        QTest::newRow("optional invalid colour")
            << QVariant::fromValue(std::optional<QColor>(QColor())) << "no colour";
        QTest::newRow("several colours") << QVariant::fromValue(std::optional<QColor>()) << "several colours";
        QTest::newRow("point") << QVariant(QPoint(3, -4)) << "(3, -4)";
        QTest::newRow("size") << QVariant(QSize(30, 40)) << "(30, 40)";
        QTest::newRow("rect") << QVariant(QRectF(1, 2, 3.5, 4)) << "(1, 2, 3.5, 4)";
        QTest::newRow("enumerator") << QVariant::fromValue(Sender::Mode::Busy) << "Busy";
        QTest::newRow("enumerator of no class")
            << QVariant::fromValue(BlendingMode::Screen) << "BlendingMode(6)";
        QTest::newRow("null object") << QVariant::fromValue<QObject*>(nullptr) << "null";
        QTest::newRow("named object") << QVariant::fromValue<QObject*>(this) << "tst_SignalLogger \"test\"";
        QTest::newRow("opaque") << QVariant(QPalette()) << "<QPalette>";
    }

    void valueText()
    {
        setObjectName(QStringLiteral("test"));
        QFETCH(QVariant, value);
        QTEST(::valueText(value), "text");
    }

    void arguments()
    {
        Sender sender;
        m_logger->watch(&sender, "s");
        Q_EMIT sender.nothing();
        Q_EMIT sender.numbers(3, 0.25);
        Q_EMIT sender.text(QStringLiteral("hi"));
        Q_EMIT sender.colour(Qt::red);
        Q_EMIT sender.optionalColour(std::nullopt);
        Q_EMIT sender.point({1, 2});
        Q_EMIT sender.object(nullptr);
        Q_EMIT sender.variant(QColor(Qt::green));
        Q_EMIT sender.unregistered({});
        sender.emitHiddenTag(5);
        Q_EMIT sender.defaulted();
        const QStringList expected = {"s.nothing()",
                                      "s.numbers(3, 0.25)",
                                      "s.text(\"hi\")",
                                      "s.colour(#ff0000)",
                                      "s.optionalColour(several colours)",
                                      "s.point((1, 2))",
                                      "s.object(null)",
                                      "s.variant(#00ff00)",
                                      "s.unregistered(<Unregistered>)",
                                      "s.hiddenTag(5)",
                                      "s.defaulted(false)"};
        QCOMPARE(m_lines, expected);
    }

    void signalsOfBaseClasses()
    {
        QToolButton button;
        m_logger->watch(&button, "button");
        button.click();
        button.setObjectName(QStringLiteral("b"));
        const QStringList expected = {"button.pressed()", "button.released()", "button.clicked(false)",
                                      "button.objectNameChanged(\"b\")"};
        QCOMPARE(m_lines, expected);
    }

    void theDestroyedSignalIsTheLastLine()
    {
        auto* sender = new Sender;
        m_logger->watch(sender, "s");
        delete sender;
        QCOMPARE(m_lines, QStringList{"s.destroyed(QObject)"});

        Sender next;
        m_logger->watch(&next, "next");
        Q_EMIT next.nothing();
        QCOMPARE(m_lines.last(), QStringLiteral("next.nothing()"));
    }

    void theLoggerMayDieFirst()
    {
        Sender sender;
        m_logger->watch(&sender, "s");
        m_logger.reset();
        Q_EMIT sender.nothing();
        QCOMPARE(m_lines, QStringList());
    }

    void nullIsIgnored()
    {
        m_logger->watch(nullptr, "s");
        QCOMPARE(m_lines, QStringList());
    }

    void viewShowsAndClears()
    {
        SignalLogView view;
        const auto* text = view.findChild<QPlainTextEdit*>();
        Sender sender;
        view.watch(&sender, "s");
        Q_EMIT sender.numbers(1, 2);
        view.addLine(QStringLiteral("own"));
        QCOMPARE(text->toPlainText(), QStringLiteral("s.numbers(1, 2)\nown"));

        view.findChild<QToolButton*>(QStringLiteral("clearSignals"))->click();
        QCOMPARE(text->toPlainText(), QString());
        Q_EMIT sender.nothing();
        QCOMPARE(text->toPlainText(), QStringLiteral("s.nothing()"));
    }

    void aChildOfTheViewThatEmitsWhileItDies()
    {
        auto view = std::make_unique<SignalLogView>();
        auto* child = new Sender;
        child->setParent(view.get());
        view->watch(child, "child");
        QSignalSpy destroyed(child, &QObject::destroyed);
        view.reset();
        QCOMPARE(destroyed.count(), 1);
    }

private:
    QStringList m_lines;
    std::unique_ptr<SignalLogger> m_logger;
};

UIC_TEST_MAIN(tst_SignalLogger)
#include "tst_SignalLogger.moc"
