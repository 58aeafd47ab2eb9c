#pragma once

#include <QLabel>

/// A numbered tile that stands for content where a page is about layout.
class SampleTile : public QLabel
{
    Q_OBJECT
    // Content of a page, not a part of the component around it.
    Q_CLASSINFO("styling", "none")

public:
    SampleTile(const QString& text, QWidget* parent);
    ~SampleTile() override;
};
