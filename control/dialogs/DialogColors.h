#pragma once

#include "style/SheetColors.h"

#include <array>
#include <cstddef>
#include <memory>

class QQuickItem;

namespace tamble::client {

/// The colours of a dialog: what the page has set, or else what the sheets say, once the dialog has parts that they
/// hold for. Transparent until then.
class DialogColors
{
public:
    enum Name : std::size_t { Background, Border, HeaderBackground, HeaderText, nameCount };

    explicit DialogColors(SheetColors::Changed changed);

    QColor color(Name name) const;
    void setColor(Name name, const QColor &color);

    /// From now on the sheets count for these.
    void follow(QQuickItem &frame, QQuickItem &header);
    /// The parts are about to go.
    void letGo();

private:
    SheetColors::Changed m_changed;
    std::array<QColor, nameCount> m_given; ///< Invalid where the sheets count.
    std::unique_ptr<SheetColors> m_frame;
    std::unique_ptr<SheetColors> m_header;
};

} // namespace tamble::client
