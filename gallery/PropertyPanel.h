#pragma once

#include <QFrame>
#include <QMetaProperty>
#include <QPointer>
#include <QPushButton>
#include <QVector>

#include <functional>

class ColorInputWidget;
class OvComboBox;
class OvDoubleSpinBox;
class OvSpinBox;
class QCheckBox;
class QFormLayout;
class QLineEdit;

/**
 * The live controls of a page: editors of the properties of its components, and controls for what has no
 * property.
 */
class PropertyPanel : public QFrame
{
    Q_OBJECT

public:
    /// Returns objects of one class, as far as they are alive. The panel calls it at each access.
    using ObjectFinder = std::function<QObjectList()>;

    explicit PropertyPanel(QWidget* parent = nullptr);
    ~PropertyPanel() override;

    /// A heading above the rows that follow.
    void addHeading(const QString& text);

    /// An editor for each of the properties @p names of the objects that @p find returns. Without names:
    /// for each of ownProperties(). An editor shows the value of the first object and writes to all; without
    /// an object it is disabled. A read-only property and one of a type without a control have no editor.
    void addProperties(const ObjectFinder& find, const QByteArrayList& names = {});

    // A row with a control that calls @p apply with each new value.
    QCheckBox* addSwitch(const QString& label, bool value, const std::function<void(bool)>& apply);
    OvSpinBox* addNumber(const QString& label, int minimum, int maximum, int value,
                         const std::function<void(int)>& apply);
    OvDoubleSpinBox* addFraction(const QString& label, double minimum, double maximum, double value,
                                 const std::function<void(double)>& apply);
    QLineEdit* addText(const QString& label, const QString& value,
                       const std::function<void(const QString&)>& apply);
    OvComboBox* addChoice(const QString& label, const QStringList& choices, int current,
                          const std::function<void(int)>& apply);
    ColorInputWidget* addColor(const QString& label, const QColor& value,
                               const std::function<void(const QColor&)>& apply);

    /// A button that calls @p run, or @p function of @p receiver.
    void addAction(const QString& label, const std::function<void()>& run);
    template <typename Receiver, typename Function>
    void addAction(const QString& label, Receiver* receiver, Function function)
    {
        connect(addButton(label), &QPushButton::clicked, receiver, function);
    }

public Q_SLOTS:
    /// Reads all properties again. The panel does so after each edit, when the notify signal of a property
    /// is emitted, when it is shown, and after a change of the style sheet, which sets properties too.
    void refresh();

Q_SIGNALS:
    /// An editor has changed a property.
    void edited();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Editor
    {
        QByteArray property;
        ObjectFinder find;
        QWidget* control = nullptr;
        std::function<void(const QVariant&)> show;
    };

    Editor makeEditor(const ObjectFinder& find, const QMetaProperty& property);
    void write(const ObjectFinder& find, const QByteArray& property, const QVariant& value);
    QPushButton* addButton(const QString& label);
    template <typename Control>
    Control* addRow(const QString& label, Control* control);

    QWidget* const m_content;
    QFormLayout* const m_rows;
    QVector<Editor> m_editors;
    bool m_isShowing = false;
};

/// The writable properties that the classes of @p object declare below the first class of Qt's own, base
/// class first.
QVector<QMetaProperty> ownProperties(const QObject* object);
