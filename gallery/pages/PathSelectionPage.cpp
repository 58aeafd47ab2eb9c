#include "PathSelectionPage.h"

#include "../FolderBrowser.h"
#include "../PropertyPanel.h"
#include "../SignalLogView.h"

#include <UiComponents/PathSelectionWidget.h>

#include <QDir>

namespace {

constexpr qint64 Megabyte = 1'048'576;
constexpr int RequiredMegabytes = 700;
constexpr int MostMegabytes = 10'000'000;
constexpr int MegabytesInPictures = 213'000;

PathSelectionWidget* makePlainField(QWidget* parent)
{
    auto* field = new PathSelectionWidget(parent);
    field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    field->setBrowseButtonTooltip(PathSelectionPage::tr("Choose a folder"));
    field->setResetButtonTooltip(PathSelectionPage::tr("Back to the home folder"));
    return field;
}

/// With a default folder and the space on its disk.
PathSelectionWidget* makeField(QWidget* parent)
{
    PathSelectionWidget* field = makePlainField(parent);
    field->setDefaultPath(QDir::homePath(), PathSelectionPage::tr("Home folder"));
    field->showRequiredSpace(true, RequiredMegabytes * Megabyte);
    field->showAvailableSpace(true, -1);
    connectToDisk(field);
    field->setPath(QDir::homePath());
    return field;
}

QString refuseHiddenFolders(const QString& path)
{
    return QDir(path).dirName().startsWith(QLatin1Char('.'))
               ? PathSelectionPage::tr("Nobody would find this folder again: %1").arg(path)
               : QString();
}

} // namespace

PageInfo PathSelectionPage::info()
{
    return {QStringLiteral("path-selection"),
            tr("Folder field"),
            PageGroup::Inputs,
            {tr("path"), tr("browse"), tr("directory"), tr("disk"), tr("error")},
            {QStringLiteral("PathSelectionWidget")},
            &createPage<PathSelectionPage>};
}

PathSelectionPage::PathSelectionPage(QWidget* parent)
    : Page(
          info(),
          tr("A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a "
             "second, and looks at the disk only when it is told to check the path. Here the host opens Qt's "
             "folder dialog and shows the space that is free where the path is."),
          parent)
    , m_fields(addTwins<PathSelectionWidget>(tr("With a default folder and space on its disk"), &makeField))
    , m_plainFields(
          addTwins<PathSelectionWidget>(tr("A relative path, with its error below"), &makePlainField))
{
    m_plainFields.each([](PathSelectionWidget* field) {
        field->setErrorDisplayType(PathSelectionWidget::Label);
        connectToDisk(field);
        field->setPath(QStringLiteral("renders"));
    });
    const auto fields = m_fields;
    const auto all = {m_fields, m_plainFields};
    const auto check = [this](const Twins<PathSelectionWidget>& twins, const QString& name) {
        if (twins.enabled) {
            const bool isGood = twins.enabled->checkPath();
            signalLog()->addLine(QStringLiteral("%1.checkPath() = %2")
                                     .arg(name, isGood ? QStringLiteral("true") : QStringLiteral("false")));
        }
    };

    properties()->addHeading(QStringLiteral("checkPath()"));
    properties()->addAction(tr("Check the upper field"), [this, check] { check(m_fields, tr("upper")); });
    properties()->addAction(tr("Check the lower field"),
                            [this, check] { check(m_plainFields, tr("lower")); });
    properties()->addChoice(tr("The upper field's error"), {tr("nowhere"), tr("tool tip"), tr("label")},
                            PathSelectionWidget::Tooltip, [fields](int type) {
                                fields.each([type](PathSelectionWidget* field) {
                                    field->setErrorDisplayType(
                                        static_cast<PathSelectionWidget::ErrorDisplayType>(type));
                                });
                            });
    properties()->addSwitch(tr("Refuse hidden folders instead"), false, [all](bool on) {
        for (const auto& twins : all) {
            twins.each([on](PathSelectionWidget* field) {
                field->setCheckPathFunc(on ? &refuseHiddenFolders : std::function<QString(const QString&)>());
            });
        }
    });
    properties()->addHeading(tr("The upper field"));
    properties()->addText(tr("Path"), QString(), [fields](const QString& path) {
        fields.each([&path](PathSelectionWidget* field) { field->setPath(path); });
    });
    properties()->addText(tr("Default path's text"), tr("Home folder"), [fields](const QString& text) {
        fields.each([&text](PathSelectionWidget* field) { field->setDefaultPath(QDir::homePath(), text); });
    });
    properties()->addNumber(tr("Required megabytes"), -1, MostMegabytes, RequiredMegabytes,
                            [fields](int megabytes) {
                                fields.each([megabytes](PathSelectionWidget* field) {
                                    field->showRequiredSpace(true, megabytes * Megabyte);
                                });
                            });
    signalLog()->watch(m_fields.enabled, QStringLiteral("upper"));
    signalLog()->watch(m_plainFields.enabled, QStringLiteral("lower"));
    describeStyling(m_fields.enabled,
                    tr("A frame around a line edit and its buttons, which carries the border, the hint "
                       "\"error\" and, from the first time that the line edit gets the keyboard, "
                       "\"focusHint\"; figures above it and a message below it."));
}

void PathSelectionPage::prepareForPicture()
{
    m_fields.each(
        [](PathSelectionWidget* field) { field->showAvailableSpace(true, MegabytesInPictures * Megabyte); });
    m_plainFields.each([](PathSelectionWidget* field) {
        field->showAvailableSpace(false, -1);
        field->checkPath();
    });
}
