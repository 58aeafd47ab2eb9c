// What a value costs on its way through the inputs of numbers and points.

#include "Compare.h"

#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvSpinBox.h>

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QWidget>

#include <memory>

using namespace Bench;

namespace {

constexpr int steps = 10000;
constexpr int planeSize = 1000;

const SliderInputWidget::Initializer numbers = {0, steps};
const DoubleSliderInputWidget::Initializer fractions = {0.0, steps / 100.0, 2};
const PointSelectorWidget::Initializer points = {{0.0, 0.0}, {planeSize - 1.0, planeSize - 1.0}, 2, 2};

/// The same pair of controls as in the fields, side by side and strangers to each other.
class UnboundNumber
{
public:
    UnboundNumber()
    {
        auto* layout = new QHBoxLayout(&m_window);
        layout->addWidget(m_slider);
        layout->addWidget(m_spinBox);
        m_slider->setOrientation(Qt::Horizontal);
        m_slider->setRange(0, steps);
        m_spinBox->setRange(0, steps);
        m_spinBox->setAlignment(Qt::AlignCenter);
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
        m_window.show();
        QCoreApplication::processEvents();
    }

    void setValue(int step)
    {
        m_spinBox->setValue(step);
        m_slider->setValue(step);
    }

private:
    QWidget m_window;
    OvCustomSlider* const m_slider = new OvCustomSlider;
    OvSpinBox* const m_spinBox = new OvSpinBox;
};

class UnboundFraction
{
public:
    UnboundFraction()
    {
        auto* layout = new QHBoxLayout(&m_window);
        layout->addWidget(m_slider);
        layout->addWidget(m_spinBox);
        m_slider->setOrientation(Qt::Horizontal);
        m_slider->setMultiplier(0.01);
        m_slider->setRange(0, steps);
        m_spinBox->setBothDecimalMarksAccepted(true);
        m_spinBox->setDecimals(2);
        m_spinBox->setRange(0.0, steps / 100.0);
        m_spinBox->setAlignment(Qt::AlignCenter);
        m_spinBox->setButtonSymbols(QAbstractSpinBox::NoButtons);
        m_window.show();
        QCoreApplication::processEvents();
    }

    void setValue(int step)
    {
        m_spinBox->setValue(step / 100.0);
        m_slider->setDoubleValue(step / 100.0);
    }

private:
    QWidget m_window;
    OvDoubleSlider* const m_slider = new OvDoubleSlider;
    OvDoubleSpinBox* const m_spinBox = new OvDoubleSpinBox;
};

class Number
{
public:
    Number()
    {
        m_field.show();
        QCoreApplication::processEvents();
    }
    void setValue(int step) { m_field.setValue(step); }
    SliderInputWidget* field() { return &m_field; }

private:
    SliderInputWidget m_field{nullptr, numbers};
};

class Fraction
{
public:
    Fraction()
    {
        m_field.show();
        QCoreApplication::processEvents();
    }
    void setValue(int step) { m_field.setValue(step / 100.0); }
    DoubleSliderInputWidget* field() { return &m_field; }

private:
    DoubleSliderInputWidget m_field{nullptr, fractions};
};

template <typename Field>
Side values()
{
    const auto field = std::make_shared<Field>();
    return {[field, step = 0]() mutable {
        step = step % steps + 1;
        field->setValue(step);
    }};
}

template <typename Field, typename Unbound>
Pair againstUnbound()
{
    Field field;
    int reports = 0;
    QObject::connect(field.field(), &std::remove_pointer_t<decltype(field.field())>::valueChanged,
                     [&reports] { ++reports; });
    field.setValue(1);
    if (reports != 2) {
        qFatal("a value is to be reported once by each side");
    }
    return {values<Field>(), values<Unbound>()};
}

UIC_COMPARE("ValueInputs/a value through SliderInputWidget, against two unbound setValue", atMost(1.10),
            againstUnbound<Number, UnboundNumber>);
UIC_COMPARE("ValueInputs/a value through DoubleSliderInputWidget, against two unbound setValue", atMost(1.10),
            againstUnbound<Fraction, UnboundFraction>);

/// A selector whose plane, of 1,000 × 1,000 pixels, is being dragged over.
class Drag
{
public:
    Drag()
    {
        m_field.setStyleSheet(QStringLiteral(
            "PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 5; qproperty-MarkerColor: white;"
            "qproperty-FillColor: #202020; qproperty-CoordLinesWidth: 1; qproperty-CoordLinesColor: gray; "
            "}"));
        m_plane->setFixedSize(planeSize, planeSize);
        m_field.show();
        QCoreApplication::processEvents();
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }
    ~Drag() { send(QEvent::MouseButtonRelease, Qt::LeftButton); }
    Drag(const Drag&) = delete;
    Drag& operator=(const Drag&) = delete;

