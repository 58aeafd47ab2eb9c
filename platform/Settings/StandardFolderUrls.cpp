#include "StandardFolderUrls.h"

QUrl StandardFolderUrls::myComputerUrl()
{
#ifdef Q_OS_WIN
    return QUrl(QStringLiteral("file:"));
#else
    return QUrl(QStringLiteral("file:///"));
#endif
}
