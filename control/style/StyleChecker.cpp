#include "style/StyleChecker.h"

namespace tamble::client {

StyleChecker::StyleChecker(QQuickItem *parent)
    : QQuickItem(parent)
{}

} // namespace tamble::client
