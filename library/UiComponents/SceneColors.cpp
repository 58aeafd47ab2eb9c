#include "SceneColors.h"

#include <QScopeGuard>
#include <qqml.h>

void SceneColors::registerType()
{
    static const int type = qmlRegisterSingletonType<SceneColors>(
        "UiComponents", 0, 1, "SheetColors",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new SceneColors; });
    // Qt stays when the library is unloaded, and would call the functions of the type.
    static const auto undo =
        qScopeGuard([] { QQmlPrivate::qmlunregister(QQmlPrivate::SingletonRegistration, quintptr(type)); });
}

SceneColors::SceneColors(QObject* parent)
    : QQmlPropertyMap(this, parent)
{
    take();
    connect(&m_provider, &SheetColorsProvider::changed, this, &SceneColors::take);
}

SceneColors::~SceneColors() = default;

QVariant SceneColors::updateValue(const QString& key, const QVariant& input)
{
    Q_UNUSED(input)
    return value(key);
}

void SceneColors::take()
{
    const QStringList names = SheetColorsProvider::names();
    for (const QString& name : names) {
        insert(name, m_provider.value(name));
    }
}
