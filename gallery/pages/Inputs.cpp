#include "../CodeText.h"
#include "../FolderBrowser.h"
#include "../Page.h"
#include "../PageRegistry.h"
#include "../ParameterPanel.h"

#include <DesignElements/TesselComboBox.h>
#include <DesignElements/TesselLineEdit.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/SearchWidget.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/PropertyProviderBase.h>

#include <QCheckBox>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QResizeEvent>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QStringListModel>
#include <QVBoxLayout>

using Orvane::Tessel::TesselLineEdit;

namespace {

const QRectF pointLimits(-1, -1, 2, 2);
const QPointF samplePoint(0.4, -0.3);
constexpr QSize planeSizeWithoutSheet(140, 140);
constexpr qint64 megabyte = 1'048'576;

/// Adds controls of the coordinates of the point of @p plane, which @p set sets.
template <typename Set>
void addPoint(PropertyPanel* panel, const QPointer<PointSelectionPlane>& plane, Set set)
{
    const auto addCoordinate = [panel, plane, set](const QString& name, qreal& (QPointF::*coordinate)()) {
        QPointF start = plane->point();
        panel->addFraction(name, 2 * pointLimits.left(), 2 * pointLimits.right(), (start.*coordinate)(),
                           [plane, set, coordinate](double value) {
                               if (plane) {
                                   QPointF point = plane->point();
                                   (point.*coordinate)() = value;
                                   set(point);
                               }
                           });
    };
    addCoordinate(QStringLiteral("x"), &QPointF::rx);
    addCoordinate(QStringLiteral("y"), &QPointF::ry);
}

/// A plane reads the values of a sheet when it is resized, and paints them.
void showStyleValues(PointSelectionPlane* plane)
{
    QResizeEvent event(plane->size(), plane->size());
    QCoreApplication::sendEvent(plane, &event);
    plane->update();
}

/// Every third clip has a second line.
void addClips(QStandardItemModel* model, int count)
{
    for (int i = 0; i < count; ++i) {
        const int number = model->rowCount() + 1;
        auto* item = new QStandardItem(PageRegistry::tr("Clip %1").arg(number));
        item->setEditable(false);
        if (number % 3 == 0) {
            constexpr int height = 44;
            item->setText(item->text() + QLatin1Char('\n') + PageRegistry::tr("with sound"));
            item->setSizeHint(QSize(0, height));
        }
        model->appendRow(item);
    }
}

void setSearchTexts(SearchWidget* search, const QString& placeholder)
{
    search->setTranslations(PageRegistry::tr("Search"), PageRegistry::tr("Part of a clip's name"),
                            PageRegistry::tr("Clear the search"), placeholder);
}

/// A list of clips below a search that filters it while the user types.
QWidget* makeBin(QWidget* parent)
{
    constexpr int maxListHeight = 130;
    auto* bin = new QWidget(parent);
    auto* search = new SearchWidget(bin);
    setSearchTexts(search, PageRegistry::tr("Search clips"));
    auto* clips = new QStringListModel(
        {PageRegistry::tr("Beach, morning"), PageRegistry::tr("Beach, evening"), PageRegistry::tr("Harbour"),
         PageRegistry::tr("Interview"), PageRegistry::tr("Interview, second camera")},
        bin);
    auto* filter = new QSortFilterProxyModel(bin);
    filter->setSourceModel(clips);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QObject::connect(search, &SearchWidget::textChanged, filter,
                     &QSortFilterProxyModel::setFilterFixedString);
    auto* list = new QListView(bin);
    list->setModel(filter);
    list->setMaximumHeight(maxListHeight);
    auto* layout = new QVBoxLayout(bin);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(search);
    layout->addWidget(list);
    return bin;
}

QString errorTypeCode(int type)
{
    const QString name = type == PathSelectionWidget::Label ? QStringLiteral("PathSelectionWidget::Label")
                         : type == PathSelectionWidget::Tooltip
                             ? QStringLiteral("PathSelectionWidget::Tooltip")
                             : QStringLiteral("{}");
    return QStringLiteral("$->setErrorDisplayType(%1);").arg(name);
}

QString refuseHiddenFolders(const QString& path)
{
    return QDir(path).dirName().startsWith(QLatin1Char('.'))
               ? PageRegistry::tr("Nobody would find this folder again: %1").arg(path)
               : QString();
}

} // namespace

