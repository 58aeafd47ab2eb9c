// What it costs to open a guide, and to keep a bubble aimed.

#include "ApplicationSheet.h"
#include "Compare.h"

#include <UiComponents/DialogGuideWidget.h>
#include <UiComponents/GuideButton.h>

#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QMovie>
#include <QPushButton>
#include <QTemporaryDir>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

using namespace Bench;

namespace {

constexpr int resizes = 1000;
constexpr int resizesPerFrame = 100;

QString title()
{
    return QStringLiteral("Ripple delete");
}
QString description()
{
    return QStringLiteral(
        "Deletes the selected clip and closes the gap: everything behind it moves up, on all "
        "tracks, so that sound and picture stay together.");
}
QString link()
{
    return QStringLiteral("<a href=\"https://example.org/\">More about editing</a>");
}

/// A GIF of two frames of 120 x 60 pixels, which Qt plays and cannot write.
QString movieFile()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("two-frames.gif"));
    QFile file(path);
    if (!file.exists() && file.open(QIODevice::WriteOnly)) {
        file.write(QByteArray::fromBase64(
            "R0lGODlheAA8APAAAP8AAAAAACH5BAAKAAAAIf8LTkVUU0NBUEUyLjADAQAAACwAAAAAeAA8AAACXoSPqcvtD6Oc"
            "tNqLs968+w+G4kiW5omm6sq27gvH8kzX9o3n+s73/g8MCofEovGITCqXzKbzCY1Kp9Sq9YrNarfcrvcLDovH5LL5"
            "jE6r1+y2+w2Py+f0uv2Oz+v3wAIAIfkEAAoAAAAsAAAAAHgAPACAAAD/AAAAAl6Ej6nL7Q+jnLTai7PevPsPhuJI"
            "luaJpurKtu4Lx/JM1/aN5/rO9/4PDAqHxKLxiEwql8ym8wmNSqfUqvWKzWq33K73Cw6Lx+Sy+YxOq9fstvsNj8vn"
            "9Lr9js/r98ACADs="));
    }
    return path;
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// What a host would write without the library: the same labels in a frame that is a pop-up.
class PlainPopup
{
public:
    PlainPopup()
    {
        m_button.setGeometry(100, 100, 40, 24);
        m_button.show();
    }

    void open(const QString& movie)
    {
        delete m_popup;
        m_popup = new QFrame(&m_button, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
        auto* layout = new QVBoxLayout(m_popup);
        addLabel(QStringLiteral("<b>%1</b>").arg(title()));
        if (!movie.isEmpty()) {
            auto* picture = new QLabel(m_popup);
            picture->setMovie(new QMovie(movie, QByteArray(), picture));
            picture->movie()->start();
            layout->addWidget(picture);
        }
        addLabel(description());
        addLabel(link());
        m_popup->move(m_button.mapToGlobal(QPoint(m_button.width() / 2, m_button.height())));
        m_popup->show();
    }

private:
    void addLabel(const QString& text)
    {
        auto* label = new QLabel(text, m_popup);
        label->setWordWrap(true);
        m_popup->layout()->addWidget(label);
    }

    QToolButton m_button;
    QFrame* m_popup = nullptr;
};

Pair openings(const QString& movie)
{
    qApp->setStyleSheet(applicationSheet());
    const auto button = std::make_shared<GuideButton>();
    button->setGeometry(100, 100, 40, 24);
    button->setGuideInfo(std::make_unique<GuideInfo>(title(), description(), link(), movie));
    button->show();
    const auto plain = std::make_shared<PlainPopup>();
    settle();
    const auto ours = [button] {
        button->click();
        settle();
    };
    const auto reference = [plain, movie] {
        plain->open(movie);
        settle();
    };
    return {{ours, settle}, {reference, settle}};
}

/// A window with something beside it that is kept at its right edge.
template <typename Follow>
Side resizing(const std::shared_ptr<QWidget>& window, Follow follow)
{
    return {[window, follow] {
        for (int i = 0; i < resizes; ++i) {
            window->resize(300 + i % 200, 200);
            follow();
            if (i % resizesPerFrame == resizesPerFrame - 1) {
                settle();
            }
        }
    }};
}

std::shared_ptr<QWidget> makeWindow()
{
    auto window = std::make_shared<QWidget>();
    window->setGeometry(50, 50, 300, 200);
    window->show();
    return window;
}

/// Points at a spot that moves with its parent's width.
class FollowingBubble : public DialogGuideWidget
{
public:
    using DialogGuideWidget::DialogGuideWidget;

protected:
    void adjustPositions() override
    {
        pointTo(parentWidget()->mapToGlobal(QPoint(parentWidget()->width() - 100, 100)));
    }
};

UIC_COMPARE("GuideButton/open its guide, against a frame of the same labels in a pop-up", atMost(2.0),
            [] { return openings(QString()); });
UIC_COMPARE("GuideButton/open its guide with a picture, against a frame of the same in a pop-up", noGoal(),
            [] { return openings(movieFile()); });
UIC_COMPARE("DialogGuideWidget/follow 1,000 resizes, ten frames, against a tool window moved by hand",
            noGoal(), [] {
                qApp->setStyleSheet(applicationSheet());
                const auto window = makeWindow();
                auto* bubble = new FollowingBubble(window.get());
                bubble->setInfo({title(), description(), QStringLiteral("Next"), QStringLiteral("Back"), {}});
                bubble->show();
                const auto other = makeWindow();
                auto* tool = new QFrame(other.get(), Qt::Tool | Qt::FramelessWindowHint);
                auto* layout = new QVBoxLayout(tool);
                auto* text = new QLabel(description(), tool);
                text->setWordWrap(true);
                layout->addWidget(new QLabel(title(), tool));
                layout->addWidget(text);
                layout->addWidget(new QPushButton(QStringLiteral("Next"), tool));
                tool->show();
                settle();
                const QWidget* const target = other.get();
                return Pair{resizing(window, [] {}),
                            resizing(other,
                                     [tool, target] {
                                         tool->move(target->mapToGlobal(QPoint(target->width() - 100, 100)));
                                     }),
                            resizes};
            });

} // namespace
