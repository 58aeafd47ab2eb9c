#include "AppliedRules.h"

#include <QHash>
#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <private/qcssparser_p.h>

namespace {

/// Answers Qt's questions about widgets, as nodes of a document.
class WidgetSelector : public QCss::StyleSelector
{
public:
    static NodePtr node(const QObject* object)
    {
        NodePtr node;
        node.ptr = const_cast<QObject*>(object);
        return node;
    }

    QStringList nodeNames(NodePtr node) const override
    {
        QStringList names;
        for (const QMetaObject* meta = object(node)->metaObject(); meta; meta = meta->superClass()) {
            names.append(selectorName(meta));
        }
        // Sheets know tool tips by the name of the class that shows them to programs.
        return names.constFirst() == QLatin1String("QTipLabel") ? QStringList(QStringLiteral("QToolTip"))
                                                                : names;
    }

    bool nodeNameEquals(NodePtr node, const QString& name) const override
    {
        return !isNullNode(node) && nodeNames(node).contains(name);
    }

    QString attribute(NodePtr node, const QString& name) const override
    {
        const QVariant value = object(node)->property(name.toLatin1().constData());
        if (!value.isValid() && name == QLatin1String("class")) {
            return selectorName(object(node)->metaObject());
        }
        // A property that is a list is one of words.
        return value.type() == QVariant::StringList || value.type() == QVariant::List
                   ? value.toStringList().join(QLatin1Char(' '))
                   : value.toString();
    }

    bool hasAttributes(NodePtr node) const override { return !isNullNode(node); }
    QStringList nodeIds(NodePtr node) const override { return {object(node)->objectName()}; }
    bool isNullNode(NodePtr node) const override { return !node.ptr; }

    NodePtr parentNode(NodePtr node) const override
    {
        return WidgetSelector::node(isNullNode(node) ? nullptr : object(node)->parent());
    }

    NodePtr previousSiblingNode(NodePtr) const override { return node(nullptr); }
    NodePtr duplicateNode(NodePtr node) const override { return node; }
    void freeNode(NodePtr) const override {}

private:
    static const QObject* object(NodePtr node) { return static_cast<const QObject*>(node.ptr); }
};

quint64 bits(bool isOn, quint64 on, quint64 off)
{
    return isOn ? on : off;
}

/// The states of @p widget that its parts have too.
quint64 sharedStates(const QWidget* widget)
{
    using namespace QCss;
    quint64 states = bits(widget->isEnabled(), PseudoClass_Enabled, PseudoClass_Disabled) |
                     bits(widget->isActiveWindow(), PseudoClass_Active, 0) |
                     bits(widget->property("readOnly").toBool(), PseudoClass_ReadOnly, 0) |
                     bits(widget->property("editable").toBool(), PseudoClass_Editable, 0);
    const QVariant orientation = widget->property("orientation");
    if (orientation.isValid()) {
        states |= bits(orientation.toInt() == Qt::Horizontal, PseudoClass_Horizontal, PseudoClass_Vertical);
    }
    return states;
}

quint64 statesOf(const QWidget* widget)
{
    using namespace QCss;
    quint64 states = sharedStates(widget) | bits(widget->isWindow(), PseudoClass_Window, 0) |
                     bits(widget->hasFocus(), PseudoClass_Focus, 0) |
                     bits(widget->isEnabled() && widget->underMouse(), PseudoClass_Hover, 0) |
                     bits(widget->property("down").toBool(), PseudoClass_Pressed, 0) |
                     bits(widget->property("flat").toBool(), PseudoClass_Flat, 0) |
                     bits(widget->property("default").toBool(), PseudoClass_Default, 0);
    if (widget->property("checkable").toBool()) {
        states |= bits(widget->property("checked").toBool(), PseudoClass_Checked | PseudoClass_On,
                       PseudoClass_Unchecked | PseudoClass_Off);
    }
    return states;
}

/// What a selector demands of the states of a widget.
struct Demand
{
    explicit Demand(const QCss::Selector& selector)
        : part(selector.pseudoElement())
    {
        on = selector.pseudoClass(&off);
        if (on == QCss::PseudoClass_Unspecified) {
            on = 0;
        }
    }

    /// Whether @p other is met whenever this is.
    bool includes(const Demand& other) const
    {
        return part == other.part && (on & other.on) == other.on && (off & other.off) == other.off;
    }

