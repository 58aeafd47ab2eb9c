#include "PointingWidget.h"

#include "PointingWidgetPlacement.h"

#include <WidgetToolkit/OvFrame.h>

#include <QEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>
#include <QVector>
#include <QWindow>

#include <optional>

namespace {

/// On Wayland a program neither knows where its windows are nor moves them: the compositor puts pop-ups and
/// tool tips beside the window they belong to, once, when they appear, and all others where it likes.
bool isPlacedByCompositor()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

class PointingWidget::Private : public QObject
{
public:
    explicit Private(PointingWidget* bubble);

    bool eventFilter(QObject* watched, QEvent* event) override;

    QPoint origin() const;
    QRect area() const;
    QRect areaAroundWindow() const;
    void setShapeValue(int& value, int pixels, int max);
    void reshape();
    void applyMargins();
    void fit();
    void place();
    void placeLater();
    void appearAnew();
    void resized(bool byWindowManager);
    void moved(bool byWindowManager);
    void followWindow();
    void watchAncestors();
    void watchScreen(QScreen* screen);
    void followDirection();
    void parentShown();
    void parentHidden();
    void parentChanged();
    bool waitsForParent() const;

    PointingWidget* const q;
    OvFrame* const contentFrame;
    QVBoxLayout* const layout;

    BubbleShape shape;
    QColor backgroundColor;
    QColor borderColor;
    ArrowSide side = ArrowSide::Top;
    ArrowPosition position = ArrowPosition::Center;
    int offset = 0;

    /// Relative to the parent's top left corner, in global pixels: mapping to the parent's own and back may
    /// be a pixel off at fractional scales, and a re-aimed bubble would drift.
    QPoint target;
    bool hasTarget = false;
    /// The last known target, for a change of parent.
    QPoint lastGlobalTarget;

