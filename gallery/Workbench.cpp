#include "Workbench.h"

#include "CodeText.h"
#include "Labels.h"
#include "Page.h"
#include "SheetEditor.h"
#include "StyleController.h"
#include "WidgetFacts.h"
#include "WidgetPointer.h"

#include <WidgetToolkit/Util.h>

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>
#include <QToolButton>

Workbench::Workbench(StyleController* style, QWidget* parent)
    : QDockWidget(parent)
    , m_style(style)
    , m_point(new QToolButton)
    , m_copy(new QToolButton)
    , m_save(new QToolButton)
    , m_facts(new WidgetFacts)
    , m_editor(new SheetEditor)
    , m_message(makeLabel("workbenchMessage", QString(), nullptr))
    , m_pointer(new WidgetPointer(m_point, this))
{
    setObjectName(QStringLiteral("workbench"));
    m_point->setObjectName(QStringLiteral("workbenchPoint"));
    m_point->setCheckable(true);
    m_copy->setObjectName(QStringLiteral("workbenchCopy"));
    m_save->setObjectName(QStringLiteral("workbenchSave"));
    m_editor->setObjectName(QStringLiteral("sheetEditor"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto* halves = new QSplitter;
    halves->setObjectName(QStringLiteral("workbenchHalves"));
    halves->setChildrenCollapsible(false);
    halves->addWidget(m_facts);
    halves->addWidget(m_editor);
    auto* body = new QWidget;
    auto* layout = new QHBoxLayout(body);
    layout->addWidget(halves);
    QMargins margins = layout->contentsMargins();
    margins.setTop(0);
    layout->setContentsMargins(margins);
    setWidget(body);
    auto* header = new QFrame;
    header->setObjectName(QStringLiteral("workbenchHeader"));
    auto* buttons = new QHBoxLayout(header);
    for (QToolButton* button : {m_point, m_copy, m_save}) {
        button->setFocusPolicy(Qt::StrongFocus);
        buttons->addWidget(button);
    }
    buttons->addWidget(m_message, 1);
    setTitleBarWidget(header);
    hide();

    connect(m_pointer, &WidgetPointer::pointedAt, this, &Workbench::inspect);
    connect(m_pointer, &WidgetPointer::taken, m_facts, [this] { m_facts->setFocus(Qt::OtherFocusReason); });
    connect(m_copy, &QToolButton::clicked, this, &Workbench::copyCode);
    connect(m_save, &QToolButton::clicked, this, &Workbench::save);
    connect(m_facts, &WidgetFacts::widgetChosen, this, &Workbench::inspect);
    connect(m_facts, &WidgetFacts::lineShown, m_editor, &SheetEditor::goToLine);
    connect(m_facts, &WidgetFacts::editRequested, m_editor,
            [this] { m_editor->setFocus(Qt::OtherFocusReason); });
    connect(m_editor, &QPlainTextEdit::textChanged, this, &Workbench::applyEdits);
    connect(m_style, &StyleController::styleApplied, this, &Workbench::showSheet);
    retranslate();
}

Workbench::~Workbench()
{
    // What is shown may be a part of the workbench itself.
    forget();
    delete m_pointer;
}

void Workbench::inspect(QWidget* widget)
{
    forget();
    m_widget = widget;
    if (widget) {
        widget->installEventFilter(this);
        m_destroyed = connect(widget, &QObject::destroyed, this, [this] {
            // Not cleared yet.
            m_widget.clear();
            showFacts();
        });
    }
    showFacts();
}

void Workbench::point()
{
    QWidget* const focused = QApplication::focusWidget();
    show();
    if (focused && !isAncestorOf(focused)) {
        inspect(focused);
    }
    m_point->toggle();
}

void Workbench::setPage(Page* page)
{
    m_page = page;
}

void Workbench::retranslate()
{
    setWindowTitle(tr("Workbench"));
    m_point->setText(tr("Point at a widget"));
    m_point->setToolTip(tr("Click any widget to see what a sheet can know of it (F12); Escape ends it"));
    // Without the mark its signs change sides where texts run from right to left.
    m_copy->setText(tr("Copy C++") + QChar(0x200E));
    m_copy->setToolTip(tr("Copies the code that builds what the page shows, with its present values"));
    m_save->setText(tr("Save"));
    m_save->setToolTip(tr("Writes the sheet into its file; a built-in sheet has none"));
    m_facts->setAccessibleName(tr("Widget"));
    m_editor->setAccessibleName(tr("Style sheet"));
    showFacts();
}

void Workbench::showEvent(QShowEvent* event)
{
    QDockWidget::showEvent(event);
    if (!event->spontaneous()) {
        showSheet();
    }
}

void Workbench::hideEvent(QHideEvent* event)
{
    QDockWidget::hideEvent(event);
    if (!event->spontaneous()) {
        m_point->setChecked(false);
    }
}

bool Workbench::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
    case QEvent::DynamicPropertyChange:
        if (watched == m_widget) {
            showFacts();
        }
        break;
    default:
        break;
    }
    return QDockWidget::eventFilter(watched, event);
}

void Workbench::forget()
{
    if (m_widget) {
        m_widget->removeEventFilter(this);
        disconnect(m_destroyed);
    }
}

void Workbench::showSheet()
{
    if (!isVisible()) {
        return;
    }
    m_applied = SheetText(qApp->styleSheet());
    // What is typed and has an error stays.
    if (m_known != m_style->sheet()) {
        m_known = m_style->sheet();
        m_editor->setPlainText(m_known);
    }
    showFacts();
}

void Workbench::applyEdits()
{
    const QString text = m_editor->toPlainText();
    const SheetText sheet(text);
    const bool isGood = sheet.errorLine() == 0;
    m_editor->setErrorLine(sheet.errorLine());
    m_save->setEnabled(isGood && m_style->isFile());
    showMessage(isGood ? QString() : tr("Line %1: %2").arg(sheet.errorLine()).arg(sheet.error()), !isGood);
    if (isGood && text != m_known) {
        m_known = text;
        m_style->setSheet(text);
    }
}

void Workbench::showFacts()
{
    if (isVisible()) {
        m_facts->show(m_widget, m_applied, m_editor->blockCount());
    }
}

void Workbench::showMessage(const QString& text, bool isError)
{
    m_message->setText(text);
    Util::applyStyleHint(m_message, isError ? QStringLiteral("error") : QString());
}

void Workbench::copyCode()
{
    if (m_page) {
        QApplication::clipboard()->setText(codeText(m_page));
        showMessage(tr("Copied."), false);
    }
}

void Workbench::save()
{
    const bool isSaved = m_style->save();
    showMessage(isSaved ? tr("Saved.") : tr("The file cannot be written."), !isSaved);
}
