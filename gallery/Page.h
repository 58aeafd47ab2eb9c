#pragma once

#include "PropertyPanel.h"
#include "SignalLogView.h"

#include <QFrame>
#include <QPointer>
#include <QVector>

#include <functional>
#include <type_traits>

class QSplitter;
struct PageInfo;

/// The enabled and the disabled one of a component on a page.
template <typename Widget>
struct Twins
{
    QPointer<Widget> enabled;
    QPointer<Widget> disabled;

    /// Those that are alive: what PropertyPanel::addProperties() asks for.
    QObjectList operator()() const
    {
        QObjectList objects;
        each([&objects](Widget* widget) { objects.append(widget); });
        return objects;
    }

    /// Calls @p function with each one that is alive.
    template <typename Function>
    void each(Function function) const
    {
        for (const QPointer<Widget>& widget : {enabled, disabled}) {
            if (widget) {
                std::invoke(function, widget.data());
            }
        }
    }

    /// Returns a function of a value, for a control of the property panel: it calls @p function, a setter or
    /// a function of a widget and a value, with each widget.
    template <typename Function>
    auto setter(Function function) const
    {
        return [twins = *this, function](const auto& value) {
            twins.each([&](Widget* widget) { std::invoke(function, widget, value); });
        };
    }

    /// The children of both that are a @p Child and have the name @p name, or any.
    template <typename Child>
    Twins<Child> children(const QString& name = {}) const
    {
        return {enabled ? enabled->template findChild<Child*>(name) : nullptr,
                disabled ? disabled->template findChild<Child*>(name) : nullptr};
    }
};

/// A widget that a style sheet can reach, for the styling manual.
struct StyleSubject
{
    QPointer<QWidget> widget;
    /// What the widget cannot tell by itself.
    QString sentence;
    /// The heading in the manual; empty: the class name.
    QString title;
    /// The values of the property "styleHint" that the widget is made for.
    QStringList hints;
};

/**
 * A page of the gallery: what a component is for, the component twice, enabled and disabled, its
 * properties as live controls and the log of its signals.
 *
 * The texts are in the present language: a change of language needs a new page.
 */
class Page : public QFrame
{
    Q_OBJECT

public:
    /// Builds the page @p info and calls PageInfo::fill.
    explicit Page(const PageInfo& info, QWidget* parent = nullptr);
    ~Page() override;

    /// Lines of code behind those that build a widget.
    struct CodeNote
    {
        QPointer<QWidget> widget;
        /// A '$' in a line stands for the name of the widget. Includes are lines of their own.
        std::function<QStringList()> lines;
    };

    QString id() const { return m_id; }
    PropertyPanel* properties() const { return m_properties; }
    SignalLogView* signalLog() const { return m_signalLog; }
    QVector<StyleSubject> styleSubjects() const { return m_styleSubjects; }
    QVector<CodeNote> codeNotes() const { return m_codeNotes; }

    /// Shows a component twice. @p make takes the parent and returns a new component.
    template <typename Make>
    auto addTwins(const QString& caption, Make make)
        -> Twins<std::remove_pointer_t<decltype(make(std::declval<QWidget*>()))>>
    {
        auto* const enabled = make(m_enabledCard);
        auto* const disabled = make(m_disabledCard);
        disabled->setEnabled(false);
        addToCard(m_enabledCard, caption, enabled);
        addToCard(m_disabledCard, caption, disabled);
        return {enabled, disabled};
    }

    /// Shows a new @p Widget twice, each prepared by @p setUp.
    template <typename Widget, typename SetUp>
    Twins<Widget> addTwins(const QString& caption, SetUp setUp)
    {
        return addTwins(caption, [&setUp](QWidget* parent) {
            auto* widget = new Widget(parent);
            setUp(widget);
            return widget;
        });
    }

    template <typename Widget>
    Twins<Widget> addTwins(const QString& caption)
    {
        return addTwins<Widget>(caption, [](Widget*) {});
    }

    /// Shows @p widget, which has no disabled state, over the whole width and takes it over.
    void addDemonstration(const QString& caption, QWidget* widget);

    /// The part of the height that the components get before they scroll; 0.6 by default.
    void setMaxSpecimenShare(double share) { m_maxSpecimenShare = share; }

    /// Adds @p widget to the styling manual.
    void describeStyling(QWidget* widget, const QString& sentence, const QString& title = {},
                         const QStringList& hints = {});

    /// Adds what the C++ that is copied cannot read from @p widget: @p lines is called when it is made.
    void describeCode(QWidget* widget, const std::function<QStringList()>& lines);

    /// Brings everything that moves or differs from run to run to a fixed state.
    void prepareForPicture();

Q_SIGNALS:
    void shown();
    void pictureRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void fitSpecimens();
    QFrame* makeCard(const char* twin, const QString& title);
    static void addToCard(QFrame* card, const QString& caption, QWidget* widget);

    const QString m_id;
    QFrame* m_enabledCard = nullptr;
    QFrame* m_disabledCard = nullptr;
    QFrame* m_demonstrationCard = nullptr;
    QSplitter* m_halves = nullptr;
    QSplitter* m_inspector = nullptr;
    QWidget* m_specimens = nullptr;
    PropertyPanel* m_properties = nullptr;
    SignalLogView* m_signalLog = nullptr;
    QVector<StyleSubject> m_styleSubjects;
    QVector<CodeNote> m_codeNotes;
    double m_maxSpecimenShare = 0.6;
    bool m_isSplitByUser = false;
};
