// Internal: the values that a style sheet gives SheetColors and the scenes of QuickContent.

#pragma once

#include <QColor>
#include <QWidget>

/**
 * A widget that is never shown, through which a style sheet names its colours and measures:
 *
 *     SheetColorsProvider { qproperty-accent: #2f74d4; qproperty-radius: 4; }
 *
 * What the present sheet does not name is invalid, or -1, whatever the one before did.
 */
class SheetColorsProvider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor window MEMBER m_window)
    Q_PROPERTY(QColor card MEMBER m_card)
    Q_PROPERTY(QColor popup MEMBER m_popup)
    Q_PROPERTY(QColor field MEMBER m_field)
    Q_PROPERTY(QColor fieldDisabled MEMBER m_fieldDisabled)
    Q_PROPERTY(QColor button MEMBER m_button)
    Q_PROPERTY(QColor buttonHover MEMBER m_buttonHover)
    Q_PROPERTY(QColor buttonPressed MEMBER m_buttonPressed)
    Q_PROPERTY(QColor itemHover MEMBER m_itemHover)
    Q_PROPERTY(QColor line MEMBER m_line)
    Q_PROPERTY(QColor border MEMBER m_border)
    Q_PROPERTY(QColor borderHover MEMBER m_borderHover)
    Q_PROPERTY(QColor text MEMBER m_text)
    Q_PROPERTY(QColor textStrong MEMBER m_textStrong)
    Q_PROPERTY(QColor textSecondary MEMBER m_textSecondary)
    Q_PROPERTY(QColor textDisabled MEMBER m_textDisabled)
    Q_PROPERTY(QColor link MEMBER m_link)
    Q_PROPERTY(QColor accent MEMBER m_accent)
    Q_PROPERTY(QColor accentHover MEMBER m_accentHover)
    Q_PROPERTY(QColor accentPressed MEMBER m_accentPressed)
    Q_PROPERTY(QColor accentText MEMBER m_accentText)
    Q_PROPERTY(QColor focus MEMBER m_focus)
    Q_PROPERTY(QColor selection MEMBER m_selection)
    Q_PROPERTY(QColor selectionText MEMBER m_selectionText)
    Q_PROPERTY(QColor error MEMBER m_error)
    Q_PROPERTY(QColor errorBorder MEMBER m_errorBorder)
    Q_PROPERTY(QColor errorField MEMBER m_errorField)
    Q_PROPERTY(int radius MEMBER m_radius)
    Q_PROPERTY(int spacing MEMBER m_spacing)

public:
    SheetColorsProvider();
    ~SheetColorsProvider() override;

    /// Of all properties above.
    static QStringList names();
    /// The sheet's, or else that of the application's palette. Invalid for a name that is none of these.
    QVariant value(const QString& name) const;

Q_SIGNALS:
    /// The sheet or the palette changed.
    void changed();

protected:
    bool event(QEvent* event) override;

private:
    void takeSheet();

    QColor m_window;
    QColor m_card;
    QColor m_popup;
    QColor m_field;
    QColor m_fieldDisabled;
    QColor m_button;
    QColor m_buttonHover;
    QColor m_buttonPressed;
    QColor m_itemHover;
    QColor m_line;
    QColor m_border;
    QColor m_borderHover;
    QColor m_text;
    QColor m_textStrong;
    QColor m_textSecondary;
    QColor m_textDisabled;
    QColor m_link;
    QColor m_accent;
    QColor m_accentHover;
    QColor m_accentPressed;
    QColor m_accentText;
    QColor m_focus;
    QColor m_selection;
    QColor m_selectionText;
    QColor m_error;
    QColor m_errorBorder;
    QColor m_errorField;
    int m_radius = -1;
    int m_spacing = -1;
    bool m_isTaking = false;
};