    PointingWidgetPlacement placement;
    /// The shape has changed while the bubble was hidden, so the mask is due.
    bool maskIsDue = false;
    /// The position last asked for. Where a window manager puts the bubble elsewhere, it is asked once more,
    /// since the position of a window that has just appeared is not reliable. More would never end.
    std::optional<QPoint> sentTo;
    bool askedAgain = false;
    /// The size last asked for. A window manager that gives another one may be late with one asked for
    /// before, and is asked again; or it has its own, as for a maximised window. The arrow may be on another
    /// side then, which asks for a layout, and that would never end either.
    QSize askedSize;
    int refusals = 0;
    static constexpr int maxRefusals = 3;
    /// Whether the host has shown the bubble; whether it is visible depends on the parent.
    bool wanted = false;
    QPoint appearedAt;
    /// The parent and its ancestors up to their window.
    QVector<QPointer<QWidget>> ancestors;
};

PointingWidget::Private::Private(PointingWidget* bubble)
    : q(bubble)
    , contentFrame(new OvFrame(bubble))
    , layout(new QVBoxLayout(bubble))
{
    contentFrame->setObjectName(QString::fromLatin1("contentFrame"));
    layout->setSpacing(0);
    // fit() keeps the minimum size. The layout would set it in a resize of its own, and window managers lose
    // the second of two.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(contentFrame);
    applyMargins();
}

bool PointingWidget::Private::eventFilter(QObject* watched, QEvent* event)
{
    const bool isParent = watched == q->parentWidget();
    switch (event->type()) {
    case QEvent::Move:
        place();
        break;
    case QEvent::Resize:
        if (isParent && !q->isWindow()) {
            place();
        }
        break;
    // Not when the window manager hides the window, as when it is minimised: it hides the bubble too, and a
    // bubble that is shown while its window is restored minimises that again.
    case QEvent::Show:
        if (isParent && !event->spontaneous()) {
            parentShown();
        }
        break;
    case QEvent::Hide:
        if (isParent && !event->spontaneous()) {
            parentHidden();
        }
        break;
    case QEvent::ParentChange:
        watchAncestors();
        place();
        break;
    case QEvent::LayoutDirectionChange:
        if (isParent) {
            followDirection();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

QPoint PointingWidget::Private::origin() const
{
    const QWidget* const parent = q->parentWidget();
    return parent ? withinReach(parent->mapToGlobal(QPoint())) : QPoint();
}

/// The available area, in the coordinates of pos().
QRect PointingWidget::Private::area() const
{
    if (!q->isWindow()) {
        return q->parentWidget()->rect();
    }
    if (isPlacedByCompositor() && q->parentWidget()) {
        return areaAroundWindow();
    }
    const auto screens = QGuiApplication::screens();
    QVector<QRect> geometries;
    geometries.reserve(screens.size());
    for (const QScreen* screen : screens) {
        geometries.append(screen->geometry());
    }
    const int nearest = nearestArea(q->targetPoint(), geometries);
    return nearest < 0 ? QRect() : screens.at(nearest)->availableGeometry();
}

/// The window below, which is on the screen wherever that is; or as much as a screen has around a window that
/// is smaller than the bubble.
QRect PointingWidget::Private::areaAroundWindow() const
{
    const QWidget* window = q->parentWidget()->window();
    while (window->windowType() == Qt::Popup && window->parentWidget()) {
        window = window->parentWidget()->window();
    }
    QRect result = window->geometry();
    const QSize needed = q->sizeHint();
    if (result.width() < needed.width() || result.height() < needed.height()) {
        const QPoint center = result.center();
        result.setSize(window->screen()->availableSize());
        result.moveCenter(center);
    }
    return result;
}

void PointingWidget::Private::setShapeValue(int& value, int pixels, int max)
{
    pixels = qBound(0, pixels, max);
    if (value == pixels) {
        return;
    }
    value = pixels;
    applyMargins();
    fit();
    reshape();
}

/// A mask costs about as much as a paint, and the shape changes several times before the bubble is shown.
void PointingWidget::Private::reshape()
{
    maskIsDue = !q->isVisible();
    if (!maskIsDue) {
        q->setMask(bubbleRegion(placement, shape));
        q->update();
    }
}

void PointingWidget::Private::applyMargins()
{
    layout->setContentsMargins(bubbleMargins(shape, placement.side));
}

void PointingWidget::Private::fit()
{
    // Changes made while the bubble was hidden have not reached the layout.
    layout->activate();
    const QSize room = area().size();
    QSize size = q->sizeHint();
    size.setWidth(qBound(q->minimumWidth(), size.width(), qMin(q->maximumWidth(), room.width())));
    if (layout->hasHeightForWidth()) {
        size.setHeight(layout->totalHeightForWidth(size.width()));
    }
    size.setHeight(qMin(size.height(), room.height()));
    size = size.expandedTo(q->minimumSizeHint());
    if (q->isWindow() && !room.isEmpty()) {
        size = size.boundedTo(room);
    }
    if (size != askedSize) {
        askedSize = size;
        refusals = 0;
    }
    if (refusals < maxRefusals) {
        q->resize(size);
    }
    place();
}

void PointingWidget::Private::place()
{
    BubbleRequest request;
    request.size = q->size();
    request.side = side;
    request.position = position;
    request.offset = offset;
    request.shape = shape;
    request.direction = q->layoutDirection();
    lastGlobalTarget = q->targetPoint();
    if (hasTarget) {
        request.target = q->isWindow() ? lastGlobalTarget : target;
        request.area = area();
    } else {
        // Anywhere with room, since only the shape counts.
        const int room = qMax(request.size.width(), request.size.height()) + shape.arrowWidth;
        request.area = QRect(-room, -room, 2 * room + 1, 2 * room + 1);
    }

    const PointingWidgetPlacement old = placement;
    placement = placeBubble(request);
    if (placement.side != old.side) {
        applyMargins();
        // At once, so that content and arrow move in the same paint.
        layout->activate();
    }
    if (placement.side != old.side || placement.tip != old.tip || placement.base != old.base ||
        placement.geometry.size() != old.geometry.size()) {
        reshape();
    }
    const QPoint goal = placement.geometry.topLeft();
    if (goal != old.geometry.topLeft()) {
        askedAgain = false;
    }
    if (hasTarget && (sentTo != goal || !q->isVisible())) {
        sentTo = goal;
        q->move(goal);
        if (q->isVisible() && q->windowType() == Qt::ToolTip && isPlacedByCompositor()) {
            appearAnew();
        }
    }
}

/// Hides and shows the bubble, so that the compositor places it again.
void PointingWidget::Private::appearAnew()
{
    // Queued: this may be called in a paint or resize event of the bubble.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!q->isVisible() || q->pos() == appearedAt) {
                return;
            }
            const QPointer<PointingWidget> self = q;
            self->QWidget::setVisible(false);
            // A slot may delete it.
            if (self) {
                self->QWidget::setVisible(true);
            }
        },
        Qt::QueuedConnection);
}

void PointingWidget::Private::resized(bool byWindowManager)
{
    if (byWindowManager && q->size() != askedSize && ++refusals < maxRefusals) {
        // To place the bubble would ask for its present size.
        fit();
    } else {
        place();
    }
}

void PointingWidget::Private::moved(bool byWindowManager)
{
    if (!sentTo || sentTo == q->pos()) {
        return;
    }
    if (!byWindowManager) {
        sentTo.reset();
    } else if (!askedAgain) {
        askedAgain = true;
        placeLater();
    }
}

/// Keeps the bubble above its parent's window. Qt sets the transient parent when it creates the native
/// window, and not again when an ancestor is moved to another window.
void PointingWidget::Private::followWindow()
{
    const QWidget* const parent = q->parentWidget();
    QWindow* const window = q->windowHandle();
    if (window && parent && parent->window()->windowHandle()) {
        window->setTransientParent(parent->window()->windowHandle());
    }
}

/// Queued, since Qt moves windows itself when screens are added or removed.
void PointingWidget::Private::placeLater()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            sentTo.reset();
            place();
        },
        Qt::QueuedConnection);
}

