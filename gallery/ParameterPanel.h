#pragma once

#include <QVector>
#include <QWidget>

class PathSelectionWidget;
class QFormLayout;
class QLabel;

/// The parameters of a clip as an editor's panel shows them: a search above rows of fields, one of each kind
/// of input.
class ParameterPanel : public QWidget
{
    Q_OBJECT

public:
    explicit ParameterPanel(QWidget* parent = nullptr);
    ~ParameterPanel() override;

    PathSelectionWidget* folder() const { return m_folder; }

    /// Shows only the rows whose name contains @p text.
    void filter(const QString& text);

Q_SIGNALS:
    /// The user changed the parameter @p name, or code did.
    void parameterChanged(const QString& name, const QString& value);

private:
    struct Row
    {
        QLabel* label = nullptr;
        QWidget* field = nullptr;
    };

    void addRow(const QString& name, QWidget* field);
    void addTransform();
    void addLook();
    void addFiles();

    QFormLayout* const m_rows;
    PathSelectionWidget* m_folder = nullptr;
    QVector<Row> m_all;
};
