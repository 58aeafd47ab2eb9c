#pragma once

#include <QColor>
#include <QFrame>

class QListWidget;

/// The colours that a component has reported, the latest first.
class PickedColors : public QFrame
{
    Q_OBJECT
    // Content of a page, not a part of the component around it.
    Q_CLASSINFO("styling", "none")

public:
    explicit PickedColors(QWidget* parent = nullptr);
    ~PickedColors() override;

    void add(const QColor& color);

    /// Their names, as they are shown.
    QStringList names() const;

private:
    QListWidget* const m_list;
};
