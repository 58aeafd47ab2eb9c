#include "Page.h"

#include "Labels.h"
#include "PropertyPanel.h"
#include "SignalLogView.h"

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr double TitleFontFactor = 1.5;
constexpr double CaptionFontFactor = 0.9;

/// What an unstyled gallery looks like; a sheet's fonts win.
void setFontOf(QWidget* widget, double sizeFactor, QFont::Weight weight)
{
    QFont font = widget->font();
    // One of the two is unset, depending on how the application's font was made.
    if (font.pointSizeF() > 0) {
        font.setPointSizeF(font.pointSizeF() * sizeFactor);
    } else {
        font.setPixelSize(qRound(font.pixelSize() * sizeFactor));
    }
    font.setWeight(weight);
    widget->setFont(font);
}

} // namespace

Page::Page(const PageInfo& info, const QString& introduction, QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("galleryPage"));
    setAccessibleName(info.title);

    auto* title = new QLabel(info.title, this);
    title->setObjectName(QStringLiteral("pageTitle"));
    setFontOf(title, TitleFontFactor, QFont::Bold);
    alignToLeadingEdge(title);
    auto* classes = new QLabel(info.covers.join(QStringLiteral("  ·  ")), this);
    classes->setObjectName(QStringLiteral("pageClasses"));
    classes->setWordWrap(true);
    alignToLeadingEdge(classes);
    classes->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* text = new QLabel(introduction, this);
    text->setObjectName(QStringLiteral("pageIntroduction"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    alignToLeadingEdge(text);

    m_demonstrationCard = makeCard("none", QString());
    m_enabledCard = makeCard("enabled", tr("Enabled"));
    m_disabledCard = makeCard("disabled", tr("Disabled"));
    m_specimens = new QWidget;
    m_specimens->setObjectName(QStringLiteral("specimens"));
    auto* cards = new QVBoxLayout(m_specimens);
    auto* twinCards = new QHBoxLayout;
    twinCards->addWidget(m_enabledCard, 1);
    twinCards->addWidget(m_disabledCard, 1);
    cards->addWidget(m_demonstrationCard);
    cards->addLayout(twinCards);
    cards->addStretch();
    cards->setContentsMargins(0, 0, 0, 0);
    auto* specimenArea = new QScrollArea;
    specimenArea->setObjectName(QStringLiteral("specimenArea"));
    specimenArea->setWidgetResizable(true);
    specimenArea->setFrameShape(QFrame::NoFrame);
    specimenArea->setFocusPolicy(Qt::NoFocus);
    specimenArea->setWidget(m_specimens);

    m_properties = new PropertyPanel;
    m_signalLog = new SignalLogView;
    m_inspector = new QSplitter(Qt::Horizontal);
    m_inspector->setObjectName(QStringLiteral("inspector"));
    m_inspector->setChildrenCollapsible(false);
    m_inspector->addWidget(m_properties);
    m_inspector->addWidget(m_signalLog);
    connect(m_inspector, &QSplitter::splitterMoved, this, [this] { m_isSplitByUser = true; });
    m_inspector->setStretchFactor(0, 1);
    m_inspector->setStretchFactor(1, 1);

    m_halves = new QSplitter(Qt::Vertical, this);
    m_halves->setObjectName(QStringLiteral("pageHalves"));
    m_halves->setChildrenCollapsible(false);
    m_halves->addWidget(specimenArea);
    m_halves->addWidget(m_inspector);
    connect(m_halves, &QSplitter::splitterMoved, this, [this] { m_isSplitByUser = true; });
    m_halves->installEventFilter(this);
    m_specimens->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(classes);
    layout->addWidget(text);
    layout->addWidget(m_halves, 1);
}

Page::~Page() = default;

void Page::prepareForPicture() {}

void Page::addDemonstration(const QString& caption, QWidget* widget)
{
    addToCard(m_demonstrationCard, caption, widget);
}

void Page::describeStyling(const StyleSubject& subject)
{
    m_styleSubjects.append(subject);
}

void Page::describeStyling(QWidget* widget, const QString& sentence)
{
    describeStyling(StyleSubject{widget, sentence, {}, {}});
}

bool Page::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_specimens && event->type() == QEvent::LayoutRequest) {
        // Not before the specimens' own layout has answered the request.
        QMetaObject::invokeMethod(this, &Page::fitSpecimens, Qt::QueuedConnection);
    } else if (watched == m_halves && event->type() == QEvent::Resize) {
        fitSpecimens();
    }
    return QFrame::eventFilter(watched, event);
}

void Page::fitSpecimens()
{
    if (m_isSplitByUser) {
        return;
    }
    const int available = m_halves->height() - m_halves->handleWidth();
    const int wanted = m_specimens->hasHeightForWidth() ? m_specimens->heightForWidth(m_specimens->width())
                                                        : m_specimens->sizeHint().height();
    const int upper = qMin(wanted, qRound(available * m_largestSpecimenShare));
    m_halves->setSizes({upper, available - upper});
    m_inspector->setSizes({m_inspector->width() / 2, m_inspector->width() / 2});
}

QFrame* Page::makeCard(const char* twin, const QString& title)
{
    auto* card = new QFrame(this);
    card->setObjectName(QStringLiteral("specimenCard"));
    card->setFrameShape(QFrame::StyledPanel);
    card->setProperty("twin", QString::fromUtf8(twin));
    auto* layout = new QVBoxLayout(card);
    if (!title.isEmpty()) {
        auto* label = new QLabel(title, card);
        label->setObjectName(QStringLiteral("cardTitle"));
        setFontOf(label, 1, QFont::DemiBold);
        alignToLeadingEdge(label);
        layout->addWidget(label);
    }
    layout->addStretch();
    card->hide();
    return card;
}

void Page::addToCard(QFrame* card, const QString& caption, QWidget* widget)
{
    auto* layout = static_cast<QVBoxLayout*>(card->layout());
    const int end = layout->count() - 1;
    const bool fills = widget->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
    layout->insertWidget(end, widget, 0, fills ? Qt::Alignment() : Qt::AlignLeft);
    if (!caption.isEmpty()) {
        auto* label = new QLabel(caption, card);
        label->setObjectName(QStringLiteral("specimenCaption"));
        setFontOf(label, CaptionFontFactor, QFont::Normal);
        alignToLeadingEdge(label);
        layout->insertWidget(end, label);
    }
    card->show();
}
