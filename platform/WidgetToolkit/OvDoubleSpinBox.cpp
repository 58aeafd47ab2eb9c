#include "OvDoubleSpinBox.h"

#include "SpinBoxInput.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace {

bool isDotOrComma(QChar character)
{
    return character == QLatin1Char('.') || character == QLatin1Char(',');
}

} // namespace

class OvDoubleSpinBox::Private
{
public:
    bool bothMarks = false;
};

OvDoubleSpinBox::OvDoubleSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
    , d(std::make_unique<Private>())
{
    setFocusPolicy(Qt::StrongFocus);
}

OvDoubleSpinBox::~OvDoubleSpinBox() = default;

bool OvDoubleSpinBox::bothDecimalMarksAccepted() const
{
    return d->bothMarks;
}

void OvDoubleSpinBox::setBothDecimalMarksAccepted(bool accepted)
{
    if (d->bothMarks == accepted) {
        return;
    }
    d->bothMarks = accepted;
    if (isGroupSeparatorShown()) {
        setValue(value());
    }
}

void OvDoubleSpinBox::setDecimals(int decimals)
{
    const int before = this->decimals();
    const QPointer<OvDoubleSpinBox> self = this;
    QDoubleSpinBox::setDecimals(decimals);
    if (self && this->decimals() != before) {
        Q_EMIT decimalsChanged(this->decimals());
    }
}

QValidator::State OvDoubleSpinBox::validate(QString& input, int& pos) const
{
    const QString given = d->bothMarks ? withLocaleMark(input) : input;
    QString text = given;
    QValidator::State state = QDoubleSpinBox::validate(text, pos);
    if (state == QValidator::Invalid && maximum() < 0.0 && isNegativeZero(given)) {
        state = QValidator::Intermediate;
    }
    if (!d->bothMarks) {
        input = text;
        return state;
    }
    if (text != given) {
        // The base class drops blanks and a second decimal mark. The first one stays.
        const auto typed = std::find_if(input.cbegin(), input.cend(), [this](QChar c) { return isMark(c); });
        input = typed == input.cend() ? text : withMark(text, *typed);
    }
    return state;
}

double OvDoubleSpinBox::valueFromText(const QString& text) const
{
    return QDoubleSpinBox::valueFromText(d->bothMarks ? withLocaleMark(text) : text);
}

QString OvDoubleSpinBox::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(value);
    if (d->bothMarks && isDotOrComma(locale().groupSeparator())) {
        text.remove(locale().groupSeparator());
    }
    return text;
}

void OvDoubleSpinBox::fixup(QString& input) const
{
    // The base class removes group separators, which would turn "1,5" into 15.
    if (!d->bothMarks || !isDotOrComma(locale().groupSeparator())) {
        QDoubleSpinBox::fixup(input);
    }
}

void OvDoubleSpinBox::stepBy(int steps)
{
    const double before = value();
    {
        const QSignalBlocker quiet(this);
        QDoubleSpinBox::stepBy(steps);
        setValue(value()); // rounds to the decimals; the text is right already
    }
    const QPointer<OvDoubleSpinBox> self = this;
    if (value() != before) {
        SpinBoxInput::announceValue<QDoubleSpinBox>(this);
    }
    if (self) {
        selectAll(); // as the base class does
    }
}

void OvDoubleSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (SpinBoxInput::isCommit(event)) {
        SpinBoxInput::commit<QDoubleSpinBox>(this, lineEdit(), event);
    } else {
        QDoubleSpinBox::keyPressEvent(event);
    }
}

void OvDoubleSpinBox::wheelEvent(QWheelEvent* event)
{
    SpinBoxInput::turnWheel(this, event, [this, event] { QDoubleSpinBox::wheelEvent(event); });
}

QString OvDoubleSpinBox::withLocaleMark(const QString& text) const
{
    return withMark(text, locale().decimalPoint());
}

QString OvDoubleSpinBox::withMark(const QString& text, QChar mark) const
{
    if (!specialValueText().isEmpty() && text == specialValueText()) {
        return text;
    }
    QString result = text;
    const int from = text.startsWith(prefix()) ? prefix().size() : 0;
    const int to = text.endsWith(suffix()) ? text.size() - suffix().size() : text.size();
    for (int i = from; i < to; ++i) {
        if (isMark(result.at(i))) {
            result[i] = mark;
        }
    }
    return result;
}

bool OvDoubleSpinBox::isMark(QChar character) const
{
    return isDotOrComma(character) || character == locale().decimalPoint();
}

bool OvDoubleSpinBox::isNegativeZero(const QString& text) const
{
    int from = text.startsWith(prefix()) ? prefix().size() : 0;
    const int to = text.endsWith(suffix()) ? text.size() - suffix().size() : text.size();
    if (from >= to || (text.at(from) != QLatin1Char('-') && text.at(from) != locale().negativeSign())) {
        return false;
    }
    int zerosBehindMark = -1;
    while (++from < to) {
        if (zerosBehindMark < 0 && text.at(from) == locale().decimalPoint()) {
            zerosBehindMark = 0;
        } else if (text.at(from) != QLatin1Char('0') && text.at(from) != locale().zeroDigit()) {
            return false;
        } else if (zerosBehindMark >= 0) {
            ++zerosBehindMark;
        }
    }
    return zerosBehindMark <= decimals();
}
