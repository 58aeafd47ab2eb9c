#include "ReportedColor.h"

#include "../Labels.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr QSize SwatchSize(44, 20);
constexpr double OutlineOpacity = 0.35;

/// A patch of one colour, or only its outline.
class Swatch : public QWidget
{
public:
    explicit Swatch(ReportedColor* owner)
        : QWidget(owner)
        , m_owner(owner)
    {
        setFixedSize(SwatchSize);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        Q_UNUSED(event)
        QPainter painter(this);
        const QRect inside = rect().adjusted(0, 0, -1, -1);
        if (m_owner->color().isValid()) {
            painter.setBrush(m_owner->color());
        }
        QColor outline = palette().color(QPalette::WindowText);
        outline.setAlphaF(OutlineOpacity);
        painter.setPen(outline);
        painter.drawRect(inside);
    }

private:
    const ReportedColor* const m_owner;
};

} // namespace

ReportedColor::ReportedColor(QWidget* parent)
    : QFrame(parent)
    , m_swatch(new Swatch(this))
    , m_name(new QLabel(this))
{
    setObjectName(QStringLiteral("reportedColor"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    layout->addWidget(m_name, 1);
    alignToLeadingEdge(m_name);
    m_name->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_name->setText(tr("nothing yet"));
}

ReportedColor::~ReportedColor() = default;

void ReportedColor::setColor(const QColor& color)
{
    m_color = color;
    m_name->setText(color.isValid() ? color.name() : QStringLiteral("#null"));
    m_swatch->update();
}
