#include "ApplicationSheet.h"

#include <QStringList>

#include <array>

namespace {

constexpr int rulesOfTheSheet = 300;

QString colour(int seed)
{
    return QStringLiteral("#%1").arg((seed * 2654435761U) & 0xffffffU, 6, 16, QLatin1Char('0'));
}

} // namespace

QString Bench::applicationSheet()
{
    QStringList rules{
        QStringLiteral("QWidget { color: #d8dadf; background: #202226; font-size: 12px; }"),
        QStringLiteral("QLabel, QCheckBox, QRadioButton { background: transparent; }"),
        QStringLiteral("QPushButton, QToolButton { background: #33373e; border: 1px solid #43474f;"
                       " border-radius: 4px; padding: 4px 10px; }"),
        QStringLiteral("QPushButton:hover, QToolButton:hover { background: #3d424a; }"),
        QStringLiteral("QPushButton:pressed, QToolButton:pressed { background: #24282e; }"),
        QStringLiteral("QToolButton:checked { background: #2f6fde; color: white; }"),
        QStringLiteral("QLineEdit, QAbstractSpinBox, QComboBox { background: #17191c; padding: 3px; }"),
        QStringLiteral("QLineEdit:focus, QAbstractSpinBox:focus { border: 1px solid #2f6fde; }"),
        QStringLiteral("QComboBox::drop-down { width: 16px; border: none; }"),
        QStringLiteral("QSlider::groove:horizontal { height: 4px; background: #17191c; }"),
        QStringLiteral("QSlider::handle:horizontal { width: 12px; margin: -4px 0; background: #d8dadf; }"),
        QStringLiteral("QScrollBar:vertical { width: 10px; background: #202226; }"),
        QStringLiteral("*:disabled { color: #6d7179; }"),
        QStringLiteral("QPushButton[mode=\"active\"] { background: #2f6fde; border-color: #5b8ee6; }"),
        QStringLiteral("QPushButton[mode=\"idle\"] { background: #33373e; border-color: #43474f; }"),
        QStringLiteral("QPushButton[mode=\"large\"] { padding: 8px 16px; }"),
        QStringLiteral("QPushButton[mode=\"small\"] { padding: 2px 6px; }"),
    };

    static const std::array<const char*, 8> types{"QLabel",    "QPushButton", "QToolButton", "QLineEdit",
                                                  "QComboBox", "QSpinBox",    "QSlider",     "QFrame"};
    static const std::array<const char*, 6> hints{"LIGHT_GREY_ONE", "LIGHT_GREY_TWO", "WITHOUT_BG1",
                                                  "SELECT_LIGHT",   "INPUT_LIGHT",    "SLIDER_LIGHT"};
    for (int i = 0; rules.size() < rulesOfTheSheet; ++i) {
        const auto type = QLatin1String(types[static_cast<std::size_t>(i) % types.size()]);
        const auto hint = QLatin1String(hints[static_cast<std::size_t>(i) % hints.size()]);
        QString rule;
        switch (i % 6) {
        case 0:
            rule = QStringLiteral("%1#control%2 { background: %3; border-radius: %4px; }")
                       .arg(type)
                       .arg(i)
                       .arg(colour(i))
                       .arg(i % 7);
            break;
        case 1:
            rule = QStringLiteral("%1[styleHint=\"%2_%3\"] { color: %4; }")
                       .arg(type, hint)
                       .arg(i)
                       .arg(colour(i));
            break;
        case 2:
            rule = QStringLiteral("#panel%1 %2 { padding: %3px; }").arg(i).arg(type).arg(i % 5);
            break;
        case 3:
            rule = QStringLiteral("%1[state%2=\"true\"]:hover { border: 1px solid %3; }")
                       .arg(type)
                       .arg(i)
                       .arg(colour(i));
            break;
        case 4:
            rule = QStringLiteral("Timeline%1 > %2 { background: %3; min-height: %4px; }")
                       .arg(i)
                       .arg(type)
                       .arg(colour(i))
                       .arg(i % 24);
            break;
        default:
            rule = QStringLiteral(".Inspector%1, .Inspector%1 %2:disabled { color: %3; }")
                       .arg(i)
                       .arg(type)
                       .arg(colour(i));
            break;
        }
        rules.append(rule);
    }
    return rules.join(QLatin1Char('\n'));
}
