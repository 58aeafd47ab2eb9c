#include "MainWindow.h"

#include "LanguageController.h"
#include "Page.h"
#include "PageList.h"
#include "PageRegistry.h"
#include "StyleController.h"
#include "SwitchBar.h"
#include "Workbench.h"

#include <UiComponents/DialogGuideWidget.h>

#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolButton>

namespace {

constexpr QSize startSize(1100, 760);
constexpr int messageMs = 8000;

double scaleOfEnvironment()
{
    bool isNumber = false;
    const double scale = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isNumber);
    return isNumber ? scale : 1.0;
}

} // namespace

MainWindow::MainWindow(const CommandLine& start, QWidget* parent)
    : QMainWindow(parent)
    , m_style(new StyleController(this))
    , m_language(new LanguageController(this))
    , m_switches(new SwitchBar(this))
    , m_list(new PageList(this))
    , m_pageHolder(new QFrame(this))
    , m_workbench(new Workbench(m_style, this))
{
    setObjectName(QStringLiteral("galleryWindow"));
    m_pageHolder->setObjectName(QStringLiteral("pageHolder"));
    auto* holderLayout = new QHBoxLayout(m_pageHolder);
    holderLayout->setContentsMargins(0, 0, 0, 0);

    auto* body = new QWidget(this);
    body->setObjectName(QStringLiteral("galleryBody"));
    auto* layout = new QHBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_list);
    layout->addWidget(m_pageHolder, 1);
    setCentralWidget(body);
    addToolBar(m_switches);
    addWorkbench();
    // At a large scale the screen may be smaller than that.
    resize(startSize.boundedTo(screen()->availableSize()));

    connectSwitches();
    addShortcuts();
    m_switches->setScale(scaleOfEnvironment());
    setStyleName(start.style);
    m_switches->setStyleName(m_style->style());
    m_language->setLanguage(start.language);
    m_switches->setLanguage(m_language->language());
    QApplication::setLayoutDirection(start.direction);
    m_switches->setDirection(start.direction);
    showPage(start.page.isEmpty() ? PageRegistry::pages().constFirst().id : start.page);
    m_list->setFocus();
}

MainWindow::~MainWindow()
{
    // The components of the page may emit to other parts of the window while they are deleted.
    delete m_page;
}

CommandLine MainWindow::state() const
{
    CommandLine now;
    now.page = m_pageId;
    now.style = m_style->style();
    now.language = m_language->language();
    now.direction = QApplication::layoutDirection();
    return now;
}

Page* MainWindow::page() const
{
    return m_page;
}

void MainWindow::showPage(const QString& id)
{
    if (id == m_pageId || !PageRegistry::find(id)) {
        return;
    }
    m_pageId = id;
    m_list->setCurrentPage(id);
    rebuildPage();
}

bool MainWindow::setStyleName(const QString& style)
{
    const bool isApplied = m_style->setStyle(style);
    if (!isApplied) {
        statusBar()->showMessage(tr("The style sheet %1 cannot be read.").arg(style), messageMs);
    }
    m_switches->setStyleName(m_style->style());
    return isApplied;
}

void MainWindow::setLanguage(const QString& code)
{
    m_language->setLanguage(code);
}

void MainWindow::setDirection(Qt::LayoutDirection direction)
{
    if (direction == QApplication::layoutDirection()) {
        return;
    }
    QApplication::setLayoutDirection(direction);
    m_switches->setDirection(direction);
    rebuildPage();
}

void MainWindow::addWorkbench()
{
    addDockWidget(Qt::BottomDockWidgetArea, m_workbench);
    auto* toggle = new QToolButton(m_list);
    toggle->setObjectName(QStringLiteral("workbenchToggle"));
    toggle->setDefaultAction(m_workbench->toggleViewAction());
    toggle->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    toggle->setFocusPolicy(Qt::StrongFocus);
    m_list->layout()->addWidget(toggle);
    auto* point = new QShortcut(QKeySequence(Qt::Key_F12), this);
    // In pop-ups too.
    point->setContext(Qt::ApplicationShortcut);
    connect(point, &QShortcut::activated, m_workbench, &Workbench::point);
}

void MainWindow::connectSwitches()
{
    connect(m_list, &PageList::pageChosen, this, &MainWindow::showPage);
    connect(m_style, &StyleController::styleApplied, m_list, &PageList::fitTitles);
    connect(m_switches, &SwitchBar::styleChosen, this, &MainWindow::setStyleName);
    connect(m_switches, &SwitchBar::styleFileRequested, this, &MainWindow::askForStyleFile);
    connect(m_switches, &SwitchBar::languageChosen, this, &MainWindow::setLanguage);
    connect(m_switches, &SwitchBar::directionChosen, this, &MainWindow::setDirection);
    connect(m_switches, &SwitchBar::scaleChosen, this, &MainWindow::restartRequested);
    connect(m_language, &LanguageController::languageChanged, this, [this](const QString& code) {
        setLocale(QLocale()); // numbers
        m_switches->retranslate();
        m_switches->setStyleName(m_style->style());
        m_switches->setLanguage(code);
        m_list->retranslate();
        m_switches->setDirection(QApplication::layoutDirection());
        m_workbench->retranslate();
        rebuildPage();
    });
}

void MainWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence& keys, auto run) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
    };
    add(QKeySequence::Find, [this] { m_list->searchField()->setFocus(Qt::ShortcutFocusReason); });
    add(QKeySequence(Qt::CTRL + Qt::Key_PageDown), [this] { m_list->step(1); });
    add(QKeySequence(Qt::CTRL + Qt::Key_PageUp), [this] { m_list->step(-1); });
    // A bubble does not take the focus by itself.
    add(QKeySequence(Qt::Key_F6), [this] {
        const auto bubbles = findChildren<DialogGuideWidget*>();
        for (DialogGuideWidget* bubble : bubbles) {
            if (bubble->isVisible()) {
                bubble->enter();
            }
        }
    });
    add(QKeySequence::Quit, [this] { close(); });
}

void MainWindow::askForStyleFile()
{
    auto* dialog = new QFileDialog(this, tr("Style sheet"), QString(), tr("Style sheets (*.qss)"));
    dialog->setObjectName(QStringLiteral("styleFileDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::setStyleName);
    // The click has moved the switch already.
    connect(dialog, &QDialog::rejected, this, [this] { m_switches->setStyleName(m_style->style()); });
    dialog->open();
}

void MainWindow::rebuildPage()
{
    delete m_page;
    const std::optional<PageInfo> info = PageRegistry::find(m_pageId);
    if (!info) {
        return;
    }
    m_page = new Page(*info, m_pageHolder);
    m_pageHolder->layout()->addWidget(m_page);
    m_workbench->setPage(m_page);
    setWindowTitle(tr("%1 – UiComponents Gallery").arg(info->title));
}
