#pragma once

#include <QFrame>
#include <QStringList>

#include <functional>

class PropertyEditor;
class QFormLayout;

/**
 * The live controls of a page: editors made from the properties of its components, and controls that the
 * page wires by hand for what has no property.
 */
class PropertyPanel : public QFrame
{
    Q_OBJECT

public:
    explicit PropertyPanel(QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// A heading above the rows that follow.
    void addHeading(const QString& text);

    /// An editor for each of the properties @p names of @p objects, which are of one class. Without names:
    /// for each property that the classes of the library declare. What no editor fits is left out.
    void addProperties(const QObjectList& objects, const QStringList& names = {});

    void addSwitch(const QString& label, bool value, const std::function<void(bool)>& apply);
    void addNumber(const QString& label, int minimum, int maximum, int value,
                   const std::function<void(int)>& apply);
    void addFraction(const QString& label, double minimum, double maximum, double value,
                     const std::function<void(double)>& apply);
    void addText(const QString& label, const QString& value,
                 const std::function<void(const QString&)>& apply);
    void addChoice(const QString& label, const QStringList& choices, int current,
                   const std::function<void(int)>& apply);
    void addColor(const QString& label, const QColor& value, const std::function<void(const QColor&)>& apply);
    void addAction(const QString& label, const std::function<void()>& run);

    /// Any other control; the panel takes it over.
    void addRow(const QString& label, QWidget* control);

    bool isEmpty() const;

    /// Reads all properties again. This happens by itself after a change of one, and when the panel is
    /// shown or the style sheet, which sets properties too, has changed.
    void refresh();

Q_SIGNALS:
    /// A property was changed by its editor.
    void edited();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* const m_content;
    QFormLayout* const m_rows;
    QList<PropertyEditor*> m_editors;
};

/// The writable properties of @p object that its classes declare below the first class of Qt's own, base
/// class first.
QStringList ownPropertyNames(const QObject* object);
