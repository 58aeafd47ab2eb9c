#include "Legibility.h"

#include <DesignElements/TesselElegantSlider.h>
#include <UiComponents/PointSelectionPlane.h>
#include <UiComponents/SearchWidget.h>

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <cmath>

namespace {

constexpr double minOfText = 4.5;
constexpr double minOfMarks = 3.0;
constexpr QSize minTarget(24, 24);

double luminance(QRgb color)
{
    static const QVector<double> linear = [] {
        QVector<double> values;
        for (int part = 0; part < 256; ++part) {
            const double share = part / 255.0;
            values.append(share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4));
        }
        return values;
    }();
    return 0.2126 * linear[qRed(color)] + 0.7152 * linear[qGreen(color)] + 0.0722 * linear[qBlue(color)];
}

/// The colours in the area, and how many pixels have each.
QHash<QRgb, int> colorsOf(const QImage& picture, const QRect& area)
{
    QHash<QRgb, int> counts;
    const QRect inside = area & picture.rect();
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = inside.left(), next = x; x <= inside.right(); x = next) {
            while (next <= inside.right() && line[next] == line[x]) {
                ++next;
            }
            counts[line[x]] += next - x;
        }
    }
    return counts;
}

/// The colour that most of the area has.
QRgb surfaceOf(const QImage& picture, const QRect& area)
{
    const QHash<QRgb, int> counts = colorsOf(picture, area);
    const auto most = std::max_element(counts.cbegin(), counts.cend());
    return most == counts.cend() ? 0 : most.key();
}

/// Of whatever stands out most in the area, against @p surface.
double strongest(const QImage& picture, const QRect& area, QRgb surface)
{
    double max = 1.0;
    const auto colors = colorsOf(picture, area).keys();
    for (const QRgb color : colors) {
        max = qMax(max, Legibility::contrast(color, surface));
    }
    return max;
}

double strongest(const QImage& picture, const QRect& area)
{
    return strongest(picture, area, surfaceOf(picture, area));
}

template <typename Option, typename Widget>
QRect subControl(const Widget* widget, QStyle::ComplexControl control, QStyle::SubControl part)
{
    struct Opened : Widget
    {
        using Widget::initStyleOption;
    };
    Option option;
    // Only to reach what is protected in the class itself.
    (widget->*&Opened::initStyleOption)(&option);
    return widget->style()->subControlRect(control, &option, part, widget);
}

bool isPartOfAnother(const QWidget* widget)
{
    const QWidget* const outer = widget->parentWidget();
    return outer && (qobject_cast<const QAbstractSpinBox*>(outer) || qobject_cast<const QComboBox*>(outer));
}

/// A field whose border is that of the frame around it.
bool isFramed(const QWidget* widget)
{
    return widget->property("kitVersion").isValid() || qobject_cast<SearchWidget*>(widget->parentWidget());
}

bool isTarget(const QWidget* widget)
{
    return !isPartOfAnother(widget) &&
           (qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget) ||
            qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QSlider*>(widget));
}

bool hasBorder(const QWidget* widget)
{
    const bool isButton =
        qobject_cast<const QPushButton*>(widget) && !widget->property("styleHint").isValid();
    return !isPartOfAnother(widget) && !isFramed(widget) &&
           (isButton || qobject_cast<const QLineEdit*>(widget) ||
            qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QTextEdit*>(widget) ||
            qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const SearchWidget*>(widget) ||
            (qobject_cast<const QComboBox*>(widget) && !widget->property("styleHint").isValid()) ||
            widget->inherits("ColorPickerButton") ||
            widget->objectName() == QLatin1String("pathSelectionFrame"));
}

/// Whether it has marks that Qt's style does not know.
bool isPaintedHere(const QWidget* widget)
{
    return qobject_cast<const PointSelectionPlane*>(widget) ||
           qobject_cast<const Orvane::Tessel::TesselElegantSlider*>(widget);
}

/// What a widget shows as a text.
QString textOf(const QWidget* widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(widget)) {
        QTextDocument document;
        document.setHtml(label->text());
        return Qt::mightBeRichText(label->text()) ? document.toPlainText() : label->text();
    }
    if (const auto* const button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->text();
    }
    if (const auto* const edit = qobject_cast<const QLineEdit*>(widget)) {
        return edit->displayText().isEmpty() ? edit->placeholderText() : edit->displayText();
    }
    if (const auto* const combo = qobject_cast<const QComboBox*>(widget)) {
        return combo->currentText();
    }
    if (const auto* const box = qobject_cast<const QAbstractSpinBox*>(widget)) {
        return box->text();
    }
    if (const auto* const edit = qobject_cast<const QTextEdit*>(widget)) {
        return edit->toPlainText().isEmpty() ? edit->placeholderText() : edit->toPlainText();
    }
    if (const auto* const edit = qobject_cast<const QPlainTextEdit*>(widget)) {
        return edit->toPlainText().isEmpty() ? edit->placeholderText() : edit->toPlainText();
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(widget)) {
        return group->title();
    }
    return {};
}

