#include "PageList.h"

#include "PageRegistry.h"

#include <DesignElements/TesselLineEdit.h>

#include <QKeyEvent>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <optional>

namespace {

constexpr int idRole = Qt::UserRole;

QListWidgetItem* makeHeading(const QString& title)
{
    auto* item = new QListWidgetItem(title);
    item->setFlags(Qt::NoItemFlags);
    QFont font = item->font();
    font.setBold(true);
    item->setFont(font);
    return item;
}

QListWidgetItem* makeEntry(const PageInfo& page)
{
    auto* item = new QListWidgetItem(page.title);
    item->setData(idRole, page.id);
    item->setToolTip(page.covers.join(QLatin1Char('\n')));
    return item;
}

QString idOf(const QListWidgetItem* item)
{
    return item ? item->data(idRole).toString() : QString();
}

} // namespace

PageList::PageList(QWidget* parent)
    : QFrame(parent)
    , m_search(new Orvane::Tessel::TesselLineEdit(this))
    , m_list(new QListWidget(this))
{
    setObjectName(QStringLiteral("pageSideBar"));
    m_search->setObjectName(QStringLiteral("pageSearch"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_list->setObjectName(QStringLiteral("pageList"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setFocusProxy(m_list);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);

    connect(m_search, &QLineEdit::textChanged, this, &PageList::fill);
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        if (currentPage().isEmpty()) {
            step(1);
        }
    });
    connect(m_list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item) {
            m_wanted = idOf(item);
            Q_EMIT pageChosen(m_wanted);
        }
    });
    retranslate();
}

PageList::~PageList() = default;

QString PageList::currentPage() const
{
    return idOf(m_list->currentItem());
}

void PageList::setCurrentPage(const QString& id)
{
    if (!PageRegistry::find(id)) {
        return;
    }
    m_wanted = id;
    const QSignalBlocker quiet(m_list);
    select(id);
}

void PageList::step(int offset)
{
    const QStringList listed = listedPages();
    const int from = listed.indexOf(currentPage());
    const int to = from < 0 ? 0 : from + offset;
    if (to >= 0 && to < listed.size()) {
        select(listed.at(to));
    }
}

QStringList PageList::listedPages() const
{
    QStringList ids;
    for (int row = 0; row < m_list->count(); ++row) {
        const QString id = idOf(m_list->item(row));
        if (!id.isEmpty()) {
            ids.append(id);
        }
    }
    return ids;
}

void PageList::retranslate()
{
    m_search->setPlaceholderText(tr("Search title, class, keyword"));
    m_search->setAccessibleName(tr("Search pages"));
    m_list->setAccessibleName(tr("Pages"));
    fill();
}

void PageList::fitTitles()
{
    // While a search hides titles the list keeps its width.
    if (m_search->text().isEmpty()) {
        m_list->setFixedWidth(m_list->sizeHintForColumn(0) + 2 * m_list->frameWidth() +
                              m_list->verticalScrollBar()->sizeHint().width());
    }
}

bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            step(key == Qt::Key_Down ? 1 : -1);
            return true;
        }
        if (key == Qt::Key_Escape && !m_search->text().isEmpty()) {
            m_search->clear();
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void PageList::select(const QString& id)
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (idOf(m_list->item(row)) == id) {
            m_list->setCurrentRow(row);
        }
    }
}

void PageList::fill()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    std::optional<PageGroup> group;
    const QVector<PageInfo> pages = PageRegistry::pages();
    for (const PageInfo& page : pages) {
        if (!PageRegistry::matches(page, m_search->text())) {
            continue;
        }
        if (group != page.group) {
            group = page.group;
            m_list->addItem(makeHeading(PageRegistry::groupTitle(page.group)));
        }
        m_list->addItem(makeEntry(page));
    }
    setCurrentPage(m_wanted);
    fitTitles();
}
