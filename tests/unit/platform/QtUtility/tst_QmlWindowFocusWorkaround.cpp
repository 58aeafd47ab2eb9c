#include "TestMain.h"

#include <QtUtility/QmlWindowFocusWorkaround.h>

using Orvane::Util::ApplyQmlWindowFocusWorkaround;

namespace {

/// A dialog with a field of its own before the host of the view in tab order.
struct Scene
{
    Scene()
    {
        auto* layout = new QHBoxLayout(&dialog);
        field = new QLineEdit(&dialog);
        layout->addWidget(field);
        host = new QWidget(&dialog);
        layout->addWidget(host);
        auto* inner = new QHBoxLayout(host);
        label = new QWidget(host); // takes no focus
        view = new QWidget(host);
        view->setFocusPolicy(Qt::StrongFocus);
        second = new QWidget(host);
        second->setFocusPolicy(Qt::StrongFocus);
        inner->addWidget(label);
        inner->addWidget(view);
        inner->addWidget(second);
    }

    void show()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }

    void activate(QWidget* window)
    {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    QDialog dialog;
    QLineEdit* field = nullptr;
    QWidget* host = nullptr;
    QWidget* label = nullptr;
    QWidget* view = nullptr;
    QWidget* second = nullptr;
};

int keepers(const QObject& dialog)
{
    int count = 0;
    for (const QObject* child : dialog.children()) {
        count += child->inherits("FocusKeeper") ? 1 : 0;
    }
    return count;
}

} // namespace

