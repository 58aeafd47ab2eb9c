#include "OvBoxLayout.h"
#include "OvPixmapWidget.h"
#include "Util.h"

#include <QVariant>

OvPixmapWidget::OvPixmapWidget(QWidget* parent, Qt::WindowFlags flags)
    : QFrame(parent, flags)
{
}

OvPixmapWidget::~OvPixmapWidget() = default;

void OvPixmapWidget::setMoviePath(const QString&) {}

QMovie* OvPixmapWidget::movie() const
{
    return nullptr;
}

QString Util::Details::removeClassMemberPrefix(const char* memberName)
{
    return QString::fromLatin1(memberName).remove(QStringLiteral("m_"));
}