void PageRegistry::pointPlane(Page* page)
{
    const auto planes = page->addTwins<PointSelectionPlane>(QString(), [](PointSelectionPlane* plane) {
        plane->setMinimumSize(planeSizeWithoutSheet);
        plane->setLimits(pointLimits);
        plane->setPoint(samplePoint);
    });

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setPoint()"));
    addPoint(panel, planes.enabled, planes.setter(&PointSelectionPlane::setPoint));
    panel->addHeading(QStringLiteral("setLimits()"));
    const auto limits = [](bool isUpsideDown) {
        return isUpsideDown ? QRectF(pointLimits.bottomRight(), pointLimits.topLeft()) : pointLimits;
    };
    const auto* upsideDown = panel->addSwitch(
        tr("Upside down"), false,
        planes.setter([limits](PointSelectionPlane* plane, bool on) { plane->setLimits(limits(on)); }));
    page->describeCode(planes.enabled, [plane = planes.enabled, upsideDown, limits] {
        const QRectF now = limits(upsideDown->isChecked());
        const QPointF point = plane->point();
        return QStringList{QStringLiteral("$->setLimits(QRectF(%1, %2, %3, %4));")
                               .arg(now.x())
                               .arg(now.y())
                               .arg(now.width())
                               .arg(now.height()),
                           QStringLiteral("$->setPoint(QPointF(%1, %2));").arg(point.x()).arg(point.y())};
    });
    panel->addHeading(QStringLiteral("PointSelectionPlanePropertyHelper"));
    panel->addProperties(planes.children<PropertyProviderBase>());
    QObject::connect(panel, &PropertyPanel::edited, page, [planes] { planes.each(&showStyleValues); });
    page->signalLog()->watch(planes.enabled, "plane");
    page->describeStyling(
        planes.enabled,
        tr("Colours and sizes are those of a hidden child, selected by its class name and, where they differ "
           "for a disabled plane, with [enabled=\"false\"]. The sheet gives the plane its size."));
}

void PageRegistry::pointSelector(Page* page)
{
    const auto fields = page->addTwins(QString(), [](QWidget* parent) {
        auto* field =
            new PointSelectorWidget(parent, {pointLimits.topLeft(), pointLimits.bottomRight(), 2, 2});
        field->findChild<PointSelectionPlane*>()->setMinimumSize(planeSizeWithoutSheet);
        field->setValue(samplePoint);
        return field;
    });

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setValue()"));
    addPoint(panel, fields.enabled->findChild<PointSelectionPlane*>(),
             fields.setter(&PointSelectorWidget::setValue));
    panel->addHeading(QStringLiteral("OvFrame"));
    panel->addProperties(fields);
    page->signalLog()->watch(fields.enabled, "field");
    page->describeStyling(fields.enabled,
                          tr("Frames around a point plane and two labelled spin boxes. The labels are empty: "
                             "the sheet may give them a text, with qproperty-text, or a picture."));
}

void PageRegistry::comboBox(Page* page)
{
    constexpr int narrowWidth = 110;
    const auto addItems = [](OvComboBox* box) {
        box->addItems({tr("Full HD, 1920 × 1080, 25 frames"), tr("Ultra HD, 3840 × 2160, 60 frames"),
                       tr("Square"), tr("As the source")});
    };
    const auto wide = page->addTwins<OvComboBox>(tr("With room"), addItems);
    const auto narrow = page->addTwins<OvComboBox>(tr("In a narrow panel"), addItems);
    const auto setNarrowWidth = narrow.setter(&QWidget::setFixedWidth);
    setNarrowWidth(narrowWidth);

    PropertyPanel* const panel = page->properties();
    panel->addNumber(tr("Width of the narrow one"), 40, 360, narrowWidth, setNarrowWidth);
    panel->addHeading(tr("With room"));
    panel->addProperties(wide,
                         {"currentIndex", "maxVisibleItems", "minimumContentsLength", "editable", "frame"});
    panel->addAction(QStringLiteral("showPopup()"), wide.enabled.data(), &OvComboBox::showPopup);
    page->signalLog()->watch(wide.enabled, "wide");
    page->signalLog()->watch(narrow.enabled, "narrow");
    page->describeStyling(wide.enabled, tr("As QComboBox, with its sub-controls and its view, or alone by "
                                           "its class name; the pop-up's state is a dynamic property."));
}

void PageRegistry::tesselComboBox(Page* page)
{
    const auto addItems = [](OvComboBox* box) {
        box->addItems({tr("Normal"), tr("Multiply"), tr("Screen")});
    };
    const auto plain = page->addTwins<OvComboBox>(tr("As it was"), addItems);
    const auto converted = page->addTwins<OvComboBox>(tr("Converted"), addItems);
    converted.each(&Orvane::Tessel::convertComboBoxToTessel);

    PropertyPanel* const panel = page->properties();
    panel->addAction(tr("Convert the first one too"),
                     [plain] { plain.each(&Orvane::Tessel::convertComboBoxToTessel); });
    panel->addHeading(tr("Converted"));
    panel->addProperties(converted, {"currentIndex", "maxVisibleItems"});
    panel->addAction(QStringLiteral("showPopup()"), converted.enabled.data(), &OvComboBox::showPopup);
    page->signalLog()->watch(plain.enabled, "plain");
    page->signalLog()->watch(converted.enabled, "converted");
    page->describeStyling(
        converted.enabled,
        tr("A combo box with the property; the view of its list has the object name tesselComboBoxView."),
        QStringLiteral("convertComboBoxToTessel()"));
}

