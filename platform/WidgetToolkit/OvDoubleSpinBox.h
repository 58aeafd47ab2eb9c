#pragma once

#include <WidgetToolkit/WidgetToolkitExport.h>

#include <QDoubleSpinBox>

#include <memory>

/**
 * A QDoubleSpinBox that is safe to scroll past, quick to type into and, on request, takes both decimal marks.
 *
 * Wheel, Enter, Escape and lifetime are as in OvSpinBox.
 *
 * A step leads to a value of exactly the decimals that are shown: six steps of 0.01 are 0.06, where
 * QDoubleSpinBox adds up to 0.060000000000000005. A range below 0 takes "-0" as the beginning of -0.5.
 * @see OvSpinBox, OvDoubleSlider, Util::bindWidgets()
 */
class WIDGETTOOLKIT_EXPORT OvDoubleSpinBox : public QDoubleSpinBox
{
    Q_OBJECT
    Q_PROPERTY(bool bothDecimalMarksAccepted READ bothDecimalMarksAccepted WRITE setBothDecimalMarksAccepted)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals NOTIFY decimalsChanged)

public:
    /// @p parent owns the spin box.
    explicit OvDoubleSpinBox(QWidget* parent = nullptr);
    ~OvDoubleSpinBox() override;

    /// Whether "." and "," both count as the decimal mark in typed and pasted text, whatever the locale;
    /// false by default.
    ///
    /// If true, neither is a thousands separator: "1,234" is a little more than one, a text with two marks is
    /// refused, and a group separator that is one of the two is not shown even if isGroupSeparatorShown().
    /// Text keeps the typed mark until it is committed, and is then shown in the locale's notation. The
    /// locale's own mark, where it is a third one, is accepted too.
    bool bothDecimalMarksAccepted() const;
    void setBothDecimalMarksAccepted(bool accepted);

    /// As QDoubleSpinBox::setDecimals(), and emits decimalsChanged(). A call through a pointer to
    /// QDoubleSpinBox emits nothing.
    void setDecimals(int decimals);

    QValidator::State validate(QString& input, int& pos) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
    void fixup(QString& input) const override;
    void stepBy(int steps) override;

Q_SIGNALS:
    /// setDecimals() changed decimals() and rounded the value to them.
    void decimalsChanged(int decimals);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString withLocaleMark(const QString& text) const;
    QString withMark(const QString& text, QChar mark) const;
    bool isMark(QChar character) const;
    bool isNegativeZero(const QString& text) const;

    class WIDGETTOOLKIT_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
