#include "Page.h"

#include "Labels.h"
#include "PageRegistry.h"

#include <WidgetToolkit/OvPixmapWidget.h>

#include <QEvent>
#include <QLabel>
#include <QMovie>
#include <QScrollArea>
#include <QShowEvent>
#include <QSplitter>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr double titleFontFactor = 1.5;
constexpr double captionFontFactor = 0.9;

/// Sets the font for a gallery without a sheet; the fonts of a sheet win.
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

QSplitter* makeSplitter(const char* name, Qt::Orientation orientation, QWidget* first, QWidget* second)
{
    auto* splitter = new QSplitter(orientation);
    splitter->setObjectName(QLatin1String(name));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(first);
    splitter->addWidget(second);
    return splitter;
}

} // namespace

Page::Page(const PageInfo& info, QWidget* parent)
    : QFrame(parent)
    , m_id(info.id)
{
    setObjectName(QStringLiteral("galleryPage"));
    setAccessibleName(info.title);

    QLabel* const title = makeLabel("pageTitle", info.title, this);
    setFontOf(title, titleFontFactor, QFont::Bold);
    QLabel* const classes = makeLabel("pageClasses", info.covers.join(QStringLiteral("  ·  ")), this);
    classes->setWordWrap(true);
    classes->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QLabel* const introduction = makeLabel("pageIntroduction", info.introduction, this);
    introduction->setTextFormat(Qt::PlainText);
    introduction->setWordWrap(true);

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
    m_inspector = makeSplitter("inspector", Qt::Horizontal, m_properties, m_signalLog);
    m_inspector->setStretchFactor(0, 1);
    m_inspector->setStretchFactor(1, 1);
    m_halves = makeSplitter("pageHalves", Qt::Vertical, specimenArea, m_inspector);
    for (const QSplitter* splitter : {m_inspector, m_halves}) {
        connect(splitter, &QSplitter::splitterMoved, this, [this] { m_isSplitByUser = true; });
    }
    m_halves->installEventFilter(this);
    m_specimens->installEventFilter(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title);
    layout->addWidget(classes);
    layout->addWidget(introduction);
    layout->addWidget(m_halves, 1);
    info.fill(this);
}

Page::~Page() = default;

void Page::addDemonstration(const QString& caption, QWidget* widget)
{
    addToCard(m_demonstrationCard, caption, widget);
}

void Page::describeStyling(QWidget* widget, const QString& sentence, const QString& title,
                           const QStringList& hints)
{
    m_styleSubjects.append({widget, sentence, title, hints});
}

void Page::describeCode(QWidget* widget, const std::function<QStringList()>& lines)
{
    m_codeNotes.append({widget, lines});
}

void Page::prepareForPicture()
{
    Q_EMIT pictureRequested();
    const auto images = findChildren<OvPixmapWidget*>();
    for (const OvPixmapWidget* image : images) {
        if (QMovie* const movie = image->movie()) {
            movie->setPaused(true);
            movie->jumpToFrame(0);
        }
    }
    m_signalLog->clear();
}

bool Page::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_specimens && event->type() == QEvent::LayoutRequest) {
        // After the layout of the specimens has handled the request.
        QMetaObject::invokeMethod(this, &Page::fitSpecimens, Qt::QueuedConnection);
    } else if (watched == m_halves && event->type() == QEvent::Resize) {
        fitSpecimens();
    }
    return QFrame::eventFilter(watched, event);
}

void Page::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    if (!event->spontaneous()) {
        Q_EMIT shown();
    }
}

void Page::fitSpecimens()
{
    if (m_isSplitByUser) {
        return;
    }
    const int available = m_halves->height() - m_halves->handleWidth();
    const int wanted = m_specimens->hasHeightForWidth() ? m_specimens->heightForWidth(m_specimens->width())
                                                        : m_specimens->sizeHint().height();
    const int upper = qMin(wanted, qRound(available * m_maxSpecimenShare));
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
        QLabel* const label = makeLabel("cardTitle", title, card);
        setFontOf(label, 1, QFont::DemiBold);
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
        QLabel* const label = makeLabel("specimenCaption", caption, card);
        setFontOf(label, captionFontFactor, QFont::Normal);
        layout->insertWidget(end, label);
    }
    card->show();
}
