#pragma once

#include "base/ControlExport.h"
#include "base/SpokenControl.h"
#include "style/FedStates.h"
#include "style/StyleFollower.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuickTemplates2/private/qquickabstractbutton_p.h>

#include <optional>

namespace tamble::client {

class PendingValue;
class RButtonBasePrivate;
class StyleSet;
class StyleSetProps;

/// The behaviour of all buttons: selection, which is not the template's check state, "mixed", Enter, mnemonics, and
/// most state words.
///
/// Keys: Space presses, and clicks when it is released; Enter clicks when it is released, unless `enterClicks` is
/// false. Esc lets go of a held Space without a click. Alt and the letter behind "&" click.
class TAMBLE_CLIENT_CONTROL_EXPORT RButtonBase : public QQuickAbstractButton,
                                                 public SpokenControl,
                                                 private StyleFollower
{
    Q_OBJECT
    QML_NAMED_ELEMENT(RButtonBase)
    Q_PROPERTY(bool selectable READ isSelectable WRITE setSelectable NOTIFY selectableChanged FINAL)
    /// How long, in ms, an edited selection is shown before the bound one counts again; 300 by default.
    Q_PROPERTY(int settleTime MEMBER m_settleTime NOTIFY settleTimeChanged FINAL)
    /// Whether the button is in the selected state.
    Q_PROPERTY(bool selected READ isSelected WRITE setSelected NOTIFY selectedChanged FINAL)
    Q_PROPERTY(bool consistent READ isConsistent WRITE setConsistent NOTIFY consistentChanged FINAL)
    /// Whether Enter sends customEventActivated() in place of clicked().
    Q_PROPERTY(bool useCustomEvent MEMBER m_useCustomEvent NOTIFY useCustomEventChanged FINAL)
    /// Whether a click on "mixed" leaves the selection to a question that follows.
    Q_PROPERTY(bool asksWhenMixed MEMBER m_asksWhenMixed NOTIFY asksWhenMixedChanged FINAL)
    /// Whether releasing Enter clicks; true by default.
    Q_PROPERTY(bool enterClicks MEMBER m_enterClicks NOTIFY enterClicksChanged FINAL)
    Q_PROPERTY(bool literalText READ literalText WRITE setLiteralText NOTIFY literalTextChanged FINAL)
    Q_PROPERTY(QString plainText READ plainText NOTIFY plainTextChanged FINAL)
    // Bound in QML to what the sheets say. As native properties they are read and written by compiled bindings at half
    // the cost of ones declared there, and a change of theme does both for every button.
    /// Of the style: `ssBackground`, `ssColor` of the text, `ssLineColor` and `ssLineVisible` of the bar along the
    /// edge.
    Q_PROPERTY(QColor ssBackground MEMBER m_ssBackground NOTIFY ssBackgroundChanged)
    Q_PROPERTY(QColor ssColor MEMBER m_ssColor NOTIFY ssColorChanged)
    Q_PROPERTY(QColor ssLineColor MEMBER m_ssLineColor NOTIFY ssLineColorChanged)
    Q_PROPERTY(bool ssLineVisible MEMBER m_ssLineVisible NOTIFY ssLineVisibleChanged)
    // Each tells its own changes, whereas `RStyleSet.props` wakes the bindings to all of its values.
    /// What the sheets say for these: `sheetBackground`, `sheetColor`, `sheetLineColor`, `sheetLineVisible`.
    Q_PROPERTY(QColor sheetBackground READ sheetBackground NOTIFY sheetBackgroundChanged FINAL)
    Q_PROPERTY(QColor sheetColor READ sheetColor NOTIFY sheetColorChanged FINAL)
    Q_PROPERTY(QColor sheetLineColor READ sheetLineColor NOTIFY sheetLineColorChanged FINAL)
    Q_PROPERTY(bool sheetLineVisible READ sheetLineVisible NOTIFY sheetLineVisibleChanged FINAL)

public:
    explicit RButtonBase(QQuickItem *parent = nullptr);
    ~RButtonBase() override;

    /// Whether a click turns `selected` over, showing the edit for `settleTime` before a bound value counts again;
    /// false by default.
    bool isSelectable() const { return m_selectable; }
    void setSelectable(bool selectable);
    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    /// False while several devices differ in what the button stands for ("mixed"); true by default.
    bool isConsistent() const { return m_consistent; }
    void setConsistent(bool consistent);
    /// Whether releasing Enter clicks.
    bool enterClicks() const { return m_enterClicks; }
    /// Whether "&" marks no key in `text`, as in a text that comes from a device; false by default.
    bool literalText() const { return m_literalText; }
    void setLiteralText(bool literal);
    /// `text` as it is shown: without the mark of its mnemonic.
    QString plainText() const;

    QColor ssBackground() const { return m_ssBackground; }
    QColor ssColor() const { return m_ssColor; }
    QColor sheetBackground();
    QColor sheetColor();
    QColor sheetLineColor();
    bool sheetLineVisible();

    /// Clicks, as letting the pointer go does; a disabled button does nothing.
    void click();
    /// What a click does to the selection. A button that is not selectable keeps it.
    Q_INVOKABLE virtual void editSelection(bool selected);

    QAccessible::Role spokenRole() const override { return QAccessible::Button; }
    QString spokenName() const override { return plainText(); }
    QString spokenDescription(const QString &given) const override;
    void addSpokenStates(QAccessible::State &state) const override;
    bool pressBySpeech() override;

Q_SIGNALS:
    void selectableChanged();
    void settleTimeChanged();
    void selectedChanged();
    void consistentChanged();
    void useCustomEventChanged();
    void asksWhenMixedChanged();
    void enterClicksChanged();
    void literalTextChanged();
    void plainTextChanged();
    void ssBackgroundChanged();
    void ssColorChanged();
    void ssLineColorChanged();
    void ssLineVisibleChanged();
    void sheetBackgroundChanged();
    void sheetColorChanged();
    void sheetLineColorChanged();
    void sheetLineVisibleChanged();
    /// A click has edited the selection; sent before clicked().
    void selectionEdited(bool selected);
    /// Enter was released while `useCustomEvent` is set; no clicked() is sent then.
    void customEventActivated();

protected:
    /// `selected` or `consistent` has changed.
    virtual void selectionChange() {}
    /// What the sheets say about the button; after the first call, styleChange() tells when that may be another.
    StyleSetProps &sheetProps();
    virtual void styleChange() {}
    /// Asked once for each click, before it does anything: true keeps it from having an effect.
    virtual bool holdsBackClick() { return false; }
    /// Whether there is something that Esc takes back, which takeBack() then does: a held Space, unless a subclass
    /// knows more.
    virtual bool canTakeBack() const;
    virtual void takeBack();
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void nextCheckState() override;
    void hoverChange() override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void buttonChange(ButtonChange change) override;
    void accessibilityActiveChanged(bool active) override;

private:
    Q_DECLARE_PRIVATE(RButtonBase)

    template <typename Value>
    Value followed(std::optional<Value> &known, Value (StyleSetProps::*read)());
    void onStyleChanged() override;

    void feedStates();
    void useText();
    void clickOncePerKey();
    void announceState();

    PendingValue *m_pendingSelection = nullptr; // a child, made at the first click that edits
    StyleSet *m_styleSet = nullptr;             // the attached one, once it is followed
    FedStates m_states;
    std::optional<QColor> m_sheetBackground; // these four: empty until asked for
    std::optional<QColor> m_sheetColor;
    std::optional<QColor> m_sheetLineColor;
    std::optional<bool> m_sheetLineVisible;
    QColor m_ssBackground;
    QColor m_ssColor;
    QColor m_ssLineColor;
    int m_settleTime = 300;
    bool m_ssLineVisible = false;
    bool m_selectable = false;
    bool m_selected = false;
    bool m_consistent = true;
    bool m_useCustomEvent = false;
    bool m_asksWhenMixed = false; // whether a click on "mixed" leaves the selection to a question that follows
    bool m_enterClicks = true;    // whether releasing Enter clicks
    bool m_literalText = false;
    bool m_clickFollows = true; // false while a release is handled that clicks nothing
};

} // namespace tamble::client
