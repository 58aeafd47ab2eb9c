#pragma once

#include <UiComponents/QuickDialog.h>

#include <QStringList>
#include <QVariantMap>

/// What the gallery's QML scenes see as "callback".
class SceneDialog : public Qml::QuickDialog
{
    Q_OBJECT
    Q_PROPERTY(bool isDark READ isDark CONSTANT)
    Q_PROPERTY(QVariantMap values READ values WRITE setValues NOTIFY valuesChanged)

public:
    SceneDialog(bool isDark, QWidget* parent);
    ~SceneDialog() override;

    /// Light on dark, as the gallery's own style.
    bool isDark() const { return m_isDark; }

    /// What a form gives back.
    QVariantMap values() const { return m_values; }
    void setValues(const QVariantMap& values);

    /// Why @p path is no scene, each with its line; empty when it is one.
    QStringList errorsOf(const QString& path);

Q_SIGNALS:
    void valuesChanged(const QVariantMap& values);

private:
    const bool m_isDark;
    QVariantMap m_values;
};
