// Internal: the tool button inside the fields PathSelectionWidget and SearchWidget.

#pragma once

#include <QToolButton>

/// A tool button whose field may be deleted in a slot of what its click leads to. It calls itself a
/// QToolButton, to style sheets too.
class FieldButton : public QToolButton // clazy:exclude=missing-qobject-macro
{
public:
    using QToolButton::QToolButton;

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
};
