#include "ResultTable.h"

#include "Labels.h"

#include <QFormLayout>

ResultTable::ResultTable(QWidget* parent)
    : QFrame(parent)
    , m_layout(new QFormLayout(this))
{
    setObjectName(QStringLiteral("resultTable"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

ResultTable::~ResultTable() = default;

void ResultTable::setResult(const QString& name, const QString& value, Qt::TextFormat format)
{
    QLabel*& label = m_values[name];
    if (!label) {
        label = makeLabel("resultValue", QString(), this);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        auto* nameLabel = new QLabel(name, this);
        nameLabel->setObjectName(QStringLiteral("resultName"));
        m_layout->addRow(nameLabel, label);
    }
    label->setTextFormat(format);
    label->setText(value);
}
