#include "StyledWidgets.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/SheetColors.h>
#include <WidgetToolkit/OvDoubleSlider.h>

namespace {

const QStringList& sheets()
{
    static const QStringList names = [] {
        QStringList all = styles();
        for (const QString& style : styles()) {
            all += style + QStringLiteral("-components");
        }
        return all;
    }();
    return names;
}

/// Fills itself with a colour, whatever the sheet says.
class Surface : public Host
{
public:
    explicit Surface(const QColor& color)
        : m_color(color)
    {
        setFocusPolicy(Qt::StrongFocus);
    }

    /// Without the look that the focus gives.
    QImage picture()
    {
        setFocus();
        return grab().toImage();
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(rect(), m_color); }

private:
    const QColor m_color;
};

template <typename Field, typename... Arguments>
Maker makeField(const Arguments&... arguments)
{
    return [=](QWidget* parent) -> QWidget* { return new Field(parent, {arguments...}); };
}

template <typename Make>
Maker withSize(int width, int height, Make maker)
{
    return [=](QWidget* parent) -> QWidget* {
        QWidget* const widget = maker(parent);
        widget->setFixedSize(width, height);
        return widget;
    };
}

QWidget* makePlane(QWidget* parent)
{
    auto* plane = new PointSelectionPlane(parent);
    plane->setMinimumSize(140, 140);
    plane->setLimits({0, 0, 1, 1});
    plane->setPoint({0.25, 0.25});
    return plane;
}

/// The selector that the panel's add button opens.
QWidget* makeSelector(QWidget* parent)
{
    auto* panel = makeColorPanel(parent);
    auto* dialog = panel->findChild<QDialog*>();
    dialog->setWindowFlags(Qt::Widget);
    panel->setFixedSize(400, 400);
    dialog->show();
    return panel;
}

QWidget* makeOutlined(QWidget* parent)
{
    auto* target = makePlane(parent);
    (new Orvane::Gui::HighlightFrame(target))->setParent(target);
    return target;
}

QWidget* makeMultiColor(QWidget* parent)
{
    return new ColorInputWidget(parent, QColor());
}

QWidget* makeList(QWidget* parent)
{
    auto* list = new AdjustingListView(parent);
    list->setModel(new QStringListModel({QStringLiteral("one"), QStringLiteral("two")}, list));
    return list;
}

/// Of a field that stands for several values.
Maker withSeveralValues(const Maker& maker)
{
    return [maker](QWidget* parent) {
        QWidget* const field = maker(parent);
        (new EditSession(field))->setMultiValue(true);
        return field;
    };
}

void addComponents()
{
    QTest::addColumn<Maker>("maker");
    // Under a sheet, a spin box asks Qt for a pixel less than before it had one.
    QTest::newRow("OvSpinBox") << withSize(60, 24, make<OvSpinBox>);
    QTest::newRow("OvDoubleSpinBox") << withSize(90, 24, make<OvDoubleSpinBox>);
    QTest::newRow("OvCustomSlider") << Maker(makeSlider<OvCustomSlider>);
    QTest::newRow("OvDoubleSlider") << Maker(makeSlider<OvDoubleSlider>);
    QTest::newRow("TesselElegantSlider") << Maker(makeSlider<Orvane::Tessel::TesselElegantSlider>);
    QTest::newRow("OvComboBox") << Maker(makeCombo<OvComboBox>);
    QTest::newRow("tessel combo box") << Maker(makeTesselCombo);
    QTest::newRow("ColorBlendingComboBox") << Maker(make<ColorBlendingComboBox>);
    QTest::newRow("TesselLineEdit") << Maker(make<Orvane::Tessel::TesselLineEdit>);
    QTest::newRow("ColorPickerButton") << Maker(makeColorButton);
    QTest::newRow("ColorInputWidget") << Maker(makeMultiColor);
    QTest::newRow("WidgetColorPickerButton") << Maker(makePickingButton);
    QTest::newRow("ColorPickerWidget") << Maker(makeColorPanel);
    QTest::newRow("free selector") << Maker(makeSelector);
    QTest::newRow("SliderInputWidget") << makeField<SliderInputWidget>(0, 100);
    QTest::newRow("DoubleSliderInputWidget") << makeField<DoubleSliderInputWidget>(0.0, 1.0, 2);
    QTest::newRow("PointSelectionPlane") << Maker(makePlane);
    QTest::newRow("PointSelectorWidget")
        << makeField<PointSelectorWidget>(QPointF(0.0, 0.0), QPointF(1.0, 1.0), 2, 2);
    QTest::newRow("several numbers") << withSeveralValues(makeField<DoubleSliderInputWidget>(0.0, 1.0, 2));
    QTest::newRow("several points") << withSeveralValues(
        makeField<PointSelectorWidget>(QPointF(0.0, 0.0), QPointF(1.0, 1.0), 2, 2));
    QTest::newRow("several modes") << withSeveralValues(make<ColorBlendingComboBox>);
    QTest::newRow("PathSelectionWidget") << Maker(makePath);
    QTest::newRow("SearchWidget") << Maker(makeSearch);
    QTest::newRow("GuideButton") << Maker(make<GuideButton>);
    QTest::newRow("GuideWidget") << Maker(
        [](QWidget* parent) -> QWidget* { return new GuideWidget(guideInfo(), parent); });
    QTest::newRow("DialogGuideWidget") << Maker(makeDialogGuide);
    QTest::newRow("PointingWidget") << Maker(makeBubble);
    QTest::newRow("OvPixmapWidget") << withSize(60, 40, make<OvPixmapWidget>);
    QTest::newRow("LoupeWidget") << withSize(117, 117, makeLoupe);
    QTest::newRow("HighlightFrame") << Maker(makeOutlined);
}

/// Of a new one under the present sheet.
QImage pictureOf(const Maker& maker, const QColor& surface, bool isEnabled)
{
    Surface host(surface);
    QWidget* const widget = maker(&host);
    widget->setEnabled(isEnabled);
    return host.present(widget) ? host.picture() : QImage();
}

QWidget* makeDialogOfTheHost(QWidget* parent)
{
    QDialog* const dialog = makeDialog(parent);
    auto* layout = new QVBoxLayout(dialog);
    layout->addWidget(new QLabel(QStringLiteral("A <a href=\"x:y\">link</a>")));
    layout->addWidget(makeButton<QCheckBox>(dialog));
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    return dialog;
}

QWidget* makeMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->addAction(QStringLiteral("Entry"));
    return menu;
}