class tst_QmlWindowFocusWorkaround : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the others guard against: without the workaround their set-up must really need it.
    void withoutItTheFieldGetsTheFocus()
    {
        Scene scene;
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
    }

    void theViewGetsTheFocusWhenShown()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.view);
    }

    void focusInsideTheHostIsNotMoved()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.second->setFocus();
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.second);
        QDialog other;
        other.show();
        scene.activate(&other);
        scene.activate(&scene.dialog);
        QTRY_COMPARE(QApplication::focusWidget(), scene.second);
    }

    void hiddenAndDisabledViewsAreLeftOut()
    {
        Scene scene;
        auto* third = new QWidget(scene.host);
        third->setFocusPolicy(Qt::ClickFocus);
        scene.host->layout()->addWidget(third);
        scene.view->hide();
        scene.second->setEnabled(false);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), third);
    }

    void theHostItself()
    {
        Scene scene;
        scene.view->setFocusPolicy(Qt::NoFocus);
        scene.second->hide();
        scene.host->setFocusPolicy(Qt::StrongFocus);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.host);
    }

    void nothingToFocus()
    {
        Scene scene;
        scene.host->setEnabled(false);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
    }

    void aFieldThatTheUserWentToKeepsTheFocus()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        scene.field->setFocus();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
        QDialog other;
        other.show();
        scene.activate(&other);
        scene.activate(&scene.dialog);
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
    }

    void lostFocusComesBackOnActivation_data()
    {
        QTest::addColumn<bool>("isHidden");

        QTest::newRow("on the window itself") << false;
        QTest::newRow("on a hidden widget") << true;
    }

    void lostFocusComesBackOnActivation()
    {
        QFETCH(bool, isHidden);
        Scene scene;
        scene.dialog.setFocusPolicy(Qt::StrongFocus);
        auto* late = new QLineEdit(&scene.dialog); // so that the view is not just the next one in line
        scene.dialog.layout()->addWidget(late);
        QWidget::setTabOrder(late, scene.field);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        scene.field->setFocus();
        QDialog other;
        other.show();
        scene.activate(&other);
        if (isHidden) {
            scene.field->hide();
        } else {
            scene.dialog.setFocus();
        }
        QCOMPARE(scene.dialog.focusWidget(), isHidden ? scene.field : static_cast<QWidget*>(&scene.dialog));
        scene.activate(&scene.dialog);
        QTRY_COMPARE(QApplication::focusWidget(), scene.view);
    }

    void shownAgain()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        scene.field->setFocus();
        scene.dialog.hide();
        QCOMPARE(scene.dialog.focusWidget(), scene.field);
        // The offscreen platform does not activate a window a second time, so ask the window, not the
        // application.
        scene.dialog.show();
        QCOMPARE(scene.dialog.focusWidget(), scene.view);
    }

    void hostPutIntoAShownDialog()
    {
        Scene scene;
        scene.host->setParent(nullptr);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
        scene.dialog.layout()->addWidget(scene.host);
        scene.host->show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.view);
    }

    void hostTakenOutAndPutBack()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        for (int round = 0; round < 3; ++round) {
            scene.dialog.show();
            QCOMPARE(scene.dialog.focusWidget(), scene.view);
            scene.dialog.hide();
            scene.dialog.layout()->removeWidget(scene.host);
            scene.host->setParent(nullptr);
            scene.dialog.layout()->addWidget(scene.host);
            scene.host->show();
        }
    }

    void hostOutsideTheDialog()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        QWidget elsewhere;
        auto* layout = new QHBoxLayout(&elsewhere);
        auto* field = new QLineEdit(&elsewhere);
        layout->addWidget(field);
        layout->addWidget(scene.host);
        field->setFocus();
        elsewhere.show();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        QTRY_COMPARE(QApplication::focusWidget(), field);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
        QCOMPARE(elsewhere.focusWidget(), field);
    }

    void dialogInsideAnotherWindow()
    {
        QWidget window;
        auto* layout = new QHBoxLayout(&window);
        auto* outside = new QLineEdit(&window);
        auto* panel = new QWidget(&window);
        auto* host = new QWidget(panel);
        auto* view = new QWidget(host);
        view->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(outside);
        layout->addWidget(panel);
        ApplyQmlWindowFocusWorkaround(panel, host);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTRY_COMPARE(QApplication::focusWidget(), view);
    }

    void otherEventsMoveNothing()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        scene.show();
        scene.field->setFocus();
        scene.dialog.resize(400, 300);
        scene.view->setEnabled(false);
        scene.view->setEnabled(true);
        scene.label->hide();
        scene.label->show();
        QShowEvent unminimised;
        QSpontaneKeyEvent::setSpontaneous(&unminimised);
        qApp->notify(&scene.dialog, &unminimised);
        QTest::mouseClick(&scene.dialog, Qt::LeftButton);
        QTest::keyClick(scene.field, Qt::Key_A);
        QCoreApplication::processEvents();
        QCOMPARE(QApplication::focusWidget(), scene.field);
    }

    void appliedTwice()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        QCOMPARE(keepers(scene.dialog), 1);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.view);
    }

    void twoHosts()
    {
        Scene scene;
        auto* other = new QWidget(&scene.dialog);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, other);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        QCOMPARE(keepers(scene.dialog), 2);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.view);
    }

    void nullArguments()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(nullptr, nullptr);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, nullptr);
        ApplyQmlWindowFocusWorkaround(nullptr, scene.host);
        QCOMPARE(keepers(scene.dialog), 0);
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
    }

    void hostDiesFirst()
    {
        Scene scene;
        ApplyQmlWindowFocusWorkaround(&scene.dialog, scene.host);
        delete scene.host;
        scene.show();
        QTRY_COMPARE(QApplication::focusWidget(), scene.field);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(keepers(scene.dialog), 0);
        // A new host, perhaps at the same address, is one of its own.
        auto* host = new QWidget(&scene.dialog);
        ApplyQmlWindowFocusWorkaround(&scene.dialog, host);
        QCOMPARE(keepers(scene.dialog), 1);
    }

    void dialogDiesFirst()
    {
        QWidget host;
        auto* view = new QLineEdit(&host);
        {
            QDialog dialog;
            ApplyQmlWindowFocusWorkaround(&dialog, &host);
        }
        host.show();
        QVERIFY(QTest::qWaitForWindowActive(&host));
        QTRY_COMPARE(QApplication::focusWidget(), view);
    }
};

UIC_TEST_MAIN(tst_QmlWindowFocusWorkaround)
#include "tst_QmlWindowFocusWorkaround.moc"
