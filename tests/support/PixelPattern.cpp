#include "PixelPattern.h"

#include <QProcessEnvironment>
#include <QStringList>

namespace {

bool tell(const char* command)
{
    // Window managers do not list the backmost one, which bypasses them.
    return QProcess::execute(QStringLiteral("xdotool"),
                             {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                              QStringLiteral("--name"), QStringLiteral("^Pixel pattern$"),
                              QString::fromLatin1(command)}) == 0;
}

} // namespace

QRgb PixelPattern::colorAt(int x, int y)
{
    // An odd factor maps 24 bits to 24 bits one to one, and neighbours far apart.
    constexpr quint32 factor = 0x9E3779B1;
    const auto place = static_cast<quint32>(y) << 12U | static_cast<quint32>(x);
    return qRgb(0, 0, 0) | ((place * factor) & 0xFFFFFFU);
}

PixelPattern::~PixelPattern()
{
    m_application.kill();
    m_application.waitForFinished();
}

bool PixelPattern::show(const QRect& place, Window window)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList scales = {QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("QT_SCREEN_SCALE_FACTORS"),
                                QStringLiteral("QT_AUTO_SCREEN_SCALE_FACTOR"),
                                QStringLiteral("QT_ENABLE_HIGHDPI_SCALING")};
    for (const QString& scale : scales) {
        environment.remove(scale);
    }
    m_application.setProcessEnvironment(environment);
    m_application.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_application.start(QStringLiteral(UIC_PIXEL_PATTERN),
                        {QString::number(place.x()), QString::number(place.y()),
                         QString::number(place.width()), QString::number(place.height()),
                         QString::number(static_cast<int>(window))});
    // It says when it is there.
    return m_application.waitForReadyRead();
}

bool PixelPattern::activate()
{
    return tell("windowactivate");
}

bool PixelPattern::focus()
{
    return tell("windowfocus");
}
