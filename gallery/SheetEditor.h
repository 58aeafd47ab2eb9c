#pragma once

#include <QPlainTextEdit>

/**
 * An editor of source code, with the numbers of its lines and a mark at the line of an error.
 */
class SheetEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SheetEditor(QWidget* parent = nullptr);
    ~SheetEditor() override;

    /// Marks the line @p line, from 1, as wrong; 0 takes the mark away.
    void setErrorLine(int line);

    /// Some lines of code.
    QSize sizeHint() const override;

    /// Moves the cursor to the line @p line, from 1, and brings it to the middle.
    void goToLine(int line);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeMargin();
    void paintMargin();

    QWidget* const m_margin;
    int m_errorLine = 0;
};
