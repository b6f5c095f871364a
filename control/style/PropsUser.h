#pragma once

#include <boost/intrusive/list.hpp>

namespace tamble::client {

/// Told when shared style values change. It leaves their list by itself when it is destroyed; a connection would take
/// ten times the memory and time, and there is one user for each style set on screen.
class PropsUser : public boost::intrusive::list_base_hook<boost::intrusive::link_mode<boost::intrusive::auto_unlink>>
{
public:
    virtual void onPropsChanged() = 0;

protected:
    ~PropsUser() = default;
};

using PropsUserList = boost::intrusive::list<PropsUser, boost::intrusive::constant_time_size<false>>;

} // namespace tamble::client
