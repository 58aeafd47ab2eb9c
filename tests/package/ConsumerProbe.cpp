// Preloaded into the example programs: looks at the window that they open, picks a colour the way a user
// does, and ends the program with 0 when all is as it should be. The programs themselves stay as they
// are printed in the README.

#include <QApplication>
#include <QLineEdit>
#include <QTimer>
#include <QToolButton>
#include <QtTest>

namespace {

const QColor startColour(0, 128, 128);
const QColor pickedColour(200, 80, 40);

QColor middleOf(QWidget* widget)
{
    const QImage image = widget->grab().toImage();
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}

/// Opens the field's panel, types a colour into it, and ends the pick.
bool type(const QWidget* window, QToolButton* button, const char* name, Qt::Key end)
{
    QTest::mouseClick(button, Qt::LeftButton);
    auto* popup = window->findChild<QWidget*>(QStringLiteral("colorPanelPopup"));
    auto* edit = popup ? popup->findChild<QLineEdit*>() : nullptr;
    if (!edit || !popup->isVisible() || !button->isDown()) {
        return false;
    }
    edit->selectAll();
    QTest::keyClicks(edit, QString::fromLatin1(name));
    const bool isFollowing = middleOf(button->findChild<QWidget*>(QStringLiteral("color"))) == QColor(name);
    QTest::keyClick(edit, end);
    return isFollowing && QTest::qWaitFor([button] { return !button->isDown(); });
}

/// The name of what went wrong; null when nothing did.
const char* examine()
{
    QWidget* window = nullptr;
    const bool isOpen = QTest::qWaitFor([&window] {
        const auto windows = QApplication::topLevelWidgets();
        for (QWidget* candidate : windows) {
            if (candidate->isVisible() && !candidate->windowTitle().isEmpty()) {
                window = candidate;
            }
        }
        return window != nullptr;
    });
    if (!isOpen || !QTest::qWaitForWindowExposed(window)) {
        return "no window";
    }
    auto* button = window->findChild<QToolButton*>(QStringLiteral("colorPicker"));
    if (!button || !button->parentWidget()->inherits("ColorInputWidget")) {
        return "no colour field";
    }
    auto* face = button->findChild<QWidget*>(QStringLiteral("color"));
    if (!face || middleOf(face) != startColour) {
        return "the field does not show its first colour";
    }

    if (!type(window, button, "#c85028", Qt::Key_Return)) {
        return "a click on the field opens no panel";
    }
    if (button->isDown() || middleOf(face) != pickedColour) {
        return "the field does not keep the colour";
    }
    if (!type(window, button, "#ffff00", Qt::Key_Escape) || middleOf(face) != pickedColour) {
        return "Escape does not give the colour back";
    }
    return nullptr;
}

void start()
{
    QTimer::singleShot(0, qApp, [] {
        const char* const problem = examine();
        if (problem) {
            qCritical("%s", problem);
        }
        QCoreApplication::exit(problem ? 1 : 0);
    });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(start)
