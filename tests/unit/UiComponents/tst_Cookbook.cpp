#include "FakeScreenColors.h"
#include "TestMain.h"

#include <Settings/Settings.h>
#include <UiComponents/AbstractColorPicker.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/CustomColors.h>
#include <UiComponents/Pipette.h>
#include <WidgetToolkit/Util.h>

//! [picker]
class DialogPicker : public AbstractColorPicker
{
public:
    ~DialogPicker() override { delete m_dialog; }

    bool isInProgress() const override { return !m_dialog.isNull(); }
    std::optional<QColor> color() override { return m_color; }
    void setColor(const std::optional<QColor>& color) override { m_color = color; }

    void pick() override
    {
        m_dialog = new QColorDialog(m_color.value_or(QColor()));
        m_dialog->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_dialog, &QColorDialog::colorSelected, this,
                [this](const QColor& color) { m_color = color; });
        connect(m_dialog, &QDialog::finished, this, [this] {
            m_dialog = nullptr;
            Q_EMIT pickingStopped(); // comes last: the button takes color() and may delete the picker
        });
        m_dialog->open();
    }

    void stop() override
    {
        if (m_dialog) {
            m_dialog->reject();
        }
    }

private:
    std::optional<QColor> m_color;
    QPointer<QColorDialog> m_dialog;
};
//! [picker]

//! [store]
class ProjectStore : public SettingsStore
{
public:
    explicit ProjectStore(QVariantMap* project)
        : m_project(project)
    {
    }
    QVariant read(const QString& key) const override { return m_project->value(key); }
    bool write(const QString& key, const QVariant& value) override
    {
        m_project->insert(key, value);
        return true; // false where it could not be stored
    }

private:
    QVariantMap* const m_project;
};
//! [store]

/**
 * What docs/cookbook.md shows, and that it does what is said there.
 */
class tst_Cookbook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ownPicker()
    {
        ColorInputWidget field(nullptr, QColor(Qt::red));
        field.setPicker(new DialogPicker);
        field.setColor(Qt::blue);
        field.show();
        auto* button = qobject_cast<QToolButton*>(field.anchorWidget());
        const auto dialog = [] { return qobject_cast<QColorDialog*>(QApplication::activeModalWidget()); };

        button->click();
        QVERIFY(button->isDown());
        QCOMPARE(dialog()->currentColor(), QColor(Qt::blue));
        dialog()->setCurrentColor(Qt::green);
        dialog()->accept();
        QCOMPARE(field.color(), std::optional<QColor>(Qt::green));
        QVERIFY(!button->isDown());

        button->click();
        dialog()->setCurrentColor(Qt::black);
        dialog()->reject();
        QCOMPARE(field.color(), std::optional<QColor>(Qt::green));
        QVERIFY(!button->isDown());
        // Nobody picks any more where the field is gone.
        button->click();
        field.hide();
        QVERIFY(!button->isDown());
    }

    void ownStore()
    {
        QVariantMap project;
        //! [setStore]
        Settings::setStore(std::make_unique<ProjectStore>(&project));
        //! [setStore]
        const auto restore = qScopeGuard([] { Settings::setStore(nullptr); });
        QVERIFY(Util::appendCustomColor(QStringLiteral("#123456")));
        QCOMPARE(project.value(QStringLiteral("userCustomColors")).toStringList(),
                 QStringList{QStringLiteral("#123456")});
    }

    void ownSheet()
    {
        QWidget window;
        auto* field = new ColorInputWidget(&window, QColor(Qt::red));
        auto* edit = new QLineEdit(&window);
        const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
        //! [sheet]
        qApp->setStyleSheet(QStringLiteral("ColorInputWidget { qproperty-layoutMargin: 2; }"
                                           "ColorPickerButton { min-width: 60px; min-height: 18px; }"
                                           "ColorPickerButton[nullColor=\"true\"] { background: gray; }"
                                           "QLineEdit[styleHint=\"error\"] { color: red; }"));
        //! [sheet]
        window.ensurePolished();
        field->ensurePolished();
        field->anchorWidget()->ensurePolished();
        QCOMPARE(field->layoutMargin(), 2);
        QVERIFY(field->anchorWidget()->minimumWidth() >= 60);
        edit->ensurePolished();
        //! [hint]
        Util::applyStyleHint(edit, QStringLiteral("error")); // and with "" it is as before
        //! [hint]
        QCOMPARE(edit->palette().color(QPalette::Text), QColor(Qt::red));
        Util::applyStyleHint(edit, QString());
        QVERIFY(edit->palette().color(QPalette::Text) != QColor(Qt::red));
    }

    void buttonOfAPipette()
    {
        FakeScreenColors screen;
        screen.setReason(QStringLiteral("Locked"));
        ScreenColorSource::install(&screen);
        auto* button = new QToolButton;
        const std::unique_ptr<QToolButton> owner(button);
        auto* pipette = new Pipette(button);
        //! [wayland]
        connect(button, &QToolButton::clicked, pipette, &Pipette::startPicking);
        const auto update = [button] {
            const QString reason = Pipette::unavailableReason(); // empty where it can pick
            button->setEnabled(reason.isEmpty());
            button->setToolTip(reason);
        };
        update();
        if (const ScreenColorSource* source = ScreenColorSource::current()) {
            connect(source, &ScreenColorSource::unavailableReasonChanged, button, update);
        }
        connect(pipette, &Pipette::pickingStopped, button,
                [button, pipette] { button->setToolTip(pipette->failureReason()); });
        //! [wayland]
        QVERIFY(!button->isEnabled());
        QCOMPARE(button->toolTip(), QStringLiteral("Locked"));
        screen.setReason(QString());
        QVERIFY(button->isEnabled());
    }
};

UIC_TEST_MAIN(tst_Cookbook)
#include "tst_Cookbook.moc"
