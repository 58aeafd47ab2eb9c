#pragma once

#include <QFrame>
#include <QHash>

class QFormLayout;
class QLabel;

/// Named results of calls, one a line. Values are plain text unless a page says otherwise.
class ResultTable : public QFrame
{
    Q_OBJECT

public:
    explicit ResultTable(QWidget* parent = nullptr);
    ~ResultTable() override;

    /// Adds the line @p name, or gives it a new value.
    void setResult(const QString& name, const QString& value, Qt::TextFormat format = Qt::PlainText);

private:
    QFormLayout* const m_layout;
    QHash<QString, QLabel*> m_values;
};
