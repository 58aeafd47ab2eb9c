#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QObject>
#include <QStringList>

#include <memory>

/**
 * The colours of the application's style sheet, for what no sheet reaches: links in texts, QML scenes and a
 * host's own painting.
 *
 *     QApplication application(argc, argv);
 *     const SheetColors colors;                                  // links follow the sheet from now on
 *     application.setStyleSheet("file:///" + folder + "/dark.qss");
 *
 * **Links.** Qt takes their colour from the application's palette, which style sheets cannot change. While
 * there is an object of this class, that palette's Link is the sheet's, and so are the links of the texts
 * that labels and text views show already: texts need no colours of their own. A link whose markup has one
 * keeps it. The palette's own Link, also one that a host sets later, holds under a sheet that names none, and
 * under one whose "window" is not the background that it gives to QWidget, as those of the components alone.
 *
 * **Names.** window, card, popup, field, fieldDisabled, button, buttonHover, buttonPressed, itemHover, line,
 * border, borderHover, text, textStrong, textSecondary, textDisabled, link, accent, accentHover,
 * accentPressed, accentText, focus, selection, selectionText, error, errorBorder and errorField; they are
 * those of the palettes that the reference sheets are made of. A sheet of a host's own names them, or some of
 * them, with
 *
 *     SheetColorsProvider { qproperty-accent: #2f74d4; qproperty-radius: 4; }
 *
 * and what it does not name is the colour of the application's palette that comes nearest.
 *
 * **Scenes.** Those of QuickDialog and QuickContent import them, with "radius" and "spacing", and follow a
 * change of the sheet at once. They need no object of this class.
 *
 *     import UiComponents 0.1
 *     Rectangle { color: SheetColors.popup; border.color: SheetColors.border; radius: SheetColors.radius }
 * @see Qml::QuickDialog, Qml::QuickContent
 */
class UICOMPONENTS_EXPORT SheetColors : public QObject
{
    Q_OBJECT

public:
    /// One is enough for a program, and belongs to the thread of its widgets. It needs the QApplication, and
    /// may be deleted after it. @p parent owns the object.
    ///
    /// When the link changes, it calls QApplication::setPalette(), with which Qt drops the palettes of single
    /// classes, such as that of setPalette(palette, "QMenu"). A host that has some sets them after the sheet.
    explicit SheetColors(QObject* parent = nullptr);
    /// Links keep the colour that they have.
    ~SheetColors() override;

    /// The names above.
    static QStringList names();

    /// The colour called @p name; invalid for a name that is none of these.
    QColor color(const QString& name) const;

    /// How round the corners of a control are, in pixels; 4 where the sheet does not say.
    int radius() const;

    /// The gap between two controls, in pixels; 8 where the sheet does not say.
    int spacing() const;

Q_SIGNALS:
    /// The application has another style sheet or another palette. The values and the links are the new ones.
    /// Once for each change, while Qt is telling all widgets of it: a slot deletes a widget, and this object,
    /// with deleteLater().
    void changed();

private:
    class UICOMPONENTS_NO_EXPORT Private;
    const std::unique_ptr<Private> d;
};
