#pragma once

#include <QColor>
#include <QFrame>

class QLabel;

/// The colour that a component reported last: a swatch and its name.
class ReportedColor : public QFrame
{
    Q_OBJECT
    // Content of a page, not a part of the component around it.
    Q_CLASSINFO("styling", "none")

public:
    explicit ReportedColor(QWidget* parent = nullptr);
    ~ReportedColor() override;

    QColor color() const { return m_color; }

    /// Shows @p color; an invalid one as an empty swatch and "#null".
    void setColor(const QColor& color);

private:
    QWidget* const m_swatch;
    QLabel* const m_name;
    QColor m_color;
};
