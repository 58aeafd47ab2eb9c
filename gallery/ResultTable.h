#pragma once

#include <QFrame>
#include <QHash>

class QFormLayout;
class QLabel;

/// Named results of calls, one a line.
class ResultTable : public QFrame
{
    Q_OBJECT

public:
    explicit ResultTable(QWidget* parent = nullptr);
    ~ResultTable() override;

    /// Sets the value of the line @p name, and adds the line if there is none.
    void setResult(const QString& name, const QString& value, Qt::TextFormat format = Qt::PlainText);

private:
    QFormLayout* const m_layout;
    QHash<QString, QLabel*> m_values;
};
