#pragma once

#include <QString>

namespace Orvane::Util {

enum class FileSizeUnit { Auto = 0 };

/// The studio counts bytes.
QString FormatFileSize(qint64 bytes, int precision, FileSizeUnit unit, int kiloSize);

} // namespace Orvane::Util
