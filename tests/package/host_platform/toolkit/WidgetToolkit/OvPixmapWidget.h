#pragma once

#include <QFrame>
#include <QString>

class QMovie;

/// The studio shows no animations.
class OvPixmapWidget : public QFrame
{
    Q_OBJECT

public:
    explicit OvPixmapWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvPixmapWidget() override;

    void setMoviePath(const QString& path);
    QMovie* movie() const;
};
