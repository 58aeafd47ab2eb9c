#include "Legibility.h"
#include "StyledWidgets.h"

#include <UiComponents/SheetColors.h>

namespace {

/// The rules of a sheet: selectors, and whether anything is between the braces.
QStringList selectorsOf(const QString& style)
{
    QString text = textOf(QStringLiteral(":/styles/%1.qss").arg(style));
    text.remove(
        QRegularExpression(QStringLiteral("/\\*.*?\\*/"), QRegularExpression::DotMatchesEverythingOption));
    QStringList selectors;
    auto rules = QRegularExpression(QStringLiteral("([^{}]+)\\{[^{}]*\\}")).globalMatch(text);
    while (rules.hasNext()) {
        const QStringList parts = rules.next().captured(1).split(QLatin1Char(','));
        for (const QString& part : parts) {
            selectors.append(part.simplified());
        }
    }
    return selectors;
}

/// A name of a palette, and the contrast that its colour needs on those of the other names.
struct Contrast
{
    const char* upper;
    double min;
    const char* lowers;
};

QStringList namesIn(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

/// Of a full sheet and that of the components alone.
QStringList allSelectors()
{
    return selectorsOf(styles().first()) + selectorsOf(styles().first() + QStringLiteral("-components"));
}

/// One of every widget that a rule may be about, in one widget.
QMainWindow* makeEverything()
{
    auto* window = new QMainWindow;
    auto* body = new QWidget(window);
    window->setCentralWidget(body);
    auto* layout = new QVBoxLayout(body);

    const QVector<QWidget*> plain = listOf(
        makeButton<QPushButton>(body), makeButton<QToolButton>(body), makeButton<QCheckBox>(body),
        makeButton<QRadioButton>(body), makeEdit(body), makeSlider<QSlider>(body), makeCombo<QComboBox>(body),
        makeTesselCombo(body), make<ColorBlendingComboBox>(body), make<OvSpinBox>(body),
        make<OvDoubleSpinBox>(body), makeSlider<OvCustomSlider>(body),
        makeSlider<Orvane::Tessel::TesselElegantSlider>(body), make<QSpinBox>(body),
        make<QDoubleSpinBox>(body), make<QTextEdit>(body), make<QPlainTextEdit>(body),
        make<QProgressBar>(body), make<QScrollBar>(body), make<QLabel>(body), make<QGroupBox>(body),
        make<QListWidget>(body), make<QTreeWidget>(body), make<QTabWidget>(body), make<QSizeGrip>(body),
        makeFieldFrame(body), makeColorButton(body), makePickingButton(body),
        new ColorInputWidget(body, QColor()), makeColorPanel(body), new SliderInputWidget(body, {0, 100}),
        new DoubleSliderInputWidget(body, {0.0, 1.0, 2}), make<PointSelectionPlane>(body),
        new PointSelectorWidget(body, {{0.0, 0.0}, {1.0, 1.0}, 2, 2}), make<QDialogButtonBox>(body),
        new QTableWidget(2, 2, body), makeDialog(body), make<Orvane::Tessel::TesselLineEdit>(body),
        make<SearchWidget>(body), makePath(body), make<OvPixmapWidget>(body), makeLoupe(body),
        makeBubble(body), make<GuideButton>(body), new GuideWidget(guideInfo(), body), makeDialogGuide(body));
    for (QWidget* widget : plain) {
        layout->addWidget(widget);
    }
    // Owned by its target.
    (new Orvane::Gui::HighlightFrame(body))->setParent(body);
    auto* splitter = new QSplitter(body);
    splitter->addWidget(new QLabel(splitter));
    splitter->addWidget(new QLabel(splitter));
    layout->addWidget(splitter);

    window->menuBar()->addMenu(QStringLiteral("Menu"))->addAction(QStringLiteral("Entry"));
    window->addToolBar(QStringLiteral("Tools"))->addAction(QStringLiteral("Tool"));
    window->statusBar()->showMessage(QStringLiteral("Ready"));
    window->addDockWidget(Qt::LeftDockWidgetArea, new QDockWidget(QStringLiteral("Dock"), window));
    return window;
}

/// Shows a widget alone on an active window, and takes its picture.
class Stage
{
public:
    explicit Stage(const std::function<QWidget*(QWidget*)>& maker)
    {
        m_window.resize(300, 80);
        m_widget = maker(&m_window);
        m_widget->ensurePolished();
        m_widget->resize(m_widget->sizeHint().expandedTo(QSize(60, 24)));
        m_widget->move(20, 20);
        m_window.show();
        m_window.activateWindow();
        m_isActive = QTest::qWaitForWindowActive(&m_window);
        m_window.setFocus();
    }

    bool isActive() const { return m_isActive; }
    QWidget* widget() const { return m_widget; }
    QImage picture() { return m_window.grab().toImage(); }

private:
    QWidget m_window;
    QWidget* m_widget = nullptr;
    bool m_isActive = false;
};

Change withHint(const char* name)
{
    return [name](QWidget* widget) { Util::applyStyleHint(widget, QString::fromLatin1(name)); };
}

Change withProperty(const char* name, const QVariant& value)
{
    return [name, value](QWidget* widget) { Util::applyProperty(widget, name, value); };
}

void disable(QWidget* widget)
{
    widget->setEnabled(false);
}

QLineEdit* editOf(QWidget* widget)
{
    auto* edit = qobject_cast<QLineEdit*>(widget);
    return edit ? edit : widget->findChild<QLineEdit*>();
}

/// Without the selection that the Tab key leaves in a field.
void focus(QWidget* widget)
{
    widget->setFocus(Qt::TabFocusReason);
    if (QLineEdit* const edit = editOf(widget)) {
        edit->deselect();
    }
}

/// As @p maker makes it, without a text cursor: the focus alone would show it.
template <typename Make>
auto withoutCursor(Make maker)
{
    return [maker](QWidget* parent) -> QWidget* {
        QWidget* const widget = maker(parent);
        if (QLineEdit* const edit = editOf(widget)) {
            edit->setReadOnly(true);
        }
        return widget;
    };
}

void hover(QWidget* widget)
{
    widget->setAttribute(Qt::WA_UnderMouse);
    QHoverEvent enter(QEvent::HoverEnter, QPointF(5, 5), QPointF(-1, -1));
    QCoreApplication::sendEvent(widget, &enter);
    // A push button goes by the mouse itself.
    QMouseEvent move(QEvent::MouseMove, QPointF(5, 5), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    widget->update();
}

void press(QWidget* widget)
{
    static_cast<QAbstractButton*>(widget)->setDown(true);
}

} // namespace

class tst_ReferenceStyles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        Q_INIT_RESOURCE(styles);
        for (const QString& style : styles()) {
            QVERIFY(!textOf(QStringLiteral(":/styles/%1.qss").arg(style)).isEmpty());
            QVERIFY(!paletteOf(style).isEmpty());
        }
    }