/// The part of @p widget that its text is in, without borders and marks.
QRect textAreaOf(const QWidget* widget)
{
    constexpr int border = 4;
    const QRect inside = widget->rect().adjusted(border, border, -border, -border);
    if (qobject_cast<const QLabel*>(widget)) {
        return widget->rect();
    }
    if (const auto* const area = qobject_cast<const QAbstractScrollArea*>(widget)) {
        return area->viewport()->geometry();
    }
    if (const auto* const group = qobject_cast<const QGroupBox*>(widget)) {
        return subControl<QStyleOptionGroupBox>(group, QStyle::CC_GroupBox, QStyle::SC_GroupBoxLabel);
    }
    if (const auto* const box = qobject_cast<const QAbstractSpinBox*>(widget)) {
        return subControl<QStyleOptionSpinBox>(box, QStyle::CC_SpinBox, QStyle::SC_SpinBoxEditField);
    }
    if (qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget)) {
        const int mark = widget->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, widget) + border;
        const bool isMirrored = widget->isRightToLeft();
        return inside.adjusted(isMirrored ? 0 : mark, 0, isMirrored ? -mark : 0, 0);
    }
    return inside;
}

/// A window, and what is seen of it.
class Surface
{
public:
    explicit Surface(QWidget* window)
        : m_window(window)
        , m_picture(pictureOf(window->rect()))
    {
    }

    QStringList failures(bool hasSheet) const
    {
        QStringList all;
        const auto widgets = m_window->findChildren<QWidget*>();
        for (const QWidget* widget : widgets) {
            if (widget->window() != m_window || !isWhollySeen(widget) || !widget->isEnabled()) {
                continue;
            }
            checkText(widget, &all);
            if (hasSheet || isPaintedHere(widget)) {
                checkMark(widget, &all);
            }
            if (hasSheet) {
                checkBorder(widget, &all);
                checkTarget(widget, &all);
            }
            const auto* const view = qobject_cast<const QAbstractItemView*>(widget);
            if (view && hasSheet) {
                checkRows(view, &all);
            }
        }
        return all;
    }

    QStringList focusFailures()
    {
        QStringList all;
        m_window->activateWindow();
        if (!QTest::qWaitForWindowActive(m_window)) {
            return {QStringLiteral("the window is not active")};
        }
        const auto widgets = m_window->findChildren<QWidget*>();
        for (QWidget* widget : widgets) {
            if (widget->window() == m_window && isWhollySeen(widget) && widget->isEnabled() &&
                widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy() && !isPartOfAnother(widget)) {
                checkFocus(widget, &all);
            }
        }
        return all;
    }

private:
    QImage pictureOf(const QRect& area) const
    {
        return m_window->grab(area).toImage().convertToFormat(QImage::Format_RGB32);
    }

    QRect areaOf(const QWidget* widget) const { return {widget->mapTo(m_window, QPoint()), widget->size()}; }

    static bool isWhollySeen(const QWidget* widget)
    {
        return widget->isVisible() && !widget->size().isEmpty() &&
               widget->visibleRegion().boundingRect() == widget->rect();
    }

