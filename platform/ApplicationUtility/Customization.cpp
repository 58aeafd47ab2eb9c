#include "Customization.h"

#include "CustomizationText.h"

#include <QLocale>

QString Customization::localeDependedBoldText(const QString& title)
{
    return CustomizationText::label(title, CustomizationText::suits(QLocale().script()) &&
                                               CustomizationText::suits(title));
}
