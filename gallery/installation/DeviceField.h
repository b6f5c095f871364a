#pragma once

#include "DeviceSelection.h"

/// A field of the selected devices, as a control is bound to it.
///
///     DeviceField { id: address; target: selection; field: "ipAddress" }
///     RTextField { value: address.shown; confirmed: address.confirmed; consistent: address.consistent
///                  errorText: address.errorText; onValueEdited: value => address.request(value) }
class DeviceField : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(DeviceSelection *target READ target WRITE setTarget NOTIFY targetChanged FINAL)
    /// Name of the field; see `deviceFields`.
    Q_PROPERTY(QString field READ field WRITE setField NOTIFY fieldChanged FINAL)
    /// What the first device said last; undefined without one.
    Q_PROPERTY(QVariant value READ value NOTIFY valueChanged FINAL)
    /// What it was asked for while that waits or has failed, else `value`.
    Q_PROPERTY(QVariant shown READ shown NOTIFY shownChanged FINAL)
    /// Whether all devices show the same.
    Q_PROPERTY(bool consistent READ isConsistent NOTIFY consistentChanged FINAL)
    /// Whether no request waits for its answer.
    Q_PROPERTY(bool confirmed READ isConfirmed NOTIFY confirmedChanged FINAL)
    /// Why the last request failed, with the name of the device where there are several.
    Q_PROPERTY(QString errorText READ errorText NOTIFY errorTextChanged FINAL)
    /// What the devices really have, whatever the network does, in the order of the selection and on one line.
    Q_PROPERTY(QString actualText READ actualText NOTIFY actualTextChanged FINAL)
    /// Bounds of a number, or of the length of a text.
    Q_PROPERTY(double minimum READ minimum NOTIFY fieldChanged FINAL)
    Q_PROPERTY(double maximum READ maximum NOTIFY fieldChanged FINAL)

public:
    explicit DeviceField(QObject *parent = nullptr);

    DeviceSelection *target() const { return m_target; }
    void setTarget(DeviceSelection *target);
    QString field() const { return m_name; }
    void setField(const QString &name);
    QVariant value() const { return m_state.value; }
    QVariant shown() const { return m_state.shown; }
    bool isConsistent() const { return m_state.isConsistent; }
    bool isConfirmed() const { return m_state.isConfirmed; }
    QString errorText() const { return m_state.errorText; }
    QString actualText() const;
    double minimum() const;
    double maximum() const;

    /// Asks every device to take a value.
    Q_INVOKABLE void request(const QVariant &value);
    /// Asks every device for a number that is by so much greater than what it shows, within the bounds.
    Q_INVOKABLE void shift(double by);
    /// Forgets requests that failed.
    Q_INVOKABLE void dismiss();
    /// Lets another client edit the field of the first device.
    Q_INVOKABLE void editElsewhere();

    void classBegin() override;
    void componentComplete() override {}

Q_SIGNALS:
    void targetChanged();
    void fieldChanged();
    void valueChanged();
    void shownChanged();
    void consistentChanged();
    void confirmedChanged();
    void errorTextChanged();
    void actualTextChanged();

private:
    struct State
    {
        QVariant value;
        QVariant shown;
        QString errorText;
        bool isConsistent = true;
        bool isConfirmed = true;
    };

    void findPlaces();
    State present() const;
    QString errorOf(const QList<FieldPlace> &places) const;
    void update();
    void updateIfOurs(int device, int field);
    void tellActualText(int device);

    QPointer<GalleryInstallation> m_installation;
    QPointer<DeviceSelection> m_target;
    QString m_name;
    QList<FieldPlace> m_places; ///< none outside of QML
    State m_state;
};
