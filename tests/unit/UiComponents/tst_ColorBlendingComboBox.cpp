#include "AccessibleEars.h"
#include "PaintCount.h"
#include "TestMain.h"
#include "Wheel.h"

#include <UiComponents/ColorBlendingComboBox.h>

namespace {

constexpr int modeCount = 14;

BlendingMode mode(int number)
{
    return static_cast<BlendingMode>(number);
}

/// Translates the modes that it was given names for.
class Names : public QTranslator
{
public:
    explicit Names(const QHash<QString, QString>& names)
        : m_names(names)
    {
    }

    bool isEmpty() const override { return false; }

    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return qstrcmp(context, "blendingModes") == 0 ? m_names.value(QString::fromLatin1(text)) : QString();
    }

private:
    const QHash<QString, QString> m_names;
};

/// A language for as long as the object lives; the boxes have taken it over when it is there.
class Language
{
public:
    explicit Language(QTranslator* translator)
        : m_translator(translator)
    {
        QCoreApplication::installTranslator(translator);
        QCoreApplication::processEvents();
    }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    ~Language()
    {
        QCoreApplication::removeTranslator(m_translator);
        QCoreApplication::processEvents();
    }

private:
    QTranslator* const m_translator;
};

QStringList textsOf(const QComboBox& box)
{
    QStringList texts;
    for (int i = 0; i < box.count(); ++i) {
        texts += box.itemText(i);
    }
    return texts;
}

QList<int> numbersOf(const ColorBlendingComboBox& box)
{
    QList<int> numbers;
    for (int i = 0; i < box.count(); ++i) {
        numbers += box.blendingModeAt(i);
    }
    return numbers;
}

QStringList englishTexts()
{
    return {QStringLiteral("SourceOver"),  QStringLiteral("Color"),     QStringLiteral("ColorBurn"),
            QStringLiteral("ColorDodge"),  QStringLiteral("Darken"),    QStringLiteral("Difference"),
            QStringLiteral("Exclusion"),   QStringLiteral("HardLight"), QStringLiteral("Lighten"),
            QStringLiteral("LinearDodge"), QStringLiteral("Multiply"),  QStringLiteral("Overlay"),
            QStringLiteral("Screen"),      QStringLiteral("SoftLight")};
}

/// Names that turn the alphabet of most modes round, and begin late with SourceOver.
QHash<QString, QString> backwards()
{
    return {{QStringLiteral("SourceOver"), QStringLiteral("zz last of all")},
            {QStringLiteral("SoftLight"), QStringLiteral("A")},
            {QStringLiteral("Screen"), QStringLiteral("B")},
            {QStringLiteral("Color"), QStringLiteral("y, a name that is much longer than it was before")}};
}

void clickRow(QAbstractItemView* view, int row)
{
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

} // namespace

