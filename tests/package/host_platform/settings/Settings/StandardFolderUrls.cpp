#include "StandardFolderUrls.h"

QUrl StandardFolderUrls::myComputerUrl()
{
    return QUrl(QStringLiteral("file:///studio"));
}
