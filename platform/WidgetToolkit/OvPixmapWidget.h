#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QFrame>

#include <memory>

class QMovie;

/**
 * Plays an animated image, scaled to the widget.
 *
 * The picture keeps its aspect ratio and stands in the middle of the contents rectangle, so a style
 * sheet's border and padding surround it. It is scaled smoothly in device pixels and stays sharp on
 * scaled screens; a disabled widget shows it the way the style shows disabled icons. The size hint is
 * the size of the image, one logical pixel for each of its own, and the height follows the width.
 *
 * A movie plays from when it is loaded, but only while the widget is shown: hiding the widget, or its
 * window being minimised, pauses a running movie and showing it again goes on from there, so that a
 * hidden picture costs nothing. Started by a host while the widget is hidden, it waits likewise. One that
 * the host stopped or paused stays so.
 */
class WIDGETTOOLKIT_EXPORT OvPixmapWidget : public QFrame
{
    Q_OBJECT
    /// The path of the image file, or of a resource.
    Q_PROPERTY(QString moviePath READ moviePath WRITE setMoviePath)

public:
    /// @p parent owns the widget as usual; null makes it a window. @p flags go to QFrame.
    explicit OvPixmapWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvPixmapWidget() override;

    /// The path that was set, also when it gave no movie; empty at first.
    QString moviePath() const;

    /// Loads the image at @p path and replaces the present one. An empty path, a missing file and one
    /// that is no image all leave the widget without a movie, silently. The same path again does nothing
    /// while its movie is there, and tries once more when there is none.
    void setMoviePath(const QString& path);

    /// The movie, for starting and stopping it; null while there is none. The widget owns it and deletes
    /// it when another path is set. An image of one frame is a movie that finishes at once.
    QMovie* movie() const;

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
