#pragma once

#include <QtGlobal>

namespace velm
{

// Hands out the one T that the composition root made. Nothing is created here: asking before the root
// has made it, or making a second one, is a bug. Called by the root and the QML glue, by nobody else.
template <typename T>
class SharedInstance
{
public:
    SharedInstance(const SharedInstance &) = delete;
    SharedInstance &operator=(const SharedInstance &) = delete;

    static T &shared()
    {
        Q_ASSERT_X(s_instance, "SharedInstance", "asked for before the composition root made it");
        return *static_cast<T *>(s_instance);
    }

protected:
    SharedInstance()
    {
        Q_ASSERT_X(!s_instance, "SharedInstance", "made twice");
        s_instance = this;
    }
    ~SharedInstance() { s_instance = nullptr; }

private:
    static inline SharedInstance *s_instance = nullptr;
};

}
