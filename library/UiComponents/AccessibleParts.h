// Internal: the accessible interfaces of the components and their parts. Stateless: each query reads the
// widget.

#pragma once

#include <QAbstractSpinBox>
#include <QAccessibleWidget>
#include <QLineEdit>

#include <memory>

class QAbstractButton;
class QAbstractSlider;
class GuidePicture;
class ColorPickerWidget;
class QLabel;
class AccessibleLineEdit;

/// A widget with the name that AccessibleNames has for it.
class AccessiblePart : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;

    /// The pop-ups that it has opened come last.
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QVector<QWidget*> popups() const;
};

/// A widget that shows a colour, which is its value and comes first in its description.
class AccessibleColor : public AccessiblePart
{
public:
    using AccessiblePart::AccessiblePart;

    QString text(QAccessible::Text kind) const override;

protected:
    virtual QString spokenColor() const;
};

/// An error message, announced when it appears.
class AccessibleMessage : public AccessiblePart
{
public:
    explicit AccessibleMessage(QLabel* label);

    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
};

class AccessibleButton : public AccessibleColor
{
public:
    AccessibleButton(QAbstractButton* button, QAccessible::Role role);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

protected:
    QString spokenColor() const override;

private:
    QAbstractButton* button() const;
};

/// A bubble, a selector, or the panel of a colour field: its text, or the colour, is its description. A
/// pop-up is a child of what has opened it, where Qt leaves it out of the tree.
class AccessiblePopup : public AccessiblePart
{
public:
    explicit AccessiblePopup(QWidget* popup);

    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;

private:
    ColorPickerWidget* colorPanel() const;
};

/// An animated picture, which can be paused.
class AccessiblePicture : public AccessiblePart
{
public:
    explicit AccessiblePicture(GuidePicture* picture);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;

private:
    GuidePicture* picture() const;
};

/// The value of a slider in its units.
class AccessibleSlider : public AccessiblePart, public QAccessibleValueInterface
{
public:
    explicit AccessibleSlider(QAbstractSlider* slider);

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QAbstractSlider* slider() const;
    QVariant inUnits(int step) const;
};

/// Text and caret are those of the line edit in it.
class AccessibleSpinBox : public AccessiblePart, public QAccessibleValueInterface
{
public:
    explicit AccessibleSpinBox(QAbstractSpinBox* box);
    ~AccessibleSpinBox() override;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant minimumValue() const override;
    QVariant maximumValue() const override;
    QVariant minimumStepSize() const override;

private:
    QVariant property(const char* name) const;

    // Qt makes none for the line edit of a spin box.
    const std::unique_ptr<AccessibleLineEdit> m_edit;
};

class AccessibleLineEdit : public AccessiblePart,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface
{
public:
    explicit AccessibleLineEdit(QLineEdit* edit);
    ~AccessibleLineEdit() override = default;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QVector<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;

    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

private:
    QLineEdit* edit() const;
    bool isEditable() const;
    void enter(const QString& text);
};
