#include "SheetText.h"

#include <QApplication>
#include <QSet>
#include <QWidget>

#include <algorithm>
#include <private/qcssparser_p.h>
#include <utility>

namespace {

const QLatin1String propertyPrefix("qproperty-");

/// The hints of Qt's style that a sheet sets as properties; Qt's parser does not know them.
const QStringList& styleHints()
{
    static const QStringList hints =
        QString::fromLatin1("activate-on-singleclick alignment arrow-keys-navigate-into-children "
                            "button-layout combobox-list-mousetracking combobox-popup "
                            "dialogbuttonbox-buttons-have-icons dither-disable-text etch-disabled-text "
                            "gridline-color icon-size lineedit-password-character "
                            "lineedit-password-mask-delay mdi-fill-space-on-maximize menu-scrollable "
                            "menubar-altkey-navigation menubar-separator "
                            "messagebox-text-interaction-flags mouse-tracking opacity "
                            "paint-alternating-row-colors-for-empty-area "
                            "scrollbar-contextmenu scrollbar-leftclick-absolute-position "
                            "scrollbar-middleclick-absolute-position scrollbar-roll-between-buttons "
                            "scrollbar-scroll-when-pointer-leaves-control "
                            "scrollview-frame-around-contents show-decoration-selected "
                            "spinbox-click-autorepeat-rate spincontrol-disable-on-bounds "
                            "tabbar-elide-mode tabbar-prefer-no-arrows titlebar-show-tooltips-on-buttons "
                            "toolbutton-popup-delay widget-animation-duration")
            .split(QLatin1Char(' '));
    return hints;
}

/// The classes of all widgets of the application.
QSet<const QMetaObject*> classesInUse()
{
    QSet<const QMetaObject*> classes;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        classes.insert(widget->metaObject());
    }
    return classes;
}

/// Whether the type selector @p type selects widgets of @p meta.
bool selects(const QString& type, const QMetaObject* meta)
{
    while (meta && selectorName(meta) != type) {
        meta = meta->superClass();
    }
    return meta;
}

/// The type that @p selector selects by and nothing else; empty for any other selector.
QString onlyType(const QCss::Selector& selector)
{
    const QCss::BasicSelector& last = selector.basicSelectors.constLast();
    const bool isAlone = selector.basicSelectors.size() == 1 && last.ids.isEmpty() &&
                         last.pseudos.isEmpty() && last.attributeSelectors.isEmpty();
    return isAlone ? last.elementName : QString();
}

} // namespace

/// Walks through the text with the functions of Qt's parser, rule by rule.
class SheetText::Reader
{
public:
    explicit Reader(SheetText* sheet)
        : m_sheet(sheet)
        , m_parser(sheet->m_text)
    {
        // The parser replaces escape sequences first: positions are those in the result.
        const QString text = m_parser.symbols.isEmpty() ? QString() : m_parser.symbols.constFirst().text;
        for (int i = text.indexOf(QLatin1Char('\n')); i >= 0; i = text.indexOf(QLatin1Char('\n'), i + 1)) {
            m_lineEnds.append(i);
        }
    }

    void read()
    {
        skipBlanks();
        while (m_parser.hasNext()) {
            const int first = m_parser.index;
            if (!readAtRule() && (m_parser.index != first || !readRule())) {
                fail();
                return;
            }
            skipBlanks();
        }
    }

private:
    void skipBlanks()
    {
        while (m_parser.test(QCss::S) || m_parser.test(QCss::CDO) || m_parser.test(QCss::CDC)) {
        }
    }

    /// Widgets go by none of them. Has moved on where there is one that cannot be read.
    bool readAtRule()
    {
        QCss::ImportRule import;
        QCss::MediaRule media;
        QCss::PageRule page;
        return (m_parser.testImport() && m_parser.parseImport(&import)) ||
               (m_parser.testMedia() && m_parser.parseMedia(&media)) ||
               (m_parser.testPage() && m_parser.parsePage(&page));
    }

    bool readRule()
    {
        Rule rule;
        rule.line = lineOf(m_parser.index);
        QStringList types;
        do {
            m_parser.skipSpace();
            QCss::Selector selector;
            if (!m_parser.parseNextSelector(&selector)) {
                return false;
            }
            types.append(onlyType(selector));
        } while (m_parser.test(QCss::COMMA));
        m_parser.skipSpace();
        if (!m_parser.test(QCss::LBRACE)) {
            return false;
        }
        m_parser.skipSpace();
        while (!m_parser.test(QCss::RBRACE)) {
            if (!readDeclaration(&rule, types)) {
                fail();
                skipDeclaration();
            }
            if (!m_parser.hasNext()) {
                return false;
            }
        }
        m_sheet->m_rules.append(rule);
        return true;
    }

