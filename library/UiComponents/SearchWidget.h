#pragma once

#include <UiComponents/UiComponentsExport.h>
#include <WidgetToolkit/OvFrame.h>

#include <QColor>

#include <memory>

/**
 * A search field: an icon, a line edit, and a button that clears the text and shows only while there is some.
 *
 *     auto* search = new SearchWidget(this);
 *     search->setTranslations(tr("Search"), tr("Name of a clip"), tr("Clear"), tr("Search clips"));
 *     connect(search, &SearchWidget::textChanged, filter, &QSortFilterProxyModel::setFilterFixedString);
 *
 * **Text.** It never starts with white space: the field refuses an edit, typed, pasted or from an input
 * method, that would leave some in front, as a whole. White space after the first character is text.
 *
 * **Placeholder.** Its colour is PlaceholderDisabledColor while the line edit is disabled, else
 * PlaceholderHoverColor under the mouse, else PlaceholderColor, whatever colour a sheet gives the text. Set
 * all three, normally in the sheet: one that is not set is drawn black. A new sheet takes effect at once, a
 * property that code sets when the field is next shown, entered, left, enabled or disabled.
 *
 * **Style sheet.** The children are "searchIcon" (QLabel, without an image by default), "searchLineEdit"
 * (Orvane::Tessel::TesselLineEdit) and "clearSearchButton" (QToolButton). The field has the property
 * "focusHint" (bool) from its first focus on: true while the line edit has the focus; icon and line edit are
 * re-polished when it becomes true. The icon has "hovered" (bool). Margins and gaps are 0 by default (see
 * LayoutController).
 *
 *     SearchWidget { qproperty-PlaceholderColor: #808080; qproperty-PlaceholderHoverColor: #a0a0a0; }
 *     SearchWidget[focusHint="true"] { border: 1px solid blue; }
 *     SearchWidget > #searchIcon[hovered="true"] { image: url(:/search-hovered.png); }
 *
 * **Readers.** They find a group of an edit for searches, with the name of the field or the placeholder and
 * with the text as its value, and the button. Tab goes from one to the other, Enter ends the edit.
 *
 * **Lifetime.** Slots of both signals delete the field with deleteLater(), since QLineEdit is still in
 * use after the signal. A field that is destroyed, or whose window is, reports nothing.
 * @see Orvane::Tessel::TesselLineEdit, EditSession
 */
class UICOMPONENTS_EXPORT SearchWidget : public OvFrame
{
    Q_OBJECT
    /// The placeholder's colour; invalid by default.
    Q_PROPERTY(QColor PlaceholderColor READ GetPlaceholderColor MEMBER m_placeholderColor)
    /// The same under the mouse.
    Q_PROPERTY(QColor PlaceholderHoverColor READ GetPlaceholderHoverColor MEMBER m_placeholderHoverColor)
    /// The same while the line edit is disabled, wherever the mouse is.
    Q_PROPERTY(
        QColor PlaceholderDisabledColor READ GetPlaceholderDisabledColor MEMBER m_placeholderDisabledColor)

public:
    /// An empty field. @p parent owns the field; null makes it a window.
    explicit SearchWidget(QWidget* parent = nullptr);
    ~SearchWidget() override;

    /// The text of the line edit.
    QString text() const;

    /// Empties the line edit, as the button does. Emits textChanged() if there was a text; editingFinished()
    /// waits for the end of the edit. Tab reaches the button; when it hides with the text, the focus goes to
    /// the line edit. A click on it leaves the focus where it is.
    void clear();

    /// Sets the host's texts: the tool tips of the icon, the line edit and the button, and the placeholder.
    /// Call it again when the language changes.
    void setTranslations(const QString& iconTooltip, const QString& lineEditTooltip,
                         const QString& clearButtonTooltip, const QString& placeholder);

    QColor GetPlaceholderColor() const { return m_placeholderColor; }
    QColor GetPlaceholderHoverColor() const { return m_placeholderHoverColor; }
    QColor GetPlaceholderDisabledColor() const { return m_placeholderDisabledColor; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user pressed Enter or left the field, and @p text differs from that of the last report, at first
    /// from the empty text; it may be empty. Not emitted by clear() or the button themselves.
    void editingFinished(const QString& text);

    /// The text became @p text, by the user or by clear(). The button is shown or hidden already.
    void textChanged(const QString& text);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void updatePalette();

    QColor m_placeholderColor;
    QColor m_placeholderHoverColor;
    QColor m_placeholderDisabledColor;
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
