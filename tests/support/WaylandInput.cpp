#include "WaylandInput.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QRect>
#include <QScreen>
#include <QStringList>
#include <QVector>
#include <QWidget>
#include <QWindow>

#include <cstring>

namespace {

constexpr int patience = 5000;

QByteArray outputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isGood = process.waitForFinished() && process.exitCode() == 0;
    return isGood ? process.readAllStandardOutput() : QByteArray();
}

/// A client of the compositor that has a pointer and nothing else. Its messages are words of 32 bits, the
/// first two being the object and the length with the number of the request.
class VirtualPointer
{
public:
    VirtualPointer()
    {
        m_socket.connectToServer(qEnvironmentVariable("WAYLAND_DISPLAY"));
        if (!m_socket.waitForConnected(patience)) {
            return;
        }
        send(Display, 1, {Registry});
        const quint32 name = find(QByteArrayLiteral("zwlr_virtual_pointer_manager_v1"));
        if (name == 0) {
            m_socket.abort();
            return;
        }
        QVector<quint32> bind = {name};
        bind += words(QByteArrayLiteral("zwlr_virtual_pointer_manager_v1"));
        bind += {1, Manager};
        send(Registry, 0, bind);
        send(Manager, 0, {0, Pointer});
    }

    bool move(const QPoint& place)
    {
        // A quarter of a pixel inside, where no rounding takes it to the next one.
        const QPoint fine = place * 4 + QPoint(1, 1);
        const QSize screen = QGuiApplication::primaryScreen()->size() * 4;
        return request(
            1, {quint32(fine.x()), quint32(fine.y()), quint32(screen.width()), quint32(screen.height())});
    }

    bool press(bool down)
    {
        constexpr quint32 leftButton = 0x110;
        return request(2, {leftButton, down ? 1U : 0U});
    }

    bool wheel(int notches)
    {
        // A vertical axis grows downwards. Its value has 8 bits behind the point.
        constexpr int notch = 15 * 256;
        constexpr quint32 ofWheel = 0;
        send(Pointer, 5, {ofWheel});
        return request(7, {0, quint32(-notches * notch), quint32(-notches)});
    }

private:
    /// In the order in which they are made. There is one callback at a time.
    enum Object : quint32 { Display = 1, Registry, Callback, Manager, Pointer };

    static QVector<quint32> words(const QByteArray& text)
    {
        QByteArray padded = text + '\0';
        padded.append((4 - padded.size() % 4) % 4, '\0');
        QVector<quint32> result(1 + padded.size() / 4);
        result[0] = quint32(text.size() + 1);
        std::memcpy(result.data() + 1, padded.constData(), size_t(padded.size()));
        return result;
    }

    void send(quint32 object, quint32 opcode, const QVector<quint32>& arguments)
    {
        QVector<quint32> message = {object, quint32(arguments.size() + 2) * 4 << 16 | opcode};
        message += arguments;
        m_socket.write(reinterpret_cast<const char*>(message.constData()), message.size() * 4);
    }

    /// A request of the pointer with the time in front, and the frame that makes it an event.
    bool request(quint32 opcode, const QVector<quint32>& arguments)
    {
        send(Pointer, opcode, QVector<quint32>{m_time++} + arguments);
        send(Pointer, 4, {});
        find({});
        return m_socket.state() == QLocalSocket::ConnectedState;
    }

    /// The number of the global object with that interface, or 0. The compositor has done all requests then.
    quint32 find(const QByteArray& interface)
    {
        send(Display, 0, {Callback});
        quint32 result = 0;
        for (;;) {
            while (m_socket.bytesAvailable() < 8) {
                if (!m_socket.waitForReadyRead(patience)) {
                    return 0;
                }
            }
            quint32 head[2];
            m_socket.read(reinterpret_cast<char*>(head), sizeof head);
            const qint64 length = (head[1] >> 16) - sizeof head;
            while (m_socket.bytesAvailable() < length) {
                if (!m_socket.waitForReadyRead(patience)) {
                    return 0;
                }
            }
            const QByteArray body = m_socket.read(length);
            if (head[0] == Callback) {
                return result;
            }
            if (head[0] == Display && (head[1] & 0xffff) == 0) {
                qWarning("the compositor refuses: %s", body.constData() + 12);
                return 0;
            }
            if (head[0] == Registry && !interface.isEmpty() && body.mid(8).startsWith(interface + '\0')) {
                std::memcpy(&result, body.constData(), sizeof result);
            }
        }
    }

