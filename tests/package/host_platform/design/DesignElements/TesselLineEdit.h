#pragma once

#include <QLineEdit>

namespace Orvane::Tessel {

/// The studio's line edit is Qt's.
class TesselLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit TesselLineEdit(QWidget* parent = nullptr);
    ~TesselLineEdit() override;
};

} // namespace Orvane::Tessel