void PageRegistry::tesselLineEdit(Page* page)
{
    const auto edits = page->addTwins<TesselLineEdit>(
        tr("A text"), [](TesselLineEdit* edit) { edit->setText(tr("Text to edit")); });
    page->addTwins<TesselLineEdit>(
        tr("A placeholder"), [](TesselLineEdit* edit) { edit->setPlaceholderText(tr("Name of the clip")); });
    page->addTwins<TesselLineEdit>(tr("Read only"), [](TesselLineEdit* edit) {
        edit->setText(tr("Text to copy"));
        edit->setReadOnly(true);
    });

    page->properties()->addHeading(tr("A text"));
    page->properties()->addProperties(edits, {"text", "placeholderText", "readOnly", "echoMode",
                                              "clearButtonEnabled", "maxLength", "frame"});
    page->signalLog()->watch(edits.enabled, "lineEdit");
    page->describeStyling(edits.enabled,
                          tr("Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu "
                             "as QMenu#tesselContextMenu."));
}

void PageRegistry::search(Page* page)
{
    const auto setPlaceholder = [](SearchWidget* search, const QString& text) {
        setSearchTexts(search, text);
    };
    const auto searches = page->addTwins<SearchWidget>(
        tr("By itself"), [](SearchWidget* search) { setSearchTexts(search, tr("Search clips")); });
    const auto bins = page->addTwins(tr("Above a list that it filters"), &makeBin);

    PropertyPanel* const panel = page->properties();
    panel->addHeading(tr("By itself"));
    panel->addProperties(searches, {"PlaceholderColor", "PlaceholderHoverColor", "PlaceholderDisabledColor"});
    panel->addText(tr("Placeholder"), tr("Search clips"), searches.setter(setPlaceholder));
    panel->addAction(QStringLiteral("clear()"), [searches] { searches.each(&SearchWidget::clear); });
    QObject::connect(page, &Page::pictureRequested, page, [searches] {
        searches.enabled->findChild<QLineEdit*>()->setText(QStringLiteral("beach"));
    });
    page->signalLog()->watch(searches.enabled, "search");
    page->signalLog()->watch(bins.enabled->findChild<SearchWidget*>(), "binSearch");
    page->describeStyling(searches.enabled,
                          tr("A frame around an icon, a line edit and a button that clears it. \"focusHint\" "
                             "is set from the first time that the line edit gets the keyboard."));
}

void PageRegistry::adjustingList(Page* page)
{
    constexpr int firstClips = 8;
    constexpr int maxClips = 10000;
    auto* model = new QStandardItemModel(page);
    addClips(model, firstClips);
    const auto lists =
        page->addTwins<AdjustingListView>(tr("A bin of clips"), [model](AdjustingListView* list) {
            list->setModel(model);
            // Qt asks no label for the name of a list.
            list->setAccessibleName(tr("A bin of clips"));
        });
    const auto logHeight = [page, lists] {
        if (lists.enabled) {
            page->signalLog()->addLine(
                QStringLiteral("minimumHeight() = %1").arg(lists.enabled->minimumHeight()));
        }
    };

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("setLoadingFinished()"));
    const auto* finished =
        panel->addSwitch(tr("Loading is finished"), true, [lists, logHeight](bool isFinished) {
            lists.setter (&AdjustingListView::setLoadingFinished)(isFinished);
            logHeight();
        });
    page->describeCode(lists.enabled, [finished] {
        return finished->isChecked() ? QStringList()
                                     : QStringList{QStringLiteral("$->setLoadingFinished(false);")};
    });
    panel->addHeading(tr("The model"));
    for (const int count : {1, 100, maxClips}) {
        panel->addAction(tr("Add clips: %1").arg(count), [model, count, logHeight] {
            addClips(model, count);
            logHeight();
        });
    }
    panel->addAction(tr("Remove all clips"), [model, logHeight] {
        model->clear();
        logHeight();
    });
    page->describeStyling(lists.enabled,
                          tr("As QListView: it has no class of its own for a sheet. Its minimum height is "
                             "its own, whatever the sheet says."),
                          QStringLiteral("AdjustingListView"));
}

