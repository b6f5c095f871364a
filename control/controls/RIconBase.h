#pragma once

#include "base/ControlExport.h"
#include "controls/RTintedImage.h"
#include "style/SheetColors.h"

#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

#include <array>
#include <optional>

namespace tamble::client {

/// Picture of the icon set in the middle of an item, in one colour. Native, since a page has hundreds of them.
class TAMBLE_CLIENT_CONTROL_EXPORT RIconBase : public QQuickItem
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RIconBase)
    Q_PROPERTY(QString key READ key WRITE setKey NOTIFY keyChanged FINAL)
    Q_PROPERTY(QString sizeClass READ sizeClass WRITE setSizeClass NOTIFY sizeClassChanged FINAL)
    Q_PROPERTY(int size READ size NOTIFY sizeClassChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged FINAL)
    Q_PROPERTY(bool useColorOverlay READ useColorOverlay WRITE setUseColorOverlay NOTIFY useColorOverlayChanged FINAL)
    Q_PROPERTY(QQuickImage::FillMode fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged FINAL)
    Q_PROPERTY(qreal imgWidth READ imgWidth WRITE setImgWidth NOTIFY imgWidthChanged FINAL)
    Q_PROPERTY(qreal imgHeight READ imgHeight WRITE setImgHeight NOTIFY imgHeightChanged FINAL)
    /// The sizes in density-independent units: `ssSizeXXS`, `ssSizeXS`, `ssSizeS`, `ssSizeM`, `ssSizeL`.
    Q_PROPERTY(int ssSizeXXS READ ssSizeXXS CONSTANT FINAL)
    Q_PROPERTY(int ssSizeXS READ ssSizeXS CONSTANT FINAL)
    Q_PROPERTY(int ssSizeS READ ssSizeS CONSTANT FINAL)
    Q_PROPERTY(int ssSizeM READ ssSizeM CONSTANT FINAL)
    Q_PROPERTY(int ssSizeL READ ssSizeL CONSTANT FINAL)
    Q_PROPERTY(QColor ssIconForeground READ ssIconForeground WRITE setSsIconForeground NOTIFY ssIconForegroundChanged)

public:
    explicit RIconBase(QQuickItem *parent = nullptr);

    /// Name in the icon set; empty by default. One that the set does not hold leaves the space empty.
    QString key() const { return m_key; }
    void setKey(const QString &key);
    /// One of the words "XXS", "XS", "S", "M" and "L"; any other counts as "S", the default.
    QString sizeClass() const { return m_sizeClass; }
    void setSizeClass(const QString &sizeClass);
    /// Edge length in density-independent units.
    int size() const;
    /// Pixels per density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Address of the picture, made of `key` and `size` until a page sets one of its own.
    QUrl source() const;
    void setSource(const QUrl &source);
    /// False shows a picture in its own colours; true by default.
    bool useColorOverlay() const { return m_image->tinted(); }
    void setUseColorOverlay(bool tinted);
    /// How the picture fills its size; `Image.PreserveAspectFit` by default.
    QQuickImage::FillMode fillMode() const { return m_image->fillMode(); }
    void setFillMode(QQuickImage::FillMode mode);
    /// Size of the picture in pixels, `imgWidth` by `imgHeight`: that of the item until a page sets another.
    qreal imgWidth() const { return m_image->width(); }
    void setImgWidth(qreal width);
    qreal imgHeight() const { return m_image->height(); }
    void setImgHeight(qreal height);

    static constexpr int ssSizeXXS() { return 8; }
    static constexpr int ssSizeXS() { return 16; }
    static constexpr int ssSizeS() { return 24; }
    static constexpr int ssSizeM() { return 32; }
    static constexpr int ssSizeL() { return 48; }
    /// Of the style: the colour of the picture.
    QColor ssIconForeground() const { return m_colors.color(0); }
    void setSsIconForeground(const QColor &color) { m_colors.setColor(0, color); }

Q_SIGNALS:
    void keyChanged();
    void sizeClassChanged();
    void unitChanged();
    void sourceChanged();
    void useColorOverlayChanged();
    void fillModeChanged();
    void imgWidthChanged();
    void imgHeightChanged();
    void ssIconForegroundChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    static const std::array<SheetColors::Source, 1> colorSources;

    void updateSize();
    void updatePicture();
    void placePicture();

    QString m_key;
    QString m_sizeClass;
    std::optional<QUrl> m_source; // the page's own
    RTintedImage *m_image;        // a child
    qreal m_unit = 1.0;
    qreal m_imageWidth = -1.0; // these two: negative for that of the item
    qreal m_imageHeight = -1.0;
    SheetColors m_colors;
};

} // namespace tamble::client
