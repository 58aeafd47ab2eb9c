#include "PathPage.h"

#include "../PropertyPanel.h"
#include "ResultTable.h"

#include <EditorUtility/FileUtil.h>
#include <FileSystem/FS.h>

#include <QCoreApplication>
#include <QDir>

namespace {

void showPath(ResultTable* results, const QString& path)
{
    const auto yesOrNo = [](bool yes) { return yes ? PathPage::tr("yes") : PathPage::tr("no"); };
    QString error;
    const bool isValid = FileUtil::isPathValid(path, &error);
    results->setResult(QStringLiteral("FileUtil::isPathValid()"), isValid ? yesOrNo(true) : error);
    results->setResult(QStringLiteral("FileUtil::closestPath()"), FileUtil::closestPath(path));
    results->setResult(QStringLiteral("FileUtil::isOperationAllowed(Read)"),
                       yesOrNo(FileUtil::isOperationAllowed(path, FileUtil::Read)));
    results->setResult(QStringLiteral("FileUtil::isOperationAllowed(Write)"),
                       yesOrNo(FileUtil::isOperationAllowed(path, FileUtil::Write)));
    results->setResult(QStringLiteral("FS::exists()"), yesOrNo(FS::exists(path)));
}

} // namespace

PageInfo PathPage::info()
{
    return {QStringLiteral("paths"),
            tr("Paths"),
            PageGroup::Services,
            {tr("folder"), tr("file"), tr("permission"), tr("validity")},
            {QStringLiteral("FileUtil"), QStringLiteral("FS")},
            &createPage<PathPage>};
}

PathPage::PathPage(QWidget* parent)
    : Page(info(),
           tr("What an editor asks about a path that a user typed: whether it could be a folder, where the "
              "nearest one is, and what the program may do there."),
           parent)
{
    auto* results = new ResultTable;
    addDemonstration(QString(), results);
    const QString start = QDir::rootPath() + QStringLiteral("no such folder/clips");
    showPath(results, start);
    properties()->addText(tr("Path"), start, [results](const QString& path) { showPath(results, path); });
    properties()->addAction(tr("Home folder"), [results] { showPath(results, QDir::homePath()); });
    properties()->addAction(tr("Root folder"), [results] { showPath(results, QDir::rootPath()); });
    properties()->addAction(tr("A file in the place of a folder"), [results] {
        showPath(results, QCoreApplication::applicationFilePath() + QStringLiteral("/clips"));
    });
    properties()->addAction(tr("Empty path"), [results] { showPath(results, QString()); });
}
