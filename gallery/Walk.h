#pragma once

#include <UiComponents/DialogGuideWidget.h>

#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

/// One stop of a walk.
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
 * It ends, and deletes itself, when the user has seen everything or closes a bubble, and when the widget that
 * a bubble annotates goes away.
 */
class Walk : public QObject
{
    Q_OBJECT

public:
    /// @p window owns the walk, and is where the targets are looked for; a stop whose target is not to be
    /// seen is left out. A walk that goes on in the window is ended.
    static Walk* start(QWidget* window, const QVector<WalkStep>& steps);
    ~Walk() override;

    /// The bubble that is shown.
    DialogGuideWidget* bubble() const { return m_bubble; }

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
