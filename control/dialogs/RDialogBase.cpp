#include "dialogs/RDialogBase.h"

#include "base/InputMeaning.h"
#include "base/PartComponents.h"
#include "controls/RButtonBase.h"
#include "dialogs/DialogFields.h"
#include "fields/FieldEdit.h"
#include "style/StyleSetProps.h"

#include <QtGui/QKeyEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickanchors_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuickTemplates2/private/qquickoverlay_p.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr qreal greatestShare = 0.9; // of the window

constexpr std::array<SheetColors::Source, 2> frameSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::border, "border"},
}};
constexpr std::array<SheetColors::Source, 2> headerSources = {{
    {&StyleSetProps::background},
    {&StyleSetProps::foreground, "foreground"},
}};

constexpr std::array<void (RDialogBase::*)(), 4> dialogColorSignals = {
    &RDialogBase::ssBackgroundChanged, &RDialogBase::ssBorderColorChanged, &RDialogBase::ssHeaderBackgroundChanged,
    &RDialogBase::ssHeaderColorChanged};

/// How far a key scrolls the body, downwards.
double scrolledLines(int key)
{
    constexpr double page = 8.0;
    switch (key) {
    case Qt::Key_Up:
        return -1.0;
    case Qt::Key_Down:
        return 1.0;
    case Qt::Key_PageUp:
        return -page;
    case Qt::Key_PageDown:
        return page;
    case Qt::Key_Home:
        return -1e6;
    case Qt::Key_End:
        return 1e6;
    default:
        return 0.0;
    }
}

bool pressesByEnter(const QQuickItem *item)
{
    const auto *button = qobject_cast<const RButtonBase *>(item);
    return button && button->enterClicks();
}

QPlatformDialogHelper::StandardButton flagOf(const QQuickDialogButtonBox &box, const QQuickAbstractButton *button)
{
    for (int bit = QPlatformDialogHelper::FirstButton; bit <= QPlatformDialogHelper::LastButton; bit <<= 1) {
        const auto flag = QPlatformDialogHelper::StandardButton(bit);
        if (box.standardButton(flag) == button)
            return flag;
    }
    return QPlatformDialogHelper::NoButton;
}

} // namespace

RDialogBase::RDialogBase(QObject *parent)
    : QQuickDialog(parent)
    , m_origin(*this)
{
    connect(this, &QQuickPopup::aboutToShow, this, &RDialogBase::onAboutToShow);
    connect(this, &QQuickPopup::visibleChanged, this, &RDialogBase::onVisibleChanged);
    connect(this, &QQuickDialog::standardButtonsChanged, this, [this] {
        if (m_standardBox)
            m_standardBox->setStandardButtons(standardButtons());
        onFocusMoved();
    });
}

// The template hides it, and its parts go, when nothing of this is left.
RDialogBase::~RDialogBase()
{
    setVisible(false);
    disconnect(this, nullptr, this, nullptr);
    if (QQuickWindow *window = this->window())
        window->disconnect(this);
    m_frameColors.reset();
    m_headerColors.reset();
}

RDialogBody *RDialogBase::body()
{
    if (!m_body) {
        m_body = new RDialogBody;
        m_body->setParent(this);
    }
    return m_body;
}

QQuickAbstractButton *RDialogBase::standardButton(QPlatformDialogHelper::StandardButton button) const
{
    return m_standardBox ? m_standardBox->standardButton(button) : nullptr;
}

QQmlListProperty<QObject> RDialogBase::content()
{
    const auto append = [](QQmlListProperty<QObject> *list, QObject *object) {
        RDialogBody *body = static_cast<RDialogBase *>(list->object)->body();
        QQmlListProperty<QObject> data = QQuickItemPrivate::get(body)->data();
        data.append(&data, object);
    };
    const auto count = [](QQmlListProperty<QObject> *list) {
        const RDialogBody *body = static_cast<RDialogBase *>(list->object)->m_body;
        return body ? qsizetype(body->childItems().size()) : 0;
    };
    const auto at = [](QQmlListProperty<QObject> *list, qsizetype index) -> QObject * {
        return static_cast<RDialogBase *>(list->object)->m_body->childItems().at(index);
    };
    return {this, nullptr, append, count, at, nullptr};
}

