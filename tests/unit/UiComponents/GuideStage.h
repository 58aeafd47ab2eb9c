#pragma once

#include "Part.h"

#include <WidgetToolkit/OvPixmapWidget.h>

#include <QDesktopServices>
#include <QLabel>
#include <QMovie>
#include <QUrl>
#include <QtTest>

#include <functional>

/// 120 x 60 pixels, three frames of 30 ms each, for ever.
inline QString animation()
{
    return QStringLiteral(UIC_TEST_DATA "/guide.gif");
}

inline QString words(int count)
{
    return QStringLiteral("frame ").repeated(count).trimmed();
}

/// The height of the label's text in lines of @p width.
inline int neededHeight(const QLabel* label, int width)
{
    QLabel fresh(label->text());
    fresh.setWordWrap(true);
    return fresh.heightForWidth(width);
}

inline OvPixmapWidget* pixmapOf(const QWidget& guide)
{
    return partOf<OvPixmapWidget>(guide, "gifPixmapWidget");
}

inline QMovie* movie(const QWidget& guide)
{
    return pixmapOf(guide)->movie();
}

inline void clickLink(const QWidget& guide)
{
    auto* const learnMore = partOf<QLabel>(guide, "learnMoreLabel");
    QTest::mouseClick(learnMore, Qt::LeftButton, {}, QPoint(12, learnMore->height() / 2));
}

/// What is asked to open the URLs of tests while it lives.
class UrlHandler : public QObject
{
    Q_OBJECT

public:
    static QString scheme() { return QStringLiteral("uic-guide-test"); }

    UrlHandler() { QDesktopServices::setUrlHandler(scheme(), this, "open"); }
    ~UrlHandler() override { QDesktopServices::unsetUrlHandler(scheme()); }

    Q_INVOKABLE void open(const QUrl& url)
    {
        opened += url;
        if (onOpen) {
            onOpen();
        }
    }

    QList<QUrl> opened;
    std::function<void()> onOpen;
};
