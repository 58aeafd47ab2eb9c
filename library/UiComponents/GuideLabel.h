// Internal: the labels of GuideWidget and DialogGuideWidget.

#pragma once

#include <QColor>
#include <QLabel>

class QTextDocument;

/**
 * A label that wraps its text between words. Where a word or a picture would make it wider than half of its
 * screen, it breaks words anywhere and shrinks pictures. Links have its colour, where a sheet gives it one.
 * Pipes and devices in place of its pictures and sheets are missing files.
 */
// Without Q_OBJECT, since style sheets know it as a QLabel.
class GuideLabel : public QLabel // clazy:exclude=missing-qobject-macro
{
public:
    explicit GuideLabel(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

    /// Half of the width of @p widget's screen.
    static int maxWidth(const QWidget* widget);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool breaksWords() const;
    void colorLinks();
    QTextDocument* document() const;
    QRect textRect() const;

    // The colour that this label gave its links last.
    QColor m_linkColor;
};
