#pragma once

#include "EditHistory.h"
#include "FieldTable.h"

class GalleryInstallation;

/// A value that a device is to take.
struct FieldRequest
{
    FieldPlace place;
    QVariant value;
};

/// Requests that were made at once. What undoes them are requests again: devices may refuse them, too.
class RequestStep : public EditStep
{
public:
    struct Edit
    {
        FieldRequest request;
        QVariant before;
    };

    RequestStep(GalleryInstallation &installation, const QList<Edit> &edits, const QString &text);

    void undo() override;
    void redo() override;

protected:
    bool extend(const EditStep &later) override;

private:
    GalleryInstallation &m_installation;
    QList<Edit> m_edits;
};
