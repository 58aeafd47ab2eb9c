#include "../Labels.h"
#include "../LanguageController.h"
#include "../Page.h"
#include "../PageRegistry.h"
#include "../ResultTable.h"
#include "../ValueText.h"

#include <ApplicationUtility/Customization.h>
#include <EditorUtility/FileUtil.h>
#include <FileSystem/FS.h>
#include <QtUtility/FormatFileSize.h>
#include <QtUtility/PrivacyAccess.h>
#include <QtUtility/QmlWindowFocusWorkaround.h>
#include <QtUtility/Scheduler.h>
#include <Settings/Settings.h>
#include <Settings/StandardFolderUrls.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/CustomColors.h>
#include <UiComponents/Translations.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>

#include <limits>
#include <memory>

namespace {

QString yesOrNo(bool yes)
{
    return yes ? PageRegistry::tr("yes") : PageRegistry::tr("no");
}

void addFileSizes(Page* page, ResultTable* results)
{
    struct Request
    {
        qint64 bytes = 1610612736;
        int precision = -1;
        int unit = 0;
        int kiloSize = 1024;
    };
    const auto request = std::make_shared<Request>();
    const QString name = PageRegistry::tr("Asked for");
    const auto update = [results, request, name] {
        const auto format = [&request](qint64 bytes) {
            return Orvane::Util::FormatFileSize(bytes, request->precision,
                                                static_cast<Orvane::Util::FileSizeUnit>(request->unit),
                                                request->kiloSize);
        };
        using Limits = std::numeric_limits<qint64>;
        results->setResult(name, format(request->bytes));
        for (const qint64 bytes : {qint64(0), qint64(999), qint64(1'023), qint64(1'536), qint64(1'048'575),
                                   qint64(-1), Limits::max(), Limits::min()}) {
            results->setResult(QLocale().toString(bytes), format(bytes));
        }
    };
    update();

    const auto set = [request, update](auto field, auto value) {
        request.get()->*field = value;
        update();
    };
    PropertyPanel* const panel = page->properties();
    panel->addText(PageRegistry::tr("Bytes"), QString::number(request->bytes),
                   [set](const QString& bytes) { set(&Request::bytes, bytes.toLongLong()); });
    panel->addNumber(PageRegistry::tr("Decimals"), -1, 15, request->precision,
                     [set](int precision) { set(&Request::precision, precision); });
    const QStringList units = {PageRegistry::tr("Automatic"), QStringLiteral("B"),  QStringLiteral("KB"),
                               QStringLiteral("MB"),          QStringLiteral("GB"), QStringLiteral("TB"),
                               QStringLiteral("PB"),          QStringLiteral("EB")};
    panel->addChoice(PageRegistry::tr("Unit"), units, 0, [set](int unit) { set(&Request::unit, unit); });
    panel->addChoice(PageRegistry::tr("Bytes in a kilobyte"),
                     {QStringLiteral("1024"), QStringLiteral("1000")}, 0,
                     [set](int index) { set(&Request::kiloSize, index == 0 ? 1024 : 1000); });
}

void addPaths(Page* page, ResultTable* results)
{
    const auto show = [results](const QString& path) {
        QString error;
        const bool isValid = FileUtil::isPathValid(path, &error);
        results->setResult(QStringLiteral("FileUtil::isPathValid()"), isValid ? yesOrNo(true) : error);
        results->setResult(QStringLiteral("FileUtil::closestPath()"), FileUtil::closestPath(path));
        results->setResult(QStringLiteral("FileUtil::isOperationAllowed(Read)"),
                           yesOrNo(FileUtil::isOperationAllowed(path, FileUtil::Read)));
        results->setResult(QStringLiteral("FileUtil::isOperationAllowed(Write)"),
                           yesOrNo(FileUtil::isOperationAllowed(path, FileUtil::Write)));
        results->setResult(QStringLiteral("FS::exists()"), yesOrNo(FS::exists(path)));
    };
    const QString start = QDir::rootPath() + QStringLiteral("no such folder/clips");
    show(start);
    page->properties()->addText(PageRegistry::tr("Path"), start, show);
    const std::pair<QString, QString> paths[] = {
        {PageRegistry::tr("Home folder"), QDir::homePath()},
        {PageRegistry::tr("Root folder"), QDir::rootPath()},
        {PageRegistry::tr("A file in the place of a folder"),
         QCoreApplication::applicationFilePath() + QStringLiteral("/clips")},
        {PageRegistry::tr("Empty path"), QString()},
    };
    for (const auto& path : paths) {
        page->properties()->addAction(path.first, [show, path = path.second] { show(path); });
    }
}

void addColors(Page* page, ResultTable* results)
{
    auto* colors = new QFrame;
    colors->setObjectName(QStringLiteral("customColors"));
    auto* row = new QHBoxLayout(colors);
    row->setContentsMargins(0, 0, 0, 0);
    row->setAlignment(Qt::AlignLeading);
    const auto show = [row](const QStringList& names) {
        while (QLayoutItem* const item = row->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        for (const QString& name : names) {
            auto* swatch = new ColorPickerButton;
            swatch->setColor(QColor(name));
            swatch->setToolTip(name);
            swatch->setAccessibleName(name);
            row->addWidget(swatch);
        }
    };
    const auto showAll = [show] { show(Settings::userCustomColors()); };
    static_cast<QFormLayout*>(results->layout())->addRow(PageRegistry::tr("Own colours"), colors);
    results->setResult(QStringLiteral("StandardFolderUrls::myComputerUrl()"),
                       StandardFolderUrls::myComputerUrl().toString());
    showAll();

    PropertyPanel* const panel = page->properties();
    SignalLogView* const log = page->signalLog();
    const auto chosen = std::make_shared<QColor>(47, 111, 222);
    panel->addColor(PageRegistry::tr("Colour"), *chosen, [chosen](const QColor& color) { *chosen = color; });
    panel->addAction(PageRegistry::tr("Add"), [log, showAll, chosen] {
        const bool isNew = Util::appendCustomColor(chosen->name());
        log->addLine(QStringLiteral("appendCustomColor(%1): %2").arg(chosen->name(), valueText(isNew)));
        showAll();
    });
    panel->addAction(PageRegistry::tr("Clear"), [log, showAll] {
        Settings::setUserCustomColors({});
        log->addLine(QStringLiteral("setUserCustomColors([])"));
        showAll();
    });
    panel->addAction(PageRegistry::tr("Read again"), showAll);
    QObject::connect(page, &Page::pictureRequested, page, [show] {
        show({QStringLiteral("#e25c3c"), QStringLiteral("#f0b429"), QStringLiteral("#3cb371"),
              QStringLiteral("#2f6fde"), QStringLiteral("#8e5bd0")});
    });
}

/// Counts requests, and the calls that a scheduler makes of them.
class RequestCounter : public QObject
{
public:
    RequestCounter(Page* page, ResultTable* results)
        : QObject(page)
        , m_log(page->signalLog())
        , m_results(results)
    {
        setDelay(startDelayMs);
    }

    void setDelay(int delayMs)
    {
        const bool isEnabled = !m_scheduler || m_scheduler->isEnabled();
        m_scheduler = std::make_unique<CountingScheduler>(this, &RequestCounter::handleCall, delayMs);
        setEnabled(isEnabled);
    }

    void setEnabled(bool enabled)
    {
        m_scheduler->setEnabled(enabled);
        showState();
    }

    void request(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_scheduler->schedule();
        }
        m_requests += count;
        showState();
    }

    static constexpr int startDelayMs = 500;

private:
    using CountingScheduler = Orvane::Util::Scheduler<RequestCounter>;

    void handleCall()
    {
        ++m_calls;
        m_log->addLine(QStringLiteral("call %1").arg(m_calls));
        showState();
    }

    void showState()
    {
        m_results->setResult(PageRegistry::tr("Requests"), QString::number(m_requests));
        m_results->setResult(PageRegistry::tr("Calls"), QString::number(m_calls));
        m_results->setResult(PageRegistry::tr("A call is pending"), yesOrNo(m_scheduler->isPending()));
    }

    SignalLogView* const m_log;
    ResultTable* const m_results;
    std::unique_ptr<CountingScheduler> m_scheduler;
    int m_requests = 0;
    int m_calls = 0;
};

void addScheduler(Page* page, ResultTable* results)
{
    constexpr int maxDelayMs = 5000;
    constexpr int burstSize = 1000;
    auto* counter = new RequestCounter(page, results);
    PropertyPanel* const panel = page->properties();
    panel->addNumber(PageRegistry::tr("Delay in milliseconds"), 0, maxDelayMs, RequestCounter::startDelayMs,
                     [counter](int delayMs) { counter->setDelay(delayMs); });
    panel->addSwitch(PageRegistry::tr("Enabled"), true, [counter](bool on) { counter->setEnabled(on); });
    panel->addAction(PageRegistry::tr("One request"), [counter] { counter->request(1); });
    panel->addAction(PageRegistry::tr("A burst of %1 requests").arg(burstSize),
                     [counter] { counter->request(burstSize); });
}

void addHeadings(Page* page, ResultTable* results)
{
    // The languages' names in themselves are not translated.
    const std::pair<const char*, const char*> samples[] = {
        {"Deutsch", "Farbe übernehmen"},  {"Русский", "Выбор цвета"}, {"Ελληνικά", "Επιλογή χρώματος"},
        {"日本語", "色を選択"},           {"العربية", "اختيار لون"},  {"עברית", "בחירת צבע"},
        {"<markup>", "<i>R&B</i> – 4 K"},
    };
    const auto show = [results](const QString& name, const QString& title) {
        results->setResult(name, Customization::localeDependedBoldText(title), Qt::RichText);
    };
    const QString name = PageRegistry::tr("Your title");
    const QString title = PageRegistry::tr("A title of your own");
    show(name, title);
    for (const auto& sample : samples) {
        show(QString::fromUtf8(sample.first), QString::fromUtf8(sample.second));
    }
    page->properties()->addText(PageRegistry::tr("Title"), title,
                                [show, name](const QString& text) { show(name, text); });
}

void addLanguages(Page*, ResultTable* results)
{
    const QStringList codes = Translations::languages();
    for (const QString& code : codes) {
        results->setResult(code, LanguageController::nativeName(code));
    }
}

QString statusText(Orvane::Util::AccessStatus status)
{
    switch (status) {
    case Orvane::Util::AccessStatus::Granted:
        return PageRegistry::tr("granted");
    case Orvane::Util::AccessStatus::Denied:
        return PageRegistry::tr("denied");
    case Orvane::Util::AccessStatus::Unavailable:
        return PageRegistry::tr("not available on this platform");
    }
    return {};
}

void addPrivacy(Page* page, ResultTable* results)
{
    using Orvane::Util::PrivacyType;
    const std::pair<QString, PrivacyType> permissions[] = {
        {QStringLiteral("ScreenCapture"), PrivacyType::ScreenCapture},
        {QStringLiteral("InputMonitoring"), PrivacyType::InputMonitoring},
        {QStringLiteral("InputControl"), PrivacyType::InputControl},
    };
    results->setResult(PageRegistry::tr("Platform"), QGuiApplication::platformName());
    for (const auto& permission : permissions) {
        const auto show = [results, permission] {
            const auto status = Orvane::Util::IsPrivacyAccessGranted(permission.second);
            results->setResult(permission.first, statusText(status));
        };
        show();
        page->properties()->addAction(PageRegistry::tr("Request %1").arg(permission.first), [page, permission,
                                                                                             show] {
            const bool isGranted = Orvane::Util::RequestPrivacyAccess(permission.second);
            page->signalLog()->addLine(
                QStringLiteral("RequestPrivacyAccess(%1) → %2").arg(permission.first, valueText(isGranted)));
            show();
        });
    }
}

/// A line edit in a host that a button takes out of the dialog and puts back.
void openFocusDialog(Page* page, ResultTable* results, bool isWorkaroundApplied)
{
    const QString name = QStringLiteral("qmlFocusDialog");
    delete page->findChild<QDialog*>(name);
    auto* dialog = new QDialog(page);
    dialog->setObjectName(name);
    dialog->setWindowTitle(PageRegistry::tr("Focus of hosted QML"));
    auto* again = new QPushButton(PageRegistry::tr("Take the view out and put it back"), dialog);
    again->setObjectName(QStringLiteral("rehostButton"));
    auto* host = new QFrame(dialog);
    host->setObjectName(QStringLiteral("qmlHost"));
    auto* view = new QLineEdit(PageRegistry::tr("The view"), host);
    view->setObjectName(QStringLiteral("qmlView"));
    auto* hostLayout = new QVBoxLayout(host);
    hostLayout->setContentsMargins(0, 0, 0, 0);
    hostLayout->addWidget(view);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(again);
    layout->addWidget(host);
    QObject::connect(again, &QPushButton::clicked, host, [layout, host] {
        host->setParent(nullptr);
        layout->addWidget(host);
        host->show();
    });
    // The page deletes its results before the dialog, which has the focus then.
    const QPointer<ResultTable> table(results);
    QObject::connect(qApp, &QApplication::focusChanged, dialog, [page, table](QWidget*, QWidget* now) {
        if (table) {
            const QString focused =
                now ? valueText(QVariant::fromValue<QObject*>(now)) : PageRegistry::tr("no widget");
            table->setResult(PageRegistry::tr("Keyboard focus"), focused);
            if (now) {
                page->signalLog()->addLine(QStringLiteral("focusChanged(%1)").arg(focused));
            }
        }
    });
    if (isWorkaroundApplied) {
        Orvane::Util::ApplyQmlWindowFocusWorkaround(dialog, host);
    }
    dialog->show();
}

void addQmlFocus(Page* page, ResultTable* results)
{
    results->setResult(PageRegistry::tr("Keyboard focus"), PageRegistry::tr("no widget"));
    const auto isApplied = std::make_shared<bool>(true);
    page->properties()->addSwitch(PageRegistry::tr("Apply the workaround"), true,
                                  [isApplied](bool on) { *isApplied = on; });
    page->properties()->addAction(PageRegistry::tr("Open the dialog"),
                                  [page, results, isApplied] { openFocusDialog(page, results, *isApplied); });
}

} // namespace

