#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QFrame>

#include <memory>

class QMovie;

/**
 * Plays an animated picture, scaled to the widget.
 *
 * The image keeps its aspect ratio and is centred in the contents rectangle, inside a style sheet's border
 * and padding. It is scaled smoothly in device pixels; a disabled widget shows it as the style shows disabled
 * icons. The size hint is the image's size, one logical pixel for each of its own, and the height follows the
 * width.
 *
 * A movie plays from when it is loaded, but only while the widget is shown: hiding the widget, or minimising
 * its window, pauses a running movie, and showing it again resumes it. A movie that a host starts while the
 * widget is hidden waits likewise; one that the host stopped or paused stays so.
 */
class WIDGETTOOLKIT_EXPORT OvPixmapWidget : public QFrame
{
    Q_OBJECT
    /// The path of the image file, or of a resource.
    Q_PROPERTY(QString moviePath READ moviePath WRITE setMoviePath)

public:
    /// @p parent owns the widget; null makes it a window. @p flags go to QFrame.
    explicit OvPixmapWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvPixmapWidget() override;

    /// The path that was set, also if it gave no movie; empty by default.
    QString moviePath() const;

    /// Loads the image at @p path in place of the current one. An empty path, a missing file, a file that is
    /// no image, and one of more than 8192 x 8192 pixels or 256 MiB leave the widget without a movie and
    /// report nothing. The same path again does nothing, but loads again if there is no movie.
    void setMoviePath(const QString& path);

    /// The movie, to start and stop; null while there is none. The widget owns it and deletes it when another
    /// path is set. An image of one frame is a movie that finishes at once.
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
    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
