#pragma once

#include <UiComponents/DialogGuideWidget.h>

#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

/// One step of a walk.
struct WalkStep
{
    /// The widget that the bubble points at, by its object name.
    QString target;
    QString title;
    QString description;
    QString movie;
};

/**
 * Walks the user through a window, from one widget to the next, with a DialogGuideWidget at each.
 *
 * It deletes itself at the end: after the last step, when the user closes a bubble, or when the widget that
 * a bubble annotates is deleted.
 */
class Walk : public QObject
{
    Q_OBJECT

public:
    /// Starts a walk through the children of @p window, which owns it, and ends the one in progress. A step
    /// without a visible target is left out.
    static Walk* start(QWidget* window, const QVector<WalkStep>& steps);
    ~Walk() override;

private:
    Walk(QWidget* window, QVector<WalkStep> steps);
    QWidget* target(int step) const;
    int neighbour(int step, int direction) const;
    void show(int step);
    void end();

    QWidget* const m_window;
    const QVector<WalkStep> m_steps;
    QPointer<DialogGuideWidget> m_bubble;
};
