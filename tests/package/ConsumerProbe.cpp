// Preloaded into the example programs: looks at the window that they open, picks a colour the way a user
// does, and ends the program with 0 when all is as it should be. The programs themselves stay as they
// are printed in the README.

#include <QApplication>
#include <QColorDialog>
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

// The name of what went wrong; null when nothing did.
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

    QTest::mouseClick(button, Qt::LeftButton);
    QColorDialog* dialog = nullptr;
    const bool isAsking = QTest::qWaitFor([&dialog] {
        dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        return dialog != nullptr;
    });
    if (!isAsking || !button->isDown()) {
        return "a click on the field opens no dialog";
    }
    dialog->setCurrentColor(pickedColour);
    if (middleOf(face) != pickedColour) {
        return "the field does not follow the dialog";
    }
    dialog->accept();
    if (button->isDown() || middleOf(face) != pickedColour) {
        return "the field does not keep the colour";
    }

    QTest::mouseClick(button, Qt::LeftButton);
    dialog->setCurrentColor(Qt::yellow);
    dialog->reject();
    if (button->isDown() || middleOf(face) != pickedColour) {
        return "cancelling does not give the colour back";
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
