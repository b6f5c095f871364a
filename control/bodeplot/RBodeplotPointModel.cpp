#include "bodeplot/RBodeplotPointModel.h"

namespace tamble::client {

RBodeplotPointModel::RBodeplotPointModel(QObject *parent)
    : QObject(parent)
{}

} // namespace tamble::client
