#pragma once

#include "models/RSortFilterProxyModel.h"
#include "models/RowExpressions.h"
#include "models/RowMatcher.h"
#include "models/RowOrder.h"
#include "models/SourceRoles.h"
#include "models/SourceWatch.h"

#include <QtCore/QPointer>

#include <optional>

namespace tamble::client {

/// What a sort and filter model consists of, and what it has still to do.
struct RSortFilterProxyModel::Parts
{
    RowMatcher matcher;
    QList<int> filterRoles;
    RowOrder order;
    RowExpressions expressions;
    SourceWatch watch{order.keys(), expressions};
    SourceRoles roles;
    std::optional<QPointer<QAbstractItemModel>> nextSource; // set while another one is being set

    bool isHeld = false; // until the page is complete
    bool isSettling = false;
    bool isUnsettled = false;
    bool mustFilter = false;
    bool mustSort = false;
    bool willTellCount = false;
    bool saidEndless = false;
    bool isSettingSource = false;

    explicit Parts(const SourceRoles::Report &report)
        : roles(report)
    {}
};

} // namespace tamble::client
