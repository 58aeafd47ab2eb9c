#pragma once

#include <QWidget>

/// The studio's own carrier of a sheet's values.
class PropertyProviderBase : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyProviderBase(QWidget* owner);
    ~PropertyProviderBase() override;
};
