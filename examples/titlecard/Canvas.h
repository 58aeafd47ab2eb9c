#pragma once

#include <QVector>
#include <QWidget>

namespace TitleCard {

class Document;

/// Shows the document, and selects its cards: by a click, several with Ctrl, all with Ctrl+A.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(Document* document, QWidget* parent = nullptr);

    const QVector<int>& selection() const { return m_selection; }
    void select(const QVector<int>& ids);

Q_SIGNALS:
    void selectionChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Document* const m_document;
    QVector<int> m_selection;
};

} // namespace TitleCard
