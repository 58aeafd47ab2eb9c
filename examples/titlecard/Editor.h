#pragma once

#include "Document.h"

#include <UiComponents/QuickDialog.h>

#include <QMainWindow>
#include <QStringListModel>
#include <QTranslator>
#include <QUndoStack>

class AdjustingListView;
class DialogGuideWidget;
class PathSelectionWidget;
class QBoxLayout;
class QToolBar;
class SearchWidget;

namespace TitleCard {

class Canvas;
class Inspector;

/// Asks for the text of a card.
class NewCardDialog : public Qml::QuickDialog
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption CONSTANT)
    Q_PROPERTY(QString text MEMBER m_text NOTIFY textChanged)

public:
    using QuickDialog::QuickDialog;

    QString caption() const { return tr("Text of the new card"); }
    QString text() const { return m_text; }

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
};

/// What each of the presets gives a card, by its name.
using Presets = QMap<QString, QMap<Property, QVariant>>;

/// The window: the canvas and its presets on the left, the inspector and the export on the right.
class Editor : public QMainWindow
{
    Q_OBJECT

public:
    /// @p shareFolder has the library's style sheets. The program's own files are beside it.
    explicit Editor(const QString& shareFolder, QWidget* parent = nullptr);

    Document* document() { return &m_document; }
    Canvas* canvas() const { return m_canvas; }
    Inspector* inspector() const { return m_inspector; }
    QUndoStack* undoStack() { return &m_stack; }
    void startFirstTour();

public Q_SLOTS:
    /// For the application: the name of a sheet, or any other for none.
    void setStyle(const QString& name);
    /// For the application: the texts and the direction of the language @p code.
    void setLanguage(const QString& code);
    void askForCard();
    void addCard(const QString& text);
    void undo();
    void redo();
    void startTour();
    /// Writes the canvas, as it is without the frames of the selection, to titles.png in the chosen folder.
    void exportPicture();

private:
    void makeActions();
    void makeSwitches();
    void addPresets(QBoxLayout* layout);
    void addFolder(QBoxLayout* layout);
    void change(const QString& text, const EditCommand::Target& target, const QVariant& value);
    void changeCards(const QString& text, const QVector<Card>& cards);
    void savePreset();
    void setPresets(const Presets& presets);
    void applyPreset(const QString& name);
    void showSpace(const QString& folder);
    void showStep(int step);
    void retranslate();

    const QString m_shareFolder;
    QUndoStack m_stack;
    Document m_document;
    QTranslator m_texts;
    Presets m_presets;
    Canvas* const m_canvas;
    Inspector* m_inspector = nullptr;
    QStringListModel m_presetNames;
    QBoxLayout* m_right = nullptr;
    QToolBar* m_commands = nullptr;
    SearchWidget* m_search = nullptr;
    AdjustingListView* m_presetList = nullptr;
    PathSelectionWidget* m_folder = nullptr;
    QPointer<DialogGuideWidget> m_tour;
    int m_step = 0;
};

} // namespace TitleCard

Q_DECLARE_METATYPE(TitleCard::Presets)
