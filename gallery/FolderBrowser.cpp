#include "FolderBrowser.h"

#include <EditorUtility/FileUtil.h>
#include <UiComponents/PathSelectionWidget.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QUrl>

#include <filesystem>

namespace {

void browse(PathSelectionWidget* field, const QUrl& url)
{
    auto* dialog = new QFileDialog(field->window());
    dialog->setObjectName(QStringLiteral("folderDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QCoreApplication::translate("FolderBrowser", "Choose a folder"));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOptions(QFileDialog::ShowDirsOnly | QFileDialog::DontUseNativeDialog);
    const QString folder = FileUtil::closestPath(url.toLocalFile());
    if (!folder.isEmpty()) {
        dialog->setDirectory(folder);
    }
    QObject::connect(dialog, &QFileDialog::fileSelected, field, &PathSelectionWidget::setPath);
    // A change of the language builds the page, and the field with it, anew.
    QObject::connect(field, &QObject::destroyed, dialog, &QWidget::close);
    dialog->open();
}

qint64 freeSpace(const QString& path)
{
    // Not QStorageInfo, which knows only what is in the mount table.
    const QByteArray folder = QFile::encodeName(FileUtil::closestPath(path));
    std::error_code error;
    const auto space = std::filesystem::space(folder.constData(), error);
    return error ? -1 : static_cast<qint64>(space.available);
}

} // namespace

void connectToDisk(PathSelectionWidget* field)
{
    QObject::connect(field, &PathSelectionWidget::browseDirectoryRequested, field,
                     [field](const QUrl& url) { browse(field, url); });
    QObject::connect(field, &PathSelectionWidget::pathChanged, field,
                     [field](const QString& path) { field->showAvailableSpace(true, freeSpace(path)); });
}