    void cleanup() { qApp->setStyleSheet(QString()); }

    void sheetFitsEveryWidget_data()
    {
        QTest::addColumn<QString>("style");
        for (const QString& style : styles()) {
            QTest::newRow(qPrintable(style)) << style;
        }
    }

    // A rule that Qt cannot parse, a property that a class lacks and a picture that cannot be read are all
    // reported as warnings, which fail the run.
    void sheetFitsEveryWidget()
    {
        QFETCH(QString, style);
        qApp->setStyleSheet(resourceSheet(style));
        const QColor surface = paletteOf(style).value(QStringLiteral("window"));

        Host host;
        QMainWindow* const window = makeEverything();
        QVERIFY(host.present(window));
        QCOMPARE(host.grab().toImage().pixelColor(1, window->height() / 2), surface);

        Host other;
        auto* dialog = new QColorDialog;
        dialog->setOption(QColorDialog::DontUseNativeDialog);
        QVERIFY(other.present(dialog));
        QCOMPARE(other.grab().toImage().pixelColor(1, 1), surface);
    }

    void sheetsDifferInColoursOnly()
    {
        // And in the icons, which are as strong as text.
        const QRegularExpression color(QStringLiteral("#[0-9a-f]{6}\\b"));
        const auto withoutColours = [&color](const QString& style) {
            QString text = textOf(QStringLiteral(":/styles/%1.qss").arg(style));
            text.replace(QStringLiteral("style: ") + style, QStringLiteral("style: any"));
            text.replace(QStringLiteral("-%1.png").arg(style), QStringLiteral("-any.png"));
            return text.remove(color);
        };
        for (const QString& style : styles()) {
            QCOMPARE(withoutColours(style), withoutColours(styles().first()));
        }
    }

    void picturesExistAtBothScales()
    {
        QString text;
        for (const QString& style : styles()) {
            text += textOf(QStringLiteral(":/styles/%1.qss").arg(style));
        }
        QStringList used;
        auto urls = QRegularExpression(QStringLiteral("url\\(([^)]*)\\)")).globalMatch(text);
        while (urls.hasNext()) {
            used.append(urls.next().captured(1));
        }
        used.removeDuplicates();
        QVERIFY(!used.isEmpty());
        for (const QString& url : qAsConst(used)) {
            const QImage single(QStringLiteral(":/styles/") + url);
            QVERIFY2(!single.isNull(), qPrintable(url));
            const QImage twice(QStringLiteral(":/styles/") +
                               QString(url).replace(QLatin1String(".png"), QLatin1String("@2x.png")));
            QVERIFY2(twice.size() == single.size() * 2, qPrintable(url));
        }
        const QStringList files = QDir(QStringLiteral(":/styles/images")).entryList();
        for (const QString& file : files) {
            // The black marks are for a light accent, which none of these sheets has.
            const QString url = QStringLiteral("images/") +
                                QString(file).remove(QLatin1String("@2x")).remove(QLatin1String("-black"));
            QVERIFY2(used.contains(url), qPrintable(file));
        }
    }

    // A host uses the installed files; what is beside them must be what the resources hold.
    void picturesAreFoundBesideTheFile()
    {
        const auto pictureOfCheckBox = [](const QString& sheet) {
            qApp->setStyleSheet(sheet);
            QCheckBox box(QStringLiteral("Text"));
            box.setChecked(true);
            box.resize(80, 24);
            return box.grab().toImage();
        };
        const QImage fromResource = pictureOfCheckBox(resourceSheet(styles().first()));
        const QImage fromFile = pictureOfCheckBox(QStringLiteral("file:///" UIC_SHEETS_DIR "/dark.qss"));
        QCOMPARE(fromFile, fromResource);

        // And the mark is there at all.
        const QImage withoutPicture =
            pictureOfCheckBox(textOf(QStringLiteral(":/styles/dark.qss"))
                                  .remove(QStringLiteral("image: url(images/check.png);")));
        QVERIFY(withoutPicture != fromResource);
    }

    // Qt matches from the right, against every widget: at most one step up, and a class or name to index by.
    void selectorsAreCheap()
    {
        const QStringList selectors = allSelectors();
        QVERIFY(selectors.size() > 100);
        const QRegularExpression indexed(QStringLiteral("^\\.?[A-Z#]"));
        for (const QString& selector : selectors) {
            const QStringList parts = QString(selector).remove(QLatin1String("> ")).split(QLatin1Char(' '));
            QVERIFY2(parts.size() <= 2, qPrintable(selector));
            QVERIFY2(indexed.match(parts.last()).hasMatch(), qPrintable(selector));
        }
    }