void PageRegistry::services(Page* page)
{
    struct Service
    {
        QString title;
        QString introduction;
        void (*add)(Page* page, ResultTable* results);
    };
    const Service services[] = {
        {tr("File sizes"),
         tr("Writes a number of bytes as users read it, in the current language's units and digits."),
         &addFileSizes},
        {tr("Headings"),
         tr("Headings are bold where both the language and the title are written in a script that has a "
            "tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown "
            "as text."),
         &addHeadings},
        {tr("Languages"),
         tr("The languages that the library has its texts in. One call loads one of them, here by the switch "
            "of the gallery, and every component changes at once."),
         &addLanguages},
        {tr("Paths"),
         tr("What an editor asks about a path that a user typed: whether it could be a folder, where the "
            "nearest one is, and what the program may do there."),
         &addPaths},
        {tr("Privacy access"),
         tr("Whether the system lets the program read the screen and the input of other programs, asked "
            "without troubling the user."),
         &addPrivacy},
        {tr("Own colours and folders"),
         tr("The user's own colours outlive the program, also when it is killed right after the write. They "
            "are kept under the host's organisation and application name, or in a store that the host hands "
            "over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette "
            "nor one that is there already is taken."),
         &addColors},
        {tr("Scheduler"),
         tr("Merges a burst of requests into one deferred call. Later requests do not put the call off, so a "
            "steady stream of them still gets its calls."),
         &addScheduler},
        {tr("Focus of hosted QML"),
         tr("Qt forgets the focus of a view whose host is taken out of a window and put back. With the "
            "workaround the keyboard goes to the view; without it, to whatever comes first. A line edit "
            "stands for the view here: the workaround works for every kind."),
         &addQmlFocus},
    };
    auto* sections = new QWidget;
    sections->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* grid = new QGridLayout(sections);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    for (const Service& service : services) {
        auto* section = new QVBoxLayout;
        QLabel* const introduction = makeLabel("specimenCaption", service.introduction, sections);
        introduction->setWordWrap(true);
        // The results decide on the width of the columns.
        introduction->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        auto* results = new ResultTable(sections);
        section->addWidget(makeLabel("cardTitle", service.title, sections));
        section->addWidget(introduction);
        section->addWidget(results);
        section->addStretch();
        grid->addLayout(section, grid->count() / 2, grid->count() % 2);
        page->properties()->addHeading(service.title);
        service.add(page, results);
    }
    // The results need most of the page.
    page->setMaxSpecimenShare(0.72);
    page->addDemonstration(QString(), sections);
}
