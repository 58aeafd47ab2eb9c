// What a component pays for speaking to the application's style sheet.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <WidgetToolkit/Util.h>

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

#include <memory>

using namespace Bench;

namespace {

constexpr int columns = 25;

/// A shown window full of controls under the application's sheet.
class Window
{
public:
    explicit Window(int widgets)
        : m_layout(new QGridLayout(&m_window))
    {
        qApp->setStyleSheet(applicationSheet());
        for (int i = 0; i < widgets; ++i) {
            m_layout->addWidget(i == widgets / 2 ? static_cast<QWidget*>(m_button) : control(i), i / columns,
                                i % columns);
        }
        m_window.show();
        QCoreApplication::processEvents();
    }

    QWidget& window() { return m_window; }
    QPushButton* button() { return m_button; }

private:
    static QWidget* control(int index)
    {
        switch (index % 6) {
        case 0:
            return new QLabel(QStringLiteral("Label"));
        case 1:
            return new QToolButton;
        case 2:
            return new QLineEdit;
        case 3:
            return new QSlider(Qt::Horizontal);
        case 4:
            return new QComboBox;
        default:
            return new QPushButton(QStringLiteral("Button"));
        }
    }

    QWidget m_window;
    QGridLayout* const m_layout;
    QPushButton* const m_button = new QPushButton(QStringLiteral("Mode"));
};

/// Two values that the sheet tells apart, one after the other.
class Values
{
public:
    const QVariant& next()
    {
        m_active = !m_active;
        return m_active ? m_first : m_second;
    }

private:
    const QVariant m_first = QStringLiteral("active");
    const QVariant m_second = QStringLiteral("idle");
    bool m_active = false;
};

/// Gives the window's button a changed value of the property that the sheet reads.
Side changeIn(const std::shared_ptr<Window>& window)
{
    const auto colour = [&window] { return window->button()->palette().color(QPalette::Button); };
    const QColor before = colour();
    Util::applyProperty(window->button(), "mode", QStringLiteral("active"));
    if (colour() == before) {
        qFatal("the sheet does not read the property: the row would time nothing");
    }
    return {[window, values = std::make_shared<Values>()] {
        Util::applyProperty(window->button(), "mode", values->next());
    }};
}

UIC_COMPARE("applyProperty/unchanged value", atMostMicroseconds(0.25), [] {
    const auto window = std::make_shared<Window>(100);
    const QVariant value = QStringLiteral("active");
    Util::applyProperty(window->button(), "mode", value);
    return Pair{{[window, value] { Util::applyProperty(window->button(), "mode", value); }}, {}};
});

UIC_COMPARE("applyProperty/changed value, against setProperty, unpolish and polish", atMost(1.0), [] {
    const auto ours = std::make_shared<Window>(100);
    const auto plain = std::make_shared<Window>(100);
    const auto values = std::make_shared<Values>();
    return Pair{changeIn(ours), {[plain, values] {
                    QPushButton* const button = plain->button();
                    button->setProperty("mode", values->next());
                    button->style()->unpolish(button);
                    button->style()->polish(button);
                }}};
});

UIC_COMPARE("applyProperty/changed value in a window of 1,000 widgets, against a window of 1", atMost(1.7),
            [] {
                return Pair{changeIn(std::make_shared<Window>(1000)), changeIn(std::make_shared<Window>(1))};
            });

UIC_COMPARE("a container's own sheet/changed in a window of 1,000 widgets, against applyProperty on a widget",
            noGoal(), [] {
                const auto container = std::make_shared<Window>(1000);
                return Pair{{[container, even = std::make_shared<bool>()] {
                                *even = !*even;
                                container->window().setStyleSheet(
                                    *even ? QStringLiteral("QPushButton { color: red; }")
                                          : QStringLiteral("QPushButton { color: blue; }"));
                            }},
                            changeIn(std::make_shared<Window>(1000))};
            });

} // namespace
