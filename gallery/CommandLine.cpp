#include "CommandLine.h"

#include "LanguageController.h"
#include "PageRegistry.h"
#include "StyleController.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QLocale>

namespace {

QString text(Qt::LayoutDirection direction)
{
    return direction == Qt::RightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

struct Options
{
    const QCommandLineOption page{QStringLiteral("page"), QStringLiteral("Start on the page ID."),
                                  QStringLiteral("ID")};
    const QCommandLineOption style{
        QStringLiteral("style"),
        QStringLiteral(
            "dark, light, high-contrast, none, or a style sheet FILE that reloads when it is saved."),
        QStringLiteral("STYLE"), QStringLiteral("dark")};
    const QCommandLineOption language{QStringLiteral("language"),
                                      LanguageController::languages().join(QStringLiteral(", ")) +
                                          QLatin1Char('.'),
                                      QStringLiteral("CODE"), QStringLiteral("en")};
    const QCommandLineOption direction{QStringLiteral("direction"),
                                       QStringLiteral("ltr or rtl; by default that of the language."),
                                       QStringLiteral("DIRECTION")};
    const QCommandLineOption tour{
        QStringLiteral("tour"),
        QStringLiteral("Render every page in every style to DIR/<id>-<style>.png and end. With --page, "
                       "only that page. Needs no display."),
        QStringLiteral("DIR")};
    const QCommandLineOption list{QStringLiteral("list"),
                                  QStringLiteral("Print id, title and covered classes of each page.")};
    const QCommandLineOption stylingManual{
        QStringLiteral("styling-manual"),
        QStringLiteral("Print, in Markdown, what a style sheet can use of each component.")};
    const QCommandLineOption code{
        QStringLiteral("code"),
        QStringLiteral("Print the C++ that builds what each page shows. With --page, only that page.")};
    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this text.")};

    void addTo(QCommandLineParser& parser) const
    {
        parser.setApplicationDescription(QStringLiteral("Shows every component of UiComponents live."));
        parser.addOptions({page, style, language, direction, tour, list, stylingManual, code, help});
    }
};

/// Describes the first wrong value; empty when all are right.
QString valueError(const CommandLine& line, const QString& direction)
{
    if (!line.page.isEmpty() && !PageRegistry::find(line.page)) {
        return QStringLiteral("There is no page \"%1\". --list prints all.").arg(line.page);
    }
    if (!StyleController::builtInStyles().contains(line.style) && !QFileInfo(line.style).isFile()) {
        return QStringLiteral("The style \"%1\" is neither dark, light, high-contrast, none nor a file.")
            .arg(line.style);
    }
    if (!LanguageController::languages().contains(line.language)) {
        return QStringLiteral("There is no language \"%1\", only %2.")
            .arg(line.language, LanguageController::languages().join(QStringLiteral(", ")));
    }
    if (direction != text(line.direction)) {
        return QStringLiteral("The direction \"%1\" is neither ltr nor rtl.").arg(direction);
    }
    return {};
}

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    options.addTo(parser);

    CommandLine line;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
        return line;
    }
    if (!parser.positionalArguments().isEmpty()) {
        line.error =
            QStringLiteral("Unexpected argument \"%1\".").arg(parser.positionalArguments().constFirst());
        return line;
    }
    if (parser.isSet(options.help)) {
        line.action = Action::Help;
        return line;
    }

    line.page = parser.value(options.page);
    line.style = parser.value(options.style);
    line.language = parser.value(options.language);
    const QString direction = parser.isSet(options.direction) ? parser.value(options.direction)
                                                              : text(QLocale(line.language).textDirection());
    line.direction = direction == text(Qt::RightToLeft) ? Qt::RightToLeft : Qt::LeftToRight;
    line.tourFolder = parser.value(options.tour);
    if (parser.isSet(options.tour)) {
        line.action = Action::Tour;
    } else if (parser.isSet(options.list)) {
        line.action = Action::List;
    } else if (parser.isSet(options.stylingManual)) {
        line.action = Action::StylingManual;
    } else if (parser.isSet(options.code)) {
        line.action = Action::Code;
    }
    line.error = valueError(line, direction);
    if (line.action == Action::Tour && line.tourFolder.isEmpty()) {
        line.error = QStringLiteral("--tour needs a folder.");
    }
    return line;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    Options().addTo(parser);
    return parser.helpText();
}

QStringList CommandLine::arguments() const
{
    QStringList all = {QStringLiteral("--style"),     style,          QStringLiteral("--language"), language,
                       QStringLiteral("--direction"), text(direction)};
    if (!page.isEmpty()) {
        all += {QStringLiteral("--page"), page};
    }
    return all;
}
