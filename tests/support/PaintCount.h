#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QWidget>

/// Counts the pictures that a widget paints.
class PaintCount : public QObject
{
public:
    explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

inline QImage pictureOf(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// How many pictures of @p widget a change takes, once everything before it is painted.
template <typename Change>
int paintsOf(QWidget& widget, Change change)
{
    QCoreApplication::processEvents();
    const PaintCount paints(&widget);
    change();
    QCoreApplication::processEvents();
    return paints.count;
}
