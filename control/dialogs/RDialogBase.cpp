#include "dialogs/RDialogBase.h"

#include "base/FocusReason.h"
#include "base/InputMeaning.h"
#include "base/PartComponents.h"
#include "controls/RButtonBase.h"
#include "dialogs/DialogFields.h"
#include "fields/FieldEdit.h"

#include <QtGui/QKeyEvent>
#include <QtQml/QQmlEngine>
#include <QtQml/qqml.h>
#include <QtQuick/QQuickWindow>
#include <QtQuick/private/qquickitem_p.h>

#include <array>
#include <utility>

namespace tamble::client {

namespace {

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

} // namespace

RDialogBase::RDialogBase(QObject *parent)
    : QQuickDialog(parent)
    , m_origin(*this)
    , m_place(*this)
    , m_colors([this](std::size_t begin, std::size_t end) { tellColors(begin, end); })
{
    connect(this, &QQuickPopup::aboutToShow, this, &RDialogBase::onAboutToShow);
    connect(this, &QQuickPopup::visibleChanged, this, &RDialogBase::onVisibleChanged);
    connect(this, &QQuickDialog::standardButtonsChanged, this, [this] {
        m_buttons.setStandard(standardButtons());
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
    m_colors.letGo();
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
    return m_buttons.standard(button);
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
        if (button)
            static_cast<RDialogBase *>(list->object)->m_buttons.addFurther(*button);
    };
    const auto count = [](QQmlListProperty<QQuickItem> *list) {
        return qsizetype(static_cast<RDialogBase *>(list->object)->m_buttons.further().size());
    };
    const auto at = [](QQmlListProperty<QQuickItem> *list, qsizetype index) -> QQuickItem * {
        return static_cast<RDialogBase *>(list->object)->m_buttons.further().at(index);
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

void RDialogBase::tellColors(std::size_t begin, std::size_t end)
{
    for (std::size_t i = begin; i < end; ++i)
        Q_EMIT(this->*dialogColorSignals[i])();
    refresh();
}

void RDialogBase::componentComplete()
{
    m_place.enterWindow();
    QQuickDialog::componentComplete();
}

void RDialogBase::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        m_place.enterWindow();
        if (const QQuickItem *overlay = m_place.overlay())
            m_origin.rememberFocus(*overlay);
    }
    QQuickDialog::setVisible(visible);
}

void RDialogBase::onAboutToShow()
{
    m_place.enterWindow();
    make();
    // What is shown over a page inherits nothing from the part of it that it belongs to; a message box belongs to none.
    auto *declaredIn = qobject_cast<QQuickItem *>(parent());
    if (!declaredIn && window())
        declaredIn = window()->contentItem();
    const bool isMirrored = declaredIn && QQuickItemPrivate::get(declaredIn)->effectiveLayoutMirror;
    QQuickItemPrivate::get(popupItem())->setImplicitLayoutMirror(isMirrored, true);
    m_isEnterDown = false;
    m_place.centre();
}

void RDialogBase::make()
{
    QQmlEngine *engine = qmlEngine(this);
    if (m_frame || !engine)
        return;
    m_frame = qobject_cast<DialogFrame *>(PartComponents::of(engine).make(
        Part::DialogFrame, this, {{QStringLiteral("dialog"), QVariant::fromValue(this)}}));
    if (!m_frame)
        return;
    setContentItem(m_frame);
    m_buttons.takePlaces(*m_frame->footer());
    connect(m_frame->footer()->standardBox(), &QQuickDialogButtonBox::clicked, this, &RDialogBase::onButtonClicked);
    qmlExecuteDeferred(this); // the page's part
    m_colors.follow(*m_frame, *m_frame->header());
    m_buttons.setStandard(standardButtons());
    m_frame->setBody(*body());
    for (auto signal : {&RDialogBase::iconKeyChanged, &RDialogBase::busyChanged, &RDialogBase::closableChanged,
                        &RDialogBase::maximumSizeChanged})
        connect(this, signal, this, &RDialogBase::refresh);
    connect(this, &QQuickDialog::titleChanged, this, &RDialogBase::refresh);
}

void RDialogBase::refresh()
{
    if (m_frame)
        m_frame->refresh();
}

void RDialogBase::moveBy(QPointF distance)
{
    if (m_isMovable)
        m_place.moveBy(distance);
}

void RDialogBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickDialog::geometryChange(newGeometry, oldGeometry);
    // Qt looks for the place of an endless popup without end.
    if (!qIsFinite(newGeometry.width()))
        resetWidth();
    else if (!qIsFinite(newGeometry.height()))
        resetHeight();
    else if (newGeometry.size() != oldGeometry.size())
        m_place.update();
}

void RDialogBase::onVisibleChanged()
{
    QQuickWindow *window = this->window();
    refresh();
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
    m_buttons.mark(focused == popupItem() ? m_buttons.ofEnter(m_defaultButton) : nullptr);
    if (focused && m_frame && m_body && m_body->isAncestorOf(focused) && !isFocusByMouse(*focused))
        m_frame->bringIntoView(focused->mapRectToItem(m_body, QRectF(QPointF(), focused->size())));
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
    const auto flag = m_buttons.flagOf(button);
    Q_EMIT buttonClicked(flag);
    if (guard)
        press(QPlatformDialogHelper::buttonRole(flag));
}

void RDialogBase::press(QPlatformDialogHelper::ButtonRole role)
{
    const QPointer<RDialogBase> guard(this);
    switch (role) {
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

void RDialogBase::keyPressEvent(QKeyEvent *event)
{
    if (const double lines = scrolledLines(event->key()); lines != 0.0) {
        event->accept();
        if (m_frame)
            m_frame->scrollBy(lines);
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
    auto *button = qobject_cast<RButtonBase *>(m_buttons.ofEnter(m_defaultButton));
    if (std::exchange(m_isEnterDown, false) && button && !m_isBusy)
        button->click();
}

} // namespace tamble::client
