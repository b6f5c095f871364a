#include "fields/RTextInputBase.h"

#include "fields/FieldParts.h"
#include "style/StyleSetProps.h"

#include <cmath>
#include <utility>

namespace tamble::client {

namespace {

constexpr std::array<void (RTextInputBase::*)(), 3> inputColorSignals = {
    &RTextInputBase::ssColorChanged,
    &RTextInputBase::ssSelectionChanged,
    &RTextInputBase::ssForegroundInvalidChanged,
};

} // namespace

const std::array<SheetColors::Source, 3> RTextInputBase::colorSources = {{
    {&StyleSetProps::foreground},
    {&StyleSetProps::selection},
    {&StyleSetProps::foregroundInvalid, "foreground-invalid", Color},
}};

RTextInputBase::RTextInputBase(QQuickItem *parent)
    : QQuickTextInput(parent)
    , m_colors(*this, colorSources, [this](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            Q_EMIT(this->*inputColorSignals[i])();
    })
{
    connect(this, &QQuickTextInput::textChanged, this, &RTextInputBase::updateHint);
}

// The base tells that it loses the focus when nothing of this is left.
RTextInputBase::~RTextInputBase()
{
    disconnect(this, nullptr, this, nullptr);
}

void RTextInputBase::setPlaceholderText(const QString &text)
{
    if (std::exchange(m_placeholderText, text) == text)
        return;
    updateHint();
    Q_EMIT placeholderTextChanged();
}

QString RTextInputBase::spokenName() const
{
    return parentItem() && m_placeholderText.isEmpty() ? spokenNameOf(*parentItem()) : m_placeholderText;
}

QString RTextInputBase::spokenDescription(const QString &given) const
{
    const auto *around = dynamic_cast<const SpokenControl *>(parentItem());
    return around ? around->spokenDescription(given) : given;
}

void RTextInputBase::componentComplete()
{
    QQuickTextInput::componentComplete();
    updateHint();
}

// Qt 6.8 never ends to lay out a line whose width is not a number.
void RTextInputBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    if (std::isnan(newGeometry.width()))
        QQuickItem::geometryChange(newGeometry, oldGeometry); // NOLINT(bugprone-parent-virtual-call): no layout
    else
        QQuickTextInput::geometryChange(newGeometry, oldGeometry);
}

void RTextInputBase::updateHint()
{
    if (isComponentComplete() && !m_hint && length() == 0 && !m_placeholderText.isEmpty())
        m_hint = makeFieldPart(Part::FieldHint, *this);
}

} // namespace tamble::client
