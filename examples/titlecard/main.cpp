#include "Editor.h"

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setOrganizationName(QStringLiteral("Example"));
    application.setApplicationName(QStringLiteral("TitleCard"));
    TitleCard::Editor editor(QStringLiteral(TITLECARD_SHARE));
    editor.setStyle(QStringLiteral("dark"));
    editor.setLanguage(QStringLiteral("en"));
    editor.resize(1180, 760);
    editor.show();
    editor.startFirstTour();
    return QApplication::exec();
}
