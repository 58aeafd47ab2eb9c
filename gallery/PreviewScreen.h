#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QFrame>

/// A film to pick colours from: a day over the hills, above the colour bars. It runs while it is visible.
class PreviewScreen : public QFrame
{
    Q_OBJECT

public:
    explicit PreviewScreen(QWidget* parent = nullptr);
    ~PreviewScreen() override;

    bool isRunning() const { return m_isRunning; }
    void setRunning(bool on);

    /// Stops the film at @p progress, 0 to 1.
    void stopAt(double progress);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void updateTimer();

    QBasicTimer m_timer;
    QElapsedTimer m_sinceFrame;
    double m_progress = 0.35;
    bool m_isRunning = true;
};
