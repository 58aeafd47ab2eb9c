#include "Editor.h"

#include "Canvas.h"
#include "Inspector.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/DialogGuideInfo.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/SearchWidget.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStorageInfo>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <tuple>

namespace TitleCard {

Editor::Editor(const QString& shareFolder, QWidget* parent)
    : QMainWindow(parent)
    , m_shareFolder(shareFolder)
    , m_canvas(new Canvas(&m_document, this))
    , m_inspector(new Inspector(&m_document, m_canvas, &m_stack, this))
{
    setWindowTitle(tr("Title cards"));
    QFile::copy(QStringLiteral(":/titlecard/NewCard.qml"), m_scenes.filePath(QStringLiteral("NewCard.qml")));

    auto* left = new QVBoxLayout;
    left->addWidget(m_canvas);
    addPresets(left);
    auto* right = new QVBoxLayout;
    right->addWidget(m_inspector);
    right->addStretch();
    addFolder(right);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(right, 1);
    auto* body = new QWidget(this);
    body->setLayout(columns);
    setCentralWidget(body);

    makeActions();
    makeSwitches();
}

Editor::~Editor()
{
    // They report to members, which die before the widgets.
    disconnect(&m_document, nullptr, nullptr, nullptr);
    m_stack.disconnect();
}

void Editor::makeActions()
{
    auto* bar = addToolBar(QString());
    const auto add = [this, bar](const QString& text, const QKeySequence& shortcut, void (Editor::*run)()) {
        bar->addAction(text, this, run)->setShortcut(shortcut);
    };
    add(tr("New card..."), QKeySequence::New, &Editor::askForCard);
    add(tr("Undo"), QKeySequence::Undo, &Editor::undo);
    add(tr("Redo"), QKeySequence::Redo, &Editor::redo);
    add(tr("Save as preset"), QKeySequence::Save, &Editor::savePreset);
    add(tr("Export picture"), QKeySequence(QStringLiteral("Ctrl+Shift+E")), &Editor::exportPicture);
    add(tr("Tour"), QKeySequence::HelpContents, &Editor::startTour);
}

void Editor::makeSwitches()
{
    auto* bar = addToolBar(QString());
    const auto add = [bar](const QStringList& items, const auto& choose) {
        auto* box = new QComboBox(bar);
        box->addItems(items);
        connect(box, &QComboBox::currentTextChanged, bar, choose);
        bar->addWidget(box);
    };
    add({QStringLiteral("dark"), QStringLiteral("light"), QStringLiteral("none")},
        [this](const QString& name) { setStyle(name); });
    setStyle(QStringLiteral("dark"));
    add({QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("ja")},
        [this](const QString& code) { setLanguage(code); });
    add({QStringLiteral("ltr"), QStringLiteral("rtl")}, [this](const QString& direction) {
        setLayoutDirection(direction == QLatin1String("rtl") ? Qt::RightToLeft : Qt::LeftToRight);
    });
}

void Editor::addPresets(QBoxLayout* layout)
{
    auto* search = new SearchWidget(this);
    search->setTranslations(QString(), tr("Name of a preset"), tr("Clear"), tr("Search presets"));
    auto* found = new QSortFilterProxyModel(this);
    found->setSourceModel(&m_presetNames);
    found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_presetList = new AdjustingListView(this);
    m_presetList->setModel(found);
    m_presetList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    layout->addWidget(search);
    layout->addWidget(m_presetList);
    layout->addStretch();
    connect(search, &SearchWidget::textChanged, found, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_presetList, &QListView::activated, this,
            [this](const QModelIndex& index) { applyPreset(index.data().toString()); });
}

void Editor::addFolder(QBoxLayout* layout)
{
    m_folder = new PathSelectionWidget(this);
    m_folder->setErrorDisplayType(PathSelectionWidget::Label);
    m_folder->setBrowseButtonTooltip(tr("Where the picture is saved"));
    layout->addWidget(m_folder);
    connect(m_folder, &PathSelectionWidget::pathChanged, this, &Editor::showSpace);
    connect(m_folder, &PathSelectionWidget::browseDirectoryRequested, this, [this](const QUrl& url) {
        const QString folder = QFileDialog::getExistingDirectory(this, QString(), url.toLocalFile());
        if (!folder.isEmpty()) {
            m_folder->setPath(folder);
        }
    });
    m_folder->setPath(QDir::homePath());
}

void Editor::change(const QString& text, const QVector<Card>& cards)
{
    const EditSession::Refresh guard(m_inspector);
    const auto before = QVariant::fromValue(m_document.cards());
    m_document.setCards(cards);
    const EditCommand::Target all = {
        [this] { return QVariant::fromValue(m_document.cards()); },
        [this](const QVariant& value) { m_document.setCards(value.value<QVector<Card>>()); }};
    m_stack.push(new EditCommand(text, {all}, {before}, QVariant::fromValue(cards)));
}

void Editor::askForCard()
{
    NewCardDialog dialog(this);
    dialog.setQmlPath(m_scenes.filePath(QStringLiteral("NewCard.qml")));
    if (dialog.exec() == QDialog::Accepted && !dialog.text().isEmpty()) {
        addCard(dialog.text());
    }
}

void Editor::addCard(const QString& text)
{
    const Card card = m_document.newCard(text);
    change(tr("New card"), m_document.cards() + QVector<Card>{card});
    m_canvas->select({card.id});
}

void Editor::undo()
{
    // Commits what is being edited, so that it is what is undone.
    const EditSession::Refresh guard(m_inspector);
    m_stack.undo();
}

void Editor::redo()
{
    const EditSession::Refresh guard(m_inspector);
    m_stack.redo();
}

void Editor::savePreset()
{
    if (m_canvas->selection().isEmpty()) {
        return;
    }
    for (const Card& card : m_document.cards()) {
        if (card.id == m_canvas->selection().first()) {
            m_presets.insert(card.values.value(Text).toString(), card);
        }
    }
    m_presetNames.setStringList(m_presets.keys());
    // As high as its rows, until there are many.
    constexpr int ManyRows = 6;
    m_presetList->setLoadingFinished(m_presets.size() > ManyRows);
}

/// Gives the selected cards all that the preset has but its text and its place.
void Editor::applyPreset(const QString& name)
{
    QVector<Card> cards = m_document.cards();
    for (Card& card : cards) {
        if (m_canvas->selection().contains(card.id)) {
            const QVariant text = card.values.value(Text);
            const QVariant position = card.values.value(Position);
            card.values = m_presets.value(name).values;
            card.values[Text] = text;
            card.values[Position] = position;
        }
    }
    change(name, cards);
}

void Editor::showSpace(const QString& folder)
{
    const QStorageInfo disk(folder);
    m_folder->showRequiredSpace(true, m_document.render(m_canvas->size()).sizeInBytes());
    m_folder->showAvailableSpace(true, disk.isValid() ? disk.bytesAvailable() : -1);
}

void Editor::exportPicture()
{
    if (m_folder->checkPath() && QDir().mkpath(m_folder->path())) {
        m_document.render(m_canvas->size())
            .save(QDir(m_folder->path()).filePath(QStringLiteral("titles.png")));
    }
}

void Editor::startFirstTour()
{
    if (!QSettings().value(QStringLiteral("tourIsOver")).toBool()) {
        startTour();
    }
}

void Editor::startTour()
{
    if (!m_tour) {
        m_tour = new DialogGuideWidget(this);
        connect(m_tour, &DialogGuideWidget::mainClicked, this, [this] { showStep(m_step + 1); });
        connect(m_tour, &DialogGuideWidget::secondaryClicked, this, [this] { showStep(m_step - 1); });
        connect(m_tour, &DialogGuideWidget::closeClicked, m_tour, &QObject::deleteLater);
    }
    showStep(0);
}

void Editor::showStep(int step)
{
    const QVector<std::tuple<QWidget*, QString, QString>> steps = {
        {m_canvas, tr("The canvas"), tr("A click selects a card, Ctrl and a click several.")},
        {m_inspector, tr("The inspector"),
         tr("All selected cards get what you change. Escape takes it back.")},
        {m_folder, tr("The folder"), tr("The canvas is saved here as a picture.")},
    };
    if (step >= steps.size()) {
        QSettings().setValue(QStringLiteral("tourIsOver"), true);
        m_tour->deleteLater();
        return;
    }
    m_step = step;
    const auto& [target, title, description] = steps.at(step);
    m_tour->setInfo({title, description, tr("Next"), tr("Back"), QString()});
    m_tour->setSecondaryButtonVisible(step > 0);
    m_tour->pointTo(target->mapToGlobal(target->rect().center()));
    m_tour->show();
}

void Editor::setStyle(const QString& name)
{
    QFile sheet(m_shareFolder + QStringLiteral("/styles/%1.qss").arg(name));
    // Its images are beside it.
    QDir::setSearchPaths(QStringLiteral("titlecard"), {m_shareFolder + QStringLiteral("/styles")});
    QString text = sheet.open(QIODevice::ReadOnly) ? QString::fromUtf8(sheet.readAll()) : QString();
    text.replace(QLatin1String("url(images/"), QLatin1String("url(titlecard:images/"));
    window()->setStyleSheet(text);
}

void Editor::setLanguage(const QString& code)
{
    QCoreApplication::removeTranslator(&m_translator);
    if (m_translator.load(m_shareFolder + QStringLiteral("/translations/uicomponents_%1.qm").arg(code))) {
        QCoreApplication::installTranslator(&m_translator);
    }
}

} // namespace TitleCard
