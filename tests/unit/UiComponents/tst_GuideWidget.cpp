#include "FreedMemory.h"
#include "GuideStage.h"
#include "PaintCount.h"
#include "TestMain.h"
#include "TimerCounter.h"

#include <ApplicationUtility/Customization.h>
#include <UiComponents/GuideWidget.h>
#include <WidgetToolkit/OvBoxLayout.h>

#include <memory>

namespace {

QString link(const QString& target)
{
    return QStringLiteral("<a href=\"%1\">Learn more about it</a>").arg(target);
}

GuideInfo fullInfo()
{
    return {QStringLiteral("Ripple delete"), QStringLiteral("Closes the gap that a clip leaves."),
            link(UrlHandler::scheme() + QStringLiteral(":ripple")), animation()};
}

GuideInfo described(const QString& description)
{
    return {QString(), description, QString(), QString()};
}

QLabel* label(const QWidget& guide, const char* name)
{
    return guide.findChild<QLabel*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
}

/// The names of the parts that a guide shows, or would show if it were shown itself.
QStringList visibleParts(const QWidget& guide)
{
    QStringList names;
    const auto children = guide.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        if (!child->isHidden()) {
            names += child->objectName();
        }
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(GuideInfo)

class tst_GuideWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheInfo()
    {
        const GuideInfo info = fullInfo();
        const GuideWidget guide(info, nullptr);
        QCOMPARE(label(guide, "headerLabel")->text(), Customization::localeDependedBoldText(info.title));
        QCOMPARE(pixmapOf(guide)->moviePath(), info.moviePath);
        QVERIFY(movie(guide));
        QCOMPARE(label(guide, "descriptionLabel")->text(), info.description);
        QCOMPARE(label(guide, "learnMoreLabel")->text(), info.learnMore);
        QCOMPARE(visibleParts(guide).size(), 4);
    }

    void onlyTitleIsASingleBoldLabel()
    {
        GuideWidget guide(GuideInfo(QStringLiteral("Trim"), QString(), QString(), QString()), nullptr);
        guide.show();
        QCOMPARE(visibleParts(guide), QStringList({QStringLiteral("headerLabel")}));
        const QLabel* const header = label(guide, "headerLabel");
        QVERIFY(header->isVisible());
        QCOMPARE(header->size(), guide.size());
        QCOMPARE(header->text(), Customization::localeDependedBoldText(QStringLiteral("Trim")));
    }

    void emptyInfoHidesAllParts()
    {
        QWidget parent;
        GuideWidget guide(&parent);
        QCOMPARE(guide.parentWidget(), &parent);
        guide.show();
        parent.show();
        QCOMPARE(visibleParts(guide), QStringList());
        QCOMPARE(guide.sizeHint(), QSize(0, 0));
        QVERIFY(!movie(guide));
        guide.setInfo(fullInfo());
        QCOMPARE(visibleParts(guide).size(), 4);
        guide.setInfo(GuideInfo());
        QCOMPARE(visibleParts(guide), QStringList());
        QVERIFY(!movie(guide));
    }

    void emptyPartsAreHidden_data()
    {
        QTest::addColumn<QString>("part");
        QTest::addColumn<int>("field");
        QTest::newRow("title") << QStringLiteral("headerLabel") << 0;
        QTest::newRow("movie") << QStringLiteral("gifPixmapWidget") << 1;
        QTest::newRow("description") << QStringLiteral("descriptionLabel") << 2;
        QTest::newRow("link") << QStringLiteral("learnMoreLabel") << 3;
    }

    void emptyPartsAreHidden()
    {
        QFETCH(QString, part);
        QFETCH(int, field);
        QString GuideInfo::*const fields[] = {&GuideInfo::title, &GuideInfo::moviePath,
                                              &GuideInfo::description, &GuideInfo::learnMore};
        GuideInfo info = fullInfo();
        info.*fields[field] = QString();

        GuideWidget guide(info, nullptr);
        guide.show();
        QVERIFY(!visibleParts(guide).contains(part));
        QCOMPARE(visibleParts(guide).size(), 3);
        guide.setInfo(fullInfo());
        QCOMPARE(visibleParts(guide).size(), 4);
        guide.setInfo(info);
        QVERIFY(!visibleParts(guide).contains(part));
    }

    void descriptionMayBeRichText()
    {
        const QString rich = QStringLiteral("Press <b>Delete</b>,<br>and again.");
        const GuideWidget guide(described(rich), nullptr);
        const QLabel* const description = label(guide, "descriptionLabel");
        QCOMPARE(description->text(), rich);
        const QLabel twoLines(QStringLiteral("Press Delete,\nand again."));
        QCOMPARE(description->heightForWidth(1000), twoLines.sizeHint().height());
    }

    void keepsItsOwnCopy()
    {
        auto info = std::make_unique<GuideInfo>(fullInfo());
        GuideWidget guide(*info, nullptr);
        info->title = QStringLiteral("Changed by its owner");
        guide.setInfo(*info);
        QVERIFY(label(guide, "headerLabel")->text().contains(QLatin1String("Changed")));
        info.reset();
        guide.setInfo(fullInfo());
        QVERIFY(label(guide, "headerLabel")->text().contains(QLatin1String("Ripple")));
    }

    void equalInfoDoesNothing()
    {
        GuideWidget guide(fullInfo(), nullptr);
        guide.show();
        guide.resize(500, 400);
        // What filling anew would overwrite.
        label(guide, "descriptionLabel")->setText(QStringLiteral("touched"));
        label(guide, "headerLabel")->hide();
        const QPointer<QMovie> playing = movie(guide);
        guide.setInfo(fullInfo());
        QCOMPARE(label(guide, "descriptionLabel")->text(), QStringLiteral("touched"));
        QVERIFY(label(guide, "headerLabel")->isHidden());
        QCOMPARE(guide.size(), QSize(500, 400));
        QCOMPARE(movie(guide), playing.data());
    }

    void changedInfoAdjustsTheSize()
    {
        QWidget parent;
        GuideWidget guide(described(QStringLiteral("Short")), &parent);
        guide.resize(300, 200);
        guide.setInfo(described(QStringLiteral("Other")));
        QCOMPARE(guide.size(), guide.sizeHint());
        QVERIFY(guide.height() < 200);
    }

    void infoChangedWhileShown()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* guide = new GuideWidget(fullInfo(), &window);
        layout->addWidget(guide);
        layout->addStretch();
        window.resize(300, 400);
        window.show();
        const int before = guide->height();
        guide->setInfo(GuideInfo(QStringLiteral("Slip"), words(100), QString(), QString()));
        QTRY_VERIFY(guide->geometry().width() == layout->contentsRect().width());
        QTRY_VERIFY(guide->height() > before);
        const QLabel* const description = label(*guide, "descriptionLabel");
        QTRY_VERIFY(description->height() >= description->heightForWidth(description->width()));
        QVERIFY(!pixmapOf(*guide)->isVisible());
    }

