#include "Component.h"

#include <QIcon>
#include <QWidget>

Component::Component(const ComponentInfo& info, QObject* parent)
    : QObject(parent)
    , m_info(info)
{
}

QString Component::name() const
{
    return QString::fromLatin1(m_info.name);
}

QString Component::group() const
{
    return QString::fromLatin1(m_info.group);
}

QString Component::toolTip() const
{
    return QString::fromUtf8(m_info.toolTip);
}

QString Component::whatsThis() const
{
    return QString::fromUtf8(m_info.whatsThis);
}

QString Component::includeFile() const
{
    return QStringLiteral("%1/%2.h").arg(QLatin1String(m_info.library), shortName());
}

QIcon Component::icon() const
{
    return QIcon(QStringLiteral(":/uicomponents/designer/%1.svg").arg(shortName()));
}

bool Component::isContainer() const
{
    return shortName() == QLatin1String("OvFrame");
}

QString Component::domXml() const
{
    if (!m_info.group) {
        return {};
    }
    QString objectName = shortName();
    objectName[0] = objectName.at(0).toLower();
    QString properties = QString::fromLatin1(m_info.properties);
    if (m_info.size.isValid()) {
        properties += QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%1</width>"
                                     "<height>%2</height></rect></property>")
                          .arg(m_info.size.width())
                          .arg(m_info.size.height());
    }
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget></ui>")
        .arg(name(), objectName, properties);
}

QWidget* Component::createWidget(QWidget* parent)
{
    QWidget* const widget = m_info.make(parent);
    if (m_isInDesigner && m_info.fill) {
        m_info.fill(widget);
    }
    return widget;
}

void Component::initialize(QDesignerFormEditorInterface* /*core*/)
{
    m_isInDesigner = true;
}

bool Component::isInitialized() const
{
    return m_isInDesigner;
}

QString Component::shortName() const
{
    return name().section(QStringLiteral("::"), -1);
}