void PointingWidget::Private::watchAncestors()
{
    QVector<QPointer<QWidget>> now;
    for (QWidget* ancestor = q->parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        now.append(ancestor);
        if (ancestor->isWindow()) {
            break;
        }
    }
    // Filters on ancestors that stay are kept: one of them may be calling its filters right now.
    for (const QPointer<QWidget>& ancestor : qAsConst(ancestors)) {
        if (ancestor && !now.contains(ancestor)) {
            ancestor->removeEventFilter(this);
        }
    }
    for (const QPointer<QWidget>& ancestor : qAsConst(now)) {
        if (!ancestors.contains(ancestor)) {
            ancestor->installEventFilter(this);
        }
    }
    ancestors = now;
}

void PointingWidget::Private::watchScreen(QScreen* screen)
{
    connect(screen, &QScreen::geometryChanged, this, &Private::placeLater);
    connect(screen, &QScreen::availableGeometryChanged, this, &Private::placeLater);
}

/// Qt gives a window the application's layout direction; a bubble takes its parent's, unless it has its own.
void PointingWidget::Private::followDirection()
{
    const QWidget* const parent = q->parentWidget();
    if (!parent || q->testAttribute(Qt::WA_SetLayoutDirection) ||
        q->layoutDirection() == parent->layoutDirection()) {
        return;
    }
    q->setLayoutDirection(parent->layoutDirection());
    q->setAttribute(Qt::WA_SetLayoutDirection, false);
}

void PointingWidget::Private::parentShown()
{
    if (wanted && q->isWindow() && !q->isVisible()) {
        q->QWidget::setVisible(true);
    }
}

void PointingWidget::Private::parentHidden()
{
    if (!q->isWindow() || !q->isVisible()) {
        return;
    }
    if (q->windowType() == Qt::Popup) {
        wanted = false;
    }
    q->QWidget::setVisible(false);
}

void PointingWidget::Private::parentChanged()
{
    wanted = false;
    watchAncestors();
    followDirection();
    target = lastGlobalTarget - origin();
    place();
}

bool PointingWidget::Private::waitsForParent() const
{
    const QWidget* const parent = q->parentWidget();
    return q->isWindow() && q->windowType() != Qt::Popup && parent && !parent->isVisible();
}

PointingWidget::PointingWidget(QWidget* parent)
    : QWidget(parent, (isPlacedByCompositor() ? Qt::ToolTip : Qt::Tool) | Qt::FramelessWindowHint |
                          Qt::NoDropShadowWindowHint)
    , d(std::make_unique<Private>(this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_WindowPropagation);
    d->watchAncestors();
    d->followDirection();
    d->lastGlobalTarget = d->origin();
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens) {
        d->watchScreen(screen);
    }
    connect(qGuiApp, &QGuiApplication::screenAdded, d.get(), [this](QScreen* screen) {
        d->watchScreen(screen);
        d->placeLater();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, d.get(), &Private::placeLater);
}

PointingWidget::~PointingWidget() = default;

void PointingWidget::pointTo(const QPoint& globalPos)
{
    d->target = withinReach(globalPos) - d->origin();
    d->hasTarget = true;
    d->place();
}

QPoint PointingWidget::targetPoint() const
{
    return d->origin() + d->target;
}

void PointingWidget::setArrowSide(ArrowSide side, ArrowPosition position)
{
    const bool known = side >= ArrowSide::Top && side <= ArrowSide::Left &&
                       position >= ArrowPosition::Start && position <= ArrowPosition::End;
    if (!known || (d->side == side && d->position == position)) {
        return;
    }
    d->side = side;
    d->position = position;
    d->place();
    d->fit();
}

PointingWidget::ArrowSide PointingWidget::arrowSide() const
{
    return d->side;
}

PointingWidget::ArrowPosition PointingWidget::arrowPosition() const
{
    return d->position;
}

