#pragma once

#include <QSlider>

namespace Orvane::Tessel {

/// The studio's slider is Qt's.
class TesselElegantSlider : public QSlider
{
    Q_OBJECT

public:
    explicit TesselElegantSlider(QWidget* parent = nullptr);
    ~TesselElegantSlider() override;
};

} // namespace Orvane::Tessel
