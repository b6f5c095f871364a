#include "controls/RTabButtonBase.h"

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace tamble::client {

RTabButtonBase::RTabButtonBase(QQuickItem *parent)
    : RButtonBase(parent)
{
    const auto tellDescription = [this] { announce(*this, QAccessible::DescriptionChanged); };
    connect(this, &RTabButtonBase::modifiedChanged, this, tellDescription);
    connect(this, &RTabButtonBase::badgeChanged, this, tellDescription);
}

QString RTabButtonBase::spokenDescription(const QString &given) const
{
    QStringList parts{RButtonBase::spokenDescription(given), m_isModified ? tr("modified") : QString(), m_badge};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

void RTabButtonBase::addSpokenStates(QAccessible::State &state) const
{
    RButtonBase::addSpokenStates(state);
    state.selectable = true;
    state.selected = state.checked;
}

// From left to right, as they are seen: a view may keep its items in any order.
QList<RTabButtonBase *> RTabButtonBase::row() const
{
    QList<RTabButtonBase *> tabs;
    if (!parentItem())
        return tabs;
    for (QQuickItem *sibling : parentItem()->childItems()) {
        auto *tab = qobject_cast<RTabButtonBase *>(sibling);
        if (tab && tab->isVisible() && tab->isEnabled())
            tabs.append(tab);
    }
    std::stable_sort(tabs.begin(), tabs.end(), [](const auto *a, const auto *b) { return a->x() < b->x(); });
    return tabs;
}

/// Where a key moves the focus; null for keys that move nothing.
RTabButtonBase *RTabButtonBase::tabAt(int key) const
{
    const QList<RTabButtonBase *> tabs = row();
    const qsizetype here = tabs.indexOf(this);
    if (here < 0)
        return nullptr;
    const qsizetype last = tabs.size() - 1;
    switch (key) {
    case Qt::Key_Left:
        return tabs[std::max<qsizetype>(here - 1, 0)];
    case Qt::Key_Right:
        return tabs[std::min(here + 1, last)];
    case Qt::Key_Home:
        return tabs[isMirrored() ? last : 0];
    case Qt::Key_End:
        return tabs[isMirrored() ? 0 : last];
    default:
        return nullptr;
    }
}

bool RTabButtonBase::leaveRow(bool forwards)
{
    const QList<RTabButtonBase *> tabs = row();
    QQuickItem *next = nextItemInFocusChain(forwards);
    while (next && next != this && std::find(tabs.begin(), tabs.end(), next) != tabs.end())
        next = next->nextItemInFocusChain(forwards);
    if (!next || next == this)
        return false;
    next->forceActiveFocus(forwards ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void RTabButtonBase::keyPressEvent(QKeyEvent *event)
{
    const bool isBack = event->key() == Qt::Key_Backtab;
    if (isBack || (event->key() == Qt::Key_Tab && event->modifiers() == Qt::NoModifier)) {
        event->setAccepted(leaveRow(!isBack));
        return;
    }
    if ((event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        if (RTabButtonBase *tab = tabAt(event->key())) {
            event->accept();
            tab->forceActiveFocus(Qt::OtherFocusReason);
            return;
        }
        if (event->key() == Qt::Key_Delete && m_isClosable) {
            event->accept();
            if (!event->isAutoRepeat())
                Q_EMIT closeRequested();
            return;
        }
    }
    RButtonBase::keyPressEvent(event);
}

void RTabButtonBase::focusInEvent(QFocusEvent *event)
{
    RButtonBase::focusInEvent(event);
    // Later, since Qt sets the focus once more when it is back from here.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        QMetaObject::invokeMethod(this, &RTabButtonBase::passFocusToSelected, Qt::QueuedConnection);
}

void RTabButtonBase::passFocusToSelected()
{
    if (isSelected() || !hasActiveFocus())
        return;
    const QList<RTabButtonBase *> tabs = row();
    const auto selected = std::find_if(tabs.begin(), tabs.end(), [](const auto *tab) { return tab->isSelected(); });
    if (selected != tabs.end())
        (*selected)->forceActiveFocus(Qt::OtherFocusReason);
}

} // namespace tamble::client
