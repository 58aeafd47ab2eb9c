// Internal: what the scenes of QuickContent import as SheetColors.

#pragma once

#include "SheetColorsProvider.h"

#include <QQmlPropertyMap>

/**
 * The names of SheetColors, "radius" and "spacing" as properties that follow the sheet.
 */
class SceneColors : public QQmlPropertyMap
{
    Q_OBJECT

public:
    /// Registers `import UiComponents 0.1` for all engines, with one object for each. Call it in the
    /// application's thread, any number of times.
    static void registerType();

    explicit SceneColors(QObject* parent = nullptr);
    ~SceneColors() override;

protected:
    /// Nothing in a scene changes a colour of the sheet.
    QVariant updateValue(const QString& key, const QVariant& input) override;

private:
    void take();

    SheetColorsProvider m_provider;
};
