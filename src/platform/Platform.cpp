#include "platform/Platform.h"

#include <cstdio>
#include <cstdlib>

namespace orbidex {

namespace {
Platform* gPlatform = nullptr;
}

void SetPlatform(Platform* p) { gPlatform = p; }

Platform& platform() {
    if (gPlatform == nullptr) {
        std::fputs("orbidex: no platform installed\n", stderr);
        std::abort();
    }
    return *gPlatform;
}

bool PlatformInstalled() { return gPlatform != nullptr; }

}  // namespace orbidex
