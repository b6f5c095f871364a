#pragma once

#include "style/StyleFollower.h"

#include <QtCore/QObject>
#include <QtGui/QColor>

#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace tamble::client {

class StyleSet;
class StyleSetProps;

/// The colours of a control, each read from the sheets when it is asked for, until the page sets one of its own.
/// Bindings to the same values take ten times as long to make and 200 bytes each.
class SheetColors : private StyleFollower
{
public:
    /// Where a colour comes from. One that not every sheet sets has the key to ask for first, and the place in the
    /// table of the one that stands in for it; without a place it is transparent then. `group` names another type whose
    /// rules are read, as if such an item stood in the control.
    struct Source
    {
        QColor (StyleSetProps::*read)();
        const char *key = nullptr;
        int substitute = -1;
        const char *group = nullptr;
    };

    /// The colours from one place in the table up to, but without, another one may have changed.
    using Changed = std::function<void(std::size_t begin, std::size_t end)>;

    /// The sources outlive this. Each colour should have a change signal of its own: with a common one, a page that
    /// binds one colour to another would have a binding loop.
    SheetColors(QObject &control, std::span<const Source> sources, Changed changed);
    ~SheetColors();
    SheetColors(const SheetColors &) = delete;
    SheetColors &operator=(const SheetColors &) = delete;

    /// Reads the sheets for another control from now on.
    void setControl(QObject &control);
    QColor color(std::size_t index) const;
    void setColor(std::size_t index, const QColor &color);

private:
    void onStyleChanged() override;
    QColor colorOfSheets(const Source &source) const;
    std::shared_ptr<StyleSetProps> propsOfGroup(const QString &group) const;

    QObject *m_control;
    std::span<const Source> m_sources;
    Changed m_changed;
    std::vector<QColor> m_given;            ///< What the page has set; empty as long as it has set none.
    mutable StyleSet *m_styleSet = nullptr; ///< The attached one, once it is read.
};

} // namespace tamble::client
