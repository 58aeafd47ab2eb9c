#include "Components.h"

#include "Exceptions.h"
#include "FakeColorPicker.h"
#include "QmlFiles.h"
#include "World.h"

#include <DesignElements/TesselComboBox.h>
#include <DesignElements/TesselElegantSlider.h>
#include <DesignElements/TesselLineEdit.h>
#include <EditorWidgets/ColorHint.h>
#include <EditorWidgets/PointingWidget.h>
#include <EditorWidgets/Workaround.h>
#include <GuiHelper/HighlightFrame.h>
#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/ColorPickerButton.h>
#include <UiComponents/ColorPickerWidget.h>
#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/EditCommand.h>
#include <UiComponents/EditSession.h>
#include <UiComponents/GuideButton.h>
#include <UiComponents/GuideWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/Pipette.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/QuickContent.h>
#include <UiComponents/QuickDialog.h>
#include <UiComponents/ScreenColorSource.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>
#include <UiComponents/WidgetColorPicker.h>
#include <UiComponents/WidgetColorPickerButton.h>
#include <UiComponents/WidgetColorPickerStylingObject.h>
#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/OvDoubleSlider.h>
#include <WidgetToolkit/OvDoubleSpinBox.h>
#include <WidgetToolkit/OvGridLayout.h>
#include <WidgetToolkit/OvPixmapWidget.h>
#include <WidgetToolkit/OvSpinBox.h>
#include <WidgetToolkit/StyleHints.h>
#include <WidgetToolkit/Util.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QScrollArea>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QTimer>
#include <QUndoStack>

#include <algorithm>
#include <utility>

namespace {

template <typename T, typename Function>
Component::Call call(const char* name, Function function)
{
    return {name, [function](QObject* object, World& world) { function(*static_cast<T*>(object), world); }};
}

/// A host's cursor, for which a picker asks in the middle of its work.
class Cursor : public WidgetColorPickerStylingObject
{
public:
    Cursor(World& world, QObject* asker)
        : m_world(world)
        , m_asker(asker)
    {
    }

    QCursor pickingCursor() const override
    {
        m_world.callHost(m_asker);
        auto* const picker = qobject_cast<AbstractColorPicker*>(m_asker);
        if (picker && m_world.random.oneIn(8)) {
            picker->pick();
        }
        return m_world.random.value(QMetaType::QCursor).value<QCursor>();
    }

private:
    World& m_world;
    const QPointer<QObject> m_asker;
};

WidgetColorPickerStylingObject* makeCursor(World& world, QObject* asker)
{
    const auto cursor = std::make_shared<Cursor>(world, asker);
    world.lent.push_back(cursor);
    return world.random.oneIn(4) ? nullptr : cursor.get();
}

AbstractColorPicker* makeWidgetPicker(World& world)
{
    auto* picker = new WidgetColorPicker({world.anyPartWidget()});
    picker->setTarget(world.anyPartWidget());
    picker->setStylingObject(makeCursor(world, picker));
    world.others.append(picker);
    return picker;
}

/// A host's picker, which answers in any way and at any time.
AbstractColorPicker* makeFakePicker(World& world)
{
    auto* picker = new FakeColorPicker;
    world.others.append(picker);
    const QPointer<FakeColorPicker> alive = picker;
    picker->onPick = [&world, alive] {
        if (world.random.oneIn(3)) {
            world.runLoop();
        }
        for (int i = world.random.below(3); i > 0 && alive; --i) {
            alive->preview(world.random.optionalColor());
        }
        if (!alive || world.random.oneIn(4)) {
            return;
        }
        world.random.oneIn(5) ? alive->finishInSilence() : alive->finish(world.random.optionalColor());
    };
    return picker;
}

/// Mostly as those of the others in the window, with which a picker then shares its panel.
PopupColorPicker::Options panelOptions(World& world)
{
    PopupColorPicker::Options options;
    if (world.random.oneIn(3)) {
        options.nullColor = world.random.oneIn(2);
        options.opacity = world.random.oneIn(2);
        options.customColors = world.random.oneIn(2);
    }
    return options;
}

const Component& popupPicker()
{
    static const Component component{
        "PopupColorPicker",
        nullptr,
        {call<PopupColorPicker>("pick", [](auto& t, World&) { t.pick(); }),
         call<PopupColorPicker>("stop", [](auto& t, World&) { t.stop(); }),
         call<PopupColorPicker>("setColor", [](auto& t, World& w) { t.setColor(w.random.optionalColor()); }),
         call<PopupColorPicker>("setOptions", [](auto& t, World& w) { t.setOptions(panelOptions(w)); }),
         call<PopupColorPicker>("setPipette", [](auto& t, World& w) {
             t.setPipette(w.random.oneIn(3)   ? nullptr
                          : w.random.oneIn(2) ? makeWidgetPicker(w)
                                              : makeFakePicker(w));
         })}};
    return component;
}

AbstractColorPicker* makePicker(World& world)
{
    switch (world.random.below(4)) {
    case 0:
        return makeFakePicker(world);
    case 1:
        return makeWidgetPicker(world);
    default:
        break;
    }
    auto* picker = new PopupColorPicker(panelOptions(world));
    world.others.append(picker);
    world.add(picker, &popupPicker());
    if (world.random.oneIn(3)) {
        picker->setPipette(world.random.oneIn(2) ? makeWidgetPicker(world) : makeFakePicker(world));
    }
    return picker;
}

/// The host's way to the colours of the screen, whose answers come whenever it likes.
class Screen : public ScreenColorSource // clazy:exclude=missing-qobject-macro
{
public:
    QString unavailableReason() const override { return m_reason; }

