#include "AbstractColorPicker.h"

namespace {

// Queued and by-name connections look the type up by its name, once for the process.
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
