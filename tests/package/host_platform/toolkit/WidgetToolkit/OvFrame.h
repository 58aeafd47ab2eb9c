#pragma once

#include <QFrame>

/// The studio's own frame.
class OvFrame : public QFrame
{
    Q_OBJECT

public:
    explicit OvFrame(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~OvFrame() override;

    virtual QLayout* getLayout() const;
};