    QLocalSocket m_socket;
    quint32 m_time = 1;
};

VirtualPointer& pointer()
{
    static VirtualPointer pointer;
    return pointer;
}

QJsonObject compositorsTree()
{
    const QByteArray tree = outputOf(
        QStringLiteral("swaymsg"), {QStringLiteral("-r"), QStringLiteral("-t"), QStringLiteral("get_tree")});
    return QJsonDocument::fromJson(tree).object();
}

/// Calls @p visit with @p node and all below it, until it returns true.
template <typename Visit>
bool visitAll(const QJsonObject& node, const Visit& visit)
{
    if (visit(node)) {
        return true;
    }
    for (const char* list : {"nodes", "floating_nodes"}) {
        const QJsonArray children = node.value(QLatin1String(list)).toArray();
        for (const QJsonValue& child : children) {
            if (visitAll(child.toObject(), visit)) {
                return true;
            }
        }
    }
    return false;
}

/// The place that @p node says, if that is @p window. Qt may add the application's name to a title, and gives
/// windows without one that name.
QRect placeIn(const QJsonObject& node, const QWindow& window)
{
    const QJsonObject rectangle = node.value(QLatin1String("rect")).toObject();
    const auto number = [&rectangle](const char* name) {
        return rectangle.value(QLatin1String(name)).toInt();
    };
    const QRect place(number("x"), number("y"), number("width"), number("height"));
    const bool isIt = node.value(QLatin1String("pid")).toInt() == int(QCoreApplication::applicationPid()) &&
                      node.value(QLatin1String("name")).toString().startsWith(window.title()) &&
                      place.size() == window.size();
    return isIt ? place : QRect();
}

QPoint cornerOf(const QWindow* window)
{
    const QWindow* const parent = window->transientParent();
    const bool isPopup = window->type() == Qt::Popup || window->type() == Qt::ToolTip;
    if (isPopup && parent) {
        return cornerOf(parent) + window->position() - parent->position();
    }
    QRect place;
    visitAll(compositorsTree(), [&](const QJsonObject& node) {
        place = placeIn(node, *window);
        return place.isValid();
    });
    return place.isValid() ? place.topLeft() : QPoint(-1, -1);
}

} // namespace

bool WaylandInput::isRunning()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

QPoint WaylandInput::placeOf(const QWidget* widget, const QPoint& point)
{
    const QWindow* const window = widget->window()->windowHandle();
    const QPoint corner = window ? cornerOf(window) : QPoint(-1, -1);
    return corner.x() < 0 ? corner : corner + widget->mapTo(widget->window(), point);
}

bool WaylandInput::moveTo(const QPoint& place)
{
    // From beside it: Qt notes where the pointer moves to, and not where it enters a window.
    return place.x() >= 0 && pointer().move(place + QPoint(1, 0)) && pointer().move(place);
}

bool WaylandInput::pressButton(bool down)
{
    return pointer().press(down);
}

bool WaylandInput::turnWheel(int notches)
{
    return pointer().wheel(notches);
}

bool WaylandInput::type(const QString& text)
{
    return QProcess::execute(QStringLiteral("wtype"), {QStringLiteral("--"), text}) == 0;
}

bool WaylandInput::key(const QString& name)
{
    QStringList modifiers = name.split(QLatin1Char('+'));
    const QString last = modifiers.takeLast();
    QStringList arguments;
    for (const QString& modifier : qAsConst(modifiers)) {
        arguments << QStringLiteral("-M") << modifier;
    }
    return QProcess::execute(QStringLiteral("wtype"), arguments << QStringLiteral("-k") << last) == 0;
}

QString WaylandInput::shellOf(qint64 pid)
{
    QString shell;
    visitAll(compositorsTree(), [&](const QJsonObject& node) {
        const bool isIt = node.value(QLatin1String("pid")).toInt() == pid;
        shell = isIt ? node.value(QLatin1String("shell")).toString() : QString();
        return isIt;
    });
    return shell;
}

QColor WaylandInput::pixel(const QPoint& place)
{
    const QString area = QStringLiteral("%1,%2 1x1").arg(place.x()).arg(place.y());
    const QByteArray picture =
        outputOf(QStringLiteral("grim"), {QStringLiteral("-t"), QStringLiteral("ppm"), QStringLiteral("-g"),
                                          area, QStringLiteral("-")});
    const QImage image = QImage::fromData(picture);
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

bool WaylandInput::saveScreenshot(const QString& fileName)
{
    return QProcess::execute(QStringLiteral("grim"), {fileName}) == 0;
}
