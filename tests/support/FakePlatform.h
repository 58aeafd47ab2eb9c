#pragma once

#include <QRect>
#include <QString>

// What the off-screen platform cannot be or do by itself, each as long as the object lives.

/// QGuiApplication::platformName() gives another name, for what decides by it. All else stays.
class PlatformName
{
public:
    explicit PlatformName(const QString& name);
    ~PlatformName();
    PlatformName(const PlatformName&) = delete;
    PlatformName& operator=(const PlatformName&) = delete;

private:
    const QString m_former;
};

/// The application is in another state, of which Qt has told nobody.
class UntoldState
{
public:
    explicit UntoldState(Qt::ApplicationState state);
    ~UntoldState();
    UntoldState(const UntoldState&) = delete;
    UntoldState& operator=(const UntoldState&) = delete;

private:
    const Qt::ApplicationState m_former;
};

/// Another screen is plugged in.
class SecondScreen
{
public:
    explicit SecondScreen(const QRect& geometry);
    ~SecondScreen();
    SecondScreen(const SecondScreen&) = delete;
    SecondScreen& operator=(const SecondScreen&) = delete;

    void setGeometry(const QRect& geometry);

    /// Whether another application's windows lie over all others there.
    void setCovered(bool covered);

private:
    class Platform;
    /// Belongs to Qt.
    Platform* const m_platform;
};
