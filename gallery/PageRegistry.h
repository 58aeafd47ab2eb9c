#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <optional>

class Page;

/// The sections of the page list, in its order.
enum class PageGroup {
    Colour,
    Inputs,
    Layout,
    Bubbles,
    Guides,
    Services,
};

/// A page before it is built. Texts are in the present language.
struct PageInfo
{
    /// Stable, lower case with hyphens: the page's name on the command line and of its pictures.
    QString id;
    PageGroup group = PageGroup::Inputs;
    QString title;
    QString introduction;
    /// Words by which the search finds the page, besides title, id and covers.
    QStringList keywords;
    /// The classes and headers of the library that the page shows.
    QStringList covers;
    /// Adds the components, their properties and their signals to a new page.
    void (*fill)(Page* page) = nullptr;
};

/**
 * All pages of the gallery.
 */
class PageRegistry
{
    Q_DECLARE_TR_FUNCTIONS(PageRegistry)

public:
    /// In the order of the list and in the present language: call it again after a change of language.
    static QVector<PageInfo> pages();

    /// Empty for an id that no page has.
    static std::optional<PageInfo> find(const QString& id);

    static QString groupTitle(PageGroup group);

    /// Whether each word of @p filter occurs in the page's title, id, class names or keywords, in any case.
    /// An empty filter matches all.
    static bool matches(const PageInfo& page, const QString& filter);

private:
    // pages/Colors.cpp
    static void colorPickerButton(Page* page);
    static void colorInput(Page* page);
    static void colorPanel(Page* page);
    static void colorSelector(Page* page);
    static void colorPlane(Page* page);
    static void blendingModes(Page* page);

    // pages/Picking.cpp
    static void pipette(Page* page);
    static void widgetColorPicker(Page* page);

    // pages/Numbers.cpp
    static void sliderInput(Page* page);
    static void doubleSliderInput(Page* page);
    static void spinBox(Page* page);
    static void doubleSpinBox(Page* page);
    static void customSlider(Page* page);
    static void doubleSlider(Page* page);
    static void elegantSlider(Page* page);
    static void boundWidgets(Page* page);

    // pages/Inputs.cpp
    static void pointPlane(Page* page);
    static void pointSelector(Page* page);
    static void comboBox(Page* page);
    static void tesselComboBox(Page* page);
    static void tesselLineEdit(Page* page);
    static void search(Page* page);
    static void adjustingList(Page* page);
    static void pathSelection(Page* page);
    static void clipProperties(Page* page);

    // pages/Editing.cpp
    static void editSession(Page* page);
    static void titleCard(Page* page);

    // pages/Layouts.cpp
    static void frame(Page* page);
    static void layouts(Page* page);
    static void styleHints(Page* page);
    static void colorHint(Page* page);
    static void propertyProvider(Page* page);

    // pages/Bubbles.cpp
    static void pointingWidget(Page* page);
    static void roundedPopup(Page* page);
    static void highlightFrame(Page* page);
    static void pixmapWidget(Page* page);

    // pages/Guides.cpp
    static void guide(Page* page);
    static void guideButton(Page* page);
    static void dialogGuide(Page* page);

    // pages/QmlDialog.cpp
    static void qmlDialog(Page* page);

    // pages/Services.cpp
    static void services(Page* page);
};