QQmlListProperty<QQuickItem> RDialogBase::buttons()
{
    const auto append = [](QQmlListProperty<QQuickItem> *list, QQuickItem *button) {
        auto *dialog = static_cast<RDialogBase *>(list->object);
        if (!button)
            return;
        button->setProperty("enterClicks", true);
        dialog->m_furtherButtons.append(button);
        if (dialog->m_furtherRow)
            button->setParentItem(dialog->m_furtherRow);
    };
    const auto count = [](QQmlListProperty<QQuickItem> *list) {
        return qsizetype(static_cast<RDialogBase *>(list->object)->m_furtherButtons.size());
    };
    const auto at = [](QQmlListProperty<QQuickItem> *list, qsizetype index) -> QQuickItem * {
        return static_cast<RDialogBase *>(list->object)->m_furtherButtons.at(index);
    };
    return {this, nullptr, append, count, at, nullptr};
}

void RDialogBase::setDefaultButton(int button)
{
    if (std::exchange(m_defaultButton, button) == button)
        return;
    onFocusMoved();
    Q_EMIT defaultButtonChanged();
}

qreal RDialogBase::maximumWidth() const
{
    return m_overlay ? greatestShare * m_overlay->width() : 0.0;
}

qreal RDialogBase::maximumHeight() const
{
    return m_overlay ? greatestShare * m_overlay->height() : 0.0;
}

QColor RDialogBase::color(std::size_t name) const
{
    if (m_given[name].isValid())
        return m_given[name];
    const bool isHeader = name >= HeaderBackground;
    const auto &colors = isHeader ? m_headerColors : m_frameColors;
    return colors ? colors->color(isHeader ? name - HeaderBackground : name) : QColor(Qt::transparent);
}

void RDialogBase::setColor(std::size_t name, const QColor &color)
{
    if (std::exchange(m_given[name], color) != color)
        tellColors(name, name + 1);
}

void RDialogBase::tellColors(std::size_t begin, std::size_t end)
{
    for (std::size_t i = begin; i < end; ++i)
        Q_EMIT(this->*dialogColorSignals[i])();
}

void RDialogBase::componentComplete()
{
    moveToOverlay();
    QQuickDialog::componentComplete();
}

void RDialogBase::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        moveToOverlay();
        if (m_overlay)
            m_origin.rememberFocus(*m_overlay);
    }
    QQuickDialog::setVisible(visible);
}

// Above all of the window, whatever item the dialog is declared in: that may be small, rotated or scrolled away.
void RDialogBase::moveToOverlay()
{
    const auto *declaredIn = qobject_cast<QQuickItem *>(parent());
    const bool isGivenPlace = parentItem() && parentItem() != m_overlay;
    QQuickWindow *window = !isGivenPlace && declaredIn && declaredIn->window() ? declaredIn->window() : this->window();
    QQuickItem *overlay = window ? QQuickOverlay::overlay(window) : nullptr;
    if (!overlay)
        return;
    if (m_overlay != overlay) {
        if (m_overlay)
            m_overlay->disconnect(this);
        m_overlay = overlay;
        for (auto signal : {&QQuickItem::widthChanged, &QQuickItem::heightChanged})
            connect(overlay, signal, this, [this] {
                Q_EMIT maximumSizeChanged();
                place();
            });
        Q_EMIT maximumSizeChanged();
    }
    setParentItem(overlay);
}

void RDialogBase::onAboutToShow()
{
    moveToOverlay();
    make();
    // What is shown over a page inherits nothing from the part of it that it belongs to.
    const auto *declaredIn = qobject_cast<QQuickItem *>(parent());
    const bool isMirrored = declaredIn && QQuickItemPrivate::get(declaredIn)->effectiveLayoutMirror;
    QQuickItemPrivate::get(popupItem())->setImplicitLayoutMirror(isMirrored, true);
    m_shift = {};
    m_isEnterDown = false;
    place();
}

