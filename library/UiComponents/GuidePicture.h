// Internal: the animated picture of GuideWidget and DialogGuideWidget.

#pragma once

#include "FocusOutline.h"

#include <WidgetToolkit/OvPixmapWidget.h>

/// A picture that the user pauses and resumes, by a click or by Space while it has the focus. Its class name
/// is OvPixmapWidget's, for style sheets too.
class GuidePicture : public OvPixmapWidget // clazy:exclude=missing-qobject-macro
{
public:
    using OvPixmapWidget::OvPixmapWidget;

    /// As setMoviePath(), and stops at the first frame where that is wanted. Hidden without a file.
    void setPicture(const QString& path);

    /// Plays from the first frame, or shows that one alone.
    void restart();

    bool isPlaying() const;
    void toggle();

protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool isToBeStill() const;
    void holdIfStill();

    FocusOutline m_focus{this};
};
