#include "SampleTile.h"

namespace {

constexpr QSize SmallestTile(44, 32);

} // namespace

SampleTile::SampleTile(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    setObjectName(QStringLiteral("sampleTile"));
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(SmallestTile);
}

SampleTile::~SampleTile() = default;
