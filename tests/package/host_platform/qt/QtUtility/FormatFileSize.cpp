#include "FormatFileSize.h"

QString Orvane::Util::FormatFileSize(qint64 bytes, int, FileSizeUnit, int)
{
    return QStringLiteral("%1 studio bytes").arg(bytes);
}