class tst_ColorBlendingComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithSourceOver()
    {
        QWidget parent;
        const auto* box = new ColorBlendingComboBox(&parent);
        QCOMPARE(box->parentWidget(), &parent);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(box->currentText(), QStringLiteral("SourceOver"));
        QCOMPARE(box->currentBlendingMode(), 5);
    }

    void listsTheModesByName()
    {
        const ColorBlendingComboBox box;
        QCOMPARE(textsOf(box), englishTexts());
        const QList<int> numbers = {5, 2, 10, 3, 9, 7, 13, 11, 1, 4, 8, 0, 6, 12};
        QCOMPARE(numbersOf(box), numbers);
        for (const int number : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, INT_MAX}) {
            QCOMPARE(box.indexOf(mode(number)), numbers.indexOf(number));
        }
    }

    void itemsHoldNumbersOnly()
    {
        const ColorBlendingComboBox box;
        QCOMPARE(box.count(), modeCount);
        for (int i = 0; i < modeCount; ++i) {
            QCOMPARE(box.itemData(i).userType(), static_cast<int>(QMetaType::Int));
            QVERIFY(box.itemIcon(i).isNull());
            // A separator is one by its accessible description.
            QVERIFY(!box.itemData(i, Qt::AccessibleDescriptionRole).isValid());
        }
    }

    void hasTheLookOfTheDesignSystem()
    {
        const ColorBlendingComboBox box;
        QCOMPARE(box.property("tessel"), QVariant(true));
        QCOMPARE(box.view()->objectName(), QStringLiteral("tesselComboBoxView"));
        QVERIFY(qobject_cast<QStyledItemDelegate*>(box.itemDelegate()));
    }

    void blendingModeAt_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("number");

        QTest::newRow("first") << 0 << 5;
        QTest::newRow("second") << 1 << 2;
        QTest::newRow("last") << 13 << 12;
        QTest::newRow("behind the last") << 14 << 0;
        QTest::newRow("before the first") << -1 << 0;
        QTest::newRow("largest") << std::numeric_limits<int>::max() << 0;
        QTest::newRow("smallest") << std::numeric_limits<int>::min() << 0;
    }

    void blendingModeAt()
    {
        QFETCH(int, index);
        const ColorBlendingComboBox box;
        QTEST(box.blendingModeAt(index), "number");
    }

    void noCurrentItem()
    {
        ColorBlendingComboBox box;
        box.setCurrentIndex(-1);
        QCOMPARE(box.currentBlendingMode(), 0);
    }

    void changesByCodeAreSilent()
    {
        ColorBlendingComboBox box;
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        box.setCurrentIndex(box.indexOf(BlendingMode::Screen));
        QCOMPARE(box.currentBlendingMode(), 6);
        box.setCurrentText(QStringLiteral("Multiply"));
        QCOMPARE(box.currentBlendingMode(), 8);
        box.setCurrentIndex(-1);
        QCoreApplication::processEvents();
        QCOMPARE(changed.count(), 0);
    }

    void choosingWithTheMouse()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        for (const int number : {8, 2, 12}) {
            box.showPopup();
            clickRow(box.view(), box.indexOf(mode(number)));
            QTRY_COMPARE(changed.count(), 1);
            QCOMPARE(changed.takeFirst().constFirst().value<BlendingMode>(), mode(number));
            QCOMPARE(box.currentBlendingMode(), number);
            QVERIFY(!box.view()->isVisible());
        }
    }

    void choosingTheCurrentItemAgain()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        QSignalSpy indexChanged(&box, QOverload<int>::of(&QComboBox::currentIndexChanged));
        for (int i = 1; i <= 2; ++i) {
            box.showPopup();
            clickRow(box.view(), 0);
            QTRY_COMPARE(changed.count(), i);
            QCOMPARE(changed.last().front().value<BlendingMode>(), BlendingMode::SourceOver);
        }
        QCOMPARE(indexChanged.count(), 0);
    }

    void choosingWithTheKeyboard()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().constFirst().value<BlendingMode>(), BlendingMode::Color);
        QTest::keyClick(&box, Qt::Key_End);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().constFirst().value<BlendingMode>(), BlendingMode::SoftLight);

        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_Home);
        QCOMPARE(changed.count(), 0);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.front().front().value<BlendingMode>(), BlendingMode::SourceOver);
    }

    void choosingWithTheWheel()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        box.setFocus();
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        QVERIFY(turnWheel(box, -120));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.front().front().value<BlendingMode>(), BlendingMode::Color);
    }

    void leavingTheListChoosesNothing()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_End);
        QTest::keyClick(box.view(), Qt::Key_Escape);
        QVERIFY(!box.view()->isVisible());
        QCOMPARE(changed.count(), 0);
        QCOMPARE(box.currentBlendingMode(), 5);
    }

    void sourceOverStaysFirst()
    {
        Names names(backwards());
        const Language language(&names);
        const ColorBlendingComboBox box;
        QCOMPARE(box.blendingModeAt(0), 5);
        QCOMPARE(box.itemText(0), QStringLiteral("zz last of all"));
        QCOMPARE(box.currentIndex(), 0);
    }

    void languageChangeSortsAnew()
    {
        const ColorBlendingComboBox box;
        Names names(backwards());
        const Language language(&names);
        const QStringList texts = textsOf(box);
        QCOMPARE(texts.mid(0, 4), (QStringList{QStringLiteral("zz last of all"), QStringLiteral("A"),
                                               QStringLiteral("B"), QStringLiteral("ColorBurn")}));
        QVERIFY(texts.last().startsWith(QStringLiteral("y, ")));
        QCOMPARE(numbersOf(box), (QList<int>{5, 12, 6, 10, 3, 9, 7, 13, 11, 1, 4, 8, 0, 2}));
        for (int number = 0; number < modeCount; ++number) {
            QCOMPARE(box.blendingModeAt(box.indexOf(mode(number))), number);
        }
        QCOMPARE(box.indexOf(mode(modeCount)), -1);
    }

    void thereAndBack()
    {
        const ColorBlendingComboBox box;
        Names names(backwards());
        {
            const Language language(&names);
            QVERIFY(textsOf(box) != englishTexts());
        }
        QCOMPARE(textsOf(box), englishTexts());
    }

    void upperCaseComesFirst()
    {
        const ColorBlendingComboBox box;
        Names names({{QStringLiteral("Color"), QStringLiteral("aa")}});
        const Language language(&names);
        QCOMPARE(box.indexOf(BlendingMode::Color), modeCount - 1);
    }

    void currentModeStays()
    {
        ColorBlendingComboBox box;
        box.setCurrentIndex(box.indexOf(BlendingMode::Screen));
        const int before = box.currentIndex();
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        Names names(backwards());
        const Language language(&names);
        QVERIFY(box.currentIndex() != before);
        QCOMPARE(box.currentBlendingMode(), 6);
        QCOMPARE(box.currentText(), QStringLiteral("B"));
        QCOMPARE(changed.count(), 0);
    }

    void boxShowsItsNewName()
    {
        ColorBlendingComboBox box;
        box.resize(260, 30);
        box.setCurrentIndex(box.indexOf(BlendingMode::Screen));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        const QImage before = box.grab().toImage();
        Names names(backwards());
        PaintCount paints(&box);
        const Language language(&names);
        QTRY_VERIFY(paints.count > 0);
        QVERIFY(box.grab().toImage() != before);
    }

    void openListIsSortedAnew()
    {
        ColorBlendingComboBox box;
        box.setCurrentIndex(box.indexOf(BlendingMode::Screen));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        QAbstractItemView* const view = box.view();
        QVERIFY(view->isVisible());
        Names names(backwards());
        const Language language(&names);

        QVERIFY(view->isVisible());
        QCOMPARE(view->model()->index(1, 0).data().toString(), QStringLiteral("A"));
        // The mark stays on the mode, on its new place in the list.
        QCOMPARE(view->currentIndex().data(Qt::UserRole).toInt(), 6);
        QCOMPARE(view->currentIndex().row(), 2);
        QCOMPARE(view->selectionModel()->selectedIndexes(), QModelIndexList{view->currentIndex()});
        QVERIFY(view->visualRect(view->model()->index(1, 0)).bottom() <
                view->visualRect(view->currentIndex()).top() + 1);
        box.hidePopup();
    }

    void openListIsWideEnough()
    {
        ColorBlendingComboBox box;
        box.resize(90, 30);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        box.showPopup();
        QAbstractItemView* const view = box.view();
        const int before = view->viewport()->width();
        Names names(backwards());
        const Language language(&names);
        const int needed = view->sizeHintForColumn(0);
        QVERIFY(needed > before);
        QVERIFY(view->viewport()->width() >= needed);
        QVERIFY(box.screen()->availableGeometry().contains(view->window()->geometry()));
        box.hidePopup();
    }

    void choosingFromAListThatWasSortedAnew()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QSignalSpy changed(&box, &ColorBlendingComboBox::blendingModeChanged);
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Down); // on ColorBurn
        {
            Names names(backwards());
            const Language language(&names);
            QTest::keyClick(box.view(), Qt::Key_Return);
        }
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.takeFirst().constFirst().value<BlendingMode>(), BlendingMode::ColorBurn);
        QCOMPARE(box.currentBlendingMode(), 10);

        box.showPopup();
        Names names(backwards());
        const Language language(&names);
        clickRow(box.view(), 1);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(changed.front().front().value<BlendingMode>(), BlendingMode::SoftLight);
    }

    void withoutSomeItems()
    {
        ColorBlendingComboBox box;
        box.removeItem(box.indexOf(BlendingMode::SourceOver));
        box.removeItem(box.indexOf(BlendingMode::Overlay));
        Names names(backwards());
        const Language language(&names);
        QCOMPARE(box.count(), modeCount - 2);
        QCOMPARE(box.indexOf(BlendingMode::SourceOver), -1);
        QCOMPARE(box.itemText(0), QStringLiteral("A"));
        box.clear();
        box.setCurrentIndex(0);
        QCOMPARE(box.currentBlendingMode(), 0);
    }

    void catalogues_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("sourceOver");
        QTest::addColumn<QString>("screen");

        const auto row = [](const char* code, const char* sourceOver, const char* screen) {
            QTest::newRow(code) << QString::fromLatin1(code) << QString::fromUtf8(sourceOver)
                                << QString::fromUtf8(screen);
        };
        row("ar", "عادي", "شاشة");
        row("de", "Normal", "Negativ multiplizieren");
        row("en", "Normal", "Screen");
        row("es", "Normal", "Trama");
        row("fr", "Normal", "Superposition");
        row("ja", "通常", "スクリーン");
        row("zh_CN", "正常", "滤色");
    }

    void catalogues()
    {
        QFETCH(QString, code);
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral("uicomponents_") + code,
                                QStringLiteral(":/uicomponents/translations")));
        const Language language(&translator);
        const ColorBlendingComboBox box;
        const QStringList texts = textsOf(box);
        QTEST(texts.first(), "sourceOver");
        QTEST(box.itemText(box.indexOf(BlendingMode::Screen)), "screen");
        QStringList sorted = texts.mid(1);
        std::sort(sorted.begin(), sorted.end());
        QCOMPARE(texts.mid(1), sorted);
        // Every mode has a name of its own, and none an enumerator's.
        QCOMPARE(QSet<QString>(texts.cbegin(), texts.cend()).size(), modeCount);
        static const QRegularExpression enumerator(QStringLiteral("[a-z][A-Z]"));
        QCOMPARE(texts.filter(enumerator), QStringList());
    }

    // QComboBox would ask for more room with a larger font, and hide its list when it is disabled.
    void baseClassSeesNoChangeEvent()
    {
        ColorBlendingComboBox box;
        OvComboBox other;
        other.addItem(QStringLiteral("Text"));
        for (OvComboBox* each : {static_cast<OvComboBox*>(&box), &other}) {
            each->show();
            QVERIFY(QTest::qWaitForWindowExposed(each));
            const QSize before = each->sizeHint();
            QFont larger = each->font();
            larger.setPointSize(larger.pointSize() * 2);
            each->setFont(larger);
            each->showPopup();
            each->setEnabled(false);
            const bool isOurs = each == &box;
            QCOMPARE(each->sizeHint() == before, isOurs);
            QCOMPARE(each->view()->isVisible(), isOurs);
        }
        box.hidePopup();
    }

    // QWidget would say it, which gets no change event.
    void readersHearOfADisabledBox()
    {
        ColorBlendingComboBox box;
        const AccessibleEars ears;
        static QVector<bool> heard;
        heard.clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::StateChanged &&
                qobject_cast<ColorBlendingComboBox*>(event->object()) &&
                static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().disabled) {
                heard += !event->accessibleInterface()->state().disabled;
            }
        });
        box.setEnabled(false);
        QCOMPARE(heard, QVector<bool>{false});
        box.setEnabled(true);
        QCOMPARE(heard, QVector<bool>({false, true}));
    }

    void disabledBoxIsPaintedAnew()
    {
        ColorBlendingComboBox box;
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCoreApplication::processEvents();
        PaintCount paints(&box);
        box.setEnabled(false);
        QTRY_VERIFY(paints.count > 0);
        paints.count = 0;
        box.setEnabled(true);
        QTRY_VERIFY(paints.count > 0);
    }
};

UIC_TEST_MAIN(tst_ColorBlendingComboBox)
#include "tst_ColorBlendingComboBox.moc"
