#include "framework/EventBoundary.h"

#include <new>

#include "framework/Exceptions.h"
#include "framework/Platform.h"

namespace fw {

namespace {
void Report(Platform& platform, const std::string& className, const std::string& detail) {
    std::string message = "An exception of class " + className + " was not handled.";
    if (!detail.empty()) message += " (" + detail + ")";
    try {
        platform.MsgBox(message);
    } catch (...) {
        // Nothing more can be said if even the message fails.
    }
}
}  // namespace

bool RunEvent(Platform& platform, const std::function<void()>& handler) {
    try {
        handler();
        return true;
    } catch (const RuntimeException& error) {
        Report(platform, error.ClassName(), error.what());
    } catch (const std::bad_alloc&) {
        Report(platform, "OutOfMemoryException", {});
    } catch (const std::exception& error) {
        Report(platform, "RuntimeException", error.what());
    } catch (...) {
        Report(platform, "RuntimeException", {});
    }
    return false;
}

}  // namespace fw
