#include "SwitchBar.h"

#include "LanguageController.h"
#include "StyleController.h"

#include <WidgetToolkit/OvComboBox.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace {

// The id of the button behind the built-in styles.
const int fileStyle = StyleController::builtInStyles().size();

constexpr double scales[] = {1.0, 1.25, 1.5, 2.0};

} // namespace

SwitchBar::SwitchBar(QWidget* parent)
    : QToolBar(parent)
    , m_styles(new QButtonGroup(this))
    , m_directions(new QButtonGroup(this))
    , m_languages(new OvComboBox(this))
    , m_scales(new OvComboBox(this))
    , m_name(new QLabel(QStringLiteral("UiComponents"), this))
    , m_styleLabel(new QLabel(this))
    , m_languageLabel(new QLabel(this))
    , m_directionLabel(new QLabel(this))
    , m_scaleLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("switchBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    m_name->setObjectName(QStringLiteral("applicationName"));
    QFont nameFont = m_name->font();
    nameFont.setBold(true);
    m_name->setFont(nameFont);

    auto* gap = new QWidget(this);
    gap->setObjectName(QStringLiteral("switchBarGap"));
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    addWidget(m_name);
    addWidget(gap);
    addWidget(makeGroup("styleSwitch", m_styleLabel, makeSegments(m_styles, fileStyle + 1)));
    addWidget(makeGroup("languageSwitch", m_languageLabel, m_languages));
    addWidget(makeGroup("directionSwitch", m_directionLabel, makeSegments(m_directions, 2)));
    addWidget(makeGroup("scaleSwitch", m_scaleLabel, m_scales));

    m_languages->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const QStringList codes = LanguageController::languages();
    for (const QString& code : codes) {
        m_languages->addItem(LanguageController::nativeName(code), code);
    }
    for (const double scale : scales) {
        m_scales->addItem(QStringLiteral("%1×").arg(scale), scale);
    }

    connect(m_styles, &QButtonGroup::idClicked, this, [this](int id) {
        if (id == fileStyle) {
            Q_EMIT styleFileRequested();
        } else {
            Q_EMIT styleChosen(StyleController::builtInStyles().at(id));
        }
    });
    connect(m_directions, &QButtonGroup::idClicked, this,
            [this](int id) { Q_EMIT directionChosen(static_cast<Qt::LayoutDirection>(id)); });
    connect(m_languages, QOverload<int>::of(&OvComboBox::activated), this,
            [this](int index) { Q_EMIT languageChosen(m_languages->itemData(index).toString()); });
    connect(m_scales, QOverload<int>::of(&OvComboBox::activated), this,
            [this](int index) { Q_EMIT scaleChosen(m_scales->itemData(index).toDouble()); });
    retranslate();
}

SwitchBar::~SwitchBar() = default;

void SwitchBar::setStyleName(const QString& style)
{
    const int builtIn = StyleController::builtInStyles().indexOf(style);
    QAbstractButton* const fileButton = m_styles->button(fileStyle);
    fileButton->setToolTip(builtIn < 0 ? style
                                       : tr("A style sheet of your own that reloads when you save it"));
    m_styles->button(builtIn < 0 ? fileStyle : builtIn)->setChecked(true);
}

void SwitchBar::setLanguage(const QString& code)
{
    m_languages->setCurrentIndex(m_languages->findData(code));
}

void SwitchBar::setDirection(Qt::LayoutDirection direction)
{
    m_directions->button(direction)->setChecked(true);
}

void SwitchBar::setScale(double scale)
{
    // The environment may have another factor: then none is current.
    m_scales->setCurrentIndex(m_scales->findData(scale));
}

void SwitchBar::retranslate()
{
    m_styleLabel->setText(tr("Style"));
    m_languageLabel->setText(tr("Language"));
    m_directionLabel->setText(tr("Direction"));
    m_scaleLabel->setText(tr("Scale"));
    m_languages->setAccessibleName(m_languageLabel->text());
    m_scales->setAccessibleName(m_scaleLabel->text());
    m_scales->setToolTip(tr("Restarts the gallery on the same page"));

    const QStringList styleTexts = {tr("Dark"), tr("Light"), tr("High contrast"), tr("None"), tr("File…")};
    for (int id = 0; id < styleTexts.size(); ++id) {
        m_styles->button(id)->setText(styleTexts.at(id));
    }
    m_directions->button(Qt::LeftToRight)->setText(QStringLiteral("LTR"));
    m_directions->button(Qt::LeftToRight)->setToolTip(tr("Left to right"));
    m_directions->button(Qt::RightToLeft)->setText(QStringLiteral("RTL"));
    m_directions->button(Qt::RightToLeft)->setToolTip(tr("Right to left"));
}

QFrame* SwitchBar::makeGroup(const char* name, QLabel* label, QWidget* control)
{
    auto* group = new QFrame(this);
    group->setObjectName(QString::fromUtf8(name));
    label->setObjectName(QStringLiteral("switchLabel"));
    label->setBuddy(control);
    auto* layout = new QHBoxLayout(group);
    layout->addWidget(label);
    layout->addWidget(control);
    return group;
}

QFrame* SwitchBar::makeSegments(QButtonGroup* buttons, int count)
{
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("segments"));
    auto* layout = new QHBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int id = 0; id < count; ++id) {
        auto* button = new QToolButton(frame);
        button->setCheckable(true);
        button->setProperty("segment", id == 0           ? QStringLiteral("first")
                                       : id == count - 1 ? QStringLiteral("last")
                                                         : QStringLiteral("middle"));
        button->setFocusPolicy(Qt::StrongFocus);
        buttons->addButton(button, id);
        layout->addWidget(button);
    }
    return frame;
}