void PageRegistry::pathSelection(Page* page)
{
    constexpr int requiredMegabytes = 700;
    constexpr int maxMegabytes = 10'000'000;
    const auto setUp = [](PathSelectionWidget* field) {
        field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
        field->setBrowseButtonTooltip(tr("Choose a folder"));
        field->setResetButtonTooltip(tr("Back to the home folder"));
    };
    const auto upper = page->addTwins<PathSelectionWidget>(
        tr("With a default folder and space on its disk"), [setUp](PathSelectionWidget* field) {
            setUp(field);
            field->setDefaultPath(QDir::homePath(), tr("Home folder"));
            field->showRequiredSpace(true, requiredMegabytes * megabyte);
            field->showAvailableSpace(true, -1);
            connectToDisk(field);
            field->setPath(QDir::homePath());
        });
    const auto lower = page->addTwins<PathSelectionWidget>(
        tr("A relative path, with its error below"), [setUp](PathSelectionWidget* field) {
            setUp(field);
            field->setErrorDisplayType(PathSelectionWidget::Label);
            connectToDisk(field);
            field->setPath(QStringLiteral("renders"));
        });
    const auto check = [page](const Twins<PathSelectionWidget>& fields, const QString& name) {
        return [page, field = fields.enabled, name] {
            const bool isGood = field && field->checkPath();
            page->signalLog()->addLine(
                QStringLiteral("%1.checkPath() = %2").arg(name, QVariant(isGood).toString()));
        };
    };

    PropertyPanel* const panel = page->properties();
    panel->addHeading(QStringLiteral("checkPath()"));
    panel->addAction(tr("Check the upper field"), check(upper, tr("upper")));
    panel->addAction(tr("Check the lower field"), check(lower, tr("lower")));
    const auto* errorType = panel->addChoice(
        tr("The upper field's error"), {tr("nowhere"), tr("tool tip"), tr("label")},
        PathSelectionWidget::Tooltip, upper.setter([](PathSelectionWidget* field, int type) {
            field->setErrorDisplayType(static_cast<PathSelectionWidget::ErrorDisplayType>(type));
        }));
    panel->addSwitch(tr("Refuse hidden folders instead"), false, [upper, lower](bool on) {
        for (const auto& fields : {upper, lower}) {
            fields.each([on](PathSelectionWidget* field) {
                field->setCheckPathFunc(on ? &refuseHiddenFolders : std::function<QString(const QString&)>());
            });
        }
    });
    panel->addHeading(tr("The upper field"));
    panel->addText(tr("Path"), QString(), upper.setter(&PathSelectionWidget::setPath));
    const auto* defaultText =
        panel->addText(tr("Default path's text"), tr("Home folder"),
                       upper.setter([](PathSelectionWidget* field, const QString& text) {
                           field->setDefaultPath(QDir::homePath(), text);
                       }));
    const auto* required = panel->addNumber(tr("Required megabytes"), -1, maxMegabytes, requiredMegabytes,
                                            upper.setter([](PathSelectionWidget* field, int megabytes) {
                                                field->showRequiredSpace(true, megabytes * megabyte);
                                            }));
    page->describeCode(upper.enabled, [errorType, defaultText, required] {
        return QStringList{
            QStringLiteral("$->setDefaultPath(QDir::homePath(), %1);").arg(codeString(defaultText->text())),
            QStringLiteral("#include <QDir>"),
            QStringLiteral("$->showRequiredSpace(true, %1);").arg(required->value() * megabyte),
            QStringLiteral("$->showAvailableSpace(true, -1);"), errorTypeCode(errorType->currentIndex())};
    });
    page->describeCode(lower.enabled, [] { return QStringList{errorTypeCode(PathSelectionWidget::Label)}; });
    page->signalLog()->watch(upper.enabled, "upper");
    page->signalLog()->watch(lower.enabled, "lower");
    page->describeStyling(upper.enabled,
                          tr("A frame around a line edit and its buttons, which carries the border, the hint "
                             "\"error\" and, from the first time that the line edit gets the keyboard, "
                             "\"focusHint\"; figures above it and a message below it."));
    QObject::connect(page, &Page::pictureRequested, page, [upper, lower] {
        constexpr qint64 space = 213000 * megabyte;
        upper.each([](PathSelectionWidget* field) { field->showAvailableSpace(true, space); });
        lower.each([](PathSelectionWidget* field) {
            field->showAvailableSpace(false, -1);
            field->checkPath();
        });
    });
}

void PageRegistry::clipProperties(Page* page)
{
    const auto panels = page->addTwins<ParameterPanel>(QString());
    page->properties()->addText(tr("Search parameters"), QString(), panels.setter(&ParameterPanel::filter));
    page->signalLog()->watch(panels.enabled, "panel");
    QObject::connect(page, &Page::pictureRequested, page, [panels] {
        // The free space differs from disk to disk.
        panels.each([](ParameterPanel* panel) { panel->folder()->showAvailableSpace(false, -1); });
    });
}
