#pragma once

#include <QtUtility/QtUtilityExport.h>

#include <QString>

namespace Orvane::Util {

/// The unit that FormatFileSize() writes a size in.
enum class FileSizeUnit {
    Auto = 0, ///< the largest one in which the size is at least 1
    Byte,
    Kilo,
    Mega,
    Giga,
    Tera,
    Peta,
    Exa,
};

/**
 * Returns a number of bytes as text for users: "731 B", "1.5 GB".
 *
 * The units are B, KB, MB, GB, TB, PB and EB, whatever @p kiloSize is, translated in the context
 * "FormatFileSize". Digits, decimal mark, group separators and sign are those of the default QLocale. Halves
 * are rounded away from zero, and a size that rounds to zero has no sign.
 *
 * @param precision number of decimals. -1 chooses them: two below 10, one from there on, and zeros at
 * the end are left out ("1 KB", "1.25 KB", "12.5 KB"). 0 to 15 are written as asked, with zeros at the
 * end; more count as 15, less than -1 as -1. Bytes are whole in any case.
 * @param unit the unit; an unknown value counts as Auto. Auto moves on where rounding reaches the next
 * unit: 1,048,575 bytes are "1 MB" and not "1024 KB". In a fixed unit, small sizes may round to 0.
 * @param kiloSize how many bytes make a kilobyte and so on: 1024, or 1000. Other values from 2 to 1023
 * work likewise; everything else counts as 1024.
 */
QTUTILITY_EXPORT QString FormatFileSize(qint64 bytes, int precision = -1,
                                        FileSizeUnit unit = FileSizeUnit::Auto, int kiloSize = 1024);

} // namespace Orvane::Util
