#include "TestMain.h"

#include <WidgetToolkit/OvBoxLayout.h>
#include <WidgetToolkit/PropertyProviderBase.h>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(QWidget*)>)

namespace {

/// Publishes one value, as the helpers of painted components do.
class DotProvider : public PropertyProviderBase
{
    Q_OBJECT
    Q_PROPERTY(int radius MEMBER radius)

public:
    using PropertyProviderBase::PropertyProviderBase;
    int radius = 0;
};

/// Notes what its provider says in each of its own events.
class Dial : public QWidget
{
public:
    explicit Dial(QWidget* parent = nullptr, bool withProvider = true)
        : QWidget(parent)
    {
        if (withProvider) {
            provider = new DotProvider(this);
        }
    }

    DotProvider* provider = nullptr;
    QList<int> atPolish;
    QList<int> atResize;
    QList<int> atPaint;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Polish) {
            note(atPolish);
        }
        return QWidget::event(event);
    }
    void resizeEvent(QResizeEvent*) override { note(atResize); }
    void paintEvent(QPaintEvent*) override { note(atPaint); }

private:
    void note(QList<int>& list)
    {
        if (provider) {
            list += provider->radius;
        }
    }
};

const QString five = QStringLiteral("DotProvider { qproperty-radius: 5; }");
const QString six = QStringLiteral("DotProvider { qproperty-radius: 6; }");

} // namespace

