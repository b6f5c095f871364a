#include "plot/RAxisItem.h"

namespace tamble::client {

RAxisItem::RAxisItem(double y, const QString &label, QObject *parent)
    : QObject(parent)
    , m_y(y)
    , m_label(label)
{}

} // namespace tamble::client
