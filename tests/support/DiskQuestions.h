#pragma once

#include <QtCore/private/qabstractfileengine_p.h>

/// Counts while it lives how often anything asks Qt about a file or folder: QFileInfo, QDir and QFile come
/// here before they look at the disk.
class DiskQuestions : public QAbstractFileEngineHandler
{
public:
    QAbstractFileEngine* create(const QString&) const override
    {
        ++count;
        return nullptr;
    }

    mutable int count = 0;
};
