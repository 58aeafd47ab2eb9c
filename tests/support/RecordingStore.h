#pragma once

#include <Settings/SettingsStore.h>

#include <QColor>

#include <memory>

/// That many own colours, all different and none of the palette.
inline QStringList ownColors(int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i) {
        names += QColor(1, i / 256, i % 256).name();
    }
    return names;
}

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
