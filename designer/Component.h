#pragma once

#include <QObject>
#include <QSize>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// What Qt Designer and QUiLoader are told of one widget.
struct ComponentInfo
{
    const char* library; ///< the folder of its header
    const char* name;    ///< of its class, with namespaces
    const char* group;   ///< in the widget box; null for one that is no part of a form, and only loaded
    QSize size;          ///< when it is dropped; none for one that its parts size
    const char* toolTip;
    const char* whatsThis;
    QWidget* (*make)(QWidget* parent);
    /// Gives a widget that would be empty something to show, in Designer only.
    void (*fill)(QWidget* widget) = nullptr;
    /// What a form starts with besides the size, as in its file.
    const char* properties = "";
};

/// One widget in Qt Designer, and for QUiLoader.
class Component : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    Component(const ComponentInfo& info, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;
    QWidget* createWidget(QWidget* parent) override;

    /// Called by Designer, never by a loader.
    void initialize(QDesignerFormEditorInterface* core) override;
    bool isInitialized() const override;

private:
    /// The name without namespaces.
    QString shortName() const;

    const ComponentInfo m_info;
    bool m_isInDesigner = false;
};
