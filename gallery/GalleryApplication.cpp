#include "GalleryApplication.h"

#include <QApplication>
#include <QProcess>
#include <QStyleFactory>

/// Outside every namespace, as the macro demands: a static library's resources do not register themselves.
static void initResources()
{
    Q_INIT_RESOURCE(styles);
    Q_INIT_RESOURCE(gallery_styles);
    Q_INIT_RESOURCE(gallery_catalogues);
    Q_INIT_RESOURCE(gallery);
    Q_INIT_RESOURCE(titlecard);
}

void GalleryApplication::prepare()
{
    initResources();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

bool GalleryApplication::startAtScale(double scale, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(scale));
    QProcess gallery;
    gallery.setProgram(QCoreApplication::applicationFilePath());
    gallery.setArguments(arguments);
    gallery.setProcessEnvironment(environment);
    return gallery.startDetached();
}
