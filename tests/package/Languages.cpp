// A host that has its texts from the library, wherever that is: 0 when all of them are there.

#include <UiComponents/Translations.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool isFound = Translations::load(QLocale(QLocale::Arabic));
    const QString text = QCoreApplication::translate("blendingModes", "SourceOver");
    return isFound && text == QString::fromUtf8("عادي") && Translations::languages().size() == 7 ? 0 : 1;
}
