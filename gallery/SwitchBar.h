#pragma once

#include <QToolBar>

class QButtonGroup;
class QComboBox;
class QFrame;
class QLabel;

/**
 * The tool bar with the gallery's switches. It shows the state that it is given and reports the user's
 * choices; it changes nothing itself.
 */
class SwitchBar : public QToolBar
{
    Q_OBJECT

public:
    explicit SwitchBar(QWidget* parent = nullptr);
    ~SwitchBar() override;

    void setStyleName(const QString& style);
    void setLanguage(const QString& code);
    void setDirection(Qt::LayoutDirection direction);
    void setScale(double scale);
    void retranslate();

Q_SIGNALS:
    /// The user chose a built-in style.
    void styleChosen(const QString& style);
    /// The user wants a style sheet from a file.
    void styleFileRequested();
    void languageChosen(const QString& code);
    void directionChosen(Qt::LayoutDirection direction);
    void scaleChosen(double scale);

private:
    QFrame* makeGroup(const char* name, QLabel* label, QWidget* control);
    QFrame* makeSegments(QButtonGroup* buttons, int count);

    QButtonGroup* const m_styles;
    QButtonGroup* const m_directions;
    QComboBox* const m_languages;
    QComboBox* const m_scales;
    QLabel* const m_name;
    QLabel* const m_styleLabel;
    QLabel* const m_languageLabel;
    QLabel* const m_directionLabel;
    QLabel* const m_scaleLabel;
};
