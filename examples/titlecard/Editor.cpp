#include "Editor.h"

#include "Canvas.h"
#include "Inspector.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/DialogGuideInfo.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/Translations.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLocale>
#include <QMessageBox>
#include <QSettings>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <filesystem>
#include <tuple>

namespace TitleCard {

Editor::Editor(const QString& shareFolder, QWidget* parent)
    : QMainWindow(parent)
    , m_shareFolder(shareFolder)
    , m_canvas(new Canvas(&m_document, this))
{
    auto* left = new QVBoxLayout;
    left->addWidget(m_canvas);
    addPresets(left);
    m_right = new QVBoxLayout;
    m_right->addStretch();
    addFolder(m_right);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(m_right, 1);
    auto* body = new QWidget(this);
    body->setLayout(columns);
    setCentralWidget(body);
    setContextMenuPolicy(Qt::NoContextMenu); // the tool bars stay

    makeActions();
    makeSwitches();
    QCoreApplication::installTranslator(&m_texts);
    retranslate();
}

void Editor::makeActions()
{
    m_commands = addToolBar(QString());
    const auto add = [this](const char* text, const QKeySequence& shortcut, void (Editor::*run)()) {
        QAction* const action = m_commands->addAction(QString(), this, run);
        action->setObjectName(QLatin1String(text));
        action->setShortcut(shortcut);
    };
    add(QT_TR_NOOP("New card..."), QKeySequence::New, &Editor::askForCard);
    add(QT_TR_NOOP("Undo"), QKeySequence::Undo, &Editor::undo);
    add(QT_TR_NOOP("Redo"), QKeySequence::Redo, &Editor::redo);
    add(QT_TR_NOOP("Save as preset"), QKeySequence::Save, &Editor::savePreset);
    add(QT_TR_NOOP("Export picture"), QKeySequence(QStringLiteral("Ctrl+Shift+E")), &Editor::exportPicture);
    add(QT_TR_NOOP("Tour"), QKeySequence::HelpContents, &Editor::startTour);
}

void Editor::makeSwitches()
{
    auto* bar = addToolBar(QString());
    bar->setObjectName(QStringLiteral("switches"));
    const auto add = [this, bar](const QStringList& items, const QString& current, const auto& choose) {
        auto* box = new QComboBox(bar);
        box->addItems(items);
        box->setCurrentText(current);
        connect(box, &QComboBox::currentTextChanged, this, choose);
        bar->addWidget(box);
    };
    const QString dark = QStringLiteral("dark");
    add({dark, QStringLiteral("light"), QStringLiteral("none")}, dark, &Editor::setStyle);
    add(Translations::languages(), QStringLiteral("en"), &Editor::setLanguage);
}

void Editor::addPresets(QBoxLayout* layout)
{
    m_search = new SearchWidget(this);
    auto* found = new QSortFilterProxyModel(this);
    found->setSourceModel(&m_presetNames);
    found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_presetList = new AdjustingListView(this);
    m_presetList->setModel(found);
    m_presetList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    layout->addWidget(m_search);
    layout->addWidget(m_presetList);
    layout->addStretch();
    connect(m_search, &SearchWidget::textChanged, found, &QSortFilterProxyModel::setFilterFixedString);
    connect(m_presetList, &QListView::activated, this,
            [this](const QModelIndex& index) { applyPreset(index.data().toString()); });
}

void Editor::addFolder(QBoxLayout* layout)
{
    m_folder = new PathSelectionWidget(this);
    m_folder->setErrorDisplayType(PathSelectionWidget::Label);
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

/// Gives what is not in the inspector a value, as one step of undo.
void Editor::change(const QString& text, const EditCommand::Target& target, const QVariant& value)
{
    const EditSession::Refresh guard(m_inspector);
    const QVariant before = target.read();
    target.write(value);
    m_stack.push(new EditCommand(text, {target}, {before}, value));
}

void Editor::changeCards(const QString& text, const QVector<Card>& cards)
{
    change(text,
           {[this] { return QVariant::fromValue(m_document.cards()); },
            [this](const QVariant& value) { m_document.setCards(value.value<QVector<Card>>()); }},
           QVariant::fromValue(cards));
}

void Editor::askForCard()
{
    NewCardDialog dialog(this);
    dialog.setQmlPath(QStringLiteral(":/titlecard/NewCard.qml"));
    if (dialog.exec() == QDialog::Accepted && !dialog.text().isEmpty()) {
        addCard(dialog.text());
    }
}

void Editor::addCard(const QString& text)
{
    const Card card = m_document.newCard(text);
    changeCards(tr("New card"), m_document.cards() + QVector<Card>{card});
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
    const Card* const card = m_document.find(m_canvas->selection().value(0));
    if (!card) {
        return;
    }
    QMap<Property, QVariant> values = card->values;
    const QString name = values.take(Text).toString();
    values.remove(Position);
    Presets presets = m_presets;
    presets.insert(name, values);
    change(tr("Save as preset"),
           {[this] { return QVariant::fromValue(m_presets); },
            [this](const QVariant& value) { setPresets(value.value<Presets>()); }},
           QVariant::fromValue(presets));
}

void Editor::setPresets(const Presets& presets)
{
    m_presets = presets;
    m_presetNames.setStringList(m_presets.keys());
    // As high as its rows, until there are many.
    constexpr int manyRows = 6;
    m_presetList->setLoadingFinished(m_presets.size() > manyRows);
}

/// Gives the selected cards all but text and place.
void Editor::applyPreset(const QString& name)
{
    if (m_canvas->selection().isEmpty()) {
        return;
    }
    QVector<Card> cards = m_document.cards();
    for (Card& card : cards) {
        if (m_canvas->selection().contains(card.id)) {
            card.values.insert(m_presets.value(name));
        }
    }
    changeCards(name, cards);
}

void Editor::showSpace(const QString& folder)
{
    std::error_code error;
    const auto space = std::filesystem::space(QFile::encodeName(folder).constData(), error);
    m_folder->showRequiredSpace(true, m_document.render(m_canvas->size()).sizeInBytes());
    m_folder->showAvailableSpace(true, error ? -1 : qint64(space.available));
}

void Editor::exportPicture()
{
    if (!m_folder->checkPath()) {
        return; // it tells the user
    }
    const QString file = QDir(m_folder->path()).filePath(QStringLiteral("titles.png"));
    if (!QDir().mkpath(m_folder->path()) || !m_document.render(m_canvas->size()).save(file)) {
        QMessageBox::warning(this, windowTitle(), tr("The picture cannot be saved as %1.").arg(file));
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
        connect(m_tour, &DialogGuideWidget::closeClicked, this, [this] { showStep(-1); });
        // A bubble takes the keyboard from nobody by itself.
        connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, m_tour, &DialogGuideWidget::enter);
    }
    showStep(0);
}

/// Ends the tour before its first and after its last step.
void Editor::showStep(int step)
{
    const QVector<std::tuple<QWidget*, QString, QString>> steps = {
        {m_canvas, tr("The canvas"), tr("A click selects a card, Ctrl and a click several.")},
        {m_inspector, tr("The inspector"),
         tr("All selected cards get what you change. Escape takes it back.")},
        {m_folder, tr("The folder"), tr("The canvas is saved here as a picture.")},
    };
    if (step < 0 || step >= steps.size()) {
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
    const EditSession::Refresh guard(m_inspector);
    const QString sheet = m_shareFolder + QStringLiteral("/styles/%1.qss").arg(name);
    // Given as a file, it has its images beside it.
    qApp->setStyleSheet(QFile::exists(sheet) ? QStringLiteral("file:///") + sheet : QString());
}

void Editor::setLanguage(const QString& code)
{
    //! [language]
    const EditSession::Refresh guard(m_inspector); // no spin box that writes its number anew is an edit
    const QLocale locale(code);
    QLocale::setDefault(locale);
    setLocale(locale); // numbers
    m_texts.load(QStringLiteral("titlecard_") + code, QCoreApplication::applicationDirPath());
    Translations::load(locale); // and the direction
    retranslate();
    //! [language]
}

void Editor::retranslate()
{
    setWindowTitle(tr("Title cards"));
    for (QAction* action : m_commands->actions()) {
        action->setText(tr(action->objectName().toLatin1()));
    }
    m_search->setTranslations(QString(), tr("Name of a preset"), tr("Clear"), tr("Search presets"));
    m_folder->setBrowseButtonTooltip(tr("Where the picture is saved"));
    delete m_inspector;
    m_inspector = new Inspector(&m_document, m_canvas, &m_stack, this);
    m_right->insertWidget(0, m_inspector);
    if (m_tour) {
        showStep(m_step);
    }
}

} // namespace TitleCard
