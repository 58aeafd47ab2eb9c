#include "SceneColors.h"

#include <qqml.h>

namespace {

class SceneType
{
public:
    SceneType() = default;
    // Qt stays when the library is unloaded, and would call the functions of the type.
    ~SceneType() { QQmlPrivate::qmlunregister(QQmlPrivate::SingletonRegistration, quintptr(m_type)); }
    SceneType(const SceneType&) = delete;
    SceneType& operator=(const SceneType&) = delete;

private:
    const int m_type = qmlRegisterSingletonType<SceneColors>(
        "UiComponents", 0, 1, "SheetColors",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new SceneColors; });
};

} // namespace

void SceneColors::registerType()
{
    static const SceneType registration;
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
