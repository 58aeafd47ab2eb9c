#include "Random.h"

#include <QBrush>
#include <QCursor>
#include <QDir>
#include <QFont>
#include <QIcon>
#include <QKeySequence>
#include <QLocale>
#include <QModelIndex>
#include <QPalette>
#include <QPixmap>
#include <QRandomGenerator>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

int Random::integer()
{
    static const std::vector<int> ends{INT_MIN, INT_MIN + 1, -1, 0, 1, INT_MAX - 1, INT_MAX, 1 << 24};
    return oneIn(3) ? oneOf(ends) : between(-200, 200);
}

double Random::real()
{
    using Limits = std::numeric_limits<double>;
    static const std::vector<double> ends{-Limits::infinity(),
                                          Limits::lowest(),
                                          -1e10,
                                          -0.0,
                                          Limits::denorm_min(),
                                          1e-9,
                                          0.1,
                                          1.0,
                                          1e10,
                                          Limits::max(),
                                          Limits::infinity(),
                                          Limits::quiet_NaN()};
    return oneIn(3) ? oneOf(ends) : below(20001) / 100.0 - 100.0;
}

int Random::length()
{
    static const std::vector<int> sides{0, 1, 2, 7, 30, 100, 300, 300, 1000, 2500};
    return oneOf(sides);
}

QPoint Random::pointAround(const QSize& size)
{
    const auto along = [this](int side) {
        switch (below(8)) {
        case 0:
            return oneOf<int>({-1, 0, side - 1, side, side / 2});
        case 1:
            return between(-3000, 3000);
        default:
            return below(qMax(1, side));
        }
    };
    const int x = along(size.width());
    return {x, along(size.height())};
}

QString Random::text()
{
    static const std::vector<QString> texts{
        QString(),
        QStringLiteral(" "),
        QStringLiteral("a"),
        QStringLiteral("12"),
        QStringLiteral("-0,5"),
        QStringLiteral("1e308"),
        QStringLiteral("#ff8800"),
        QStringLiteral("00FF00"),
        QStringLiteral("red"),
        QStringLiteral("&File && %1 %n %L2"),
        QStringLiteral("<b>bold<i>&amp;<table><tr><td>"),
        QStringLiteral("<a href=\"https://example.org\">link</a>"),
        QString::fromUtf8("\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627 abc 123"),
        QString::fromUtf8("\u65e5\u672c\u8a9e\u306e\u30c6\u30ad\u30b9\u30c8"),
        QString::fromUtf8("\U0001f469\u200d\U0001f469\u200d\U0001f467 e\u0301\u0323\u20dd"),
        QString(QChar(0xd800)) + QLatin1Char('x') + QChar(0xdc00),
        QStringLiteral("nul%1nul").arg(QChar(0)),
        QStringLiteral("tab\tline\nline\r\nend\x0b\x1b[0m"),
        QString::fromUtf8("\u202eevil\u202c \ufeff\ufffe\uffff"),
        QStringLiteral("word ").repeated(400),
        QStringLiteral("unbroken").repeated(300),
    };
    return oneOf(texts);
}

QString Random::path()
{
    static const std::vector<QString> paths{QDir::tempPath(),
                                            QStringLiteral("/"),
                                            QStringLiteral("."),
                                            QStringLiteral("~"),
                                            QStringLiteral("/dev/null"),
                                            QStringLiteral("/none/../none/x"),
                                            QStringLiteral(":/"),
                                            QStringLiteral("file:///"),
                                            QStringLiteral("/%1").arg(QStringLiteral("x").repeated(300)),
                                            QStringLiteral("/x").repeated(3000)};
    return oneIn(2) ? oneOf(paths) : text();
}

QColor Random::color()
{
    switch (below(8)) {
    case 0:
        return {};
    case 1:
        return QColor::fromHsv(between(-1, 359), below(256), below(256), below(256));
    case 2:
        return QColor::fromCmyk(below(256), below(256), below(256), below(256));
    case 3:
        return QColor::fromRgbF(1.004, -0.5, 0.25, 1.0);
    case 4:
        return QColor::fromRgba(static_cast<QRgb>(next()));
    default:
        return QColor::fromRgb(below(3) * 127, below(3) * 127, below(3) * 127);
    }
}