    void linksHaveTheColorOfTheirLabel_data()
    {
        QTest::addColumn<QString>("sheet");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("color");
        const QString plain = QStringLiteral("<a href=\"x:y\">More</a>");
        const QString sheet = QStringLiteral("QLabel { color: #ff8000; }");
        QTest::newRow("without a sheet")
            << QString() << plain << QApplication::palette().color(QPalette::Link);
        QTest::newRow("of a sheet") << sheet << plain << QColor(0xff, 0x80, 0x00);
        QTest::newRow("of its own") << sheet
                                    << QStringLiteral("<a href=\"x:y\" style=\"color: #00ff00\">More</a>")
                                    << QColor(Qt::green);
    }

    // Qt takes that of the application's palette, and dark blue is not read on a dark surface.
    void linksHaveTheColorOfTheirLabel()
    {
        QFETCH(QString, sheet);
        QFETCH(QString, text);
        QFETCH(QColor, color);
        GuideWidget guide(GuideInfo(QString(), QString(), text, QString()), nullptr);
        const auto shows = [&guide](const QColor& wanted) {
            const QImage picture = guide.grab().toImage();
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixelColor(x, y) == wanted) {
                        return true;
                    }
                }
            }
            return false;
        };
        guide.show();
        guide.setStyleSheet(sheet);
        QVERIFY(shows(color));
        guide.setStyleSheet(QStringLiteral("QLabel { color: #ff00ff; }"));
        QCOMPARE(shows(Qt::magenta), color != QColor(Qt::green));
        guide.setStyleSheet(sheet);
        QVERIFY(shows(color));
    }

    void minimumHeightsAreForTheWidth()
    {
        QWidget parent;
        GuideWidget guide(GuideInfo(), &parent);
        guide.resize(150, 30);
        guide.setInfo(GuideInfo(words(20), words(60), link(QStringLiteral("x")), QString()));
        const QLabel* const header = label(guide, "headerLabel");
        const QLabel* const description = label(guide, "descriptionLabel");
        QCOMPARE(header->minimumHeight(), neededHeight(header, 150));
        QCOMPARE(description->minimumHeight(), neededHeight(description, 150));
        QVERIFY(description->minimumHeight() > 10 * QFontMetrics(description->font()).height());
        QCOMPARE(label(guide, "learnMoreLabel")->minimumHeight(), 0);
        QVERIFY(guide.height() >= header->minimumHeight() + description->minimumHeight());
    }

    void widthOfTheSheetCounts()
    {
        QWidget parent;
        parent.setStyleSheet(QStringLiteral("GuideWidget { min-width: 700px; }"));
        const GuideWidget guide(described(words(60)), &parent);
        QCOMPARE(guide.width(), 700);
        const QLabel* const description = label(guide, "descriptionLabel");
        QVERIFY(description->minimumHeight() > 0);
        QCOMPARE(description->minimumHeight(), description->heightForWidth(700));
        QVERIFY(description->minimumHeight() < 8 * QFontMetrics(description->font()).height());
    }

    void shorterTextMakesAShownWindowLower()
    {
        GuideWidget guide(described(words(300)), nullptr);
        guide.show();
        const int before = guide.height();
        guide.setInfo(described(words(2)));
        QTRY_VERIFY(guide.height() < before / 2);
        QCoreApplication::processEvents();
        QVERIFY(guide.height() < before / 2);
    }

    void minimumHeightOfTheSheetIsKept()
    {
        QWidget parent;
        parent.setStyleSheet(
            QStringLiteral("GuideWidget { min-width: 400px; } QLabel { min-height: 90px; }"));
        GuideWidget guide(described(words(200)), &parent);
        const QLabel* const description = label(guide, "descriptionLabel");
        QVERIFY(description->minimumHeight() > 90);
        guide.setInfo(described(words(2)));
        QCOMPARE(description->minimumHeight(), 90);
        guide.setInfo(described(words(200)));
        QVERIFY(description->minimumHeight() > 90);
        guide.setInfo(described(words(3)));
        QCOMPARE(description->minimumHeight(), 90);
    }

    void longWord()
    {
        GuideWidget guide(described(QString(20, QLatin1Char('w'))), nullptr);
        guide.show();
        // The word is not broken: it decides how narrow the guide can be.
        guide.resize(50, 50);
        const QLabel* const description = label(guide, "descriptionLabel");
        QVERIFY(description->width() >= description->fontMetrics().horizontalAdvance(description->text()));
        QVERIFY(!guide.grab().isNull());
    }

    void wordThatFitsNoScreen_data()
    {
        QTest::addColumn<GuideInfo>("info");
        QTest::addColumn<QString>("name");
        const QString word(1000, QLatin1Char('w'));
        const QString bold = QStringLiteral("<b>%1</b>").arg(word);
        QTest::newRow("title") << GuideInfo(word, {}, {}, {}) << QStringLiteral("headerLabel");
        QTest::newRow("plain description") << described(word) << QStringLiteral("descriptionLabel");
        QTest::newRow("rich description") << described(bold) << QStringLiteral("descriptionLabel");
        QTest::newRow("link") << GuideInfo({}, {}, QStringLiteral("<a href=\"x\">%1</a>").arg(word), {})
                              << QStringLiteral("learnMoreLabel");
    }

    void wordThatFitsNoScreen()
    {
        QFETCH(GuideInfo, info);
        QFETCH(QString, name);
        GuideWidget guide(info, nullptr);
        const int screen = guide.screen()->availableSize().width();
        guide.show();
        QVERIFY(guide.width() <= screen / 2);
        guide.resize(200, guide.heightForWidth(200));
        QCOMPARE(guide.width(), 200);
        // All of it is there, in lines from edge to edge.
        auto* const label = guide.findChild<QLabel*>(name);
        const QFontMetrics metrics = label->fontMetrics();
        const int lines = metrics.horizontalAdvance(QLatin1Char('w')) * 1000 / 200;
        QVERIFY(label->height() >= lines * metrics.lineSpacing());
        const QImage picture = label->grab().toImage();
        const QRgb empty = picture.pixel(0, picture.height() - 1);
        const auto isDrawnIn = [&](const QRect& part) {
            for (int y = part.top(); y <= part.bottom(); ++y) {
                for (int x = part.left(); x <= part.right(); ++x) {
                    if (picture.pixel(x, y) != empty) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(isDrawnIn({0, label->height() / 2, 30, 40}));
        QVERIFY(isDrawnIn({170, label->height() / 2, 30, 40}));
        // And painting it is no reason to paint it again.
        const PaintCount paints(label);
        for (int turn = 0; turn < 20; ++turn) {
            QCoreApplication::processEvents();
        }
        QVERIFY(paints.count < 5);
    }

    void picturesInTheText_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QSize>("size");
        QTest::newRow("as it is") << QString() << QSize(40, 20);
        QTest::newRow("a little wider") << QStringLiteral("width=80") << QSize(80, 40);
        QTest::newRow("too wide") << QStringLiteral("width=99999 height=20") << QSize(-1, -1);
        QTest::newRow("too high and wide") << QStringLiteral("width=99999 height=99999") << QSize(-1, -1);
        QTest::newRow("too high") << QStringLiteral("width=20 height=99999") << QSize(0, 0);
        QTest::newRow("wide in its shape") << QStringLiteral("width=99999") << QSize(-1, -1);
        QTest::newRow("high in its shape") << QStringLiteral("height=99999") << QSize(-1, -1);
    }

    void picturesInTheText()
    {
        QFETCH(QString, attributes);
        QFETCH(QSize, size);
        const QTemporaryDir folder;
        QImage image(40, 20, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString path = folder.filePath(QStringLiteral("picture.png"));
        QVERIFY(image.save(path));
        GuideWidget guide(described(QStringLiteral("<img src=\"%1\" %2>").arg(path, attributes)), nullptr);
        guide.show();
        const QSize screen = guide.screen()->availableSize();
        QVERIFY(guide.width() <= screen.width());
        QVERIFY(guide.height() <= screen.height());
        const QImage shown = guide.grab().toImage();
        QRect red;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixelColor(x, y) == QColor(Qt::red)) {
                    red |= QRect(x, y, 1, 1);
                }
            }
        }
        if (size.isNull()) {
            QCOMPARE(red.height(), screen.width() / 2);
        } else if (size.isValid()) {
            QCOMPARE(red.size(), size);
        } else {
            QCOMPARE(red.width(), screen.width() / 2);
        }
    }

    void rightToLeft()
    {
        GuideWidget guide(GuideInfo(QStringLiteral("\u05e2\u05e8\u05d9\u05db\u05d4"),
                                    QStringLiteral("\u05d2\u05d6\u05d9\u05e8\u05d4"), QString(), QString()),
                          nullptr);
        guide.setLayoutDirection(Qt::RightToLeft);
        guide.resize(300, 100);
        guide.show();
        const QLabel* const description = label(guide, "descriptionLabel");
        QCOMPARE(description->layoutDirection(), Qt::RightToLeft);
        const QImage shown = label(guide, "descriptionLabel")->grab().toImage();
        const QRgb background = shown.pixel(0, 0);
        int leftmost = shown.width();
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x) {
                if (shown.pixel(x, y) != background) {
                    leftmost = qMin(leftmost, x);
                }
            }
        }
        QVERIFY(leftmost < shown.width());
        QVERIFY(leftmost > shown.width() / 2);
    }

    void playsFromTheFirstFrameAtEachShowing()
    {
        GuideWidget guide(fullInfo(), nullptr);
        QVERIFY(movie(guide)->state() != QMovie::Running);
        for (int showing = 0; showing < 3; ++showing) {
            QSignalSpy frames(movie(guide), &QMovie::frameChanged);
            guide.show();
            QCOMPARE(movie(guide)->state(), QMovie::Running);
            QCOMPARE(movie(guide)->currentFrameNumber(), 0);
            QTRY_COMPARE(movie(guide)->currentFrameNumber(), 2);
            QCOMPARE(frames.first().first().toInt(), 0);
            guide.hide();
            QCOMPARE(movie(guide)->state(), QMovie::NotRunning);
        }
    }

    void newAnimationPlaysAtOnceInAShownGuide()
    {
        GuideWidget guide(described(QStringLiteral("Still")), nullptr);
        guide.show();
        QVERIFY(!movie(guide));
        guide.setInfo(fullInfo());
        QVERIFY(pixmapOf(guide)->isVisible());
        QCOMPARE(movie(guide)->state(), QMovie::Running);
        QTRY_COMPARE(movie(guide)->currentFrameNumber(), 2);

        // Another file while the first one plays.
        QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("copy.gif"));
        QVERIFY(QFile::copy(animation(), copy));
        GuideInfo info = fullInfo();
        info.moviePath = copy;
        guide.setInfo(info);
        QCOMPARE(movie(guide)->fileName(), copy);
        QCOMPARE(movie(guide)->state(), QMovie::Running);
        QTRY_COMPARE(movie(guide)->currentFrameNumber(), 2);
    }

    void newAnimationWaitsInAHiddenGuide()
    {
        GuideWidget guide(GuideInfo(), nullptr);
        guide.show();
        guide.hide();
        guide.setInfo(fullInfo());
        QVERIFY(movie(guide)->state() != QMovie::Running);
        QSignalSpy frames(movie(guide), &QMovie::frameChanged);
        guide.show();
        QCOMPARE(movie(guide)->state(), QMovie::Running);
        QTRY_VERIFY(frames.size() > 2);
        QCOMPARE(frames.at(0).first().toInt(), 0);
        QCOMPARE(frames.at(1).first().toInt(), 1);
    }

    void sameAnimationPlaysOn()
    {
        GuideWidget guide(fullInfo(), nullptr);
        guide.show();
        const QPointer<QMovie> playing = movie(guide);
        int changes = 0;
        connect(playing.data(), &QMovie::stateChanged, this, [&changes] { ++changes; });
        GuideInfo info = fullInfo();
        info.title = QStringLiteral("Another heading");
        // As when the user has begun to play the picture.
        guide.setProperty("firstPictureOnly", true);
        guide.setInfo(info);
        QCOMPARE(movie(guide), playing.data());
        QCOMPARE(changes, 0);
    }

    // Counted against the timers of a guide that is shown, so that the counting is seen to work.
    void hiddenGuidesCostNothing()
    {
        GuideWidget neverShown(fullInfo(), nullptr);
        GuideWidget hidden(fullInfo(), nullptr);
        GuideWidget changedWhileHidden(GuideInfo(), nullptr);
        hidden.show();
        changedWhileHidden.show();
        QCoreApplication::processEvents();
        hidden.hide();
        changedWhileHidden.hide();
        changedWhileHidden.setInfo(fullInfo());
        QCoreApplication::processEvents();

        TimerCounter timers;
        QCOMPARE(timers.countDuring(50), 0);
        for (GuideWidget* guide : {&neverShown, &hidden, &changedWhileHidden}) {
            QVERIFY(movie(*guide)->state() != QMovie::Running);
            QCOMPARE(startedTimers(guide), 0);
        }
        QTimer slow(&hidden);
        slow.start(60000);
        QCOMPARE(startedTimers(&hidden), 1);
        slow.stop();
        hidden.show();
        QVERIFY(timers.countDuring(50) > 5);
    }

    void hugeAnimation()
    {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        GuideInfo info = fullInfo();
        info.moviePath = QStringLiteral(UIC_TEST_DATA "/huge.gif");
        auto* guide = new GuideWidget(info, &window);
        layout->addWidget(guide);
        window.resize(300, 400);
        window.show();
        QCOMPARE(movie(*guide)->state(), QMovie::Running);
        QVERIFY(window.width() <= 300);
        const QSize shown = pixmapOf(*guide)->size();
        QVERIFY(shown.width() <= 300);
        QCOMPARE(shown.height(), pixmapOf(*guide)->heightForWidth(shown.width()));
        QVERIFY(!guide->grab().isNull());
    }

    void movieStoppedBySlotsOfItsOwn()
    {
        GuideWidget guide(fullInfo(), nullptr);
        guide.show();
        guide.hide();
        connect(movie(guide), &QMovie::stateChanged, &guide, [&guide](QMovie::MovieState state) {
            if (state == QMovie::Running) {
                guide.setInfo(GuideInfo());
            }
        });
        guide.show();
        QVERIFY(!movie(guide));
        QCOMPARE(visibleParts(guide), QStringList());
    }

    void linkIsOpenedAndThenReported()
    {
        UrlHandler handler;
        GuideWidget guide(fullInfo(), nullptr);
        guide.show();
        QStringList order;
        handler.onOpen = [&order] { order += QStringLiteral("opened"); };
        connect(&guide, &GuideWidget::learnMoreClicked, this,
                [&order] { order += QStringLiteral("reported"); });
        clickLink(guide);
        QCOMPARE(order, QStringList({QStringLiteral("opened"), QStringLiteral("reported")}));
        QCOMPARE(handler.opened, QList<QUrl>({QUrl(UrlHandler::scheme() + QStringLiteral(":ripple"))}));
        clickLink(guide);
        QCOMPARE(order.size(), 4);
    }

    void tabStopsAtTheLinkAtOnce()
    {
        UrlHandler handler;
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* before = new QLineEdit(&window);
        auto* guide = new GuideWidget(fullInfo(), &window);
        auto* after = new QLineEdit(&window);
        layout->addWidget(before);
        layout->addWidget(guide);
        layout->addWidget(after);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        before->setFocus();
        const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), label(*guide, "learnMoreLabel"));
        press(Qt::Key_Return);
        QCOMPARE(handler.opened.size(), 1);
        // The image, which can be paused, comes behind it.
        const auto* const image = guide->findChild<QWidget*>(QStringLiteral("gifPixmapWidget"));
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), image);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), after);
        press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), image);
        press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), label(*guide, "learnMoreLabel"));
        press(Qt::Key_Return);
        QCOMPARE(handler.opened.size(), 2);
        press(Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), before);
    }

    void plainTextIsNoTabStop()
    {
        GuideWidget guide(GuideInfo(QString(), QString(), QStringLiteral("Ask a colleague"), QString()),
                          nullptr);
        QLabel* const learnMore = label(guide, "learnMoreLabel");
        QCOMPARE(learnMore->focusPolicy(), Qt::NoFocus);
        guide.setInfo(fullInfo());
        QCOMPARE(learnMore->focusPolicy(), Qt::StrongFocus);
        guide.setInfo(GuideInfo(QString(), QString(), QStringLiteral("Ask <b>someone</b>"), QString()));
        QCOMPARE(learnMore->focusPolicy(), Qt::NoFocus);
        guide.setInfo(GuideInfo(QString(), QString(), QStringLiteral("<b>href=</b> is no link"), QString()));
        QCOMPARE(learnMore->focusPolicy(), Qt::NoFocus);
    }

    void linkThatIsNoUrl_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("invalid") << QStringLiteral("http://[not");
        QTest::newRow("empty host") << QStringLiteral("//");
        QTest::newRow("spaces") << QStringLiteral("not a link");
        QTest::newRow("scheme that nobody opens") << QStringLiteral("uic-nobody:x");
    }

    void linkThatIsNoUrl()
    {
        QFETCH(QString, target);
        GuideWidget guide(GuideInfo(QString(), QString(), link(target), QString()), nullptr);
        guide.show();
        QSignalSpy clicked(&guide, &GuideWidget::learnMoreClicked);
        clickLink(guide);
        QCOMPARE(clicked.size(), 1);
    }

    void linkInTheDescriptionIsNotFollowed()
    {
        UrlHandler handler;
        GuideWidget guide(described(link(UrlHandler::scheme() + QStringLiteral(":x"))), nullptr);
        guide.show();
        QSignalSpy clicked(&guide, &GuideWidget::learnMoreClicked);
        QLabel* const description = label(guide, "descriptionLabel");
        QTest::mouseClick(description, Qt::LeftButton, {}, QPoint(12, description->height() / 2));
        QCOMPARE(clicked.size(), 0);
        QCOMPARE(handler.opened.size(), 0);
    }

    void guideDeletedByTheUrlHandler()
    {
        UrlHandler handler;
        QPointer<GuideWidget> guide = new GuideWidget(fullInfo(), nullptr);
        guide->show();
        QSignalSpy clicked(guide.data(), &GuideWidget::learnMoreClicked);
        handler.onOpen = [&guide] { delete guide; };
        {
            const FreedMemoryWatch memory;
            clickLink(*guide);
            QVERIFY(!guide);
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QCOMPARE(clicked.size(), 0);
    }

    void infoChangedByItsLink_data()
    {
        QTest::addColumn<bool>("byKeyboard");
        QTest::addColumn<QString>("learnMore");
        for (const bool byKeyboard : {false, true}) {
            const char* const how = byKeyboard ? "keyboard" : "mouse";
            QTest::addRow("another link, %s", how) << byKeyboard << link(QStringLiteral("other"));
            QTest::addRow("no link, %s", how) << byKeyboard << QString();
            QTest::addRow("plain text, %s", how) << byKeyboard << QStringLiteral("Thank you");
        }
    }

    void infoChangedByItsLink()
    {
        QFETCH(bool, byKeyboard);
        QFETCH(QString, learnMore);
        UrlHandler handler;
        GuideWidget guide(fullInfo(), nullptr);
        guide.show();
        const GuideInfo other(QStringLiteral("Thanks"), QString(), learnMore, QString());
        connect(&guide, &GuideWidget::learnMoreClicked, this, [&] { guide.setInfo(other); });
        if (byKeyboard) {
            guide.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&guide));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        {
            const FreedMemoryWatch memory;
            if (byKeyboard) {
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            } else {
                clickLink(guide);
            }
            QCOMPARE(memory.writtenAfterwards(), std::size_t(0));
        }
        QCOMPARE(label(guide, "learnMoreLabel")->text(), learnMore);
        QCOMPARE(label(guide, "learnMoreLabel")->isVisible(), !learnMore.isEmpty());
    }
};

UIC_TEST_MAIN(tst_GuideWidget)
#include "moc_GuideStage.cpp"
#include "tst_GuideWidget.moc"
