#include "SheetColors.h"

#include "RichText.h"
#include "SheetColorsProvider.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace {

void recolorLinks(QTextDocument* document, const QColor& before, const QColor& now)
{
    // A text that can be edited is the user's, and so are its steps of undo.
    if (document->isUndoRedoEnabled()) {
        return;
    }
    reformat(document, [&](QTextCharFormat* format) {
        if (!format->isAnchor() || format->foreground().color() != before) {
            return false;
        }
        format->setForeground(now);
        return true;
    });
}

} // namespace

class SheetColors::Private
{
public:
    void colorLinks() const;

    SheetColorsProvider provider;
    // The palette's own, for a sheet that does not name one.
    const QColor plainLink = QGuiApplication::palette().color(QPalette::Link);
};

void SheetColors::Private::colorLinks() const
{
    QPalette palette = QGuiApplication::palette();
    const QColor before = palette.color(QPalette::Link);
    const auto named = provider.property("link").value<QColor>();
    const auto surface = provider.property("window").value<QColor>();
    // Under a sheet of the components alone, the host's texts lie on its own windows.
    const bool isOnSheet = !surface.isValid() || surface == provider.palette().color(QPalette::Window);
    const QColor now = named.isValid() && isOnSheet ? named : plainLink;
    if (now == before) {
        return;
    }
    palette.setColor(QPalette::Link, now);
    QApplication::setPalette(palette);
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const auto documents = window->findChildren<QTextDocument*>();
        for (QTextDocument* document : documents) {
            recolorLinks(document, before, now);
        }
    }
}

SheetColors::SheetColors(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->colorLinks();
    connect(&d->provider, &SheetColorsProvider::changed, this, [this] {
        d->colorLinks();
        Q_EMIT changed();
    });
}

SheetColors::~SheetColors() = default;

QStringList SheetColors::names()
{
    QStringList names = SheetColorsProvider::names();
    names.removeOne(QStringLiteral("radius"));
    names.removeOne(QStringLiteral("spacing"));
    return names;
}

QColor SheetColors::color(const QString& name) const
{
    return names().contains(name) ? d->provider.value(name).value<QColor>() : QColor();
}

int SheetColors::radius() const
{
    return d->provider.value(QStringLiteral("radius")).toInt();
}

int SheetColors::spacing() const
{
    return d->provider.value(QStringLiteral("spacing")).toInt();
}
