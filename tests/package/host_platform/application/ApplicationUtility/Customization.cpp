#include "Customization.h"

QString Customization::localeDependedBoldText(const QString& title)
{
    return title.toUpper();
}
