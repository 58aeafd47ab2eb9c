#include "FakePlatform.h"

#include <QSignalBlocker>
#include <qpa/qplatformscreen.h>
#include <qpa/qwindowsysteminterface.h>

#include <private/qguiapplication_p.h>
#include <utility>

namespace {

void setState(Qt::ApplicationState state)
{
    const QSignalBlocker silence(qGuiApp);
    QGuiApplicationPrivate::setApplicationState(state);
}

} // namespace

PlatformName::PlatformName(const QString& name)
    : m_former(std::exchange(*QGuiApplicationPrivate::platform_name, name))
{
}

PlatformName::~PlatformName()
{
    *QGuiApplicationPrivate::platform_name = m_former;
}

UntoldState::UntoldState(Qt::ApplicationState state)
    : m_former(QGuiApplication::applicationState())
{
    setState(state);
}

UntoldState::~UntoldState()
{
    setState(m_former);
}

class SecondScreen::Platform : public QPlatformScreen
{
public:
    explicit Platform(const QRect& geometry)
        : place(geometry)
    {
    }

    QRect geometry() const override { return place; }
    int depth() const override { return 32; }
    QImage::Format format() const override { return QImage::Format_RGB32; }
    QWindow* topLevelAt(const QPoint& point) const override
    {
        return isCovered ? nullptr : QPlatformScreen::topLevelAt(point);
    }

    QRect place;
    bool isCovered = false;
};

SecondScreen::SecondScreen(const QRect& geometry)
    : m_platform(new Platform(geometry))
{
    QWindowSystemInterface::handleScreenAdded(m_platform);
}

SecondScreen::~SecondScreen()
{
    QWindowSystemInterface::handleScreenRemoved(m_platform);
}

void SecondScreen::setGeometry(const QRect& geometry)
{
    m_platform->place = geometry;
    QWindowSystemInterface::handleScreenGeometryChange(m_platform->screen(), geometry, geometry);
}

void SecondScreen::setCovered(bool covered)
{
    m_platform->isCovered = covered;
}
