#pragma once

namespace quorvane {

// A live event tap. Destroying it tears the tap down in the order the system wants: disable the
// tap, invalidate its port, then take its source off the run loop.
class EventTapHandle {
public:
    virtual ~EventTapHandle() = default;
    // CGEventTapEnable.
    virtual void setEnabled(bool enabled) = 0;
};

}  // namespace quorvane
