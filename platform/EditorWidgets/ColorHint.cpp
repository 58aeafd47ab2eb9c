#include "ColorHint.h"

#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <algorithm>
#include <iterator>

void ColorHint::applyColorHint(QWidget* widget, const QString& hint)
{
    const QString* const hints[] = {&LIGHT_GREY_ONE, &LIGHT_GREY_TWO, &WITHOUT_BG1, &WITHOUT_BG2,
                                    &WITHOUT_BG3,    &SELECT_LIGHT,   &INPUT_LIGHT, &SLIDER_LIGHT};
    const bool known = hint.isEmpty() || std::any_of(std::begin(hints), std::end(hints),
                                                     [&](const QString* name) { return *name == hint; });
    if (known) {
        Util::applyStyleHint(widget, hint);
    }
}
