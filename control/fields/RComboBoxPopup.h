#pragma once

#include "base/ControlExport.h"
#include "base/PopupOrigin.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace tamble::client {

class RComboBoxBase;

/// The list of a combo box. Whoever opens it, it stays closed while the box says so, and the box has the keyboard focus
/// while it is open.
class TAMBLE_CLIENT_CONTROL_EXPORT RComboBoxPopup : public QQuickPopup
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RComboBoxPopup)

public:
    explicit RComboBoxPopup(QObject *parent = nullptr);

    void setVisible(bool visible) override;

private:
    RComboBoxBase *comboBox() const;

    PopupOrigin m_origin;
};

} // namespace tamble::client
