#include "ScreenColorSource.h"

#ifdef QT_DBUS_LIB
#include "ScreenColorPortal.h"
#endif
#include "LibraryObject.h"
#include "ScreenGrabber.h"

#include <QGuiApplication>
#include <QPointer>

namespace {

QPointer<ScreenColorSource>& installed()
{
    static QPointer<ScreenColorSource> source;
    return source;
}

ScreenColorSource* portal()
{
#ifdef QT_DBUS_LIB
    static QPointer<ScreenColorPortal> portal;
    if (!portal) {
        portal = new ScreenColorPortal(QDBusConnection::sessionBus(), libraryObject());
    }
    return portal;
#else
    return nullptr;
#endif
}

} // namespace

ScreenColorSource* ScreenColorSource::current()
{
    if (installed()) {
        return installed();
    }
    // Elsewhere the user may be asked for the permission that is missing.
    const bool isWayland = QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
    return isWayland && !mayReadScreen() ? portal() : nullptr;
}

void ScreenColorSource::install(ScreenColorSource* source)
{
    installed() = source;
}

ScreenColorSource::ScreenColorSource(QObject* parent)
    : QObject(parent)
{
}

ScreenColorSource::~ScreenColorSource() = default;
