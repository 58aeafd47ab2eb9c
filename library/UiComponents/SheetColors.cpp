#include "SheetColors.h"

#include "RichText.h"
#include "SheetColorsProvider.h"

#include <QApplication>
#include <QPalette>
#include <QScopedValueRollback>
#include <QVector>
#include <QWidget>

namespace {

/// Of all objects, which would else take each other's colours for the palette's own.
struct Links
{
    QColor plain; // the palette's own, for a sheet that does not name one
    QColor shown; // set last
    bool isSetting = false;
};

Links& links()
{
    static Links links;
    return links;
}

void recolorLinks(QTextDocument* document, const QVector<QColor>& before, const QColor& now)
{
    // A text that can be edited is the user's, and so are its steps of undo.
    if (document->isUndoRedoEnabled()) {
        return;
    }
    reformat(document, [&](QTextCharFormat* format) {
        const QColor color = format->foreground().color();
        if (!format->isAnchor() || color == now || !before.contains(color)) {
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
    QColor linkOfTheSheet() const;
    void colorLinks() const;

    SheetColorsProvider provider;
};

QColor SheetColors::Private::linkOfTheSheet() const
{
    const auto named = provider.property("link").value<QColor>();
    const auto surface = provider.property("window").value<QColor>();
    // Under a sheet of the components alone, the host's texts lie on its own windows.
    const bool isOnSheet = !surface.isValid() || surface == provider.palette().color(QPalette::Window);
    return isOnSheet ? named : QColor();
}

void SheetColors::Private::colorLinks() const
{
    QPalette palette = QGuiApplication::palette();
    const QColor present = palette.color(QPalette::Link);
    const QVector<QColor> before{links().shown, present};
    if (present != links().shown) {
        links().plain = present;
    }
    const QColor named = linkOfTheSheet();
    const QColor now = named.isValid() ? named : links().plain;
    links().shown = now;
    if (now != present) {
        palette.setColor(QPalette::Link, now);
        const QScopedValueRollback<bool> setting(links().isSetting, true);
        QApplication::setPalette(palette);
    }
    if (before.count(now) == before.size()) {
        return;
    }
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
        // Qt reports each palette at once, this one too.
        if (!links().isSetting) {
            d->colorLinks();
            Q_EMIT changed();
        }
    });
}

SheetColors::~SheetColors() = default;

QStringList SheetColors::names()
{
    QStringList names = SheetColorsProvider::names();
    names.removeOne(QString::fromLatin1("radius"));
    names.removeOne(QString::fromLatin1("spacing"));
    return names;
}

QColor SheetColors::color(const QString& name) const
{
    return names().contains(name) ? d->provider.value(name).value<QColor>() : QColor();
}

int SheetColors::radius() const
{
    return d->provider.value(QString::fromLatin1("radius")).toInt();
}

int SheetColors::spacing() const
{
    return d->provider.value(QString::fromLatin1("spacing")).toInt();
}