    // A rule about a class or name that no widget has is dead.
    void selectorsNameWhatExists()
    {
        const std::unique_ptr<QMainWindow> window(makeEverything());
        QColorDialog dialog;
        QMenu menu;
        QWidgetList widgets = window->findChildren<QWidget*>() + dialog.findChildren<QWidget*>();
        widgets << window.get() << &dialog << &menu;
        // These live only while they show.
        QSet<QString> known = {QStringLiteral("QToolTip"), QStringLiteral("#tesselContextMenu"),
                               QStringLiteral("#colorPanelPopup"), QStringLiteral("#multiValueCover"),
                               QStringLiteral("SheetColorsProvider")};
        for (const QWidget* widget : qAsConst(widgets)) {
            known.insert(QStringLiteral("#") + widget->objectName());
            for (const QMetaObject* meta = widget->metaObject(); meta; meta = meta->superClass()) {
                known.insert(
                    QString::fromLatin1(meta->className()).replace(QLatin1String("::"), QLatin1String("--")));
            }
        }
        const QStringList selectors = allSelectors();
        const QRegularExpression name(QStringLiteral("(?:^|[ .])(#?[A-Za-z][A-Za-z-]*)"));
        for (const QString& selector : selectors) {
            auto names = name.globalMatch(selector);
            QVERIFY2(names.hasNext(), qPrintable(selector));
            while (names.hasNext()) {
                QVERIFY2(known.contains(names.next().captured(1)), qPrintable(selector));
            }
        }
    }

    // Tinted greys would colour the user's judgement of a picture.
    void palettesAreNeutral()
    {
        const QStringList tinted = {QStringLiteral("accent"),    QStringLiteral("focus"),
                                    QStringLiteral("selection"), QStringLiteral("error"),
                                    QStringLiteral("swatch"),    QStringLiteral("link")};
        for (const QString& style : styles()) {
            const QHash<QString, QColor> colors = paletteOf(style);
            for (auto it = colors.cbegin(); it != colors.cend(); ++it) {
                const bool mayBeTinted =
                    std::any_of(tinted.cbegin(), tinted.cend(),
                                [&it](const QString& prefix) { return it.key().startsWith(prefix); });
                QVERIFY2(mayBeTinted || it->saturation() == 0,
                         qPrintable(style + QLatin1Char(' ') + it.key()));
            }
        }
    }

    void contrasts_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("upper");
        QTest::addColumn<QString>("lower");
        QTest::addColumn<double>("min");

