#include "StandardFolderUrls.h"

QUrl StandardFolderUrls::myComputerUrl()
{
#ifdef Q_OS_WIN
    return QUrl(QString::fromLatin1("file:"));
#else
    return QUrl(QString::fromLatin1("file:///"));
#endif
}
