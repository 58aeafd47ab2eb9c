#include "SheetlessBuild.h"

#include <QCommonStyle>
#include <QWidget>

namespace {

/// Calls a function from styleHint() for the hint SH_CustomBase.
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
        if (hint == SH_CustomBase) {
            m_function();
        }
        return QCommonStyle::styleHint(hint, option, widget, result);
    }

private:
    const std::function<void()>& m_function;
};

} // namespace

/// With style sheets, Qt wraps the style of each widget in a QStyleSheetStyle. While one of these calls its
/// base style, here for a hidden widget, Qt's guard against recursion makes all others pass questions on to
/// theirs.
void SheetlessBuild::run(const std::function<void()>& build)
{
    CallingStyle style(build);
    QWidget asked;
    asked.setStyle(&style);
    asked.style()->styleHint(QStyle::SH_CustomBase);
}