    std::unique_ptr<QObject> pick(QWindow*, Answer answer) override
    {
        auto request = std::make_unique<QObject>();
        m_requests.append({request.get(), std::move(answer)});
        return request;
    }

    void answer(const Result& result)
    {
        const auto requests = std::exchange(m_requests, {});
        for (const auto& [request, answer] : requests) {
            if (request) {
                answer(result);
            }
        }
    }

    void setReason(const QString& reason)
    {
        m_reason = reason;
        Q_EMIT unavailableReasonChanged();
    }

private:
    QString m_reason;
    QVector<QPair<QPointer<QObject>, Answer>> m_requests;
};

const Component& screen()
{
    static const Component component{
        "ScreenColorSource",
        nullptr,
        {call<Screen>("answer",
                      [](auto& t, World& w) {
                          QColor color = w.random.color();
                          color = color.isValid() ? color : QColor(Qt::red);
                          t.answer({w.random.oneIn(3) ? QColor() : color, w.random.text()});
                      }),
         call<Screen>(
             "setReason",
             [](auto& t, World& w) { t.setReason(w.random.oneIn(2) ? w.random.text() : QString()); }),
         call<Screen>("install", [](auto& t, World& w) {
             ScreenColorSource::install(w.random.oneIn(2) ? nullptr : &t);
         })}};
    return component;
}

QVariant editValue(World& world, const QVariant& like)
{
    if (like.userType() == qMetaTypeId<std::optional<QColor>>()) {
        return QVariant::fromValue(world.random.optionalColor());
    }
    if (like.userType() == QMetaType::QPointF) {
        return QPointF{world.random.real(), world.random.real()};
    }
    return world.random.value(world.random.oneIn(8) ? world.random.below(QMetaType::User) : like.userType());
}

/// Does @p change as a host does it, who shows other values meanwhile.
void refresh(World& world, QWidget* panel, const std::function<void()>& change)
{
    if (!panel) {
        return;
    }
    const EditSession::Refresh refresh(panel);
    if (world.random.oneIn(4) && !Exceptions::forbidsLoop(world)) {
        world.runLoop();
    }
    change();
}

const Component& editSession()
{
    static const Component component{
        "EditSession",
        nullptr,
        {call<EditSession>("commit", [](auto& t, World&) { t.commit(); }),
         call<EditSession>("cancel", [](auto& t, World&) { t.cancel(); }),
         call<EditSession>("setMultiValue", [](auto& t, World& w) { t.setMultiValue(!w.random.oneIn(3)); }),
         call<EditSession>("setValue", [](auto& t, World& w) { t.setValue(editValue(w, t.value())); }),
         call<EditSession>("refresh", [](auto& t, World& w) {
             const QPointer<EditSession> session = &t;
             refresh(w, w.random.oneIn(2) ? t.field() : t.field()->window(), [&] {
                 if (session) {
                     session->setValue(editValue(w, session->value()));
                 }
             });
         })}};
    return component;
}

const Component& undoStack()
{
    static const Component component{"QUndoStack",
                                     nullptr,
                                     {call<QUndoStack>("setIndex",
                                                       [](auto& t, World& w) {
                                                           const QPointer<QUndoStack> stack = &t;
                                                           refresh(w, w.anyTop(), [&] {
                                                               if (stack) {
                                                                   stack->setIndex(
                                                                       w.random.below(stack->count() + 1));
                                                               }
                                                           });
                                                       }),
                                      call<QUndoStack>("undo", [](auto& t, World&) { t.undo(); }),
                                      call<QUndoStack>("redo", [](auto& t, World&) { t.redo(); }),
                                      call<QUndoStack>("clear", [](auto& t, World&) { t.clear(); })}};
    return component;
}

/// The edits of @p field as a host hears of them, for one selected thing or several.
void listenToEdits(World& world, QWidget* field)
{
    auto* session = new EditSession(field);
    world.add(session, &editSession());
    if (world.random.oneIn(2)) {
        return;
    }
    auto* stack = new QUndoStack;
    world.others.append(stack);
    world.add(stack, &undoStack());
    const auto values = std::make_shared<QVector<QVariant>>(world.random.between(0, 3));
    const QPointer<QWidget> alive = field;
    EditCommand::record(
        session, stack,
        [&world, alive] {
            world.callHost(alive);
            return world.random.text();
        },
        [&world, alive, values] {
            EditCommand::Targets targets;
            for (QVariant& value : *values) {
                targets.append({[values, &value] { return value; },
                                [&world, alive, values, &value](const QVariant& other) {
                                    value = other;
                                    world.callHost(alive);
                                }});
            }
            world.callHost(alive);
            return targets;
        });
}

QString picture(World& world)
{
    static const QString folder = QStringLiteral(UIC_SOURCE "/gallery/resources/guides/");
    return world.random.oneIn(3)
               ? world.random.path()
               : folder +
                     world.random.oneOf<QString>({QStringLiteral("trim.gif"), QStringLiteral("search.gif")});
}

std::unique_ptr<GuideInfo> guideInfo(World& world)
{
    Random& random = world.random;
    auto info = std::make_unique<GuideInfo>();
    info->title = random.text();
    info->description = random.text();
    info->learnMore = random.text();
    info->moviePath = picture(world);
    return info;
}

QAbstractItemModel* makeModel(World& world)
{
    auto* model = new QStandardItemModel;
    for (int i = world.random.below(30); i > 0; --i) {
        model->appendRow(new QStandardItem(world.random.text()));
    }
    if (world.random.oneIn(2)) {
        world.others.append(model);
        return model;
    }
    auto* proxy = new QSortFilterProxyModel;
    proxy->setSourceModel(model);
    proxy->sort(world.random.between(-1, 0));
    proxy->setFilterFixedString(world.random.oneIn(3) ? world.random.text() : QString());
    world.others.append(proxy);
    world.others.append(model);
    return proxy;
}

QAbstractItemModel* anyModel(World& world)
{
    for (const auto& object : qAsConst(world.others)) {
        if (auto* model = qobject_cast<QAbstractItemModel*>(object)) {
            return world.random.oneIn(4) ? nullptr : model;
        }
    }
    return makeModel(world);
}

/// A window of the host's QML, ended by whatever ends dialogs.
class SceneDialog : public Qml::QuickDialog
{
public:
    using QuickDialog::QuickDialog;
};

QString scene(World& world)
{
    static const QmlFiles files;
    static const std::vector<QString> scenes{
        files.file(QStringLiteral("keys.qml"),
                   QmlFiles::itemText(
                       QStringLiteral("width: 90; height: 60; focus: true; TextInput { focus: true }"))),
        files.file(
            QStringLiteral("grows.qml"),
            QmlFiles::itemText(QStringLiteral(
                "width: 50; height: 20; MouseArea { anchors.fill: parent; hoverEnabled: true;"
                "onPositionChanged: { parent.width = parent.width * 3 % 700; parent.height += 1 } }"))),
        files.file(QStringLiteral("clicks.qml"),
                   QmlFiles::itemText(
                       QStringLiteral("width: 200; height: 100; MouseArea { anchors.fill: parent;"
                                      "onClicked: typeof callback === 'undefined' || callback.accept() }"))),
        files.file(QStringLiteral("broken-syntax.qml"), QmlFiles::itemText(QStringLiteral("width: 5; }}"))),
        files.file(QStringLiteral("broken-script.qml"),
                   QmlFiles::itemText(
                       QStringLiteral("width: 9; height: 9; x: none.at.all; Component.onCompleted: oops()"))),
        files.file(QStringLiteral("broken-root.qml"),
                   QStringLiteral("import QtQuick.Window 2.15\nWindow { visible: true }")),
        files.path(),
        QStringLiteral("/none.qml"),
    };
    return world.random.oneOf(scenes);
}

template <typename T>
QObject* plain(World& world, QWidget* parent)
{
    static_cast<void>(world);
    return new T(parent);
}

std::vector<Component> makeTable()
{
    std::vector<Component> table;

    table.push_back(
        {"ColorPickerButton",
         [](World& world, QWidget* parent) {
             auto* button = new ColorPickerButton(parent);
             button->setPicker(makePicker(world));
             return button;
         },
         {call<ColorPickerButton>("setColor",
                                  [](auto& t, World& w) { t.setColor(w.random.optionalColor()); }),
          call<ColorPickerButton>("setPicker", [](auto& t, World& w) { t.setPicker(makePicker(w)); }),
          call<ColorPickerButton>("startPicking", [](auto& t, World&) { t.startPicking(); })}});
    table.push_back(
        {"ColorInputWidget",
         [](World& world, QWidget* parent) {
             auto* field = new ColorInputWidget(parent, world.random.color());
             if (!world.random.oneIn(3)) {
                 field->setPicker(makePicker(world));
             }
             return field;
         },
         {call<ColorInputWidget>("setColor", [](auto& t, World& w) { t.setColor(w.random.color()); }),
          call<ColorInputWidget>("setPicker", [](auto& t, World& w) { t.setPicker(makePicker(w)); })}});
    table.push_back(
        {"ColorPickerWidget",
         [](World& world, QWidget* parent) { return new ColorPickerWidget(parent, world.random.oneIn(2)); },
         {call<ColorPickerWidget>("setCurrentColor",
                                  [](auto& t, World& w) { t.setCurrentColor(w.random.optionalColor()); }),
          call<ColorPickerWidget>("setOpacityAdjustmentAvailable", [](auto& t, World& w) {
              t.setOpacityAdjustmentAvailable(w.random.oneIn(2));
          })}});
    table.push_back({"ColorBlendingComboBox", plain<ColorBlendingComboBox>, {}});
    table.push_back(
        {"AdjustingListView",
         [](World& world, QWidget* parent) {
             auto* view = new AdjustingListView(parent);
             view->setModel(makeModel(world));
             return view;
         },
         {call<AdjustingListView>("setLoadingFinished",
                                  [](auto& t, World& w) { t.setLoadingFinished(w.random.oneIn(2)); }),
          call<AdjustingListView>("setModel", [](auto& t, World& w) { t.setModel(anyModel(w)); })}});
    table.push_back(
        {"SliderInputWidget",
         [](World& world, QWidget* parent) {
             const int minimum = world.random.integer();
             return new SliderInputWidget(parent, {minimum, world.random.integer()});
         },
         {call<SliderInputWidget>("setValue", [](auto& t, World& w) { t.setValue(w.random.integer()); })}});
    table.push_back(
        {"DoubleSliderInputWidget",
         [](World& world, QWidget* parent) {
             const double minimum = world.random.real();
             const double maximum = world.random.real();
             return new DoubleSliderInputWidget(parent, {minimum, maximum, world.random.between(-3, 12)});
         },
         {call<DoubleSliderInputWidget>("setValue",
                                        [](auto& t, World& w) { t.setValue(w.random.real()); })}});
    const auto point = [](World& w) {
        const double x = w.random.real();
        return QPointF(x, w.random.real());
    };
    table.push_back(
        {"PointSelectionPlane",
         plain<PointSelectionPlane>,
         {call<PointSelectionPlane>("setLimits",
                                    [point](auto& t, World& w) {
                                        const QPointF corner = point(w);
                                        t.setLimits(QRectF(corner, point(w)));
                                    }),
          call<PointSelectionPlane>("setPoint", [point](auto& t, World& w) { t.setPoint(point(w)); })}});
    table.push_back(
        {"PointSelectorWidget",
         [point](World& world, QWidget* parent) {
             const QPointF minimum = point(world);
             const QPointF maximum = point(world);
             const int xDecimals = world.random.integer();
             return new PointSelectorWidget(parent,
                                            {minimum, maximum, xDecimals, world.random.between(-1, 9)});
         },
         {call<PointSelectorWidget>("setValue", [point](auto& t, World& w) { t.setValue(point(w)); })}});
    table.push_back(
        {"PathSelectionWidget",
         plain<PathSelectionWidget>,
         {call<PathSelectionWidget>("setPath", [](auto& t, World& w) { t.setPath(w.random.path()); }),
          call<PathSelectionWidget>("setDefaultPath",
                                    [](auto& t, World& w) {
                                        const QString path = w.random.path();
                                        t.setDefaultPath(path, w.random.text());
                                    }),
          call<PathSelectionWidget>("checkPath", [](auto& t, World&) { t.checkPath(); }),
          call<PathSelectionWidget>("setCheckPathFunc",
                                    [](auto& t, World& w) {
                                        const QPointer<PathSelectionWidget> field = &t;
                                        t.setCheckPathFunc([&w, field](const QString&) {
                                            // Within nothing but the call that asks.
                                            if (w.random.oneIn(3) && w.frames.size() == 1) {
                                                delete field;
                                            } else if (w.random.oneIn(3)) {
                                                w.runLoop();
                                            }
                                            return w.random.text();
                                        });
                                    }),
          call<PathSelectionWidget>("setErrorDisplayType",
                                    [](auto& t, World& w) {
                                        t.setErrorDisplayType(
                                            static_cast<PathSelectionWidget::ErrorDisplayType>(
                                                w.random.below(4)));
                                    }),
          call<PathSelectionWidget>(
              "showRequiredSpace",
              [](auto& t, World& w) { t.showRequiredSpace(w.random.oneIn(2), w.random.integer()); }),
          call<PathSelectionWidget>("showAvailableSpace", [](auto& t, World& w) {
              t.showAvailableSpace(w.random.oneIn(2), static_cast<qint64>(w.random.next()));
          })}});
    table.push_back({"SearchWidget",
                     plain<SearchWidget>,
                     {call<SearchWidget>("clear", [](auto& t, World&) { t.clear(); }),
                      call<SearchWidget>("setTranslations", [](auto& t, World& w) {
                          t.setTranslations(w.random.text(), QString(), w.random.text(), w.random.text());
                      })}});
    table.push_back({"GuideWidget",
                     [](World& world, QWidget* parent) { return new GuideWidget(*guideInfo(world), parent); },
                     {call<GuideWidget>("setInfo", [](auto& t, World& w) { t.setInfo(*guideInfo(w)); })}});
    table.push_back({"GuideButton",
                     [](World& world, QWidget* parent) {
                         auto* button = new GuideButton(parent);
                         button->setGuideInfo(guideInfo(world));
                         return button;
                     },
                     {call<GuideButton>("setGuideInfo", [](auto& t, World& w) {
                         t.setGuideInfo(w.random.oneIn(4) ? nullptr : guideInfo(w));
                     })}});
    const auto pointTo = [](auto& t, World& w) {
        t.pointTo(w.random.oneIn(4) ? QPoint(w.random.integer(), w.random.integer())
                                    : w.random.pointAround({800, 600}));
    };
    const auto setArrowSide = [](auto& t, World& w) {
        t.setArrowSide(static_cast<PointingWidget::ArrowSide>(w.random.below(5)),
                       static_cast<PointingWidget::ArrowPosition>(w.random.below(4)));
        t.setArrowOffset(w.random.integer());
    };
    const auto setFlags = [](auto& t, World& w) {
        if (qobject_cast<QSplitter*>(t.parentWidget())) {
            return; // see Actions::move()
        }
        t.setWindowFlags(w.random.oneOf<Qt::WindowFlags>(
            {Qt::Tool | Qt::FramelessWindowHint, Qt::Popup | Qt::FramelessWindowHint, Qt::Widget}));
    };
    table.push_back(
        {"DialogGuideWidget",
         plain<DialogGuideWidget>,
         {call<DialogGuideWidget>(
              "setInfo",
              [](auto& t, World& w) {
                  t.setInfo({w.random.text(), w.random.text(), w.random.text(), w.random.text(), picture(w)});
              }),
          call<DialogGuideWidget>("setCloseButtonVisible",
                                  [](auto& t, World& w) { t.setCloseButtonVisible(w.random.oneIn(2)); }),
          call<DialogGuideWidget>("setSecondaryButtonVisible",
                                  [](auto& t, World& w) { t.setSecondaryButtonVisible(w.random.oneIn(2)); }),
          call<DialogGuideWidget>("pointTo", pointTo),
          call<DialogGuideWidget>("setArrowSide", setArrowSide)}});
    table.push_back(
        {"PointingWidget",
         [](World& world, QWidget* parent) {
             auto* bubble = new PointingWidget(parent);
             auto* layout = new OvVBoxLayout(bubble->contentFrame());
             layout->addWidget(new QLabel(world.random.text()));
             return bubble;
         },
         {call<PointingWidget>("pointTo", pointTo), call<PointingWidget>("setArrowSide", setArrowSide),
          call<PointingWidget>("setWindowFlags", setFlags)}});
    table.push_back(
        {"WidgetColorPickerButton",
         [](World& world, QWidget* parent) {
             auto* button = new WidgetColorPickerButton(parent);
             button->setTargetWidget(world.anyPartWidget());
             button->setPickerStylingObject(makeCursor(world, button));
             return button;
         },
         {call<WidgetColorPickerButton>("setTargetWidget",
                                        [](auto& t, World& w) {
                                            t.setTargetWidget(w.random.oneIn(6) ? w.anyTop()
                                                                                : w.anyPartWidget());
                                        }),
          call<WidgetColorPickerButton>("startPicking", [](auto& t, World&) { t.startPicking(); }),
          call<WidgetColorPickerButton>("setColor",
                                        [](auto& t, World& w) { t.setColor(w.random.color()); })}});
    table.push_back({"Pipette",
                     [](World& world, QWidget* parent) {
                         auto* pipette = new Pipette(world.random.oneIn(2) ? parent : nullptr);
                         world.others.append(pipette);
                         return pipette;
                     },
                     {call<Pipette>("startPicking", [](auto& t, World&) { t.startPicking(); }),
                      call<Pipette>("stopPicking", [](auto& t, World&) { t.stopPicking(); })}});
    table.push_back({"QuickContent",
                     [](World& world, QWidget* parent) {
                         auto* content = new Qml::QuickContent;
                         world.others.append(content);
                         content->load(scene(world));
                         // A splitter shows at once what becomes its child by setParent(), and Qt then takes
                         // the scene's OpenGL context and goes on using it.
                         if (auto* const splitter = qobject_cast<QSplitter*>(parent)) {
                             splitter->addWidget(content->getUiContent());
                         } else {
                             content->getUiContent()->setParent(parent);
                         }
                         return content;
                     },
                     {call<Qml::QuickContent>("load", [](auto& t, World& w) { t.load(scene(w)); })}});
    table.push_back({"QuickDialog",
                     [](World& world, QWidget* parent) {
                         auto* dialog = new SceneDialog(parent);
                         dialog->setQmlPath(scene(world));
                         return dialog;
                     },
                     {call<SceneDialog>("exec", [](auto& t, World&) { t.exec(); })}});
    table.push_back({"OvComboBox",
                     [](World& world, QWidget* parent) {
                         auto* box = new OvComboBox(parent);
                         box->setModel(makeModel(world));
                         if (world.random.oneIn(2)) {
                             Orvane::Tessel::convertComboBoxToTessel(box);
                         }
                         return box;
                     },
                     {call<OvComboBox>("setModel",
                                       [](auto& t, World& w) {
                                           if (auto* model = anyModel(w)) {
                                               t.setModel(model);
                                           }
                                       }),
                      call<OvComboBox>("showPopup", [](auto& t, World&) { t.showPopup(); }),
                      call<OvComboBox>("hidePopup", [](auto& t, World&) { t.hidePopup(); })}});
    table.push_back({"OvSpinBox", plain<OvSpinBox>, {}});
    table.push_back({"OvDoubleSpinBox", plain<OvDoubleSpinBox>, {}});
    table.push_back({"OvCustomSlider", plain<OvCustomSlider>, {}});
    table.push_back({"TesselElegantSlider", plain<Orvane::Tessel::TesselElegantSlider>, {}});
    table.push_back({"OvDoubleSlider",
                     [](World& world, QWidget* parent) {
                         auto* slider = new OvDoubleSlider(parent);
                         if (world.random.oneIn(2)) {
                             auto* box = new OvDoubleSpinBox(parent);
                             if (!parent) {
                                 world.addTop(box);
                             }
                             world.add(box, nullptr);
                             Util::bindWidgets(slider, box);
                         }
                         return slider;
                     },
                     {}});
    table.push_back({"TesselLineEdit", plain<Orvane::Tessel::TesselLineEdit>, {}});
    table.push_back({"OvPixmapWidget",
                     [](World& world, QWidget* parent) {
                         auto* widget = new OvPixmapWidget(parent);
                         widget->setMoviePath(picture(world));
                         return widget;
                     },
                     {call<OvPixmapWidget>("movie", [](auto& t, World& w) {
                         if (t.movie()) {
                             w.random.oneIn(2) ? t.movie()->start() : t.movie()->stop();
                         }
                     })}});
    table.push_back({"HighlightFrame",
                     [](World& world, QWidget*) {
                         auto* frame = new Orvane::Gui::HighlightFrame(world.anyPartWidget());
                         world.others.append(frame);
                         return frame;
                     },
                     {}});
    return table;
}

QWidget* makeTop(World& world)
{
    switch (world.random.below(5)) {
    case 0:
        return new QDialog;
    case 1: {
        auto* area = new QScrollArea;
        area->setWidgetResizable(true);
        area->setWidget(new QWidget);
        return area;
    }
    case 2:
        return new QSplitter;
    case 3:
        return new OvFrame;
    default:
        return new QWidget;
    }
}

QWidget* contentOf(QWidget* top)
{
    auto* area = qobject_cast<QScrollArea*>(top);
    return area ? area->widget() : top;
}

void dress(World& world, QWidget* widget)
{
    Random& random = world.random;
    switch (random.below(8)) {
    case 0:
        ColorHint::applyColorHint(widget, random.oneIn(2) ? QStringLiteral("INPUT_LIGHT") : random.text());
        break;
    case 1:
        widget->setProperty("roundedEdges", true);
        Workaround::Ui::apply(widget);
        break;
    case 2:
        Util::installLayoutController(widget);
        break;
    case 3:
        Util::applyStyleHint(widget, random.text());
        break;
    default:
        break;
    }
}

} // namespace

