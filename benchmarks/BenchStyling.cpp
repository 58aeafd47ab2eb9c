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
#include <utility>

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

/// Two values of the property that the sheet tells apart, one after the other.
class Values
{
public:
    Values(const QString& one, const QString& other)
        : m_one(one)
        , m_other(other)
    {
    }

    const QVariant& next()
    {
        m_isOne = !m_isOne;
        return m_isOne ? m_one : m_other;
    }

private:
    const QVariant m_one;
    const QVariant m_other;
    bool m_isOne = false;
};

std::shared_ptr<Values> colours()
{
    return std::make_shared<Values>(QStringLiteral("active"), QStringLiteral("idle"));
}

std::shared_ptr<Values> paddings()
{
    return std::make_shared<Values>(QStringLiteral("large"), QStringLiteral("small"));
}

/// Gives the button of a window with so many widgets a changed value.
Side changed(int widgets, const std::shared_ptr<Values>& values)
{
    const auto window = std::make_shared<Window>(widgets);
    const auto look = [&window] {
        return std::pair(window->button()->grab().toImage(), window->button()->sizeHint());
    };
    Util::applyProperty(window->button(), "mode", values->next());
    const auto before = look();
    Util::applyProperty(window->button(), "mode", values->next());
    if (look() == before) {
        qFatal("the sheet does not read the property: the row would time nothing");
    }
    return {[window, values] { Util::applyProperty(window->button(), "mode", values->next()); }};
}

/// The same with nothing but what Qt has for it.
Side plainlyChanged(int widgets, const std::shared_ptr<Values>& values)
{
    const auto window = std::make_shared<Window>(widgets);
    return {[window, values] {
        QPushButton* const button = window->button();
        button->setProperty("mode", values->next());
        button->style()->unpolish(button);
        button->style()->polish(button);
    }};
}

UIC_COMPARE("applyProperty/unchanged value", atMostMicroseconds(0.25), [] {
    const auto window = std::make_shared<Window>(100);
    const QVariant value = QStringLiteral("active");
    Util::applyProperty(window->button(), "mode", value);
    return Pair{{[window, value] { Util::applyProperty(window->button(), "mode", value); }}, {}};
});

UIC_COMPARE("applyProperty/changed colour, against setProperty, unpolish and polish", atMost(1.0), [] {
    return Pair{changed(100, colours()), plainlyChanged(100, colours())};
});
UIC_COMPARE("applyProperty/changed padding, against setProperty, unpolish and polish", atMost(1.0), [] {
    return Pair{changed(100, paddings()), plainlyChanged(100, paddings())};
});
UIC_COMPARE("applyProperty/changed colour in a window of 1,000 widgets, against a window of 1", atMost(1.7),
            [] {
                return Pair{changed(1000, colours()), changed(1, colours())};
            });
UIC_COMPARE("applyProperty/changed padding in a window of 1,000 widgets, against a window of 1", atMost(1.7),
            [] {
                return Pair{changed(1000, paddings()), changed(1, paddings())};
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
                            changed(1000, colours())};
            });

} // namespace
