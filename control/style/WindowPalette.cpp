#include "style/WindowPalette.h"

#include "style/StyleEngine.h"
#include "style/StyleTree.h"
#include "style/UsageCountedStyleSetProps.h"
#include "style/resolution/StylePathPool.h"

#include <QtCore/QEvent>
#include <QtGui/QPalette>
#include <QtQuick/QQuickItem>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquickwindow_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>

namespace tamble::client {

namespace {

/// Colours that the sheets give to types right below a window's root.
class SheetPalette
{
public:
    explicit SheetPalette(QQuickItem &root)
        : m_root(pathOf(&root))
    {}

    /// Not valid where no rule sets the key.
    QColor color(const char *type, const char *key) const
    {
        const StylePathRef path = StylePathPool::instance().child(m_root, QString::fromLatin1(type), {}, {});
        const auto values = StyleEngine::instance()->propsFor(path);
        const QString name = QString::fromLatin1(key);
        return values->isSet(name) ? values->color(name) : QColor();
    }

private:
    StylePathRef m_root;
};

double linear(double share)
{
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

/// As WCAG has it, from 0 to 1.
double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double lighter = std::max(luminance(a), luminance(b));
    const double darker = std::min(luminance(a), luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto mix = [shareOfB](float from, float to) { return float(from + (to - from) * shareOfB); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

/// The grey from which both colours differ as much.
QColor greyBetween(const QColor &a, const QColor &b)
{
    const double wanted = std::sqrt((luminance(a) + 0.05) * (luminance(b) + 0.05)) - 0.05;
    const double share = wanted <= 0.0031308 ? 12.92 * wanted : 1.055 * std::pow(wanted, 1.0 / 2.4) - 0.055;
    const float level = float(std::clamp(share, 0.0, 1.0));
    return QColor::fromRgbF(level, level, level);
}

/// What the sheets have no colour for, from those that they have: Qt's controls put texts on some of these.
void deriveOthers(QPalette &palette)
{
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const QColor highlight = palette.color(QPalette::Highlight);
    const QColor highlightedText = palette.color(QPalette::HighlightedText);
    // Below highlighted entries, whose text is one or the other.
    const bool servesBoth = contrast(highlight, text) >= 4.5;
    palette.setColor(QPalette::Light, servesBoth ? highlight : greyBetween(text, highlightedText));
    palette.setColor(QPalette::Midlight, mixed(ground, text, 0.2));
    // Checked and emphasised buttons, arrows, bars.
    palette.setColor(QPalette::Dark, text);
    palette.setColor(QPalette::BrightText, ground);
    palette.setColor(QPalette::AlternateBase, mixed(palette.color(QPalette::Base), text, 0.06));
    palette.setColor(QPalette::Link, text);
    palette.setColor(QPalette::LinkVisited, text);
    const auto fade = [&palette](QPalette::ColorRole role, QPalette::ColorRole behind) {
        palette.setColor(QPalette::Disabled, role, mixed(palette.color(behind), palette.color(role), 0.5));
    };
    fade(QPalette::WindowText, QPalette::Window);
    fade(QPalette::Text, QPalette::Base);
    fade(QPalette::ButtonText, QPalette::Button);
}

/// Nothing before sheets are loaded.
std::optional<QPalette> sheetPalette(QQuickItem &root)
{
    const SheetPalette sheets(root);
    if (!sheets.color("RScreen2", "background").isValid())
        return std::nullopt;
    QPalette palette;
    const auto take = [&](const char *type, const char *key, std::initializer_list<QPalette::ColorRole> roles) {
        const QColor color = sheets.color(type, key);
        for (const QPalette::ColorRole role : roles) {
            if (color.isValid())
                palette.setColor(role, color);
        }
    };
    take("RScreen2", "background", {QPalette::Window});
    take("RText", "foreground", {QPalette::WindowText, QPalette::Text});
    take("RPane", "background", {QPalette::Base});
    take("RButton", "background", {QPalette::Button});
    take("RButton", "foreground", {QPalette::ButtonText});
    take("RMenu", "background-item-selected", {QPalette::Highlight});
    take("RMenu", "foreground-item-selected", {QPalette::HighlightedText});
    take("RLabel", "foreground", {QPalette::Mid, QPalette::PlaceholderText});
    take("RMenu", "background", {QPalette::ToolTipBase});
    take("RMenu", "foreground-item", {QPalette::ToolTipText});
    if (palette.color(QPalette::Base).alpha() < 255)
        palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    deriveOthers(palette);
    return palette;
}

/// Hands their palette on to what stands in open popups, which Qt 6.4 does when they open only.
void updatePopups(const QQuickWindow &window)
{
    const QList<QQuickPopup *> popups = window.findChildren<QQuickPopup *>();
    for (QQuickPopup *popup : popups) {
        const auto *own = popup->isVisible() ? popup->property("palette").value<QQuickPalette *>() : nullptr;
        if (!own)
            continue;
        const QPalette palette = own->toQPalette();
        const QList<QQuickItem *> parts = popup->popupItem()->childItems();
        for (QQuickItem *part : parts)
            QQuickItemPrivate::get(part)->inheritPalette(palette);
    }
}

} // namespace

WindowPalette::WindowPalette(QObject *parent)
    : QObject(parent)
{}

void WindowPalette::componentComplete()
{
    // A window hands its objects to its content item.
    const auto *item = qobject_cast<QQuickItem *>(parent());
    m_window = item ? item->window() : qobject_cast<QQuickWindow *>(parent());
    if (!m_window)
        return;
    m_window->installEventFilter(this);
    connect(StyleEngine::instance(), &StyleEngine::styleChanged, this, &WindowPalette::apply);
    apply();
}

// Below what the page has set.
void WindowPalette::apply()
{
    if (!m_window)
        return;
    if (const auto palette = sheetPalette(*m_window->contentItem())) {
        QQuickWindowPrivate::get(m_window)->palette()->inheritPalette(*palette);
        updatePopups(*m_window);
    }
}

bool WindowPalette::eventFilter(QObject *, QEvent *event)
{
    // The window then takes the desktop's.
    if (event->type() == QEvent::ApplicationPaletteChange)
        QMetaObject::invokeMethod(this, &WindowPalette::apply, Qt::QueuedConnection);
    return false;
}

} // namespace tamble::client
