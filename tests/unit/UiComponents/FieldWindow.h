#pragma once

#include <QLineEdit>
#include <QVBoxLayout>
#include <QtTest>

/// A field that has one line edit, and another one, in an active window.
template <typename Field>
class FieldWindow : public QWidget
{
public:
    FieldWindow()
        : field(new Field(this))
        , other(new QLineEdit(this))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(field);
        layout->addWidget(other);
        resize(400, 120);
        move(100, 100);
    }

    bool present()
    {
        show();
        activateWindow();
        other->setFocus();
        return QTest::qWaitForWindowActive(this);
    }

    QLineEdit* edit() const { return field->template findChild<QLineEdit*>(); }

    Field* const field;
    QLineEdit* const other;
};
