#pragma once

#include <cstdlib>
#include <memory>

namespace velm
{

struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};

// What xcb hands out and wants freed: replies and events.
template <typename T>
using XcbReply = std::unique_ptr<T, FreeReply>;

}
