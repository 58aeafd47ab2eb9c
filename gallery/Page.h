#pragma once

#include "PageInfo.h"

#include <QFrame>
#include <QPointer>
#include <QVector>

class PropertyPanel;
class QSplitter;
class SignalLogView;

/// The enabled and the disabled one of a component that a page shows.
template <typename Widget>
struct Twins
{
    QPointer<Widget> enabled;
    QPointer<Widget> disabled;

    QObjectList objects() const { return {enabled.data(), disabled.data()}; }

    /// Does the same with both, as far as they are alive.
    template <typename Function>
    void each(Function function) const
    {
        if (enabled) {
            function(enabled.data());
        }
        if (disabled) {
            function(disabled.data());
        }
    }
};

/// One widget that a style sheet can reach, for the manual that is generated from the running pages.
struct StyleSubject
{
    QPointer<QWidget> widget;
    /// What a sheet's author should know that the widget cannot tell.
    QString sentence;
    /// The values of the property "styleHint" that it is made for.
    QStringList hints;
    /// What the manual calls it; empty: its class name.
    QString title;
};

/**
 * A page of the gallery: what the component is for, the component twice, enabled and disabled, its
 * properties as live controls and the log of its signals.
 *
 * A subclass fills it in its constructor. Texts are in the language of that moment: after a change of
 * language the page is built anew.
 */
class Page : public QFrame
{
    Q_OBJECT

public:
    ~Page() override;

    QVector<StyleSubject> styleSubjects() const { return m_styleSubjects; }

    PropertyPanel* properties() const { return m_properties; }
    SignalLogView* signalLog() const { return m_signalLog; }

    /// Brings everything that moves or depends on the moment to a fixed state, before a picture is taken.
    virtual void prepareForPicture();

protected:
    Page(const PageInfo& info, const QString& introduction, QWidget* parent);

    /// Shows a component twice. @p make is given the parent and returns a new component.
    template <typename Widget, typename Make>
    Twins<Widget> addTwins(const QString& caption, Make make)
    {
        Twins<Widget> twins{make(m_enabledCard), make(m_disabledCard)};
        twins.disabled->setEnabled(false);
        addToCard(m_enabledCard, caption, twins.enabled);
        addToCard(m_disabledCard, caption, twins.disabled);
        return twins;
    }

    template <typename Widget>
    Twins<Widget> addTwins(const QString& caption)
    {
        return addTwins<Widget>(caption, [](QWidget* parent) { return new Widget(parent); });
    }

    /// Shows something that has no disabled state, over the whole width. The page owns it.
    void addDemonstration(const QString& caption, QWidget* widget);

    /// How much of the height the specimens may take before they scroll; 0.6 at first.
    void setLargestSpecimenShare(double share) { m_largestSpecimenShare = share; }

    /// Adds @p widget to the manual of what a style sheet can use.
    void describeStyling(const StyleSubject& subject);
    void describeStyling(QWidget* widget, const QString& sentence);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitSpecimens();
    QFrame* makeCard(const char* twin, const QString& title);
    static void addToCard(QFrame* card, const QString& caption, QWidget* widget);

    QFrame* m_enabledCard = nullptr;
    QFrame* m_disabledCard = nullptr;
    QFrame* m_demonstrationCard = nullptr;
    QSplitter* m_halves = nullptr;
    QSplitter* m_inspector = nullptr;
    QWidget* m_specimens = nullptr;
    PropertyPanel* m_properties = nullptr;
    SignalLogView* m_signalLog = nullptr;
    QVector<StyleSubject> m_styleSubjects;
    double m_largestSpecimenShare = 0.6;
    bool m_isSplitByUser = false;
};

/// PageInfo::create of the page class @p PageClass.
template <typename PageClass>
Page* createPage(QWidget* parent)
{
    return new PageClass(parent);
}