    static QString describe(const QWidget* widget)
    {
        return QStringLiteral("%1 \"%2\" \"%3\"")
            .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), textOf(widget));
    }

    static void expect(double actual, double min, const QString& what, QStringList* all)
    {
        if (actual < min) {
            all->append(QStringLiteral("%1: %2").arg(what).arg(actual, 0, 'f', 2));
        }
    }

    void checkText(const QWidget* widget, QStringList* all) const
    {
        const QRect area = textAreaOf(widget).translated(areaOf(widget).topLeft());
        if (!textOf(widget).trimmed().isEmpty() && !area.isEmpty() && !isPartOfAnother(widget)) {
            expect(strongest(m_picture, area), minOfText, QStringLiteral("text of ") + describe(widget), all);
        }
    }

    /// At the middle of the left side, against what is left of it.
    void checkBorder(const QWidget* widget, QStringList* all) const
    {
        if (!hasBorder(widget)) {
            return;
        }
        const QRect area = areaOf(widget);
        const QPoint middle(area.left(), area.center().y());
        const QRgb outside = m_picture.pixel(middle - QPoint(2, 0));
        expect(strongest(m_picture, QRect(middle, QSize(3, 1)), outside), minOfMarks,
               QStringLiteral("border of ") + describe(widget), all);
    }

    void checkMark(const QWidget* widget, QStringList* all) const
    {
        const QPoint corner = areaOf(widget).topLeft();
        const auto check = [&](const QRect& area, const char* what) {
            expect(strongest(m_picture, area.translated(corner)), minOfMarks,
                   QLatin1String(what) + describe(widget), all);
        };
        if (const auto* const combo = qobject_cast<const QComboBox*>(widget)) {
            check(subControl<QStyleOptionComboBox>(combo, QStyle::CC_ComboBox, QStyle::SC_ComboBoxArrow),
                  "arrow of ");
        } else if (const auto* const slider = qobject_cast<const QSlider*>(widget)) {
            const QRect handle =
                subControl<QStyleOptionSlider>(slider, QStyle::CC_Slider, QStyle::SC_SliderHandle);
            expect(strongest(m_picture, handle.translated(corner), m_picture.pixel(corner)), minOfMarks,
                   QStringLiteral("handle of ") + describe(widget), all);
        } else if (qobject_cast<const QToolButton*>(widget) && textOf(widget).isEmpty()) {
            expect(strongest(m_picture, areaOf(widget), m_picture.pixel(corner)), minOfMarks,
                   QStringLiteral("mark of ") + describe(widget), all);
        } else if (qobject_cast<const QCheckBox*>(widget) || qobject_cast<const QRadioButton*>(widget)) {
            const int side = widget->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, widget);
            QRect box(0, (widget->height() - side) / 2, side, side);
            box = QStyle::visualRect(widget->layoutDirection(), widget->rect(), box).translated(corner);
            expect(strongest(m_picture, box, m_picture.pixel(corner)), minOfMarks,
                   QStringLiteral("box of ") + describe(widget), all);
            if (qobject_cast<const QAbstractButton*>(widget)->isChecked()) {
                expect(strongest(m_picture, box.adjusted(3, 3, -3, -3)), minOfMarks,
                       QStringLiteral("tick of ") + describe(widget), all);
            }
        } else if (qobject_cast<const PointSelectionPlane*>(widget)) {
            check(widget->rect(), "axes of ");
        }
    }

    static void checkTarget(const QWidget* widget, QStringList* all)
    {
        if (isTarget(widget) && widget->size().expandedTo(minTarget) != widget->size()) {
            all->append(QStringLiteral("size of %1: %2 x %3")
                            .arg(describe(widget))
                            .arg(widget->width())
                            .arg(widget->height()));
        }
    }

    void checkRows(const QAbstractItemView* view, QStringList* all) const
    {
        const QPoint corner = areaOf(view->viewport()).topLeft();
        const QRgb surface = surfaceOf(m_picture, areaOf(view->viewport()));
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            const QModelIndex index = view->model()->index(row, 0, view->rootIndex());
            const QRect seen = view->visualRect(index);
            const bool isText = !index.data().toString().isEmpty();
            if (!view->viewport()->rect().contains(seen) || seen.isEmpty()) {
                continue;
            }
            const QString name = QStringLiteral("row %1 of ").arg(index.data().toString()) + describe(view);
            const QRect area = seen.translated(corner);
            if (isText) {
                expect(strongest(m_picture, area), minOfText, QStringLiteral("text of ") + name, all);
            }
            if (seen.height() < minTarget.height() && index.flags() & Qt::ItemIsSelectable) {
                all->append(QStringLiteral("height of %1: %2").arg(name).arg(seen.height()));
            }
            if (view->selectionModel() && view->selectionModel()->isSelected(index)) {
                expect(Legibility::contrast(surfaceOf(m_picture, area), surface), minOfMarks,
                       QStringLiteral("selection of ") + name, all);
            }
        }
    }

    /// By pixels that it changes by enough, at least as many as a line around a small control has.
    void checkFocus(QWidget* widget, QStringList* all)
    {
        constexpr int around = 30;
        constexpr int minPixels = 40;
        m_window->setFocus();
        const QRect area = areaOf(widget).adjusted(-around, -around, around, around) & m_window->rect();
        const QImage before = pictureOf(area);
        widget->setFocus(Qt::TabFocusReason);
        auto* const edit = qobject_cast<QLineEdit*>(widget);
        QLineEdit* const typed = edit ? edit : widget->findChild<QLineEdit*>();
        if (typed) {
            typed->deselect();
        }
        const QImage after = pictureOf(area);
        int changed = 0;
        for (int y = 0; y < after.height(); ++y) {
            const auto* const old = reinterpret_cast<const QRgb*>(before.constScanLine(y));
            const auto* const line = reinterpret_cast<const QRgb*>(after.constScanLine(y));
            for (int x = 0; x < after.width(); ++x) {
                changed += old[x] != line[x] && Legibility::contrast(old[x], line[x]) >= minOfMarks;
            }
        }
        if (changed < minPixels) {
            all->append(QStringLiteral("focus of %1: %2 pixels").arg(describe(widget)).arg(changed));
        }
    }

    QWidget* const m_window;
    const QImage m_picture;
};

} // namespace

double Legibility::contrast(QRgb one, QRgb other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

QStringList Legibility::failures(QWidget* window, bool hasSheet)
{
    return Surface(window).failures(hasSheet);
}

QStringList Legibility::focusFailures(QWidget* window)
{
    return Surface(window).focusFailures();
}
