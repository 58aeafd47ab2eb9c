#include "AbstractColorPicker.h"

namespace {

/// Queued and string-based connections look the type up by name. Once for each process.
void registerColorType()
{
    static const int id = qRegisterMetaType<std::optional<QColor>>("std::optional<QColor>");
    Q_UNUSED(id)
}

} // namespace

AbstractColorPicker::AbstractColorPicker()
    : AbstractColorPicker(nullptr)
{
}

AbstractColorPicker::AbstractColorPicker(QObject* parent)
    : QObject(parent)
{
    registerColorType();
}

AbstractColorPicker::AbstractColorPicker(QObjectPrivate& dd, QObject* parent)
    : QObject(dd, parent)
{
    registerColorType();
}

AbstractColorPicker::~AbstractColorPicker() = default;
