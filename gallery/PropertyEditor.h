#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <functional>

class QMetaProperty;
class QVariant;

/**
 * A control for one property of several objects of one class: it shows the value of the first one that is
 * alive and writes to all.
 *
 * It follows the property by its notify signal; where there is none, refresh() reads it again.
 */
class PropertyEditor : public QWidget
{
    Q_OBJECT

public:
    /// The control that fits the type of property @p name: bool, int, double, QString, QColor or an
    /// enumeration. Null for other types, for a property that cannot be written and for an unknown name.
    static PropertyEditor* create(const QObjectList& objects, const QString& name, QWidget* parent = nullptr);

    ~PropertyEditor() override;

public Q_SLOTS:
    /// Shows the property's present value; writes nothing.
    void refresh();

Q_SIGNALS:
    /// The user gave the property a value.
    void edited();

private:
    PropertyEditor(const QObjectList& objects, const QMetaProperty& property, QWidget* parent);
    bool build(const QMetaProperty& property);
    void write(const QVariant& value);
    QVariant value() const;
    void place(QWidget* control);

    QList<QPointer<QObject>> m_objects;
    const QByteArray m_name;
    std::function<void(const QVariant&)> m_show;
    bool m_isShowing = false;
};
