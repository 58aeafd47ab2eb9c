#pragma once

#include <Settings/SettingsStore.h>

#include <memory>

/// What a RecordingStore keeps, and how often it was asked.
struct Record
{
    QVariant value;
    int reads = 0;
    int writes = 0;
    bool isWritable = true;
};

/// Settings that keep one value in a record of the test, which counts.
class RecordingStore : public SettingsStore
{
public:
    explicit RecordingStore(std::shared_ptr<Record> record)
        : m_record(std::move(record))
    {
    }

    QVariant read(const QString&) const override
    {
        ++m_record->reads;
        return m_record->value;
    }

    bool write(const QString&, const QVariant& value) override
    {
        ++m_record->writes;
        if (m_record->isWritable) {
            m_record->value = value;
        }
        return m_record->isWritable;
    }

private:
    const std::shared_ptr<Record> m_record;
};
