/// A lock that guards a piece of code.
#pragma once

#include <zel/ZELThreadLockableResource.h>

/// A lockable resource that stands for nothing but the code between lock and unlock.
class ZELThreadCriticalSection : public ZELThreadLockableResource {};
