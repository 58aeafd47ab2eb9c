#include "TestMain.h"

#include <UiComponents/AdjustingListView.h>

#include <initializer_list>
#include <memory>

namespace {

constexpr int rowHeight = 20;

void appendRow(QStandardItemModel* model, int height)
{
    auto* item = new QStandardItem(QStringLiteral("row"));
    item->setSizeHint(QSize(50, height));
    model->appendRow(item);
}

std::unique_ptr<QStandardItemModel> modelOf(std::initializer_list<int> heights)
{
    auto model = std::make_unique<QStandardItemModel>();
    for (const int height : heights) {
        appendRow(model.get(), height);
    }
    return model;
}

std::unique_ptr<QStandardItemModel> modelOfRows(int rows)
{
    auto model = std::make_unique<QStandardItemModel>();
    for (int row = 0; row < rows; ++row) {
        appendRow(model.get(), rowHeight);
    }
    return model;
}

/// Counts how often it is asked for the height of a row.
class CountingModel : public QStringListModel
{
public:
    explicit CountingModel(int rows)
    {
        QStringList texts;
        for (int row = 0; row < rows; ++row) {
            texts += QStringLiteral("row");
        }
        setStringList(texts);
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::SizeHintRole) {
            ++questions;
            return QSize(50, rowHeight);
        }
        return QStringListModel::data(index, role);
    }

    mutable int questions = 0;
};

/// Shows what is protected.
class OpenView : public AdjustingListView
{
public:
    using AdjustingListView::AdjustingListView;
    using AdjustingListView::contentsSize;
    using AdjustingListView::resizeContents;
    using AdjustingListView::resizeEvent;
};

void resizeBy(QWidget& view, int pixels)
{
    view.resize(view.size() + QSize(pixels, 0));
}

/// Shows the rows of @p model in @p view, which goes on loading.
void showLoading(AdjustingListView& view, QAbstractItemModel* model)
{
    view.setModel(model);
    view.resize(100, 300);
    view.show();
    view.setLoadingFinished(false);
}

} // namespace

