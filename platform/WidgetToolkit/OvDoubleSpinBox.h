#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QDoubleSpinBox>

/**
 * A QDoubleSpinBox that is safe to scroll past, quick to type into and, on request, indifferent to the
 * decimal mark.
 *
 * Wheel, Enter and Escape behave as in OvSpinBox, and the same listeners may delete the spin box.
 *
 * A step, too, leads to a value of exactly the decimals that are shown: six steps of 0.01 are 0.06, where
 * QDoubleSpinBox adds up to 0.060000000000000005. And a range below 0 takes "-0" as the beginning of -0.5.
 */
class WIDGETTOOLKIT_EXPORT OvDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool bothDecimalMarksAccepted READ bothDecimalMarksAccepted WRITE setBothDecimalMarksAccepted)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)

public:
    /// @p parent owns the spin box as usual.
    explicit OvDoubleSpinBox(QWidget* parent = nullptr);
    ~OvDoubleSpinBox() override;

    /// Whether "." and "," both count as the decimal mark in typed and pasted text, whatever the locale.
    /// Off by default.
    ///
    /// While it is on, neither is ever a thousands separator: "1,234" is a little more than one, a text
    /// with two marks is refused, and a group separator that is one of the two is not shown even when
    /// isGroupSeparatorShown(). Text keeps the mark that was typed until it is committed; then it is
    /// shown in the locale's notation. The locale's own mark, where it is a third one, is accepted too.
    bool bothDecimalMarksAccepted() const { return m_bothDecimalMarksAccepted; }
    void setBothDecimalMarksAccepted(bool accepted);

    /// As QDoubleSpinBox::setDecimals(), and announces the change. Called through a pointer to
    /// QDoubleSpinBox, the change is made but not announced.
    void setDecimals(int decimals);

    QValidator::State validate(QString& input, int& pos) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
    void fixup(QString& input) const override;
    void stepBy(int steps) override;

Q_SIGNALS:
    /// setDecimals() has changed decimals(), after the value was rounded to them.
    void decimalsChanged(int decimals);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString withLocaleMark(const QString& text) const;
    QString withMark(const QString& text, QChar mark) const;
    bool isMark(QChar character) const;
    bool isNegativeZero(const QString& text) const;

    bool m_bothDecimalMarksAccepted = false;
};