void RDialogBase::make()
{
    QQmlEngine *engine = qmlEngine(this);
    if (m_frame || !engine)
        return;
    auto *frame = qobject_cast<QQuickItem *>(PartComponents::of(engine).make(
        Part::DialogFrame, this, {{QStringLiteral("dialog"), QVariant::fromValue(this)}}));
    if (!frame)
        return;
    setContentItem(frame);
    qmlExecuteDeferred(this); // the page's part
    const auto follow = [this](QQuickItem &item, std::span<const SheetColors::Source> sources, std::size_t first) {
        const auto tell = [this, first](std::size_t begin, std::size_t end) { tellColors(first + begin, first + end); };
        return std::make_unique<SheetColors>(item, sources, tell);
    };
    m_frameColors = follow(*frame, frameSources, Background);
    m_headerColors = follow(*m_header, headerSources, HeaderBackground);
    tellColors(0, nameCount);
}

void RDialogBase::takeParts(QQuickItem *frame, QQuickItem *header, QQuickItem *place,
                            QQuickDialogButtonBox *standardBox, QQuickItem *furtherRow)
{
    m_frame = frame;
    m_header = header;
    m_standardBox = standardBox;
    m_furtherRow = furtherRow;

    body()->setParentItem(place);
    QQuickItemPrivate::get(m_body)->anchors()->setFill(place);
    for (const QPointer<QQuickItem> &button : std::as_const(m_furtherButtons)) {
        if (button)
            button->setParentItem(furtherRow);
    }

    standardBox->setStandardButtons(standardButtons());
    connect(standardBox, &QQuickDialogButtonBox::clicked, this, &RDialogBase::onButtonClicked);
}

void RDialogBase::beginMove()
{
    m_shiftAtPress = position() - middle();
}

void RDialogBase::moveBy(QPointF distance)
{
    if (!m_isMovable || !qIsFinite(distance.x()) || !qIsFinite(distance.y()))
        return;
    m_shift = m_shiftAtPress + distance;
    place();
}

QPointF RDialogBase::middle() const
{
    return m_overlay ? QPointF(m_overlay->width() - width(), m_overlay->height() - height()) / 2.0 : QPointF();
}

void RDialogBase::place()
{
    const QPointF centred = middle();
    const qreal least = std::max(margins(), 0.0);
    const auto within = [least](qreal middle, qreal shift) {
        return std::round(std::clamp(middle + shift, least, std::max(2.0 * middle - least, least)));
    };
    if (m_overlay)
        setPosition({within(centred.x(), m_shift.x()), within(centred.y(), m_shift.y())});
}

void RDialogBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickDialog::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        place();
}

void RDialogBase::onVisibleChanged()
{
    QQuickWindow *window = this->window();
    if (isVisible()) {
        if (window)
            connect(window, &QQuickWindow::activeFocusItemChanged, this, &RDialogBase::onFocusMoved,
                    Qt::UniqueConnection);
        placeFocus();
        onFocusMoved();
        return;
    }
    if (window)
        disconnect(window, &QQuickWindow::activeFocusItemChanged, this, &RDialogBase::onFocusMoved);
    if (m_body)
        cancelFields(*m_body);
}

void RDialogBase::placeFocus()
{
    QQuickItem *target = m_initialFocus;
    if (!target && m_body) {
        if (const FieldEdit *field = firstField(*m_body))
            target = field->editor();
    }
    if (target)
        target->forceActiveFocus(Qt::TabFocusReason);
    else if (QQuickItem *former = popupItem()->scopedFocusItem())
        former->setFocus(false);
}

void RDialogBase::onFocusMoved()
{
    if (!isVisible() || !window())
        return;
    QQuickItem *focused = window()->activeFocusItem();
    showButtonOfEnter(focused == popupItem());
    if (focused && m_body && m_body->isAncestorOf(focused))
        Q_EMIT areaFocused(focused->mapRectToItem(m_body, QRectF(QPointF(), focused->size())));
}

