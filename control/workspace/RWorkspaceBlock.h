#pragma once

#include "base/ControlExport.h"
#include "style/FedStates.h"
#include "style/SheetColors.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtCore/QPointer>
#include <QtQml/QQmlComponent>
#include <QtQml/QQmlListProperty>

#include <array>

namespace tamble::client {

class BlockLook;

/// The look of a device or block on a workspace: a header above what the page puts into it, and a value bar below.
///
/// All but the page's content is made when the item first comes into view. At a zoom below 0.4 only icon and title are
/// drawn, or in their place, large, the status icon.
class TAMBLE_CLIENT_CONTROL_EXPORT RWorkspaceBlock : public tamble::client::WorkspaceItemBase
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RWorkspaceBlock)
    Q_CLASSINFO("DefaultProperty", "content")
    /// What the header says; assistive tools know the item by it.
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    /// Names of pictures: `iconKey` before the title, `statusIconKey` at the end of the header; empty, the default, for
    /// none.
    Q_PROPERTY(QString iconKey READ iconKey WRITE setIconKey NOTIFY iconKeyChanged FINAL)
    Q_PROPERTY(QString statusIconKey READ statusIconKey WRITE setStatusIconKey NOTIFY statusIconKeyChanged FINAL)
    Q_PROPERTY(QQmlListProperty<QObject> content READ content FINAL)
    /// Content that is made between header and value bar when it is first to be seen; null by default.
    Q_PROPERTY(
        QQmlComponent *contentComponent READ contentComponent WRITE setContentComponent NOTIFY contentComponentChanged)
    Q_PROPERTY(QQmlComponent *valueBar READ valueBar WRITE setValueBar NOTIFY valueBarChanged FINAL)
    Q_PROPERTY(QQuickItem *valueBarItem READ valueBarItem NOTIFY valueBarItemChanged FINAL)
    Q_PROPERTY(qreal unit READ unit WRITE setUnit NOTIFY unitChanged FINAL)
    /// Of the style: `ssBackground`, `ssBorderColor`, and of title and icons `ssColor`.
    Q_PROPERTY(QColor ssBackground READ ssBackground WRITE setSsBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssBorderColor READ ssBorderColor WRITE setSsBorderColor NOTIFY ssBorderColorChanged)
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)

public:
    explicit RWorkspaceBlock(QQuickItem *parent = nullptr);
    ~RWorkspaceBlock() override;

    QString title() const { return m_title; }
    void setTitle(const QString &title);
    QString iconKey() const { return m_iconKey; }
    void setIconKey(const QString &key);
    QString statusIconKey() const { return m_statusIconKey; }
    void setStatusIconKey(const QString &key);
    /// The items between header and value bar, which make the item as large as they are, at least 96 by 64
    /// density-independent units.
    QQmlListProperty<QObject> content();
    void setContentComponent(QQmlComponent *component);
    /// An RWorkspaceItemValueBar along the bottom, written as an object and made when it is first to be seen; null, the
    /// default, for none.
    QQmlComponent *valueBar() const { return m_valueBar; }
    void setValueBar(QQmlComponent *component);
    /// What was made of `valueBar`; null before.
    QQuickItem *valueBarItem() const;
    /// Pixels per density-independent unit.
    qreal unit() const { return m_unit; }
    void setUnit(qreal unit);
    /// Width in density-independent units of a line that is a pixel wide, or little more, at the workspace's zoom; at
    /// least 1.
    qreal lineWidth() const { return m_lineWidth; }

    QColor ssBackground() const { return m_colors.color(Background); }
    void setSsBackground(const QColor &color) { m_colors.setColor(Background, color); }
    QColor ssBorderColor() const { return m_colors.color(BorderColor); }
    void setSsBorderColor(const QColor &color) { m_colors.setColor(BorderColor, color); }
    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }

    QString spokenName() const override;

Q_SIGNALS:
    void titleChanged();
    void iconKeyChanged();
    void statusIconKeyChanged();
    void valueBarChanged();
    void valueBarItemChanged();
    void unitChanged();
    void ssBackgroundChanged();
    void ssBorderColorChanged();
    void ssColorChanged();

protected:
    void lookChange() override { updateLook(); }
    void componentComplete() override;
    void sizeChange() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    enum ColorName : std::size_t { Background, BorderColor, Color };
    static const std::array<SheetColors::Source, 3> colorSources;

    QQuickItem &makeContentItem();
    qreal barHeight() const;
    void updateLook();
    void updateSize();
    void placeContent();
    void feedStates();
    void followZoom();
    bool fitLines();
    void onColorsChanged(std::size_t begin, std::size_t end);

    SheetColors m_colors;
    QString m_title;
    QString m_iconKey;
    QString m_statusIconKey;
    QPointer<QQmlComponent> m_valueBar;
    BlockLook *m_look = nullptr; // a child, made when the item first comes into view
    qreal m_unit = 1.0;
    qreal m_lineWidth = 1.0;
    QMetaObject::Connection m_zoomConnection; // while in view
    FedStates m_states;
};

} // namespace tamble::client
