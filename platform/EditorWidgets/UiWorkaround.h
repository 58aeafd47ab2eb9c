// Internal: the child that Workaround::Ui::apply() adds to a widget.

#pragma once

#include <QObject>

class QWidget;

/// Watches the property "roundedEdges" of its parent and applies it.
class UiWorkaround : public QObject
{
    Q_OBJECT

public:
    explicit UiWorkaround(QWidget* widget);
    ~UiWorkaround() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applyRoundedEdges();
    void setShadowless(bool shadowless);
    void paintBackground();

    QWidget* const m_widget;
    bool m_rounded = false;
    /// What this object set, to reset it.
    bool m_translucencySet = false;
    bool m_systemBackgroundTaken = false;
    bool m_shadowTaken = false;
};
