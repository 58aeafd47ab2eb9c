#include "Customization.h"

#include "BoldText.h"

#include <QLocale>

QString Customization::localeDependedBoldText(const QString& title)
{
    return BoldText::label(title, BoldText::suits(QLocale().script()) && BoldText::suits(title));
}
