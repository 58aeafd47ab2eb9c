#pragma once

#include <QObject>
#include <QPointer>
#include <QRubberBand>

namespace Orvane::Gui {

/// A rubber band around the target.
class HighlightFrame : public QObject
{
    Q_OBJECT

public:
    explicit HighlightFrame(QWidget* target);
    ~HighlightFrame() override;

private:
    QPointer<QRubberBand> m_band;
};

} // namespace Orvane::Gui
