#include "SheetlessBuild.h"

#include <QCommonStyle>
#include <QWidget>

namespace {

/// Runs a function when it is asked for the first hint that is no hint of Qt's.
class CallingStyle : public QCommonStyle // clazy:exclude=missing-qobject-macro
{
public:
    explicit CallingStyle(const std::function<void()>& function)
        : m_function(function)
    {
    }

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override
    {
        if (hint != SH_CustomBase) {
            return QCommonStyle::styleHint(hint, option, widget, result);
        }
        m_function();
        return 0;
    }

private:
    const std::function<void()>& m_function;
};

} // namespace

// Where there are sheets, Qt puts a style of its own before that of each widget. While one of these is at
// work, here for a widget that nobody sees, the others hand all questions to the style below. Without sheets
// nothing stands between the widget and its style.
void SheetlessBuild::run(const std::function<void()>& build)
{
    CallingStyle style(build);
    QWidget asked;
    asked.setStyle(&style);
    asked.style()->styleHint(QStyle::SH_CustomBase);
}