    QString part;
    quint64 on = 0;
    quint64 off = 0;
};

bool holds(const Demand& demand, const QWidget* widget)
{
    if (demand.part.isEmpty()) {
        const quint64 states = statesOf(widget);
        return (states & demand.on) == demand.on && !(states & demand.off);
    }
    using namespace QCss;
    const quint64 known = PseudoClass_Enabled | PseudoClass_Disabled | PseudoClass_Active |
                          PseudoClass_ReadOnly | PseudoClass_Editable | PseudoClass_Horizontal |
                          PseudoClass_Vertical;
    const quint64 states = sharedStates(widget);
    return (states & demand.on & known) == (demand.on & known) && !(states & demand.off);
}

QString attributeText(const QCss::AttributeSelector& attribute)
{
    using Attribute = QCss::AttributeSelector;
    static const QHash<int, QString> signs = {
        {Attribute::MatchEqual, QStringLiteral("=")},      {Attribute::MatchIncludes, QStringLiteral("~=")},
        {Attribute::MatchDashMatch, QStringLiteral("|=")}, {Attribute::MatchBeginsWith, QStringLiteral("^=")},
        {Attribute::MatchEndsWith, QStringLiteral("$=")},  {Attribute::MatchContains, QStringLiteral("*=")},
    };
    if (attribute.valueMatchCriterium == Attribute::NoMatch) {
        return QStringLiteral("[%1]").arg(attribute.name);
    }
    if (attribute.name == QLatin1String("class") &&
        attribute.valueMatchCriterium == Attribute::MatchIncludes) {
        return QLatin1Char('.') + attribute.value;
    }
    return QStringLiteral("[%1%2\"%3\"]")
        .arg(attribute.name, signs.value(attribute.valueMatchCriterium), attribute.value);
}

QString combinatorText(QCss::BasicSelector::Relation relation)
{
    switch (relation) {
    case QCss::BasicSelector::NoRelation:
        break;
    case QCss::BasicSelector::MatchNextSelectorIfAncestor:
        return QStringLiteral(" ");
    case QCss::BasicSelector::MatchNextSelectorIfParent:
        return QStringLiteral(" > ");
    case QCss::BasicSelector::MatchNextSelectorIfDirectAdjecent:
        return QStringLiteral(" + ");
    case QCss::BasicSelector::MatchNextSelectorIfIndirectAdjecent:
        return QStringLiteral(" ~ ");
    }
    return {};
}

QString selectorText(const QCss::Selector& selector)
{
    QString text;
    for (const QCss::BasicSelector& part : selector.basicSelectors) {
        QString own = part.elementName;
        for (const QString& id : part.ids) {
            own += QLatin1Char('#') + id;
        }
        for (const QCss::AttributeSelector& attribute : part.attributeSelectors) {
            own += attributeText(attribute);
        }
        for (const QCss::Pseudo& pseudo : part.pseudos) {
            own += pseudo.type == QCss::PseudoClass_Unknown ? QStringLiteral("::") : QStringLiteral(":");
            own += (pseudo.negated ? QStringLiteral("!") : QString()) + pseudo.name;
        }
        text += (own.isEmpty() ? QStringLiteral("*") : own) + combinatorText(part.relationToNext);
    }
    return text;
}

/// Whether @p property sets all that @p other does.
bool sets(const QString& property, const QString& other)
{
    static const QStringList shorthands = {QStringLiteral("margin"), QStringLiteral("padding"),
                                           QStringLiteral("font"), QStringLiteral("border")};
    return property == other ||
           (shorthands.contains(property) && other.startsWith(property + QLatin1Char('-')) &&
            !other.contains(QLatin1String("radius")) && !other.contains(QLatin1String("image")));
}

/// A rule that applies, and what it demands.
struct Match
{
    AppliedRule rule;
    Demand demand;
    /// Of the rule in its sheet.
    int index;
};

/// Appends the rules of @p text, the strongest first.
void appendMatches(QVector<Match>& matches, const QWidget* widget, const SheetText& text,
                   const QWidget* owner)
{
    WidgetSelector selector;
    selector.styleSheets = {text.sheet()};
    const QVector<QCss::StyleRule> found = selector.styleRulesForNode(WidgetSelector::node(widget));
    const QVector<SheetText::Rule> rules = text.rules();
    for (auto it = found.crbegin(); it != found.crend(); ++it) {
        const QCss::Selector& selects = it->selectors.constFirst();
        const Demand demand(selects);
        AppliedRule rule;
        rule.selector = selectorText(selects);
        rule.specificity = selects.specificity();
        rule.owner = owner;
        rule.holdsNow = holds(demand, widget);
        const SheetText::Rule inText = rules.value(it->order);
        rule.line = inText.line;
        for (const SheetText::Declaration& declaration : inText.declarations) {
            rule.declarations.append({declaration});
        }
        const bool isFirst = std::none_of(matches.cbegin(), matches.cend(), [&](const Match& other) {
            return other.rule.owner == owner && other.index == it->order && other.demand.includes(demand) &&
                   demand.includes(other.demand);
        });
        // Another selector of a rule adds nothing but where it asks for other states.
        if (isFirst) {
            matches.append({rule, demand, it->order});
        }
    }
}

bool isOverridden(const QVector<Match>& matches, int index, int declaration)
{
    const Match& match = matches.at(index);
    const QString property = match.rule.declarations.at(declaration).property;
    for (int other = 0; other <= index; ++other) {
        const AppliedRule& stronger = matches.at(other).rule;
        // Within a rule, later ones win.
        const int first = other == index ? declaration + 1 : 0;
        for (int i = first; i < stronger.declarations.size(); ++i) {
            if (match.demand.includes(matches.at(other).demand) &&
                sets(stronger.declarations.at(i).property, property)) {
                return true;
            }
        }
    }
    return false;
}

/// A widget's own sheet may be declarations alone.
SheetText ownSheet(const QWidget* widget)
{
    SheetText text(widget->styleSheet());
    return text.errorLine() == 0 ? text : SheetText(QStringLiteral("* {%1}").arg(widget->styleSheet()));
}

} // namespace

QVector<AppliedRule> appliedRules(const QWidget* widget, const SheetText& sheet)
{
    QVector<Match> matches;
    // The nearer, the stronger.
    const QWidget* owner = widget;
    do {
        if (!owner->styleSheet().isEmpty()) {
            appendMatches(matches, widget, ownSheet(owner), owner);
        }
        owner = owner->parentWidget();
    } while (owner);
    appendMatches(matches, widget, sheet, nullptr);

    QVector<AppliedRule> rules;
    for (int i = 0; i < matches.size(); ++i) {
        AppliedRule rule = matches.at(i).rule;
        for (int j = 0; j < rule.declarations.size(); ++j) {
            rule.declarations[j].isOverridden = isOverridden(matches, i, j);
        }
        rules.append(rule);
    }
    return rules;
}