bool RDialogBase::enterFields()
{
    FieldEdit *refused = isVisible() && m_body ? client::enterFields(*m_body) : nullptr;
    if (!refused)
        return true;
    refused->editor()->forceActiveFocus(Qt::TabFocusReason);
    refused->notice(refused->invalidText());
    return false;
}

void RDialogBase::accept()
{
    const QPointer<RDialogBase> guard(this);
    if (enterFields() && guard)
        QQuickDialog::accept();
}

void RDialogBase::onButtonClicked(QQuickAbstractButton *button)
{
    const QPointer<RDialogBase> guard(this);
    const auto flag = flagOf(*m_standardBox, button);
    Q_EMIT buttonClicked(flag);
    if (!guard)
        return;
    switch (QPlatformDialogHelper::buttonRole(flag)) {
    case QPlatformDialogHelper::AcceptRole:
    case QPlatformDialogHelper::YesRole:
        accept();
        break;
    case QPlatformDialogHelper::RejectRole:
    case QPlatformDialogHelper::NoRole:
        reject();
        break;
    case QPlatformDialogHelper::ApplyRole:
        if (enterFields() && guard)
            Q_EMIT applied();
        break;
    case QPlatformDialogHelper::ResetRole:
        Q_EMIT reset();
        break;
    case QPlatformDialogHelper::DestructiveRole:
        Q_EMIT discarded();
        break;
    case QPlatformDialogHelper::HelpRole:
        Q_EMIT helpRequested();
        break;
    default:
        break;
    }
}

QQuickAbstractButton *RDialogBase::buttonOfEnter() const
{
    if (!m_standardBox)
        return nullptr;
    if (m_defaultButton != 0)
        return m_standardBox->standardButton(QPlatformDialogHelper::StandardButton(m_defaultButton));
    if (QQuickAbstractButton *ok = m_standardBox->standardButton(QPlatformDialogHelper::Ok))
        return ok;
    for (int i = 0; i < m_standardBox->count(); ++i) {
        auto *button = qobject_cast<QQuickAbstractButton *>(m_standardBox->itemAt(i));
        const auto role = QPlatformDialogHelper::buttonRole(flagOf(*m_standardBox, button));
        if (role == QPlatformDialogHelper::AcceptRole || role == QPlatformDialogHelper::YesRole)
            return button;
    }
    return nullptr;
}

void RDialogBase::showButtonOfEnter(bool shown)
{
    const QQuickAbstractButton *ofEnter = shown ? buttonOfEnter() : nullptr;
    for (int i = 0; m_standardBox && i < m_standardBox->count(); ++i) {
        QQuickItem *button = m_standardBox->itemAt(i);
        button->setProperty("pressedByEnter", button == ofEnter);
    }
}

void RDialogBase::keyPressEvent(QKeyEvent *event)
{
    if (const double lines = scrolledLines(event->key()); lines != 0.0) {
        event->accept();
        Q_EMIT scrolled(lines);
        return;
    }
    if (!isEnterKey(*event)) {
        QQuickDialog::keyPressEvent(event);
        return;
    }
    event->accept();
    // With the release, as buttons do: whoever gets the focus back must not hear that of a key that closed the dialog.
    if (!event->isAutoRepeat())
        m_isEnterDown = !pressesByEnter(window() ? window()->activeFocusItem() : nullptr);
}

void RDialogBase::keyReleaseEvent(QKeyEvent *event)
{
    if (!isEnterKey(*event) || event->isAutoRepeat()) {
        QQuickDialog::keyReleaseEvent(event);
        return;
    }
    event->accept();
    auto *button = qobject_cast<RButtonBase *>(buttonOfEnter());
    if (std::exchange(m_isEnterDown, false) && button && !m_isBusy)
        button->click();
}

} // namespace tamble::client
