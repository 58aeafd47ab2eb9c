#pragma once

#include <UiComponents/QuickDialog.h>

#include <QStringList>
#include <QVariantMap>

/// The dialog of the gallery's QML scenes, which know it as "callback".
class SceneDialog : public Qml::QuickDialog
{
    Q_OBJECT
    Q_PROPERTY(QVariantMap values READ values WRITE setValues NOTIFY valuesChanged)

public:
    explicit SceneDialog(QWidget* parent);
    ~SceneDialog() override;

    /// The result of a form.
    QVariantMap values() const { return m_values; }
    void setValues(const QVariantMap& values);

    /// The errors in the scene @p path, each with its line.
    QStringList errorsOf(const QString& path);

Q_SIGNALS:
    void valuesChanged(const QVariantMap& values);

private:
    QVariantMap m_values;
};
