#pragma once

#include "base/ControlExport.h"
#include "base/PopupOrigin.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

namespace tamble::client {

/// Popup that closes when its parent goes, is hidden or disabled, and gives the keyboard focus back.
class TAMBLE_CLIENT_CONTROL_EXPORT RPopupBase : public QQuickPopup
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RPopupBase)

public:
    explicit RPopupBase(QObject *parent = nullptr);
    ~RPopupBase() override;

    void setVisible(bool visible) override;

private:
    PopupOrigin m_origin;
};

} // namespace tamble::client