class tst_AdjustingListView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAPlainListView()
    {
        QWidget parent;
        const AdjustingListView view(&parent);
        QCOMPARE(view.parentWidget(), &parent);
        QCOMPARE(view.metaObject(), &QListView::staticMetaObject);
        QCOMPARE(view.sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
        const AdjustingListView window(nullptr);
        QVERIFY(!window.parentWidget());
    }

    void newViewHasNoMinimum()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        QCOMPARE(view.minimumHeight(), 0);
        view.setModel(model.get());
        QCOMPARE(view.minimumHeight(), 0);
        view.show();
        resizeBy(view, 10);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void threeRowsOfTwentyPixels()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 60);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 60);
        view.setLoadingFinished(true);
        QCOMPARE(view.minimumHeight(), 0);
        view.setLoadingFinished(true);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void emptyModel()
    {
        QStandardItemModel model;
        AdjustingListView view(nullptr);
        view.setModel(&model);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 0);
        view.show();
        resizeBy(view, 10);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void rowsOfDifferentHeight()
    {
        const auto model = modelOf({7, 120, 1, 33});
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 161);
    }

    void frameMarginsAndSpacingAreNotAdded()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setFrameShape(QFrame::Box);
        view.setLineWidth(5);
        view.setContentsMargins(3, 3, 3, 3);
        view.setSpacing(4);
        view.setLoadingFinished(false);
        int expected = 0;
        for (int row = 0; row < 3; ++row) {
            expected += view.sizeHintForRow(row);
        }
        QCOMPARE(view.minimumHeight(), expected);
        view.setSpacing(0);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 60);
    }

    void hiddenRowsCount()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setRowHidden(1, true);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 60);
    }

    void rowsAddedLaterWaitForAResize()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        showLoading(view, model.get());
        appendRow(model.get(), rowHeight);
        QCoreApplication::processEvents();
        QCOMPARE(view.minimumHeight(), 60);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 80);
        model->removeRows(0, 2);
        QCoreApplication::processEvents();
        QCOMPARE(view.minimumHeight(), 80);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 40);
    }

    void rowsAddedLaterWaitForTheNextCall()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        appendRow(model.get(), rowHeight);
        QCOMPARE(view.minimumHeight(), 60);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 80);
    }

    void rowThatGrowsWaitsForAResize()
    {
        const auto model = modelOfRows(2);
        AdjustingListView view(nullptr);
        showLoading(view, model.get());
        model->item(1)->setSizeHint(QSize(50, 90));
        QCoreApplication::processEvents();
        QCOMPARE(view.minimumHeight(), 40);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 110);
    }

    void modelReplacedWhileLoading()
    {
        const auto first = modelOfRows(3);
        const auto second = modelOf({50, 60});
        AdjustingListView view(nullptr);
        showLoading(view, first.get());
        view.setModel(second.get());
        QCOMPARE(view.minimumHeight(), 60);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 110);
    }

    void modelResetWhileLoading()
    {
        QStringListModel model({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        AdjustingListView view(nullptr);
        showLoading(view, &model);
        const int row = view.sizeHintForRow(0);
        QCOMPARE(view.minimumHeight(), 3 * row);
        model.setStringList({QStringLiteral("a")}); // a reset
        QCoreApplication::processEvents();
        QCOMPARE(view.minimumHeight(), 3 * row);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), row);
    }

    void modelEmptiedWhileLoading()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        showLoading(view, model.get());
        model->clear();
        QCOMPARE(view.minimumHeight(), 60);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void modelDeletedWhileLoading()
    {
        auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        showLoading(view, model.get());
        model.reset();
        QVERIFY(!view.model());
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void withoutAModel()
    {
        AdjustingListView view(nullptr);
        view.setLoadingFinished(false);
        view.show();
        resizeBy(view, 10);
        view.setLoadingFinished(true);
        QCOMPARE(view.minimumHeight(), 0);

        const auto model = modelOfRows(3);
        view.setLoadingFinished(false);
        view.setModel(model.get());
        QCOMPARE(view.minimumHeight(), 0);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 60);
        view.setModel(nullptr);
        resizeBy(view, 1);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void onlyTopLevelRowsCount()
    {
        const auto model = modelOfRows(2);
        auto* child = new QStandardItem(QStringLiteral("child"));
        child->setSizeHint(QSize(50, 500));
        model->item(0)->appendRow(child);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 40);
    }

    void minimumOfTheHost()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setMinimumHeight(200);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 60);
        view.setMinimumHeight(200);
        view.setMinimumWidth(77);
        view.setLoadingFinished(true);
        QCOMPARE(view.minimumHeight(), 0);
        QCOMPARE(view.minimumWidth(), 77);
    }

    // Qt takes its limit for no minimum at all, and warns of what is beyond.
    void heightBeyondQtsLimit()
    {
        const auto model = modelOf({QWIDGETSIZE_MAX - 1, 5});
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), QWIDGETSIZE_MAX - 1);
        // A sum of 32 bits would be negative.
        QStandardItemModel beyondInt;
        for (int row = 0; row < 200; ++row) {
            appendRow(&beyondInt, 16'000'000);
        }
        view.setModel(&beyondInt);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), QWIDGETSIZE_MAX - 1);
    }

    void nothingIsAskedWhenLoadingIsFinished()
    {
        CountingModel model(100);
        OpenView view(nullptr);
        view.setModel(&model);
        model.questions = 0;
        view.setLoadingFinished(true);
        QCOMPARE(model.questions, 0);
        view.setLoadingFinished(false);
        QCOMPARE(model.questions, 100);
    }

    void aResizeAsksEachRowOnce()
    {
        constexpr int rows = 100;
        CountingModel model(rows);
        OpenView view(nullptr);
        QListView plain;
        const auto questionsOfAResize = [&model](QListView& shown) {
            shown.setModel(&model);
            shown.setUniformItemSizes(true);
            shown.resize(100, rows * rowHeight + 100);
            shown.show();
            QCoreApplication::processEvents();
            resizeBy(shown, 1);
            QCoreApplication::processEvents();
            model.questions = 0;
            resizeBy(shown, 1);
            return model.questions;
        };
        const int ofQt = questionsOfAResize(plain);
        QCOMPARE(questionsOfAResize(view), ofQt);
        view.setLoadingFinished(false);
        QCOMPARE(questionsOfAResize(view), ofQt + rows);
    }

    void tenThousandRows()
    {
        CountingModel model(10'000);
        AdjustingListView view(nullptr);
        view.setModel(&model);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 200'000);
        view.setLoadingFinished(true);
        QCOMPARE(view.minimumHeight(), 0);
    }

    void contentsFollowTheViewport()
    {
        const auto model = modelOfRows(3);
        OpenView view(nullptr);
        view.setModel(model.get());
        view.resize(200, 100);
        view.show();
        QCoreApplication::processEvents();
        const int height = view.contentsSize().height();
        QCOMPARE(height, 60);
        // Nothing changed, so that Qt's own part does not lay the items out.
        view.resizeContents(10, 45);
        QResizeEvent nothingNew(view.size(), view.size());
        view.resizeEvent(&nothingNew);
        QCOMPARE(view.contentsSize(), QSize(view.viewport()->width(), 45));
    }

    void layoutMakesRoomForEveryRow()
    {
        const auto model = modelOfRows(50);
        QScrollArea area;
        auto* panel = new QWidget;
        auto* layout = new QVBoxLayout(panel);
        auto* view = new AdjustingListView(panel);
        view->setModel(model.get());
        layout->addWidget(view);
        area.setWidget(panel);
        area.setWidgetResizable(true);
        area.resize(200, 200);
        area.show();
        QTRY_VERIFY(view->height() < 250);
        view->setLoadingFinished(false);
        QTRY_VERIFY(view->height() >= 1000);
        view->setLoadingFinished(true);
        QTRY_VERIFY(view->height() < 250);
    }

    void scrollsByItselfWhenFinished()
    {
        const auto model = modelOfRows(50);
        AdjustingListView view(nullptr);
        view.setModel(model.get());
        view.resize(200, 100);
        view.show();
        view.setLoadingFinished(false);
        QTRY_COMPARE(view.height(), 1000);
        view.setLoadingFinished(true);
        view.resize(200, 100);
        QCOMPARE(view.height(), 100);
    }

    void rightToLeft()
    {
        const auto model = modelOfRows(3);
        AdjustingListView view(nullptr);
        view.setLayoutDirection(Qt::RightToLeft);
        view.setModel(model.get());
        view.setLoadingFinished(false);
        view.resize(200, 100);
        view.show();
        QCOMPARE(view.minimumHeight(), 60);
        QTRY_COMPARE(view.visualRect(model->index(0, 0)).right(), view.viewport()->rect().right());
    }

    void sheetSelectsItAsListView()
    {
        const auto model = modelOf({});
        AdjustingListView view(nullptr);
        view.setStyleSheet(
            QStringLiteral("QListView::item { height: 31px; } QListView { min-height: 500px; }"));
        QStringListModel texts({QStringLiteral("a"), QStringLiteral("b")});
        view.setModel(&texts);
        view.setLoadingFinished(false);
        QCOMPARE(view.minimumHeight(), 62);
        view.show();
        QCOMPARE(view.minimumHeight(), 62);
    }
};

UIC_TEST_MAIN(tst_AdjustingListView)
#include "tst_AdjustingListView.moc"
