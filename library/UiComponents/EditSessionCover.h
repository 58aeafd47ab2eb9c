// Internal: how EditSession shows that a field stands for several values.

#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class QWidget;

/**
 * Covers the texts of a field while it stands for several values, and sets the property "multiValue" for
 * style sheets and a description for readers. The field keeps its value. What the user types is visible, also
 * before it is a value.
 */
class EditSessionCover : public QObject
{
    Q_OBJECT

public:
    /// @p field outlives @p parent.
    EditSessionCover(QWidget* field, QObject* parent);
    ~EditSessionCover() override;

    bool isShown() const { return m_isShown; }
    void setShown(bool shown);
    /// Shows the covers again, after text that became no value.
    void coverTexts() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cover(QWidget* part);
    void setTexts() const;

    struct Description
    {
        QPointer<QWidget> part;
        QString before;
    };

    QWidget* const m_field;
    QVector<QPointer<QWidget>> m_covers;
    QVector<Description> m_descriptions;
    bool m_isShown = false;
};
