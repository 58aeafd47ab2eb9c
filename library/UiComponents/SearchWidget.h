#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>

/**
 * A search box: an icon, a line edit, and a button that clears the text and shows only while there is some.
 *
 *     auto* search = new SearchWidget(this);
 *     search->setTranslations(tr("Search"), tr("Name of a clip"), tr("Clear"), tr("Search clips"));
 *     connect(search, &SearchWidget::textChanged, filter, &QSortFilterProxyModel::setFilterFixedString);
 *
 * **Text.** It never starts with white space: a leading blank is refused, of whatever kind, typed, pasted or
 * from an input method, and so is an edit that would leave one in front. What is refused changes nothing; a
 * pasted text with a leading blank is refused as a whole. Blanks after the first character are text.
 *
 * **Signals.** textChanged() reports each change. editingFinished() reports the end of an edit, by Enter or
 * by leaving the field, if the text is another one than at the last report; at first that is the empty text,
 * so an untouched field reports nothing, and a text that was searched for and then emptied does report.
 *
 * **Placeholder.** Its colour goes by the mouse and the state of the line edit: PlaceholderHoverColor under
 * the mouse, else PlaceholderColor, and PlaceholderDisabledColor when disabled. Set all three, normally in
 * the style sheet: one that is not set is drawn black. They hold although sheets give placeholders the
 * colour of the text. The colour is chosen when the field is shown, entered, left, enabled or disabled; a
 * property that is written takes effect the next time that happens.
 *
 * **Style sheet.** The children are "searchIcon" (QLabel, without a picture until the sheet gives it one),
 * "searchLineEdit" (Orvane::Tessel::TesselLineEdit) and "clearSearchButton" (QToolButton). The widget has
 * the dynamic property "focusHint" (bool) from the first time that it gets the keyboard: true while the line
 * edit has it, when icon and line edit are polished again, and false afterwards. The icon has "hovered"
 * (bool). Margins and gaps are those of LayoutController, 0 at first.
 *
 *     SearchWidget { qproperty-PlaceholderColor: #808080; qproperty-PlaceholderHoverColor: #a0a0a0; }
 *     SearchWidget[focusHint="true"] { border: 1px solid blue; }
 *     SearchWidget > #searchIcon { image: url(:/search.png); min-width: 16px; }
 *     SearchWidget > #searchIcon[hovered="true"] { image: url(:/search-hovered.png); }
 *
 * **Keyboard.** The button is reached by Tab. It leaves together with the text, and the keyboard then goes
 * to the line edit. A click on it leaves the keyboard where it is.
 *
 * **Lifetime.** In slots of both signals delete the widget with deleteLater(), because the line edit that
 * reported goes on using itself. A field that is destroyed reports nothing any more, also when it has the
 * keyboard and a text that was not reported, and also when it is its window that is destroyed.
 */
class UICOMPONENTS_EXPORT SearchWidget : public OvFrame
{
    Q_OBJECT
    /// The placeholder's colour; invalid at first. Writing it shows nothing yet, see above.
    Q_PROPERTY(QColor PlaceholderColor READ GetPlaceholderColor MEMBER m_placeholderColor)
    /// The same under the mouse.
    Q_PROPERTY(QColor PlaceholderHoverColor READ GetPlaceholderHoverColor MEMBER m_placeholderHoverColor)
    /// The same while the line edit is disabled, wherever the mouse is.
    Q_PROPERTY(
        QColor PlaceholderDisabledColor READ GetPlaceholderDisabledColor MEMBER m_placeholderDisabledColor)

public:
    /// An empty field. @p parent owns the widget as usual; null makes it a window.
    explicit SearchWidget(QWidget* parent = nullptr);
    ~SearchWidget() override;

    /// What is in the line edit.
    QString text() const;

    /// Empties the line edit, as the button does: textChanged() is emitted if there was a text, and
    /// editingFinished() only once the edit is finished.
    void clear();

    /// Sets all texts, which are the host's: the tool tips of the icon, the line edit and the button, and
    /// the placeholder. Call it again when the language changes.
    void setTranslations(const QString& iconTooltip, const QString& lineEditTooltip,
                         const QString& clearButtonTooltip, const QString& placeholder);

    /// @name The three properties.
    /// @{
    QColor GetPlaceholderColor() const { return m_placeholderColor; }
    QColor GetPlaceholderHoverColor() const { return m_placeholderHoverColor; }
    QColor GetPlaceholderDisabledColor() const { return m_placeholderDisabledColor; }
    /// @}

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// An edit was finished by Enter or by leaving the field, and @p text is another one than was reported
    /// the last time; it may be empty. Not emitted by clear() or the button themselves.
    void editingFinished(const QString& text);

    /// The text became @p text, by the user or by clear(). The button's visibility has followed already.
    void textChanged(const QString& text);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void updatePalette();

    QColor m_placeholderColor;
    QColor m_placeholderHoverColor;
    QColor m_placeholderDisabledColor;
    class Private;
    const std::unique_ptr<Private> d;
};
