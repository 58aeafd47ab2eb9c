#include "TestMain.h"
#include "ui_AllWidgets.h"

#include <QPluginLoader>
#include <QScopeGuard>
#include <QtDesigner/QDesignerComponents>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QFormBuilder>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtUiTools/QUiLoader>

#include <memory>

Q_DECLARE_METATYPE(QDesignerCustomWidgetInterface*)

namespace {

const QString pluginsFolder = QStringLiteral(UIC_PLUGINS_DIR);
const QString designerFolder = pluginsFolder + QStringLiteral("/designer");
const QString form = QStringLiteral(UIC_TEST_DATA "/AllWidgets.ui");

QList<QDesignerCustomWidgetInterface*> components()
{
    QPluginLoader plugin(designerFolder + QStringLiteral("/libUiComponentsDesigner.so"));
    auto* const collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(plugin.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface*>();
}

/// Of the children with the names that the form gives them.
QMap<QString, QString> classesOf(const QWidget& widget)
{
    QMap<QString, QString> classes;
    const auto all = components();
    for (const QDesignerCustomWidgetInterface* component : all) {
        QString name = component->name().section(QStringLiteral("::"), -1);
        name[0] = name.at(0).toLower();
        const auto* child = widget.findChild<QWidget*>(name);
        classes.insert(component->name(), QString::fromLatin1(child ? child->metaObject()->className() : ""));
    }
    return classes;
}

QMap<QString, QString> expectedClasses()
{
    QMap<QString, QString> classes;
    const auto all = components();
    for (const QDesignerCustomWidgetInterface* component : all) {
        classes.insert(component->name(), component->name());
    }
    return classes;
}

QtMessageHandler testHandler = nullptr;

/// Designer has properties of its own for the layout of a container, and wonders about a frame that has some
/// of them already; and about a Designer without a property editor.
void dropDesignersOwn(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.contains(QLatin1String("QDesignerPropertySheet::set")) &&
        !message.contains(QLatin1String("QDesignerIntegration::updatePropertyPrivate"))) {
        testHandler(type, context, message);
    }
}

std::unique_ptr<QFile> openForm()
{
    auto file = std::make_unique<QFile>(form);
    return file->open(QFile::ReadOnly) ? std::move(file) : nullptr;
}

} // namespace

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesEachWidget_data()
    {
        QTest::addColumn<QDesignerCustomWidgetInterface*>("component");
        const auto all = components();
        for (QDesignerCustomWidgetInterface* component : all) {
            QTest::newRow(qPrintable(component->name())) << component;
        }
    }

    void describesEachWidget()
    {
        QFETCH(QDesignerCustomWidgetInterface*, component);
        QVERIFY(!component->toolTip().isEmpty());
        QVERIFY(component->whatsThis().length() > component->toolTip().length());
        QVERIFY(!component->icon().pixmap(24).isNull());
        const QString header = component->includeFile();
        QVERIFY(QFile::exists(QStringLiteral(UIC_SOURCE_DIR "/library/") + header) ||
                QFile::exists(QStringLiteral(UIC_SOURCE_DIR "/platform/") + header));

        QWidget parent;
        QWidget* const widget = component->createWidget(&parent);
        QCOMPARE(widget->parentWidget(), &parent);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), component->name());
    }

    void startsAsItsDescriptionSays_data() { describesEachWidget_data(); }

    void startsAsItsDescriptionSays()
    {
        QFETCH(QDesignerCustomWidgetInterface*, component);
        if (component->group().isEmpty()) {
            QVERIFY(component->domXml().isEmpty());
            return;
        }
        QByteArray description = component->domXml().toUtf8();
        QBuffer buffer(&description);
        QVERIFY(buffer.open(QBuffer::ReadOnly));
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(designerFolder);
        const std::unique_ptr<QWidget> widget(loader.load(&buffer));
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), component->name());
        QVERIFY(!widget->size().isEmpty());
        const auto* slider = qobject_cast<QSlider*>(widget.get());
        QVERIFY(!slider || slider->orientation() == Qt::Horizontal);
    }

    void isCreatedByTheLoader_data() { describesEachWidget_data(); }

    void isCreatedByTheLoader()
    {
        QFETCH(QDesignerCustomWidgetInterface*, component);
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(designerFolder);
        QVERIFY(loader.availableWidgets().contains(component->name()));
        QWidget parent;
        const QWidget* const widget = loader.createWidget(component->name(), &parent, QStringLiteral("it"));
        QVERIFY(widget);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), component->name());
        QCOMPARE(widget->objectName(), QStringLiteral("it"));
    }

    void loadsTheFormAtRunTime()
    {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(designerFolder);
        const std::unique_ptr<QWidget> window(loader.load(openForm().get()));
        QVERIFY(window);
        QCOMPARE(classesOf(*window), expectedClasses());
        QCOMPARE(window->findChild<GuideButton*>()->property("popupOffset").toInt(), 12);
        QCOMPARE(window->findChild<OvDoubleSlider*>(QStringLiteral("ovDoubleSlider"))->orientation(),
                 Qt::Horizontal);
    }

    void loadsTheFormWithAFormBuilder()
    {
        QFormBuilder builder;
        builder.setPluginPath({designerFolder});
        const std::unique_ptr<QWidget> window(builder.load(openForm().get(), nullptr));
        QVERIFY(window);
        QCOMPARE(classesOf(*window), expectedClasses());
    }

    void compilesTheForm()
    {
        QWidget window;
        Ui::AllWidgets ui{};
        ui.setupUi(&window);
        QMap<QString, QString> expected = expectedClasses();
        // Without a meta-object of their own.
        expected.insert(QStringLiteral("AdjustingListView"), QStringLiteral("QListView"));
        expected.insert(QStringLiteral("ClickButton"), QStringLiteral("QToolButton"));
        QCOMPARE(classesOf(window), expected);
        QCOMPARE(ui.sliderInputWidget->value(), 0);
        QCOMPARE(ui.colorInputWidget->color(), std::optional<QColor>(QColor(Qt::black)));
    }

    void keepsTheFormInDesigner()
    {
        testHandler = qInstallMessageHandler(dropDesignersOwn);
        // Designer looks for plugins in these folders. Those of others are none of this test's business.
        const QStringList folders = QCoreApplication::libraryPaths();
        const auto restore = qScopeGuard([folders] {
            QCoreApplication::setLibraryPaths(folders);
            qInstallMessageHandler(testHandler);
        });
        QCoreApplication::setLibraryPaths({pluginsFolder});
        QObject owner;
        QDesignerFormEditorInterface* const editor = QDesignerComponents::createFormEditor(&owner);
        new QDesignerIntegration(editor, &owner);
        QDesignerComponents::initializePlugins(editor);
        QDesignerFormWindowInterface* const window = editor->formWindowManager()->createFormWindow();
        QString error;
        QVERIFY2(window->setContents(openForm().get(), &error), qPrintable(error));
        QVERIFY(window->mainContainer());
        QCOMPARE(classesOf(*window->mainContainer()), expectedClasses());
        QCOMPARE(window->mainContainer()->findChild<SliderInputWidget*>()->value(), 0);

        const QString saved = window->contents();
        const auto all = components();
        for (const QDesignerCustomWidgetInterface* component : all) {
            QVERIFY2(saved.contains(QStringLiteral("<widget class=\"%1\"").arg(component->name())),
                     qPrintable(component->name()));
            QVERIFY2(saved.contains(QStringLiteral("<header>%1</header>").arg(component->includeFile())),
                     qPrintable(component->includeFile()));
        }
        // For uic: no function of the class sets it.
        QVERIFY(saved.contains(QStringLiteral("<property name=\"popupOffset\" stdset=\"0\">")));
    }
};

UIC_TEST_MAIN(tst_DesignerPlugin)
#include "tst_DesignerPlugin.moc"
