#pragma once

#include "SheetText.h"

class QWidget;

/// A rule that selects a widget.
struct AppliedRule
{
    struct Declaration : SheetText::Declaration
    {
        /// A stronger rule that holds whenever this one does sets the same property.
        bool isOverridden = false;
    };

    /// The selector of the rule that selects the widget.
    QString selector;
    /// As Qt counts: 256 for a name of an object, 16 for a state, an attribute or a class behind a point, 1
    /// for a type. Of two with the same, the later is stronger.
    int specificity = 0;
    /// The widget whose own sheet has the rule; null: the application's sheet.
    const QWidget* owner = nullptr;
    /// The rule's first line in its sheet.
    int line = 0;
    /// Whether the widget is in the states of the selector. For a part of a widget, only the states that the
    /// part shares with the widget count.
    bool holdsNow = true;
    QVector<Declaration> declarations;
};

/// The rules of @p sheet, the application's, and of the sheets of @p widget and its parents that select
/// @p widget or a part of it, the strongest first: in the order and by the selectors that Qt goes by.
QVector<AppliedRule> appliedRules(const QWidget* widget, const SheetText& sheet);
