#include "CodeText.h"

#include "Page.h"

#include <DesignElements/TesselElegantSlider.h>
#include <DesignElements/TesselLineEdit.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvCustomSlider.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvFrame.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/Util.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMainWindow>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QTextDocumentFragment>
#include <QToolButton>

#include <algorithm>
#include <memory>

using Orvane::Tessel::TesselElegantSlider;
using Orvane::Tessel::TesselLineEdit;

namespace {

// ---- Values ----

QString code(const QString& text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    escaped.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    escaped.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    // The name of the variable stands in its place in a line: see addCalls().
    escaped.replace(QLatin1Char('$'), QLatin1String("\\044"));
    return text.isEmpty() ? QStringLiteral("QString()")
                          : QStringLiteral("QStringLiteral(\"%1\")").arg(escaped);
}

QString code(const QStringList& texts)
{
    QStringList all;
    for (const QString& text : texts) {
        all.append(code(text));
    }
    return QStringLiteral("{%1}").arg(all.join(QStringLiteral(", ")));
}

QString code(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString code(int value)
{
    return QString::number(value);
}

QString code(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString code(const QColor& color)
{
    if (!color.isValid()) {
        return QStringLiteral("QColor()");
    }
    const QString alpha = color.alpha() < 255 ? QStringLiteral(", %1").arg(color.alpha()) : QString();
    return QStringLiteral("QColor(%1, %2, %3%4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(alpha);
}

QString code(const QPointF& point)
{
    return QStringLiteral("QPointF(%1, %2)").arg(code(point.x()), code(point.y()));
}

/// "Qt::AlignLeft | Qt::AlignTop"; empty when an enumerator has no name.
QString enumeratorCode(const QMetaEnum& enumeration, int value)
{
    const QByteArray keys =
        enumeration.isFlag() ? enumeration.valueToKeys(value) : QByteArray(enumeration.valueToKey(value));
    QString scope = QString::fromLatin1(enumeration.scope()) + QStringLiteral("::");
    if (enumeration.isScoped()) {
        scope += QString::fromLatin1(enumeration.enumName()) + QStringLiteral("::");
    }
    QStringList names;
    const QList<QByteArray> all = keys.split('|');
    for (const QByteArray& key : all) {
        names.append(key.isEmpty() ? QString() : scope + QString::fromLatin1(key));
    }
    return names.join(QStringLiteral(" | "));
}

/// Empty for a type without a literal.
QString code(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType()) {
        return enumeratorCode(property.enumerator(), value.toInt());
    }
    switch (value.userType()) {
    case QMetaType::Bool:
        return code(value.toBool());
    case QMetaType::Int:
        return code(value.toInt());
    case QMetaType::Double:
        return code(value.toDouble());
    case QMetaType::QString:
        return code(value.toString());
    case QMetaType::QColor:
        return code(value.value<QColor>());
    case QMetaType::QSize:
        return QStringLiteral("QSize(%1, %2)").arg(value.toSize().width()).arg(value.toSize().height());
    case QMetaType::QSizePolicy: {
        const auto policy = value.value<QSizePolicy>();
        const auto policies = QMetaEnum::fromType<QSizePolicy::Policy>();
        return QStringLiteral("%1, %2").arg(enumeratorCode(policies, policy.horizontalPolicy()),
                                            enumeratorCode(policies, policy.verticalPolicy()));
    }
    default:
        return {};
    }
}

// ---- Classes ----

/// How a class that a host can use is built.
struct Kind
{
    const char* name;
    const char* include;
    QWidget* (*make)(QWidget* parent);
    /// Whether a host puts widgets into it.
    bool isContainer = false;
    /// The arguments behind the parent.
    QString (*arguments)(QWidget* widget) = nullptr;
    /// What no property tells, as calls. A '$' stands for the widget's name.
    QStringList (*calls)(QWidget* widget) = nullptr;
};

template <typename Widget>
QWidget* make(QWidget* parent)
{
    return new Widget(parent);
}

QString call(const char* function, const QStringList& arguments)
{
    return QStringLiteral("$->%1(%2);").arg(QLatin1String(function), arguments.join(QStringLiteral(", ")));
}

QString colorCode(const std::optional<QColor>& color)
{
    return color ? code(*color) : QStringLiteral("std::nullopt");
}

QStringList pickerCalls(const AbstractColorPicker* picker)
{
    if (qobject_cast<const PopupColorPicker*>(picker)) {
        return {QStringLiteral("#include <UiComponents/PopupColorPicker.h>"),
                call("setPicker", {QStringLiteral("new PopupColorPicker")})};
    }
    if (qobject_cast<const WidgetColorPicker*>(picker)) {
        return {QStringLiteral("#include <UiComponents/WidgetColorPicker.h>"),
                call("setPicker", {QStringLiteral("new WidgetColorPicker({$})")}),
                QStringLiteral("static_cast<WidgetColorPicker*>($->picker())->setTarget(parent);")};
    }
    return {};
}

QStringList buttonCalls(QWidget* widget)
{
    const auto* button = static_cast<ColorPickerButton*>(widget);
    QStringList calls = pickerCalls(button->picker());
    // A new one has several colours.
    if (button->color()) {
        calls.append(call("setColor", {code(*button->color())}));
    }
    return calls;
}

QString fieldArguments(QWidget* widget)
{
    return code(static_cast<ColorInputWidget*>(widget)->color().value_or(QColor()));
}

QStringList fieldCalls(QWidget* widget)
{
    return pickerCalls(widget->findChild<ColorPickerButton*>()->picker());
}

QString panelArguments(QWidget* widget)
{
    const auto buttons = widget->findChildren<QAbstractButton*>();
    return code(std::any_of(buttons.cbegin(), buttons.cend(), [](const QAbstractButton* button) {
        return button->property("nullColor").isValid();
    }));
}

QStringList panelCalls(QWidget* widget)
{
    const auto* panel = static_cast<ColorPickerWidget*>(widget);
    QStringList calls = {call("setCurrentColor", {colorCode(panel->currentColor())})};
    if (!panel->opacityAdjustmentAvailable()) {
        calls.append(call("setOpacityAdjustmentAvailable", {code(false)}));
    }
    return calls;
}

QStringList blendingCalls(QWidget* widget)
{
    const int mode = static_cast<ColorBlendingComboBox*>(widget)->currentBlendingMode();
    return {QStringLiteral("$->setCurrentIndex($->indexOf(static_cast<BlendingMode>(%1)));").arg(mode)};
}

QStringList widgetPickerCalls(QWidget* widget)
{
    const auto* button = static_cast<WidgetColorPickerButton*>(widget);
    QStringList calls;
    if (button->targetWidget()) {
        calls.append(call("setTargetWidget", {QStringLiteral("parent")}));
    }
    if (button->color().isValid()) {
        calls.append(call("setColor", {code(button->color())}));
    }
    return calls;
}

QString sliderArguments(QWidget* widget)
{
    const auto* box = widget->findChild<QSpinBox*>();
    return QStringLiteral("SliderInputWidget::Initializer{%1, %2}").arg(box->minimum()).arg(box->maximum());
}

QStringList sliderCalls(QWidget* widget)
{
    return {call("setValue", {code(static_cast<SliderInputWidget*>(widget)->value())})};
}

QString doubleSliderArguments(QWidget* widget)
{
    const auto* box = widget->findChild<QDoubleSpinBox*>();
    return QStringLiteral("DoubleSliderInputWidget::Initializer{%1, %2, %3}")
        .arg(code(box->minimum()), code(box->maximum()), code(box->decimals()));
}

QStringList doubleSliderCalls(QWidget* widget)
{
    return {call("setValue", {code(static_cast<DoubleSliderInputWidget*>(widget)->value())})};
}

QString selectorArguments(QWidget* widget)
{
    const auto boxes = widget->findChildren<QDoubleSpinBox*>();
    const auto *x = boxes.at(0), *y = boxes.at(1);
    return QStringLiteral("PointSelectorWidget::Initializer{%1, %2, %3, %4}")
        .arg(code(QPointF(x->minimum(), y->minimum())), code(QPointF(x->maximum(), y->maximum())),
             code(x->decimals()), code(y->decimals()));
}

QStringList selectorCalls(QWidget* widget)
{
    return {call("setValue", {code(static_cast<PointSelectorWidget*>(widget)->value())})};
}

QStringList itemsOf(const QAbstractItemModel* model)
{
    QStringList items;
    for (int row = 0; model && row < model->rowCount(); ++row) {
        items.append(model->index(row, 0).data().toString());
    }
    return items;
}

QStringList comboBoxCalls(QWidget* widget)
{
    auto* box = static_cast<OvComboBox*>(widget);
    const QStringList items = itemsOf(box->model());
    QStringList calls;
    if (!items.isEmpty()) {
        calls.append(call("addItems", {code(items)}));
        calls.append(call("setCurrentIndex", {code(box->currentIndex())}));
    }
    if (box->view()->objectName() == QLatin1String("tesselComboBoxView")) {
        calls += {QStringLiteral("#include <DesignElements/TesselComboBox.h>"),
                  QStringLiteral("Orvane::Tessel::convertComboBoxToTessel($);")};
    }
    return calls;
}

QStringList listCalls(QWidget* widget)
{
    const QStringList items = itemsOf(static_cast<QListView*>(widget)->model());
    return {QStringLiteral("#include <QStringListModel>"),
            call("setModel", {QStringLiteral("new QStringListModel(QStringList%1, $)").arg(code(items))})};
}

QString textOf(const QWidget* widget, const char* part, const char* property = "text")
{
    const auto* child = widget->findChild<QWidget*>(QLatin1String(part));
    return child ? child->property(property).toString() : QString();
}

QStringList pathCalls(QWidget* widget)
{
    return {call("setBrowseButtonTooltip", {code(textOf(widget, "pathBrowseButton", "toolTip"))}),
            call("setResetButtonTooltip", {code(textOf(widget, "pathResetButton", "toolTip"))}),
            call("setPath", {code(static_cast<PathSelectionWidget*>(widget)->path())})};
}

QStringList searchCalls(QWidget* widget)
{
    return {call("setTranslations", {code(textOf(widget, "searchIcon", "toolTip")),
                                     code(textOf(widget, "searchLineEdit", "toolTip")),
                                     code(textOf(widget, "clearSearchButton", "toolTip")),
                                     code(textOf(widget, "searchLineEdit", "placeholderText"))})};
}

/// The heading of a guide without the markup that makes it bold.
QString headingOf(const QWidget* guide)
{
    return QTextDocumentFragment::fromHtml(textOf(guide, "headerLabel")).toPlainText();
}

QStringList guideCalls(QWidget* widget)
{
    return {call("setInfo", {QStringLiteral("GuideInfo(%1, %2, %3, %4)")
                                 .arg(code(headingOf(widget)), code(textOf(widget, "descriptionLabel")),
                                      code(textOf(widget, "learnMoreLabel")),
                                      code(textOf(widget, "gifPixmapWidget", "moviePath")))})};
}

QStringList dialogGuideCalls(QWidget* widget)
{
    QStringList calls = {
        call("setInfo", {QStringLiteral("DialogGuideInfo{%1, %2, %3, %4, %5}")
                             .arg(code(headingOf(widget)), code(textOf(widget, "descriptionLabel")),
                                  code(textOf(widget, "mainButton")), code(textOf(widget, "secondaryButton")),
                                  code(textOf(widget, "gifPixmapWidget", "moviePath")))})};
    const auto isHidden = [widget](const char* part) {
        return widget->findChild<QWidget*>(QLatin1String(part))->isHidden();
    };
    if (isHidden("closeButton")) {
        calls.append(call("setCloseButtonVisible", {code(false)}));
    }
    if (isHidden("secondaryButton")) {
        calls.append(call("setSecondaryButtonVisible", {code(false)}));
    }
    return calls;
}

QStringList bubbleCalls(QWidget* widget)
{
    const auto* bubble = static_cast<PointingWidget*>(widget);
    const QPoint target = bubble->parentWidget()->mapFromGlobal(bubble->targetPoint());
    const auto side = enumeratorCode(QMetaEnum::fromType<PointingWidget::ArrowSide>(),
                                     static_cast<int>(bubble->arrowSide()));
    const auto position = enumeratorCode(QMetaEnum::fromType<PointingWidget::ArrowPosition>(),
                                         static_cast<int>(bubble->arrowPosition()));
    return {call("setArrowSide", {side, position}), call("setArrowOffset", {code(bubble->arrowOffset())}),
            QStringLiteral("$->pointTo($->parentWidget()->mapToGlobal(QPoint(%1, %2)));")
                .arg(target.x())
                .arg(target.y())};
}

const Kind kinds[] = {
    {"AdjustingListView", "UiComponents/AdjustingListView.h", &make<AdjustingListView>, false, nullptr,
     &listCalls},
    {"ColorBlendingComboBox", "UiComponents/ColorBlendingComboBox.h", &make<ColorBlendingComboBox>, false,
     nullptr, &blendingCalls},
    {"ColorInputWidget", "UiComponents/ColorInputWidget.h", &make<ColorInputWidget>, false, &fieldArguments,
     &fieldCalls},
    {"ColorPickerButton", "UiComponents/ColorPickerButton.h", &make<ColorPickerButton>, false, nullptr,
     &buttonCalls},
    {"ColorPickerWidget", "UiComponents/ColorPickerWidget.h", &make<ColorPickerWidget>, false,
     &panelArguments, &panelCalls},
    {"DialogGuideWidget", "UiComponents/DialogGuideWidget.h", &make<DialogGuideWidget>, false, nullptr,
     &dialogGuideCalls},
    {"DoubleSliderInputWidget", "UiComponents/DoubleSliderInputWidget.h", &make<DoubleSliderInputWidget>,
     false, &doubleSliderArguments, &doubleSliderCalls},
    {"GuideButton", "UiComponents/GuideButton.h", &make<GuideButton>},
    {"GuideWidget", "UiComponents/GuideWidget.h", &make<GuideWidget>, false, nullptr, &guideCalls},
    {"PathSelectionWidget", "UiComponents/PathSelectionWidget.h", &make<PathSelectionWidget>, false, nullptr,
     &pathCalls},
    {"PointSelectionPlane", "UiComponents/PointSelectionPlane.h", &make<PointSelectionPlane>},
    {"PointSelectorWidget", "UiComponents/PointSelectorWidget.h", &make<PointSelectorWidget>, false,
     &selectorArguments, &selectorCalls},
    {"SearchWidget", "UiComponents/SearchWidget.h", &make<SearchWidget>, false, nullptr, &searchCalls},
    {"SliderInputWidget", "UiComponents/SliderInputWidget.h", &make<SliderInputWidget>, false,
     &sliderArguments, &sliderCalls},
    {"WidgetColorPickerButton", "UiComponents/WidgetColorPickerButton.h", &make<WidgetColorPickerButton>,
     false, nullptr, &widgetPickerCalls},
    {"PointingWidget", "EditorWidgets/PointingWidget.h", &make<PointingWidget>, true, nullptr, &bubbleCalls},
    {"Orvane::Tessel::TesselElegantSlider", "DesignElements/TesselElegantSlider.h",
     &make<TesselElegantSlider>},
    {"Orvane::Tessel::TesselLineEdit", "DesignElements/TesselLineEdit.h", &make<TesselLineEdit>},
    {"OvComboBox", "WidgetToolkit/OvComboBox.h", &make<OvComboBox>, false, nullptr, &comboBoxCalls},
    {"OvCustomSlider", "WidgetToolkit/OvCustomSlider.h", &make<OvCustomSlider>},
    {"OvDoubleSlider", "WidgetToolkit/OvDoubleSlider.h", &make<OvDoubleSlider>},
    {"OvDoubleSpinBox", "WidgetToolkit/OvDoubleSpinBox.h", &make<OvDoubleSpinBox>},
    {"OvFrame", "WidgetToolkit/OvFrame.h", &make<OvFrame>, true},
    {"OvPixmapWidget", "WidgetToolkit/OvPixmapWidget.h", &make<OvPixmapWidget>},
    {"OvSpinBox", "WidgetToolkit/OvSpinBox.h", &make<OvSpinBox>},
    {"QCheckBox", "QCheckBox", &make<QCheckBox>},
    {"QFrame", "QFrame", &make<QFrame>, true},
    {"QGroupBox", "QGroupBox", &make<QGroupBox>, true},
    {"QLabel", "QLabel", &make<QLabel>},
    {"QLineEdit", "QLineEdit", &make<QLineEdit>},
    {"QListView", "QListView", &make<QListView>, false, nullptr, &listCalls},
    {"QListWidget", "QListWidget", &make<QListWidget>},
    {"QMainWindow", "QMainWindow", &make<QMainWindow>},
    {"QPlainTextEdit", "QPlainTextEdit", &make<QPlainTextEdit>},
    {"QPushButton", "QPushButton", &make<QPushButton>},
    {"QScrollArea", "QScrollArea", &make<QScrollArea>},
    {"QSlider", "QSlider", &make<QSlider>},
    {"QTableWidget", "QTableWidget", &make<QTableWidget>},
    {"QToolButton", "QToolButton", &make<QToolButton>},
    {"QWidget", "QWidget", &make<QWidget>, true},
};

/// The class as a host knows it. One has no meta-object of its own.
const char* publicName(const QWidget* widget, const QMetaObject* meta)
{
    return dynamic_cast<const AdjustingListView*>(widget) ? "AdjustingListView" : meta->className();
}

/// The nearest public class of @p widget.
const Kind& kindOf(const QWidget* widget)
{
    for (const QMetaObject* meta = widget->metaObject();; meta = meta->superClass()) {
        const char* const name = publicName(widget, meta);
        const auto* found = std::find_if(std::begin(kinds), std::end(kinds),
                                         [name](const Kind& kind) { return qstrcmp(kind.name, name) == 0; });
        if (found != std::end(kinds)) {
            return *found;
        }
    }
}

// What follows from other properties, from the layout and the sheet, or is the state of the moment.
const char* const leftOut =
    "geometry pos size minimumWidth minimumHeight maximumWidth maximumHeight font locale visible "
    "palette layoutDirection styleSheet sliderPosition currentText cursorPosition modified down "
    "modelColumn windowTitle accessibleDescription enabled windowModified";

// Properties without a setter of their own.
const char* const withoutSetter =
    "PlaceholderColor PlaceholderHoverColor PlaceholderDisabledColor popupOffset";

bool contains(const char* names, const char* name)
{
    return QByteArray(names).split(' ').contains(name);
}

// ---- The text ----

class Writer
{
public:
    explicit Writer(const Page* page)
        : m_page(page)
    {
    }

    QString write()
    {
        const auto cards = m_page->findChildren<QFrame*>(QStringLiteral("specimenCard"));
        for (const QFrame* card : cards) {
            if (card->property("twin") != QLatin1String("disabled")) {
                for (int i = 0; i < card->layout()->count(); ++i) {
                    QWidget* const widget = card->layout()->itemAt(i)->widget();
                    if (widget && widget->objectName() != QLatin1String("cardTitle") &&
                        widget->objectName() != QLatin1String("specimenCaption")) {
                        build(widget, QStringLiteral("parent"));
                    }
                }
            }
        }
        m_includes.removeDuplicates();
        m_includes.sort();
        return m_includes.join(QLatin1Char('\n')) +
               QStringLiteral("\n\nvoid %1(QWidget* parent)\n{\n").arg(name()) + m_lines.join(QString()) +
               QStringLiteral("}\n");
    }

private:
    QString name() const
    {
        QString name = QStringLiteral("build");
        const QStringList words = m_page->id().split(QLatin1Char('-'));
        for (const QString& word : words) {
            name += word.at(0).toUpper() + word.mid(1);
        }
        return name;
    }

    /// A new name for a variable of the class @p type.
    QString variable(const QString& type)
    {
        QString name = type.section(QStringLiteral("::"), -1);
        const bool isQt = name.startsWith(QLatin1Char('Q'));
        name = isQt ? name.mid(1) : name;
        name[0] = name.at(0).toLower();
        const int number = ++m_counts[name];
        return number == 1 ? name : name + QString::number(number);
    }

    void addLine(const QString& line)
    {
        if (line.startsWith(QLatin1Char('#'))) {
            m_includes.append(line);
        } else {
            m_lines.append(QStringLiteral("    ") + line + QLatin1Char('\n'));
        }
    }

    void addInclude(const QString& file) { m_includes.append(QStringLiteral("#include <%1>").arg(file)); }

    /// Builds @p widget, and what is in it, as a child of the variable @p parent. Without @p isNeeded it has
    /// a variable of its own only if lines follow that use it.
    void build(QWidget* widget, const QString& parent, bool isNeeded = false)
    {
        const Kind& kind = kindOf(widget);
        const QString type = QString::fromLatin1(kind.name);
        const QString own = QString::fromLatin1(publicName(widget, widget->metaObject()));
        const QString variableName = variable(type);
        m_names.insert(widget, variableName);
        addInclude(QString::fromLatin1(kind.include));
        if (own != type) {
            addLine(QStringLiteral("// In the gallery this is %1, a class of its own.").arg(own));
        }
        const QString arguments = kind.arguments ? QStringLiteral(", ") + kind.arguments(widget) : QString();
        const QString construction = QStringLiteral("new %1(%2%3);").arg(type, parent, arguments);
        const int place = m_lines.size();
        addLine(QStringLiteral("auto* %1 = %2").arg(variableName, construction));
        if (kind.calls) {
            addCalls(kind.calls(widget), variableName);
        }
        addProperties(widget, kind, variableName);
        if (kind.isContainer) {
            buildContent(widget, variableName);
        }
        const QVector<Page::CodeNote> notes = m_page->codeNotes();
        for (const Page::CodeNote& note : notes) {
            if (note.widget == widget) {
                addCalls(note.lines(), variableName);
            }
        }
        if (m_lines.size() == place + 1 && !isNeeded) {
            m_lines.last() = QStringLiteral("    ") + construction + QLatin1Char('\n');
        }
    }

    void addCalls(const QStringList& calls, const QString& variableName)
    {
        for (QString line : calls) {
            addLine(line.replace(QLatin1Char('$'), variableName));
        }
    }

    /// Sets what differs from a new widget in the same place.
    void addProperties(QWidget* widget, const Kind& kind, const QString& variableName)
    {
        const std::unique_ptr<QWidget> fresh(kind.make(widget->parentWidget()));
        const QString ownName = widget->objectName();
        if (!ownName.isEmpty() && ownName != fresh->objectName()) {
            addLine(QStringLiteral("%1->setObjectName(%2);").arg(variableName, code(ownName)));
        }
        // Before it is polished: the sheet selects by them.
        fresh->setObjectName(ownName);
        addDynamicProperties(widget, fresh.get(), kind, variableName);
        addProperty(widget, fresh.get(), "orientation", variableName);
        fresh->ensurePolished();
        widget->ensurePolished();
        const QMetaObject* const meta = fresh->metaObject();
        for (int i = 1; i < meta->propertyCount(); ++i) {
            const char* const name = meta->property(i).name();
            if (!isLeftOut(kind, name)) {
                addProperty(widget, fresh.get(), name, variableName);
            }
        }
        if (kind.isContainer) {
            addLayoutController(widget, fresh.get(), variableName);
        }
    }

    /// A controller that was installed in a widget which is none itself.
    void addLayoutController(const QWidget* widget, QWidget* fresh, const QString& variableName)
    {
        const auto children = widget->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        const auto found = std::find_if(children.cbegin(), children.cend(), [](const QWidget* child) {
            return qstrcmp(child->metaObject()->className(), "InstalledLayoutController") == 0;
        });
        if (found == children.cend()) {
            return;
        }
        addInclude(QStringLiteral("WidgetToolkit/LayoutController.h"));
        addInclude(QStringLiteral("WidgetToolkit/Util.h"));
        const QString controller = QStringLiteral("Util::installLayoutController(%1)").arg(variableName);
        addLine(controller + QLatin1Char(';'));
        auto* const freshOne = dynamic_cast<QWidget*>(Util::installLayoutController(fresh));
        freshOne->ensurePolished();
        const QVector<QMetaProperty> properties = ownProperties(freshOne);
        for (const QMetaProperty& property : properties) {
            addProperty(*found, freshOne, property.name(), controller);
        }
    }

    /// Sets the property @p name if @p fresh has another value, there too.
    void addProperty(const QWidget* widget, QWidget* fresh, const char* name, const QString& variableName)
    {
        const QMetaProperty property =
            fresh->metaObject()->property(fresh->metaObject()->indexOfProperty(name));
        const QVariant value = widget->property(name);
        const QString literal = property.isWritable() ? code(property, value) : QString();
        if (literal.isEmpty() || value == property.read(fresh)) {
            return;
        }
        property.write(fresh, value);
        const QString text = QString::fromLatin1(name);
        addLine(contains(withoutSetter, name)
                    ? QStringLiteral("%1->setProperty(\"%2\", %3);").arg(variableName, text, literal)
                    : QStringLiteral("%1->set%2(%3);")
                          .arg(variableName, text.at(0).toUpper() + text.mid(1), literal));
    }

    static bool isLeftOut(const Kind& kind, const char* property)
    {
        const auto is = [&](const char* type, const char* name) {
            return qstrcmp(kind.name, type) == 0 && qstrcmp(property, name) == 0;
        };
        return contains(leftOut, property) || is("OvDoubleSlider", "value") ||
               is("ColorBlendingComboBox", "currentIndex") || is("OvComboBox", "currentIndex");
    }

    /// Those of a component are its own affair.
    void addDynamicProperties(const QWidget* widget, QWidget* fresh, const Kind& kind,
                              const QString& variableName)
    {
        const QList<QByteArray> names = widget->dynamicPropertyNames();
        for (const QByteArray& name : names) {
            const QVariant value = widget->property(name.constData());
            const bool isHint = name == "styleHint";
            if (name.startsWith("_q_") || value == fresh->property(name.constData()) ||
                !(isHint || kind.name[0] == 'Q')) {
                continue;
            }
            fresh->setProperty(name.constData(), value);
            addInclude(QStringLiteral("WidgetToolkit/Util.h"));
            const QString literal =
                value.type() == QVariant::Bool ? code(value.toBool()) : code(value.toString());
            addLine(isHint ? QStringLiteral("Util::applyStyleHint(%1, %2);").arg(variableName, literal)
                           : QStringLiteral("Util::applyProperty(%1, \"%2\", %3);")
                                 .arg(variableName, QString::fromLatin1(name), literal));
        }
    }

    void buildContent(QWidget* widget, const QString& variableName)
    {
        QWidget* content = widget;
        QString contentName = variableName;
        if (const auto* bubble = qobject_cast<const PointingWidget*>(widget)) {
            content = bubble->contentFrame();
            contentName += QStringLiteral("->contentFrame()");
        }
        if (content->layout()) {
            buildLayout(content->layout(), contentName, contentName);
            return;
        }
        const auto children = content->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* child : children) {
            if (!child->isHidden() && child->objectName() != QLatin1String("highlightFrame")) {
                build(child, contentName);
            }
        }
    }

    /// Builds @p layout with the argument @p owner, and its widgets as children of @p parent.
    QString buildLayout(QLayout* layout, const QString& owner, const QString& parent)
    {
        const QString type = QString::fromLatin1(layout->metaObject()->className());
        QString variableName = variable(type);
        addInclude(
            type.startsWith(QLatin1Char('Q'))
                ? type
                : QStringLiteral("WidgetToolkit/%1.h")
                      .arg(type == QLatin1String("OvGridLayout") ? type : QStringLiteral("OvBoxLayout")));
        addLine(QStringLiteral("auto* %1 = new %2(%3);").arg(variableName, type, owner));
        const QMargins margins = layout->contentsMargins();
        if (type.startsWith(QLatin1Char('Q')) && !owner.isEmpty()) {
            addLine(QStringLiteral("%1->setContentsMargins(%2, %3, %4, %5);")
                        .arg(variableName)
                        .arg(margins.left())
                        .arg(margins.top())
                        .arg(margins.right())
                        .arg(margins.bottom()));
        }
        for (int i = 0; i < layout->count(); ++i) {
            addItem(layout, i, variableName, parent);
        }
        return variableName;
    }

    void addItem(QLayout* layout, int index, const QString& layoutName, const QString& parent)
    {
        QLayoutItem* const item = layout->itemAt(index);
        QString what;
        if (QWidget* const widget = item->widget()) {
            build(widget, parent, true);
            what = m_names.value(widget);
        } else if (QLayout* const inner = item->layout()) {
            what = buildLayout(inner, QString(), parent);
        }
        const QString function = item->layout() ? QStringLiteral("addLayout") : QStringLiteral("addWidget");
        const auto add = [&](const QString& name, const QStringList& arguments) {
            addLine(
                QStringLiteral("%1->%2(%3);").arg(layoutName, name, arguments.join(QStringLiteral(", "))));
        };
        QStringList place;
        if (item->alignment()) {
            const auto flags = QMetaEnum::fromType<Qt::Alignment>();
            place.append(enumeratorCode(flags, int(item->alignment())));
        }
        if (const auto* box = qobject_cast<QBoxLayout*>(layout)) {
            const int stretch = box->stretch(index);
            if (const QSpacerItem* const spacer = item->spacerItem()) {
                const bool isFixed = stretch == 0 && !spacer->expandingDirections();
                const QSize size = spacer->sizeHint();
                add(isFixed ? QStringLiteral("addSpacing") : QStringLiteral("addStretch"),
                    {code(isFixed ? qMax(size.width(), size.height()) : stretch)});
            } else {
                add(function,
                    QStringList{what} +
                        (stretch > 0 || !place.isEmpty() ? QStringList{code(stretch)} : QStringList()) +
                        place);
            }
        } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(index, &row, &column, &rows, &columns);
            if (!what.isEmpty()) {
                add(function, QStringList{what, code(row), code(column), code(rows), code(columns)} + place);
            }
        } else if (auto* form = qobject_cast<QFormLayout*>(layout)) {
            int row = 0;
            QFormLayout::ItemRole role = QFormLayout::FieldRole;
            form->getItemPosition(index, &row, &role);
            const QString roleName = enumeratorCode(QMetaEnum::fromType<QFormLayout::ItemRole>(), role);
            add(item->layout() ? QStringLiteral("setLayout") : QStringLiteral("setWidget"),
                {code(row), roleName, what});
        }
    }

    const Page* const m_page;
    QStringList m_includes;
    QStringList m_lines;
    QHash<QString, int> m_counts;
    QHash<const QWidget*, QString> m_names;
};

} // namespace

QString codeString(const QString& text)
{
    return code(text);
}

QString codeText(const Page* page)
{
    return Writer(page).write();
}
