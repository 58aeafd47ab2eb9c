#include "SceneDialog.h"

#include <UiComponents/QuickContent.h>

#include <QFileInfo>
#include <QQmlComponent>
#include <QQmlContext>

SceneDialog::SceneDialog(QWidget* parent)
    : QuickDialog(parent)
{
    setObjectName(QStringLiteral("sceneDialog"));
}

SceneDialog::~SceneDialog() = default;

void SceneDialog::setValues(const QVariantMap& values)
{
    if (values != m_values) {
        m_values = values;
        Q_EMIT valuesChanged(m_values);
    }
}

QStringList SceneDialog::errorsOf(const QString& path)
{
    QStringList lines;
    const QQmlComponent component(content()->qmlContext()->engine(), QUrl::fromLocalFile(path));
    const auto errors = component.errors();
    for (const QQmlError& error : errors) {
        lines += QStringLiteral("%1:%2 %3")
                     .arg(QFileInfo(error.url().toLocalFile()).fileName())
                     .arg(error.line())
                     .arg(error.description());
    }
    return lines;
}