    /// The mouse moves by a few pixels both ways: point, spin boxes and reports, but nothing is painted yet.
    void move()
    {
        m_place = QPoint((m_place.x() + 7) % planeSize, (m_place.y() + 11) % planeSize);
        send(QEvent::MouseMove, Qt::NoButton);
        if (m_plane->point() != QPointF(m_place)) {
            qFatal("the drag moves nothing: the row would time nothing");
        }
    }

    static void paint() { QCoreApplication::processEvents(); }

private:
    void send(QEvent::Type type, Qt::MouseButton button)
    {
        QMouseEvent event(type, m_place, m_plane->mapToGlobal(m_place), button, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_plane, &event);
    }

    PointSelectorWidget m_field{nullptr, points};
    PointSelectionPlane* const m_plane = m_field.findChild<PointSelectionPlane*>();
    QPoint m_place = {planeSize / 2, planeSize / 2};
};

Pair shareOfADragStep()
{
    // One for both sides: the mouse can be grabbed only once, and a plane without it stands still.
    const auto drag = std::make_shared<Drag>();
    // What was moved is painted untimed, so that each move finds the same state as in the whole step.
    return {{[drag] { drag->move(); }, {}, [] { Drag::paint(); }}, {[drag] {
                drag->move();
                Drag::paint();
            }}};
}

UIC_COMPARE("ValueInputs/a step of a drag over 1,000 x 1,000 points without painting, against the whole step",
            atMost(0.05), shareOfADragStep);

/// A slider field that is dragged, while a host listens to it or to its session.
class SliderDrag
{
public:
    static constexpr int moves = 10;

    SliderDrag()
    {
        m_field.resize(fieldWidth, m_field.sizeHint().height());
        m_field.show();
        QCoreApplication::processEvents();
    }

    void press(bool hasSession)
    {
        if (hasSession) {
            m_session = std::make_unique<EditSession>(&m_field);
            QObject::connect(m_session.get(), &EditSession::previewed, &m_context, [this] { ++m_reports; });
        } else {
            QObject::connect(&m_field, &SliderInputWidget::valueChanged, &m_context, [this] { ++m_reports; });
        }
        send(QEvent::MouseButtonPress, Qt::LeftButton);
    }

    void move()
    {
        const int before = m_reports;
        for (int i = 0; i < moves; ++i) {
            // Off both ends, where the handle stays.
            m_place.setX(fieldWidth / 4 + (m_place.x() + 7) % (fieldWidth / 4));
            send(QEvent::MouseMove, Qt::NoButton);
            QCoreApplication::processEvents();
        }
        if (m_reports < before + moves) {
            qFatal("the drag moves nothing: the row would time nothing");
        }
    }

    void release()
    {
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        m_session.reset();
        m_field.disconnect(&m_context);
    }

private:
    static constexpr int fieldWidth = 400;

    void send(QEvent::Type type, Qt::MouseButton button)
    {
        QMouseEvent event(type, m_place, m_slider->mapToGlobal(m_place), button, Qt::LeftButton,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(m_slider, &event);
    }

    SliderInputWidget m_field{nullptr, numbers};
    OvCustomSlider* const m_slider = m_field.findChild<OvCustomSlider*>();
    std::unique_ptr<EditSession> m_session;
    QObject m_context;
    QPoint m_place = {fieldWidth / 4, 5};
    int m_reports = 0;
};

Pair dragWithASession()
{
    // One for both sides: two that are alike take as long only within some percent.
    const auto drag = std::make_shared<SliderDrag>();
    const auto side = [drag](bool hasSession) {
        return Side{[drag] { drag->move(); }, [drag, hasSession] { drag->press(hasSession); },
                    [drag] { drag->release(); }};
    };
    return {side(true), side(false), SliderDrag::moves};
}

UIC_COMPARE("ValueInputs/a step of a drag with an EditSession, against one without", atMost(1.05),
            dragWithASession);

} // namespace
