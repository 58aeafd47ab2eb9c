#pragma once

#include <UiComponents/ScreenColorSource.h>

#include <QPointer>
#include <QVector>
#include <QWindow>

#include <utility>

/// A source of colours that answers when the test says so.
class FakeScreenColors : public ScreenColorSource // clazy:exclude=missing-qobject-macro
{
public:
    /// What pick() was given. Withdrawn when its handle is gone.
    struct Request
    {
        QPointer<QWindow> parent;
        Answer answer;
        QPointer<QObject> handle;
    };

    QString unavailableReason() const override { return m_reason; }

    std::unique_ptr<QObject> pick(QWindow* parent, Answer answer) override
    {
        auto handle = std::make_unique<QObject>();
        requests.append({parent, std::move(answer), handle.get()});
        return handle;
    }

    void setReason(const QString& reason)
    {
        m_reason = reason;
        Q_EMIT unavailableReasonChanged();
    }

    QVector<Request> requests;

private:
    QString m_reason;
};