PointingWidget::ArrowSide PointingWidget::effectiveArrowSide() const
{
    return d->placement.side;
}

void PointingWidget::setArrowOffset(int pixels)
{
    if (d->offset == pixels) {
        return;
    }
    d->offset = pixels;
    d->place();
}

int PointingWidget::arrowOffset() const
{
    return d->offset;
}

OvFrame* PointingWidget::contentFrame() const
{
    return d->contentFrame;
}

QColor PointingWidget::backgroundColor() const
{
    return d->backgroundColor;
}

void PointingWidget::setBackgroundColor(const QColor& color)
{
    if (d->backgroundColor == color) {
        return;
    }
    d->backgroundColor = color;
    update();
}

QColor PointingWidget::borderColor() const
{
    return d->borderColor;
}

void PointingWidget::setBorderColor(const QColor& color)
{
    if (d->borderColor == color) {
        return;
    }
    d->borderColor = color;
    update();
}

int PointingWidget::borderWidth() const
{
    return d->shape.borderWidth;
}

void PointingWidget::setBorderWidth(int pixels)
{
    d->setShapeValue(d->shape.borderWidth, pixels, 100);
}

int PointingWidget::radius() const
{
    return d->shape.radius;
}

void PointingWidget::setRadius(int pixels)
{
    d->setShapeValue(d->shape.radius, pixels, 1000);
}

int PointingWidget::arrowWidth() const
{
    return d->shape.arrowWidth;
}

void PointingWidget::setArrowWidth(int pixels)
{
    d->setShapeValue(d->shape.arrowWidth, pixels, 1000);
}

int PointingWidget::arrowLength() const
{
    return d->shape.arrowLength;
}

void PointingWidget::setArrowLength(int pixels)
{
    d->setShapeValue(d->shape.arrowLength, pixels, 1000);
}

QSize PointingWidget::sizeHint() const
{
    return QWidget::sizeHint().expandedTo(minimumBubbleSize(d->shape, d->side));
}

QSize PointingWidget::minimumSizeHint() const
{
    return QWidget::minimumSizeHint().expandedTo(minimumBubbleSize(d->shape, d->side));
}

void PointingWidget::setVisible(bool visible)
{
    d->wanted = visible;
    if (!visible || !d->waitsForParent()) {
        QWidget::setVisible(visible);
    }
}

bool PointingWidget::event(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && windowType() == Qt::Popup) {
        // An open pop-up gets every press, even one outside its mask, beside the arrow.
        const QPoint position = static_cast<QMouseEvent*>(event)->pos();
        if (rect().contains(position) && !mask().contains(position)) {
            event->accept();
            close();
            return true;
        }
    }

    const bool result = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Resize:
        d->resized(event->spontaneous());
        break;
    case QEvent::LayoutRequest:
        d->fit();
        break;
    case QEvent::Move:
        d->moved(event->spontaneous());
        break;
    case QEvent::LayoutDirectionChange:
        d->followDirection();
        d->place();
        break;
    case QEvent::ParentChange:
        d->parentChanged();
        break;
    case QEvent::EnabledChange:
        // A disabled pop-up would ignore keys and clicks and still keep them from all other widgets.
        if (windowType() == Qt::Popup && !isEnabled()) {
            close();
        }
        break;
    case QEvent::Close:
        // Closing a hidden bubble that waits for its parent does not call setVisible().
        d->wanted = d->wanted && !event->isAccepted();
        break;
    default:
        break;
    }
    return result;
}

void PointingWidget::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    const qreal scale = devicePixelRatioF();
    const QPalette& colors = palette();
    const QColor background =
        d->backgroundColor.isValid() ? d->backgroundColor : colors.color(QPalette::Window);
    QColor border = d->borderColor;
    if (!border.isValid()) {
        const QColor text = colors.color(QPalette::WindowText);
        const auto between = [](int a, int b) { return (2 * a + b) / 3; };
        border = QColor(between(background.red(), text.red()), between(background.green(), text.green()),
                        between(background.blue(), text.blue()), background.alpha());
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(background);
    const qreal penWidth = bubblePenWidth(d->shape, scale);
    painter.setPen(penWidth > 0 ? QPen(border, penWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin)
                                : QPen(Qt::NoPen));
    painter.drawPath(bubblePath(d->placement, d->shape, scale));
}

void PointingWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // Right before the window appears: its content is polished and its position up to date.
    d->sentTo.reset();
    d->askedAgain = false;
    d->refusals = 0;
    d->followWindow();
    d->fit();
    if (d->maskIsDue) {
        d->reshape();
    }
    d->appearedAt = pos();
}
