// Internal: the animated image of GuideWidget and DialogGuideWidget.

#pragma once

#include "FocusOutline.h"

#include <WidgetToolkit/OvPixmapWidget.h>

/// An image that the user pauses and resumes, by a click or by Space while it has the focus. It calls itself
/// an OvPixmapWidget, to style sheets too.
class GuidePicture : public OvPixmapWidget // clazy:exclude=missing-qobject-macro
{
public:
    using OvPixmapWidget::OvPixmapWidget;

    /// As setMoviePath(), and stops at the first picture where that is wanted.
    void setPicture(const QString& path);

    /// Plays from the first picture, or shows that one alone.
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
