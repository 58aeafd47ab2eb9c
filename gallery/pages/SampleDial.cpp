#include "SampleDial.h"

#include <QPainter>

namespace {

constexpr int Diameter = 96;
constexpr double DisabledOpacity = 0.4;

} // namespace

SampleDialStyle::SampleDialStyle(QWidget* dial)
    : PropertyProviderBase(dial)
{
}

SampleDialStyle::~SampleDialStyle() = default;

void SampleDialStyle::setHandColor(const QColor& color)
{
    m_handColor = color;
    parentWidget()->update();
}

void SampleDialStyle::setHandWidth(int pixels)
{
    m_handWidth = qMax(0, pixels);
    parentWidget()->update();
}

SampleDial::SampleDial(QWidget* parent)
    : QWidget(parent)
    , m_style(new SampleDialStyle(this))
{
    setObjectName(QStringLiteral("sampleDial"));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

SampleDial::~SampleDial() = default;

QSize SampleDial::sizeHint() const
{
    return {Diameter, Diameter};
}

void SampleDial::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : DisabledOpacity);
    const double inset = m_style->handWidth() / 2.0 + 1;
    const QRectF dial = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(palette().color(QPalette::Mid), m_style->handWidth()));
    painter.drawEllipse(dial);
    painter.setPen(QPen(m_style->handColor(), m_style->handWidth(), Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(dial, 225 * 16, -200 * 16);
}
