#include "controls/RIconBase.h"

#include "style/StyleSetProps.h"

#include <cmath>
#include <utility>

namespace tamble::client {

const std::array<SheetColors::Source, 1> RIconBase::colorSources = {{{&StyleSetProps::foreground}}};

RIconBase::RIconBase(QQuickItem *parent)
    : QQuickItem(parent)
    , m_sizeClass(QStringLiteral("S"))
    , m_image(new RTintedImage(this))
    , m_colors(*this, colorSources, [this](std::size_t, std::size_t) {
        m_image->setTint(ssIconForeground());
        Q_EMIT ssIconForegroundChanged();
    })
{
    m_image->setFillMode(QQuickImage::PreserveAspectFit);
}

void RIconBase::setKey(const QString &key)
{
    if (std::exchange(m_key, key) == key)
        return;
    updatePicture();
    Q_EMIT keyChanged();
}

void RIconBase::setSizeClass(const QString &sizeClass)
{
    if (std::exchange(m_sizeClass, sizeClass) == sizeClass)
        return;
    updateSize();
    updatePicture();
    Q_EMIT sizeClassChanged();
}

int RIconBase::size() const
{
    constexpr std::array<std::pair<const char *, int>, 4> sizes = {
        {{"XXS", ssSizeXXS()}, {"XS", ssSizeXS()}, {"M", ssSizeM()}, {"L", ssSizeL()}}};
    for (const auto &[word, edge] : sizes) {
        if (m_sizeClass == QLatin1String(word))
            return edge;
    }
    return ssSizeS();
}

void RIconBase::setUnit(qreal unit)
{
    if (!std::isfinite(unit) || std::exchange(m_unit, unit) == unit)
        return;
    m_image->setEnlargement(unit);
    updateSize();
    Q_EMIT unitChanged();
}

QUrl RIconBase::source() const
{
    if (m_source)
        return *m_source;
    if (m_key.isEmpty())
        return {};
    return QUrl(QStringLiteral("qrc:/icons/%1_%2x%2.png").arg(m_key).arg(size()));
}

void RIconBase::setSource(const QUrl &source)
{
    m_source = source;
    updatePicture();
}

void RIconBase::setUseColorOverlay(bool tinted)
{
    if (m_image->tinted() == tinted)
        return;
    m_image->setTinted(tinted);
    Q_EMIT useColorOverlayChanged();
}

void RIconBase::setFillMode(QQuickImage::FillMode mode)
{
    if (m_image->fillMode() == mode)
        return;
    m_image->setFillMode(mode);
    Q_EMIT fillModeChanged();
}

void RIconBase::setImgWidth(qreal width)
{
    m_imageWidth = width;
    placePicture();
}

void RIconBase::setImgHeight(qreal height)
{
    m_imageHeight = height;
    placePicture();
}

void RIconBase::componentComplete()
{
    QQuickItem::componentComplete();
    m_image->setTint(ssIconForeground());
    updateSize();
    updatePicture();
    placePicture();
}

void RIconBase::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        placePicture();
}

void RIconBase::updateSize()
{
    if (isComponentComplete())
        setImplicitSize(size() * m_unit, size() * m_unit);
}

void RIconBase::updatePicture()
{
    if (!isComponentComplete())
        return;
    const QUrl picture = source();
    if (m_image->source() == picture)
        return;
    m_image->setSource(picture);
    Q_EMIT sourceChanged();
}

void RIconBase::placePicture()
{
    if (!isComponentComplete())
        return;
    const QSizeF before = m_image->size();
    m_image->setSize({m_imageWidth < 0.0 ? width() : m_imageWidth, m_imageHeight < 0.0 ? height() : m_imageHeight});
    m_image->setPosition({(width() - m_image->width()) / 2.0, (height() - m_image->height()) / 2.0});
    if (m_image->width() != before.width())
        Q_EMIT imgWidthChanged();
    if (m_image->height() != before.height())
        Q_EMIT imgHeightChanged();
}

} // namespace tamble::client
