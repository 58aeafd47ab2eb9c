#include "ParameterPanel.h"

#include "FolderBrowser.h"

#include <UiComponents/AdjustingListView.h>
#include <UiComponents/ColorBlendingComboBox.h>
#include <UiComponents/ColorInputWidget.h>
#include <UiComponents/DoubleSliderInputWidget.h>
#include <UiComponents/PathSelectionWidget.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/PointSelectorWidget.h>
#include <UiComponents/PopupColorPicker.h>
#include <UiComponents/SearchWidget.h>
#include <UiComponents/SliderInputWidget.h>

#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QPointF>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

constexpr SliderInputWidget::Initializer opacityRange{0, 100};
constexpr SliderInputWidget::Initializer rotationRange{-180, 180};
constexpr DoubleSliderInputWidget::Initializer scaleRange{0.1, 400.0, 1};
constexpr double edge = 1.0;
constexpr int positionDecimals = 2;
constexpr int planeSize = 96;
const QColor firstTint(226, 180, 60);

} // namespace

ParameterPanel::ParameterPanel(QWidget* parent)
    : QWidget(parent)
    , m_rows(new QFormLayout)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* search = new SearchWidget(this);
    search->setTranslations(tr("Search"), tr("Part of a parameter's name"), tr("Clear the search"),
                            tr("Search parameters"));
    connect(search, &SearchWidget::textChanged, this, &ParameterPanel::filter);
    m_rows->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(search);
    layout->addLayout(m_rows);
    addTransform();
    addLook();
    addFiles();
}

ParameterPanel::~ParameterPanel() = default;

void ParameterPanel::filter(const QString& text)
{
    for (const Row& row : qAsConst(m_all)) {
        const bool isWanted = row.label->text().contains(text, Qt::CaseInsensitive);
        row.label->setVisible(isWanted);
        row.field->setVisible(isWanted);
    }
}

void ParameterPanel::addRow(const QString& name, QWidget* field)
{
    auto* label = new QLabel(name, this);
    label->setBuddy(field);
    m_rows->addRow(label, field);
    m_all.append({label, field});
}

void ParameterPanel::addTransform()
{
    auto* position =
        new PointSelectorWidget(this, {{-edge, -edge}, {edge, edge}, positionDecimals, positionDecimals});
    position->findChild<PointSelectionPlane*>()->setMinimumSize(planeSize, planeSize);
    position->setValue({0, 0});
    const QString positionName = tr("Position");
    connect(position, &PointSelectorWidget::valueChanged, this, [this, positionName](const QPointF& point) {
        Q_EMIT parameterChanged(positionName, QStringLiteral("%1, %2").arg(point.x()).arg(point.y()));
    });
    addRow(positionName, position);

    auto* scale = new DoubleSliderInputWidget(this, scaleRange);
    scale->setValue(100);
    const QString scaleName = tr("Scale");
    connect(scale, &DoubleSliderInputWidget::valueChanged, this,
            [this, scaleName](double value) { Q_EMIT parameterChanged(scaleName, QString::number(value)); });
    addRow(scaleName, scale);

    const auto addWhole = [this](const QString& name, const SliderInputWidget::Initializer& range,
                                 int start) {
        auto* field = new SliderInputWidget(this, range);
        field->setValue(start);
        connect(field, &SliderInputWidget::valueChanged, this,
                [this, name](int value) { Q_EMIT parameterChanged(name, QString::number(value)); });
        addRow(name, field);
    };
    addWhole(tr("Rotation"), rotationRange, 0);
    addWhole(tr("Opacity"), opacityRange, opacityRange.maximum);
}

void ParameterPanel::addLook()
{
    auto* blending = new ColorBlendingComboBox(this);
    const QString blendingName = tr("Blending");
    connect(blending, &ColorBlendingComboBox::blendingModeChanged, this, [this, blending, blendingName] {
        Q_EMIT parameterChanged(blendingName, blending->currentText());
    });
    addRow(blendingName, blending);

    auto* tint = new ColorInputWidget(this, firstTint);
    tint->setPicker(new PopupColorPicker);
    const QString tintName = tr("Tint");
    connect(tint, &ColorInputWidget::colorChanged, this,
            [this, tintName](const QColor& color) { Q_EMIT parameterChanged(tintName, color.name()); });
    addRow(tintName, tint);
}

void ParameterPanel::addFiles()
{
    m_folder = new PathSelectionWidget(this);
    m_folder->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_folder->setBrowseButtonTooltip(tr("Choose a folder"));
    m_folder->setResetButtonTooltip(tr("Back to the home folder"));
    m_folder->setDefaultPath(QDir::homePath(), tr("Home folder"));
    m_folder->setPath(QDir::homePath());
    connectToDisk(m_folder);
    const QString folderName = tr("Proxies");
    connect(m_folder, &PathSelectionWidget::pathChanged, this,
            [this, folderName](const QString& path) { Q_EMIT parameterChanged(folderName, path); });
    addRow(folderName, m_folder);

    auto* effects = new AdjustingListView(this);
    effects->setModel(new QStringListModel({tr("Stabilise"), tr("Sharpen"), tr("Film grain")}, effects));
    effects->setEditTriggers(QAbstractItemView::NoEditTriggers);
    effects->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    effects->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    // Shows all effects at once: the panel scrolls.
    effects->setLoadingFinished(false);
    const QString effectsName = tr("Effects");
    // Qt asks no label for the name of a list.
    effects->setAccessibleName(effectsName);
    addRow(effectsName, effects);
}
