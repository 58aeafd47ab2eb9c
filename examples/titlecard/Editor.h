#pragma once

#include "Document.h"

#include <UiComponents/QuickDialog.h>

#include <QMainWindow>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTranslator>
#include <QUndoStack>

class AdjustingListView;
class DialogGuideWidget;
class PathSelectionWidget;
class QBoxLayout;

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

/// The window: the canvas and its presets on the left, the inspector and the export on the right.
class Editor : public QMainWindow
{
    Q_OBJECT

public:
    /// @p shareFolder has the library's style sheets and translations.
    explicit Editor(const QString& shareFolder, QWidget* parent = nullptr);
    ~Editor() override;

    Document* document() { return &m_document; }
    Canvas* canvas() const { return m_canvas; }
    QUndoStack* undoStack() { return &m_stack; }
    void startFirstTour();

public Q_SLOTS:
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
    void change(const QString& text, const QVector<Card>& cards);
    void applyPreset(const QString& name);
    void savePreset();
    void showSpace(const QString& folder);
    void showStep(int step);
    void setStyle(const QString& name);
    void setLanguage(const QString& code);

    const QString m_shareFolder;
    const QTemporaryDir m_scenes; // QML is loaded from files only
    QUndoStack m_stack;
    Document m_document;
    QTranslator m_translator;
    QMap<QString, Card> m_presets;
    Canvas* const m_canvas;
    Inspector* const m_inspector;
    QStringListModel m_presetNames;
    AdjustingListView* m_presetList = nullptr;
    PathSelectionWidget* m_folder = nullptr;
    QPointer<DialogGuideWidget> m_tour;
    int m_step = 0;
};

} // namespace TitleCard
