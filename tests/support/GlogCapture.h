#pragma once

#include <QMutex>
#include <QStringList>

#include <glog/logging.h>

/**
 * Collects what is logged through glog while it lives, from any thread, each as
 * "WARNING QuickContent.cpp: the message". A program that uses it links glog::glog.
 */
class GlogCapture : public google::LogSink
{
public:
    GlogCapture() { google::AddLogSink(this); }
    ~GlogCapture() override { google::RemoveLogSink(this); }
    GlogCapture(const GlogCapture&) = delete;
    GlogCapture& operator=(const GlogCapture&) = delete;

    // Called by whichever thread logs.
    void send(google::LogSeverity severity, const char*, const char* baseFileName, int, const tm*,
              const char* message, size_t length) override
    {
        const QMutexLocker lock(&m_mutex);
        m_lines += QStringLiteral("%1 %2: %3")
                       .arg(QLatin1String(google::GetLogSeverityName(severity)), QLatin1String(baseFileName),
                            QString::fromUtf8(message, static_cast<int>(length)));
    }

    /// Since the last take().
    QStringList lines() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_lines;
    }
    QStringList take()
    {
        const QMutexLocker lock(&m_mutex);
        QStringList lines;
        lines.swap(m_lines);
        return lines;
    }

private:
    mutable QMutex m_mutex;
    QStringList m_lines;
};
