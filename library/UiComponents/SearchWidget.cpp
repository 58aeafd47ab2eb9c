#include "SearchWidget.h"

#include "AccessibleFactory.h"
#include "ClickButton.h"
#include "DyingWindow.h"
#include "LabelFocus.h"
#include "NamedPart.h"

#include <DesignElements/TesselLineEdit.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/Util.h>

#include <QCursor>
#include <QEvent>
#include <QLabel>
#include <QRegExpValidator>
#include <QScopedValueRollback>

#include <optional>

using Orvane::Tessel::TesselLineEdit;

namespace {

/// Accepts the empty text, which is only Intermediate to a regular expression: a line edit would not emit
/// editingFinished() for it.
class NoLeadingBlank : public QRegExpValidator // clazy:exclude=missing-qobject-macro
{
public:
    explicit NoLeadingBlank(QObject* parent)
        : QRegExpValidator(QRegExp(QString::fromLatin1("^\\S.*")), parent)
    {
    }

    State validate(QString& input, int& position) const override
    {
        return input.isEmpty() ? Acceptable : QRegExpValidator::validate(input, position);
    }
};

bool hasPlaceholderBrush(const QPalette& palette, const QBrush& brush)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        if (palette.brush(group, QPalette::PlaceholderText) != brush) {
            return false;
        }
    }
    return true;
}

} // namespace

class SearchWidget::Private
{
public:
    explicit Private(SearchWidget* search);

    void showClearButton(bool isVisible);
    void reportFinished();
    void applyPlaceholderBrush() const;
    void setFocusHint(bool isOn);

    SearchWidget* const q;
    QLabel* const searchIcon;
    TesselLineEdit* const searchLineEdit;
    QToolButton* const clearSearchButton;
    bool isClearButtonShown = false;
    bool isHinting = false;
    QString reportedText;
    // The last brush of the placeholder.
    std::optional<QBrush> placeholderBrush;
};

SearchWidget::Private::Private(SearchWidget* search)
    : q(search)
    , searchIcon(named("searchIcon", new QLabel(search)))
    , searchLineEdit(named("searchLineEdit", new TesselLineEdit(search)))
    , clearSearchButton(named("clearSearchButton", new ClickButton(search)))
{
    (new OvHBoxLayout(q))->autoFill();

    LabelFocus::lead(q, searchLineEdit);
    searchLineEdit->setAttribute(Qt::WA_MouseTracking);
    clearSearchButton->hide();
    searchLineEdit->setValidator(new NoLeadingBlank(searchLineEdit));
}

void SearchWidget::Private::showClearButton(bool isVisible)
{
    if (isVisible == isClearButtonShown) {
        return;
    }
    // Hidden with the focus, it would pass it to the next widget in the window.
    if (!isVisible && clearSearchButton->hasFocus()) {
        searchLineEdit->setFocus(Qt::OtherFocusReason);
    }
    clearSearchButton->setVisible(isVisible);
    isClearButtonShown = isVisible;
}

void SearchWidget::Private::reportFinished()
{
    const QString text = searchLineEdit->text();
    if (text == reportedText || DyingWindow::is(q->window())) {
        return;
    }
    reportedText = text;
    Q_EMIT q->editingFinished(text);
}

void SearchWidget::Private::applyPlaceholderBrush() const
{
    if (!placeholderBrush || hasPlaceholderBrush(searchLineEdit->palette(), *placeholderBrush)) {
        return;
    }
    QPalette palette = searchLineEdit->palette();
    palette.setBrush(QPalette::All, QPalette::PlaceholderText, *placeholderBrush);
    searchLineEdit->setPalette(palette);
}

/// Setting the property sends StyleChange without a new sheet.
void SearchWidget::Private::setFocusHint(bool isOn)
{
    const QScopedValueRollback<bool> hinting(isHinting, true);
    Util::applyProperty(q, "focusHint", isOn);
}

SearchWidget::SearchWidget(QWidget* parent)
    : OvFrame(parent)
    , d(std::make_unique<Private>(this))
{
    AccessibleFactory::install();
    connect(d->searchLineEdit, &QLineEdit::textChanged, this,
            [this](const QString& text) { d->showClearButton(!text.isEmpty()); });
    d->searchLineEdit->installEventFilter(this);
    connect(d->searchLineEdit, &QLineEdit::editingFinished, this, [this] { d->reportFinished(); });
    connect(d->searchLineEdit, &QLineEdit::textChanged, this, &SearchWidget::textChanged);
    connect(d->clearSearchButton, &QToolButton::clicked, d->searchLineEdit, &QLineEdit::clear);
}

SearchWidget::~SearchWidget()
{
    // ~QWidget() takes the focus from the line edit, if the field is a window.
    d->searchLineEdit->disconnect(this);
}

QString SearchWidget::text() const
{
    return d->searchLineEdit->text();
}

void SearchWidget::clear()
{
    d->searchLineEdit->clear();
}

void SearchWidget::setTranslations(const QString& iconTooltip, const QString& lineEditTooltip,
                                   const QString& clearButtonTooltip, const QString& placeholder)
{
    d->searchIcon->setToolTip(iconTooltip);
    d->searchLineEdit->setToolTip(lineEditTooltip);
    d->clearSearchButton->setToolTip(clearButtonTooltip);
    d->searchLineEdit->setPlaceholderText(placeholder);
}

bool SearchWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->searchLineEdit) {
        switch (event->type()) {
        case QEvent::FocusIn:
            d->setFocusHint(true);
            Util::repolishWidget(d->searchIcon);
            Util::repolishWidget(d->searchLineEdit);
            break;
        case QEvent::FocusOut:
            d->setFocusHint(false);
            break;
        case QEvent::EnabledChange:
            updatePalette();
            break;
        case QEvent::PaletteChange:
            // Polishing has given the placeholder the sheet's colour of the text.
            d->applyPlaceholderBrush();
            break;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}

void SearchWidget::enterEvent(QEvent* event)
{
    updatePalette();
    QWidget::enterEvent(event);
}

void SearchWidget::leaveEvent(QEvent* event)
{
    updatePalette();
    QWidget::leaveEvent(event);
}

void SearchWidget::showEvent(QShowEvent* event)
{
    updatePalette();
    QWidget::showEvent(event);
}

void SearchWidget::changeEvent(QEvent* event)
{
    // A new sheet may have other placeholder colours.
    if (event->type() == QEvent::StyleChange && d->placeholderBrush && !d->isHinting) {
        updatePalette();
    }
    OvFrame::changeEvent(event);
}

void SearchWidget::updatePalette()
{
    const bool isHovered = rect().contains(mapFromGlobal(QCursor::pos()));
    Util::applyProperty(d->searchIcon, "hovered", isHovered);

    QColor color = m_placeholderDisabledColor;
    if (d->searchLineEdit->isEnabled()) {
        color = isHovered ? m_placeholderHoverColor : m_placeholderColor;
    }
    d->placeholderBrush = QBrush(color);
    d->applyPlaceholderBrush();
}
