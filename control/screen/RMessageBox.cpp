#include "screen/RMessageBox.h"

namespace tamble::client {

RMessageBox::RMessageBox(QObject *parent)
    : QObject(parent)
{}

} // namespace tamble::client
