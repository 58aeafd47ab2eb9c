#include "FormatFileSizePage.h"

#include "../PropertyPanel.h"
#include "ResultTable.h"

#include <QtUtility/FormatFileSize.h>

#include <QLocale>

#include <limits>
#include <memory>

namespace {

struct Request
{
    qint64 bytes = 1'610'612'736;
    int precision = -1;
    Orvane::Util::FileSizeUnit unit = Orvane::Util::FileSizeUnit::Auto;
    int kiloSize = 1024;
};

constexpr qint64 Samples[] = {0,
                              999,
                              1'023,
                              1'536,
                              1'048'575,
                              -1,
                              std::numeric_limits<qint64>::max(),
                              std::numeric_limits<qint64>::min()};

void showSize(ResultTable* results, const QString& name, const Request& request, qint64 bytes)
{
    results->setResult(
        name, Orvane::Util::FormatFileSize(bytes, request.precision, request.unit, request.kiloSize));
}

} // namespace

PageInfo FormatFileSizePage::info()
{
    return {QStringLiteral("format-file-size"),
            tr("File sizes"),
            PageGroup::Services,
            {tr("bytes"), tr("unit"), QStringLiteral("KB"), QStringLiteral("MB"), QStringLiteral("GB")},
            {QStringLiteral("FormatFileSize")},
            &createPage<FormatFileSizePage>};
}

FormatFileSizePage::FormatFileSizePage(QWidget* parent)
    : Page(info(),
           tr("Writes a number of bytes as users read it, in the current language's units and digits, "
              "exact for every 64-bit value."),
           parent)
{
    auto* results = new ResultTable;
    addDemonstration(QString(), results);
    const auto request = std::make_shared<Request>();
    const QString asked = tr("Asked for");
    const auto update = [results, request, asked] {
        showSize(results, asked, *request, request->bytes);
        for (const qint64 bytes : Samples) {
            showSize(results, QLocale().toString(bytes), *request, bytes);
        }
    };
    update();

    properties()->addText(tr("Bytes"), QString::number(request->bytes),
                          [request, update](const QString& text) {
                              request->bytes = text.toLongLong();
                              update();
                          });
    properties()->addNumber(tr("Decimals"), -1, 60, request->precision, [request, update](int precision) {
        request->precision = precision;
        update();
    });
    const QStringList units = {tr("Automatic"),      QStringLiteral("B"),  QStringLiteral("KB"),
                               QStringLiteral("MB"), QStringLiteral("GB"), QStringLiteral("TB"),
                               QStringLiteral("PB"), QStringLiteral("EB")};
    properties()->addChoice(tr("Unit"), units, 0, [request, update](int unit) {
        request->unit = static_cast<Orvane::Util::FileSizeUnit>(unit);
        update();
    });
    properties()->addChoice(tr("Bytes in a kilobyte"), {QStringLiteral("1024"), QStringLiteral("1000")}, 0,
                            [request, update](int index) {
                                request->kiloSize = index == 0 ? 1024 : 1000;
                                update();
                            });
}
