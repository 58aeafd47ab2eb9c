#pragma once

#include <UiComponents/UiComponentsExport.h>

#include <QColor>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QWindow;

/**
 * Picks a colour of the screen in the place of Pipette's own windows.
 *
 * Pipette covers the screens itself where the program may read them. On Wayland no program may: there the
 * desktop's portal shows a picker of its own (org.freedesktop.portal.Screenshot). A host with another
 * source, and a test, implement this class and install() an object of it, which all pipettes use from then
 * on.
 *
 * Everything is asynchronous: pick() only sends the request, and the answer comes from the event loop. One
 * for the tests of a host, whose user always picks red:
 *
 *     class RedScreen : public ScreenColorSource
 *     {
 *         QString unavailableReason() const override { return {}; }
 *         std::unique_ptr<QObject> pick(QWindow*, Answer answer) override
 *         {
 *             auto request = std::make_unique<QObject>();
 *             QTimer::singleShot(0, request.get(), [answer] { answer({Qt::red, {}}); });
 *             return request;
 *         }
 *     };
 *
 * @see Pipette::unavailableReason(), Orvane::Util::IsPrivacyAccessGranted()
 */
class UICOMPONENTS_EXPORT ScreenColorSource : public QObject
{
    Q_OBJECT

public:
    /// What came of a request: a valid colour; or no colour and no reason, when the user gave up; or no
    /// colour and a sentence for the user that says why there is none.
    struct Result
    {
        QColor color;
        QString reason;
    };

    using Answer = std::function<void(const Result&)>;

    /// The source that pipettes use: the one that is installed, or the desktop's portal where the program may
    /// not read the screen (see PrivacyAccess.h). Null where pipettes show their own windows, and where there
    /// are no portals, as on macOS. The portal is looked for at the first call.
    static ScreenColorSource* current();

    /// Makes all pipettes use @p source from their next pick on, whether the program may read the screen or
    /// not; null, or deleting it, restores the platform's. It is not owned. Install it before there are
    /// colour panels, whose buttons listen to the source that they find.
    static void install(ScreenColorSource* source);

    explicit ScreenColorSource(QObject* parent = nullptr);
    ~ScreenColorSource() override;

    /// Why no colour can be picked, in a sentence for the user, such as a tool tip; empty where it can be,
    /// and while that is not known yet. Returns at once.
    virtual QString unavailableReason() const = 0;

    /// Sends a request, for which the desktop may show a dialog of its own above @p parent, which may be
    /// null.
    /// @p answer is called at most once, from the event loop, and may delete anything. Deleting what this
    /// returns, which is never null, withdraws the request without an answer. Several requests may run.
    virtual std::unique_ptr<QObject> pick(QWindow* parent, Answer answer) = 0;

Q_SIGNALS:
    /// unavailableReason() is another one now, as when a portal starts.
    void unavailableReasonChanged();
};
