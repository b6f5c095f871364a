#pragma once

#include <QtCore/QObject>

/// The colour mathematics of the audits, against published and hand-worked figures.
class tst_ColourMetrics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contrast_data();
    void contrast();
    void composition_data();
    void composition();
    void difference_data();
    void difference();
};
