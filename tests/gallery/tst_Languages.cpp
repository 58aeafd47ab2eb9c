#include "Settle.h"
#include "TestMain.h"

#include <UiComponents/Translations.h>

#include <QAccessible>
#include <QAction>
#include <QComboBox>

#include <examples/titlecard/Editor.h>
#include <gallery/GalleryApplication.h>
#include <gallery/LanguageController.h>
#include <gallery/MainWindow.h>
#include <gallery/Page.h>
#include <gallery/PageRegistry.h>
#include <memory>

namespace {

void show(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->show();
    settle();
}

/// What a user of @p root sees or hears in words and numbers, sorted. Folders of this run and the space on
/// the disk differ.
QStringList texts(const QWidget* root, const QWidget* except = nullptr)
{
    static const QRegularExpression folder(QStringLiteral("-[A-Za-z]{6}\\b"));
    static const QRegularExpression space(QStringLiteral("\\d+|[٠-٩]+"));
    QStringList found;
    const auto add = [&found](const QObject* object, const char* kind, QString text) {
        if (text.isEmpty()) {
            return;
        }
        text.replace(folder, QString());
        if (object->objectName() == QLatin1String("availableLabel")) {
            text.replace(space, QStringLiteral("1"));
        }
        found += QStringLiteral("%1 %2 %3: %4")
                     .arg(object->metaObject()->className(), object->objectName(), kind, text);
    };
    const auto objects = root->findChildren<QObject*>();
    for (QObject* object : objects) {
        auto* const widget = qobject_cast<QWidget*>(object);
        if ((!widget && !qobject_cast<QAction*>(object)) || qobject_cast<QScrollBar*>(object) ||
            object->objectName() == "signalLogText" || (except && widget && except->isAncestorOf(widget))) {
            continue;
        }
        for (const char* property :
             {"text", "toolTip", "statusTip", "whatsThis", "placeholderText", "title", "accessibleName",
              "accessibleDescription", "windowTitle", "prefix", "suffix", "specialValueText"}) {
            add(object, property, object->property(property).toString());
        }
        if (const auto* box = qobject_cast<QComboBox*>(object)) {
            for (int i = 0; i < box->count(); ++i) {
                add(object, "item", box->itemText(i));
            }
        }
        QAccessibleInterface* const spoken = widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
        for (const auto kind :
             {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
            add(object, "spoken", spoken ? spoken->text(kind) : QString());
        }
    }
    found.sort();
    return found;
}

/// The first text that only one of them has.
QByteArray difference(const QStringList& one, const QStringList& other)
{
    for (int i = 0; i < qMax(one.size(), other.size()); ++i) {
        if (one.value(i) != other.value(i)) {
            return QStringLiteral("%1 | %2").arg(one.value(i), other.value(i)).toUtf8();
        }
    }
    return {};
}

const char* const tour[] = {"de", "en", "ar"};

} // namespace

/**
 * What was made in one language and is then given others shows what is made in them: no text of the former
 * language stays.
 */
class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GalleryApplication::prepare(); }

    void cleanup()
    {
        QLocale::setDefault(QLocale("en"));
        QVERIFY(Translations::load(QLocale("en")));
    }

    void components_data()
    {
        addPages("services"); // whose results are the page's own texts
    }

    // The library's texts alone change; the page's own are those that it was built with.
    void components()
    {
        QFETCH(QString, id);
        const PageInfo info = *PageRegistry::find(id);
        Page page(info);
        show(&page);
        for (const char* code : tour) {
            QVERIFY(Translations::load(QLocale(code)));
            settle();
            Page built(info);
            show(&built);
            QTRY_COMPARE(difference(texts(&page, page.properties()), texts(&built, built.properties())),
                         QByteArray());
        }
    }

    void windows_data() { addPages(QString()); }

    void windows()
    {
        QFETCH(QString, id);
        CommandLine start;
        start.page = id;
        MainWindow window(start);
        show(&window);
        for (const char* code : tour) {
            window.setLanguage(code);
            settle();
            start.language = code;
            start.direction = QLocale(code).textDirection();
            QCOMPARE(QApplication::layoutDirection(), start.direction);
            MainWindow built(start);
            show(&built);
            QTRY_COMPARE(difference(texts(&window), texts(&built)), QByteArray());
        }
    }

    void titleCards()
    {
        TitleCard::Editor editor((QString()));
        editor.addCard("card");
        show(&editor);
        const auto* const undo = editor.findChild<QAction*>("Undo");
        for (const char* code : tour) {
            editor.setLanguage(code);
            settle();
            QCOMPARE(undo->text() == "Undo", qstrcmp(code, "en") == 0);
            TitleCard::Editor built((QString()));
            built.setLanguage(code);
            built.addCard("card");
            show(&built);
            QTRY_COMPARE(difference(texts(&editor), texts(&built)), QByteArray());
        }
    }

private:
    static void addPages(const QString& except)
    {
        QTest::addColumn<QString>("id");
        const auto pages = PageRegistry::pages();
        for (const PageInfo& page : pages) {
            if (page.id != except) {
                QTest::newRow(qPrintable(page.id)) << page.id;
            }
        }
    }
};

UIC_TEST_MAIN(tst_Languages)
#include "tst_Languages.moc"
