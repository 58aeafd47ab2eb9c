#include "TesselComboBox.h"

#include "TesselComboBoxDelegate.h"

#include <WidgetToolkit/OvComboBox.h>
#include <WidgetToolkit/Util.h>

#include <QAbstractItemView>
#include <QVariant>

void Orvane::Tessel::convertComboBoxToTessel(OvComboBox* comboBox)
{
    if (!comboBox) {
        return;
    }
    QAbstractItemView* const view = comboBox->view();
    if (view->objectName().isEmpty()) {
        view->setObjectName(QString::fromLatin1("tesselComboBoxView"));
    }
    // Qt's own delegates ignore ::item rules.
    const QAbstractItemDelegate* const delegate = comboBox->itemDelegate();
    if (!delegate || delegate->inherits("QComboBoxDelegate") || delegate->inherits("QComboMenuDelegate")) {
        comboBox->setItemDelegate(new TesselComboBoxDelegate(comboBox));
    }
    ::Util::applyProperty(comboBox, "tessel", true);
}
