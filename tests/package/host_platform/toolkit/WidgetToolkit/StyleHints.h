#pragma once

#include <QString>

static const QString LIGHT_GREY_TWO = QStringLiteral("greyTwo");
static const QString INPUT_LIGHT = QStringLiteral("inputLight");
static const QString SLIDER_LIGHT = QStringLiteral("sliderLight");
