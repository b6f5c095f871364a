#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "style/SheetColors.h"

#include <QtQml/qqmlregistration.h>
#include <QtQuick/private/qquicktextinput_p.h>

#include <array>

namespace tamble::client {

/// A bare editor of one line, which speaks for the control that it is a part of, with a hint for an empty one, which is
/// made when it is first shown.
class TAMBLE_CLIENT_CONTROL_EXPORT RTextInputBase : public QQuickTextInput, public SpokenControl
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RTextInputBase)
    /// Of the style: the text, the selection, and an unacceptable text: `ssColor`, `ssSelection`,
    /// `ssForegroundInvalid`.
    Q_PROPERTY(QColor ssColor READ ssColor WRITE setSsColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssSelection READ ssSelection WRITE setSsSelection NOTIFY ssSelectionChanged)
    Q_PROPERTY(QColor ssForegroundInvalid READ ssForegroundInvalid WRITE setSsForegroundInvalid NOTIFY
                   ssForegroundInvalidChanged)
    Q_PROPERTY(
        QString placeholderText READ placeholderText WRITE setPlaceholderText NOTIFY placeholderTextChanged FINAL)

public:
    explicit RTextInputBase(QQuickItem *parent = nullptr);
    ~RTextInputBase() override;

    /// Text shown while there is none; none by default.
    QString placeholderText() const { return m_placeholderText; }
    void setPlaceholderText(const QString &text);

    QColor ssColor() const { return m_colors.color(Color); }
    void setSsColor(const QColor &color) { m_colors.setColor(Color, color); }
    QColor ssSelection() const { return m_colors.color(Selection); }
    void setSsSelection(const QColor &color) { m_colors.setColor(Selection, color); }
    QColor ssForegroundInvalid() const { return m_colors.color(ForegroundInvalid); }
    void setSsForegroundInvalid(const QColor &color) { m_colors.setColor(ForegroundInvalid, color); }

    QAccessible::Role spokenRole() const override { return QAccessible::EditableText; }
    QString spokenName() const override;
    QString spokenDescription(const QString &given) const override;

Q_SIGNALS:
    void ssColorChanged();
    void ssSelectionChanged();
    void ssForegroundInvalidChanged();
    void placeholderTextChanged();

protected:
    void componentComplete() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    enum ColorName : std::size_t { Color, Selection, ForegroundInvalid };
    static const std::array<SheetColors::Source, 3> colorSources;

    void updateHint();

    SheetColors m_colors;

    QString m_placeholderText;
    QObject *m_hint = nullptr; // a child, made when first shown
};

} // namespace tamble::client