QWidget* makeTabs(QWidget* parent)
{
    auto* tabs = new QTabWidget(parent);
    tabs->addTab(makeEdit(tabs), QStringLiteral("Tab"));
    return tabs;
}

template <typename View>
QWidget* makeItems(QWidget* parent)
{
    auto* view = new View(parent);
    view->setModel(new QStringListModel({QStringLiteral("one"), QStringLiteral("two")}, view));
    view->setCurrentIndex(view->model()->index(1, 0));
    return view;
}

} // namespace

class tst_SheetSwitch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Q_INIT_RESOURCE(styles); }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void changesEachComponentAtOnce_data() { addComponents(); }

    void changesEachComponentAtOnce()
    {
        QFETCH(Maker, maker);
        for (const bool isEnabled : {true, false}) {
            qApp->setStyleSheet(QString());
            const SheetColors links;
            Surface host(Qt::gray);
            QWidget* const widget = maker(&host);
            widget->setEnabled(isEnabled);
            QVERIFY(host.present(widget));
            const QStringList following = {QStringLiteral("light-components"), QStringLiteral("dark")};
            const QStringList all = styles() + following;
            for (const QString& sheet : all) {
                qApp->setStyleSheet(resourceSheet(sheet));
                // The layout of a host would, and that of the component is done before the next paint.
                QCoreApplication::sendPostedEvents();
                widget->resize(widget->sizeHint().expandedTo(widget->minimumSize()));
                host.resize(widget->size());
                const auto dialogs = widget->findChildren<QDialog*>();
                for (QDialog* dialog : dialogs) {
                    dialog->adjustSize();
                }
                const QImage now = host.picture();
                QVERIFY2(now == pictureOf(maker, Qt::gray, isEnabled), qPrintable(sheet));
            }
        }
    }

    void sheetOfComponentsPaintsThemAsTheFullOne_data() { addComponents(); }

    void sheetOfComponentsPaintsThemAsTheFullOne()
    {
        QFETCH(Maker, maker);
        for (const QString& style : styles()) {
            const QColor surface = paletteOf(style).value(QStringLiteral("window"));
            for (const bool isEnabled : {true, false}) {
                qApp->setStyleSheet(resourceSheet(style));
                const QImage full = pictureOf(maker, surface, isEnabled);
                qApp->setStyleSheet(resourceSheet(style + QStringLiteral("-components")));
                const QImage alone = pictureOf(maker, surface, isEnabled);
                QVERIFY2(full == alone, qPrintable(style));
            }
        }
    }

    void sheetOfComponentsLeavesTheHostAlone_data()
    {
        QTest::addColumn<Maker>("maker");
        QTest::newRow("QPushButton") << Maker(makeButton<QPushButton>);
        QTest::newRow("QToolButton") << Maker(makeButton<QToolButton>);
        QTest::newRow("QCheckBox") << Maker(makeButton<QCheckBox>);
        QTest::newRow("QRadioButton") << Maker(makeButton<QRadioButton>);
        QTest::newRow("QLineEdit") << Maker(makeEdit);
        QTest::newRow("QComboBox") << Maker(makeCombo<QComboBox>);
        QTest::newRow("QSpinBox") << withSize(60, 24, make<QSpinBox>);
        QTest::newRow("QSpinBox of several values") << withSeveralValues(withSize(60, 24, make<QSpinBox>));
        QTest::newRow("QSlider of several values") << withSeveralValues(makeSlider<QSlider>);
        QTest::newRow("QSlider") << Maker(makeSlider<QSlider>);
        QTest::newRow("QScrollBar") << Maker(makeSlider<QScrollBar>);
        QTest::newRow("QProgressBar") << Maker(make<QProgressBar>);
        QTest::newRow("QTextEdit") << Maker(make<QTextEdit>);
        QTest::newRow("QGroupBox") << withSize(60, 40, make<QGroupBox>);
        QTest::newRow("QTabWidget") << Maker(makeTabs);
        QTest::newRow("QListView") << Maker(makeItems<QListView>);
        QTest::newRow("QTreeView") << Maker(makeItems<QTreeView>);
        QTest::newRow("QTableView") << Maker(makeItems<QTableView>);
        QTest::newRow("QMenu") << Maker(makeMenu);
        QTest::newRow("QDialog") << Maker(makeDialogOfTheHost);
        QTest::newRow("OvFrame") << withSize(60, 40, make<OvFrame>);
        QTest::newRow("AdjustingListView") << Maker(makeList);
        // In a panel that is derived from a frame of the library.
        QTest::newRow("QPushButton in an OvFrame") << Maker([](QWidget* parent) -> QWidget* {
            auto* frame = new OvFrame(parent);
            makeButton<QPushButton>(frame);
            (new OvHBoxLayout(frame))->autoFill();
            return frame;
        });
        QTest::newRow("QPushButton with a hint") << Maker([](QWidget* parent) -> QWidget* {
            auto* button = makeButton<QPushButton>(parent);
            Util::applyStyleHint(button, QStringLiteral("LIGHT_GREY_ONE"));
            return button;
        });
    }

    void sheetOfComponentsLeavesTheHostAlone()
    {
        QFETCH(Maker, maker);
        for (const bool isEnabled : {true, false}) {
            qApp->setStyleSheet(QString());
            const QColor surface = qApp->palette().color(QPalette::Window);
            const QImage plain = pictureOf(maker, surface, isEnabled);
            QVERIFY(!plain.isNull());
            for (const QString& style : styles()) {
                qApp->setStyleSheet(resourceSheet(style + QStringLiteral("-components")));
                QVERIFY2(pictureOf(maker, surface, isEnabled) == plain, qPrintable(style));
            }
        }
    }

    void sliderFieldFitsIntoASmallColumn_data()
    {
        QTest::addColumn<Maker>("maker");
        QTest::newRow("whole numbers") << makeField<SliderInputWidget>(-1000, 1000);
        QTest::newRow("fractions") << makeField<DoubleSliderInputWidget>(-10.0, 10.0, 2);
    }

    // Nothing is cut: each part has the room that it asks for at least.
    void sliderFieldFitsIntoASmallColumn()
    {
        QFETCH(Maker, maker);
        const QFont before = QApplication::font();
        const auto restore = qScopeGuard([&before] { QApplication::setFont(before); });
        QFont font = before;
        font.setPixelSize(12);
        QApplication::setFont(font);
        for (const QString& sheet : sheets()) {
            qApp->setStyleSheet(resourceSheet(sheet));
            Host host;
            QWidget* const field = maker(&host);
            QVERIFY(host.present(field));
            field->resize(120, field->height());
            QVERIFY2(field->minimumSizeHint().width() <= 120,
                     qPrintable(sheet + QString::number(field->minimumSizeHint().width())));
            const auto parts = field->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            QCOMPARE(parts.size(), 2);
            for (const QWidget* part : parts) {
                QVERIFY(field->rect().contains(part->geometry()));
                QVERIFY(part->width() >= part->minimumSizeHint().width());
            }
            auto* spinBox = field->findChild<QAbstractSpinBox*>();
            auto* edit = spinBox->findChild<QLineEdit*>();
            spinBox->stepBy(-100000);
            QVERIFY(edit->text().startsWith(QLatin1String("-10")));
            // 2 pixels at each side are Qt's.
            const int needed = edit->fontMetrics().horizontalAdvance(edit->text()) + 4;
            QVERIFY2(edit->width() >= needed,
                     qPrintable(sheet + QStringLiteral(": %1 of %2").arg(edit->width()).arg(needed)));
        }
    }
};

UIC_TEST_MAIN(tst_SheetSwitch)
#include "tst_SheetSwitch.moc"
