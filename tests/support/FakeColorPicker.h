#pragma once

#include <UiComponents/AbstractColorPicker.h>

#include <QStringList>

#include <functional>
#include <vector>

/// A picker that does what a test tells it to, and notes in order what it was asked to do.
class FakeColorPicker : public AbstractColorPicker
{
public:
    using AbstractColorPicker::AbstractColorPicker;
    ~FakeColorPicker() override
    {
        if (onDestruction) {
            onDestruction();
        }
    }

    bool isInProgress() const override { return m_inProgress; }

    void pick() override
    {
        calls += QStringLiteral("pick");
        m_inProgress = true;
        if (onPick) {
            // A copy: the call may delete this picker, and with it the function.
            const auto call = onPick;
            call();
        }
    }

    void stop() override
    {
        calls += QStringLiteral("stop");
        if (m_inProgress) {
            finish(m_color);
        }
    }

    std::optional<QColor> color() override
    {
        // A copy: the call may delete this picker.
        std::optional<QColor> color = m_color;
        if (onColor) {
            const auto call = onColor;
            call();
        }
        return color;
    }

    void setColor(const std::optional<QColor>& color) override
    {
        calls += QStringLiteral("setColor");
        received.push_back(color);
        if (onSetColor) {
            onSetColor(color);
        }
    }

    /// Reports a colour while picking.
    void preview(const std::optional<QColor>& color)
    {
        m_color = color;
        Q_EMIT colorChanged(color);
    }

    /// Ends the pick with a final colour.
    void finish(const std::optional<QColor>& color)
    {
        m_color = color;
        m_inProgress = false;
        Q_EMIT pickingStopped();
    }

    /// Ends the pick without a signal.
    void finishInSilence() { m_inProgress = false; }

    std::function<void()> onPick;
    std::function<void()> onColor;
    std::function<void()> onDestruction;
    std::function<void(const std::optional<QColor>&)> onSetColor;
    QStringList calls;
    std::vector<std::optional<QColor>> received;

private:
    std::optional<QColor> m_color;
    bool m_inProgress = false;
};