    bool readDeclaration(Rule* rule, const QStringList& types)
    {
        const int first = m_parser.index;
        QCss::Declaration declaration;
        if (!readAssignment(&declaration)) {
            return false;
        }
        const QString text = textFrom(first);
        const QString property = declaration.d->property;
        rule->declarations.append(
            {property, text.mid(text.indexOf(QLatin1Char(':')) + 1).trimmed(), lineOf(first)});
        const bool isOurs = property.startsWith(propertyPrefix, Qt::CaseInsensitive);
        const bool isKnown = isOurs ? !isMissing(property.mid(propertyPrefix.size()), types)
                                    : declaration.d->propertyId != QCss::UnknownProperty ||
                                          property.endsWith(QLatin1String("-icon")) ||
                                          styleHints().contains(property, Qt::CaseInsensitive);
        if (!isKnown) {
            setError(first, SheetText::tr("there is no property “%1”").arg(property));
            return false;
        }
        m_parser.skipSpace();
        if (!m_parser.test(QCss::SEMICOLON)) {
            return m_parser.hasNext() && m_parser.symbols.at(m_parser.index).token == QCss::RBRACE;
        }
        while (m_parser.test(QCss::SEMICOLON) || m_parser.test(QCss::S)) {
        }
        return true;
    }

    /// Goes on as Qt does, behind the next semicolon or at the end of the rule.
    void skipDeclaration()
    {
        const auto next = [this] {
            return m_parser.hasNext() ? m_parser.symbols.at(m_parser.index).token : QCss::RBRACE;
        };
        while (next() != QCss::SEMICOLON && next() != QCss::RBRACE) {
            m_parser.next();
        }
        while (m_parser.test(QCss::SEMICOLON) || m_parser.test(QCss::S)) {
        }
    }

    bool readAssignment(QCss::Declaration* declaration)
    {
        if (!m_parser.testProperty() || !m_parser.parseProperty(declaration) || !m_parser.test(QCss::COLON)) {
            return false;
        }
        m_parser.skipSpace();
        // Qt logs a warning for a colour with too few digits.
        for (int i = m_parser.index; i < m_parser.symbols.size(); ++i) {
            const QCss::Symbol& symbol = m_parser.symbols.at(i);
            if (symbol.token == QCss::SEMICOLON || symbol.token == QCss::RBRACE) {
                break;
            }
            if (symbol.token == QCss::HASH && !QColor::isValidColor(symbol.lexem())) {
                m_parser.index = i;
                return false;
            }
        }
        return m_parser.parseNextExpr(&declaration->d->values) &&
               (!m_parser.testPrio() || m_parser.parsePrio(declaration));
    }

    /// Whether a widget that one of @p types selects has no @p property, of which Qt logs a warning.
    bool isMissing(const QString& property, const QStringList& types)
    {
        if (m_classes.isEmpty()) {
            m_classes = classesInUse();
        }
        return std::any_of(m_classes.cbegin(), m_classes.cend(), [&](const QMetaObject* meta) {
            return meta->indexOfProperty(property.toLatin1().constData()) < 0 &&
                   std::any_of(types.cbegin(), types.cend(),
                               [meta](const QString& type) { return selects(type, meta); });
        });
    }

    /// Reports the token at which the parser stopped.
    void fail()
    {
        const auto isBlank = [this](int symbol) { return m_parser.symbols.at(symbol).token == QCss::S; };
        int at = m_parser.index;
        while (at < m_parser.symbols.size() && isBlank(at)) {
            ++at;
        }
        if (at < m_parser.symbols.size()) {
            setError(at, SheetText::tr("error near “%1”").arg(m_parser.symbols.at(at).lexem().simplified()));
            return;
        }
        do {
            --at;
        } while (at > 0 && isBlank(at));
        setError(at, SheetText::tr("the rule has no end"));
    }

    /// The first one counts.
    void setError(int symbol, const QString& message)
    {
        if (m_sheet->m_errorLine) {
            return;
        }
        m_sheet->m_errorLine = lineOf(symbol);
        m_sheet->m_error = message;
    }

    int lineOf(int symbol) const
    {
        if (symbol < 0) {
            return 1;
        }
        // The blanks before a brace are a part of it.
        const QString lexem = m_parser.symbols.at(symbol).lexem();
        const auto text = std::find_if(lexem.cbegin(), lexem.cend(), [](QChar c) { return !c.isSpace(); });
        const int start = m_parser.symbols.at(symbol).start + int(std::distance(lexem.cbegin(), text));
        const auto end = std::lower_bound(m_lineEnds.cbegin(), m_lineEnds.cend(), start);
        return int(std::distance(m_lineEnds.cbegin(), end)) + 1;
    }

    /// The text from the symbol @p first to the present one, on one line.
    QString textFrom(int first) const
    {
        QString text;
        for (int i = first; i < m_parser.index; ++i) {
            const QString lexem = m_parser.symbols.at(i).lexem();
            text += lexem.startsWith(QLatin1String("/*")) ? QString() : lexem;
        }
        return text.simplified();
    }

    SheetText* const m_sheet;
    QCss::Parser m_parser;
    QVector<int> m_lineEnds;
    QSet<const QMetaObject*> m_classes;
};

QString selectorName(const QMetaObject* meta)
{
    return QString::fromLatin1(meta->className()).replace(QLatin1Char(':'), QLatin1Char('-'));
}

SheetText::SheetText(QString text)
    : m_text(std::move(text))
{
    Reader(this).read();
}

const QCss::StyleSheet& SheetText::sheet() const
{
    if (!m_sheet) {
        auto sheet = std::make_shared<QCss::StyleSheet>();
        QCss::Parser(m_text).parse(sheet.get());
        sheet->origin = QCss::StyleSheetOrigin_Inline;
        m_sheet = std::move(sheet);
    }
    return *m_sheet;
}
