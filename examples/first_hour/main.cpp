#include "TitleInspector.h"

#include <UiComponents/EditSession.h>
#include <UiComponents/SheetColors.h>
#include <UiComponents/Translations.h>

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QLocale>
#include <QPainter>
#include <QSplitter>
#include <QStyleFactory>
#include <QUndoStack>

/// Paints the titles one below the other.
class TitleView : public QWidget
{
public:
    explicit TitleView(const Titles* titles)
        : m_titles(titles)
    {
        setMinimumSize(480, 240);
        connect(titles, &Titles::changed, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::black);
        int bottom = 0;
        for (const Title& title : m_titles->list) {
            QFont font;
            font.setPixelSize(title.size);
            painter.setFont(font);
            painter.setPen(title.color.value_or(QColor()));
            painter.setOpacity(title.opacity);
            bottom += QFontMetrics(font).height();
            painter.drawText(10, bottom, title.text);
        }
    }

private:
    const Titles* const m_titles;
};

int main(int argc, char** argv)
{
    //! [look]
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // before there is an application
    QApplication application(argc, argv);
    application.setStyle(QStyleFactory::create("Fusion"));
    const SheetColors colors; // links in texts get the sheet's colour
    application.setStyleSheet("file:///" FIRST_HOUR_SHARE "/styles/dark.qss");
    //! [look]

    //! [language]
    Translations::load(QLocale());
    //! [language]

    //! [window]
    Titles titles;
    titles.list.resize(2);
    titles.list[0].text = "The river";
    titles.list[1].text = "A film by nobody";
    QUndoStack stack;

    QSplitter window;
    window.setWindowTitle("First hour");
    auto* list = new QListWidget(&window);
    list->setAccessibleName("Titles"); // a list takes no name from a label
    list->setSelectionMode(QListWidget::ExtendedSelection);
    window.addWidget(new TitleView(&titles));
    auto* inspector = new TitleInspector(&titles, &stack, &window);

    for (const Title& title : qAsConst(titles.list)) {
        list->addItem(title.text);
    }
    QObject::connect(list, &QListWidget::itemSelectionChanged, inspector, [=] {
        QVector<int> numbers;
        for (const QModelIndex& index : list->selectionModel()->selectedIndexes()) {
            numbers.append(index.row());
        }
        inspector->select(numbers);
    });
    list->setCurrentRow(0);
    //! [window]

    //! [undo]
    const auto addAction = [&](const QKeySequence& keys, void (QUndoStack::*move)()) {
        auto* action = new QAction(&window);
        action->setShortcut(keys);
        window.addAction(action);
        QObject::connect(action, &QAction::triggered, inspector, [=, &stack] {
            const EditSession::Refresh refresh(inspector); // a text that is not entered yet becomes a step
            (stack.*move)();
        });
    };
    addAction(QKeySequence::Undo, &QUndoStack::undo);
    addAction(QKeySequence::Redo, &QUndoStack::redo);
    //! [undo]

    window.show();
    return QApplication::exec();
}
