// What it costs to show a QML dialog, the first time and again.

#include "Compare.h"

#include <UiComponents/QuickContent.h>
#include <UiComponents/QuickDialog.h>

#include <QEvent>
#include <QFile>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QTemporaryDir>
#include <QWidget>

#include <memory>

using namespace Bench;

namespace {

// A question with two buttons, as small as a real one is.
const char* const scene = R"(
import QtQuick 2.15
Rectangle {
    width: 420; height: 180; radius: 12; color: "#2b2b2b"; border.color: "#4b4b4b"
    component Key: Rectangle {
        property string text
        signal clicked()
        width: 96; height: 32; radius: 5; color: "#464646"
        border.color: activeFocus ? "#5a9cf5" : "#5a5a5a"
        activeFocusOnTab: true
        Keys.onReturnPressed: clicked()
        Text { anchors.centerIn: parent; text: parent.text; color: "white" }
        MouseArea { anchors.fill: parent; onClicked: parent.clicked() }
    }
    Column {
        anchors.fill: parent; anchors.margins: 24; spacing: 12
        Text { text: "Discard the sequence?"; font.pixelSize: 18; color: "white" }
        Text { text: "Its cuts and titles will be gone."; font.pixelSize: 13; color: "#dedede" }
        Row {
            anchors.right: parent.right; spacing: 8
            Key { text: "Keep"; focus: true; onClicked: callback.reject() }
            Key { text: "Discard"; onClicked: callback.accept() }
        }
    }
})";

/// A dialog that ends itself when its scene has been painted.
class Dialog : public Qml::QuickDialog
{
public:
    explicit Dialog(const QString& path)
    {
        setQmlPath(path);
        content()->getUiContent()->findChild<QQuickWidget*>()->installEventFilter(this);
    }

    void run()
    {
        m_isAwaited = true;
        if (exec() != Accepted || m_isAwaited) {
            qFatal("the scene was not shown");
        }
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Once, or what is left of it would end the next run before its time.
        if (event->type() == QEvent::Paint && m_isAwaited) {
            m_isAwaited = false;
            QMetaObject::invokeMethod(this, &QDialog::accept, Qt::QueuedConnection);
        }
        return QuickDialog::eventFilter(watched, event);
    }

private:
    bool m_isAwaited = false;
};

QString writeScene(const QTemporaryDir& folder)
{
    QFile file(folder.filePath(QStringLiteral("Question.qml")));
    if (!file.open(QIODevice::WriteOnly) || file.write(scene) < 0) {
        qFatal("cannot write the scene");
    }
    return file.fileName();
}

// Until the scene has been painted. Making the dialog, with its engine, is on neither side.
UIC_COMPARE("QuickDialog/the second exec() of a dialog, against the first", atMost(0.2), [] {
    // There is no OpenGL off the screen.
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    const auto folder = std::make_shared<QTemporaryDir>();
    const QString path = writeScene(*folder);
    const auto known = std::make_shared<Dialog>(path);
    known->run();
    const auto fresh = std::make_shared<std::unique_ptr<Dialog>>();
    const Side first{[fresh] { (*fresh)->run(); }, [fresh, path] { *fresh = std::make_unique<Dialog>(path); },
                     [fresh, folder] { fresh->reset(); }};
    // Both sides run once a sample.
    const Side second{[known] { known->run(); }, [] {}, [] {}};
    return Pair{second, first};
});

} // namespace