std::optional<QColor> Random::optionalColor()
{
    return oneIn(5) ? std::nullopt : std::make_optional(color());
}

QString Random::styleSheet()
{
    static const std::vector<QString> sheets{
        QString(),
        QStringLiteral("* { color: red; background: blue; }"),
        QStringLiteral("* { margin: 3px; padding: 5px; border: 2px dashed green; border-radius: 9px; }"),
        QStringLiteral("* { min-width: 0; min-height: 0; max-width: 20px; max-height: 5px; }"),
        QStringLiteral("OvFrame { qproperty-layoutMargin: 7; qproperty-layoutSpacing: 40; }"),
        QStringLiteral("QToolButton:hover { padding: 9px; } QToolButton:pressed { margin: 4px; }"),
        QStringLiteral("QSlider::groove { height: 3px; } QSlider::handle { width: 9px; margin: -4px; }"),
        QStringLiteral("QLineEdit:focus, QAbstractSpinBox:focus { border: 5px solid; font-size: 30px; }"),
        QStringLiteral("*[styleHint] { border: 1px solid red; } *[nullColor=\"true\"] { padding: 3px; }"),
        QStringLiteral("PointingWidget { qproperty-radius: 90; qproperty-arrowLength: 200; }"),
        QStringLiteral("PointSelectionPlanePropertyHelper { qproperty-MarkerRadius: 1e9; }"),
        QStringLiteral("* { font-size: 1px; }"),
    };
    return oneOf(sheets);
}

QVariant Random::value(int type)
{
    switch (type) {
    case QMetaType::Bool:
        return oneIn(2);
    case QMetaType::Int:
    case QMetaType::LongLong:
        return integer();
    case QMetaType::UInt:
        return static_cast<unsigned>(integer());
    case QMetaType::Double:
        return real();
    case QMetaType::QString:
        return text();
    case QMetaType::QStringList:
        return QStringList{text(), text()};
    case QMetaType::QByteArray:
        return text().toUtf8();
    case QMetaType::QColor:
        return color();
    case QMetaType::QPoint:
        return pointAround({300, 300});
    case QMetaType::QSize:
        return size();
    case QMetaType::QRect:
        return QRect(pointAround({300, 300}), size());
    case QMetaType::QFont:
        return QFont(oneOf<QString>({QStringLiteral("DejaVu Sans"), QStringLiteral("none"), QString()}),
                     oneOf<int>({1, 9, 12, 30}), oneOf<int>({1, 50, 99}), oneIn(2));
    case QMetaType::QPalette:
        return QPalette(color(), color());
    case QMetaType::QCursor:
        return QCursor(static_cast<Qt::CursorShape>(below(Qt::LastCursor + 1)));
    case QMetaType::QLocale:
        return QLocale(
            oneOf<QLocale::Language>({QLocale::C, QLocale::German, QLocale::Arabic, QLocale::Hindi}));
    case QMetaType::QIcon: {
        QPixmap pixmap(oneOf<int>({1, 16, 200}), 16);
        pixmap.fill(color());
        return QIcon(pixmap);
    }
    case QMetaType::QKeySequence:
        return QKeySequence(oneOf<int>({0, Qt::Key_A, int(Qt::CTRL) + int(Qt::Key_Z), Qt::Key_Space}));
    case QMetaType::QModelIndex:
        return QModelIndex();
    default:
        return {};
    }
}

/// The program's own, which Qt's painting finds before Qt Core's: by chance it forgets one of its gradients,
/// with the objects in that. The names of temporary files stay random.
void QRandomGenerator::_fillRange(void* buffer, void* bufferEnd)
{
    std::fill(static_cast<quint32*>(buffer), static_cast<quint32*>(bufferEnd), 0);
}
