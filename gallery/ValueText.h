#pragma once

#include <QString>

class QVariant;

/// A value as the signal log shows it: text in quotes, colours as #rrggbb, points and sizes as (x, y),
/// enumerators and objects by name, enumerators that no class declares as TypeName(number). A type without
/// a text of its own is shown as <TypeName>.
QString valueText(const QVariant& value);