const std::vector<Component>& Components::all()
{
    static const std::vector<Component> table = makeTable();
    return table;
}

void Components::build(World& world)
{
    Random& random = world.random;
    for (int i = random.between(1, 2); i > 0; --i) {
        QWidget* const top = makeTop(world);
        world.addTop(top);
        QWidget* const content = contentOf(top);
        QLayout* layout = nullptr;
        if (!qobject_cast<QSplitter*>(top) && !random.oneIn(4)) {
            layout = random.oneIn(2) ? static_cast<QLayout*>(new OvVBoxLayout(content))
                                     : new OvGridLayout(content);
        }
        for (int j = random.between(1, 4); j > 0; --j) {
            QWidget* const widget = make(world, random.oneIn(8) ? nullptr : content);
            if (layout && widget) {
                layout->addWidget(widget);
            }
        }
        if (!random.oneIn(8)) {
            top->show();
        }
    }
    if (random.oneIn(4)) {
        auto* source = new Screen;
        world.others.append(source);
        world.add(source, &screen());
        ScreenColorSource::install(source);
    }
}

QWidget* Components::make(World& world, QWidget* parent)
{
    const auto& component =
        all()[static_cast<std::size_t>(world.random.below(static_cast<int>(all().size())))];
    QObject* const object = component.make(world, parent);
    world.add(object, &component);
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) {
        return nullptr;
    }
    dress(world, widget);
    if (world.random.oneIn(2)) {
        listenToEdits(world, widget);
    }
    if (!parent) {
        world.addTop(widget);
        widget->setAttribute(Qt::WA_DeleteOnClose, world.random.oneIn(4));
        return nullptr;
    }
    return widget->isWindow() ? nullptr : widget;
}

void Components::takeInPanels(World& world)
{
    static const auto found = std::find_if(all().begin(), all().end(), [](const Component& component) {
        return QByteArray(component.name) == "ColorPickerWidget";
    });
    if (const QWidget* const popup = QApplication::activePopupWidget()) {
        const auto panels = popup->findChildren<ColorPickerWidget*>();
        for (ColorPickerWidget* panel : panels) {
            if (!world.isPart(panel)) {
                world.add(panel, &*found);
            }
        }
    }
}