        // Texts, then marks that carry a meaning, then what is switched off and only must be seen.
        constexpr Contrast pairs[] = {
            {"text", 7,
             "window card popup field fieldLight button buttonHover buttonPressed alternate tip itemHover"
             " errorField"},
            {"text", 4.5, "greyOne greyOneHover greyTwo greyTwoHover greyPressed"},
            {"textSecondary", 4.5, "window card"},
            {"accentText", 4.5, "accent accentPressed accentHover"},
            {"selectionText", 4.5, "selection"},
            {"error", 4.5, "window card"},
            {"link", 4.5, "popup window card field"},
            {"border", 3, "window card popup field"},
            {"selection", 3, "field alternate popup"},
            {"accent", 3, "card popup"},
            {"scrollHandle", 3, "window field"},
            {"focus", 3, "window card field popup"},
            {"borderHover", 3, "card popup"},
            {"errorBorder", 3, "window field"},
            {"focusOnAccent", 3, "accent"},
            {"swatchNone", 3, "swatchEmpty"},
            {"textDisabled", 2, "window fieldDisabled buttonDisabled"},
        };
        for (const QString& style : styles()) {
            for (const Contrast& each : pairs) {
                const QString upper = QString::fromLatin1(each.upper);
                const QStringList lowers = namesIn(each.lowers);
                for (const QString& lower : lowers) {
                    QTest::addRow("%s: %s on %s", qPrintable(style), each.upper, qPrintable(lower))
                        << style << upper << lower << each.min;
                }
            }
        }
    }

    void contrasts()
    {
        QFETCH(QString, style);
        QFETCH(QString, upper);
        QFETCH(QString, lower);
        QFETCH(double, min);
        const QHash<QString, QColor> colors = paletteOf(style);
        QVERIFY(colors.contains(upper) && colors.contains(lower));
        const double actual = Legibility::contrast(colors.value(upper).rgb(), colors.value(lower).rgb());
        QVERIFY2(actual >= min, qPrintable(QString::number(actual)));
    }

    void variantsOfHostsAreLegible_data()
    {
        QTest::addColumn<QString>("file");
        const QStringList files = QDir(QStringLiteral(UIC_VARIANTS_DIR)).entryList({QStringLiteral("*.qss")});
        QVERIFY(!files.isEmpty());
        for (const QString& file : files) {
            QTest::newRow(qPrintable(file)) << file;
        }
    }

    // Whatever its accent is.
    void variantsOfHostsAreLegible()
    {
        QFETCH(QString, file);
        const SheetColors colors;
        qApp->setStyleSheet(QStringLiteral("file:///" UIC_VARIANTS_DIR "/") + file);
        constexpr Contrast pairs[] = {
            {"accentText", 4.5, "accent accentHover accentPressed"},
            {"selectionText", 4.5, "selection"},
            {"link", 4.5, "window popup field"},
            {"focus", 3, "window field"},
            {"selection", 3, "field"},
        };
        for (const Contrast& each : pairs) {
            const QString upper = QString::fromLatin1(each.upper);
            const QStringList lowers = namesIn(each.lowers);
            for (const QString& lower : lowers) {
                const double actual =
                    Legibility::contrast(colors.color(upper).rgb(), colors.color(lower).rgb());
                QVERIFY2(actual >= each.min,
                         qPrintable(QStringLiteral("%1 on %2: %3").arg(upper, lower).arg(actual)));
            }
        }
        // The marks on the accent stand out too.
        QCheckBox box;
        box.setChecked(true);
        const QImage picture = box.grab().toImage();
        const QRgb accent = colors.color(QStringLiteral("accent")).rgb();
        double best = 0;
        for (int x = 0; x < 12; ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                best = qMax(best, Legibility::contrast(picture.pixel(x, y), accent));
            }
        }
        QVERIFY2(best >= 4.5, qPrintable(QString::number(best)));
    }

    void hookChangesThePicture_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<Maker>("maker");
        QTest::addColumn<Change>("change");

        const QVector<QPair<const char*, Maker>> buttons = {{"QPushButton", makeButton<QPushButton>},
                                                            {"QToolButton", makeButton<QToolButton>}};
        const QVector<QPair<const char*, Maker>> fields = {
            {"QLineEdit", makeEdit},
            {"OvSpinBox", make<OvSpinBox>},
            {"OvDoubleSpinBox", make<OvDoubleSpinBox>},
            {"OvComboBox", makeCombo<OvComboBox>},
            {"ColorBlendingComboBox", make<ColorBlendingComboBox>}};
        const QVector<QPair<const char*, Change>> buttonStates = {
            {"hover", hover}, {"pressed", press}, {"focus", focus}, {"disabled", disable}};

        for (const QString& style : styles()) {
            const auto row = [&style](const char* widget, const char* hook, const Maker& maker,
                                      const Change& change) {
                QTest::addRow("%s: %s %s", qPrintable(style), widget, hook) << style << maker << change;
            };
            const auto states = [&](const char* widget, const Maker& maker) {
                for (const auto& state : buttonStates) {
                    row(widget, state.first, maker, state.second);
                }
            };
            for (const auto& button : buttons) {
                for (const char* name :
                     {"LIGHT_GREY_ONE", "LIGHT_GREY_TWO", "WITHOUT_BG1", "WITHOUT_BG2", "WITHOUT_BG3"}) {
                    row(button.first, name, button.second, withHint(name));
                }
                states(button.first, button.second);
            }
            for (const auto& field : fields) {
                row(field.first, "error", field.second, withHint("error"));
                row(field.first, "hover", field.second, hover);
                row(field.first, "focus", withoutCursor(field.second), focus);
                row(field.first, "disabled", field.second, disable);
            }
            row("QPushButton", "guideButton", makeButton<QPushButton>, withHint("guideButton"));
            row("QPushButton", "guideMainButton", makeButton<QPushButton>, withHint("guideMainButton"));
            row("QLineEdit", "INPUT_LIGHT", makeEdit, withHint("INPUT_LIGHT"));
            row("QLineEdit", "kitVersion", makeEdit, withProperty("kitVersion", QStringLiteral("1.0")));
            row("QSpinBox", "INPUT_LIGHT", make<QSpinBox>, withHint("INPUT_LIGHT"));
            row("OvComboBox", "tessel", makeCombo<OvComboBox>, convertToTessel);
            row("OvComboBox", "SELECT_LIGHT", makeCombo<OvComboBox>, withHint("SELECT_LIGHT"));
            row("OvComboBox", "popupVisible", makeCombo<OvComboBox>, withProperty("popupVisible", true));
            row("ColorBlendingComboBox", "SELECT_LIGHT", make<ColorBlendingComboBox>,
                withHint("SELECT_LIGHT"));
            row("ColorBlendingComboBox", "popupVisible", make<ColorBlendingComboBox>,
                withProperty("popupVisible", true));
            row("OvCustomSlider", "SLIDER_LIGHT", makeSlider<OvCustomSlider>, withHint("SLIDER_LIGHT"));
            row("OvCustomSlider", "focus", makeSlider<OvCustomSlider>, focus);
            row("OvCustomSlider", "disabled", makeSlider<OvCustomSlider>, disable);
            row("TesselElegantSlider", "focus", makeSlider<Orvane::Tessel::TesselElegantSlider>, focus);
            row("TesselElegantSlider", "disabled", makeSlider<Orvane::Tessel::TesselElegantSlider>, disable);
            row("QCheckBox", "hover", makeButton<QCheckBox>, hover);
            row("QCheckBox", "focus", makeButton<QCheckBox>, focus);
            row("QCheckBox", "disabled", makeButton<QCheckBox>, disable);
            row("QRadioButton", "focus", makeButton<QRadioButton>, focus);
            row("QDialog", "roundedEdges", makeDialog, withProperty("roundedEdges", true));
            row("OvFrame", "focusHint", makeFieldFrame, withProperty("focusHint", true));
            row("OvFrame", "error", makeFieldFrame, withHint("error"));
            row("OvFrame", "LIGHT_GREY_ONE", makeFieldFrame, withHint("LIGHT_GREY_ONE"));
            row("OvFrame", "LIGHT_GREY_TWO", makeFieldFrame, withHint("LIGHT_GREY_TWO"));
            row("SearchWidget", "hover", makeSearch, hover);
            row("SearchWidget", "disabled", makeSearch, disable);
            row("SearchWidget", "focusHint", makeSearch, withProperty("focusHint", true));
            row("SearchWidget", "hovered", makeSearch, inPart("searchIcon", withProperty("hovered", true)));
            const char* const frame = "pathSelectionFrame";
            row("PathSelectionWidget", "error", makePath, inPart(frame, withHint("error")));
            row("PathSelectionWidget", "hover", makePath, inPart(frame, hover));
            row("PathSelectionWidget", "focusHint", makePath, inPart(frame, withProperty("focusHint", true)));
            row("PathSelectionWidget", "disabled", makePath, disable);
            for (const char* button : {"pathBrowseButton", "pathResetButton"}) {
                for (const auto& state : buttonStates) {
                    row(button, state.first, makePath, inPart(button, state.second));
                }
            }
            row("ColorPickerButton", "nullColor", makeColorButton,
                [](QWidget* widget) { static_cast<ColorPickerButton*>(widget)->setColor(QColor()); });
            row("ColorPickerButton", "multiColor", makeColorButton,
                [](QWidget* widget) { static_cast<ColorPickerButton*>(widget)->setColor(std::nullopt); });
            row("colour preview", "nullColor", makeColorPreview, withProperty("nullColor", true));
            row("colour preview", "multiColor", makeColorPreview, withProperty("multiColor", true));
            row("colour preview", "disabled", makeFilledColorPreview, disable);
            for (const char* name : {"pipetteButton", "addCustomColorButton"}) {
                states(name, makeNamedButton(name));
            }
            row("hue slider", "focus", makeHueSlider, focus);
            row("hue slider", "disabled", makeHueSlider, disable);
            states("ColorPickerButton", makeColorButton);
            states("WidgetColorPickerButton", makePickingButton);
        }
    }

    void hookChangesThePicture()
    {
        QFETCH(QString, style);
        QFETCH(Maker, maker);
        QFETCH(Change, change);
        qApp->setStyleSheet(resourceSheet(style));
        Stage stage(maker);
        QVERIFY(stage.isActive());
        const QImage before = stage.picture();
        change(stage.widget());
        QVERIFY(stage.picture() != before);
    }

    void controlsHaveOneHeight_data() { sheetFitsEveryWidget_data(); }

    // In a row of a form they stand side by side.
    void controlsHaveOneHeight()
    {
        QFETCH(QString, style);
        qApp->setStyleSheet(resourceSheet(style));
        // The application's: under a sheet a widget's own reaches no grandchildren before it is shown.
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPixelSize(12);
        QApplication::setFont(font);
        QWidget window;
        const QVector<QWidget*> controls =
            listOf(makeButton<QPushButton>(&window), makeButton<QToolButton>(&window), makeEdit(&window),
                   make<QSpinBox>(&window), make<QDoubleSpinBox>(&window), makeCombo<OvComboBox>(&window),
                   makeTesselCombo(&window), make<ColorBlendingComboBox>(&window), make<OvSpinBox>(&window),
                   make<OvDoubleSpinBox>(&window), make<Orvane::Tessel::TesselLineEdit>(&window),
                   makeCombo<QComboBox>(&window), makeColorButton(&window),
                   new ColorInputWidget(&window, QColor()), makePath(&window), makeSearch(&window));
        QStringList others;
        for (QWidget* control : controls) {
            control->ensurePolished();
            const QSize size = QWidgetItem(control).sizeHint();
            if (size.height() != 24) {
                others += QStringLiteral("%1: %2")
                              .arg(QString::fromLatin1(control->metaObject()->className()))
                              .arg(size.height());
            }
        }
        QApplication::setFont(before);
        QVERIFY2(others.isEmpty(), qPrintable(others.join(QLatin1String(", "))));
    }

    // Its face tells nothing then.
    void pickingButtonHasAPictureBeforeItsFirstColor()
    {
        for (const QString& style : styles()) {
            qApp->setStyleSheet(resourceSheet(style));
            QWidget window;
            WidgetColorPickerButton button(&window);
            button.ensurePolished();
            button.resize(button.sizeHint());
            for (QWidget* target : {static_cast<QWidget*>(nullptr), &window}) {
                button.setTargetWidget(target);
                const QImage fresh = button.grab().toImage();
                Util::applyProperty(&button, "nullColor", false);
                QVERIFY(button.grab().toImage() != fresh);
                Util::applyProperty(&button, "nullColor", true);
            }
        }
    }

    void focusMovesNothing_data()
    {
        QTest::addColumn<Maker>("maker");
        QTest::newRow("QPushButton") << Maker(makeButton<QPushButton>);
        QTest::newRow("QToolButton") << Maker(makeButton<QToolButton>);
        QTest::newRow("QLineEdit") << Maker(withoutCursor(makeEdit));
        QTest::newRow("OvComboBox") << Maker(makeCombo<OvComboBox>);
        QTest::newRow("ColorBlendingComboBox") << Maker(make<ColorBlendingComboBox>);
        QTest::newRow("ColorPickerButton") << Maker(makeColorButton);
        QTest::newRow("WidgetColorPickerButton") << Maker(makePickingButton);
    }

    // The border grows inwards: what lies inside stays where it is.
    void focusMovesNothing()
    {
        QFETCH(Maker, maker);
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Stage stage(maker);
        QVERIFY(stage.isActive());
        QWidget* const widget = stage.widget();
        const QRect inside = widget->rect().adjusted(4, 3, -4, -3); // without round corners
        const QSize sizeBefore = widget->sizeHint();
        const QImage before = widget->grab(inside).toImage();
        focus(widget);
        QVERIFY(widget->hasFocus());
        QCOMPARE(widget->sizeHint(), sizeBefore);
        QCOMPARE(widget->grab(inside).toImage(), before);
    }

    // It has "focusHint" from its first focus on.
    void searchFieldIsAfterTheFocusAsBefore()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Stage stage(makeSearch);
        QVERIFY(stage.isActive());
        const QSize size = stage.widget()->sizeHint();
        const QImage before = stage.picture();
        focus(editOf(stage.widget()));
        QCOMPARE(stage.widget()->sizeHint(), size);
        stage.widget()->window()->setFocus();
        QCOMPARE(stage.widget()->property("focusHint"), QVariant(false));
        QCOMPARE(stage.widget()->sizeHint(), size);
        QCOMPARE(stage.picture(), before);
    }

    void sliderIsFilledFromItsMinimum_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::addColumn<bool>("inverted");
        QTest::addColumn<bool>("fromLeftOrTop");

        QTest::newRow("left to right") << Qt::Horizontal << Qt::LeftToRight << false << true;
        QTest::newRow("right to left") << Qt::Horizontal << Qt::RightToLeft << false << false;
        QTest::newRow("left to right, inverted") << Qt::Horizontal << Qt::LeftToRight << true << false;
        QTest::newRow("right to left, inverted") << Qt::Horizontal << Qt::RightToLeft << true << true;
        QTest::newRow("upright") << Qt::Vertical << Qt::LeftToRight << false << false;
        QTest::newRow("upright, right to left") << Qt::Vertical << Qt::RightToLeft << false << false;
        QTest::newRow("upright, inverted") << Qt::Vertical << Qt::LeftToRight << true << true;
    }

    void sliderIsFilledFromItsMinimum()
    {
        QFETCH(Qt::Orientation, orientation);
        QFETCH(Qt::LayoutDirection, direction);
        QFETCH(bool, inverted);
        QFETCH(bool, fromLeftOrTop);
        qApp->setStyleSheet(resourceSheet(styles().first()));
        const QHash<QString, QColor> colors = paletteOf(styles().first());
        for (const bool isEnabled : {true, false}) {
            const QColor filled =
                colors.value(isEnabled ? QStringLiteral("accent") : QStringLiteral("filledDisabled"));
            const QColor empty =
                colors.value(isEnabled ? QStringLiteral("groove") : QStringLiteral("grooveDisabled"));
            Host host;
            host.setLayoutDirection(direction);
            auto* slider = new QSlider(orientation, &host);
            slider->setInvertedAppearance(inverted);
            slider->setValue(50);
            slider->setEnabled(isEnabled);
            QVERIFY(host.present(slider));
            const QImage picture = host.grab().toImage();
            const QPoint middle = picture.rect().center();
            const bool isHorizontal = orientation == Qt::Horizontal;
            const QPoint away = isHorizontal ? QPoint(middle.x() / 2, 0) : QPoint(0, middle.y() / 2);
            const QColor first = picture.pixelColor(middle - away);
            const QColor last = picture.pixelColor(middle + away);
            QCOMPARE(first, fromLeftOrTop ? filled : empty);
            QCOMPARE(last, fromLeftOrTop ? empty : filled);
        }
    }

    void colorFieldTakesItsMetrics()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Host host;
        auto* row = new QWidget;
        auto* field = new ColorInputWidget(row, QColor(Qt::red));
        (new QHBoxLayout(row))->addWidget(field);
        row->setMinimumWidth(400);
        QVERIFY(host.present(row));
        QCOMPARE(field->anchorWidget()->size(), QSize(44, 24));
        const auto* face = field->anchorWidget()->findChild<QWidget*>(QStringLiteral("color"));
        QCOMPARE(face->geometry(), QRect(3, 3, 38, 18));
        // A form may be wider; the field keeps to its beginning.
        QCOMPARE(field->width(), 44);
    }

    // The rows begin and end where the outlines of the faces do.
    void colorPanelIsAligned()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        QFont font = QApplication::font();
        font.setPixelSize(12);
        Host host;
        host.setFont(font);
        auto* panel = new ColorPickerWidget(&host, false);
        QVERIFY(host.present(panel));

        constexpr int ring = 2; // around an outline
        const auto left = [panel](const QWidget* part) { return part->mapTo(panel, QPoint()).x(); };
        const auto right = [left](const QWidget* part) { return left(part) + part->width(); };
        const auto faces = partOf(panel, "colorMatrixPanel")->findChildren<QToolButton*>();
        const auto places = partOf(panel, "otherColorsQueuePanel")->findChildren<QToolButton*>();
        QCOMPARE(faces.first()->size(), QSize(24, 24));
        QCOMPARE(panel->width(), 9 * 24);
        QCOMPARE(left(partOf(panel, "currentColorDisplayLabel")), left(faces.first()) + ring);
        QCOMPARE(left(partOf(panel, "opacitySlider")), left(faces.first()) + ring);
        QCOMPARE(right(partOf(panel, "pipetteButton")), right(faces.last()) - ring);
        QCOMPARE(right(partOf(panel, "opacitySpinbox")), right(faces.last()) - ring);
        // The add button and the places of own colours are the columns of the palette.
        QCOMPARE(left(partOf(panel, "addCustomColorButton")), left(faces.at(0)));
        QCOMPARE(partOf(panel, "addCustomColorButton")->size(), QSize(24, 24));
        for (int i = 0; i < places.size(); ++i) {
            QCOMPARE(left(places.at(i)), left(faces.at(i + 1)));
        }
        // The first row has one height.
        for (const char* name : {"currentColorDisplayLabel", "currentColorValueEdit", "pipetteButton"}) {
            QCOMPARE(partOf(panel, name)->height(), 24);
        }
    }

    void currentRowIsMarked_data() { sheetFitsEveryWidget_data(); }

    // Ctrl and the arrows go through a list and select nothing.
    void currentRowIsMarked()
    {
        QFETCH(QString, style);
        qApp->setStyleSheet(resourceSheet(style));
        Host host;
        auto* list = new QListWidget;
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->addItems({QStringLiteral("one"), QStringLiteral("two")});
        QVERIFY(host.present(list));
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        list->setFocus();
        list->setCurrentRow(1, QItemSelectionModel::NoUpdate);
        const QImage picture = list->viewport()->grab().toImage();
        const auto sideOf = [&](int row) {
            const QRect area = list->visualItemRect(list->item(row));
            return picture.pixelColor(area.left(), area.center().y());
        };
        const QHash<QString, QColor> colors = paletteOf(style);
        QCOMPARE(sideOf(0), colors.value(QStringLiteral("field")));
        QCOMPARE(sideOf(1), colors.value(QStringLiteral("focus")));
    }

    void choiceIsSeenOnEveryColor_data() { sheetFitsEveryWidget_data(); }

    // A ring, and between it and the face the surface: whatever the colour, one of them stands out.
    void choiceIsSeenOnEveryColor()
    {
        QFETCH(QString, style);
        qApp->setStyleSheet(resourceSheet(style));
        const QHash<QString, QColor> colors = paletteOf(style);
        const QColor surface = colors.value(QStringLiteral("window"));
        Host host;
        auto* panel = new ColorPickerWidget(&host, true);
        QVERIFY(host.present(panel));
        host.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        const auto faces = partOf(panel, "colorMatrixPanel")->findChildren<QToolButton*>();
        QCOMPARE(faces.size(), 72);
        const QPoint middle(12, 12);
        const QPoint onRing(1, 12);
        const QPoint onGap(2, 12);
        for (QToolButton* face : faces) {
            const auto picture = [&host, face] {
                return host.grab(QRect(face->mapTo(&host, QPoint()), face->size())).toImage();
            };
            face->window()->setFocus();
            const QColor color = picture().pixelColor(middle);
            QVERIFY2(picture().pixelColor(onRing) == surface, qPrintable(color.name()));
            face->setChecked(true);
            QCOMPARE(picture().pixelColor(onRing), colors.value(QStringLiteral("textStrong")));
            QCOMPARE(picture().pixelColor(onGap), surface);
            QCOMPARE(picture().pixelColor(middle), color);
            face->setFocus();
            QCOMPARE(picture().pixelColor(onRing), colors.value(QStringLiteral("focus")));
            QCOMPARE(picture().pixelColor(onGap), surface);
        }
    }

    void colorsThatAreOffAreDimmer_data() { sheetFitsEveryWidget_data(); }

    void colorsThatAreOffAreDimmer()
    {
        QFETCH(QString, style);
        qApp->setStyleSheet(resourceSheet(style));
        const QColor surface = paletteOf(style).value(QStringLiteral("window"));
        Host host;
        auto* panel = new ColorPickerWidget(&host, false);
        panel->setCurrentColor(QColor(Qt::red));
        QVERIFY(host.present(panel));
        QList<QWidget*> faces = {partOf(panel, "currentColorDisplayLabel")};
        const auto buttons = partOf(panel, "colorMatrixPanel")->findChildren<QToolButton*>();
        for (QToolButton* button : buttons) {
            faces.append(button);
        }
        for (const QWidget* face : qAsConst(faces)) {
            const auto distance = [&host, face, &surface] {
                const QColor shown =
                    host.grab().toImage().pixelColor(face->mapTo(&host, face->rect().center()));
                return qAbs(shown.red() - surface.red()) + qAbs(shown.green() - surface.green()) +
                       qAbs(shown.blue() - surface.blue());
            };
            const int on = distance();
            panel->setEnabled(false);
            const int off = distance();
            panel->setEnabled(true);
            // One of the colours is nearly the surface itself.
            QVERIFY2(off < on || on < 50, qPrintable(QStringLiteral("%1 %2").arg(on).arg(off)));
        }
    }

    void hueGrooveShowsTheHues_data()
    {
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("left to right") << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::RightToLeft;
    }

    // Under the handle is the hue that it stands for.
    void hueGrooveShowsTheHues()
    {
        QFETCH(Qt::LayoutDirection, direction);
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Host host;
        host.setLayoutDirection(direction);
        Orvane::Tessel::TesselElegantSlider* const slider = makeHueSlider(&host);
        slider->setRange(0, 359);
        slider->setValue(0);
        QVERIFY(host.present(slider));
        slider->resize(240, slider->height());
        host.resize(slider->size());
        const QImage picture = host.grab().toImage();
        for (const int hue : {60, 120, 180, 240, 300}) {
            const int from = direction == Qt::LeftToRight ? hue : 360 - hue;
            const QColor shown = picture.pixelColor(picture.width() * from / 360, picture.height() / 2);
            QVERIFY2(qAbs(shown.hue() - hue) <= 8, qPrintable(QString::number(hue) + shown.name()));
            QCOMPARE(shown.saturation(), 255);
        }
    }

    void selectorTakesItsMetrics()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        QWidget window;
        const ColorPickerWidget* const panel = makeColorPanel(&window);
        auto* dialog = panel->findChild<QDialog*>();
        dialog->ensurePolished();
        dialog->adjustSize();
        const QWidget* const plane = partOf(dialog, "colorPlane");
        QCOMPARE(plane->size(), QSize(220, 160));
        QCOMPARE(plane->mapTo(dialog, QPoint()), QPoint(12, 12));
        QCOMPARE(plane->property("markerRadius").toInt(), 7);
    }

    void bubbleTakesItsLook()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        const QHash<QString, QColor> colors = paletteOf(styles().first());
        Host host;
        PointingWidget* const bubble = makeBubble(&host);
        QVERIFY(host.present(bubble));
        QCOMPARE(bubble->backgroundColor(), colors.value(QStringLiteral("popup")));
        QCOMPARE(bubble->borderColor(), colors.value(QStringLiteral("border")));
        QCOMPARE(bubble->radius(), 8);
        QCOMPARE(bubble->contentFrame()->layoutMargin(), 12);
        QCOMPARE(bubble->contentFrame()->layout()->contentsMargins(), QMargins(12, 12, 12, 12));
        QCOMPARE(bubble->contentFrame()->layout()->spacing(), 8);
        // The content shows the bubble's surface, not one of its own.
        QCOMPARE(
            bubble->grab().toImage().pixelColor(bubble->contentFrame()->geometry().center() + QPoint(0, 12)),
            colors.value(QStringLiteral("popup")));
    }

    void guidesTakeTheirLook()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        const QHash<QString, QColor> colors = paletteOf(styles().first());
        Host host;
        auto* guide = new GuideWidget(guideInfo(), &host);
        // In time for its texts, which are measured in the constructor.
        QCOMPARE(guide->width(), 280);
        QVERIFY(host.present(guide));
        QCOMPARE(guide->width(), 280);
        QCOMPARE(guide->layout()->spacing(), 8);
        QCOMPARE(
            guide->findChild<QLabel*>(QStringLiteral("headerLabel"))->palette().color(QPalette::WindowText),
            colors.value(QStringLiteral("textStrong")));

        Host otherHost;
        DialogGuideWidget* const bubble = makeDialogGuide(&otherHost);
        QVERIFY(otherHost.present(bubble));
        QCoreApplication::processEvents();
        QCOMPARE(bubble->width(), 328);
        QCOMPARE(bubble->backgroundColor(), colors.value(QStringLiteral("popup")));
        QCOMPARE(bubble->contentFrame()->layout()->spacing(), 8);
        QCOMPARE(bubble->findChild<QWidget*>(QStringLiteral("buttonsFrame"))->layout()->spacing(), 8);
        auto* close = bubble->findChild<QToolButton*>(QStringLiteral("closeButton"));
        QCOMPARE(close->iconSize(), QSize(10, 10));
        const QImage enabled = close->icon().pixmap(10, QIcon::Normal).toImage();
        QVERIFY(!enabled.isNull());
        QVERIFY(close->icon().pixmap(10, QIcon::Disabled).toImage() != enabled);
        // It stands out by its surface only while it is touched.
        QCOMPARE(bubble->grab().toImage().pixelColor(close->mapTo(bubble, QPoint(4, 4))),
                 colors.value(QStringLiteral("popup")));
    }

    void loupeTakesItsLook()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        const QHash<QString, QColor> colors = paletteOf(styles().first());
        Host host;
        LoupeWidget* const loupe = makeLoupe(&host);
        QVERIFY(host.present(loupe));
        // Each of the 13 pixels is as large as the others.
        QCOMPARE(loupe->size(), QSize(117, 117));
        QCOMPARE(loupe->emptyPixelsColor(), colors.value(QStringLiteral("field")));
        const QImage picture = host.grab().toImage();
        const QPoint middle(58, 58);
        QCOMPARE(picture.pixelColor(middle), QColor(Qt::darkCyan));
        QCOMPARE(picture.pixelColor(middle.x(), 1), colors.value(QStringLiteral("borderHover")));
        QCOMPARE(picture.pixelColor(1, middle.y()), colors.value(QStringLiteral("borderHover")));
        QCOMPARE(picture.pixelColor(2, 2), colors.value(QStringLiteral("window")));
        // The name is on a plate of its own.
        const auto* label = loupe->findChild<QLabel*>(QStringLiteral("colorNameLabel"));
        QCOMPARE(picture.pixelColor(27, 98), colors.value(QStringLiteral("popup")));
        QVERIFY(label->sizeHint().width() <= label->width());
    }

    void outlineTakesItsLook()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Host host;
        auto* target = new QLabel;
        target->setMinimumSize(80, 40);
        const Orvane::Gui::HighlightFrame outline(target);
        QVERIFY(host.present(target));
        const QImage picture = host.grab().toImage();
        const QHash<QString, QColor> colors = paletteOf(styles().first());
        QCOMPARE(picture.pixelColor(1, 20), colors.value(QStringLiteral("focus")));
        QCOMPARE(picture.pixelColor(3, 20), colors.value(QStringLiteral("window")));
    }

    void droppedHintRestoresTheLook()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Stage stage(makeEdit);
        const QImage before = stage.picture();
        Util::applyStyleHint(stage.widget(), QStringLiteral("error"));
        QVERIFY(stage.picture() != before);
        Util::applyStyleHint(stage.widget(), QString());
        QCOMPARE(stage.picture(), before);
    }

    // Texts on a card, a bubble or a tab must not carry a rectangle of the window's colour with them.
    void labelsShowTheirSurface()
    {
        qApp->setStyleSheet(resourceSheet(styles().first()));
        Host host;
        auto* surface = new QDialog;
        Workaround::Ui::apply(surface);
        Util::applyProperty(surface, "roundedEdges", true);
        auto* layout = new QVBoxLayout(surface);
        layout->setContentsMargins(0, 0, 0, 0);
        const QVector<QWidget*> children = listOf(
            new QLabel(surface), make<OvFrame>(surface), make<QWidget>(surface),
            makeButton<QCheckBox>(surface), makeButton<QRadioButton>(surface), makeSlider<QSlider>(surface));
        for (QWidget* child : children) {
            child->setMinimumSize(120, 20);
            layout->addWidget(child);
        }
        QVERIFY(host.present(surface));
        const QPoint besideTheCorner(-12, 2);
        const QImage picture = host.grab().toImage();
        const QColor expected = paletteOf(styles().first()).value(QStringLiteral("popup"));
        for (const QWidget* child : children) {
            QCOMPARE(picture.pixelColor(child->geometry().topRight() + besideTheCorner), expected);
        }
    }
};

UIC_TEST_MAIN(tst_ReferenceStyles)
#include "tst_ReferenceStyles.moc"
