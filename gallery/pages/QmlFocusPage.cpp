#include "QmlFocusPage.h"

#include "../PropertyPanel.h"
#include "../SignalLogView.h"
#include "../ValueText.h"
#include "ResultTable.h"

#include <QtUtility/QmlWindowFocusWorkaround.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

PageInfo QmlFocusPage::info()
{
    return {QStringLiteral("qml-focus"),
            tr("Focus of hosted QML"),
            PageGroup::Services,
            {tr("keyboard"), tr("dialog"), QStringLiteral("QML")},
            {QStringLiteral("QmlWindowFocusWorkaround")},
            &createPage<QmlFocusPage>};
}

QmlFocusPage::QmlFocusPage(QWidget* parent)
    : Page(info(),
           tr("Qt forgets the focus of a view whose host is taken out of a window and put back. With the "
              "workaround the keyboard goes to the view; without it, to whatever comes first."),
           parent)
    , m_results(new ResultTable)
{
    addDemonstration(tr("A line edit stands for the view here: the workaround works for every kind"),
                     m_results);
    showFocus(nullptr);
    properties()->addSwitch(tr("Apply the workaround"), true, [this](bool on) { m_isApplied = on; });
    properties()->addAction(tr("Open the dialog"), [this] { openDialog(); });
}

void QmlFocusPage::openDialog()
{
    delete m_dialog;
    m_dialog = new QDialog(this);
    m_dialog->setObjectName(QStringLiteral("qmlFocusDialog"));
    m_dialog->setWindowTitle(info().title);
    auto* again = new QPushButton(tr("Take the view out and put it back"), m_dialog);
    again->setObjectName(QStringLiteral("rehostButton"));
    auto* host = new QFrame(m_dialog);
    host->setObjectName(QStringLiteral("qmlHost"));
    auto* view = new QLineEdit(tr("The view"), host);
    view->setObjectName(QStringLiteral("qmlView"));
    auto* hostLayout = new QVBoxLayout(host);
    hostLayout->setContentsMargins(0, 0, 0, 0);
    hostLayout->addWidget(view);
    auto* layout = new QVBoxLayout(m_dialog);
    layout->addWidget(again);
    layout->addWidget(host);
    connect(again, &QPushButton::clicked, host, [layout, host] {
        host->setParent(nullptr);
        layout->addWidget(host);
        host->show();
    });
    connect(qApp, &QApplication::focusChanged, m_dialog.data(),
            [this](const QWidget*, const QWidget* now) { showFocus(now); });
    if (m_isApplied) {
        Orvane::Util::ApplyQmlWindowFocusWorkaround(m_dialog, host);
    }
    m_dialog->show();
}

void QmlFocusPage::showFocus(const QWidget* focused)
{
    const QString text =
        focused ? valueText(QVariant::fromValue<QObject*>(const_cast<QWidget*>(focused))) : tr("no widget");
    m_results->setResult(tr("Keyboard focus"), text);
    if (focused) {
        signalLog()->addLine(QStringLiteral("focusChanged(%1)").arg(text));
    }
}
