#include "TestMain.h"

#include <UiComponents/ColorBlendingComboBox.h>

#include <gallery/BlendStage.h>

namespace {

void choose(ColorBlendingComboBox* box, BlendingMode mode)
{
    box->showPopup();
    const QModelIndex index = box->model()->index(box->indexOf(mode), 0);
    box->view()->scrollTo(index);
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {}, box->view()->visualRect(index).center());
}

} // namespace

class tst_BlendStage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyModeHasAPictureOfItsOwn()
    {
        BlendStage stage;
        stage.show();
        QVERIFY(QTest::qWaitForWindowExposed(&stage));
        auto* box = stage.findChild<ColorBlendingComboBox*>();
        auto* canvas = stage.findChild<BlendCanvas*>();
        QVector<QImage> pictures = {canvas->grab().toImage()};
        for (int number = 0; number < 14; ++number) {
            const auto mode = static_cast<BlendingMode>(number);
            if (mode == BlendingMode::SourceOver) {
                continue;
            }
            choose(box, mode);
            const QImage picture = canvas->grab().toImage();
            QVERIFY2(!pictures.contains(picture), qPrintable(box->currentText()));
            pictures.append(picture);
            // The lower edge is not covered; Qt rounds there too.
            const QPoint uncovered(5, picture.height() - 2);
            const QColor found = picture.pixelColor(uncovered);
            const QColor before = pictures.first().pixelColor(uncovered);
            QVERIFY2(qAbs(found.green() - before.green()) <= 2, qPrintable(found.name()));
        }
        choose(box, BlendingMode::SourceOver);
        QCOMPARE(canvas->grab().toImage(), pictures.first());
    }

    void opacity()
    {
        BlendCanvas canvas;
        const QImage full = canvas.grab().toImage();
        canvas.setOpacity(0);
        const QImage none = canvas.grab().toImage();
        QVERIFY(none != full);
        // Nothing of the layer is left, so its mode does not matter.
        canvas.setMode(BlendingMode::LinearDodge);
        QCOMPARE(canvas.grab().toImage(), none);
        canvas.setMode(BlendingMode::SourceOver);
        canvas.setOpacity(7);
        QCOMPARE(canvas.grab().toImage(), full);
    }

    void disabledIsPaler()
    {
        BlendCanvas canvas;
        const QImage enabled = canvas.grab().toImage();
        canvas.setEnabled(false);
        QVERIFY(canvas.grab().toImage() != enabled);
    }
};

UIC_TEST_MAIN(tst_BlendStage)
#include "tst_BlendStage.moc"
