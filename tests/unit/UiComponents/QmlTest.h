#pragma once

#include "GlogCapture.h"
#include "QmlFiles.h"

#include <QtTest>

#include <memory>

/// A test with QML files, whose functions take from the log what they expect there.
class QmlTest : public QObject
{
    Q_OBJECT

protected:
    std::unique_ptr<QmlFiles> m_files;
    std::unique_ptr<GlogCapture> m_log;

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<QmlFiles>();
        m_log = std::make_unique<GlogCapture>();
    }

    void cleanup()
    {
        QCOMPARE(m_log->take(), QStringList());
        m_log.reset();
        m_files.reset();
    }
};
