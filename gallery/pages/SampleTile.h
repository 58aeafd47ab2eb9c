#pragma once

#include <QLabel>

/// A numbered tile that stands for content where a page is about layout.
class SampleTile : public QLabel
{
    Q_OBJECT

public:
    SampleTile(const QString& text, QWidget* parent);
    ~SampleTile() override;
};
