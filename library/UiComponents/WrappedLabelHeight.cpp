#include "WrappedLabelHeight.h"

#include <QLabel>

WrappedLabelHeight::WrappedLabelHeight(QLabel* label)
    : m_label(label)
{
}

void WrappedLabelHeight::fit(int width)
{
    if (m_label->minimumHeight() != m_fitted) {
        m_given = m_label->minimumHeight();
    }
    // A label's height includes its minimum, so that of an earlier, longer text would stay.
    m_label->setMinimumHeight(m_given);
    m_fitted = m_label->heightForWidth(width);
    if (m_fitted != -1) {
        m_label->setMinimumHeight(m_fitted);
    }
}