class tst_PropertyProviderBase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void belongsToItsOwner()
    {
        QWidget owner;
        const PropertyProviderBase provider(&owner);
        QCOMPARE(provider.parentWidget(), &owner);
        QVERIFY(!provider.isWindow());
    }

    void withoutOwner()
    {
        QWidget owner;
        PropertyProviderBase provider(nullptr);
        QVERIFY(!provider.parentWidget());
        provider.show();
        QVERIFY(!provider.isVisible());
        provider.setParent(&owner);
        owner.show();
        QVERIFY(!provider.isVisible());
    }

    void neverVisible_data()
    {
        QTest::addColumn<std::function<void(QWidget*)>>("show");
        const auto row = [](const char* name, const std::function<void(QWidget*)>& show) {
            QTest::newRow(name) << show;
        };
        row("show", [](QWidget* widget) { widget->show(); });
        row("setVisible", [](QWidget* widget) { widget->setVisible(true); });
        row("setHidden", [](QWidget* widget) { widget->setHidden(false); });
        row("showNormal", [](QWidget* widget) { widget->showNormal(); });
        row("raise", [](QWidget* widget) { widget->raise(); });
        row("owner shown again", [](QWidget* widget) {
            widget->parentWidget()->hide();
            widget->parentWidget()->show();
        });
        row("reparented", [](QWidget* widget) {
            QWidget* const owner = widget->parentWidget();
            widget->setParent(nullptr);
            widget->setParent(owner);
            widget->show();
        });
        row("added to a layout", [](QWidget* widget) {
            auto* layout = new QVBoxLayout(widget->parentWidget());
            layout->addWidget(widget);
        });
    }

    void neverVisible()
    {
        QFETCH(std::function<void(QWidget*)>, show);
        QWidget owner;
        PropertyProviderBase provider(&owner);
        owner.show();
        QVERIFY(!provider.isVisible());
        show(&provider);
        QCoreApplication::processEvents();
        QVERIFY(!provider.isVisible());
        QVERIFY(provider.isHidden());
    }

    void neverTakesMouseOrFocus()
    {
        QWidget owner;
        PropertyProviderBase provider(&owner);
        owner.show();
        QCOMPARE(provider.focusPolicy(), Qt::NoFocus);
        QVERIFY(provider.testAttribute(Qt::WA_TransparentForMouseEvents));
        provider.resize(owner.size());
        QVERIFY(!owner.childAt(1, 1));
    }

    void takesNoRoomInALayout()
    {
        QWidget owner;
        new PropertyProviderBase(&owner);
        auto* filled = new OvVBoxLayout(&owner);
        filled->autoFill();
        QCOMPARE(filled->count(), 0);
        auto* added = new PropertyProviderBase(&owner);
        filled->addWidget(added);
        QCOMPARE(filled->sizeHint(), QSize(0, 0));
    }

    void isNotPainted()
    {
        qApp->setStyleSheet(
            QStringLiteral("QWidget { background: white; } DotProvider { background: red; }"));
        QWidget owner;
        owner.resize(50, 50);
        DotProvider provider(&owner);
        provider.setGeometry(0, 0, 50, 50);
        provider.setAutoFillBackground(true);
        QCOMPARE(owner.grab().toImage().pixelColor(25, 25), QColor(Qt::white));
    }

    void polishedBeforeFirstResizeAndPaint()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        dial.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dial));
        QTRY_VERIFY(!dial.atPaint.isEmpty());
        QVERIFY(!dial.atResize.isEmpty());
        QCOMPARE(dial.atResize.first(), 5);
        QCOMPARE(dial.atPaint.first(), 5);
    }

    void polishedBeforeItsOwnersPolishEvent()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        dial.ensurePolished();
        QCOMPARE(dial.atPolish, QList<int>{5});
    }

    void polishedBeforeExplicitResize()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        QResizeEvent resize(QSize(10, 10), QSize());
        QCoreApplication::sendEvent(&dial, &resize);
        QCOMPARE(dial.atResize, QList<int>{5});
    }

    void polishedWhenOnlyGrabbed_data()
    {
        QTest::addColumn<bool>("asChild");
        QTest::addColumn<bool>("grabParent");
        QTest::newRow("window") << false << false;
        QTest::newRow("child") << true << false;
        QTest::newRow("child of what is grabbed") << true << true;
    }

    void polishedWhenOnlyGrabbed()
    {
        QFETCH(bool, asChild);
        QFETCH(bool, grabParent);
        qApp->setStyleSheet(five);
        QWidget window;
        window.resize(60, 60);
        Dial dial(asChild ? &window : nullptr);
        dial.resize(40, 40);
        (grabParent ? &window : &dial)->grab();
        QVERIFY(!dial.atPaint.isEmpty());
        QCOMPARE(dial.atPaint.first(), 5);
        QVERIFY(dial.atResize.isEmpty() || dial.atResize.first() == 5);
    }

    void polishedAsChild()
    {
        QWidget window;
        window.setStyleSheet(five);
        OvVBoxLayout layout(&window);
        auto* dial = new Dial(&window);
        layout.autoFill();
        window.resize(80, 80);
        window.show();
        QTRY_VERIFY(!dial->atPaint.isEmpty());
        QCOMPARE(dial->atPaint.first(), 5);
        QCOMPARE(dial->atResize.first(), 5);
    }

    void madeAfterTheOwnerWasPolished()
    {
        qApp->setStyleSheet(five);
        Dial dial(nullptr, false);
        dial.ensurePolished();
        dial.provider = new DotProvider(&dial);
        dial.show();
        QTRY_VERIFY(!dial.atPaint.isEmpty());
        QCOMPARE(dial.atPaint.first(), 5);
        QVERIFY(dial.atResize.isEmpty() || dial.atResize.first() == 5);
    }

    void madeAfterTheOwnerWasShown()
    {
        qApp->setStyleSheet(five);
        Dial dial(nullptr, false);
        dial.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dial));
        dial.provider = new DotProvider(&dial);
        dial.resize(dial.size() + QSize(1, 1));
        QCOMPARE(dial.atResize, QList<int>{5});
        dial.update();
        QTRY_VERIFY(!dial.atPaint.isEmpty());
        QCOMPARE(dial.atPaint.first(), 5);
    }

    void selectedThroughItsOwner()
    {
        Dial dial;
        dial.setObjectName(QStringLiteral("volume"));
        dial.setStyleSheet(QStringLiteral(
            "DotProvider { qproperty-radius: 1; } #volume > DotProvider { qproperty-radius: 7; }"));
        dial.ensurePolished();
        QCOMPARE(dial.provider->radius, 7);
    }

    void applicationSheetChanges()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        dial.show();
        QCOMPARE(dial.provider->radius, 5);
        qApp->setStyleSheet(six);
        QCOMPARE(dial.provider->radius, 6);
    }

    void ancestorSheetChanges()
    {
        QWidget window;
        Dial dial(&window);
        window.show();
        QCOMPARE(dial.provider->radius, 0);
        window.setStyleSheet(five);
        QCOMPARE(dial.provider->radius, 5);
        window.setStyleSheet(six);
        QCOMPARE(dial.provider->radius, 6);
    }

    void sheetChangesWhileHidden()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        dial.show();
        dial.hide();
        qApp->setStyleSheet(six);
        dial.atPaint.clear();
        dial.show();
        QTRY_VERIFY(!dial.atPaint.isEmpty());
        QCOMPARE(dial.atPaint.first(), 6);
    }

    void ownerIsReparented()
    {
        QWidget one;
        QWidget other;
        one.setStyleSheet(five);
        other.setStyleSheet(six);
        Dial dial(&one);
        one.show();
        QCOMPARE(dial.provider->radius, 5);
        dial.setParent(&other);
        dial.atPaint.clear();
        dial.show();
        other.show();
        QTRY_VERIFY(!dial.atPaint.isEmpty());
        QCOMPARE(dial.atPaint.first(), 6);
    }

    void providerIsReparented()
    {
        qApp->setStyleSheet(five);
        Dial one;
        Dial other(nullptr, false);
        one.provider->setParent(&other);
        other.provider = one.provider;
        one.provider = nullptr;
        // The former owner polishes it no longer, the new one does.
        one.ensurePolished();
        QCOMPARE(other.provider->radius, 0);
        other.ensurePolished();
        QCOMPARE(other.provider->radius, 5);
    }

    void severalProviders()
    {
        qApp->setStyleSheet(five);
        Dial dial;
        const auto* second = new DotProvider(&dial);
        dial.ensurePolished();
        QCOMPARE(dial.provider->radius, 5);
        QCOMPARE(second->radius, 5);
    }

    void diesWithItsOwner()
    {
        auto dial = std::make_unique<Dial>();
        dial->show();
        const QPointer<DotProvider> provider = dial->provider;
        dial.reset();
        QVERIFY(!provider);
    }

    void deletedOnItsOwn()
    {
        Dial dial;
        dial.show();
        delete dial.provider;
        dial.provider = nullptr;
        dial.resize(77, 77);
        dial.hide();
        dial.show();
        QVERIFY(dial.isVisible());
    }
};

UIC_TEST_MAIN(tst_PropertyProviderBase)
#include "tst_PropertyProviderBase.moc"
