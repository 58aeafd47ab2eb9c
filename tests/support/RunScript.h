#pragma once

#include "WaylandInput.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/// ./run in a checkout where all that it would install and build is there: what is left of it is how it
/// chooses the platform and starts the gallery, here that of the tests.
class RunScript
{
public:
    RunScript()
    {
        const QDir root(QStringLiteral(UIC_TEST_DATA "/../../.."));
        const QString programs = QStringLiteral("build/release/bin");
        const QString gallery = QStringLiteral("/ui-components-gallery");
        QFile setup(m_folder.filePath(QStringLiteral("cmake/setup.sh")));
        m_isReady =
            m_folder.mkpath(QStringLiteral("cmake")) && m_folder.mkpath(programs) &&
            QFile::link(root.filePath(QStringLiteral("run")), m_folder.filePath(QStringLiteral("run"))) &&
            QFile::link(QCoreApplication::applicationDirPath() + gallery,
                        m_folder.path() + QLatin1Char('/') + programs + gallery) &&
            setup.open(QIODevice::WriteOnly) &&
            setup.write(". " + root.filePath(QStringLiteral("cmake/setup.sh")).toUtf8() +
                        "\nuic_install() { printf '%s\\n' \"$@\" >installed; }"
                        "\nuic_configure() { :; }\nuic_build() { :; }\n") > 0;
    }
    ~RunScript()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }

    /// Nobody has told Qt which platform to take, unless @p platform does.
    bool start(const QStringList& arguments, const QString& platform = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const QString variable = QStringLiteral("QT_QPA_PLATFORM");
        environment.remove(variable);
        if (!platform.isEmpty()) {
            environment.insert(variable, platform);
        }
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(m_folder.filePath(QStringLiteral("run")),
                        QStringList(QStringLiteral("--")) + arguments);
        return m_isReady && m_process.waitForStarted();
    }

    /// What the compositor shows the gallery with; see WaylandInput::shellOf().
    QString shell() const { return WaylandInput::shellOf(m_process.processId()); }

    /// The packages that it wanted.
    QByteArrayList packages() const
    {
        QFile file(m_folder.filePath(QStringLiteral("installed")));
        return file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QByteArrayList();
    }

private:
    const QTemporaryDir m_checkout;
    const QDir m_folder = QDir(m_checkout.path());
    QProcess m_process;
    bool m_isReady = false;
};
